#include "Output.h"

#include "Console.h"
#include "Inputs.h"
#include "NewerDocument.h"

#include <orv/core/FileUtils.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>

#include <QFileInfo>

namespace orv::cli {

namespace {

Outcome<void> outcomeOf(QFileDevice::FileError error, const QString &deviceError)
{
    if (error == QFileDevice::NoError)
        return {};
    return Failure{BadOutput, int(ErrorCode::CannotOpenFile),
                   QStringLiteral("The file can't be written: %1").arg(deviceError)};
}

} // namespace

namespace {

/// A workflow of a newer format is never written over, whatever would take its place.
Outcome<void> refuseNewerAt(const QString &output)
{
    if (!WflwUtils::isMirelWorkflow(output) || !QFileInfo(output).isFile())
        return {};
    const Outcome<DoubtfulText> present = readDoubtful(output);
    if (present.hasFailed())
        return {};
    const Outcome<void> allowed =
        refuseNewer(present->document, QStringLiteral("is not written over; name another output"));
    if (!allowed.hasFailed())
        return {};
    return Failure{BadOutput, 0, allowed.failure().message};
}

} // namespace

Outcome<void> writeOutput(const QString &output, const QByteArray &bytes)
{
    if (output == kStandardInput) {
        if (writeStandardOutput(bytes))
            return {};
        return Failure{BadOutput, 0, QStringLiteral("The standard output can't be written.")};
    }
    if (Outcome<void> allowed = refuseNewerAt(output); allowed.hasFailed())
        return allowed;
    if (const Error tooLarge = FileUtils::checkReadable(bytes))
        return failureFrom(tooLarge, BadOutput);
    QString deviceError;
    return outcomeOf(FileUtils::writeToFile(output, bytes, &deviceError), deviceError);
}

Outcome<void> writeReproducibleOutput(const QString &path, const QByteArray &bytes)
{
    QString deviceError;
    return outcomeOf(FileUtils::writeReproducibleFile(path, bytes, &deviceError), deviceError);
}

} // namespace orv::cli
