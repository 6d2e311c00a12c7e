#include "orv/propertyeditor/workbench/RecoveryPanel.h"

#include "RecoveryModels.h"
#include "panels/WorkList.h"
#include "panels/WrappedTexts.h"

#include <orv/core/DetachedWork.h>
#include <orv/core/Error.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>
#include <orv/widgets/ORVStyle.h>

#include <QFutureWatcher>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QPushButton>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace orv {

namespace {

constexpr int kNarrowestRecoveryColumn = 12; ///< in characters

QTreeView *recoveryList(QAbstractItemModel *model, const QString &name)
{
    auto *view = new WorkList;
    view->setModel(model);
    view->setAccessibleName(name);
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setAllColumnsShowFocus(true);
    view->setTabKeyNavigation(false);
    view->setTextElideMode(Qt::ElideMiddle);
    return view;
}

QLabel *recoveryLabel()
{
    auto *label = new QLabel;
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

/// What was open without changes is there to be opened again, and was never unsaved.
QString titleOf(const QList<RecoveryEntry> &entries)
{
    if (entries.isEmpty())
        return RecoveryPanel::tr("There are no unsaved workflows to recover.");
    const auto unsaved = std::ranges::count(entries, true, &RecoveryEntry::hasDocument);
    if (unsaved == 0)
        return RecoveryPanel::tr(
            "These workflows were open when the program ended. They have no unsaved changes.");
    if (unsaved == entries.size())
        return RecoveryPanel::tr("These workflows were not saved when their windows closed or the program "
                                 "ended. Nothing was written to their files.");
    return RecoveryPanel::tr(
        "These workflows were not saved, or were open, when the program ended. Nothing was written to their "
        "files.");
}

} // namespace

RecoveryPanel::RecoveryPanel(std::shared_ptr<RecoveryStore> store, QWidget *parent)
    : QWidget(parent)
    , m_store(std::move(store))
    , m_model(new RecoveryModel(this))
    , m_changes(new RecoveryChangesModel(this))
{
    build();
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RecoveryPanel::showCurrent);
    connect(m_view, &QTreeView::activated, this, &RecoveryPanel::recoverSelected);
    showCurrent();
}

RecoveryPanel::~RecoveryPanel() = default;

void RecoveryPanel::build()
{
    m_title = recoveryLabel();
    auto *splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(makeEntries());
    splitter->addWidget(makeChanges());
    splitter->setStretchFactor(0, 2);
    splitter->setStretchFactor(1, 3);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_title);
    layout->addWidget(splitter, 1);
    layout->addWidget(makeButtons());
}

QWidget *RecoveryPanel::makeEntries()
{
    m_view = recoveryList(m_model, tr("Unsaved workflows"));
    m_view->setWhatsThis(
        tr("Workflows that can be opened as they were. Enter recovers those that are chosen."));
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->header()->setStretchLastSection(false);
    m_view->header()->setMinimumSectionSize(kNarrowestRecoveryColumn * fontMetrics().averageCharWidth());
    m_view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_view->header()->setSectionResizeMode(RecoveryModel::Workflow, QHeaderView::Stretch);
    // Name, time and number.
    m_view->setMinimumWidth(4 * kNarrowestRecoveryColumn * fontMetrics().averageCharWidth());
    return m_view;
}

QWidget *RecoveryPanel::makeChanges()
{
    m_changesView = recoveryList(m_changes, tr("Changes of the unsaved workflow"));
    m_changesView->setWhatsThis(tr("In what the unsaved workflow differs from its file"));
    new WrappedTexts(m_changesView);
    m_changesView->header()->setSectionResizeMode(QHeaderView::Stretch);
    m_count = recoveryLabel();
    m_remark = recoveryLabel();
    auto *side = new QWidget;
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins({});
    layout->addWidget(m_count);
    layout->addWidget(m_changesView, 1);
    layout->addWidget(m_remark);
    return side;
}

QWidget *RecoveryPanel::makeButtons()
{
    m_recover = new QPushButton(tr("&Recover"));
    m_recover->setToolTip(tr("Opens the workflow as it was. Its file stays as it is until you save."));
    auto *later = new QPushButton(tr("&Keep for Later"));
    later->setToolTip(tr("Closes this panel. The View menu opens it again."));
    m_discard = new QPushButton(tr("&Discard..."));
    m_discard->setToolTip(tr("Deletes what was kept of the chosen workflows."));
    connect(m_recover, &QPushButton::clicked, this, &RecoveryPanel::recoverSelected);
    connect(later, &QPushButton::clicked, this, &RecoveryPanel::keptForLater);
    connect(m_discard, &QPushButton::clicked, this, &RecoveryPanel::discardSelected);
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    layout->addStretch();
    for (QPushButton *button : {m_recover, later, m_discard})
        layout->addWidget(button);
    return row;
}

bool RecoveryPanel::refresh()
{
    m_states.clear();
    m_asked.clear();
    m_model->setEntries(m_store->entries());
    const bool hasEntries = m_model->rowCount() > 0;
    QString title = titleOf(m_model->entries());
    if (const QStringList aside = m_store->setAside(); !aside.isEmpty())
        title += u'\n' + tr("What couldn't be read was set aside: %1").arg(aside.join(QLatin1String(", ")));
    m_title->setText(title);
    if (hasEntries)
        m_view->setCurrentIndex(m_model->index(0, 0));
    showCurrent();
    return hasEntries;
}

