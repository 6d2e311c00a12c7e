#pragma once

#include <orv/core/Settings.h>
#include <orv/widgets/FileSystemSettings.h>

namespace orv::PropertyEditorDirLocations {

/// Where workflows were opened last.
inline constexpr FileSystemSettings::DirectoryLocation OpenWorkflowLocation = {
    QLatin1String("OpenWorkflowLocation"), as::kOpenWorkflowLocation};

} // namespace orv::PropertyEditorDirLocations
