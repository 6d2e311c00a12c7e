#include "UpgradeReports.h"

#include "Console.h"
#include "Losses.h"
#include "ValueText.h"

#include <QJsonArray>

#include <array>

namespace orv::cli {

namespace {

struct ChangeKindRow
{
    const char *name;
    Style style;
};

// By the number of the kind.
constexpr std::array kChangeKinds = {
    ChangeKindRow{"added", Style::Good},      ChangeKindRow{"removed", Style::Bad},
    ChangeKindRow{"renamed", Style::Caution}, ChangeKindRow{"moved", Style::Caution},
    ChangeKindRow{"changed", Style::Caution},
};

// By the number of the state.
constexpr std::array kStates = {"UpToDate", "NeedsUpgrade", "NotSupported"};

const ChangeKindRow &rowOf(WorkflowUpgradeChange::Kind kind)
{
    return kChangeKinds.at(size_t(kind));
}

QJsonObject toJson(const WorkflowUpgradeChange &change)
{
    return {{QStringLiteral("path"), change.path},
            {QStringLiteral("property"), orNull(change.property)},
            {QStringLiteral("kind"), QLatin1String(rowOf(change.kind).name)},
            {QStringLiteral("from"), orNull(change.from)},
            {QStringLiteral("to"), orNull(change.to)}};
}

QJsonObject toJson(const WorkflowUpgradeStep &step)
{
    QJsonArray changes;
    for (const WorkflowUpgradeChange &change : step.changes)
        changes.append(toJson(change));
    return {{QStringLiteral("version"), step.version.toString()}, {QStringLiteral("changes"), changes}};
}

QString lineOf(const WorkflowUpgradeChange &change)
{
    QStringList values;
    for (const QJsonValue &value : {change.from, change.to}) {
        if (!value.isUndefined())
            values.append(oneLine(value));
    }
    const ChangeKindRow &row = rowOf(change.kind);
    return QLatin1String("    ") + styled(QLatin1String(row.name).toString().leftJustified(8), row.style) +
           withoutControls(change.path + QLatin1String(": ") + values.join(QLatin1String(" -> "))) +
           QLatin1Char('\n');
}

QString headline(const UpgradeAnswer &answer, const WrittenDocument &written)
{
    QString text = styled(withoutControls(answer.file), Style::Heading) + QLatin1String(": ");
    if (answer.failure)
        return text + styled(QStringLiteral("not upgraded"), Style::Bad);
    text += answer.isChanged ? QStringLiteral("%1 -> %2").arg(answer.from.toString(), answer.to.toString())
                             : QStringLiteral("%1, needs no upgrade").arg(answer.from.toString());
    if (!written.output.isEmpty())
        text += withoutControls(QStringLiteral(", written to %1").arg(written.output));
    if (!written.backup.isEmpty())
        text += withoutControls(QStringLiteral(", as it was in %1").arg(written.backup));
    return text;
}

} // namespace

std::optional<Failure> faultOf(const UpgradeAnswer &answer)
{
    if (!answer.isChanged || !answer.malformed)
        return {};
    return failureFrom(answer.malformed, Negative);
}

QJsonObject upgradeReportJson(const UpgradeAnswer &answer, const WrittenDocument &written)
{
    QJsonArray steps;
    for (const WorkflowUpgradeStep &step : answer.steps)
        steps.append(toJson(step));
    return {{QStringLiteral("file"), answer.file},
            {QStringLiteral("output"), orNull(written.output)},
            {QStringLiteral("backup"), orNull(written.backup)},
            {QStringLiteral("from"), answer.state ? QJsonValue(answer.from.toString()) : QJsonValue()},
            {QStringLiteral("to"), answer.state ? QJsonValue(answer.to.toString()) : QJsonValue()},
            {QStringLiteral("state"),
             answer.state ? QJsonValue(QLatin1String(kStates.at(size_t(*answer.state)))) : QJsonValue()},
            {QStringLiteral("notes"), QJsonArray::fromStringList(answer.notes)},
            {QStringLiteral("changed"), answer.isChanged},
            {QStringLiteral("steps"), steps},
            {QStringLiteral("lost"), orv::cli::toJson(answer.lost)},
            {QStringLiteral("fault"), errorJson(faultOf(answer))},
            {QStringLiteral("error"),
             answer.failure ? QJsonValue(orv::cli::toJson(*answer.failure)) : QJsonValue()}};
}

QString upgradeReportText(const UpgradeAnswer &answer, const WrittenDocument &written)
{
    QString text = headline(answer, written) + QLatin1Char('\n');
    for (const WorkflowUpgradeStep &step : answer.steps) {
        text += QStringLiteral("  %1\n").arg(step.version.toString());
        for (const WorkflowUpgradeChange &change : step.changes)
            text += lineOf(change);
    }
    if (const std::optional<Failure> fault = faultOf(answer); fault && !answer.failure)
        text += withoutControls(QStringLiteral("  fault: %1").arg(fault->message)) + QLatin1Char('\n');
    for (const QString &note : answer.notes)
        text += withoutControls(QStringLiteral("  note: %1").arg(note)) + QLatin1Char('\n');
    return text;
}

} // namespace orv::cli
