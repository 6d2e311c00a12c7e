#pragma once

#include <orv/chemistry/WorkflowNodeInsilicoAlign.h>
#include <orv/chemistry/WorkflowNodeXicMethodOptions.h>
#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QLatin1String>
#include <QString>
#include <QVariantMap>

/// Expert settings that became settings of the form: their values, and the text without them. A value that
/// can't be read stays in the text with a warning, and its setting keeps the default, so that a check of the
/// document still shows it. Nothing fails. Any thread.
namespace orv::WorkflowNodeUpgradeUtils {

// As they stand in old texts, with their section. Never rename.
inline constexpr QLatin1String kXicBlockScans("XIC/BlockScans");
inline constexpr QLatin1String kXicCacheSize("XIC/CacheSize");
inline constexpr QLatin1String kXicMode("XIC/Mode");
inline constexpr QLatin1String kXicMzBins("XIC/MzBins");
inline constexpr QLatin1String kAlignEnabled("InSilicoAlign/Enabled");
inline constexpr QLatin1String kAlignTolerance("InSilicoAlign/Tolerance");
inline constexpr QLatin1String kAlignToleranceDetermination("InSilicoAlign/ToleranceDetermination");

struct FastXicUpgrade
{
    QString advancedText;
    WorkflowNodeXicMethodOptions options;
    Warnings warnings;
};

/// The four settings of "XIC" are taken out of \a text, which has sections. \a values are what CustomSettings
/// reads in it. The mode is "Standard" or "Fast" in any case of letters, the others are whole numbers from 1.
[[nodiscard]] ORV_WORKFLOW_EXPORT FastXicUpgrade fastXicBackwardsCompatibility(const QString &text,
                                                                               const QVariantMap &values);

struct InsilicoAlignUpgrade
{
    QString advancedText;
    WorkflowNodeInsilicoAlign options;
    Warnings warnings;
};

/// The three settings of "InSilicoAlign" are taken out of \a text, which has sections. "Enabled" is true,
/// false, 1 or 0, "Tolerance" a number of minutes from 0, and "ToleranceDetermination" 0 or "Automatic", or 1
/// or "ByHand"; words are read in any case of letters.
[[nodiscard]] ORV_WORKFLOW_EXPORT InsilicoAlignUpgrade
inSilicoAlignSettingsBackwardsCompatibility(const QString &text);

} // namespace orv::WorkflowNodeUpgradeUtils
