#pragma once

#include <QLatin1String>

/// Members under which the scripts that label plots stand in a property's value.
namespace orv::LabelScripts {

inline constexpr QLatin1String TRACE_PLOT_KEY("tracePlot");
inline constexpr QLatin1String DMS_PLOT_KEY("dmsPlot");

} // namespace orv::LabelScripts
