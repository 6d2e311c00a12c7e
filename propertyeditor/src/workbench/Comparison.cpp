#include "orv/propertyeditor/workbench/Comparison.h"

#include "ComparedDocuments.h"
#include "ComparisonPanel.h"
#include "SecondDocument.h"
#include "SettingJump.h"
#include "SettingVisits.h"
#include "orv/propertyeditor/workbench/BackgroundWork.h"
#include "orv/propertyeditor/workbench/FindSettings.h"
#include "orv/propertyeditor/workbench/Workbench.h"

#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/PropertyEditorDirLocations.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workbench/DocumentHistory.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>
#include <orv/widgets/Icons.h>
#include <orv/widgets/ORVFileDialog.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QFileInfo>
#include <QMenu>
#include <QPointer>

#include <functional>
#include <utility>

namespace orv {

class Comparison::Private
{
public:
    Private(Comparison *comparison, Workbench *workbench);

    void ask();
    void compareWith(const QString &path);
    void end();

    QAction *action;
    QString path;
    bool isReading = false;
    bool isComparing = false;
    bool isTaking = false;

private:
    struct TakenOver
    {
        DocumentState from;
        DocumentState to;
    };

    void connectPanel();
    void connectWindow();
    void receive(const Result<SecondDocument> &second);
    void fail(const QString &summary, const Error &error);
    void follow();
    void compare();
    void show(const Result<ComparisonTree> &tree);
    void takeOver();
    void finishTakingOver(const Result<TakenOver> &taken, const QString &text);
    void goTo(const QModelIndex &index);
    void leave();
    void tell();
    /// Of this document; empty for one without a file.
    [[nodiscard]] QString ownFile() const;
    [[nodiscard]] QString stepText() const;

