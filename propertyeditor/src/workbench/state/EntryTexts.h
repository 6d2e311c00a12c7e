#pragma once

#include <QJsonObject>
#include <QString>

/// Entries of cells of settings as people read them. GUI thread.
namespace orv::EntryTexts {

/// What the setting is called; the name that it has in files if it has no caption.
[[nodiscard]] QString caption(const QJsonObject &cell, const QJsonObject &entry);

/// A value as its row shows it, with its unit; empty for tables and other values that no line
/// shows. See SettingReader::valueText().
[[nodiscard]] QString value(const QJsonObject &cell, const QJsonObject &entry);

} // namespace orv::EntryTexts
