#pragma once

#include "ExitCode.h"

#include <orv/core/Error.h>

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <optional>

namespace orv::cli {

/// Why a call, or one file of a batch, ended without doing its work.
struct Failure
{
    ExitCode exitCode = BadInput;
    int errorCode = 0; ///< number of the library's ErrorCode; 0 where it gave none
    QString message;   ///< one line, never empty
};

/// Messages and details of an error in one line.
[[nodiscard]] Failure failureFrom(const Error &error, ExitCode exitCode);

/// {"code", "message"}
[[nodiscard]] QJsonObject toJson(const Failure &failure);
/// The same, or null where nothing failed.
[[nodiscard]] QJsonValue errorJson(const std::optional<Failure> &failure);

/// Prints "orv-workflow: FILE: reason" to standard error.
void printFailure(const QString &file, const Failure &failure);
/// Prints "orv-workflow: FILE: text" to standard error, for what is no failure.
void printRemark(const QString &file, const QString &text);

} // namespace orv::cli
