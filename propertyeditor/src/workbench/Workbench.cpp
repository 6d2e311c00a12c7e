#include "orv/propertyeditor/workbench/Workbench.h"

#include "PlaceKeeper.h"
#include "StatusLine.h"
#include "StatusMessage.h"
#include "orv/propertyeditor/workbench/Comparison.h"
#include "orv/propertyeditor/workbench/FindSettings.h"
#include "orv/propertyeditor/workbench/Findings.h"
#include "orv/propertyeditor/workbench/Upgrades.h"
#include "panels/LeavablePanel.h"
#include "panels/PanelFocus.h"
#include "settings/CurrentSetting.h"
#include "transfer/SameSetting.h"
#include "transfer/SettingClipboard.h"

#include <orv/core/PlainTip.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workbench/DocumentHistory.h>
#include <orv/widgets/ControlHelp.h>
#include <orv/widgets/Icons.h>

#include <QDockWidget>
#include <QMenuBar>
#include <QPointer>

namespace orv {

Workbench::Workbench(PropertyEditorWindow *window)
    : QObject(window)
    , m_window(window)
    , m_editMenu(window->menuBar()->addMenu(tr("&Edit")))
    , m_viewMenu(window->menuBar()->addMenu(tr("&View")))
    , m_history(new DocumentHistory(window))
    , m_focus(new PanelFocus(window, this))
{
    ControlHelp::install();
    m_editMenu->setToolTipsVisible(true);
    m_viewMenu->setToolTipsVisible(true);
    m_behindPanels = m_viewMenu->addSeparator();
    addHistory();
    connect(window, &QWidget::windowTitleChanged, this, &Workbench::updateTitle);
    updateTitle();
    m_find = new FindSettings(this);
    connect(m_find, &FindSettings::fileRead, m_history, [this](const DocumentState &saved) {
        // Of these edits nobody knows the steps, but what they did together can be taken back.
        m_history->beginAt(saved, tr("recovered edits"));
    });
    m_findings = new Findings(this);
    m_upgrades = new Upgrades(this);
    auto *current = new CurrentSetting(window, this);
    new PlaceKeeper(window, current, this);
    new SameSetting(this, current);
    new SettingClipboard(this, current);
    m_comparison = new Comparison(this);
    addTabCommands();
    new StatusLine(this);
    followMessages();
}

Workbench::~Workbench() = default;

void Workbench::addHistory()
{
    m_undo = m_editMenu->addAction(Icons::icon(IconName::Undo), QString(), m_history, &DocumentHistory::undo);
    m_undo->setShortcuts(QKeySequence::Undo);
    m_redo = m_editMenu->addAction(Icons::icon(IconName::Redo), QString(), m_history, &DocumentHistory::redo);
    m_redo->setShortcuts(QKeySequence::Redo);
    connect(m_history, &DocumentHistory::changed, this, &Workbench::updateHistory);
    updateHistory();
}

/// Ctrl+Tab is the table's or that of tabs within a tab, wherever these have the focus.
void Workbench::addTabCommands()
{
    const auto go = [this](int step) {
        QTabWidget *tabs = m_window->workflowTabs()->widget();
        if (const int count = tabs->count(); count > 0)
            tabs->setCurrentIndex((tabs->currentIndex() + step + count) % count);
    };
    m_viewMenu->addSeparator();
    m_viewMenu->addAction(tr("Next Ta&b"), QKeySequence(Qt::CTRL | Qt::Key_PageDown), this, [go] { go(1); });
    m_viewMenu->addAction(tr("Previous &Tab"), QKeySequence(Qt::CTRL | Qt::Key_PageUp), this,
                          [go] { go(-1); });
}

void Workbench::followMessages()
{
    auto *message = new StatusMessage(m_window, this);
    connect(m_history, &DocumentHistory::changed, message, &StatusMessage::outlive);
    connect(m_window, &PropertyEditorWindow::documentShown, message, &StatusMessage::outlive);
    connect(m_window, &PropertyEditorWindow::documentSaved, message, &StatusMessage::outlive);
    for (const QAction *command : {m_findings->checkAction(), m_comparison->action(), m_upgrades->action()})
        connect(command, &QAction::triggered, message, &StatusMessage::outlive);
}

void Workbench::tell(const QString &text)
{
    StatusLine::tell(m_window, text);
}

void Workbench::updateHistory()
{
    const auto show = [](QAction *action, const QString &plain, const QString &named, bool isThere,
                         QString step, const QString &reason) {
        action->setEnabled(isThere);
        action->setToolTip(isThere ? PlainTip::of(step) : reason);
        action->setText(isThere ? named.arg(step.replace(u'&', QLatin1String("&&"))) : plain);
    };
    show(m_undo, tr("&Undo"), tr("&Undo: %1"), m_history->canUndo(), m_history->undoText(),
         tr("Nothing was edited yet."));
    show(m_redo, tr("&Redo"), tr("&Redo: %1"), m_history->canRedo(), m_history->redoText(),
         tr("Nothing was undone."));
    m_window->setWindowModified(m_history->isModified());
}

/// Applications compose the title; the mark of unsaved changes stands at its end.
void Workbench::updateTitle()
{
    static const QLatin1String kMark("[*]");
    QString title = m_window->windowTitle();
    QString unmarked = title;
    unmarked.remove(kMark + kMark);
    if (!unmarked.contains(kMark))
        m_window->setWindowTitle(title + kMark);
}

QDockWidget *Workbench::addPanel(QWidget *widget, const QString &name, const QString &title,
                                 Qt::DockWidgetArea area, const QKeySequence &shortcut)
{
    const QString shownTitle = QString(title).remove(u'&');
    auto *panel = new QDockWidget(shownTitle, m_window);
    panel->setObjectName(name);
    panel->setAccessibleName(shownTitle);
    panel->setWidget(widget);
    m_window->addDockWidget(area, panel);
    if (QDockWidget *before = m_panels.value(area))
        m_window->tabifyDockWidget(before, panel);
    m_panels.insert(area, panel);
    panel->hide();
    m_focus->watch(panel);
    QAction *toggle = panel->toggleViewAction();
    toggle->setText(title);
    toggle->setShortcut(shortcut);
    // Of panels that share a side one is in front: the one that was asked for.
    connect(toggle, &QAction::triggered, this, [this, panel](bool isShown) {
        if (isShown)
            enterPanel(panel);
    });
    if (auto *leavable = qobject_cast<LeavablePanel *>(widget))
        connect(leavable, &LeavablePanel::left, this, [this, panel] { leavePanel(panel); });
    m_viewMenu->insertAction(m_behindPanels, toggle);
    connect(panel, &QDockWidget::visibilityChanged, this,
            [this, shown = QPointer(panel), area](bool isShown) {
                if (isShown && shown)
                    sizeOnce(shown, area);
            });
    return panel;
}

void Workbench::enterPanel(QDockWidget *panel)
{
    panel->show();
    panel->raise();
    panel->widget()->show();
    PanelFocus::enter(panel);
}

void Workbench::leavePanel(QDockWidget *panel)
{
    const QPointer<QDockWidget> closing(panel);
    m_focus->leave(panel);
    if (closing)
        closing->hide();
}

void Workbench::sizeOnce(QDockWidget *panel, Qt::DockWidgetArea area)
{
    if (m_sized.contains(area))
        return;
    m_sized.insert(area);
    const bool isAtTheSide = area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
    const int size = isAtTheSide ? m_window->width() : m_window->height();
    m_window->resizeDocks({panel}, {size / 3}, isAtTheSide ? Qt::Horizontal : Qt::Vertical);
}

void Workbench::keepPanelSizes()
{
    m_sized = {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea, Qt::TopDockWidgetArea,
               Qt::BottomDockWidgetArea};
}

} // namespace orv
