#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/workflow/WorkflowType.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVersionNumber>

class KProperty;
class KPropertySet;

namespace orv {

/// Holder that makes the enumeration known to the meta-object system.
class ORV_WORKFLOW_EXPORT ORV_QEnumsWorkflowAppType
{
    Q_GADGET

public:
    /// The application for which a workflow is made.
    enum WorkflowAppType : int
    {
        Mirel = 0,
        Talvane = 1,
    };
    Q_ENUM(WorkflowAppType)
};

using WorkflowAppType = ORV_QEnumsWorkflowAppType::WorkflowAppType;

/// "Mirel for Talvane" for Talvane, the enumerator's name otherwise.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString workflowAppTypeToString(WorkflowAppType type);

/// The format version of a document, and the metadata object that carries it with name, description, icon,
/// content mode and workflow type. Static functions over plain values; safe on any thread.
class ORV_WORKFLOW_EXPORT WflwMetaData
{
    Q_DECLARE_TR_FUNCTIONS(WflwMetaData)

public:
    /// The version that this software writes. Raising it means adding a step to the upgrade chain.
    static constexpr int WORKFLOW_JSON_VERSION_MAJOR = 5;
    static constexpr int WORKFLOW_JSON_VERSION_MINOR = 47;
    static constexpr int WORKFLOW_JSON_VERSION_PATCH = 0;

    enum class WflwState
    {
        UpToDate = 0,
        NeedsUpgrade = 1,
        NotSupported = 2,
    };

    [[nodiscard]] static QVersionNumber currentWorkflowVersion();

    /// Whether a document of \a version may hold what this software doesn't know, in whichever segment it is
    /// newer. Writing over such a document would drop that.
    [[nodiscard]] static bool isNewerThanCurrent(const QVersionNumber &version);

    /// Versions that need an upgrade whatever the other rules say.
    [[nodiscard]] static QList<QVersionNumber> specialVersions();
    /// Versions that can't be used at all.
    [[nodiscard]] static QList<QVersionNumber> unsupportedVersions();

    /// Whether a document of \a version can be used. \a content gives the content mode and must not be null;
    /// reasons for NotSupported are appended to \a messages.
    static WflwState checkWorkflowVersion(const QVersionNumber &version, const PropertyEditorContent *content,
                                          QStringList *messages);

    /// On the desktop every version can be upgraded; a server takes 5.9.1 and above.
    [[nodiscard]] static bool isSupportedVersion(const QVersionNumber &version,
                                                 PropertyEditorContent::ContentMode mode);

    /// A fresh stamp: "user" (the system's user name when \a user is empty), "created" (local time, ISO 8601)
    /// and "version".
    [[nodiscard]] static QJsonObject metaDataObject(const QString &user);

    /// \a object with every key of a fresh stamp overwritten; all other keys stay.
    [[nodiscard]] static QJsonObject stamped(const QJsonObject &object, const QString &user);

    /// The stamp of the object in a property's value, as compact JSON; other keys stay. A null property, or a
    /// value that is no JSON object, gives a fresh stamp. The stamp is that of the current user.
    [[nodiscard]] static QByteArray metaDataString(const KProperty &property);
    /// The same for the JSON text of a stamp.
    [[nodiscard]] static QByteArray restamped(const QByteArray &json);

    /// What a "metadata" text, of the document or of a cell, would lose when it is read: a key that stands
    /// twice, or an escape that JSON doesn't know. A success for any other text, one that is no JSON
    /// included.
    [[nodiscard]] static Error faultInText(const QString &text);

    /// Makes sure that \a set has its ":metadata" property, invisible and in the group "common", and restamps
    /// it. \a set must not be null and owns the property.
    static void setPresetMetaData(KPropertySet *set);

    [[nodiscard]] static QString nameFromMetaDataObject(const QJsonObject &object);
    static void setNameInMetaDataObject(QJsonObject *object, const QString &name);
    [[nodiscard]] static QString descriptionFromMetaDataObject(const QJsonObject &object);
    static void setDescriptionInMetaDataObject(QJsonObject *object, const QString &text);
    [[nodiscard]] static QString iconNameFromMetaDataObject(const QJsonObject &object);
    static void setIconNameInMetaDataObject(QJsonObject *object, const QString &name);

    /// A text as it stands; any other value as its integer, so that a missing version reads "0".
    [[nodiscard]] static QString versionFromMetaDataObject(const QJsonObject &object);
    [[nodiscard]] static QVersionNumber versionNumberFromMetaDataObject(const QJsonObject &object);

    /// The version for whoever decides what may be done to the document: a number that is too large for a
    /// segment counts as the largest one, a missing version is 0. InvalidContent, with place and remedy, for
    /// what isn't numbers with dots between them; such a document is of no known age and must not be written
    /// over.
    [[nodiscard]] static Result<QVersionNumber> exactVersion(const QJsonObject &object);

    /// 0 when absent; other numbers pass unchecked.
    [[nodiscard]] static PropertyEditorContent::ContentMode contentMode(const QJsonObject &object);
    static void setContentMode(QJsonObject *object, PropertyEditorContent::ContentMode mode);

    [[nodiscard]] static WorkflowType workflowType(const QJsonObject &object);
    static void setWorkflowType(WorkflowType type, QJsonObject *object);
};

} // namespace orv
