#pragma once

#include <QString>

namespace orv::msreader {

/// Older readers named a chromatogram that is neither TIC nor base peak, and of which they knew no more, by
/// this text and a number. No reader of today does; upgrades look for it.
inline constexpr QLatin1String CHROMATOGRAM_NAME_OTHER_PREFIX{"Other chromatogram "};

enum class ChromatogramType
{
    Other, ///< of a pump, an oven, a detector that is not known
    Tic,   ///< total ion current
    BasePeak,
    SelectedIonCurrent,
    SelectedIonMonitoring,
    SelectedReactionMonitoring,
    IonCurrent, ///< some ion current, more isn't said
    Light,      ///< absorbed or emitted: UV and fluorescence
};

/// What a file says of one of its chromatograms.
struct ChromatogramInfo
{
    int index = 0; ///< its place in the file, counted from 0
    QString name;  ///< never empty
    QString id;    ///< by which the file knows it, never empty
    ChromatogramType type = ChromatogramType::Other;

    bool operator==(const ChromatogramInfo &) const = default;
};

} // namespace orv::msreader
