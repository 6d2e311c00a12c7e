#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/workflow/WflwUpgradeObserver.h>

#include <QJsonValue>
#include <QList>
#include <QString>
#include <QVersionNumber>

#include <optional>

namespace orv {

/// One thing that a step of an upgrade did.
struct ORV_WORKFLOW_EXPORT WorkflowUpgradeChange
{
    enum class Kind
    {
        Added,
        Removed,
        Renamed, ///< the step gave the setting another name; `from` and `to` are the names
        Moved,   ///< the setting has another group
        Changed,
    };

    Kind kind = Kind::Changed;
    QString path; ///< as in WorkflowDifference
    QString property;
    QJsonValue from; ///< undefined for what was added
    QJsonValue to;   ///< undefined for what was removed
    // The parts of the path, as in WorkflowDifference.
    QString tab;
    QString column;
    std::optional<qsizetype> row;
    QString below;
    QStringList columns = {};
};

struct ORV_WORKFLOW_EXPORT WorkflowUpgradeStep
{
    QVersionNumber version;
    QList<WorkflowUpgradeChange> changes;
};

/// Turns what each step did into a list that people can review, as soon as it is told of it. What nobody
/// needs to review, such as stamps and usual priorities, is left out, and so are steps that did nothing else.
class ORV_WORKFLOW_EXPORT WorkflowUpgradeReview : public WflwUpgradeObserver
{
public:
    ~WorkflowUpgradeReview() override;

    void changed(const WflwUpgradeChange &change) override;
    [[nodiscard]] const QList<WorkflowUpgradeStep> &steps() const { return m_steps; }

private:
    QList<WorkflowUpgradeStep> m_steps;
};

} // namespace orv
