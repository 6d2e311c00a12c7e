#include "orv/propertyeditor/workflow/WflwUpgradeObserver.h"

namespace orv {

WflwUpgradeObserver::~WflwUpgradeObserver() = default;
WflwUpgradeCollector::~WflwUpgradeCollector() = default;

} // namespace orv
