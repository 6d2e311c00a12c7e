#pragma once

namespace orv {

class OrvGenericEditorObjectManager;

/// Registers the library's own objects. Its body stands with them, above the grid, which they embed.
void registerDefaultEditorObjects(OrvGenericEditorObjectManager *manager);

} // namespace orv
