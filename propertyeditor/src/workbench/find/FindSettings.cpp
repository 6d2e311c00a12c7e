#include "orv/propertyeditor/workbench/FindSettings.h"

#include "FindPanel.h"
#include "StatusLine.h"
#include "comparison/SecondDocument.h"
#include "orv/propertyeditor/workbench/BackgroundWork.h"
#include "orv/propertyeditor/workbench/Workbench.h"
#include "panels/YieldingShortcuts.h"
#include "settings/SettingJump.h"
#include "settings/SettingVisits.h"

#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/widgets/Icons.h>

#include <QAction>
#include <QDockWidget>
#include <QMenu>

namespace orv {

class FindSettings::Private
{
public:
    Private(FindSettings *find, Workbench *workbench);

    void begin();
    void jump(const SettingPlace &place);
    void readSaved(const QString &file);

    FindSettings *const q;
    const QPointer<PropertyEditorWindow> window;
    SettingColumns *columns;
    FindPanel *panel;
    QPointer<QDockWidget> dock;
    QAction *action;

private:
    Workbench *const m_workbench;
    SettingVisits m_visits;
    BackgroundWork m_reading;
};

FindSettings::Private::Private(FindSettings *find, Workbench *workbench)
    : q(find)
    , window(workbench->window())
    , columns(new SettingColumns(workbench->window()))
    , panel(new FindPanel(columns))
    , dock(workbench->addPanel(panel, QStringLiteral("findSettings"), tr("Find &Settings"),
                               Qt::BottomDockWidgetArea))
    , action(new QAction(Icons::icon(IconName::Find), tr("&Find Settings..."), find))
    , m_workbench(workbench)
{
    action->setObjectName(QStringLiteral("find"));
    action->setToolTip(tr("Search the settings of all tabs"));
    YieldingShortcuts::set(
        action, {QKeySequence(QKeySequence::Find), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F)});
    workbench->editMenu()->addAction(action);
    connect(action, &QAction::triggered, find, [this] { begin(); });
    connect(panel, &FindPanel::chosen, find, [this](const SettingPlace &place) { jump(place); });
    connect(panel, &FindPanel::setBackWanted, columns, &SettingColumns::setBack);
    // A window that becomes read only says so in its title. One that goes changes it, too.
    connect(
        window, &QWidget::windowTitleChanged, find,
        [this] {
            panel->setRefusal(window && window->isReadOnly()
                                  ? tr("This window is read only: nothing can be set back.")
                                  : QString());
        },
        Qt::QueuedConnection);
    // What is shown or saved then is what counts.
    connect(window, &PropertyEditorWindow::documentShown, find, [this] { m_reading.cancel(); });
    connect(window, &PropertyEditorWindow::documentSaved, find, [this] { m_reading.cancel(); });
    connect(dock, &QDockWidget::visibilityChanged, find, [this] {
        if (dock && dock->isHidden())
            m_visits.end(window);
    });
}

void FindSettings::Private::begin()
{
    m_workbench->enterPanel(dock);
    panel->begin();
}

void FindSettings::Private::jump(const SettingPlace &place)
{
    const QPointer<GridPropertyEditorView> view = columns->view(place);
    if (!view || !window)
        return;
    m_visits.begin(view);
    (void)SettingJump::toSetting(window, view, place.name);
}

void FindSettings::Private::readSaved(const QString &file)
{
    using Read = Result<SecondDocument>;
    m_reading.cancel();
    m_reading.run<SecondDocument>(
        [file](const auto &isCancelled) -> Read { return SecondDocument::read(file, file, isCancelled); },
        [this, file](const Read &saved) {
            const Error error = saved.hasError() ? saved.error() : saved->error;
            if (error.hasError()) {
                StatusLine::tell(
                    window, tr("What changed since the last save isn't known: %1").arg(error.errorMessage()));
            } else {
                columns->takeSaved(saved->state);
                Q_EMIT q->fileRead(saved->state);
            }
        });
}

FindSettings::FindSettings(Workbench *workbench)
    : QObject(workbench)
    , d(std::make_unique<Private>(this, workbench))
{}

FindSettings::~FindSettings() = default;

void FindSettings::setHasFinding(const Filter &filter, const QString &reason)
{
    const QString unchecked = tr("Check the workflow first: then settings with a finding are known.");
    if (d->dock)
        d->panel->setFilter(FindPanel::Filter::HasFinding, filter, reason.isEmpty() ? unchecked : reason);
}

void FindSettings::setDiffersFromSecond(const Filter &filter)
{
    if (d->dock) {
        d->panel->setFilter(FindPanel::Filter::Differs, filter,
                            tr("Open a second document to compare with first."));
    }
}

void FindSettings::compareWithFile(const QString &file)
{
    d->readSaved(file);
}

QAction *FindSettings::action() const
{
    return d->action;
}

} // namespace orv
