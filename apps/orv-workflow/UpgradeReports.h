#pragma once

#include "DocumentTarget.h"
#include "Upgrade.h"

#include <QJsonObject>
#include <QString>

#include <optional>

namespace orv::cli {

/// What is wrong with a document that was upgraded all the same.
[[nodiscard]] std::optional<Failure> faultOf(const UpgradeAnswer &answer);

[[nodiscard]] QJsonObject upgradeReportJson(const UpgradeAnswer &answer, const WrittenDocument &written);
/// For people: a line for the file, then step by step what was changed, and the notes.
[[nodiscard]] QString upgradeReportText(const UpgradeAnswer &answer, const WrittenDocument &written);

} // namespace orv::cli
