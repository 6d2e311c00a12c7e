#include "CheckReports.h"
#include "Console.h"

#include <QXmlStreamWriter>

namespace orv::cli {

namespace {

/// XML has no form for most control characters; ends of lines may stay.
QString printable(const QString &text)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString &line : lines)
        line = withoutControls(line);
    return lines.join(QLatin1Char('\n'));
}

QString validatorOf(const LocatedFinding &finding)
{
    return finding.rule.section(QLatin1Char('/'), 0, 0);
}

QString textOf(const LocatedFinding &finding)
{
    QString text = finding.message.trimmed();
    if (const QString place = placeText(finding); !place.isEmpty())
        text += QLatin1Char('\n') + place;
    if (finding.line)
        text += QStringLiteral(" (line %1)").arg(*finding.line);
    if (!finding.hint.isEmpty())
        text += QLatin1Char('\n') + finding.hint;
    return printable(text);
}

QStringList textsOf(const QList<LocatedFinding> &findings, bool areErrors)
{
    QStringList texts;
    for (const LocatedFinding &finding : findings) {
        if (finding.isError() == areErrors)
            texts.append(textOf(finding));
    }
    return texts;
}

void writeCase(QXmlStreamWriter *xml, const QString &file, const QString &validator,
               const QList<LocatedFinding> &findings)
{
    xml->writeStartElement(QStringLiteral("testcase"));
    xml->writeAttribute(QStringLiteral("classname"), printable(file));
    xml->writeAttribute(QStringLiteral("name"), validator);
    if (const QStringList errors = textsOf(findings, true); !errors.isEmpty()) {
        xml->writeStartElement(QStringLiteral("failure"));
        xml->writeAttribute(QStringLiteral("message"), errors.constFirst().section(QLatin1Char('\n'), 0, 0));
        xml->writeAttribute(QStringLiteral("type"), QStringLiteral("error"));
        xml->writeCharacters(errors.join(QLatin1String("\n\n")));
        xml->writeEndElement();
    }
    if (const QStringList warnings = textsOf(findings, false); !warnings.isEmpty())
        xml->writeTextElement(QStringLiteral("system-out"), warnings.join(QLatin1String("\n\n")));
    xml->writeEndElement();
}

void writeUnreadable(QXmlStreamWriter *xml, const CheckAnswer &answer)
{
    xml->writeStartElement(QStringLiteral("testcase"));
    xml->writeAttribute(QStringLiteral("classname"), printable(answer.file));
    xml->writeAttribute(QStringLiteral("name"), QStringLiteral("read"));
    xml->writeStartElement(QStringLiteral("error"));
    xml->writeAttribute(QStringLiteral("message"), printable(answer.failure->message));
    xml->writeEndElement();
    xml->writeEndElement();
}

/// The names of the cases: all that ran, and what else was found.
QStringList casesOf(const CheckAnswer &answer, QStringList validators)
{
    for (const LocatedFinding &finding : answer.findings()) {
        if (!validators.contains(validatorOf(finding)))
            validators.append(validatorOf(finding));
    }
    return validators;
}

void writeSuite(QXmlStreamWriter *xml, const CheckAnswer &answer, const QStringList &validators)
{
    QHash<QString, QList<LocatedFinding>> findings;
    QSet<QString> failed;
    for (const LocatedFinding &finding : answer.findings()) {
        findings[validatorOf(finding)].append(finding);
        if (finding.isError())
            failed.insert(validatorOf(finding));
    }
    const QStringList cases =
        answer.failure ? QStringList{QStringLiteral("read")} : casesOf(answer, validators);
    xml->writeStartElement(QStringLiteral("testsuite"));
    xml->writeAttribute(QStringLiteral("name"), printable(answer.file));
    xml->writeAttribute(QStringLiteral("tests"), QString::number(cases.size()));
    xml->writeAttribute(QStringLiteral("failures"), QString::number(failed.size()));
    xml->writeAttribute(QStringLiteral("errors"), QString::number(answer.failure ? 1 : 0));
    if (answer.failure) {
        writeUnreadable(xml, answer);
    } else {
        for (const QString &name : cases)
            writeCase(xml, answer.file, name, findings.value(name));
    }
    xml->writeEndElement();
}

} // namespace

QByteArray checkReportJunit(const CheckAnswers &answers, const QStringList &validators)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("testsuites"));
    for (const CheckAnswer &answer : answers)
        writeSuite(&xml, answer, validators);
    xml.writeEndElement();
    xml.writeEndDocument();
    return bytes;
}

} // namespace orv::cli
