#include "Upgrade.h"

#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/workflow/WflwUpgradeObserver.h>
#include <orv/propertyeditor/workflow/WflwUpgrader.h>
#include <orv/propertyeditor/workflow/WorkflowDifferences.h>

#include <algorithm>
#include <array>

namespace orv::cli {

namespace {

using PropertyEditor::Content;
using State = WflwMetaData::WflwState;

/// What a change of such a member of a setting is.
struct MemberRow
{
    QLatin1String suffix;
    UpgradeChange::Kind kind;
};

constexpr std::array kMembers = {
    MemberRow{QLatin1String(" / group"), UpgradeChange::Kind::Moved},
    MemberRow{QLatin1String(" / name"), UpgradeChange::Kind::Renamed},
};
constexpr QLatin1String kPrioritySuffix(" / priority");

/// Settings get their usual priority when they are next written, which nobody needs to review.
bool isUsualPriority(const WorkflowDifference &difference)
{
    return difference.kind == WorkflowDifference::Kind::Added && !difference.property.isEmpty() &&
           difference.path.endsWith(kPrioritySuffix) &&
           difference.right == QJsonValue(int(PropertySetCreator::Priority::High));
}

UpgradeChange changeOf(const WorkflowDifference &difference)
{
    UpgradeChange change{UpgradeChange::Kind::Changed, difference.path, difference.property, difference.left,
                         difference.right};
    if (difference.kind == WorkflowDifference::Kind::Added)
        change.kind = UpgradeChange::Kind::Added;
    if (difference.kind == WorkflowDifference::Kind::Removed)
        change.kind = UpgradeChange::Kind::Removed;
    if (difference.kind != WorkflowDifference::Kind::Changed || difference.property.isEmpty())
        return change;
    for (const MemberRow &member : kMembers) {
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

QList<UpgradeChange> changesOf(QList<WorkflowDifference> differences)
{
    differences.removeIf(isUsualPriority);
    QList<UpgradeChange> changes;
    for (qsizetype i = 0; i < differences.size(); ++i) {
        UpgradeChange change = changeOf(differences.at(i));
        const auto added =
            std::find_if(differences.begin() + i, differences.end(), [&](const WorkflowDifference &other) {
                return isRenaming(differences.at(i), other);
            });
        if (added != differences.end()) {
            change = {UpgradeChange::Kind::Renamed, added->path, added->property, change.property,
                      added->property};
            differences.erase(added);
        }
        changes.append(change);
    }
    return changes;
}

/// Turns what each step did into a list that people can review, as soon as it is told of it.
class Reviewer : public WflwUpgradeObserver
{
public:
    void changed(const WflwUpgradeChange &change) override
    {
        const QList<UpgradeChange> changes =
            changesOf(WorkflowDifferences::between(change.before.document(), change.after.document(), false));
        if (!changes.isEmpty())
            m_steps.append({change.version, changes});
    }
    [[nodiscard]] const QList<UpgradeStep> &steps() const { return m_steps; }

private:
    QList<UpgradeStep> m_steps;
};

/// What the first load of the document drops; every step that follows works on what is left.
QList<Loss> lossesOf(const QJsonObject &document)
{
    LossCollector collector;
    Content content;
    content.setLossObserver(&collector);
    // A document that can't be loaded fails in the upgrade, where the error belongs.
    const Error error =
        content.assignFromJson(document, PropertyEditor::ValidationOption::SkipTypeValidation);
    content.setLossObserver(nullptr);
    return error.hasError() ? QList<Loss>() : collector.losses();
}

Failure refusal(const QStringList &reasons)
{
    return {Negative, 0, reasons.join(QLatin1Char(' '))};
}

void upgrade(PropertyEditorContent &content, const UpgradeOptions &options, UpgradeAnswer *answer)
{
    Reviewer reviewer;
    QList<QString> notes;
    const Error error = WflwUpgrader::upgradeWorkflow(answer->from, &content, &notes,
                                                      {.accessSampleData = options.accessSampleData,
                                                       .observer = &reviewer,
                                                       .baseUrl = folderUrlOf(answer->file)});
    if (error) {
        answer->failure = failureFrom(error, Negative);
        return;
    }
    answer->notes = notes;
    answer->steps = reviewer.steps();
    answer->to = WflwMetaData::versionNumberFromMetaDataObject(content.metadata());
    // A document of a later minor version comes back as it was.
    answer->isChanged = answer->to != answer->from;
    if (!answer->isChanged)
        return;
    content.setCustomUser(options.user);
    answer->upgraded = content.toJson();
}

} // namespace

UpgradeAnswer upgradeWorkflow(const BatchInput &input, const UpgradeOptions &options)
{
    UpgradeAnswer answer;
    answer.file = input.file;
    answer.failure = input.failure;
    if (answer.failure)
        return answer;
    const Outcome<FileText> read = readText(input.file);
    if (read.hasFailed()) {
        answer.failure = read.failure();
        return answer;
    }
    const auto &[bytes, document] = *read;
    answer.original = bytes;
    answer.upgraded = bytes;
    PropertyEditorContent content(document);
    if (content.tabsAndContent().isEmpty()) {
        answer.failure = Failure{BadInput, int(ErrorCode::MalformedStructure),
                                 QStringLiteral("The document has no tabs, so it is no workflow.")};
        return answer;
    }
    answer.from = WflwMetaData::versionNumberFromMetaDataObject(content.metadata());
    answer.to = answer.from;
    QStringList reasons;
    answer.state = WflwMetaData::checkWorkflowVersion(answer.from, &content, &reasons);
    if (answer.state == State::NotSupported) {
        answer.failure = refusal(reasons);
        return answer;
    }
    if (answer.from == WflwMetaData::currentWorkflowVersion())
        return answer;
    answer.lost = lossesOf(document);
    upgrade(content, options, &answer);
    return answer;
}

} // namespace orv::cli
