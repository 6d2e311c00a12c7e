// References of the tests, written as text.
#pragma once

#include <orv/resources/ResourceReference.h>

/// Null when \a text is no reference.
inline orv::ResourceReferenceSPtr referenceOf(const QString &text)
{
    return orv::ResourceReference::fromString(text).valueOr({});
}
