#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/CellTypes.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ExtendedMetadataSink.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/content/SequenceDatabasesTableItem.h>
#include <orv/resources/ResourceReferenceKey.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/samples/SampleReferenceUpdater.h>
#include <orv/samples/SamplesIndex.h>

#include <QHash>
#include <QPointer>
#include <QSet>

namespace orv::PropertyEditor {

namespace {

SequenceDatabasesTableItem *databaseTable(const Content &content, int index)
{
    const QList<BaseItem *> items = content.findAllItems(BaseItemType::Database);
    const bool isThere = index >= 0 && index < items.size();
    return isThere ? qobject_cast<SequenceDatabasesTableItem *>(items.at(index)) : nullptr;
}

/// References in the order in which they come, each text once.
class UniqueReferences
{
public:
    void add(const QList<ResourceReferenceSPtr> &references)
    {
        for (const ResourceReferenceSPtr &reference : references)
            add(reference);
    }

    void add(const ResourceReferenceSPtr &reference)
    {
        if (!reference || reference->text().isEmpty() || m_seen.contains(reference->text()))
            return;
        m_seen.insert(reference->text());
        m_references.append(reference);
    }

    [[nodiscard]] const QList<ResourceReferenceSPtr> &references() const { return m_references; }

private:
    QSet<QString> m_seen;
    QList<ResourceReferenceSPtr> m_references;
};

void addReferencesOf(const KeyValueItem &item, UniqueReferences *references)
{
    static constexpr std::array kExpertKeys = {QLatin1String("Library/ProjectPath")};
    for (const PropertyId id : PropertyEditorUtils::propertiesWithReferences()) {
        if (item.contains(id))
            references->add(ResourceReferenceUtils::fromVariant(item.value(id)));
    }
    const auto settings = PropertyEditorUtils::getAdvancedConfigurationFromProject(&item);
    for (const QLatin1String key : kExpertKeys) {
        const QString text = settings->value(key).toString();
        const auto reference = ResourceReference::fromString(text);
        if (!text.isEmpty() && reference)
            references->add(*reference);
    }
}

/// Places of the rows by their file, so that many mappings don't each walk over all rows.
class DatabaseUpdater
{
public:
    explicit DatabaseUpdater(QList<SequenceDatabaseItem> *items)
        : m_items(items)
    {
        for (qsizetype i = 0; i < items->size(); ++i)
            m_places[ResourceReferenceKey(items->at(i).fastaReference())].insert(i);
    }

