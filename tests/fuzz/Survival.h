#pragma once

#include <QJsonValue>

namespace FormChecks {

/// Whether \a written holds all that \a read does. A write may add members, entries of "properties" and their
/// order, and writes tables in their usual form; nothing else may differ.
bool survives(const QJsonValue &read, const QJsonValue &written);

} // namespace FormChecks
