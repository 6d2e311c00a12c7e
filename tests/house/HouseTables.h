// What the rules of the house go by.
#pragma once

#include <array>

struct Floor
{
    const char *prefix; ///< of the path below the project's folder; the longest that fits counts
    int height;
    const char *module;
};

// clang-format off
inline constexpr std::array kFloors = {
    Floor{"common/core/", 0, "core"},
    Floor{"common/table/", 10, "table"},
    Floor{"common/table_model/", 20, "table_model"},
    Floor{"common/resources/", 10, "resources"},
    Floor{"common/kproperty/", 10, "kproperty"},
    Floor{"common/samples/", 20, "samples"},
    Floor{"common/chemistry/", 20, "chemistry"},
    Floor{"common/core_ms/", 20, "core_ms"},
    Floor{"common/project/", 30, "project"},
    Floor{"common/remote/", 30, "remote"},
    Floor{"propertyeditor/src/document/", 31, "document"},
    Floor{"propertyeditor/src/catalogue/", 32, "catalogue"},
    Floor{"propertyeditor/src/content/", 33, "content"},
    Floor{"propertyeditor/src/workflow/", 34, "workflow"},
    Floor{"propertyeditor/src/validators/", 35, "validators"},
    Floor{"propertyeditor/src/engine/", 35, "engine"},
    Floor{"common/widgets/", 40, "widgets"},
    // Editors of structured values embed grid items in their dialogs, and the grid stands on the other editors.
    Floor{"propertyeditor/src/editors/", 50, "editors"},
    Floor{"propertyeditor/src/grid/", 51, "grid"},
    Floor{"propertyeditor/src/editors/objects/", 52, "objects"},
    Floor{"propertyeditor/src/window/", 53, "window"},
    Floor{"propertyeditor/src/workbench/", 54, "workbench"},
    Floor{"apps/", 60, "apps"},
};
// clang-format on

/// Names that gather functions of several floors: declared where the lowest of them stands, their bodies each
/// where what they need stands. No include tells that a call of one leads upwards.
inline constexpr std::array kFacades = {"PropertyEditorUtils", "PropertyEditorJsonUtils"};

struct LongFile
{
    const char *path;
    const char *reason;
};

inline constexpr std::array<LongFile, 0> kLongFiles = {};
