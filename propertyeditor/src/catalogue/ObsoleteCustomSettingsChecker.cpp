#include "orv/propertyeditor/ObsoleteCustomSettingsChecker.h"

#include <orv/chemistry/WorkflowNodeUpgradeUtils.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/table/CustomSettings.h>

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>

namespace orv {

namespace {

struct ObsoleteCustomSettingsCheckerTr
{
    Q_DECLARE_TR_FUNCTIONS(ObsoleteCustomSettingsChecker)
};

struct Retired
{
    ApplicationType application;
    QLatin1String key;
    PropertyId successor;
};

using A = ApplicationType;
using P = PropertyId;
namespace Upgrade = WorkflowNodeUpgradeUtils;

constexpr std::array kRetired = {
    // Since 5.6.0 peaks of traces are found by the presets in the table of samples.
    Retired{A::Dravik, QLatin1String("ElutionPeaks/AutoCompute"), P::SamplesTable},
    Retired{A::Dravik, QLatin1String("ElutionPeaks/PeakWidthFactor"), P::SamplesTable},
    Retired{A::Intact, QLatin1String("ElutionPeaks/AutoCompute"), P::SamplesTable},
    Retired{A::Intact, QLatin1String("ElutionPeaks/PeakWidthFactor"), P::SamplesTable},
    // Since 5.12.2 the extraction of ion chromatograms has settings of its own.
    Retired{A::Senthia, Upgrade::kXicBlockScans, P::FastXicBlockScans},
    Retired{A::Senthia, Upgrade::kXicCacheSize, P::FastXicCacheSize},
    Retired{A::Senthia, Upgrade::kXicMode, P::XicMode},
    Retired{A::Senthia, Upgrade::kXicMzBins, P::FastXicMzBins},
    // Since 5.43.0 the alignment of in-silico peptides has.
    Retired{A::Senthia, Upgrade::kAlignEnabled, P::AlignmentEnabled},
    Retired{A::Senthia, Upgrade::kAlignTolerance, P::AlignmentTolerance},
    Retired{A::Senthia, Upgrade::kAlignToleranceDetermination, P::ToleranceDetermination},
    Retired{A::Trenq, Upgrade::kAlignEnabled, P::AlignmentEnabled},
    Retired{A::Trenq, Upgrade::kAlignTolerance, P::AlignmentTolerance},
    Retired{A::Trenq, Upgrade::kAlignToleranceDetermination, P::ToleranceDetermination},
};

QList<Retired> retiredIn(ApplicationType application, const QString &text, bool hasSections)
{
    CustomSettings settings;
    // A line that is no setting is none that is out of use.
    const Warnings ignored = settings.setupValues(text, hasSections ? CustomSettings::Format::Sections
                                                                    : CustomSettings::Format::Flat);
    QList<Retired> found;
    std::copy_if(kRetired.begin(), kRetired.end(), std::back_inserter(found), [&](const Retired &row) {
        return row.application == application && settings.contains(row.key);
    });
    std::sort(found.begin(), found.end(),
              [](const Retired &a, const Retired &b) { return a.key.compare(b.key) < 0; });
    return found;
}

} // namespace

QList<ObsoleteCustomSettingsChecker::Row> ObsoleteCustomSettingsChecker::rows()
{
    QList<Row> rows;
    for (const Retired &row : kRetired)
        rows.append({row.application, row.key, row.successor});
    return rows;
}

bool ObsoleteCustomSettingsChecker::hasObsoleteSettings(ApplicationType application, const QString &text,
                                                        QString *message, bool hasSections)
{
    QStringList keys;
    for (const Retired &row : retiredIn(application, text, hasSections))
        keys.append(row.key);
    if (keys.isEmpty())
        return false;
    if (message) {
        *message = ObsoleteCustomSettingsCheckerTr::tr(
                       "The advanced configuration has settings that are out of use: %1.")
                       .arg(keys.join(QLatin1String(", ")));
    }
    return true;
}

QString ObsoleteCustomSettingsChecker::remedy(ApplicationType application, const QString &text,
                                              bool hasSections)
{
    QStringList captions;
    for (const Retired &row : retiredIn(application, text, hasSections))
        captions.append(QLatin1Char('"') + PropertiesNames::displayNameForType(row.successor) +
                        QLatin1Char('"'));
    captions.removeDuplicates();
    if (captions.isEmpty())
        return {};
    return ObsoleteCustomSettingsCheckerTr::tr(
               "Remove them from the advanced configuration, and enter their values in %1.")
        .arg(captions.join(QLatin1String(", ")));
}

} // namespace orv
