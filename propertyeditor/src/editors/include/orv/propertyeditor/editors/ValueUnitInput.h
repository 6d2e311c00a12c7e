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

/// The number as the default locale writes it, which may part groups of digits; a number that it doesn't read
/// but for the decimal sign of another country comes back with its own.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QString inLocale(const QString &number);

/// What inLocale() makes of \a text as a number. "9,500" is 9500 where commas part groups, else nothing or a
/// number with three decimals.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT std::optional<double> numberOf(const QString &text);

} // namespace ValueUnitInput

} // namespace orv
