#include "orv/widgets/ExtendedTreeView.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>

namespace orv {

ExtendedTreeView::ExtendedTreeView(QWidget *parent)
    : QTreeView(parent)
{
    setUniformRowHeights(true);
    setSelectionMode(ExtendedSelection);
    setAlternatingRowColors(true);
    header()->setStretchLastSection(false);
    // Wide enough for what is seen.
    header()->setResizeContentsPrecision(0);
}

void ExtendedTreeView::refreshDelegates()
{
    scheduleDelayedItemsLayout();
    m_areColumnsFitted = false;
    if (isVisible())
        fitColumns();
    viewport()->update();
}

void ExtendedTreeView::fitColumns()
{
    for (int column = 0; model() && column < model()->columnCount(); ++column)
        resizeColumnToContents(column);
    m_areColumnsFitted = true;
}

/// On a page that nobody opens, rows that are calculated stay uncalculated.
void ExtendedTreeView::showEvent(QShowEvent *event)
{
    QTreeView::showEvent(event);
    if (!m_areColumnsFitted)
        fitColumns();
}

QString ExtendedTreeView::toPlainText() const
{
    if (!model())
        return {};
    QStringList titles;
    for (int column = 0; column < model()->columnCount(); ++column)
        titles.append(model()->headerData(column, Qt::Horizontal).toString());
    QStringList lines = {titles.join(u'\t')};
    const bool hasSelection = selectionModel()->hasSelection();
    for (QModelIndex row = model()->index(0, 0); row.isValid(); row = indexBelow(row)) {
        if (hasSelection && !selectionModel()->isSelected(row))
            continue;
        QStringList cells;
        for (int column = 0; column < titles.size(); ++column)
            cells.append(row.siblingAtColumn(column).data().toString());
        lines.append(cells.join(u'\t'));
    }
    return lines.join(u'\n');
}

void ExtendedTreeView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        QGuiApplication::clipboard()->setText(toPlainText());
    else
        QTreeView::keyPressEvent(event);
}

} // namespace orv
