#pragma once

#include "Failure.h"
#include "Inputs.h"

#include <orv/propertyeditor/workflow/WorkflowUpgrade.h>
#include <orv/remote/SilentServers.h>

#include <QByteArray>
#include <QString>

#include <optional>

namespace orv::cli {

struct UpgradeOptions
{
    bool accessSampleData = true;
    QString user;                           ///< to stamp with; empty for the current one
    SilentServers *silentServers = nullptr; ///< of the batch; not owned
};

/// What became of one document. Nothing is written yet.
struct UpgradeAnswer : WorkflowUpgradeReport
{
    QString file;
    QByteArray original; ///< what `upgraded` is, too, when nothing is changed
    std::optional<Failure> failure;
};

[[nodiscard]] UpgradeAnswer upgradeWorkflow(const BatchInput &input, const UpgradeOptions &options);

} // namespace orv::cli
