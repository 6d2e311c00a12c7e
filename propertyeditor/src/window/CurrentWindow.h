#pragma once

#include <orv/propertyeditor/workflow/WorkflowType.h>

namespace orv {

class PropertyEditorWindow;

/// The window that was made last, whose workflow captions of settings follow. Captions are asked for on any
/// thread; all else belongs to that of the windows.
namespace CurrentWindow {

void enter(PropertyEditorWindow *window);
/// The window goes.
void leave(PropertyEditorWindow *window);
[[nodiscard]] PropertyEditorWindow *instance();
/// Of a window that shows another workflow now.
void setWorkflowType(PropertyEditorWindow *window, WorkflowType type);

} // namespace CurrentWindow

} // namespace orv
