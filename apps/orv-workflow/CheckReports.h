#pragma once

#include "Check.h"

#include <QByteArray>
#include <QJsonArray>
#include <QString>

#include <vector>

namespace orv::cli {

using CheckAnswers = std::vector<CheckAnswer>;

/// {"file", "valid", "checkedVersion", "errors", "warnings", "findings", "lost", "error"}
[[nodiscard]] QJsonObject checkReportJson(const CheckAnswer &answer);
/// For people: a heading, and below it the findings in columns. Nothing where the check couldn't run.
[[nodiscard]] QString checkReportText(const CheckAnswer &answer);
/// SARIF 2.1.0, for reviews.
[[nodiscard]] QJsonObject checkReportSarif(const CheckAnswers &answers);
/// JUnit XML, for CI systems: a suite for each file, and in it a case for each of the validators.
[[nodiscard]] QByteArray checkReportJunit(const CheckAnswers &answers, const QStringList &validators);

/// Tab, column, row, property and sample, as far as they are known: "Search / Map / row 0 / Digestion".
[[nodiscard]] QString placeText(const LocatedFinding &finding);

} // namespace orv::cli
