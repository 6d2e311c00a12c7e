#pragma once

#include "Outcome.h"

#include <QByteArray>
#include <QString>

namespace orv::cli {

/// Writes a file, whole or not at all; "-" is standard output.
[[nodiscard]] Outcome<void> writeOutput(const QString &output, const QByteArray &bytes);

/// The same for a file that can be made again, which is written faster.
[[nodiscard]] Outcome<void> writeReproducibleOutput(const QString &path, const QByteArray &bytes);

} // namespace orv::cli
