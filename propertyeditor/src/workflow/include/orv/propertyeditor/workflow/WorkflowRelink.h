#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

namespace orv {

/// What references begin with now, and what they are to begin with.
struct ORV_WORKFLOW_EXPORT WorkflowRelinkRule
{
    QString from;
    QString to;
};

/// A reference that got a new text.
struct ORV_WORKFLOW_EXPORT WorkflowRelinkedReference
{
    QString path;    ///< names from the tab down, joined by " / "
    QString pointer; ///< JSON pointer into the document
    QString from;
    QString to;
    std::optional<bool> exists; ///< what the new text names; unset where that can't be found out
};

/// A reference that kept its text, and that names nothing or something that can't be found out.
struct ORV_WORKFLOW_EXPORT WorkflowLeftReference
{
    QString path;
    QString pointer;
    QString text;
    std::optional<bool> exists; ///< never true
};

struct ORV_WORKFLOW_EXPORT WorkflowRelinkReport
{
    QJsonObject document; ///< with the new texts
    QList<WorkflowRelinkedReference> relinked;
    QList<WorkflowLeftReference> left;
};

/// Lets a workflow refer to files that have moved:
/// \code
///     const auto report = WorkflowRelink::run(document, {{u"D:\\data"_s, u"/mnt/data"_s}}, folderUrl);
///     // "D:\data\lot1\a.raw" is "/mnt/data/lot1/a.raw", "D:\database.fasta" is as it was.
/// \endcode
namespace WorkflowRelink {

/// \a document of any version with each reference whose text begins with a rule's `from` beginning with its
/// `to`: of samples and their companions in all forms, of settings, sequence databases, glycan databases and
/// expert settings, and of other settings whose text is a path where `from` is an absolute one. Whole names
/// of a path count, "/" and "\\" alike, case but for the letter of a drive; the longest rule wins, and none
/// is applied to what another one gave. What stands behind is separated as `to` is. Everything else stays as
/// it is.
///
/// \a baseUrl is the workflow's folder, with a slash at its end, from which relative files are looked for.
/// Each resource is asked for once, on this thread. Fails with InvalidContent for a rule without a text.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<WorkflowRelinkReport>
run(const QJsonObject &document, const QList<WorkflowRelinkRule> &rules, const QUrl &baseUrl);

} // namespace WorkflowRelink

} // namespace orv
