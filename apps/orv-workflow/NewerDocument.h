#pragma once

#include "Outcome.h"

#include <QJsonObject>

namespace orv::cli {

/// Refuses a document of a newer format, which may hold what this version would drop. \a what tells what
/// isn't done: "is not changed; use the software that wrote it".
[[nodiscard]] Outcome<void> refuseNewer(const QJsonObject &document, const QString &what);

} // namespace orv::cli
