#include "orv/propertyeditor/workbench/Comparison.h"

#include "ComparedDocuments.h"
#include "ComparisonPanel.h"
#include "Comparison_p.h"
#include "SecondDocument.h"
#include "orv/propertyeditor/workbench/FindSettings.h"
#include "orv/propertyeditor/workbench/Workbench.h"

#include <orv/propertyeditor/window/PropertyEditorDirLocations.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/workbench/DocumentHistory.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>
#include <orv/widgets/Icons.h>
#include <orv/widgets/ORVFileDialog.h>

#include <QAction>
#include <QDockWidget>
#include <QFileInfo>
#include <QMenu>
#include <QPointer>

#include <utility>

namespace orv {

Comparison::Private::Private(Comparison *comparison, Workbench *workbench)
    : action(new QAction(Icons::icon(IconName::Open), tr("Compare &with..."), comparison))
    , q(comparison)
    , m_workbench(workbench)
    , m_window(workbench->window())
    , m_history(workbench->history())
    , m_find(workbench->find())
    , m_panel(new ComparisonPanel(action))
    , m_dock(workbench->addPanel(m_panel, QStringLiteral("comparisonPanel"), tr("Co&mparison"),
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
    if (!self || chosen.isEmpty())
        return;
    compareWith(chosen);
    if (m_dock)
        m_workbench->enterPanel(m_dock);
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
