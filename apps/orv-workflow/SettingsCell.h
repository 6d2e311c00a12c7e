#pragma once

#include "CellArgument.h"

#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/KeyValueItem.h>

#include <memory>

namespace orv::cli {

/// A cell of settings, and what its load dropped.
struct SettingsCell
{
    std::unique_ptr<PropertyEditor::KeyValueItem> item;
    QList<Loss> lost;
};

/// The JSON pointer of a cell.
[[nodiscard]] QString pointerOf(const CellPlace &place);

/// The found cell as settings; a cell of another kind is a negative answer.
[[nodiscard]] Outcome<SettingsCell> settingsOf(const FoundCell &found);

} // namespace orv::cli
