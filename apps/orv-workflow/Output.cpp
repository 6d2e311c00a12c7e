#include "Output.h"

#include "Console.h"
#include "Inputs.h"

#include <orv/core/FileUtils.h>

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

Outcome<void> writeOutput(const QString &output, const QByteArray &bytes)
{
    if (output == kStandardInput) {
        if (writeStandardOutput(bytes))
            return {};
        return Failure{BadOutput, 0, QStringLiteral("The standard output can't be written.")};
    }
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
