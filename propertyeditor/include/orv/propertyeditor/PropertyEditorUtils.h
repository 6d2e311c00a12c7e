#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/resources/ResourceReference.h>
#include <orv/table/CustomSettings.h>

#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>

class KProperty;
QT_FORWARD_DECLARE_CLASS(QUrl)

namespace orv {

namespace PropertyEditor {
class Content;
class KeyValueItem;
} // namespace PropertyEditor

/// Answers to questions about a workflow as a whole. All functions are static; those that take a document or
/// an item run on its thread, all others on any.
class ORV_WORKFLOW_EXPORT PropertyEditorUtils
{
    Q_GADGET

public:
    /// How many cores an analysis may use.
    enum class MulticoreMode : int
    {
        Light = 0,  ///< one
        Normal = 1, ///< all but two, at least one
        Heavy = 2,  ///< all
    };
    Q_ENUM(MulticoreMode)

    /// Logical processors for an analysis; one for a mode that isn't known.
    [[nodiscard]] static int coresNumber(MulticoreMode mode);

    /// Whether every document is a search of that kind; true without documents.
    [[nodiscard]] static bool isKarvonOnly(const QList<BaseItemType> &documents);
    /// Whether all documents are previews of one kind; true without documents.
    [[nodiscard]] static bool isPreviewOnly(const QList<BaseItemType> &documents);
    /// Whether there are documents of several kinds, searches beside them not counted.
    [[nodiscard]] static bool isMultiDocument(const QList<BaseItemType> &documents);

    /// Where references may lead in a workflow for that application.
    [[nodiscard]] static QList<ResourceReference::Scheme> supportedReferences(WorkflowAppType app);
    /// The applications that reach all of these references.
    [[nodiscard]] static QList<WorkflowAppType>
    supportedApplications(const QList<ResourceReferenceSPtr> &references);

    /// The properties whose values are references.
    [[nodiscard]] static QList<PropertyId> propertiesWithReferences();

    /// The properties that hold a glycan database, in the order in which paths are rewritten.
    [[nodiscard]] static QList<PropertyId> propertiesWithGlycanDatabases();

    /// The item's value of \a id, or \a defaultValue where it has none.
    [[nodiscard]] static QVariant getValueFromProject(const PropertyEditor::KeyValueItem *item, PropertyId id,
                                                      const QVariant &defaultValue);
    /// The expert settings of an item, empty where it has none.
    [[nodiscard]] static std::unique_ptr<CustomSettings>
    getAdvancedConfigurationFromProject(const PropertyEditor::KeyValueItem *item);

    /// Rewrites the glycan databases that stand in square brackets in the glycan text of a property's value
    /// \a json to absolute paths; relative ones are taken from the folder in which \a baseUrl lies.
    static void updateGlycanDatabaseToAbsolute(const QUrl &baseUrl, QJsonObject *json);

    /// The same for the glycan properties of an item, and of all items of settings in a document; null is
    /// passed over.
    static void updateGlycanDatabasesToAbsolute(PropertyEditor::KeyValueItem *item, const QUrl &baseUrl);
    static void updateGlycanDatabasesToAbsolute(PropertyEditor::Content *content, const QUrl &baseUrl);

    /// Tells \a property the base against which resolveGlycansStringsFromWflw resolves its paths.
    static void updateGlycanPropertyWithAbsolutePath(KProperty *property, const QUrl &baseUrl);
    /// The glycan text of a document with single backslashes and absolute paths.
    [[nodiscard]] static QString resolveGlycansStringsFromWflw(const QString &text,
                                                               const KProperty *property);
};

} // namespace orv
