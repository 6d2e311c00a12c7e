#pragma once

#include <QStyledItemDelegate>
#include <QTimer>

QT_FORWARD_DECLARE_CLASS(QTreeView)

namespace orv {

/// Rows as high as their texts need in the columns' present widths, so that nothing is cut. Names and paths
/// break at their signs. For lists of some hundred rows; all have to be measured.
class WrappedTexts : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Becomes the delegate of \a view, which owns it.
    explicit WrappedTexts(QTreeView *view);

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    [[nodiscard]] int widthOf(const QModelIndex &index) const;

    QTreeView *m_view;
    QTimer m_measuring; ///< soon, once for all columns that get another width
};

} // namespace orv