void RecoveryPanel::tell(const Error &error)
{
    m_title->setText((error.errorMessages() + error.details()).join(u'\n'));
}

QList<RecoveryEntry> RecoveryPanel::selected() const
{
    QList<RecoveryEntry> entries;
    for (const QModelIndex &row : m_view->selectionModel()->selectedRows())
        entries.append(m_model->entries().at(row.row()));
    return entries;
}

std::optional<RecoveryEntry> RecoveryPanel::current() const
{
    const QList<RecoveryEntry> entries = selected();
    return entries.size() == 1 ? std::optional(entries.constFirst()) : std::nullopt;
}

void RecoveryPanel::showCurrent()
{
    const std::optional<RecoveryEntry> entry = current();
    m_recover->setEnabled(!selected().isEmpty());
    m_discard->setEnabled(!selected().isEmpty());
    askFiles();
    m_changes->setChanges(entry ? entry->changes.told : QList<RecoveryChange>());
    m_count->clear();
    m_remark->clear();
    if (!entry)
        return;
    const QLocale locale;
    const qsizetype told = entry->changes.told.size();
    if (told < entry->changes.count)
        m_count->setText(tr("The first %1 of %2 changes:")
                             .arg(locale.toString(told), locale.toString(entry->changes.count)));
    else if (!entry->hasDocument)
        m_count->setText(tr("No unsaved changes"));
    else
        m_count->setText(told == 1 ? tr("1 change") : tr("%1 changes").arg(locale.toString(told)));
    m_remark->setText(remarkOn(*entry));
}

QString RecoveryPanel::remarkOn(const RecoveryEntry &entry) const
{
    const auto state = m_states.constFind(entry.journal);
    if (state == m_states.constEnd())
        return tr("Looking whether the file was changed since...");
    switch (*state) {
    case RecoveryFileState::Unchanged:
        return entry.hasDocument ? tr("Its file wasn't changed since it was opened.")
                                 : tr("It was open without unsaved changes; recovering opens its file.");
    case RecoveryFileState::Changed:
        return tr("Its file was changed since it was opened. It is recovered as a new workflow; compare the "
                  "two before you save it in place of the file.");
    case RecoveryFileState::Missing:
        return tr("Its file isn't there any more. It is recovered as a new workflow.");
    case RecoveryFileState::NeverSaved:
        return tr("It was never saved.");
    case RecoveryFileState::Unknown:
        break;
    }
    return tr("Whether its file was changed since can't be told. It is recovered as a new workflow.");
}

/// Of those that would be recovered.
void RecoveryPanel::askFiles()
{
    for (const RecoveryEntry &entry : selected()) {
        if (m_asked.contains(entry.journal))
            continue;
        m_asked.insert(entry.journal);
        askFile(entry);
    }
}

/// On a thread of its own, as the disk may never answer.
void RecoveryPanel::askFile(const RecoveryEntry &entry)
{
    using Watcher = QFutureWatcher<Result<RecoveryFileState>>;
    auto *watcher = new Watcher(this);
    connect(watcher, &Watcher::finished, this, [this, watcher, journal = entry.journal] {
        watcher->deleteLater();
        m_states.insert(journal, watcher->result().valueOr(RecoveryFileState::Unknown));
        if (const std::optional<RecoveryEntry> shown = current(); shown && shown->journal == journal)
            m_remark->setText(remarkOn(*shown));
    });
    watcher->setFuture(
        DetachedWork::run<RecoveryFileState>([entry] { return RecoveryStore::fileState(entry); }));
}

void RecoveryPanel::recoverSelected()
{
    const QPointer<RecoveryPanel> self(this);
    const QHash<QString, RecoveryFileState> states = m_states;
    for (const RecoveryEntry &entry : selected()) {
        if (self)
            Q_EMIT recoverRequested(entry, states.value(entry.journal, RecoveryFileState::Unknown));
    }
}

void RecoveryPanel::discardSelected()
{
    const QPointer<RecoveryPanel> self(this);
    const QList<RecoveryEntry> entries = selected();
    if (entries.isEmpty())
        return;
    QStringList names;
    for (const RecoveryEntry &entry : entries)
        names.append(RecoveryModel::nameOf(entry));
    const auto answer = ORVStyle::question(
        this, tr("Discard Unsaved Changes"),
        tr("The unsaved changes of these workflows are deleted and can't be brought back:\n%1")
            .arg(names.join(u'\n')),
        QMessageBox::Discard | QMessageBox::Cancel, {{QMessageBox::Discard, tr("Discard")}},
        QMessageBox::Cancel);
    if (self && answer == QMessageBox::Discard)
        discard(entries);
}

void RecoveryPanel::discard(const QList<RecoveryEntry> &entries)
{
    Error failure;
    for (const RecoveryEntry &entry : entries) {
        if (Error error = m_store->discard(entry))
            failure = error.ecatch();
    }
    const bool hasMore = refresh();
    if (failure.hasError())
        tell(failure);
    else if (!hasMore)
        Q_EMIT emptied();
}

} // namespace orv
