#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>

namespace orv {

/// An entry of a cell of settings in two states of the cell; empty where the state lacks it.
struct ChangedEntry
{
    QJsonObject before;
    QJsonObject after;
};

/// Those that differ, in the order of the later state, removed ones behind. Entries of one name count as one.
[[nodiscard]] QList<ChangedEntry> changedEntries(const QJsonObject &before, const QJsonObject &after);

} // namespace orv
