#pragma once

#include <memory>

class KPropertySet;

/// Settings of an imagined search, with a property of every built-in type and of every option.
std::unique_ptr<KPropertySet> createExampleSet();
