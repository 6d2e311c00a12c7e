#include "orv/propertyeditor/workbench/Workbench.h"

#include <orv/propertyeditor/window/PropertyEditorWindow.h>

#include <QDockWidget>
#include <QMenuBar>

namespace orv {

Workbench::Workbench(PropertyEditorWindow *window)
    : QObject(window)
    , m_window(window)
    , m_editMenu(window->menuBar()->addMenu(tr("&Edit")))
    , m_viewMenu(window->menuBar()->addMenu(tr("&View")))
{
    m_editMenu->setToolTipsVisible(true);
    m_viewMenu->setToolTipsVisible(true);
}

Workbench::~Workbench() = default;

QDockWidget *Workbench::addPanel(QWidget *widget, const QString &name, const QString &title,
                                 Qt::DockWidgetArea area, const QKeySequence &shortcut)
{
    auto *panel = new QDockWidget(title, m_window);
    panel->setObjectName(name);
    panel->setAccessibleName(title);
    panel->setWidget(widget);
    m_window->addDockWidget(area, panel);
    panel->hide();
    QAction *toggle = panel->toggleViewAction();
    toggle->setShortcut(shortcut);
    m_viewMenu->addAction(toggle);
    return panel;
}

} // namespace orv
