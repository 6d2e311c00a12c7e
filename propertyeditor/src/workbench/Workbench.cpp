#include "orv/propertyeditor/workbench/Workbench.h"

#include "PlaceKeeper.h"
#include "StatusLine.h"
#include "orv/propertyeditor/workbench/Comparison.h"
#include "orv/propertyeditor/workbench/FindSettings.h"
#include "orv/propertyeditor/workbench/Findings.h"
#include "orv/propertyeditor/workbench/Upgrades.h"
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
#include <QStatusBar>
#include <QStatusTipEvent>

namespace orv {

Workbench::Workbench(PropertyEditorWindow *window)
    : QObject(window)
    , m_window(window)
    , m_editMenu(window->menuBar()->addMenu(tr("&Edit")))
    , m_viewMenu(window->menuBar()->addMenu(tr("&View")))
    , m_history(new DocumentHistory(window))
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
    window->installEventFilter(this);
}

Workbench::~Workbench() = default;

/// A pointer that passes over entries of menus doesn't wipe out what was told, and leaves no tip behind.
bool Workbench::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_window || event->type() != QEvent::StatusTip)
        return QObject::eventFilter(watched, event);
    QStatusBar *bar = m_window->statusBar();
    const QString tip = static_cast<const QStatusTipEvent *>(event)->tip();
    const bool isTipShown = !m_tip.isEmpty() && bar->currentMessage() == m_tip;
    if (!tip.isEmpty() && !isTipShown)
        m_behindTip = bar->currentMessage();
    else if (tip.isEmpty() && isTipShown)
        bar->showMessage(m_behindTip);
    m_tip = tip;
    return tip.isEmpty();
}

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
    auto *panel = new QDockWidget(title, m_window);
    panel->setObjectName(name);
    panel->setAccessibleName(title);
    panel->setWidget(widget);
    m_window->addDockWidget(area, panel);
    if (QDockWidget *before = m_panels.value(area))
        m_window->tabifyDockWidget(before, panel);
    m_panels.insert(area, panel);
    panel->hide();
    QAction *toggle = panel->toggleViewAction();
    toggle->setShortcut(shortcut);
    // Of panels that share a side one is in front: the one that was asked for.
    connect(toggle, &QAction::triggered, panel, [panel](bool isShown) {
        if (isShown)
            panel->raise();
    });
    m_viewMenu->insertAction(m_behindPanels, toggle);
    connect(panel, &QDockWidget::visibilityChanged, this,
            [this, shown = QPointer(panel), area](bool isShown) {
                if (isShown && shown)
                    sizeOnce(shown, area);
            });
    return panel;
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
