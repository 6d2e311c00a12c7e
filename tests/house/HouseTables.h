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
    // Types of cells are numbers alone, and the catalogue says which properties a type may hold.
    Floor{"propertyeditor/include/orv/propertyeditor/content/BaseItemType.h", 31, "catalogue"},
    Floor{"propertyeditor/include/orv/propertyeditor/content/", 32, "content"},
    Floor{"propertyeditor/src/content/", 32, "content"},
    // Every document carries its version and type, and the rules of versions look into a document: these two
    // belong to content, though their names put them beside the upgrade chain.
    Floor{"propertyeditor/include/orv/propertyeditor/workflow/WflwMetaData", 32, "content"},
    Floor{"propertyeditor/src/workflow/WflwMetaData", 32, "content"},
    Floor{"propertyeditor/include/orv/propertyeditor/workflow/WorkflowType", 32, "content"},
    Floor{"propertyeditor/src/workflow/WorkflowType", 32, "content"},
    Floor{"propertyeditor/include/orv/propertyeditor/validators/", 33, "validators"},
    Floor{"propertyeditor/src/validators/", 33, "validators"},
    Floor{"propertyeditor/include/orv/propertyeditor/workflow/", 33, "workflow"},
    Floor{"propertyeditor/src/workflow/", 33, "workflow"},
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
