#pragma once

#include <orv/core/LossObserver.h>

#include <QJsonArray>
#include <QList>
#include <QString>

namespace orv::cli {

/// A line on standard error for everything that a load dropped or read as another value.
void printLosses(const QString &file, const QList<Loss> &lost);

/// [{"path", "what", "why", "stored", "read"}]; the last two are null for what is dropped.
[[nodiscard]] QJsonArray toJson(const QList<Loss> &lost);

} // namespace orv::cli