    bool replace(const ReferenceMapping &mapping)
    {
        const auto found = m_places.find(ResourceReferenceKey(mapping.oldReference));
        if (found == m_places.end() || found->empty())
            return false;
        const qsizetype place = *found->begin();
        found->erase(found->begin());
        (*m_items)[place].setFastaReference(mapping.newReference);
        m_places[ResourceReferenceKey(mapping.newReference)].insert(place);
        return true;
    }

private:
    QList<SequenceDatabaseItem> *m_items;
    QHash<ResourceReferenceKey, std::set<qsizetype>> m_places;
};

void swapReferences(const QList<ReferenceMapping> &mappings,
                    QList<SamplesInput::SampleWithCustomColumns> *samples,
                    QList<SequenceDatabaseItem> *databases)
{
    SampleReferenceUpdater sampleUpdater(samples);
    DatabaseUpdater databaseUpdater(databases);
    for (const ReferenceMapping &mapping : mappings) {
        // Where there was no file none has moved.
        if (!mapping.oldReference)
            continue;
        const bool bothSet = mapping.newReference != nullptr;
        if (!sampleUpdater.replaceFile(mapping.oldReference, mapping.newReference) &&
            !(bothSet && databaseUpdater.replace(mapping)))
            sampleUpdater.replaceCompanion(mapping.oldReference, mapping.newReference);
        sampleUpdater.moveFileMetadata(ResourceReferenceUtils::toString(mapping.oldReference),
                                       ResourceReferenceUtils::toString(mapping.newReference));
    }
}

} // namespace

QList<BaseItemType> Content::findAllDocuments() const
{
    QList<BaseItemType> documents;
    for (const ItemGroup *tab : groups()) {
        for (const ItemSubGroup *column : tab->subGroups()) {
            if (CellTypes::isDocument(column->type()))
                documents.append(column->type());
        }
    }
    return documents;
}

QList<BaseItem *> Content::findDocumentItems() const
{
    const QList<BaseItemType> &documents = CellTypes::documents();
    return findAllItems(QSet<BaseItemType>(documents.begin(), documents.end()));
}

QList<KeyValueItem *> Content::findProjects() const
{
    QList<KeyValueItem *> projects;
    for (BaseItem *item : findAllItems(CellTypes::projects())) {
        if (auto *project = qobject_cast<KeyValueItem *>(item))
            projects.append(project);
        else
            qCCritical(propertyEditorLog) << "Unable to convert project BaseItem to KeyValueItem";
    }
    return projects;
}

bool Content::isKarvonOnlyOrPreviewProject() const
{
    const QList<BaseItemType> documents = findAllDocuments();
    return PropertyEditorUtils::isKarvonOnly(documents) || PropertyEditorUtils::isPreviewOnly(documents);
}

QList<ResourceReferenceSPtr> Content::allReferences() const
{
    UniqueReferences references;
    if (const SamplesTableItem *samples = samplesTable())
        references.add(samples->references());
    QList<KeyValueItem *> settings;
    for (BaseItem *item : findAllItems(allItems())) {
        if (const auto *databases = qobject_cast<SequenceDatabasesTableItem *>(item))
            references.add(getFastaReferences(databases->items()));
        else if (auto *found = qobject_cast<KeyValueItem *>(item))
            settings.append(found);
    }
    for (const KeyValueItem *item : std::as_const(settings))
        addReferencesOf(*item, &references);
    return references.references();
}

void Content::updateReferences(const QList<ReferenceMapping> &mappings)
{
    QList<SequenceDatabaseItem> databases = sequenceDatabaseItems(0);
    const auto update = [&](SamplesAndTracesContent *samples) {
        swapReferences(mappings, &samples->samples.samples, &databases);
    };
    const QPointer<Content> alive(this);
    if (SamplesTableItem *item = samplesTable()) {
        item->changeContent(update);
    } else {
        SamplesAndTracesContent none;
        update(&none);
    }
    if (alive)
        setSequenceDatabaseItems(databases, 0);
}

SamplesTableItem *Content::samplesTable() const
{
    const QList<BaseItem *> items = findAllItems(BaseItemType::Samples);
    return items.isEmpty() ? nullptr : qobject_cast<SamplesTableItem *>(items.constFirst());
}

SamplesAndTracesContent Content::samplesAndTraces() const
{
    const SamplesTableItem *item = samplesTable();
    return item ? item->content() : SamplesAndTracesContent();
}

void Content::setSamplesAndTraces(const SamplesAndTracesContent &content)
{
    if (SamplesTableItem *item = samplesTable())
        item->setContent(content);
}

QStringList Content::sampleNames() const
{
    const SamplesTableItem *item = samplesTable();
    return item ? item->samplesWithCustomColumns().names() : QStringList();
}

QList<SequenceDatabaseItem> Content::sequenceDatabaseItems(int index) const
{
    const SequenceDatabasesTableItem *table = databaseTable(*this, index);
    return table ? table->items() : QList<SequenceDatabaseItem>();
}

void Content::setSequenceDatabaseItems(const QList<SequenceDatabaseItem> &items, int index)
{
    if (SequenceDatabasesTableItem *table = databaseTable(*this, index))
        table->setItems(items);
}

QList<MetadataMapping> Content::generateMetadataMappings(const ExtendedMetadataInfo &info) const
{
    const SamplesIndex samples(samplesAndTraces().samples.samples);
    const QList<TalvaneMetadataMappingConnection> connections = info.metadataMappingConnections();
    const ExtendedMetadataInfo::MetadataCache cache = info.metadataCache();
    QList<MetadataMapping> mappings;
    QList<ResourceReferenceKey> files = cache.keys();
    // A hash has another order in each run, and what is made of the mappings is numbered in theirs.
    std::ranges::sort(files, {}, [](const ResourceReferenceKey &key) {
        return ResourceReferenceUtils::toString(key.reference());
    });
    for (const ResourceReferenceKey &file : std::as_const(files)) {
        const QList<int> ids = samples.idsOfFile(file.reference());
        const QList<TalvaneExtendedMetaDataValue> values = cache.value(file);
        for (const TalvaneExtendedMetaDataValue &value : values) {
            for (const TalvaneMetadataMappingConnection &connection : connections) {
                if (connection.attribute == value.attribute)
                    mappings.append({ids, value, connection.target});
            }
        }
    }
    return mappings;
}

void Content::updateMetadataContent(const QList<TalvaneMetadataMappingConnection> &connections,
                                    const QList<MetadataMapping> &mappings,
                                    const QList<ExtendedMetadataSink *> &sinks)
{
    for (ExtendedMetadataSink *sink : sinks) {
        const MappingTarget target = sink->target();
        QList<MetadataMapping> itsMappings;
        std::ranges::copy_if(mappings, std::back_inserter(itsMappings),
                             [target](const MetadataMapping &mapping) { return mapping.target == target; });
        QList<TalvaneMetadataMappingConnection> itsConnections;
        std::ranges::copy_if(connections, std::back_inserter(itsConnections),
                             [target](const auto &connection) { return connection.target == target; });
        sink->reloadMetadata(itsMappings, itsConnections);
    }
}

} // namespace orv::PropertyEditor
