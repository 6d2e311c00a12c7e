#pragma once

#include <orv/propertyeditor/PropertyId.h>

#include <span>

class KProperty;

namespace orv {
class XenosetPreset;
}

/// How each setting is read from a parameter file of the search engine.
namespace orv::KPropertyUpdater {

struct Row
{
    PropertyId id;
    const char *key;
    const char *unitKey; ///< null for what has no unit
    void (*update)(KProperty *property, const Row &row, const XenosetPreset &preset);
};

/// By ascending id. The writer's keys that are missing here aren't read back.
[[nodiscard]] std::span<const Row> rows();

} // namespace orv::KPropertyUpdater
