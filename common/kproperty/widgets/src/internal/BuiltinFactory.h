#pragma once

#include "KPropertyWidgetsFactory.h"

namespace Internal {

/// Editors for the built-in types.
class BuiltinFactory : public KPropertyWidgetsFactory
{
public:
    BuiltinFactory();
};

} // namespace Internal
