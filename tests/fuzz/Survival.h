#pragma once

#include <QByteArray>
#include <QJsonValue>

namespace FormChecks {

/// Whether \a written holds all that \a read does. A write may add members, entries of "properties" and their
/// order, and writes tables in their usual form; nothing else may differ.
bool survives(const QJsonValue &read, const QJsonValue &written);

/// Whether \a json holds a byte order mark: QJsonDocument drops one that begins a text, at one time or
/// another, and what then changes is no fault of ours.
bool losesMarks(const QByteArray &json);

} // namespace FormChecks
