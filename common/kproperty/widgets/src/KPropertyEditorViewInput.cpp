// Mouse, tool tips and drawing of the view: what depends on where a row is on the screen.
#include "KProperty.h"
#include "KPropertyEditorView_p.h"
#include "booledit.h"
#include "internal/Painting.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

using Internal::EditorDataModel;

QRect KPropertyEditorView::revertButtonArea(const QModelIndex &index) const
{
    const KProperty *const property = d->property(index);
    if (!property || !property->isModified() || d->model->isReadOnly(*property)) {
        return QRect();
    }
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QRect cell = visualRect(index.siblingAtColumn(EditorDataModel::ValueColumn));
    const int width = Internal::Painting::revertButtonWidth(option);
    return QRect(cell.right() - width + 1, cell.top(), width, cell.height());
}

bool KPropertyEditorView::withinRevertButtonArea(const QPoint &position, const QModelIndex &index) const
{
    return revertButtonArea(index).contains(position);
}

bool KPropertyEditorView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *const help = static_cast<QHelpEvent *>(event);
        const QModelIndex index = indexAt(help->pos());
        const QRect revert = revertButtonArea(index);
        if (revert.contains(help->pos())) {
            QToolTip::showText(help->globalPos(), tr("Undo changes"), viewport(), revert);
            return true;
        }
    }
    return QTreeView::viewportEvent(event);
}

void KPropertyEditorView::mousePressEvent(QMouseEvent *event)
{
    d->pressed = QModelIndex();
    // The press commits an open editor, and who hears of that may rebuild the rows.
    const QPersistentModelIndex index = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !index.isValid()) {
        QTreeView::mousePressEvent(event);
        return;
    }
    if (d->model->isGroup(index)) {
        acceptInput();
        const QModelIndex group = QModelIndex(index).siblingAtColumn(0);
        setExpanded(group, !isExpanded(group));
        return;
    }
    QTreeView::mousePressEvent(event);
    if (withinRevertButtonArea(event->position().toPoint(), index)) {
        setCurrentIndex(index);
        undo();
        return;
    }
    d->pressed = index;
}

void KPropertyEditorView::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeView::mouseReleaseEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    const bool clicked = event->button() == Qt::LeftButton && index.isValid() && d->pressed == index;
    d->pressed = QModelIndex();
    if (!clicked || index.column() != EditorDataModel::ValueColumn || d->delegate->editedIndex() == index) {
        return;
    }
    edit(index, QAbstractItemView::AllEditTriggers, event);
    // One click on a check box switches it, as everywhere else.
    if (auto *const box = qobject_cast<KPropertyBoolEditor *>(d->delegate->editor())) {
        if (KPropertyBoolEditor::indicatorRect(box->rect(), box)
                .contains(box->mapFrom(viewport(), event->position().toPoint()))) {
            box->toggle();
        }
    }
}

void KPropertyEditorView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    if (!d->columnsSized && viewport()->width() > 0) {
        // Once: afterwards the user's own division stays.
        d->columnsSized = true;
        header()->resizeSection(EditorDataModel::NameColumn, viewport()->width() * 45 / 100);
    }
}

void KPropertyEditorView::drawBranches(QPainter *painter, const QRect &rect, const QModelIndex &index) const
{
    if (!d->property(index) || d->model->rowCount(index) == 0) {
        return;
    }
    const int width = indentation();
    const QRect last(rect.right() - width + 1, rect.top(), width, rect.height());
    Internal::Painting::drawExpander(painter, last, palette(), isExpanded(index));
}

void KPropertyEditorView::drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    const QRect row(0, option.rect.top(), viewport()->width(), option.rect.height());
    if (d->model->isGroup(index)) {
        QStyleOptionViewItem groupOption(option);
        initViewItemOption(&groupOption);
        Internal::Painting::drawGroupRow(painter, groupOption, row, index);
        Internal::Painting::drawExpander(painter,
                                         QRect(Internal::Painting::textMargin(), row.top(), 16, row.height()),
                                         palette(), isExpanded(index));
    } else {
        QTreeView::drawRow(painter, option, index);
        const QRect revert = revertButtonArea(index);
        if (revert.isValid()) {
            Internal::Painting::drawRevertButton(painter, revert, palette());
        }
    }
    if (!d->gridLineColor.isValid()) {
        return;
    }
    painter->save();
    QColor line = d->gridLineColor;
    line.setAlpha(110); // lines guide the eye, the texts are what one reads
    painter->setPen(line);
    painter->drawLine(row.bottomLeft(), row.bottomRight());
    if (!d->model->isGroup(index)) {
        const int x = header()->sectionViewportPosition(EditorDataModel::ValueColumn) - 1;
        painter->drawLine(x, row.top(), x, row.bottom());
    }
    painter->restore();
}
