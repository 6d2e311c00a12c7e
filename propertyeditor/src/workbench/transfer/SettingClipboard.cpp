#include "SettingClipboard.h"

#include "SettingCopy.h"
#include "StatusLine.h"
#include "orv/propertyeditor/workbench/DocumentHistory.h"
#include "orv/propertyeditor/workbench/Workbench.h"
#include "panels/LeavablePanel.h"
#include "panels/YieldingShortcuts.h"
#include "settings/CurrentSetting.h"
#include "settings/SettingEdit.h"
#include "settings/SettingView.h"

#include <KPropertySet.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/widgets/Icons.h>

#include <QAction>
#include <QClipboard>
#include <QDockWidget>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

namespace orv {

namespace {

struct CopyCommand
{
    const char *name;
    const char *text;
    const char *tip;
};

// clang-format off
constexpr std::array<CopyCommand, 3> kCopyCommands = {{
    {"copySettingsAsText", QT_TRANSLATE_NOOP("orv::SettingClipboard", "&Text"), QT_TRANSLATE_NOOP("orv::SettingClipboard", "Caption, value and unit of the selected settings, a line for each")},
    {"copySettingsAsJson", QT_TRANSLATE_NOOP("orv::SettingClipboard", "&JSON"), QT_TRANSLATE_NOOP("orv::SettingClipboard", "The selected settings as files hold them")},
    {"copySettingsAsCommandLine", QT_TRANSLATE_NOOP("orv::SettingClipboard", "Command &Line"), QT_TRANSLATE_NOOP("orv::SettingClipboard", "A command that gives the column in the file the selected settings")},
}};
// clang-format on

} // namespace

SettingClipboard::SettingClipboard(Workbench *workbench, CurrentSetting *current)
    : QObject(workbench)
    , m_window(workbench->window())
    , m_history(workbench->history())
    , m_current(current)
    , m_refused(new QPlainTextEdit)
    , m_isReadOnly(m_window->isReadOnly())
{
    auto *page = new LeavablePanel;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins({});
    layout->addWidget(m_refused);
    page->setFocusProxy(m_refused);
    m_dock = workbench->addPanel(page, QStringLiteral("settingsNotPasted"), tr("Settings Not &Pasted"),
                                 Qt::BottomDockWidgetArea);
    m_refused->setObjectName(QStringLiteral("settingsNotPastedList"));
    m_refused->setAccessibleName(tr("Settings that were not pasted"));
    m_refused->setReadOnly(true);
    m_refused->setTabChangesFocus(true);
    m_refused->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_refused->setPlaceholderText(tr("Everything that was pasted last fitted."));
    addCommands(workbench->editMenu());
    connect(m_current, &CurrentSetting::changed, this, &SettingClipboard::update);
    // A window that becomes read only says so in its title. One that goes changes it, too.
    connect(
        m_window, &QWidget::windowTitleChanged, this,
        [this] {
            m_isReadOnly = m_window && m_window->isReadOnly();
            update();
        },
        Qt::QueuedConnection);
    connect(m_window, &PropertyEditorWindow::documentShown, this, [this] { m_refused->clear(); });
    update();
}

SettingClipboard::~SettingClipboard() = default;

void SettingClipboard::addCommands(QMenu *menu)
{
    menu->addSeparator();
    m_copyMenu = menu->addMenu(Icons::icon(IconName::Copy), tr("&Copy Settings As"));
    m_copyMenu->setToolTipsVisible(true);
    for (size_t i = 0; i < kCopyCommands.size(); ++i) {
        const CopyCommand &command = kCopyCommands.at(i);
        m_copy.at(i) = m_copyMenu->addAction(tr(command.text), this, [this, i] { copy(Form(i)); });
        m_copy.at(i)->setObjectName(QLatin1String(command.name));
        m_copy.at(i)->setToolTip(tr(command.tip));
    }
    m_paste =
        menu->addAction(Icons::icon(IconName::Paste), tr("&Paste Settings"), this, &SettingClipboard::paste);
    m_paste->setObjectName(QStringLiteral("pasteSettings"));
    YieldingShortcuts::set(m_copy.at(int(Form::Text)), QKeySequence::keyBindings(QKeySequence::Copy));
    YieldingShortcuts::set(m_paste, QKeySequence::keyBindings(QKeySequence::Paste));
}

void SettingClipboard::update()
{
    using Focus = CurrentSetting::Focus;
    const bool isThere = m_current->view() && m_current->focus() != Focus::Elsewhere;
    const bool canCopy = isThere && !m_current->selected().isEmpty();
    m_copyMenu->setEnabled(canCopy);
    for (QAction *action : m_copy)
        action->setEnabled(canCopy);
    m_paste->setEnabled(isThere && !m_isReadOnly && m_current->focus() == Focus::Rows);
    m_paste->setToolTip(
        m_isReadOnly ? tr("This window is read only: nothing can be pasted.")
        : m_paste->isEnabled()
            ? tr("Give the column the settings that were copied as text, JSON or command line")
        : isThere ? tr("Leave the value that is being edited first.")
                  : tr("Go to a column of settings first."));
}

void SettingClipboard::copy(Form form)
{
    const QPointer<SettingClipboard> self(this);
    // What is being typed is copied, too, and whoever hears of it may close the window.
    if (m_current->view() && m_current->focus() == CurrentSetting::Focus::Editor)
        m_current->view()->editorView()->acceptInput();
    const KPropertySet *set = self && m_current->view() ? m_current->view()->propertySet() : nullptr;
    const QList<QByteArray> names = set ? m_current->selected() : QList<QByteArray>();
    if (names.isEmpty())
        return;
    const Result<QByteArray> json = SettingCopy::asJson(*set, names);
    if (json.hasError() && form == Form::Json)
        return tell(json.error().errorMessage());
    QStringList leftOut;
    const QString command = form == Form::CommandLine ? commandLine(&leftOut) : QString();
    if (form == Form::CommandLine && command.isEmpty())
        return tell(tr("No command line holds these settings: %1").arg(leftOut.join(QStringLiteral(", "))));
    auto data = std::make_unique<QMimeData>();
    data->setText(form == Form::Text   ? SettingCopy::asText(*set, names, m_window->locale())
                  : form == Form::Json ? QString::fromUtf8(*json)
                                       : command);
    if (!json.hasError())
        data->setData(SettingPaste::kMimeType, *json);
    QGuiApplication::clipboard()->setMimeData(data.release());
    const qsizetype count = names.size() - leftOut.size();
    const QString done = count == 1 ? tr("1 setting copied.") : tr("%1 settings copied.").arg(count);
    tell(leftOut.isEmpty()
             ? done
             : tr("%1 No command line holds: %2").arg(done, leftOut.join(QStringLiteral(", "))));
}

QString SettingClipboard::commandLine(QStringList *leftOut) const
{
    const GridPropertyEditorView *view = m_current->view();
    const auto place = SettingView::of(m_window, view);
    if (!place)
        return {};
    const WorkflowTabs *tabs = m_window->workflowTabs();
    QStringList names;
    for (int i = 0; i < tabs->widget()->count(); ++i)
        names.append(tabs->widget()->tabText(i));
    const QString file = m_window->workflowFilePath();
    const SettingCopy::FilePlace target{
        QFileInfo(file).isAbsolute() ? file : tr("WORKFLOW.wflw"),
        SettingCopy::placeArgument(names, place->tab),
        SettingCopy::placeArgument(tabs->grid(place->tab)->columnNames(), place->column)};
    const SettingCopy::CommandLine line =
        SettingCopy::asCommandLine(*view->propertySet(), m_current->selected(), target);
    *leftOut = line.leftOut;
    return target.tab.isEmpty() || target.column.isEmpty() ? QString() : line.text;
}

void SettingClipboard::paste()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    const QPointer<GridPropertyEditorView> view = m_current->view();
    const KPropertySet *set = view ? view->propertySet() : nullptr;
    if (!set || !m_window)
        return;
    if (!SettingPaste::hasSettings(data))
        return tell(tr("Nothing was pasted: the clipboard holds no text."));
    const Result<QList<PastedSetting>> pasted = SettingPaste::parse(*data);
    if (pasted.hasError())
        return tell(tr("Nothing was pasted. %1").arg(pasted.error().errorMessage()));
    const SettingPaste::Plan plan = SettingPaste::plan(
        *pasted, *set, WflwMetaData::contentMode(m_window->workflowMetadata()), m_window->locale());
    if (plan.isKnown)
        return apply(view, plan);
    tell(tr("Nothing was pasted: the column has none of the settings that the clipboard tells of."));
}

