#include "CheckReports.h"

#include <orv/propertyeditor/Version.h>

#include <QUrl>

namespace orv::cli {

namespace {

QJsonObject textMember(const QString &text)
{
    return {{QStringLiteral("text"), text}};
}

/// The file as a reference of RFC 3986: a relative path stays relative, so that reviews find it in their
/// tree.
QString uriOf(const QString &argument)
{
    const QString file = workflowFileOf(argument);
    if (file.startsWith(QLatin1Char('/')))
        return QString::fromLatin1(QUrl::fromLocalFile(file).toEncoded());
    return QString::fromLatin1(QUrl::toPercentEncoding(file, "/"));
}

QJsonObject locationOf(const QString &file, const LocatedFinding *finding)
{
    QJsonObject physical{
        {QStringLiteral("artifactLocation"), QJsonObject{{QStringLiteral("uri"), uriOf(file)}}}};
    if (finding && finding->line) {
        physical.insert(QStringLiteral("region"),
                        QJsonObject{{QStringLiteral("startLine"), qint64(*finding->line)}});
    }
    QJsonObject location{{QStringLiteral("physicalLocation"), physical}};
    if (finding && !placeText(*finding).isEmpty()) {
        QJsonObject logical{{QStringLiteral("fullyQualifiedName"), placeText(*finding)}};
        if (!finding->property.isEmpty())
            logical.insert(QStringLiteral("name"), finding->property);
        if (!finding->pointer.isEmpty())
            logical.insert(QStringLiteral("decoratedName"), finding->pointer);
        location.insert(QStringLiteral("logicalLocations"), QJsonArray{logical});
    }
    return location;
}

QJsonObject resultOf(const QString &file, const LocatedFinding &finding, qsizetype ruleIndex)
{
    QString text = finding.message.trimmed();
    if (!finding.hint.isEmpty())
        text += QLatin1Char('\n') + finding.hint;
    return {
        {QStringLiteral("ruleId"), finding.rule},
        {QStringLiteral("ruleIndex"), ruleIndex},
        {QStringLiteral("level"), finding.isError() ? QStringLiteral("error") : QStringLiteral("warning")},
        {QStringLiteral("message"), textMember(text)},
        {QStringLiteral("locations"), QJsonArray{locationOf(file, &finding)}}};
}

QJsonObject notificationOf(const CheckAnswer &answer)
{
    return {{QStringLiteral("level"), QStringLiteral("error")},
            {QStringLiteral("message"), textMember(answer.failure->message)},
            {QStringLiteral("locations"), QJsonArray{locationOf(answer.file, nullptr)}}};
}

} // namespace

QJsonObject checkReportSarif(const CheckAnswers &answers)
{
    QStringList rules;
    QJsonArray results;
    QJsonArray notifications;
    for (const CheckAnswer &answer : answers) {
        if (answer.failure)
            notifications.append(notificationOf(answer));
        for (const LocatedFinding &finding : answer.findings()) {
            if (!rules.contains(finding.rule))
                rules.append(finding.rule);
            results.append(resultOf(answer.file, finding, rules.indexOf(finding.rule)));
        }
    }
    QJsonArray descriptors;
    for (const QString &rule : std::as_const(rules))
        descriptors.append(QJsonObject{{QStringLiteral("id"), rule}});
    const QJsonObject driver{{QStringLiteral("name"), QStringLiteral("orv-workflow")},
                             {QStringLiteral("version"), libraryVersion()},
                             {QStringLiteral("rules"), descriptors}};
    QJsonObject invocation{{QStringLiteral("executionSuccessful"), notifications.isEmpty()}};
    if (!notifications.isEmpty())
        invocation.insert(QStringLiteral("toolExecutionNotifications"), notifications);
    const QJsonObject run{{QStringLiteral("tool"), QJsonObject{{QStringLiteral("driver"), driver}}},
                          {QStringLiteral("invocations"), QJsonArray{invocation}},
                          {QStringLiteral("results"), results}};
    return {{QStringLiteral("$schema"), QStringLiteral("https://json.schemastore.org/sarif-2.1.0.json")},
            {QStringLiteral("version"), QStringLiteral("2.1.0")},
            {QStringLiteral("runs"), QJsonArray{run}}};
}

} // namespace orv::cli
