#include "orv/propertyeditor/content/PropertyEditorContent.h"

#include "StampedCells.h"

#include <orv/core/JsonUtils.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/content/RawCell.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/samples/ExtendedMetadataInfo.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <optional>

namespace orv {

using namespace PropertyEditorStringConstants;

class PropertyEditorContent::Private
{
public:
    Tabs tabs;
    QJsonObject metadata;
    QString customUser;
    QJsonObject extendedMetadataInfo;

    /// What a copy takes over: all but the custom user.
    void assignShared(const Private &other)
    {
        tabs = other.tabs;
        metadata = other.metadata;
        extendedMetadataInfo = other.extendedMetadataInfo;
    }
};

namespace {

/// A log line shows the beginning of a broken document: the whole would drown everything else.
constexpr qsizetype kLoggedBytes = 2048;

QByteArray beginningOf(const QByteArray &json)
{
    return json.size() <= kLoggedBytes ? json : json.left(kLoggedBytes) + "...";
}

std::optional<QJsonObject> parseDocument(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        qCWarning(propertyEditorLog) << "Parse error in JSON" << beginningOf(json) << "at offset"
                                     << error.offset;
        return {};
    }
    if (!document.isObject()) {
        qCWarning(propertyEditorLog) << "JSON document is not an object";
        return {};
    }
    return document.object();
}

PropertyEditorContent::Tab readTab(const QJsonObject &tab)
{
    return {tab.value(NAME_KEY).toString(),
            {PropertyEditorJsonUtils::jsonArrayToStringList(tab.value(COLUMNS_KEY).toArray()),
             PropertyEditorJsonUtils::jsonArrayToVariantItems(tab.value(CELLS_KEY).toArray())}};
}

template<typename CellsToJson>
QJsonObject documentOf(const PropertyEditorContent::Tabs &tabs, const QJsonObject &metadata,
                       const QJsonObject &extendedMetadataInfo, const CellsToJson &cellsToJson)
{
    QJsonArray array;
    for (const PropertyEditorContent::Tab &tab : tabs) {
        array.append(
            QJsonObject{{NAME_KEY, tab.first},
                        {COLUMNS_KEY, PropertyEditorJsonUtils::stringListToJsonArray(tab.second.first)},
                        {CELLS_KEY, cellsToJson(tab.second.second)}});
    }
    return {{META_IN_JSON_KEY, QString::fromUtf8(JsonUtils::toCompactJson(metadata))},
            {TABS_KEY, array},
            {EXTENDED_METADATA_IN_JSON_KEY, extendedMetadataInfo}};
}

} // namespace

PropertyEditorContent::PropertyEditorContent()
    : d(std::make_unique<Private>())
{}

PropertyEditorContent::PropertyEditorContent(const Tabs &tabs)
    : PropertyEditorContent()
{
    d->tabs = tabs;
}

PropertyEditorContent::PropertyEditorContent(const Tabs &tabs, const QJsonObject &metadata,
                                             const QJsonObject &extendedMetadataInfo)
    : PropertyEditorContent(tabs)
{
    d->metadata = metadata;
    d->extendedMetadataInfo = extendedMetadataInfo;
}

PropertyEditorContent::PropertyEditorContent(const QByteArray &json)
    : PropertyEditorContent()
{
    if (const std::optional<QJsonObject> document = parseDocument(json))
        assignDocument(*document);
}

PropertyEditorContent::PropertyEditorContent(const QJsonObject &document)
    : PropertyEditorContent()
{
    assignDocument(document);
}

PropertyEditorContent::PropertyEditorContent(const PropertyEditorContent &other)
    : PropertyEditorContent()
{
    d->assignShared(*other.d);
}

PropertyEditorContent &PropertyEditorContent::operator=(const PropertyEditorContent &other)
{
    if (this != &other)
        d->assignShared(*other.d);
    return *this;
}

PropertyEditorContent::~PropertyEditorContent() = default;

void PropertyEditorContent::assignDocument(const QJsonObject &document)
{
    d->metadata = QJsonDocument::fromJson(document.value(META_IN_JSON_KEY).toString().toUtf8()).object();
    d->extendedMetadataInfo = document.value(EXTENDED_METADATA_IN_JSON_KEY).toObject();
    if (d->extendedMetadataInfo.isEmpty())
        d->extendedMetadataInfo = ExtendedMetadataInfo().toJson();
    if (!d->metadata.contains(CONTENT_MODE_KEY) && document.contains(PROJECT_CREATION_MODE_KEY))
        d->metadata.insert(CONTENT_MODE_KEY, document.value(PROJECT_CREATION_MODE_KEY).toInt());

    const QJsonArray tabs = document.value(TABS_KEY).toArray();
    d->tabs.reserve(tabs.size());
    for (const auto tab : tabs)
        d->tabs.append(readTab(tab.toObject()));
}

PropertyEditorContent::Tabs PropertyEditorContent::tabsAndContent() const
{
    return d->tabs;
}

QJsonObject PropertyEditorContent::metadata() const
{
    return d->metadata;
}

QJsonObject PropertyEditorContent::extendedMetadataInfo() const
{
    return d->extendedMetadataInfo;
}

QString PropertyEditorContent::customUser() const
{
    return d->customUser;
}

void PropertyEditorContent::setCustomUser(const QString &name)
{
    d->customUser = name;
}

QJsonObject PropertyEditorContent::document() const
{
    return documentOf(d->tabs, d->metadata, d->extendedMetadataInfo, [](const VariantItems &cells) {
        QJsonArray array;
        for (const QVariant &cell : cells)
            array.append(RawCell::objectOf(cell));
        return array;
    });
}

QByteArray PropertyEditorContent::toJson() const
{
    return QJsonDocument(toJsonObject()).toJson(QJsonDocument::Indented);
}

QJsonObject PropertyEditorContent::toJsonObject() const
{
    const QString cellStamp =
        QString::fromUtf8(JsonUtils::toCompactJson(WflwMetaData::metaDataObject(d->customUser)));
    return documentOf(d->tabs, WflwMetaData::stamped(d->metadata, d->customUser), d->extendedMetadataInfo,
                      [&cellStamp](const VariantItems &cells) { return stampedCells(cells, cellStamp); });
}

} // namespace orv
