#pragma once

#include <QVariant>

namespace Internal {

/// True for an invalid variant and for a value that is null in its own type (null text, invalid date).
/// QVariant::isNull() of Qt 6 says false for these, so an option could not be unset by one.
bool isNullVariant(const QVariant &value);

/// Equality across types as properties have always had it: \a value is converted to the type of
/// \a stored first. With \a decimals >= 0, doubles are cut to so many decimals before.
bool equalVariants(const QVariant &stored, const QVariant &value, int decimals);

} // namespace Internal
