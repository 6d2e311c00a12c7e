#pragma once

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

namespace orv {

/// Paints the cells of a table and makes their editors: what isn't allowed has a sign in front, and its
/// editor says why while people type.
class TableDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The cell that an editor was made for; an invalid index when its row is gone.
    [[nodiscard]] static QPersistentModelIndex cellOf(const QWidget *editor);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    void take(QWidget *editor, EndEditHint hint);
    void paintContent(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
};

} // namespace orv
