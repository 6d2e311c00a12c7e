#pragma once

class KProperty;

namespace orv {

/// Whether the value of \a old can stand in \a property: of one type, and one that lists and editors know.
bool takesValueOf(const KProperty &old, const KProperty &property);

} // namespace orv
