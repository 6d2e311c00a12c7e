#pragma once

#include <QJsonObject>
#include <QString>

namespace orv {
struct WorkflowSummary;
}

namespace orv::cli {

/// The members of the contract but "file" and "error".
[[nodiscard]] QJsonObject summaryToJson(const WorkflowSummary &summary);
/// The same members for a file that could not be read.
[[nodiscard]] QJsonObject emptySummaryJson();

/// The state in a few words, for totals: "up to date".
[[nodiscard]] QString stateInWords(const WorkflowSummary &summary);

/// The summary for people: a heading, facts, and the tabs as a tree. \a fault tells what is wrong with the
/// text.
[[nodiscard]] QString summaryToText(const QString &file, const WorkflowSummary &summary,
                                    const QString &fault);

} // namespace orv::cli
