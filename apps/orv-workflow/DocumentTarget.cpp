#include "DocumentTarget.h"

#include "FileIdentity.h"
#include "Output.h"
#include "ReferredFiles.h"

#include <orv/core/FileNameUtils.h>
#include <orv/core/FileUtils.h>
#include <orv/core/JsonUtils.h>

#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace orv::cli {

namespace {

/// The path of \a file below the folder that the user named, with the folders in between.
QString pathBelowRoot(const BatchInput &input)
{
    const QString file = workflowFileOf(input.file);
    const QFileInfo info(file);
    return input.root.isEmpty() ? info.fileName()
                                : QDir(input.root).relativeFilePath(info.absoluteFilePath());
}

/// Several documents need a folder; one may go into one.
bool meansFolder(const QString &output, const QStringList &arguments, const QList<BatchInput> &inputs)
{
    return output != kStandardInput &&
           (inputs.size() > 1 || arguments.size() > 1 || !inputs.value(0).root.isEmpty() ||
            output.endsWith(QLatin1Char('/')) || QFileInfo(output).isDir());
}

/// The inputs by the identity of their files.
QHash<QString, QString> identitiesOf(const QList<BatchInput> &inputs)
{
    QHash<QString, QString> files;
    for (const BatchInput &input : inputs) {
        if (!input.failure && !isStream(input.file))
            files.insert(fileIdentity(workflowFileOf(input.file)), input.file);
    }
    return files;
}

DocumentOutputs refusal(const QString &file, const QString &reason)
{
    return {{}, Failure{WrongUsage, 0, reason}, file};
}

Outcome<void> writeWithFolder(const QString &output, const QByteArray &bytes)
{
    if (output != kStandardInput && !QDir().mkpath(QFileInfo(output).absolutePath())) {
        return Failure{BadOutput, int(ErrorCode::CannotOpenFile),
                       QStringLiteral("The folder of the file can't be made.")};
    }
    return writeOutput(output, bytes);
}

/// Keeps \a bytes beside \a file under a name that is free, and reads them back; the name, or why not.
Outcome<QString> keepBackup(const QString &file, const QByteArray &bytes)
{
    const QFileInfo info(file);
    const QString wanted = info.absoluteFilePath() + QLatin1String(".bak");
    QStringList reserved;
    const QString path = FileNameUtils::generateUniqueDestination(wanted, info.absolutePath(), reserved);
    if (const Outcome<void> written = writeOutput(path, bytes); written.hasFailed())
        return written.failure();
    const Result<QByteArray> readBack = FileUtils::readFile(path);
    if (readBack.hasError() || *readBack != bytes) {
        return Failure{BadOutput, int(ErrorCode::CannotOpenFile),
                       QStringLiteral("The backup \"%1\" can't be read back; the document was left as it is.")
                           .arg(path)};
    }
    return path;
}

} // namespace

void DocumentTarget::declare(Arguments &arguments)
{
    arguments.option("-o,--output", &m_output,
                     "Where to write: a file, - for standard output, or a folder for several",
                     {.kind = ValueKind::File, .use = FileUse::WrittenAsTold});
    arguments.flag("--in-place", &m_inPlace, "Write each changed workflow over itself");
    arguments.flag("--dry-run", &m_dryRun, "Tell what would be done, and write nothing");
    arguments.flag("--backup", &m_keepsBackup, "With --in-place, keep each replaced workflow as FILE.bak");
    arguments.flag("--accept-losses", &m_acceptsLosses,
                   "With --in-place, write also what loses something of the workflow");
}

Outcome<void> DocumentTarget::check() const
{
    const int targets = int(!m_output.isEmpty()) + int(m_inPlace) + int(m_dryRun);
    if (targets != 1) {
        return Failure{WrongUsage, 0,
                       QStringLiteral("Say where to write: one of -o OUT, --in-place and --dry-run.")};
    }
    if (m_keepsBackup && !m_inPlace)
        return Failure{WrongUsage, 0, QStringLiteral("The option --backup needs --in-place.")};
    if (m_acceptsLosses && !m_inPlace)
        return Failure{WrongUsage, 0, QStringLiteral("The option --accept-losses needs --in-place.")};
    return {};
}

