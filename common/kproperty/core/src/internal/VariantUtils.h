#pragma once

#include <QVariant>

namespace Internal {

/// True for an invalid variant and for a value that is null in its own type (null text, invalid date).
/// QVariant::isNull() of Qt 6 says false for these, so an option could not be unset by one.
bool isNullVariant(const QVariant &value);

/// Equality of what is meant, across types: \a value is converted to the type of \a stored first.
bool equalVariants(const QVariant &stored, const QVariant &value);

/// Equality of what is held: type, null or not, and every bit that is ever written. Only a null text is the
/// same as an empty one.
bool identicalVariants(const QVariant &first, const QVariant &second);

} // namespace Internal
