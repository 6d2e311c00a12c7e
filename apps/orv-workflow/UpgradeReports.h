#pragma once

#include "DocumentTarget.h"
#include "Upgrade.h"

#include <QJsonObject>
#include <QString>

namespace orv::cli {

[[nodiscard]] QJsonObject upgradeReportJson(const UpgradeAnswer &answer, const WrittenDocument &written);
/// For people: a line for the file, then step by step what was changed, and the notes.
[[nodiscard]] QString upgradeReportText(const UpgradeAnswer &answer, const WrittenDocument &written);

} // namespace orv::cli