DocumentTarget::Kind DocumentTarget::kind() const
{
    if (m_inPlace)
        return Kind::InPlace;
    return m_dryRun ? Kind::None : Kind::Output;
}

QString DocumentTarget::outputOf(const BatchInput &input, bool isFolder) const
{
    if (kind() == Kind::InPlace)
        return workflowFileOf(input.file);
    return isFolder ? QDir(m_output).filePath(pathBelowRoot(input)) : m_output;
}

DocumentOutputs DocumentTarget::outputsOf(const QStringList &arguments, const QList<BatchInput> &inputs) const
{
    DocumentOutputs result;
    const bool isFolder = kind() == Kind::Output && meansFolder(m_output, arguments, inputs);
    const QHash<QString, QString> inputOf = identitiesOf(inputs);
    QHash<QString, QString> writerOf;
    for (const BatchInput &input : inputs) {
        if (input.failure || kind() == Kind::None) {
            result.outputs.append(QString());
            continue;
        }
        if (isStream(input.file) && (kind() == Kind::InPlace || isFolder)) {
            return refusal(input.file, QStringLiteral("Standard input has no name to write under; "
                                                      "name a file with -o."));
        }
        const QString output = outputOf(input, isFolder);
        result.outputs.append(output);
        if (output == kStandardInput)
            continue;
        if (kind() == Kind::InPlace)
            continue; // each input is its own output, and names of one file get a file each
        const QString identity = fileIdentity(output);
        if (inputOf.contains(identity)) {
            return refusal(input.file,
                           QStringLiteral("It would be written over \"%1\", which is an input of this call. "
                                          "Nothing was written; name another output, or use --in-place.")
                               .arg(inputOf.value(identity)));
        }
        if (writerOf.contains(identity)) {
            return refusal(
                input.file,
                QStringLiteral("It would be written to \"%1\", and so would \"%2\". Nothing was written.")
                    .arg(output, writerOf.value(identity)));
        }
        writerOf.insert(identity, input.file);
    }
    return result;
}

Outcome<void> DocumentTarget::checkPlace(const ChangedDocument &document, const QString &output) const
{
    if (!m_inPlace) {
        if (output == kStandardInput || !QFileInfo(output).isFile())
            return {};
        const Result<QJsonObject> source = JsonUtils::objectFromJson(document.original);
        return source ? refuseReferred(*source, document.file, {output}) : Outcome<void>();
    }
    if (document.malformed) {
        Failure failure = failureFrom(document.malformed, Negative);
        failure.message +=
            QStringLiteral(" Not written over itself; mend it, or write to another file with -o.");
        return failure;
    }
    if (!document.lost.isEmpty() && !m_acceptsLosses) {
        return Failure{
            Negative, 0,
            QStringLiteral("Not written, since something would be lost. Write to another file with "
                           "-o, or agree with --accept-losses.")};
    }
    return {};
}

Outcome<WrittenDocument> DocumentTarget::write(const ChangedDocument &document, const QString &output) const
{
    if (output.isEmpty() || (m_inPlace && !document.isChanged))
        return WrittenDocument{};
    if (const Outcome<void> allowed = checkPlace(document, output); allowed.hasFailed())
        return allowed.failure();
    WrittenDocument written;
    if (m_keepsBackup) {
        const Outcome<QString> backup = keepBackup(output, document.original);
        if (backup.hasFailed())
            return backup.failure();
        written.backup = *backup;
    }
    if (const Outcome<void> done = writeWithFolder(output, document.bytes); done.hasFailed())
        return done.failure();
    written.output = output;
    return written;
}

} // namespace orv::cli
