#include "orv/propertyeditor/workbench/Findings.h"

#include "FindingCheck.h"
#include "FindingMarks.h"
#include "FindingsPanel.h"
#include "orv/propertyeditor/workbench/FindSettings.h"
#include "orv/propertyeditor/workbench/Workbench.h"
#include "settings/SettingJump.h"
#include "settings/SettingVisits.h"

#include <KPropertyEditorView.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workbench/DocumentHistory.h>
#include <orv/widgets/Icons.h>
#include <orv/widgets/TableView.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace orv {

using PropertyEditor::Finding;
using PropertyEditor::LocatedFinding;

namespace {

/// Behind the last edit: nobody reads findings while typing.
constexpr std::chrono::milliseconds kFindingsPause{1000};

} // namespace

class Findings::Private
{
public:
    Private(Findings *findings, Workbench *workbench);

    QAction *add(const QString &text, const char *name, IconName icon, const QKeySequence &shortcut);
    void check();
    void commitTyping() const;
    void recheck();
    void startOver();
    void show(const QList<LocatedFinding> &found, const QList<FindingTarget> &places);
    void summarize();
    void goTo(int row);
    void goToColumn(const FindingTarget &target) const;
    [[nodiscard]] FindSettings::Filter filter() const;
    [[nodiscard]] int count(Finding::Level level) const;

    Findings *const q;
    const QPointer<PropertyEditorWindow> window;
    FindSettings *const find;
    FindingCheck checking;
    FindingMarks marks;
    FindingsPanel *panel;
    QPointer<QDockWidget> dock;
    QAction *checkAction;
    QAction *nextAction;
    QAction *previousAction;
    QList<LocatedFinding> findings;
    QList<FindingTarget> targets;
    bool isChecked = false;

private:
    void connectCommands();
    void connectWindow();

    DocumentHistory *const m_history;
    SettingVisits m_visits;
    bool m_isAsked = false; ///< by a person, who waits for the panel
    QTimer m_pause;
};

Findings::Private::Private(Findings *owner, Workbench *workbench)
    : q(owner)
    , window(workbench->window())
    , find(workbench->find())
    , checking(workbench->window())
    , marks(workbench->window())
    , panel(new FindingsPanel)
    , dock(workbench->addPanel(panel, QStringLiteral("findingsPanel"), tr("&Findings"),
                               Qt::BottomDockWidgetArea))
    , m_history(workbench->history())
{
    QMenu *menu = workbench->viewMenu();
    checkAction = add(tr("&Check Workflow"), "checkWorkflow", IconName::Question, Qt::Key_F9);
    nextAction = add(tr("&Next Finding"), "nextFinding", IconName::NextProblem, Qt::Key_F8);
    previousAction =
        add(tr("Pre&vious Finding"), "previousFinding", IconName::PreviousProblem, Qt::SHIFT | Qt::Key_F8);
    checkAction->setToolTip(tr("Look for errors in the workflow, as is done before it is run"));
    menu->addActions({checkAction, nextAction, previousAction});
    nextAction->setEnabled(false);
    previousAction->setEnabled(false);
    m_pause.setSingleShot(true);
    m_pause.setInterval(kFindingsPause);
    connectCommands();
    connectWindow();
}

void Findings::Private::connectCommands()
{
    connect(checkAction, &QAction::triggered, q, [this] { check(); });
    connect(nextAction, &QAction::triggered, q, [this] { goTo(panel->step(1)); });
    connect(previousAction, &QAction::triggered, q, [this] { goTo(panel->step(-1)); });
    connect(panel, &FindingsPanel::chosen, q, [this](int row) { goTo(row); });
    connect(dock, &QDockWidget::visibilityChanged, q, [this] {
        if (dock && dock->isHidden())
            m_visits.end(window);
    });
}

QAction *Findings::Private::add(const QString &text, const char *name, IconName icon,
                                const QKeySequence &shortcut)
{
    auto *action = new QAction(Icons::icon(icon), text, q);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(shortcut);
    return action;
}

void Findings::Private::connectWindow()
{
    connect(&m_pause, &QTimer::timeout, q, [this] { recheck(); });
    connect(&checking, &FindingCheck::finished, q, [this](const auto &found, const auto &places) {
        isChecked = true;
        show(found, places);
    });
    connect(window, &PropertyEditorWindow::documentShown, q, [this] { startOver(); });
    connect(window, &PropertyEditorWindow::documentSaved, q, [this] {
        if (isChecked)
            recheck();
    });
    const auto checkSoon = [this] {
        if (isChecked || checking.isRunning())
            m_pause.start();
    };
    connect(window->workflowTabs(), &WorkflowTabs::edited, q, checkSoon);
    connect(m_history, &DocumentHistory::stateChanged, q, checkSoon);
}

void Findings::Private::check()
{
    const QPointer<Findings> self(q);
    commitTyping();
    if (!self)
        return;
    m_isAsked = true;
    recheck();
}

