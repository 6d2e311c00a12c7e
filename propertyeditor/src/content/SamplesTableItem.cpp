#include "orv/propertyeditor/content/SamplesTableItem.h"

#include "TableLosses.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/samples/MetadataInSamples.h>

namespace orv::PropertyEditor {

SamplesTableItem::SamplesTableItem()
    : BaseTableItem(BaseItemType::Samples)
{}

SamplesTableItem::~SamplesTableItem() = default;

PropertyId SamplesTableItem::propertyId() const
{
    return PropertyId::SamplesTable;
}

void SamplesTableItem::changeContent(const std::function<void(SamplesAndTracesContent *content)> &change)
{
    SamplesAndTracesContent content = m_samples.take();
    change(&content);
    setContent(content);
}

void SamplesTableItem::reloadMetadata(const QList<MetadataMapping> &mappings,
                                      const QList<TalvaneMetadataMappingConnection> &connections)
{
    changeContent([&](SamplesAndTracesContent *content) {
        rebuildMetadataInSamples(connections, mappings, &content->samples);
    });
}

QJsonObject SamplesTableItem::toJson(PropertyConversionFlag flag) const
{
    const bool resolves = flag == PropertyConversionFlag::AbsolutePaths && baseUrl().isValid();
    return cellWithValue(flag, resolves ? content().resolved(baseUrl()).toJson() : m_samples.toJson());
}

Result<std::unique_ptr<BaseItem>> SamplesTableItem::copied(PropertyConversionFlag flag) const
{
    // What was read once can be read again; only samples that somebody set have to prove it.
    if (!m_samples.isAsRead())
        return BaseItem::copied(flag);
    const bool resolves = flag == PropertyConversionFlag::AbsolutePaths && baseUrl().isValid();
    auto copy = std::make_unique<SamplesTableItem>();
    ORV_RETURN_IF_ERROR(copy->load(cellWithValue(flag, SamplesAndTracesContent().toJson()),
                                   ValidationOption::SkipTypeValidation, {}));
    copy->m_samples = resolves ? StoredSamples(content().resolved(baseUrl())) : m_samples;
    return Result<std::unique_ptr<BaseItem>>(std::move(copy));
}

Error SamplesTableItem::load(const QJsonObject &json, ValidationOptions options, const LoadContext &context)
{
    m_samples = {};
    ORV_RETURN_IF_ERROR(assignCommon(json, options));
    const QJsonObject entry = PropertyEditorJsonUtils::getPropertyWithType(json, propertyId());
    if (entry.isEmpty()) {
        // The other tables' text has a blank before "is"; this one never had.
        return Error(ErrorCode::MalformedStructure,
                     tr("Could not parse JSON. Subobject \"%1\"is empty.")
                         .arg(PropertiesNames::internalNameForType(propertyId())));
    }
    Result<StoredSamples> samples = StoredSamples::fromJson(PropertyEditorJsonUtils::propValueObject(entry));
    if (samples.hasError())
        return samples.ecatch();
    m_samples = std::move(samples).value();
    loadCustomColumns(json);
    if (context.isObserved())
        reportTableLosses(context, json, {PropertyId::NoProperty, {}, {propertyId()}, {}});
    return announceReset();
}

void SamplesTableItem::clear()
{
    m_samples = {};
    BaseTableItem::clear();
}

} // namespace orv::PropertyEditor
