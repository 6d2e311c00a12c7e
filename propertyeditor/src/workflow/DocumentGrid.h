#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include <optional>

namespace orv {

/// The cells of a tab by column and row.
struct DocumentGrid
{
    QStringList columns;
    QJsonArray cells;

    explicit DocumentGrid(const QJsonObject &tab);

    [[nodiscard]] QJsonArray column(std::optional<qsizetype> index) const;
    [[nodiscard]] bool isRectangle() const { return cells.size() % columns.size() == 0; }
    [[nodiscard]] qsizetype height() const { return cells.size() / columns.size(); }

    /// Whether columns of one tab can stand beside columns of the other.
    [[nodiscard]] static bool canBeMixed(const QJsonObject &left, const QJsonObject &right);
};

} // namespace orv
