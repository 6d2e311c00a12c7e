#include "SampleModes.h"

#include <QLatin1String>

#include <algorithm>
#include <array>

namespace orv::SampleModes {

namespace {

using SamplesInput::Mode;

struct ModeRow
{
    Mode mode;
    bool hasReference;
    bool hasTraceFiles;
    bool hasSearchResults;
    bool hasDigestion;
    bool hasTraces;
};

// clang-format off
constexpr std::array kModes = {
    ModeRow{Mode::Senthia,        true,  true,  true,  true,  true},
    ModeRow{Mode::Trenq,          true,  false, true,  true,  false},
    ModeRow{Mode::Ostrale,        true,  false, true,  true,  false},
    ModeRow{Mode::Intact,         true,  true,  false, false, true},
    ModeRow{Mode::Oligo,          true,  true,  false, true,  true},
    ModeRow{Mode::Dravik,         true,  true,  false, false, true},
    ModeRow{Mode::Karvon,         false, false, true,  true,  false},
    ModeRow{Mode::MultiDocReport, false, false, false, false, false},
    ModeRow{Mode::Preview,        false, false, true,  true,  false},
};
// clang-format on

struct ColumnRow
{
    QLatin1String column;
    bool ModeRow::*isNeeded;
};

constexpr std::array kColumns = {
    ColumnRow{QLatin1String("Reference"), &ModeRow::hasReference},
    ColumnRow{QLatin1String("Traces"), &ModeRow::hasTraceFiles},
    ColumnRow{QLatin1String("ExtraReferences"), &ModeRow::hasSearchResults},
    ColumnRow{QLatin1String("Digestion"), &ModeRow::hasDigestion},
    ColumnRow{QLatin1String("SampleTimeUnit"), &ModeRow::hasTraceFiles},
};

bool isNeeded(const QList<Mode> &modes, bool ModeRow::*need)
{
    return std::any_of(kModes.begin(), kModes.end(),
                       [&](const ModeRow &row) { return modes.contains(row.mode) && row.*need; });
}

} // namespace

QStringList unneededColumns(const QList<Mode> &modes)
{
    QStringList names;
    for (const ColumnRow &row : kColumns) {
        if (!modes.isEmpty() && !isNeeded(modes, row.isNeeded))
            names.append(row.column);
    }
    return names;
}

bool needTraces(const QList<Mode> &modes)
{
    return modes.isEmpty() || isNeeded(modes, &ModeRow::hasTraces);
}

} // namespace orv::SampleModes