    Comparison *const q;
    const QPointer<PropertyEditorWindow> m_window;
    DocumentHistory *const m_history;
    QString m_ownFile; ///< when the second document was read
    FindSettings *const m_find;
    ComparisonPanel *m_panel;
    QPointer<QDockWidget> m_dock;
    std::shared_ptr<const SecondDocument> m_second;
    SettingVisits m_visits;
    QPointer<QWidget> m_visited; ///< the last
    int m_number = 0;            ///< of second documents
    BackgroundWork m_work;
    bool m_isWantedAgain = false;
    bool m_isFirst = false; ///< comparison with the second document
};

Comparison::Private::Private(Comparison *comparison, Workbench *workbench)
    : action(new QAction(Icons::icon(IconName::Open), tr("Compare &with..."), comparison))
    , q(comparison)
    , m_window(workbench->window())
    , m_history(workbench->history())
    , m_find(workbench->find())
    , m_panel(new ComparisonPanel(action))
    , m_dock(workbench->addPanel(m_panel, QStringLiteral("comparisonPanel"), tr("Comparison"),
                                 Qt::BottomDockWidgetArea))
{
    action->setObjectName(QStringLiteral("compareWith"));
    action->setShortcut(Qt::CTRL | Qt::Key_F7);
    action->setToolTip(
        tr("Show in what another workflow differs from this one, and take over what you choose"));
    workbench->viewMenu()->addAction(action);
    connect(action, &QAction::triggered, q, [this] { ask(); });
    connectPanel();
    connectWindow();
}

void Comparison::Private::connectPanel()
{
    connect(m_panel, &ComparisonPanel::fileDropped, q, [this](const QString &file) { compareWith(file); });
    connect(m_panel, &ComparisonPanel::chosen, q, [this](const QModelIndex &index) { goTo(index); });
    connect(m_panel, &ComparisonPanel::takeOverWanted, q, [this] { takeOver(); });
    connect(m_panel, &ComparisonPanel::left, q, [this] { leave(); });
    connect(m_dock, &QDockWidget::visibilityChanged, q, [this] {
        if (m_dock && m_dock->isHidden())
            end();
    });
}

void Comparison::Private::connectWindow()
{
    connect(m_history, &DocumentHistory::stateChanged, q, [this] { follow(); });
    connect(m_window, &PropertyEditorWindow::documentSaved, q, [this] {
        if (m_second && m_second->isOwnFile)
            compareWith(path);
        else
            follow();
    });
    connect(m_window, &PropertyEditorWindow::documentShown, q, [this] {
        // What was checked was meant for another document.
        m_panel->model()->uncheckAll();
        follow();
    });
}

void Comparison::Private::ask()
{
    const QPointer<Comparison> self(q);
    const QString chosen = ORVFileDialog::getOpenFileName(m_window, tr("Compare With Workflow"), {},
                                                          WflwUtils::workflowFiltersInDialog(),
                                                          PropertyEditorDirLocations::OpenWorkflowLocation);
    if (self && !chosen.isEmpty())
        compareWith(chosen);
}

void Comparison::Private::compareWith(const QString &file)
{
    if (!m_dock)
        return;
    ++m_number;
    m_work.cancel();
    path = file;
    m_second.reset();
    m_find->setDiffersFromSecond({});
    isReading = true;
    isComparing = false;
    isTaking = false;
    m_isWantedAgain = false;
    m_ownFile = ownFile();
    m_panel->setRefusal({});
    m_panel->showReading(QFileInfo(file).fileName());
    m_dock->show();
    m_dock->raise();
    using Read = Result<SecondDocument>;
    m_work.run<SecondDocument>(
        [file, own = m_ownFile](const auto &isCancelled) -> Read {
            return SecondDocument::read(file, own, isCancelled);
        },
        [this](const Read &second) { receive(second); });
    tell();
}

void Comparison::Private::receive(const Result<SecondDocument> &second)
{
    isReading = false;
    const Error error = second.hasError() ? second.error() : second->error;
    if (error.hasError()) {
        const QString name = second.hasError() ? QFileInfo(path).fileName() : second->name;
        fail(tr("%1 can't be compared.").arg(name), error);
        return;
    }
    m_second = std::make_shared<const SecondDocument>(*second);
    m_isFirst = true;
    compare();
}

void Comparison::Private::fail(const QString &summary, const Error &error)
{
    m_panel->showError(summary, (error.errorMessages() + error.details()).join(u'\n'));
    m_panel->announce();
    tell();
}

/// Paths of the second document, and what is told of it, depend on the file of this one.
void Comparison::Private::follow()
{
    if (m_second && ownFile() != m_ownFile)
        compareWith(path);
    else
        compare();
}

void Comparison::Private::compare()
{
    if (!m_second || !m_window)
        return;
    m_isWantedAgain = isComparing;
    if (isComparing)
        return;
    const QPointer<Comparison> self(q);
    const DocumentState left = m_history->state();
    // Taking in an edit tells of it.
    if (!self || !m_second || isComparing)
        return;
    isComparing = true;
    using Compared = Result<ComparisonTree>;
    m_work.run<ComparisonTree>(
        [left, second = m_second](const auto &isCancelled) -> Compared {
            return ComparedDocuments::compared(left, second->state, isCancelled);
        },
        [this](const Compared &tree) { show(tree); });
    tell();
}

void Comparison::Private::show(const Result<ComparisonTree> &tree)
{
    isComparing = false;
    if (tree.hasError()) {
        m_isWantedAgain = false;
        m_find->setDiffersFromSecond({});
        fail(tr("%1 can't be compared.").arg(m_second->name), tree.error());
        return;
    }
    const auto settings = std::make_shared<const QSet<SettingPlace>>(tree->settings);
    m_panel->showTree(*tree, m_second->name, m_second->note);
    m_panel->setRefusal(m_window && m_window->isReadOnly()
                            ? tr("This window is read only: nothing can be taken over.")
                            : m_second->refusal);
    m_find->setDiffersFromSecond([settings](const SettingPlace &place) { return settings->contains(place); });
    if (std::exchange(m_isFirst, false))
        m_panel->announce();
    if (std::exchange(m_isWantedAgain, false))
        compare();
    else
        tell();
}

QString Comparison::Private::ownFile() const
{
    return m_window ? m_window->workflowFilePath() : QString();
}

QString Comparison::Private::stepText() const
{
    const ComparisonModel *model = m_panel->model();
    const int count = int(model->checkedKeys().size());
    if (model->onlySettingsAreChecked())
        return count == 1 ? tr("Take over 1 setting from %1").arg(m_second->name)
                          : tr("Take over %1 settings from %2").arg(count).arg(m_second->name);
    return count == 1 ? tr("Take over 1 difference from %1").arg(m_second->name)
                      : tr("Take over %1 differences from %2").arg(count).arg(m_second->name);
}

void Comparison::Private::takeOver()
{
    const QPointer<Comparison> self(q);
    if (m_window)
        m_window->commitTyping();
    if (!self || !m_window || !m_second || isTaking || m_panel->model()->checkedKeys().isEmpty())
        return;
    const DocumentState left = m_history->state();
    if (!self || !m_second)
        return;
    isTaking = true;
    const QSet<QString> keys = m_panel->model()->checkedKeys();
    using Taken = Result<TakenOver>;
    m_work.run<TakenOver>(
        [left, second = m_second, keys](const auto &isCancelled) -> Taken {
            return TakenOver{left, ComparedDocuments::takenOver(left, second->state, keys, isCancelled)};
        },
        [this, text = stepText()](const Taken &taken) { finishTakingOver(taken, text); });
    tell();
}

void Comparison::Private::finishTakingOver(const Result<TakenOver> &taken, const QString &text)
{
    const QPointer<Comparison> self(q);
    const int number = m_number;
    isTaking = false;
    if (taken.hasError()) {
        fail(tr("Nothing could be taken over from %1.").arg(m_second->name), taken.error());
        return;
    }
    const bool isDone = m_history->edit(taken->from, taken->to, text);
    if (!self || number != m_number)
        return;
    // Somebody typed meanwhile; what is checked still stands.
    if (!isDone)
        takeOver();
    else
        m_panel->model()->uncheckAll();
    if (self)
        tell();
}

void Comparison::Private::goTo(const QModelIndex &index)
{
    const ComparisonNode node = m_panel->model()->node(index);
    const QByteArray setting = m_panel->model()->settingAt(index);
    if (!m_window || node.tab < 0)
        return;
    const QPointer<Comparison> self(q);
    const QPointer<PropertyGridWidget> grid = m_window->workflowTabs()->grid(node.tab);
    m_window->workflowTabs()->widget()->setCurrentIndex(node.tab);
    IGridItem *item = self && grid && node.column >= 0 ? grid->items().value(node.column) : nullptr;
    const QPointer<QWidget> column = item ? item->widget() : nullptr;
    auto *view = qobject_cast<GridPropertyEditorView *>(column.data());
    if (view)
        m_visits.begin(view);
    const bool isThere = view && !setting.isEmpty() && SettingJump::toSetting(m_window, view, setting);
    if (self && m_window && column && !isThere) {
        SettingJump::show(m_window, column);
        if (column)
            column->setFocus(Qt::OtherFocusReason);
    }
    if (self && m_window && m_window->centralWidget()->isAncestorOf(QApplication::focusWidget()))
        m_visited = QApplication::focusWidget();
}

/// To where the list has led last.
void Comparison::Private::leave()
{
    const QPointer<Comparison> self(q);
    if (m_visited && m_visited->isVisible())
        m_visited->setFocus(Qt::OtherFocusReason);
    if (self && m_dock)
        m_dock->hide();
}

void Comparison::Private::end()
{
    ++m_number;
    m_work.cancel();
    isReading = false;
    isComparing = false;
    isTaking = false;
    m_isWantedAgain = false;
    path.clear();
    m_second.reset();
    m_panel->model()->uncheckAll();
    m_panel->showNothing();
    m_panel->setRefusal({});
    m_find->setDiffersFromSecond({});
    const QPointer<Comparison> self(q);
    if (m_window)
        m_visits.end(m_window);
    if (self)
        tell();
}

void Comparison::Private::tell()
{
    m_panel->setBusy(isReading || isComparing || isTaking);
    Q_EMIT q->changed();
}

Comparison::Comparison(Workbench *workbench)
    : QObject(workbench)
    , d(std::make_unique<Private>(this, workbench))
{}

Comparison::~Comparison() = default;

void Comparison::compareWith(const QString &path)
{
    d->compareWith(path);
}

void Comparison::end()
{
    d->end();
}

QString Comparison::otherPath() const
{
    return d->path;
}

bool Comparison::isBusy() const
{
    return d->isReading || d->isComparing || d->isTaking;
}

QAction *Comparison::action() const
{
    return d->action;
}

} // namespace orv
