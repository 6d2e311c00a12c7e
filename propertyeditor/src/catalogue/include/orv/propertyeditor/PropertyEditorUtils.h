#pragma once

#include <orv/core/ApplicationType.h>
#include <orv/core/Export.h>
#include <orv/core/FileExtensionsNameFilter.h>
#include <orv/core/Result.h>
#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WorkflowType.h>
#include <orv/resources/ResourceReference.h>
#include <orv/samples/SamplesInput.h>
#include <orv/table/CustomSettings.h>

#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

class KProperty;
QT_FORWARD_DECLARE_CLASS(QUrl)

namespace orv {

namespace PropertyEditor {
class BaseItem;
class Content;
class KeyValueItem;
} // namespace PropertyEditor

/// Answers to questions about a workflow as a whole. A facade: it is declared below the tree, for code of
/// every floor, and each body stands on the floor of what it needs, so call from that floor or above. All
/// functions are static; those that take a document or an item run on its thread, all others on any.
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

    /// What an application may keep of a workflow: cells of other types go, and with them columns and tabs
    /// that are left empty. The applications that run everything get a copy, all others a stamped document.
    /// Empty, with a warning, for a document that can't be loaded.
    [[nodiscard]] static PropertyEditorContent
    adjustContentToApplication(const PropertyEditorContent &content, ApplicationType app);

    /// The type of the workflow in the object of a document; that of its icon where it has none, as in old
    /// documents, and Unknown without either. Fails with InvalidContent if the metadata can't be read.
    [[nodiscard]] static Result<WorkflowType> workflowType(const QJsonObject &json);

    // Kinds of projects. The forms on a file name look at the workflow that is saved in the project, and
    // answer false, with a warning, when it can't be read.
    [[nodiscard]] static bool isDigestedOligoProject(const PropertyEditor::Content &content);
    [[nodiscard]] static bool isDigestedOligoProject(const QString &fileName);
    /// High-resolution ion mobility.
    [[nodiscard]] static bool isHrimProject(const PropertyEditor::Content &content);
    [[nodiscard]] static bool isHrimProject(const QString &fileName);
    [[nodiscard]] static bool isIntaBioProject(const PropertyEditor::Content &content);
    [[nodiscard]] static bool isIntaBioProject(const QString &fileName);
    /// De-novo sequencing.
    [[nodiscard]] static bool isOstraleProject(const PropertyEditor::Content &content);
    [[nodiscard]] static bool isOstraleProject(const QString &fileName);

    /// The MS files of the samples in the workflow that is saved in a project; samples without one are left
    /// out. Fails with InvalidContent if no workflow is saved there, and with the error that keeps the
    /// project or its workflow from being read. Any thread.
    [[nodiscard]] static Result<QList<ResourceReferenceSPtr>>
    msFilesFromDocumentWorkflow(const QString &fileName);

    /// The files that running the documents yields. Fails with InvalidContent without documents, and if
    /// searches and previews are mixed with nothing else.
    [[nodiscard]] static Result<FileExtensionsNameFilter>
    fileNameFilterForExpectedProject(const QList<BaseItemType> &documents);
    /// Their suffixes without dots, each once.
    [[nodiscard]] static QStringList
    resultProjectExtensionsFromWorkflow(const QList<BaseItemType> &documents);

    /// What the documents want the samples for, one by one; those that want nothing are left out.
    [[nodiscard]] static QList<SamplesInput::Mode>
    modesFromPropertyTypes(const QList<BaseItemType> &documents);

    /// The samples that a step works on, in their order: those that its pattern names, but for files that it
    /// can't take and samples that a search in them has been through already. None for null and for a cell
    /// that holds no settings. May read results of searches.
    [[nodiscard]] static QList<SamplesInput::Entry>
    getRequiredSamples(const PropertyEditor::BaseItem *item, const QList<SamplesInput::Entry> &samples);
    /// How many of the projects use a sample of each name; names that none uses are absent.
    [[nodiscard]] static QMap<QString, int>
    createSampleNamesIndexes(const QList<PropertyEditor::KeyValueItem *> &projects,
                             const PropertyEditor::Content &content);

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
    /// \a json to absolute paths. The base is the URL of the workflow's folder, not of its file; without one
    /// nothing changes. A relative path is a path, not a URL, so
    /// that "#", "?", "%" and blanks in names survive. An absolute one that begins with "/" and doesn't exist
    /// is looked for below the base, for portable folders name their files "file:///NAME".
    static void updateGlycanDatabaseToAbsolute(const QUrl &baseUrl, QJsonObject *json);

    /// The same for the glycan properties of an item, and of all items of settings in a document; null is
    /// passed over.
    static void updateGlycanDatabasesToAbsolute(PropertyEditor::KeyValueItem *item, const QUrl &baseUrl);
    static void updateGlycanDatabasesToAbsolute(PropertyEditor::Content *content, const QUrl &baseUrl);

    /// Tells \a property the folder against which resolveGlycansStringsFromWflw resolves its paths.
    static void updateGlycanPropertyWithAbsolutePath(KProperty *property, const QUrl &baseUrl);
    /// The glycan text of a document with single backslashes and absolute paths.
    [[nodiscard]] static QString resolveGlycansStringsFromWflw(const QString &text,
                                                               const KProperty *property);
};

} // namespace orv
