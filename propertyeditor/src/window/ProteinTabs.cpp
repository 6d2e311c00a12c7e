#include "orv/propertyeditor/window/ProteinTabs.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/content/RawCell.h>

#include <QJsonArray>

namespace orv::ProteinTabs {

using namespace PropertyEditorStringConstants;
using PropertyEditor::Content;

namespace {

QVariant withIntactProteins(const QVariant &cell)
{
    const Result<QJsonObject> parsed = RawCell::parse(cell);
    if (parsed.hasError()) {
        qCWarning(propertyEditorLog).noquote()
            << "Json parsing error:" << parsed.error().errorMessage() << cell.toByteArray();
        return cell;
    }
    QJsonObject object = *parsed;
    if (baseItemTypeFromString(object[TYPE_KEY].toString()) != BaseItemType::Proteins)
        return cell;
    object[TYPE_KEY] = baseItemTypeToString(BaseItemType::IntactProteins);
    QJsonArray properties = object[PROPERTIES_KEY].toArray();
    for (auto entry : properties) {
        QJsonObject property = entry.toObject();
        if (PropertiesNames::findPropertyForName(property[NAME_KEY].toString()) != PropertyId::Proteins)
            continue;
        property[NAME_KEY] = PropertiesNames::internalNameForType(PropertyId::IntactProteins);
        entry = property;
    }
    if (object.contains(PROPERTIES_KEY))
        object[PROPERTIES_KEY] = properties;
    return RawCell(object).toVariant();
}

} // namespace

Result<bool> areBuiltFromChains(const PropertyEditorContent &content, LossObserver *losses)
{
    Content document;
    document.setLossObserver(losses);
    if (Error error = document.assignFromJson(content.document()))
        return error.ecatch();
    const QSet<BaseItemType> types = document.allItems();
    return types.contains(BaseItemType::Intact) && !types.contains(BaseItemType::Senthia);
}

void changeToIntactProteins(PropertyEditorContent::Tabs *tabs)
{
    for (PropertyEditorContent::Tab &tab : *tabs) {
        VariantItems cells;
        cells.reserve(tab.second.second.size());
        for (const QVariant &cell : std::as_const(tab.second.second))
            cells.append(withIntactProteins(cell));
        tab.second.second = cells;
    }
}

} // namespace orv::ProteinTabs
