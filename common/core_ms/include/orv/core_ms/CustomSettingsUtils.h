#pragma once

#include <orv/core/Export.h>
#include <orv/core_ms/MsReaderOptions.h>
#include <orv/table/CustomSettings.h>

#include <QLatin1String>

/// The expert settings that hold for the whole process, as far as readers of MS files go by them. Any thread.
namespace orv::CustomSettingsUtils {

/// MsReaderOptions::usesIndex: true, false, 1 or 0.
inline constexpr QLatin1String kUseIndex("MsReader/UseIndex");

/// Replaces the settings that hold from now on; at first there are none.
ORV_WORKFLOW_EXPORT void setCurrentCustomSettings(const CustomSettings &settings);
[[nodiscard]] ORV_WORKFLOW_EXPORT CustomSettings currentCustomSettings();

/// Gives \a options what the current settings say. What they don't say stays, also where a value can't be
/// read, which is logged as a warning.
ORV_WORKFLOW_EXPORT void extendFromCurrentCustomSettings(msreader::MsReaderOptions *options);

} // namespace orv::CustomSettingsUtils
