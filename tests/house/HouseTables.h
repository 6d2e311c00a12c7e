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
    Floor{"common/resources/", 10, "resources"},
    Floor{"common/kproperty/", 10, "kproperty"},
    Floor{"common/samples/", 20, "samples"},
    Floor{"common/chemistry/", 20, "chemistry"},
    Floor{"common/core_ms/", 20, "core_ms"},
    Floor{"common/project/", 30, "project"},
    Floor{"common/remote/", 30, "remote"},
    // The catalogue and its helpers lie at the top of the product's folders; content is made of them.
    Floor{"propertyeditor/include/orv/propertyeditor/", 31, "catalogue"},
    Floor{"propertyeditor/src/", 31, "catalogue"},
    // The value form of a document, the functions on raw cells and the stamp stand beside the catalogue: rules
    // and readers ask them, and they ask the catalogue what a name means.
    Floor{"propertyeditor/include/orv/propertyeditor/content/BaseItemType", 31, "catalogue"},
    Floor{"propertyeditor/src/content/BaseItemType", 31, "catalogue"},
    Floor{"propertyeditor/include/orv/propertyeditor/content/CellPlace", 31, "catalogue"},
    Floor{"propertyeditor/src/content/CellPlace", 31, "catalogue"},
    Floor{"propertyeditor/include/orv/propertyeditor/content/ContentOptions.h", 31, "catalogue"},
    Floor{"propertyeditor/include/orv/propertyeditor/content/LoadContext", 31, "catalogue"},
    Floor{"propertyeditor/src/content/LoadContext", 31, "catalogue"},
    Floor{"propertyeditor/include/orv/propertyeditor/content/PropertyEditorContent", 31, "catalogue"},
    Floor{"propertyeditor/src/content/PropertyEditorContent", 31, "catalogue"},
    Floor{"propertyeditor/include/orv/propertyeditor/content/PropertyEditorJsonUtils", 31, "catalogue"},
    Floor{"propertyeditor/src/content/PropertyEditorJsonUtils", 31, "catalogue"},
    Floor{"propertyeditor/include/orv/propertyeditor/content/PropertyEditorStringConstants", 31, "catalogue"},
    Floor{"propertyeditor/include/orv/propertyeditor/content/RawCell", 31, "catalogue"},
    Floor{"propertyeditor/src/content/RawCell", 31, "catalogue"},
    Floor{"propertyeditor/src/content/StampedCells", 31, "catalogue"},
    Floor{"propertyeditor/include/orv/propertyeditor/workflow/WflwMetaData", 31, "catalogue"},
    Floor{"propertyeditor/src/workflow/WflwMetaData", 31, "catalogue"},
    Floor{"propertyeditor/include/orv/propertyeditor/workflow/WorkflowType", 31, "catalogue"},
    Floor{"propertyeditor/src/workflow/WorkflowType", 31, "catalogue"},
    Floor{"propertyeditor/include/orv/propertyeditor/content/", 32, "content"},
    Floor{"propertyeditor/include/orv/propertyeditor/PropertiesGetter", 32, "content"},
    Floor{"propertyeditor/src/PropertiesGetter", 32, "content"},
    Floor{"propertyeditor/src/content/", 32, "content"},
    Floor{"propertyeditor/include/orv/propertyeditor/validators/", 33, "validators"},
    Floor{"propertyeditor/src/validators/", 33, "validators"},
    Floor{"propertyeditor/include/orv/propertyeditor/workflow/", 33, "workflow"},
    Floor{"propertyeditor/src/workflow/", 33, "workflow"},
    Floor{"propertyeditor/include/orv/propertyeditor/engine/", 33, "engine"},
    Floor{"propertyeditor/src/engine/", 33, "engine"},
    Floor{"common/widgets/", 40, "widgets"},
    Floor{"propertyeditor/include/orv/propertyeditor/grid/", 50, "grid"},
    Floor{"propertyeditor/src/grid/", 50, "grid"},
    Floor{"propertyeditor/include/orv/propertyeditor/editors/", 50, "editors"},
    Floor{"propertyeditor/src/editors/", 50, "editors"},
    // Windows lie among the catalogue's sources: each new one needs its row here.
    Floor{"propertyeditor/include/orv/propertyeditor/PropertyEditorWindow", 51, "windows"},
    Floor{"propertyeditor/src/PropertyEditorWindow", 51, "windows"},
    Floor{"propertyeditor/include/orv/propertyeditor/PropertyEditorDesktopWindow", 51, "windows"},
    Floor{"propertyeditor/src/PropertyEditorDesktopWindow", 51, "windows"},
    Floor{"apps/", 60, "apps"},
};
// clang-format on

struct LongFile
{
    const char *path;
    const char *reason;
};

inline constexpr std::array kLongFiles = {
    LongFile{"tests/conformance/kproperty/CoreTrace.cpp",
             "a list of calls, one after the other, of which two libraries' answers are compared"},
};
