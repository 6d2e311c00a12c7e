#pragma once

#include <orv/propertyeditor/workbench/RecoveryEntry.h>
#include <orv/widgets/Export.h>

namespace orv {

class PropertyEditorWindow;

/// Shows in \a window where a recovered workflow was edited last: the setting, else the column or the tab, as
/// far as it is there. GUI thread; whoever hears of the focus may close the window.
ORV_PROPERTY_EDITOR_EXPORT void showRecoveredPlace(PropertyEditorWindow *window, const RecoveryPlace &place);

} // namespace orv