void SettingClipboard::apply(GridPropertyEditorView *shown, const SettingPaste::Plan &plan)
{
    const QPointer<SettingClipboard> self(this);
    const QPointer<GridPropertyEditorView> view(shown);
    const QPointer<PropertyEditorWindow> window(m_window);
    const QString place = placeOf(shown);
    Outcome outcome{place, 0, 0, plan.refused};
    // What was told of edits until now is no part of the step, and whoever hears of it may close the window.
    if (m_history)
        m_history->takeIn();
    if (self && m_history) {
        const qsizetype count = std::ranges::count_if(plan.values, [view](const auto &each) {
            return view && SettingEdit::changes(view->propertySet(), each.first, each.second);
        });
        const DocumentHistory::Group step(m_history,
                                          count == 1 ? tr("Paste 1 setting into %1").arg(place)
                                                     : tr("Paste %1 settings into %2").arg(count).arg(place));
        for (const auto &[name, value] : plan.values) {
            KPropertySet *set = SettingView::isIn(window, view) ? view->propertySet() : nullptr;
            const QString refusal = SettingEdit::refusal(set, name);
            const SettingEdit::Outcome made = SettingEdit::setValue(set, name, value);
            outcome.changed += int(made == SettingEdit::Outcome::Changed);
            outcome.same += int(made == SettingEdit::Outcome::HadIt);
            if (made == SettingEdit::Outcome::Refused)
                outcome.refused.append(tr("%1: %2").arg(QString::fromUtf8(name), refusal));
        }
    }
    if (self)
        report(outcome);
}

