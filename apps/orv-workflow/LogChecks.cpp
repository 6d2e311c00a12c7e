#include "LogChecks.h"

#include "FileIdentity.h"
#include "Inputs.h"
#include "LogOutput.h"
#include "ReferredFiles.h"

#include <orv/core/FileUtils.h>

#include <QFileInfo>

#include <algorithm>

namespace orv::cli {

namespace {

bool holdsLogLines(const QString &file)
{
    constexpr qint64 kBeginning = qint64(64) * 1024;
    const Result<QByteArray> bytes = FileUtils::readBeginning(file, kBeginning);
    if (bytes.hasError())
        return false;
    const QList<QByteArray> lines = bytes->split('\n');
    return bytes->isEmpty() || std::ranges::any_of(lines, &isLogLine);
}

QStringList workflowsIn(const QList<Argument> &arguments)
{
    QStringList workflows;
    for (const Argument &argument : arguments) {
        if (argument.traits.kind != ValueKind::Workflow)
            continue;
        if (QString *const *text = std::get_if<QString *>(&argument.target))
            workflows.append(**text);
        else if (QStringList *const *texts = std::get_if<QStringList *>(&argument.target))
            workflows += **texts;
    }
    return workflows;
}

Failure refusal(const QString &reason)
{
    return {WrongUsage, 0,
            QStringLiteral("The log would be written into it, and it %1. Nothing was written; name another "
                           "file with --log.")
                .arg(reason)};
}

std::optional<Failure> refusedFor(const QString &workflow, const QString &log)
{
    if (isStream(workflow))
        return refusal(QStringLiteral("is no log; what comes from a stream may refer to it"));
    if (isSameFile(workflowFileOf(workflow), log))
        return refusal(QStringLiteral("is an input of this call"));
    // What can't be read is told where it is needed.
    const Outcome<QJsonObject> document = readDocument(workflow);
    if (document.hasFailed() || !refuseReferred(*document, workflow, {log}).hasFailed())
        return {};
    return refusal(QStringLiteral("is a file to which \"%1\" refers").arg(workflow));
}

} // namespace

std::optional<PathRefusal> refusedLog(const QString &log, const QList<Argument> &arguments)
{
    if (log.isEmpty() || !QFileInfo(log).isFile() || holdsLogLines(log))
        return {};
    for (const BatchInput &input : batchInputs(workflowsIn(arguments))) {
        if (input.failure)
            continue;
        if (const std::optional<Failure> refused = refusedFor(input.file, log))
            return PathRefusal{log, *refused};
    }
    return {};
}

} // namespace orv::cli
