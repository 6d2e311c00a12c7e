#pragma once

#include "Failure.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace orv::cli {

/// Writes a file, whole or not at all; "-" is standard output.
[[nodiscard]] std::optional<Failure> writeOutput(const QString &output, const QByteArray &bytes);

/// The same for a file that can be made again, which is written faster.
[[nodiscard]] std::optional<Failure> writeReproducibleOutput(const QString &path, const QByteArray &bytes);

} // namespace orv::cli
