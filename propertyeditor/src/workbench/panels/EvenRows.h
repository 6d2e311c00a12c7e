#pragma once

#include <QColor>
#include <QStyledItemDelegate>

QT_FORWARD_DECLARE_CLASS(QAbstractItemView)

namespace orv {

/// Rows of one height, with and without signs.
class EvenRows : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Becomes the delegate of \a view, which owns it.
    explicit EvenRows(QAbstractItemView *view);

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /// The decoration of rows without a sign among rows with one: their texts begin where those of the others
    /// do.
    [[nodiscard]] static QColor indent() { return Qt::transparent; }
};

} // namespace orv
