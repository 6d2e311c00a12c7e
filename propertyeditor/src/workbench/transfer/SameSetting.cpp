#include "SameSetting.h"

#include "SameSettingPanel.h"
#include "orv/propertyeditor/workbench/DocumentHistory.h"
#include "orv/propertyeditor/workbench/Workbench.h"
#include "panels/ShortText.h"
#include "settings/CurrentSetting.h"
#include "settings/SettingEdit.h"
#include "settings/SettingJump.h"
#include "settings/SettingReader.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>

#include <QDockWidget>

#include <utility>

namespace orv {

namespace {

constexpr qsizetype kLongestInStep = 40;

} // namespace

SameSetting::SameSetting(Workbench *workbench, CurrentSetting *current)
    : QObject(workbench)
    , m_window(workbench->window())
    , m_history(workbench->history())
    , m_current(current)
    , m_panel(new SameSettingPanel)
    , m_dock(workbench->addPanel(m_panel, QStringLiteral("sameSettingPanel"), tr("Setting in &Other Columns"),
                                 Qt::BottomDockWidgetArea, QKeySequence(Qt::Key_F7)))
{
    connectDocument();
    connect(m_panel, &SameSettingPanel::shown, this, &SameSetting::refresh);
    connect(m_panel, &SameSettingPanel::applied, this, &SameSetting::apply);
    connect(m_panel, &SameSettingPanel::chosen, this, &SameSetting::jump);
}

SameSetting::~SameSetting() = default;

void SameSetting::connectDocument()
{
    const WorkflowTabs *tabs = m_window->workflowTabs();
    connect(m_current, &CurrentSetting::changed, this, &SameSetting::refreshSoon);
    connect(tabs, &WorkflowTabs::columnsChanged, this, &SameSetting::refreshSoon);
    connect(tabs, &WorkflowTabs::edited, this, &SameSetting::refreshSoon);
    connect(m_history, &DocumentHistory::changed, this, &SameSetting::refreshSoon);
    connect(m_window, &PropertyEditorWindow::documentShown, this, &SameSetting::refreshSoon);
    connect(m_window, &PropertyEditorWindow::documentSaved, this, &SameSetting::refreshSoon);
    // A window that becomes read only says so in its title. One that goes changes it, too.
    connect(m_window, &QWidget::windowTitleChanged, this, &SameSetting::refreshSoon, Qt::QueuedConnection);
}

/// Once for all changes of an event, and for a panel that is seen.
void SameSetting::refreshSoon()
{
    if (!m_dock || m_dock->isHidden() || std::exchange(m_isRefreshing, true))
        return;
    QMetaObject::invokeMethod(this, &SameSetting::refresh, Qt::QueuedConnection);
}

void SameSetting::refresh()
{
    m_isRefreshing = false;
    if (!m_dock)
        return;
    SameSettingModel *model = m_panel->model();
    const KProperty *property = m_current->property();
    const QByteArray name = property ? property->name() : QByteArray();
    if (name != model->name())
        m_panel->tell({});
    model->setRefusal(m_window && m_window->isReadOnly()
                          ? tr("This window is read only: nothing can be applied.")
                          : QString());
    model->show(SettingView::all(m_window), m_current->view(), name);
}

QString SameSetting::stepText(const QList<int> &rows) const
{
    const SameSettingModel &model = *m_panel->model();
    const auto value = [&model](int row) {
        return ShortText::line(model.index(row, SameSettingModel::Value).data().toString(), kLongestInStep);
    };
    QString before = value(rows.constFirst());
    for (const int row : rows) {
        if (value(row) != before)
            before.clear();
    }
    const QString after = value(model.sourceRow());
    const QString change = before.isEmpty() ? tr("%1 to %2").arg(model.caption(), after)
                                            : tr("%1 %2 to %3").arg(model.caption(), before, after);
    return rows.size() == 1 ? tr("%1 in %2").arg(change, model.placeText(rows.constFirst()))
                            : tr("%1 in %2 columns").arg(change, QString::number(rows.size()));
}

void SameSetting::apply()
{
    const QPointer<SameSetting> self(this);
    // What is typed counts. It and what was told of edits until now is no part of the step, and whoever hears
    // of it may close the window.
    if (m_window)
        m_window->commitTyping();
    if (self && m_history)
        m_history->takeIn();
    if (!self || !m_window || !m_dock)
        return;
    refresh();
    const SameSettingModel &model = *m_panel->model();
    const QList<int> rows = model.chosenRows();
    const KProperty *source = m_current->property();
    if (rows.isEmpty() || !source)
        return;
    QList<Target> targets;
    for (const int row : rows)
        targets.append({model.view(row), model.placeText(row)});
    const QStringList refused =
        applyTo(targets, source->name(), SettingReader::stored(*source), stepText(rows));
    if (!self || !m_dock)
        return;
    refresh();
    const qsizetype changed = targets.size() - refused.size();
    const QString done =
        changed == 1 ? tr("Applied to 1 column.") : tr("Applied to %1 columns.").arg(changed);
    m_panel->tell(refused.isEmpty() ? done : done + u'\n' + tr("Not applied to %1").arg(refused.join(u'\n')));
}

/// Who refused it, with the reason. Touches nothing of this behind the first edit.
QStringList SameSetting::applyTo(const QList<Target> &targets, const QByteArray &name,
                                 const QJsonValue &stored, const QString &step)
{
    QStringList refused;
    const QPointer<PropertyEditorWindow> window = m_window;
    const DocumentHistory::Group group(m_history, step);
    for (const Target &target : targets) {
        KPropertySet *set = SettingView::isIn(window, target.view) ? target.view->propertySet() : nullptr;
        QString refusal = SettingEdit::refusal(set, name);
        if (refusal.isEmpty() && SettingEdit::setStored(set, name, stored) == SettingEdit::Outcome::Refused)
            refusal = tr("The value doesn't fit here.");
        if (!refusal.isEmpty())
            refused.append(tr("%1: %2").arg(target.place, refusal));
    }
    return refused;
}

void SameSetting::jump(int row)
{
    const SameSettingModel &model = *m_panel->model();
    if (GridPropertyEditorView *view = model.view(row); view && m_window)
        SettingJump::toSetting(m_window, view, QByteArray(model.name()));
}
} // namespace orv