/// What somebody is typing into a setting or a cell is to be checked, too.
void Findings::Private::commitTyping() const
{
    for (QWidget *outer = QApplication::focusWidget(); outer; outer = outer->parentWidget()) {
        if (auto *settings = qobject_cast<KPropertyEditorView *>(outer))
            return settings->acceptInput();
        if (auto *table = qobject_cast<TableView *>(outer))
            return table->setFocus();
    }
}

void Findings::Private::recheck()
{
    m_pause.stop();
    checking.start();
    summarize();
    Q_EMIT q->changed();
}

void Findings::Private::startOver()
{
    m_pause.stop();
    checking.forget();
    isChecked = false;
    m_isAsked = false;
    show({}, {});
    if (dock)
        dock->hide();
}

void Findings::Private::show(const QList<LocatedFinding> &found, const QList<FindingTarget> &places)
{
    findings = found;
    targets = places;
    marks.show(findings, targets);
    panel->show(findings);
    const bool hasAny = !findings.isEmpty();
    if (hasAny != nextAction->isEnabled()) {
        nextAction->setEnabled(hasAny);
        previousAction->setEnabled(hasAny);
        if (hasAny)
            qApp->installEventFilter(q);
        else
            qApp->removeEventFilter(q);
    }
    find->setHasFinding(hasAny ? filter() : FindSettings::Filter(),
                        isChecked ? tr("The last check found nothing.") : QString());
    summarize();
    if (std::exchange(m_isAsked, false) && hasAny && dock) {
        dock->show();
        dock->raise();
        panel->announce();
    }
    Q_EMIT q->changed();
}

void Findings::Private::summarize()
{
    const QLocale locale = window ? window->locale() : QLocale();
    const QString counts = tr("Errors: %1, warnings: %2")
                               .arg(locale.toString(count(Finding::Level::Error)),
                                    locale.toString(count(Finding::Level::Warning)));
    switch (q->state()) {
    case State::NotChecked:
        panel->setSummary(tr("The workflow wasn't checked yet. Press %1 to check it.")
                              .arg(checkAction->shortcut().toString(QKeySequence::NativeText)));
        break;
    case State::Checking:
        panel->setSummary(isChecked ? tr("%1. Checking again...").arg(counts) : tr("Checking..."));
        break;
    case State::Checked:
        panel->setSummary(findings.isEmpty() ? tr("The check found nothing.") : counts);
        break;
    }
}

int Findings::Private::count(Finding::Level level) const
{
    return int(std::ranges::count(findings, level, &LocatedFinding::level));
}

FindSettings::Filter Findings::Private::filter() const
{
    return [this](const SettingPlace &place) {
        const PropertyGridWidget *grid = window ? window->workflowTabs()->grid(place.tab) : nullptr;
        const QList<IGridItem *> items = grid ? grid->items() : QList<IGridItem *>();
        return place.column < items.size() && marks.isMarked(items.at(place.column)->widget(), place.name);
    };
}

void Findings::Private::goTo(int row)
{
    if (row < 0 || row >= targets.size() || !window)
        return;
    const QPointer<Findings> self(q);
    const FindingTarget target = targets.at(row);
    if (target.settings())
        m_visits.begin(target.settings());
    const bool isThere = target.settings() && !target.setting.isEmpty() &&
                         SettingJump::toSetting(window, target.settings(), target.setting);
    if (self && !isThere)
        goToColumn(target);
}

void Findings::Private::goToColumn(const FindingTarget &target) const
{
    if (target.column && window)
        SettingJump::show(window, target.column);
    if (target.table && target.row) {
        const int shown = target.table->tableModel()->rowOfId(*target.row);
        const QList<int> columns = target.table->shownColumns();
        if (shown >= 0 && !columns.isEmpty())
            target.table->goTo(target.table->tableModel()->index(shown, columns.constFirst()));
        target.table->setFocus(Qt::OtherFocusReason);
    } else if (target.column) {
        target.column->setFocus(Qt::OtherFocusReason);
    }
}

Findings::Findings(Workbench *workbench)
    : QObject(workbench)
    , d(std::make_unique<Private>(this, workbench))
{
    d->summarize();
}

Findings::~Findings() = default;

Findings::State Findings::state() const
{
    return d->checking.isRunning() ? State::Checking : d->isChecked ? State::Checked : State::NotChecked;
}

int Findings::errorCount() const
{
    return d->count(Finding::Level::Error);
}

int Findings::warningCount() const
{
    return d->count(Finding::Level::Warning);
}

QAction *Findings::checkAction() const
{
    return d->checkAction;
}

QAction *Findings::nextAction() const
{
    return d->nextAction;
}

QAction *Findings::previousAction() const
{
    return d->previousAction;
}

bool Findings::eventFilter(QObject *watched, QEvent *event)
{
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (!isOverride && event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const auto *widget = qobject_cast<QWidget *>(watched);
    const bool isOurs = key->key() == Qt::Key_F8 && widget && d->window && widget->window() == d->window &&
                        (key->modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier;
    if (!isOurs)
        return QObject::eventFilter(watched, event);
    event->accept();
    if (!isOverride)
        (key->modifiers() == Qt::NoModifier ? d->nextAction : d->previousAction)->trigger();
    return true;
}

} // namespace orv
