#include "SettingsCell.h"

#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

namespace orv::cli {

using namespace PropertyEditorStringConstants;
using PropertyEditor::KeyValueItem;
using PropertyEditor::LoadContext;

QString pointerOf(const CellPlace &place)
{
    return QStringLiteral("/tabs/%1/cells/%2").arg(place.tab).arg(place.cell);
}

Outcome<SettingsCell> settingsOf(const FoundCell &found)
{
    const BaseItemType type = baseItemTypeFromString(found.cell.value(TYPE_KEY).toString());
    if (type == BaseItemType::Unknown || !KeyValueItem::holds(type)) {
        return Failure{
            Negative, 0,
            QStringLiteral("The cell of type \"%1\" holds no settings; orv-workflow info shows which "
                           "cells there are.")
                .arg(found.cell.value(TYPE_KEY).toString())};
    }
    LossCollector losses;
    SettingsCell settings{std::make_unique<KeyValueItem>(type), {}};
    const LoadContext context(&losses, pointerOf(found.place));
    if (const Error error = settings.item->load(found.cell, {}, context); error.hasError())
        return failureFrom(error, BadInput);
    settings.lost = losses.losses();
    return settings;
}

} // namespace orv::cli
