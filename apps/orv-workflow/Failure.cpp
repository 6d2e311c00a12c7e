#include "Failure.h"

#include "Console.h"

#include <QStringList>

#include <cstdio>

namespace orv::cli {

namespace {

QString messageInOneLine(const QString &text)
{
    return text.simplified();
}

/// Messages and details are sentences or parts of one; joined, each ends.
QString asSentence(const QString &text)
{
    static const QString ends = QStringLiteral(".:!?");
    return text.isEmpty() || ends.contains(text.back()) ? text : text + QLatin1Char('.');
}

} // namespace

Failure failureFrom(const Error &error, ExitCode exitCode)
{
    QStringList parts = error.errorMessages();
    parts.removeAll(QString());
    if (parts.isEmpty())
        parts.append(QStringLiteral("The structure of the document is broken."));
    parts += error.details();
    for (QString &part : parts)
        part = asSentence(part);
    return {exitCode, int(error.code()), messageInOneLine(parts.join(QLatin1Char(' ')))};
}

QJsonObject toJson(const Failure &failure)
{
    return {{QStringLiteral("code"), failure.errorCode}, {QStringLiteral("message"), failure.message}};
}

QJsonValue errorJson(const std::optional<Failure> &failure)
{
    return failure ? QJsonValue(toJson(*failure)) : QJsonValue();
}

void printRemark(const QString &file, const QString &text)
{
    const QString line = QStringLiteral("orv-workflow: %1: %2\n")
                             .arg(withoutControls(file), withoutControls(messageInOneLine(text)));
    std::fputs(line.toLocal8Bit().constData(), stderr);
}

void printFailure(const QString &file, const Failure &failure)
{
    printRemark(file, failure.message);
}

} // namespace orv::cli
