#pragma once

#include <orv/core/Error.h>

#include <QJsonObject>
#include <QString>

namespace orv {

/// How parts of structured values read in a tree.
namespace ValueText {

/// Whether the value is that of a setting in which nobody chose anything yet.
[[nodiscard]] bool isUnset(const QJsonObject &value);

/// A line for each row of a table, with what its cells hold; empty for what is no table.
[[nodiscard]] QString rowsOf(const QJsonObject &value);

/// What a cell of a table holds, in one line.
[[nodiscard]] QString cellText(const QJsonValue &cell);

/// What is shown in place of a value that can't be read; the value is cut where it is long.
[[nodiscard]] QString errorText(const Error &error, const QJsonObject &value);
[[nodiscard]] QString errorText(const QString &reason, const QJsonObject &value);

/// The messages of an error with their details.
[[nodiscard]] QString reasonOf(const Error &error);

/// The text under \a key; for a value that has another one there, what is wrong with it.
[[nodiscard]] QString textUnder(QLatin1String key, const QJsonObject &value);

} // namespace ValueText

} // namespace orv
