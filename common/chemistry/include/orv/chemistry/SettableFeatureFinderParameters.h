#pragma once

#include <orv/core/Export.h>

namespace orv {

/// How features (the isotope traces of one compound in one charge state) are found in a run. The values that
/// members start with are the defaults of the settings of the same meaning.
struct ORV_WORKFLOW_EXPORT SettableFeatureFinderParameters
{
    int maximumCharge = 10;
    int minimumCharge = 1;
    double minimumIsotopeCorrelation = 0.8; ///< measured against modelled pattern, from 0 to 1
    int maximumIsotopeCount = 8;
    int minimumIsotopeCount = 2;
    bool mergeChargeStates = true;
    int missedScans = 1; ///< successive scans in which a trace may be missing
    double mzTolerancePpm = 10.0;
    int peaksPerScan = 0; ///< most intense peaks that take part; 0 for all
    int minimumScanCount = 3;
    double minimumSignalToNoise = 3.0;
    int smoothingScans = 3;     ///< 0 for none
    int splitDepthPercent = 50; ///< of the lower apex
    int threadCount = 0;        ///< 0 for as many as the multicore mode allows
    double maximumElutionMinutes = 5.0;
    double minimumElutionMinutes = 0.05;

    bool operator==(const SettableFeatureFinderParameters &) const = default;
};

} // namespace orv
