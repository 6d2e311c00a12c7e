#include "orv/propertyeditor/content/Content.h"

#include "Announce.h"
#include "OwningList.h"

#include <orv/core/FileUtils.h>
#include <orv/core/JsonUtils.h>
#include <orv/core/Logging.h>
#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/ExtendedMetadataSink.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/LoadContext.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <new>

namespace orv::PropertyEditor {

using namespace PropertyEditorStringConstants;

class Content::ContentData : public QSharedData
{
public:
    OwningList<ItemGroup> groups;
    QJsonObject metadata;
    QString fileName;
    QUrl baseUrl;
    ExtendedMetadataInfo extendedMetadata;
    LossObserver *lossObserver = nullptr;
};

namespace {

Result<QJsonObject> loadJsonFromFile(const QString &fileName)
{
    Result<QByteArray> bytes = FileUtils::readFile(fileName);
    if (bytes.hasError())
        return bytes.ecatch();
    Result<QJsonDocument> document = JsonUtils::documentFromJson(*bytes);
    if (document.hasError()) {
        const Error &cause = document.error();
        qCWarning(propertyEditorLog) << "Could not parse file content to JSON:" << cause.errorMessage();
        Error error(ErrorCode::InvalidContent, Content::tr("File content is not valid: %1").arg(fileName));
        error.addDetail(cause.errorMessage());
        for (const QString &detail : cause.details())
            error.addDetail(detail);
        return error;
    }
    return document->object();
}

void reportUnknownDocumentMembers(const QJsonObject &json, const LoadContext &context)
{
    if (!context.isObserved())
        return;
    constexpr std::array known = {TABS_KEY, META_IN_JSON_KEY, EXTENDED_METADATA_IN_JSON_KEY};
    for (auto it = json.begin(); it != json.end(); ++it) {
        if (it.key() == PROJECT_CREATION_MODE_KEY) {
            context.lost(it.key(), Content::tr("the content mode of an old document"),
                         Content::tr("only the metadata's \"contentMode\" is read"));
        } else if (std::find(known.begin(), known.end(), it.key()) == known.end()) {
            context.lost(it.key(), Content::tr("member \"%1\" of the document").arg(it.key()),
                         Content::tr("the format has no such member"));
        }
    }
}

void reportMalformedMetadata(const QJsonObject &json, const LoadContext &context)
{
    const QJsonValue metadata = json.value(META_IN_JSON_KEY);
    if (!context.isObserved() || metadata.isUndefined() || metadata == QJsonValue(QString()))
        return;
    if (!metadata.isString() || !QJsonDocument::fromJson(metadata.toString().toUtf8()).isObject()) {
        context.lost(META_IN_JSON_KEY, Content::tr("the metadata of the document"),
                     Content::tr("they are not the JSON text of an object"));
    }
}

} // namespace

Content::Content()
    : d(new ContentData)
{}

// A copy is another view of the same tree; QObject's own part is never shared.
Content::Content(const Content &other)
    : QObject()
    , d(other.d)
{}

Content &Content::operator=(const Content &other)
{
    d = other.d;
    return *this;
}

Content::~Content() = default;

Error Content::assignFromFile(const QString &fileName, ValidationOptions options)
{
    qCDebug(propertyEditorLog) << "Assigning PEC from file" << fileName;
    Result<QJsonObject> json = loadJsonFromFile(fileName);
    if (json.hasError())
        return json.ecatch();
    ORV_RETURN_IF_ERROR(assignFromJson(*json, options));
    d->fileName = fileName;
    setBaseUrl(QUrl(fileName, QUrl::TolerantMode));
    return Error::NoError;
}

Result<Content> Content::detachedCopy(PropertyConversionFlag flag) const
{
    Content copy;
    copy.d->metadata = d->metadata;
    copy.d->extendedMetadata = d->extendedMetadata;
    copy.d->groups.reserve(count());
    for (const auto &each : d->groups) {
        auto group = std::make_unique<ItemGroup>();
        if (Error error = group->assignCopy(*each, flag); error.hasError())
            return error.addDetail(tr("Tab \"%1\".").arg(each->name())).ecatch();
        copy.adoptNewGroup(std::move(group));
    }
    return copy;
}

Error Content::assignFromJson(const QJsonObject &json, ValidationOptions options)
{
    if (!json.value(TABS_KEY).isArray()) {
        qCWarning(propertyEditorLog) << "JSON format is incorrect: tabs";
        return Error(ErrorCode::InvalidContent, tr("Workflow content is not valid"))
            .addDetail(tr("A workflow has an array \"tabs\", but there is %1.")
                           .arg(JsonUtils::typeDescription(json.value(TABS_KEY).type())));
    }
    ORV_RETURN_IF_ERROR(WflwMetaData::faultInText(json.value(META_IN_JSON_KEY).toString()));
    d->fileName.clear();
    const QPointer<Content> alive(this);
    clear();
    if (!alive)
        return removedWhileLoading();
    assignMetaDataFromJsonObject(json);
    const LoadContext context(d->lossObserver);
    reportMalformedMetadata(json, context);
    reportUnknownDocumentMembers(json, context);
    ORV_RETURN_IF_ERROR(loadExtendedMetadata(json));
    ORV_RETURN_IF_ERROR(loadTabs(json, options));
    if (!announce(this, [this] { Q_EMIT reset(); }))
        return removedWhileLoading();
    return Error::NoError;
}

Error Content::loadExtendedMetadata(const QJsonObject &json)
{
    d->extendedMetadata = {};
    const QJsonValue value = json.value(EXTENDED_METADATA_IN_JSON_KEY);
    if (value.isUndefined())
        return Error::NoError;
    if (!value.isObject()) {
        LoadContext(d->lossObserver)
            .lost(EXTENDED_METADATA_IN_JSON_KEY, tr("the extended metadata of the document"),
                  tr("they are not an object"));
    }
    Result<ExtendedMetadataInfo> info = ExtendedMetadataInfo::fromJson(value.toObject());
    if (info.hasError())
        return info.ecatch();
    d->extendedMetadata = *info;
    return Error::NoError;
}

Error Content::loadTabs(const QJsonObject &json, ValidationOptions options)
{
    const QJsonArray tabs = json.value(TABS_KEY).toArray();
    const LoadContext context = LoadContext(d->lossObserver).member(TABS_KEY);
    d->groups.reserve(tabs.size());
    for (qsizetype i = 0; i < tabs.size(); ++i) {
        auto group = std::make_unique<ItemGroup>();
        const QJsonObject tab = tabs.at(i).toObject();
        Error error = group->assignFromJson(tab, options, context.element(i));
        if (error.hasError())
            return error.addDetail(tr("Tab %1 (\"%2\").").arg(i + 1).arg(tab.value(NAME_KEY).toString()))
                .ecatch();
        if (!adoptNewGroup(std::move(group)))
            return removedWhileLoading();
    }
    return Error::NoError;
}

ExtendedMetadataSink *Content::metadataSink(BaseItemType type) const
{
    const QList<BaseItem *> items = findAllItems(type);
    return items.isEmpty() ? nullptr : dynamic_cast<ExtendedMetadataSink *>(items.first());
}

void Content::setMetadataCache(const ExtendedMetadataInfo::MetadataCache &cache)
{
    d->extendedMetadata.setMetadataCache(cache);
}

void Content::setMetadataMappingConnections(const QList<TalvaneMetadataMappingConnection> &connections)
{
    d->extendedMetadata.setMetadataMappingConnections(connections);
}

void Content::updateMetadataContent()
{
    const QList<TalvaneMetadataMappingConnection> connections =
        d->extendedMetadata.metadataMappingConnections();
    const QList<MetadataMapping> mappings = generateMetadataMappings(d->extendedMetadata);
    const QPointer<Content> alive(this);
    for (const BaseItemType type : {BaseItemType::Samples, BaseItemType::IntactProteins}) {
        // Looked for when its turn comes: who hears of the one before may remove it, or the document.
        ExtendedMetadataSink *const sink = alive ? metadataSink(type) : nullptr;
        if (sink)
            updateMetadataContent(connections, mappings, {sink});
    }
}

void Content::assignMetaDataFromFile(const QString &fileName)
{
    const Result<QJsonObject> json = loadJsonFromFile(fileName);
    assignMetaDataFromJsonObject(json.valueOr({}));
}

void Content::assignMetaDataFromJsonObject(const QJsonObject &json)
{
    d->metadata = QJsonDocument::fromJson(json.value(META_IN_JSON_KEY).toString().toUtf8()).object();
}

void Content::setLossObserver(LossObserver *observer)
{
    d->lossObserver = observer;
}

QByteArray Content::toJson(PropertyConversionFlag flag) const
{
    return QJsonDocument(toJsonObject(flag)).toJson(QJsonDocument::Indented);
}

QJsonObject Content::toJsonObject(PropertyConversionFlag flag) const
{
    QJsonArray tabs;
    for (const auto &group : d->groups)
        tabs.append(group->toJson(flag));
    return {{TABS_KEY, tabs},
            {META_IN_JSON_KEY, QString::fromUtf8(JsonUtils::toCompactJson(d->metadata))},
            {EXTENDED_METADATA_IN_JSON_KEY, d->extendedMetadata.toJson()}};
}

void Content::clear()
{
    // Who hears of the end of a tab may delete the document.
    const QExplicitlySharedDataPointer<ContentData> kept = d;
    kept->groups.clear();
    kept->baseUrl.clear();
}

int Content::count() const
{
    return d->groups.count();
}

ItemGroup *Content::group(int index) const
{
    if (!d->groups.hasIndex(index)) {
        qCWarning(propertyEditorLog) << "Group index is out of bounds";
        return nullptr;
    }
    return d->groups.at(index);
}

ItemGroup *Content::group(const QString &name) const
{
    const int index = indexOf(name);
    return index < 0 ? nullptr : d->groups.at(index);
}

QList<ItemGroup *> Content::groups() const
{
    return d->groups.pointers();
}

const ItemGroup *Content::firstUnevenGroup() const
{
    const int uneven = d->groups.find([](const ItemGroup &group) { return !group.isRectangle(); });
    return uneven < 0 ? nullptr : d->groups.at(uneven);
}

QStringList Content::groupNames() const
{
    QStringList names;
    names.reserve(count());
    for (const auto &group : d->groups)
        names.append(group->name());
    return names;
}

bool Content::contains(const QString &name) const
{
    return indexOf(name) >= 0;
}

bool Content::addGroup(const QString &name)
{
    if (name.isEmpty()) {
        qCWarning(propertyEditorLog) << "Cannot add a new group with an empty name";
        return false;
    }
    if (contains(name)) {
        qCWarning(propertyEditorLog) << "Will not add a duplicate group" << name;
        return false;
    }
    std::unique_ptr<ItemGroup> group(new (std::nothrow) ItemGroup);
    if (!group) {
        qCWarning(propertyEditorLog) << "Cannot allocate a new group";
        return false;
    }
    group->setName(name);
    adoptNewGroup(std::move(group));
    return true;
}

bool Content::removeGroup(int index)
{
    if (!d->groups.hasIndex(index)) {
        qCWarning(propertyEditorLog) << "Group index is out of bounds";
        return false;
    }
    const std::unique_ptr<ItemGroup> removed = d->groups.take(index);
    if (!removed) {
        qCWarning(propertyEditorLog) << "The group for deletion is null";
        return false;
    }
    announce(
        this, [&] { Q_EMIT groupRemoved(index); }, [&] { Q_EMIT groupRemoved(removed->name()); },
        [&] { Q_EMIT groupRemoved(removed.get()); }, [this] { Q_EMIT groupCountChanged(count()); });
    return true;
}

bool Content::removeGroup(const QString &name)
{
    const int index = indexOf(name);
    return index >= 0 && removeGroup(index);
}

bool Content::removeGroup(ItemGroup *group)
{
    const int index = d->groups.indexOf(group);
    return index >= 0 && removeGroup(index);
}

QString Content::fileName() const
{
    return d->fileName;
}

QUrl Content::baseUrl() const
{
    return d->baseUrl;
}

void Content::setBaseUrl(const QUrl &url)
{
    d->baseUrl = url;
    for (const auto &group : d->groups)
        group->setBaseUrl(url);
}

QJsonObject Content::metadata() const
{
    return d->metadata;
}

QString Content::name() const
{
    return WflwMetaData::nameFromMetaDataObject(d->metadata);
}

QString Content::description() const
{
    return WflwMetaData::descriptionFromMetaDataObject(d->metadata);
}

QString Content::iconName() const
{
    return WflwMetaData::iconNameFromMetaDataObject(d->metadata);
}

QString Content::version() const
{
    return WflwMetaData::versionFromMetaDataObject(d->metadata);
}

WorkflowType Content::workflowType() const
{
    return WflwMetaData::workflowType(d->metadata);
}

void Content::setWorkflowName(const QString &name)
{
    WflwMetaData::setNameInMetaDataObject(&d->metadata, name);
}

void Content::setWorkflowType(WorkflowType type)
{
    WflwMetaData::setWorkflowType(type, &d->metadata);
}

PropertyEditorContent::ContentMode Content::contentMode() const
{
    return WflwMetaData::contentMode(d->metadata);
}

void Content::setDesktopContentMode()
{
    WflwMetaData::setContentMode(&d->metadata, PropertyEditorContent::ContentMode::DesktopMode);
}

void Content::setTalvaneContentMode()
{
    WflwMetaData::setContentMode(&d->metadata, PropertyEditorContent::ContentMode::TalvaneMode);
}

ExtendedMetadataInfo Content::extendedMetadataInfo() const
{
    return d->extendedMetadata;
}

QSet<BaseItemType> Content::allItems() const
{
    QSet<BaseItemType> types;
    for (const auto &group : d->groups) {
        for (const ItemSubGroup *subGroup : group->subGroups()) {
            for (const BaseItem *item : subGroup->items())
                types.insert(item->type());
        }
    }
    return types;
}

QList<BaseItem *> Content::findAllItems(const QSet<BaseItemType> &types) const
{
    QList<BaseItem *> found;
    for (const auto &group : d->groups) {
        for (const ItemSubGroup *subGroup : group->subGroups()) {
            for (BaseItem *item : subGroup->items()) {
                if (types.contains(item->type()))
                    found.append(item);
            }
        }
    }
    return found;
}

QList<BaseItem *> Content::findAllItems(BaseItemType type) const
{
    return findAllItems(QSet<BaseItemType>{type});
}

void Content::log(const QString &text) const
{
    qCInfo(propertyEditorLog).noquote() << text;
}

int Content::indexOf(const QString &name) const
{
    return d->groups.find([&name](const ItemGroup &group) { return group.name() == name; });
}

bool Content::adoptNewGroup(std::unique_ptr<ItemGroup> group)
{
    ItemGroup *const adopted = d->groups.append(std::move(group));
    return announce(
        this, [&] { Q_EMIT groupAdded(adopted); }, [this] { Q_EMIT groupCountChanged(count()); });
}

} // namespace orv::PropertyEditor
