#include "Output.h"

#include "Console.h"
#include "Inputs.h"

#include <orv/core/FileUtils.h>

namespace orv::cli {

std::optional<Failure> writeOutput(const QString &output, const QByteArray &bytes)
{
    if (output == kStandardInput) {
        if (writeStandardOutput(bytes))
            return {};
        return Failure{BadOutput, 0, QStringLiteral("The standard output can't be written.")};
    }
    QString deviceError;
    if (FileUtils::writeToFile(output, bytes, &deviceError) == QFileDevice::NoError)
        return {};
    return Failure{BadOutput, int(ErrorCode::CannotOpenFile),
                   QStringLiteral("The file can't be written: %1").arg(deviceError)};
}

} // namespace orv::cli
