#pragma once

#include <QJsonValue>
#include <QString>

/// What lists of changes say of places and values, of any length, in one line.
namespace orv::ChangeText {

/// Shortened where the document begins, since its end tells which setting it is.
[[nodiscard]] QString ofPlace(const QString &path);

[[nodiscard]] QString ofText(const QString &text);
/// Of objects their names, if they have one; empty for no value.
[[nodiscard]] QString ofValue(const QJsonValue &value);

} // namespace orv::ChangeText
