#include "orv/chemistry/TurboXicSettings.h"

namespace orv::TurboXicSettingsCreator {

TurboXicSettings createHighCapacity()
{
    return {.scansPerBlock = 128, .cacheMegabytes = 1024, .mzBins = 64};
}

} // namespace orv::TurboXicSettingsCreator
