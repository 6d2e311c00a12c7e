#pragma once

#include <orv/core/Export.h>

#include <optional>

/// What kind of program this is. Any thread.
namespace orv::OrvApplication {

/// Whether nobody sits in front of a window: what setConsoleApplication told, or else whether the
/// application's main object is none with a screen.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isConsoleApplication();

/// For a program that has a main object with a screen and runs unattended all the same; nothing to go by that
/// object again.
ORV_WORKFLOW_EXPORT void setConsoleApplication(std::optional<bool> isConsole);

} // namespace orv::OrvApplication
