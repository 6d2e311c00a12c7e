#pragma once

#include "Failure.h"
#include "Inputs.h"

#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/validators/WorkflowCheck.h>

#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace orv::cli {

using PropertyEditor::LocatedFinding;

/// What the check of one input has found.
struct CheckAnswer
{
    QString file;
    std::optional<bool> isValid = {}; ///< unset where the check couldn't run
    QStringList errors = {};
    QStringList warnings = {};
    QList<LocatedFinding> findings = {};
    QList<Loss> lost = {};
    std::optional<Failure> failure = {};
};

/// How workflows are checked.
struct CheckOptions
{
    std::optional<QUrl> baseUrl; ///< that relative references count from, in place of the workflow's folder
    QStringList validators;      ///< short names; empty for the default set
};

/// The short names of the validators that a check with these options runs, in their order.
[[nodiscard]] QStringList validatorsOf(const CheckOptions &options);

/// Checks a workflow as the window does before it is used: a copy with absolute paths.
[[nodiscard]] CheckAnswer checkWorkflow(const BatchInput &input, const CheckOptions &options);

} // namespace orv::cli
