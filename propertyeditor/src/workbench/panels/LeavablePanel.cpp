#include "LeavablePanel.h"

#include <QKeyEvent>

namespace orv {

void LeavablePanel::keyPressEvent(QKeyEvent *event)
{
    QWidget::keyPressEvent(event);
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier)
        Q_EMIT left();
}

} // namespace orv
