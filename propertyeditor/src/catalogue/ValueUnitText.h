// Numbers with a unit as people type them.
#pragma once

#include <orv/propertyeditor/PropertyId.h>

#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

class KProperty;

namespace orv {

/// The units in which the value of \a id may be given: those that reach the engine. Empty where it has none.
[[nodiscard]] QStringList unitsOf(PropertyId id);

/// The object that a value with unit holds, for "5 ppm", "5" (in the unit that \a property has) or the JSON
/// text of such an object. Nothing for other texts, other units and numbers outside the limits.
[[nodiscard]] std::optional<QVariant> toValueWithUnit(PropertyId id, const QString &text,
                                                      const KProperty &property);

/// The limits of its numbers and its units, for people: "a number from 0 to 10000 with the unit ppm or Da".
[[nodiscard]] QString legalValuesWithUnit(PropertyId id);

/// \a text without the unit that \a property shows behind its number, if it ends with that.
[[nodiscard]] QString withoutShownUnit(const QString &text, const KProperty &property);

} // namespace orv
