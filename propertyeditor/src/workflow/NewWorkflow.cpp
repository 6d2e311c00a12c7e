#include "orv/propertyeditor/workflow/NewWorkflow.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/content/RawCell.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/samples/ExtendedMetadataInfo.h>
#include <orv/samples/SamplesAndTracesContent.h>

#include <QJsonArray>

#include <algorithm>

namespace orv {

using namespace PropertyEditorStringConstants;
using PropertyEditor::KeyValueItem;

namespace {

using Priority = PropertySetCreator::Priority;

constexpr QLatin1String kTabName("Workflow");

QJsonObject settingEntry(PropertyId id)
{
    return {{NAME_KEY, PropertiesNames::internalNameForType(id)},
            {VALUE_KEY, PropertySetCreator::storedDefault(id)},
            {PRIORITY_KEY, int(Priority::High)}};
}

QJsonObject settingsCell(BaseItemType type)
{
    QJsonArray entries;
    for (const PropertyId id : NewWorkflow::settingsOf(type))
        entries.append(settingEntry(id));
    return {{TYPE_KEY, baseItemTypeToString(type)}, {PROPERTIES_KEY, entries}};
}

QJsonObject cellOf(BaseItemType type, PropertyId id, const QJsonObject &value)
{
    const QJsonObject entry{{NAME_KEY, PropertiesNames::internalNameForType(id)}, {VALUE_KEY, value}};
    return {{TYPE_KEY, baseItemTypeToString(type)}, {PROPERTIES_KEY, QJsonArray{entry}}};
}

QJsonObject tableCell(BaseItemType type)
{
    switch (type) {
    case BaseItemType::Samples:
        return cellOf(type, PropertyId::SamplesTable, SamplesAndTracesContent().toJson());
    case BaseItemType::Database:
        return cellOf(type, PropertyId::SequenceDatabases, {{QStringLiteral("sequences"), QJsonArray()}});
    default:
        return PropertyEditorJsonUtils::defaultJsonContents(type);
    }
}

/// The cell as a save after a load writes it: some kinds of cells write more than their tables.
QJsonObject asSaved(const QJsonObject &cell)
{
    const QJsonObject tab{
        {NAME_KEY, kTabName}, {COLUMNS_KEY, QJsonArray{kTabName}}, {CELLS_KEY, QJsonArray{cell}}};
    PropertyEditor::Content content;
    if (const Error error = content.assignFromJson({{TABS_KEY, QJsonArray{tab}}}); error.hasError()) {
        qCCritical(propertyEditorLog) << "Cannot load a default cell:" << error.errorMessages();
        return {};
    }
    const auto items = content.findAllItems(baseItemTypeFromString(cell.value(TYPE_KEY).toString()));
    return items.constFirst()->toJson(PropertyEditor::PropertyConversionFlag::KeepPaths);
}

/// "Masses", "Masses 2", ...: columns of one name can't be told apart by the one who asks for them.
QStringList columnNames(const QList<BaseItemType> &types)
{
    QHash<BaseItemType, int> counts;
    QStringList names;
    for (const BaseItemType type : types) {
        const int count = ++counts[type];
        const QString name = baseItemTypeToString(type);
        names.append(count == 1 ? name : QStringLiteral("%1 %2").arg(name).arg(count));
    }
    return names;
}

} // namespace

QList<BaseItemType> NewWorkflow::cellTypes()
{
    QList<BaseItemType> types = PropertyEditor::BaseItem::typeNameMap().keys();
    types.removeAll(BaseItemType::Unknown);
    return types;
}

QList<PropertyId> NewWorkflow::settingsOf(BaseItemType type)
{
    if (type == BaseItemType::Unknown || !KeyValueItem::holds(type))
        return {};
    QList<PropertyId> ids = allowedProperties(type).values();
    std::ranges::sort(ids);
    return ids;
}

QJsonObject NewWorkflow::defaultCell(BaseItemType type)
{
    if (type == BaseItemType::Unknown)
        return {};
    return KeyValueItem::holds(type) ? settingsCell(type) : asSaved(tableCell(type));
}

PropertyEditorContent NewWorkflow::make(const QString &name, const QList<BaseItemType> &types)
{
    VariantItems cells;
    for (const BaseItemType type : types)
        cells.append(RawCell(defaultCell(type)).toVariant());
    QJsonObject metadata;
    if (!name.isEmpty())
        WflwMetaData::setNameInMetaDataObject(&metadata, name);
    WflwMetaData::setContentMode(&metadata, PropertyEditorContent::ContentMode::DesktopMode);
    return PropertyEditorContent({{kTabName, {columnNames(types), cells}}}, metadata,
                                 ExtendedMetadataInfo().toJson());
}

} // namespace orv
