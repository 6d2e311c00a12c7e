#include "orv/propertyeditor/workflow/WorkflowUpgradeReview.h"

#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/workflow/WorkflowDifferences.h>

#include <algorithm>
#include <array>

namespace orv {

namespace {

/// What a change of such a member of a setting is.
struct ChangedMember
{
    QLatin1String suffix;
    WorkflowUpgradeChange::Kind kind;
};

constexpr std::array kChangedMembers = {
    ChangedMember{QLatin1String(" / group"), WorkflowUpgradeChange::Kind::Moved},
    ChangedMember{QLatin1String(" / name"), WorkflowUpgradeChange::Kind::Renamed},
};
constexpr QLatin1String kPrioritySuffix(" / priority");

/// Settings get their usual priority when they are next written, which nobody needs to review.
bool isUsualPriority(const WorkflowDifference &difference)
{
    return difference.kind == WorkflowDifference::Kind::Added && !difference.property.isEmpty() &&
           difference.path.endsWith(kPrioritySuffix) &&
           difference.right == QJsonValue(int(PropertySetCreator::Priority::High));
}

WorkflowUpgradeChange changeOf(const WorkflowDifference &difference)
{
    WorkflowUpgradeChange change{WorkflowUpgradeChange::Kind::Changed, difference.path, difference.property,
                                 difference.left, difference.right};
    if (difference.kind == WorkflowDifference::Kind::Added)
        change.kind = WorkflowUpgradeChange::Kind::Added;
    if (difference.kind == WorkflowDifference::Kind::Removed)
        change.kind = WorkflowUpgradeChange::Kind::Removed;
    if (difference.kind != WorkflowDifference::Kind::Changed || difference.property.isEmpty())
        return change;
    for (const ChangedMember &member : kChangedMembers) {
        if (!change.path.endsWith(member.suffix))
            continue;
        change.kind = member.kind;
        change.path.chop(member.suffix.size());
    }
    return change;
}

/// A switch that is on, "true" and 1 say the same.
QJsonValue plainValue(const QJsonValue &value)
{
    if (value.isBool())
        return int(value.toBool());
    if (value.toString() == QLatin1String("true"))
        return 1;
    return value.toString() == QLatin1String("false") ? QJsonValue(0) : value;
}

/// Whether \a removed lives on as \a added: the same value in the same cell, as a setting or a number.
bool isRenaming(const WorkflowDifference &removed, const WorkflowDifference &added)
{
    return removed.kind == WorkflowDifference::Kind::Removed &&
           added.kind == WorkflowDifference::Kind::Added && !removed.property.isEmpty() &&
           !added.property.isEmpty() && removed.tab == added.tab && removed.column == added.column &&
           removed.row == added.row && plainValue(removed.left).isDouble() &&
           plainValue(removed.left) == plainValue(added.right);
}

QList<WorkflowUpgradeChange> changesOf(QList<WorkflowDifference> differences)
{
    differences.removeIf(isUsualPriority);
    QList<WorkflowUpgradeChange> changes;
    for (qsizetype i = 0; i < differences.size(); ++i) {
        WorkflowUpgradeChange change = changeOf(differences.at(i));
        const auto added =
            std::find_if(differences.begin() + i, differences.end(), [&](const WorkflowDifference &other) {
                return isRenaming(differences.at(i), other);
            });
        if (added != differences.end()) {
            change = {WorkflowUpgradeChange::Kind::Renamed, added->path, added->property, change.property,
                      added->property};
            differences.erase(added);
        }
        changes.append(change);
    }
    return changes;
}

} // namespace

WorkflowUpgradeReview::~WorkflowUpgradeReview() = default;

void WorkflowUpgradeReview::changed(const WflwUpgradeChange &change)
{
    const QList<WorkflowUpgradeChange> changes =
        changesOf(WorkflowDifferences::between(change.before.document(), change.after.document(), false));
    if (!changes.isEmpty())
        m_steps.append({change.version, changes});
}

} // namespace orv
