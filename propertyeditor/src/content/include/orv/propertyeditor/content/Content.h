#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/content/ContentOptions.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/workflow/WorkflowType.h>
#include <orv/samples/ExtendedMetadataInfo.h>
#include <orv/samples/MetadataMapping.h>
#include <orv/samples/SamplesAndTracesContent.h>
#include <orv/samples/SequenceDatabaseItem.h>

#include <QByteArray>
#include <QExplicitlySharedDataPointer>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <memory>

namespace orv {
class LossObserver;
}

namespace orv::PropertyEditor {

class BaseItem;
class ExtendedMetadataSink;
class ItemGroup;
class KeyValueItem;
class SamplesTableItem;

/// The object form of a workflow document: the tree of tabs (ItemGroup), columns (ItemSubGroup) and cells
/// (BaseItem), with signals as it changes.
///
/// Copies share one tree; each emits signals for the changes made through it. The tree lives on the thread
/// that loaded it, and is not guarded.
/// \code
///     Content content;
///     if (Error error = content.assignFromFile(path))
///         return error.ecatch();
///     content.setWorkflowName(name);
///     if (!content.save(path)) ...
/// \endcode
class ORV_WORKFLOW_EXPORT Content : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("orv/propertyeditor/content/ItemGroup.h")
    Q_PROPERTY(QStringList groupNames READ groupNames)
    Q_PROPERTY(int size READ count)

public:
    Content();
    Content(const Content &other);
    Content &operator=(const Content &other);
    ~Content() override;

    /// Loads a file. The tree is untouched when the file can't be read (CannotOpenFile), holds no JSON object
    /// or has text of which something would be lost, its metadata included (InvalidContent); after a later
    /// failure it holds the tabs read so far, and the object should be discarded. The base URL becomes the
    /// URL of the file itself.
    Error assignFromFile(const QString &fileName, ValidationOptions options = {});
    Error assignFromJson(const QJsonObject &json, ValidationOptions options = {});

    /// A document of its own with the same content, cells of unknown types included; changes to one don't
    /// show in the other. It has no file name and no base URL, and with absolute paths those that toJson
    /// would write. Fails where a file couldn't hold the document: the columns of a tab differ in height.
    [[nodiscard]] Result<Content>
    detachedCopy(PropertyConversionFlag flag = PropertyConversionFlag::KeepPaths) const;

    /// Load the metadata document alone; the tree stays. A file that can't be read leaves empty metadata.
    void assignMetaDataFromFile(const QString &fileName);
    void assignMetaDataFromJsonObject(const QJsonObject &json);

    /// Hears of everything that later loads drop by their rules; null for nobody. Not owned.
    void setLossObserver(LossObserver *observer);

    /// The indented text of the document. No stamp is applied: version, user and time stay as loaded.
    [[nodiscard]] QByteArray toJson(PropertyConversionFlag flag) const;
    /// The document that toJson writes, for those who would only parse the text.
    [[nodiscard]] QJsonObject toJsonObject(PropertyConversionFlag flag) const;
    /// Writes toJson(KeepPaths), whole or not at all; false, with a warning, for what can't be written.
    Q_INVOKABLE bool save(const QString &fileName) const;
    /// The same, telling why. InvalidContent names the table or property of which something would be missing,
    /// or tells that the document is larger than one that can be loaded; MalformedStructure names a tab whose
    /// columns differ in height; CannotOpenFile is the file's. What stood in the file stays. \a error may be
    /// null.
    bool save(const QString &fileName, Error *error) const;

    /// Why toJson would write the document without something that it holds, such as a tab that is no
    /// rectangle; a success if it writes all.
    [[nodiscard]] Error checkWritable() const;

    /// Deletes every tab and forgets the base URL; the metadata stay. Emits nothing.
    Q_INVOKABLE void clear();

    [[nodiscard]] bool isEmpty() const { return count() == 0; }
    [[nodiscard]] int count() const;
    /// Null, with a warning, outside the range.
    [[nodiscard]] ItemGroup *group(int index) const;
    /// The first of exactly that name, null for none.
    [[nodiscard]] ItemGroup *group(const QString &name) const;
    [[nodiscard]] QList<ItemGroup *> groups() const;
    [[nodiscard]] QStringList groupNames() const;
    /// The first that is no rectangle, and so can't be written; null if all are.
    [[nodiscard]] const ItemGroup *firstUnevenGroup() const;
    /// MalformedStructure that names that tab; a success if all are rectangles.
    [[nodiscard]] Error checkRectangles() const;
    Q_INVOKABLE [[nodiscard]] bool contains(const QString &name) const;
    /// False, with a warning, for an empty name or one that exists.
    Q_INVOKABLE bool addGroup(const QString &name);
    Q_INVOKABLE bool removeGroup(int index);
    Q_INVOKABLE bool removeGroup(const QString &name);
    bool removeGroup(ItemGroup *group);

