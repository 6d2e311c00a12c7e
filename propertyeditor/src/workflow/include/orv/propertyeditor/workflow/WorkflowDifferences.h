#pragma once

#include <orv/core/Export.h>

#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>

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
};

/// Tells in words of the format what PropertyEditorJsonUtils::compareWorkflows decides.
namespace WorkflowDifferences {

/// Where \a left and \a right differ, in the order of \a left, what was added behind it; empty exactly if
/// compareWorkflows with the same \a strict calls them equal. Tabs, columns, settings and the columns of
/// tables are matched by name, those of one name in their order; settings by the property that their name
/// means; cells and rows of tables by number. What only stands in another order is one difference ("order of
/// columns"). Takes time linear in the size of the documents, malformed ones too. Safe on any thread.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<WorkflowDifference> between(const QJsonObject &left,
                                                                    const QJsonObject &right, bool strict);

} // namespace WorkflowDifferences

} // namespace orv
