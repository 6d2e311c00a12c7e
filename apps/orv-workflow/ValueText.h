#pragma once

#include <QJsonValue>
#include <QString>

namespace orv::cli {

/// Compact JSON on one line, cut to what a line can show.
[[nodiscard]] QString oneLine(const QJsonValue &value);

/// Null for what isn't there.
[[nodiscard]] QJsonValue orNull(const QJsonValue &value);
[[nodiscard]] QJsonValue orNull(const QString &text);

} // namespace orv::cli
