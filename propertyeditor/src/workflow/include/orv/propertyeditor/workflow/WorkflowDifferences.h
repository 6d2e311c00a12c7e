#pragma once

#include <orv/core/Export.h>

#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QSet>
#include <QString>

#include <atomic>
#include <optional>

namespace orv {

/// One thing in which two documents differ, told by the names that people know it by.
struct ORV_WORKFLOW_EXPORT WorkflowDifference
{
    enum class Kind
    {
        Added,   ///< only the right document has it
        Removed, ///< only the left document has it
        Changed,
    };

    Kind kind = Kind::Changed;
    QString path;   ///< names from the tab down, joined by " / "; those below a setting follow its own
    QString tab;    ///< empty for what belongs to the document
    QString column; ///< empty for what belongs to the tab
    std::optional<qsizetype> row; ///< of the cell in its column, counted from 0
    QString property;             ///< the current name of a setting; empty for what belongs to the cell
    QJsonValue left;              ///< undefined for what was added
    QJsonValue right;             ///< undefined for what was removed
    QString below;                ///< the path below the innermost of tab, column, row and property
    static constexpr qsizetype kAlone = -1;
    /// Differences of one number here make sense only together, such as the rows that a table has beyond
    /// those of the other; kAlone for what makes sense alone.
    qsizetype together = kAlone;
    QStringList columns = {}; ///< of the table in which left or right are rows; empty for anything else
};

/// Tells in words of the format what PropertyEditorJsonUtils::compareWorkflows decides. Work that somebody
/// cancels on another thread, by the flag that it is given, ends soon; what it gives then means nothing.
namespace WorkflowDifferences {

/// Where \a left and \a right differ, in the order of \a left, what was added behind it; empty exactly if
/// compareWorkflows with the same \a strict calls them equal. Tabs, columns, settings and the columns of
/// tables are matched by name, those of one name in their order; settings by the property that their name
/// means; cells and rows of tables by number. What only stands in another order is one difference ("order of
/// columns"). Takes time linear in the size of the documents, malformed ones too. Safe on any thread.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<WorkflowDifference>
between(const QJsonObject &left, const QJsonObject &right, bool strict,
        const std::atomic_bool *isCancelled = nullptr);

/// \a left with some of these differences as they are in \a right. \a chosen are their numbers in the list
/// that between() gives, and stand for all that belong together with them. With none chosen it is \a left,
/// with all of them between() finds no difference to \a right, and with some it finds the others. Stamps are
/// those of \a left unless they are compared; what is added comes without. Takes linear time. Safe on any
/// thread.
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject takenOver(const QJsonObject &left, const QJsonObject &right,
                                                        const QSet<qsizetype> &chosen, bool strict,
                                                        const std::atomic_bool *isCancelled = nullptr);

/// Whether a value is one thing of several members, such as a number with its unit: half of it is another
/// value, so it is taken over and told as a whole.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isOneThing(const QJsonValue &value);

/// The names that differences tell tabs and columns by: those that have none or the same are made different.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList labels(const QStringList &names);

} // namespace WorkflowDifferences

} // namespace orv