QString SettingClipboard::placeOf(const GridPropertyEditorView *view) const
{
    const auto column = SettingView::of(m_window, view);
    return column ? column->placeText() : QString();
}

QString SettingClipboard::textOf(const Outcome &outcome)
{
    QStringList told;
    if (outcome.changed > 0) {
        told.append(outcome.changed == 1
                        ? tr("1 setting pasted into %1.").arg(outcome.place)
                        : tr("%1 settings pasted into %2.").arg(outcome.changed).arg(outcome.place));
    } else if (outcome.same == 0) {
        told.append(tr("Nothing was pasted."));
    }
    if (outcome.same > 0) {
        told.append(
            outcome.same == 1
                ? tr("1 setting of %1 had its value already.").arg(outcome.place)
                : tr("%1 settings of %2 had their values already.").arg(outcome.same).arg(outcome.place));
    }
    return told.join(u' ');
}

void SettingClipboard::report(const Outcome &outcome)
{
    if (!m_dock)
        return;
    const QStringList &refused = outcome.refused;
    m_refused->setPlainText(refused.join(u'\n'));
    const QString done = textOf(outcome);
    if (refused.isEmpty()) {
        m_dock->hide();
        return tell(done);
    }
    m_dock->show();
    m_dock->raise();
    tell(refused.size() == 1 ? tr("%1 Not pasted: %2").arg(done, refused.constFirst())
                             : tr("%1 Not pasted: %2 settings, see below.").arg(done).arg(refused.size()));
}

void SettingClipboard::tell(const QString &text)
{
    StatusLine::tell(m_window, text);
}

} // namespace orv