    [[nodiscard]] QString fileName() const;
    [[nodiscard]] QUrl baseUrl() const;
    /// Passed down to every item, which resolves its relative file references against it.
    void setBaseUrl(const QUrl &url);

    [[nodiscard]] QJsonObject metadata() const;
    [[nodiscard]] QString name() const;
    [[nodiscard]] QString description() const;
    [[nodiscard]] QString iconName() const;
    [[nodiscard]] QString version() const;
    [[nodiscard]] WorkflowType workflowType() const;
    void setWorkflowName(const QString &name);
    void setWorkflowType(WorkflowType type);
    [[nodiscard]] PropertyEditorContent::ContentMode contentMode() const;
    void setDesktopContentMode();
    void setTalvaneContentMode();

    [[nodiscard]] ExtendedMetadataInfo extendedMetadataInfo() const;
    /// Stored with the document; tables show it after updateMetadataContent.
    void setMetadataCache(const ExtendedMetadataInfo::MetadataCache &cache);
    void setMetadataMappingConnections(const QList<TalvaneMetadataMappingConnection> &connections);

    /// Types of all items in the tree.
    [[nodiscard]] QSet<BaseItemType> allItems() const;
    /// Items whose own type is among \a types, in tree order.
    [[nodiscard]] QList<BaseItem *> findAllItems(const QSet<BaseItemType> &types) const;
    [[nodiscard]] QList<BaseItem *> findAllItems(BaseItemType type) const;

    /// Types of the columns that yield a result, in tree order, repeats kept.
    [[nodiscard]] QList<BaseItemType> findAllDocuments() const;
    /// The cells that yield a result, in tree order.
    [[nodiscard]] QList<BaseItem *> findDocumentItems() const;
    /// The cells of settings that make a project, in tree order. Data-independent searches are projects too,
    /// though no documents.
    [[nodiscard]] QList<KeyValueItem *> findProjects() const;
    /// Whether all documents are searches of one kind, or previews of one kind; true without documents.
    [[nodiscard]] bool isKarvonOnlyOrPreviewProject() const;

    /// Every file and server object that the workflow names: in its samples, its sequence databases, its
    /// settings and their expert settings. Each once, by its text; the order means nothing.
    [[nodiscard]] QList<ResourceReferenceSPtr> allReferences() const;
    /// Lets the samples and the first table of sequence databases refer to files where they have moved to.
    /// Each mapping counts once: for the first sample of that file, else for the first database, else for the
    /// first companion of a sample. Settings keep their references.
    void updateReferences(const QList<ReferenceMapping> &mappings);

    /// The first samples table, null without one.
    [[nodiscard]] SamplesTableItem *samplesTable() const;
    /// Through the first samples table; without one the content is empty, and setting it does nothing.
    [[nodiscard]] SamplesAndTracesContent samplesAndTraces() const;
    void setSamplesAndTraces(const SamplesAndTracesContent &content);
    [[nodiscard]] QStringList sampleNames() const;

    /// The rows of the table of sequence databases with that number, from 0; without such a table there are
    /// none, and setting them does nothing.
    [[nodiscard]] QList<SequenceDatabaseItem> sequenceDatabaseItems(int index) const;
    void setSequenceDatabaseItems(const QList<SequenceDatabaseItem> &items, int index);

    /// Brings the server's metadata into the tables that show it.
    void updateMetadataContent();
    /// Gives each sink what is meant for it, so that one without anything clears itself.
    static void updateMetadataContent(const QList<TalvaneMetadataMappingConnection> &connections,
                                      const QList<MetadataMapping> &mappings,
                                      const QList<ExtendedMetadataSink *> &sinks);

    /// Writes \a text to the info log.
    Q_INVOKABLE void log(const QString &text) const;

Q_SIGNALS:
    void groupAdded(orv::PropertyEditor::ItemGroup *group);
    /// The group is out of the list and will be deleted when the signals are through.
    void groupRemoved(int index);
    void groupRemoved(const QString &groupName);
    void groupRemoved(orv::PropertyEditor::ItemGroup *group);
    void groupCountChanged(int count);
    void reset();

private:
    class ContentData;

    Error loadExtendedMetadata(const QJsonObject &json);
    Error loadTabs(const QJsonObject &json, ValidationOptions options);
    /// The first item of that type, if it takes metadata.
    [[nodiscard]] ExtendedMetadataSink *metadataSink(BaseItemType type) const;
    [[nodiscard]] QList<MetadataMapping> generateMetadataMappings(const ExtendedMetadataInfo &info) const;
    /// False if somebody who hears of the tab deletes the document.
    bool adoptNewGroup(std::unique_ptr<ItemGroup> group);
    [[nodiscard]] Error write(const QString &fileName) const;
    [[nodiscard]] int indexOf(const QString &name) const;

    QExplicitlySharedDataPointer<ContentData> d;
};

} // namespace orv::PropertyEditor
