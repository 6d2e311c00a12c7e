#pragma once

#include "Failure.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace orv::cli {

/// Writes a file, whole or not at all; "-" is standard output.
[[nodiscard]] std::optional<Failure> writeOutput(const QString &output, const QByteArray &bytes);

} // namespace orv::cli
