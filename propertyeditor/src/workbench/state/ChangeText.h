#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <optional>

/// What lists of changes say of places and values, of any length, in one line. Any thread, once a window was
/// made.
namespace orv::ChangeText {

/// Where something stands in a document; what isn't known is empty.
struct Place
{
    QString tab;
    QString column;
    std::optional<qsizetype> row; ///< of the cell in its column, counted from 0
    QString property;             ///< the name of a setting
    QString below;                ///< names joined by " / ", as differences have them
};

/// "Analysis › Karvon", without what is empty.
[[nodiscard]] QString joined(QStringList names);
/// With the caption of the setting. Shortened where the document begins, since its end tells which setting
/// it is.
[[nodiscard]] QString ofPlace(const Place &place);

[[nodiscard]] QString ofText(const QString &text);
/// What stands below a setting, in the words of tables: "row 3 › Mass". \a below as in Place.
[[nodiscard]] QString ofPartOfSetting(const QString &below);
/// Of objects their names, if they have one, else their members by captions; of a row its values, by
/// \a columns where they are known; empty for no value.
[[nodiscard]] QString ofValue(const QJsonValue &value, const QStringList &columns = {});
/// A number and its unit, which people read as one.
[[nodiscard]] bool isQuantity(const QJsonValue &value);
/// Of a setting as its row shows it, with its unit, where a line can show it.
[[nodiscard]] QString ofSetting(const QString &property, const QJsonValue &value);

} // namespace orv::ChangeText
