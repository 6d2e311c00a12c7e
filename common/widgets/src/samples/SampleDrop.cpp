#include "SampleDrop.h"

#include "../table/TableDrop.h"

#include <orv/widgets/TableView.h>

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>

namespace orv {

namespace {

bool isPaste(const QEvent *event)
{
    const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    return isKey && static_cast<const QKeyEvent *>(event)->matches(QKeySequence::Paste);
}

} // namespace

SampleDrop::SampleDrop(TableView *view)
    : QObject(view)
    , m_view(view)
    , m_viewport(view->viewport())
{
    view->installEventFilter(this);
    m_viewport->installEventFilter(this);
}

bool SampleDrop::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view && isPaste(event)) {
        const QStringList files = TableDrop::localFiles(QGuiApplication::clipboard()->mimeData());
        if (files.isEmpty())
            return false;
        // Accepted, so that the key comes here and isn't taken for the table's own command.
        event->accept();
        if (event->type() == QEvent::KeyPress)
            Q_EMIT pathsCame(files);
        return true;
    }
    if (watched != m_viewport || event->type() != QEvent::Drop)
        return false;
    auto *const drop = static_cast<QDropEvent *>(event);
    const TableDrop table(*m_view->sheet(), m_view->indexAt(drop->position().toPoint()), drop->mimeData());
    const QStringList files = TableDrop::localFiles(drop->mimeData());
    if (files.isEmpty() || table.cell().isValid() || !table.importPath().isEmpty())
        return false;
    // The table forgets what was dragged over it.
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(m_view->viewport(), &leave);
    drop->acceptProposedAction();
    Q_EMIT pathsCame(files);
    return true;
}

} // namespace orv
