#include "EntryTexts.h"

#include "settings/SettingReader.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QJsonArray>

#include <memory>

namespace orv {

using namespace PropertyEditorStringConstants;

QString EntryTexts::value(const QJsonObject &cell, const QJsonObject &entry)
{
    QJsonObject alone = cell;
    alone.insert(PROPERTIES_KEY, QJsonArray{entry});
    const Result<KPropertySet *> made = PropertySetCreator::objectToPropertySet(alone, std::nullopt);
    if (made.hasError())
        return {};
    const std::unique_ptr<KPropertySet> set(*made);
    for (KPropertySetIterator property(*set); *property; ++property) {
        if (!(*property)->name().startsWith(':'))
            return SettingReader::valueText(**property);
    }
    return {};
}

QString EntryTexts::caption(const QJsonObject &cell, const QJsonObject &entry)
{
    const BaseItemType type = PropertyEditor::BaseItem::typeFromString(cell.value(TYPE_KEY).toString());
    const PropertyId id = PropertyEditorJsonUtils::findPropertyBackCompat(entry, type);
    const QString caption = PropertiesNames::displayNameForType(id);
    return caption.isEmpty() ? entry.value(NAME_KEY).toString() : caption;
}

} // namespace orv
