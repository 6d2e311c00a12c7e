#pragma once

#include <orv/widgets/Export.h>

#include <QString>
#include <QStringList>

#include <optional>

namespace orv {

/// Texts such as "10.5 ppm" as people type them. GUI thread.
namespace ValueUnitInput {

/// What stands between blanks. Signs that tell the direction of writing, as some languages put before a
/// minus, are left out.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QStringList partsOf(const QString &text);

/// A number with either decimal sign, or as the default locale writes it.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT std::optional<double> numberOf(const QString &text);

} // namespace ValueUnitInput

} // namespace orv
