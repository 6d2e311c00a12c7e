#pragma once

#include "Upgrade.h"

#include <QJsonObject>
#include <QString>

namespace orv::cli {

/// Where an upgraded document went; empty texts where nothing was written.
struct UpgradeWritten
{
    QString output;
    QString backup;
};

[[nodiscard]] QJsonObject upgradeReportJson(const UpgradeAnswer &answer, const UpgradeWritten &written);
/// For people: a line for the file, then step by step what was changed, and the notes.
[[nodiscard]] QString upgradeReportText(const UpgradeAnswer &answer, const UpgradeWritten &written);

} // namespace orv::cli
