#include "ColumnShares.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTreeView>

#include <algorithm>

namespace orv {

ColumnShares::ColumnShares(QTreeView *view, const QList<int> &shares)
    : QObject(view)
    , m_view(view)
    , m_shares(shares)
{
    view->header()->setStretchLastSection(false);
    view->viewport()->installEventFilter(this);
    // Of long lists only what is seen is measured.
    view->header()->setResizeContentsPrecision(0);
    for (int column = 0; column < shares.size(); ++column) {
        if (shares.at(column) == 0)
            view->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    }
    connect(view->header(), &QHeaderView::sectionResized, this, &ColumnShares::follow);
    fit();
}

bool ColumnShares::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        fitUnlessChosen();
    return QObject::eventFilter(watched, event);
}

void ColumnShares::follow(int column)
{
    if (m_isFitting || m_isChosen)
        return;
    if (m_shares.value(column) > 0)
        m_isChosen = QGuiApplication::mouseButtons() != Qt::NoButton;
    else // the header isn't ready yet
        QMetaObject::invokeMethod(this, &ColumnShares::fitUnlessChosen, Qt::QueuedConnection);
}

void ColumnShares::fitUnlessChosen()
{
    if (!m_isChosen)
        fit();
}

void ColumnShares::fit()
{
    const QScopedValueRollback fitting(m_isFitting, true);
    int shares = 0;
    int left = m_view->viewport()->width();
    for (int column = 0; column < m_shares.size(); ++column) {
        shares += m_shares.at(column);
        left -= m_shares.at(column) == 0 ? m_view->columnWidth(column) : 0;
    }
    for (int column = 0; column < m_shares.size(); ++column) {
        const int share = m_shares.at(column);
        if (share == 0)
            continue;
        // The last one gets what rounding leaves.
        const int width = std::max(0, left) * share / shares;
        m_view->setColumnWidth(column, width);
        left -= width;
        shares -= share;
    }
}

} // namespace orv
