#pragma once

#include "orv/propertyeditor/workbench/DocumentState.h"

#include <QString>

namespace orv::StepText {

/// What a step did, for people: "Peaks kept per spectrum 1000 to 500". \a inTable is what the only table that
/// changed says of it, empty for none.
[[nodiscard]] QString of(const DocumentState &before, const StateChange &change, const DocumentState &after,
                         const QString &inTable);

} // namespace orv::StepText
