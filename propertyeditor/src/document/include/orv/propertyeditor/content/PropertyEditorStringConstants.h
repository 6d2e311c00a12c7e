#pragma once

#include <QLatin1String>

/// Keys and names that stand in workflow files and on property options.
namespace orv::PropertyEditorStringConstants {

// Document, tab, cell and property entry.
inline constexpr QLatin1String TABS_KEY("tabs");
inline constexpr QLatin1String META_IN_JSON_KEY("metadata");
inline constexpr QLatin1String EXTENDED_METADATA_IN_JSON_KEY("extendedMetadata");
inline constexpr QLatin1String PROJECT_CREATION_MODE_KEY("projectCreationMode"); ///< legacy, read only
inline constexpr QLatin1String CONTENT_MODE_KEY("contentMode");
inline constexpr QLatin1String WORKFLOW_TYPE_KEY("workflowType");
inline constexpr QLatin1String NAME_KEY("name");
inline constexpr QLatin1String DESCRIPTION_KEY("description");
inline constexpr QLatin1String ICON_KEY("icon");
inline constexpr QLatin1String COLUMNS_KEY("columns");
inline constexpr QLatin1String CELLS_KEY("cells");
inline constexpr QLatin1String TYPE_KEY("type");
inline constexpr QLatin1String TITLE_KEY("title");
inline constexpr QLatin1String PROPERTIES_KEY("properties");
inline constexpr QLatin1String VALUE_KEY("value");
inline constexpr QLatin1String PRIORITY_KEY("priority");
inline constexpr QLatin1String GROUP_KEY("group");
inline constexpr QLatin1String CUSTOM_COLUMNS_KEY("CustomColumns");

/// Name under which old documents hold the samples, whether the table or the choice of a step.
inline constexpr QLatin1String kSamples("Samples");

/// Name of the metadata property inside a property set; its first character keeps it apart from settings.
inline constexpr QLatin1String META_KEY(":metadata");

// Stamp inside the metadata document.
inline constexpr QLatin1String USER_KEY("user");
inline constexpr QLatin1String CREATED_KEY("created");
inline constexpr QLatin1String VERSION_KEY("version");

// Members of property values.
inline constexpr QLatin1String CHILDREN("children");
inline constexpr QLatin1String DATA("data");
inline constexpr QLatin1String MODS_KEY("modifications");
inline constexpr QLatin1String GLYCANS_KEY("glycans");
inline constexpr QLatin1String PEAK_FILTER_KEY("peakfilter");

inline constexpr QLatin1String WFLW_DEFAULT_NAME("property_table.wflw");
inline constexpr char16_t SAMPLES_PATTERN_SEPARATOR = u';';

// Options of properties.
inline constexpr char kbaseUrl[] = "baseUrl"; ///< the URL against which relative files are resolved
inline constexpr QLatin1String OPTION_AVAILABLE_ITEMS("availableItems");
inline constexpr QLatin1String OPTION_DISPLAY_SEPARATOR("displaySeparator");
inline constexpr QLatin1String OPTION_EDITOR("editor");
inline constexpr QLatin1String OPTION_MULTILINE("multiLine");
inline constexpr QLatin1String OPTION_MIN_HEIGHT("minHeight");
inline constexpr QLatin1String OPTION_MAX_HEIGHT("maxHeight");
inline constexpr QLatin1String OPTION_SELECT_BUTTON("selectButton");
inline constexpr QLatin1String OPTION_READONLY_INTERNAL_EDITOR("readOnlyInternalEditor");
inline constexpr int OPTION_MULTILINE_HEIGHT = 3; ///< lines

} // namespace orv::PropertyEditorStringConstants
