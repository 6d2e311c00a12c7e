#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>
#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WorkflowUpgradeReview.h>

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVersionNumber>

#include <optional>

namespace orv {

class SilentServers;

struct ORV_WORKFLOW_EXPORT WorkflowUpgradeOptions
{
    bool accessSampleData = true;
    QUrl baseUrl =
        {}; ///< the workflow's folder, with a slash at its end, from which its relative files count
    QString user = {};                      ///< to stamp with; empty for the current one
    SilentServers *silentServers = nullptr; ///< as in WflwUpgradeOptions
};

/// What became of one document. Nothing is written.
struct ORV_WORKFLOW_EXPORT WorkflowUpgradeReport
{
    QVersionNumber from;
    QVersionNumber to;
    std::optional<WflwMetaData::WflwState> state; ///< before; none for what is no workflow
    QStringList notes;
    bool isChanged = false;
    QList<WorkflowUpgradeStep> steps;
    /// What is dropped before the first step; every step works on what is left. Empty for a document that
    /// isn't changed, since nothing of it is lost.
    QList<Loss> lost;
    /// Of a document that is mended on the way, and of one that can't be opened afterwards, as it has cells
    /// of a type that is unknown: its only copy must not be written over.
    Error malformed;
    QByteArray upgraded; ///< the text of the new document; empty when nothing is changed
    Error error;         ///< why there is none
};

/// WflwUpgrader with all that a host tells of an upgrade:
/// \code
///     const WorkflowUpgradeReport report = WorkflowUpgrade::run(document, {.baseUrl = folder});
///     if (report.error)
///         return refuse(report.error);
///     if (report.isChanged && report.lost.isEmpty())
///         write(report.upgraded);
/// \endcode
namespace WorkflowUpgrade {

/// What the first step of an upgrade doesn't get of a document: what a load drops, and what nobody reads of
/// samples that are rows.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<Loss> lossesBefore(const PropertyEditorContent &content);

/// MalformedStructure for what has no tabs, InvalidContent for a version that can't be used, and the error of
/// a step. Blocks as WflwUpgrader does.
[[nodiscard]] ORV_WORKFLOW_EXPORT WorkflowUpgradeReport run(const QJsonObject &document,
                                                            const WorkflowUpgradeOptions &options);

} // namespace WorkflowUpgrade

} // namespace orv
