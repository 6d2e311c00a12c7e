#include "orv/propertyeditor/workflow/WorkflowUpgradeReview.h"

#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/workflow/WorkflowDifferences.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <array>
#include <map>
#include <tuple>

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
constexpr QLatin1String kPathSeparator(" / ");
constexpr QLatin1String kPrioritySuffix(" / priority");

/// Settings get their usual priority when they are next written, which nobody needs to review.
bool isUsualPriority(const WorkflowDifference &difference)
{
    return difference.kind == WorkflowDifference::Kind::Added && !difference.property.isEmpty() &&
           difference.path.endsWith(kPrioritySuffix) &&
           difference.right == QJsonValue(int(PropertySetCreator::Priority::High));
}

/// Old documents name servers with users and passwords, which nobody reviews.
QJsonValue withoutCredentials(const QJsonValue &value)
{
    if (value.isString())
        return ResourceReferenceUtils::withoutCredentials(value.toString());
    if (!value.isArray() && !value.isObject())
        return value;
    // As a text, so that keys and values of any depth are cleaned alike.
    const QJsonDocument document =
        value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    const QString text = QString::fromUtf8(document.toJson(QJsonDocument::Compact));
    const QString clean = ResourceReferenceUtils::withoutCredentials(text);
    if (clean == text)
        return value;
    const QJsonDocument shown = QJsonDocument::fromJson(clean.toUtf8());
    return value.isArray() ? QJsonValue(shown.array()) : QJsonValue(shown.object());
}

WorkflowUpgradeChange changeOf(const WorkflowDifference &difference)
{
    const auto clean = &ResourceReferenceUtils::withoutCredentials;
    WorkflowUpgradeChange change{WorkflowUpgradeChange::Kind::Changed,
                                 clean(difference.path),
                                 difference.property,
                                 withoutCredentials(difference.left),
                                 withoutCredentials(difference.right),
                                 difference.tab,
                                 difference.column,
                                 difference.row,
                                 clean(difference.below),
                                 difference.columns};
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
        change.below.chop(std::min(change.below.size(), member.suffix.size()));
    }
    return change;
}

/// A setting as a whole, of one cell.
using SettingPlace = std::tuple<QString, QString, std::optional<qsizetype>, QString>;

SettingPlace settingPlace(const WorkflowDifference &difference, const QString &property)
{
    return {difference.tab, difference.column, difference.row, property};
}

bool isWholeSetting(const WorkflowDifference &difference, WorkflowDifference::Kind kind)
{
    return difference.kind == kind && !difference.property.isEmpty() &&
           difference.path.endsWith(kPathSeparator + difference.property);
}

/// The settings that a step removed and added, by those that it says are the same: for each number of what
/// was removed that of what was added.
QHash<qsizetype, qsizetype> renamingsAmong(const QList<WorkflowDifference> &differences,
                                           const QList<WflwUpgradeRenaming> &renamed)
{
    QHash<qsizetype, qsizetype> found;
    if (renamed.isEmpty())
        return found;
    std::map<SettingPlace, qsizetype> added;
    for (qsizetype i = 0; i < differences.size(); ++i) {
        if (isWholeSetting(differences.at(i), WorkflowDifference::Kind::Added))
            added.insert({settingPlace(differences.at(i), differences.at(i).property), i});
    }
    for (qsizetype i = 0; i < differences.size(); ++i) {
        const WorkflowDifference &removed = differences.at(i);
        const auto renaming = std::ranges::find(renamed, removed.property, &WflwUpgradeRenaming::from);
        if (renaming == renamed.end() || !isWholeSetting(removed, WorkflowDifference::Kind::Removed))
            continue;
        if (const auto other = added.find(settingPlace(removed, renaming->to)); other != added.end())
            found.insert(i, other->second);
    }
    return found;
}

WorkflowUpgradeChange renaming(const WorkflowDifference &removed, const WorkflowDifference &added)
{
    return {WorkflowUpgradeChange::Kind::Renamed,
            added.path,
            added.property,
            removed.property,
            added.property,
            added.tab,
            added.column,
            added.row,
            added.below};
}

QList<WorkflowUpgradeChange> changesOf(QList<WorkflowDifference> differences,
                                       const QList<WflwUpgradeRenaming> &renamed)
{
    differences.removeIf(isUsualPriority);
    const QHash<qsizetype, qsizetype> renamings = renamingsAmong(differences, renamed);
    const QSet<qsizetype> toldAlready(renamings.begin(), renamings.end());
    QList<WorkflowUpgradeChange> changes;
    for (qsizetype i = 0; i < differences.size(); ++i) {
        const auto other = renamings.constFind(i);
        if (other != renamings.cend())
            changes.append(renaming(differences.at(i), differences.at(*other)));
        else if (!toldAlready.contains(i))
            changes.append(changeOf(differences.at(i)));
    }
    return changes;
}

} // namespace

WorkflowUpgradeReview::~WorkflowUpgradeReview() = default;

void WorkflowUpgradeReview::changed(const WflwUpgradeChange &change)
{
    const QList<WorkflowUpgradeChange> changes =
        changesOf(WorkflowDifferences::between(change.before.document(), change.after.document(), false),
                  change.renamed);
    if (!changes.isEmpty())
        m_steps.append({change.version, changes});
}

} // namespace orv
