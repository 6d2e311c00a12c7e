#include "UpgradeOutputs.h"

#include "Output.h"

#include <orv/core/FileNameUtils.h>
#include <orv/core/FileUtils.h>

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

QString outputOf(const BatchInput &input, const UpgradeTarget &target, bool isFolder)
{
    switch (target.kind) {
    case UpgradeTarget::Kind::None:
        return {};
    case UpgradeTarget::Kind::InPlace:
        return workflowFileOf(input.file);
    case UpgradeTarget::Kind::Output:
        break;
    }
    return isFolder ? QDir(target.output).filePath(pathBelowRoot(input)) : target.output;
}

/// What tells two names of one file apart, whether it is there or not.
QString identityOf(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() ? info.canonicalFilePath() : QDir::cleanPath(info.absoluteFilePath());
}

} // namespace

UpgradeOutputs upgradeOutputs(const QStringList &arguments, const QList<BatchInput> &inputs,
                              const UpgradeTarget &target)
{
    UpgradeOutputs result;
    const bool isFolder =
        target.kind == UpgradeTarget::Kind::Output && meansFolder(target.output, arguments, inputs);
    QHash<QString, QString> inputOfOutput;
    for (const BatchInput &input : inputs) {
        if (input.failure || target.kind == UpgradeTarget::Kind::None) {
            result.outputs.append(QString());
            continue;
        }
        if (input.file == kStandardInput && (target.kind == UpgradeTarget::Kind::InPlace || isFolder)) {
            result.failure = Failure{WrongUsage, 0,
                                     QStringLiteral("Standard input has no name to write under; "
                                                    "name a file with -o.")};
            result.failedFile = input.file;
            return result;
        }
        const QString output = outputOf(input, target, isFolder);
        const QString identity = identityOf(output);
        if (inputOfOutput.contains(identity)) {
            result.failure = Failure{
                WrongUsage, 0,
                QStringLiteral("It would be written to \"%1\", and so would \"%2\". Nothing was written.")
                    .arg(output, inputOfOutput.value(identity))};
            result.failedFile = input.file;
            return result;
        }
        inputOfOutput.insert(identity, input.file);
        result.outputs.append(output);
    }
    return result;
}

Outcome<void> writeUpgraded(const QString &output, const QByteArray &bytes)
{
    if (output != kStandardInput && !QDir().mkpath(QFileInfo(output).absolutePath())) {
        return Failure{BadOutput, int(ErrorCode::CannotOpenFile),
                       QStringLiteral("The folder of the file can't be made.")};
    }
    return writeOutput(output, bytes);
}

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

} // namespace orv::cli
