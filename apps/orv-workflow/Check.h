#pragma once

#include "Failure.h"
#include "Inputs.h"

#include <orv/propertyeditor/validators/WorkflowCheck.h>

#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace orv::cli {

using PropertyEditor::LocatedFinding;

/// What the check of one input has found; no report where it couldn't run.
struct CheckAnswer
{
    QString file;
    std::optional<PropertyEditor::WorkflowCheckReport> report = {};
    std::optional<Failure> failure = {};

    [[nodiscard]] bool isRefused() const { return report && !report->isValid; }
    [[nodiscard]] QList<LocatedFinding> findings() const
    {
        return report ? report->findings : QList<LocatedFinding>();
    }
};

/// How workflows are checked.
struct CheckOptions
{
    std::optional<QUrl> baseUrl; ///< that relative references count from, in place of the workflow's folder
    QStringList validators;      ///< short names; empty for the default set
};

/// The short names of the validators that a check with these options runs, in their order.
[[nodiscard]] QStringList validatorsOf(const CheckOptions &options);

/// Checks a workflow as the window does before it is used: upgraded where it is outdated, and as a copy with
/// absolute paths.
[[nodiscard]] CheckAnswer checkWorkflow(const BatchInput &input, const CheckOptions &options);

} // namespace orv::cli
