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

#include <algorithm>
#include <utility>

using Internal::EditorDataModel;

namespace {

/// How far from the divider it can be taken hold of, in pixels.
constexpr int kDividerReach = 3;

} // namespace

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
    const QRect behind(cell.right() - width + 1, cell.top(), width, cell.height());
    return QStyle::visualRect(layoutDirection(), cell, behind);
}

bool KPropertyEditorView::withinRevertButtonArea(const QPoint &position, const QModelIndex &index) const
{
    return revertButtonArea(index).contains(position);
}

QString KPropertyEditorView::wholeValueText(const KProperty &, const QString &shown) const
{
    return shown;
}

/// The value of a cell that is too small for it, for the end of its tool tip; empty for others.
QString KPropertyEditorView::cutValue(const QModelIndex &index) const
{
    constexpr int kMostCharacters = 2000;
    const KProperty *const property = d->property(index);
    if (!d->toolTipsVisible || !property || index.column() != EditorDataModel::ValueColumn) {
        return QString();
    }
    const QString shown = index.data(Qt::DisplayRole).toString();
    const QString whole = wholeValueText(*property, shown);
    const QString value = whole.left(kMostCharacters);
    const int room = visualRect(index).width() - 2 * Internal::Painting::textMargin();
    const QStringList lines = value.split(QLatin1Char('\n'));
    const bool isCut =
        whole != shown || std::any_of(lines.cbegin(), lines.cend(), [this, room](const QString &line) {
            return fontMetrics().horizontalAdvance(line) > room;
        });
    // Paths have no blanks at which a tool tip could break them.
    return isCut ? QLatin1String("<hr>") + value.toHtmlEscaped()
                                               .replace(QLatin1Char('/'), QLatin1String("/&#8203;"))
                                               .replace(QLatin1Char('\n'), QLatin1String("<br>"))
                 : QString();
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
        if (const QString cut = cutValue(index); !cut.isEmpty()) {
            const QString toolTip = index.data(Qt::ToolTipRole).toString();
            QToolTip::showText(help->globalPos(), toolTip + cut, viewport(), visualRect(index));
            return true;
        }
    }
    return QTreeView::viewportEvent(event);
}

QRect KPropertyEditorView::dividerArea() const
{
    // The left edge of the column on the right, whichever that is in this direction of reading.
    const int right = isRightToLeft() ? EditorDataModel::NameColumn : EditorDataModel::ValueColumn;
    return QRect(header()->sectionViewportPosition(right) - kDividerReach, 0, 2 * kDividerReach,
                 viewport()->height());
}

void KPropertyEditorView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint position = event->position().toPoint();
    if (!d->movingDivider) {
        const bool grabs = event->buttons() == Qt::NoButton && dividerArea().contains(position) &&
                           d->property(indexAt(position));
        if (grabs) {
            viewport()->setCursor(Qt::SplitHCursor);
        } else {
            viewport()->unsetCursor();
        }
        QTreeView::mouseMoveEvent(event);
        return;
    }
    const int width = viewport()->width();
    const int wanted = isRightToLeft() ? width - position.x() : position.x();
    const int least = header()->minimumSectionSize();
    header()->resizeSection(EditorDataModel::NameColumn,
                            std::clamp(wanted, least, std::max(least, width - least)));
}

void KPropertyEditorView::mousePressEvent(QMouseEvent *event)
{
    d->pressed = QModelIndex();
    const QPoint position = event->position().toPoint();
    // The press commits an open editor, and who hears of that may rebuild the rows.
    const QPersistentModelIndex index = indexAt(position);
    const QPointer<KPropertyEditorView> self(this);
    acceptInput();
    if (!self) {
        return;
    }
    if (event->button() != Qt::LeftButton || !index.isValid()) {
        QTreeView::mousePressEvent(event);
        return;
    }
    if (d->model->isGroup(index)) {
        const QModelIndex group = QModelIndex(index).siblingAtColumn(0);
        setExpanded(group, !isExpanded(group));
        return;
    }
    if (dividerArea().contains(position)) {
        d->movingDivider = true;
        return;
    }
    QTreeView::mousePressEvent(event);
    if (withinRevertButtonArea(position, index)) {
        setCurrentIndex(index);
        undo();
        return;
    }
    d->pressed = index;
}

