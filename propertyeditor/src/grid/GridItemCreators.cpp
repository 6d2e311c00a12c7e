#include "orv/propertyeditor/grid/GridItemManager.h"

namespace orv {

void GridItemManager::registerCreators() {}

} // namespace orv
