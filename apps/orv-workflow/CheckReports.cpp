#include "CheckReports.h"

#include "Console.h"
#include "Losses.h"

#include <QStringList>

namespace orv::cli {

namespace {

QJsonValue textOrNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonObject toJson(const LocatedFinding &finding)
{
    return {
        {QStringLiteral("level"), finding.isError() ? QStringLiteral("error") : QStringLiteral("warning")},
        {QStringLiteral("rule"), finding.rule},
        {QStringLiteral("message"), finding.message},
        {QStringLiteral("tab"), textOrNull(finding.tab)},
        {QStringLiteral("column"), textOrNull(finding.column)},
        {QStringLiteral("row"), finding.row ? QJsonValue(*finding.row) : QJsonValue()},
        {QStringLiteral("property"), textOrNull(finding.property)},
        {QStringLiteral("sample"), textOrNull(finding.sample)},
        {QStringLiteral("pointer"), textOrNull(finding.pointer)},
        {QStringLiteral("line"), finding.line ? QJsonValue(qint64(*finding.line)) : QJsonValue()},
        {QStringLiteral("hint"), textOrNull(finding.hint)}};
}

QString counted(qsizetype count, const QString &one)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(one, count == 1 ? QString() : QStringLiteral("s"));
}

QString heading(const CheckAnswer &answer)
{
    const QString verdict = answer.report->isValid ? styled(QStringLiteral("valid"), Style::Good)
                                                   : styled(QStringLiteral("not valid"), Style::Bad);
    QString text = styled(withoutControls(answer.file), Style::Heading) + QLatin1String(": ") + verdict;
    if (!answer.report->errors.isEmpty())
        text += QLatin1String(", ") + counted(answer.report->errors.size(), QStringLiteral("error"));
    if (!answer.report->warnings.isEmpty())
        text += QLatin1String(", ") + counted(answer.report->warnings.size(), QStringLiteral("warning"));
    return text + QLatin1Char('\n');
}

/// Place and line, which are cut off nowhere: a script's author searches for them.
QString placeAndLine(const LocatedFinding &finding)
{
    const QString place = placeText(finding);
    if (!finding.line)
        return place.isEmpty() ? QStringLiteral("workflow") : place;
    return QStringLiteral("%1 (line %2)").arg(place).arg(*finding.line);
}

QString findingLines(const LocatedFinding &finding, qsizetype placeWidth)
{
    constexpr int kLevelWidth = 7;
    const QString indent(2 + kLevelWidth + 2 + placeWidth + 2, QLatin1Char(' '));
    const QString level =
        (finding.isError() ? QStringLiteral("error") : QStringLiteral("warning")).leftJustified(kLevelWidth);
    QStringList lines;
    for (const QString &line : finding.message.trimmed().split(QLatin1Char('\n')))
        lines.append(withoutControls(line));
    if (!finding.hint.isEmpty())
        lines.append(styled(withoutControls(finding.hint), Style::Faint));
    return QLatin1String("  ") + styled(level, finding.isError() ? Style::Bad : Style::Caution) +
           QLatin1String("  ") + withoutControls(placeAndLine(finding)).leftJustified(placeWidth) +
           QLatin1String("  ") + lines.join(QLatin1Char('\n') + indent) + QLatin1Char('\n');
}

} // namespace

QString placeText(const LocatedFinding &finding)
{
    QStringList parts;
    for (const QString &part : {finding.tab, finding.column}) {
        if (!part.isEmpty())
            parts.append(part);
    }
    if (finding.row)
        parts.append(QStringLiteral("row %1").arg(*finding.row));
    for (const QString &part : {finding.property, finding.sample}) {
        if (!part.isEmpty())
            parts.append(part);
    }
    return parts.join(QLatin1String(" / "));
}

QJsonObject checkReportJson(const CheckAnswer &answer)
{
    QJsonArray findings;
    for (const LocatedFinding &finding : answer.findings())
        findings.append(toJson(finding));
    const PropertyEditor::WorkflowCheckReport report =
        answer.report.value_or(PropertyEditor::WorkflowCheckReport());
    return {{QStringLiteral("file"), answer.file},
            {QStringLiteral("valid"), answer.report ? QJsonValue(report.isValid) : QJsonValue()},
            {QStringLiteral("checkedVersion"), textOrNull(report.checkedVersion.toString())},
            {QStringLiteral("errors"), QJsonArray::fromStringList(report.errors)},
            {QStringLiteral("warnings"), QJsonArray::fromStringList(report.warnings)},
            {QStringLiteral("findings"), findings},
            {QStringLiteral("lost"), orv::cli::toJson(report.lost)},
            {QStringLiteral("error"), errorJson(answer.failure)}};
}

QString checkReportText(const CheckAnswer &answer)
{
    if (!answer.report)
        return {};
    QString text = heading(answer);
    if (answer.report->checkedVersion != answer.report->version) {
        text += QStringLiteral("  checked as it is after its upgrade from %1 to %2\n")
                    .arg(answer.report->version.toString(), answer.report->checkedVersion.toString());
    }
    const QList<LocatedFinding> findings = answer.findings();
    qsizetype placeWidth = 0;
    for (const LocatedFinding &finding : findings)
        placeWidth = std::max(placeWidth, placeAndLine(finding).size());
    for (const LocatedFinding &finding : findings)
        text += findingLines(finding, placeWidth);
    return text;
}

} // namespace orv::cli