void KPropertyEditorView::mouseReleaseEvent(QMouseEvent *event)
{
    if (std::exchange(d->movingDivider, false)) {
        return;
    }
    QTreeView::mouseReleaseEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    // With these keys a click selects rows, where several can be selected.
    const bool selects = selectionMode() == QAbstractItemView::ExtendedSelection &&
                         event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier);
    const bool clicked =
        event->button() == Qt::LeftButton && index.isValid() && d->pressed == index && !selects;
    d->pressed = QModelIndex();
    if (!clicked || index.column() != EditorDataModel::ValueColumn || d->delegate->editedIndex() == index) {
        return;
    }
    const QPointer<KPropertyEditorView> self(this);
    edit(index, QAbstractItemView::AllEditTriggers, event);
    if (!self) {
        return;
    }
    // One click on a check box switches it, as everywhere else.
    if (auto *const box = qobject_cast<KPropertyBoolEditor *>(d->delegate->editor())) {
        if (KPropertyBoolEditor::indicatorRect(box->rect(), box)
                .contains(box->mapFrom(viewport(), event->position().toPoint()))) {
            box->toggle();
        }
    }
}

void KPropertyEditorView::sizeColumns()
{
    const int width = viewport()->width();
    if (width <= 0) {
        return;
    }
    constexpr int kShareInPercent = 45;
    constexpr int kLargestShareInPercent = 75;
    const int wanted =
        std::min(d->nameWidth.value_or(width * kShareInPercent / 100), width * kLargestShareInPercent / 100);
    d->sizingColumns = true;
    header()->resizeSection(EditorDataModel::NameColumn, wanted);
    d->sizingColumns = false;
}

void KPropertyEditorView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    sizeColumns();
}

void KPropertyEditorView::drawBranches(QPainter *painter, const QRect &rect, const QModelIndex &index) const
{
    if (!d->property(index) || d->model->rowCount(index) == 0) {
        return;
    }
    const QRect next(rect.right() - indentation() + 1, rect.top(), indentation(), rect.height());
    Internal::Painting::drawExpander(painter, QStyle::visualRect(layoutDirection(), rect, next), palette(),
                                     isExpanded(index));
}

/// Where the keys don't go, the selection has the colours of views without focus.
void KPropertyEditorView::initViewItemOption(QStyleOptionViewItem *option) const
{
    QTreeView::initViewItemOption(option);
    option->state.setFlag(QStyle::State_Active, option->state.testFlag(QStyle::State_Active) &&
                                                    (hasFocus() || d->delegate->editor()));
    Internal::Painting::makeSelectionLegible(&option->palette);
}

void KPropertyEditorView::drawGroup(QPainter *painter, const QStyleOptionViewItem &option, const QRect &row,
                                    const QModelIndex &index) const
{
    QStyleOptionViewItem groupOption(option);
    initViewItemOption(&groupOption);
    Internal::Painting::drawGroupRow(painter, groupOption, row, index);
    const QRect expander(Internal::Painting::textMargin(), row.top(), 16, row.height());
    Internal::Painting::drawExpander(painter, QStyle::visualRect(layoutDirection(), row, expander), palette(),
                                     isExpanded(index));
    if (!isExpanded(index) && !d->model->remarksIn(index).isEmpty()) {
        drawRemarkSign(painter, groupOption, row, index);
    }
    if (hasFocus() && currentIndex().siblingAtColumn(0) == index.siblingAtColumn(0)) {
        Internal::Painting::drawFocus(painter, row, palette());
    }
}

void KPropertyEditorView::drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    const QRect row(0, option.rect.top(), viewport()->width(), option.rect.height());
    if (d->model->isGroup(index)) {
        drawGroup(painter, option, row, index);
    } else {
        QTreeView::drawRow(painter, option, index);
        const QRect revert = revertButtonArea(index);
        if (revert.isValid()) {
            const bool isSelected = selectionModel()->isSelected(index);
            QPalette colors = option.palette;
            colors.setCurrentColorGroup(option.state.testFlag(QStyle::State_Active) ? QPalette::Active
                                                                                    : QPalette::Inactive);
            Internal::Painting::drawRevertButton(
                painter, revert, isSelected ? Internal::Painting::ofSelection(colors) : palette());
        }
    }
    if (d->gridLineColor.isValid()) {
        drawGridLines(painter, row, index);
    }
}

void KPropertyEditorView::drawGridLines(QPainter *painter, const QRect &row, const QModelIndex &index) const
{
    painter->save();
    QColor line = d->gridLineColor;
    line.setAlpha(110); // lines guide the eye, the texts are what one reads
    painter->setPen(line);
    painter->drawLine(row.bottomLeft(), row.bottomRight());
    if (!d->model->isGroup(index)) {
        const int x = dividerArea().center().x();
        painter->drawLine(x, row.top(), x, row.bottom());
    }
    painter->restore();
}
