#include "EditorWindow.h"

#include <orv/propertyeditor/validators/WorkflowFile.h>
#include <orv/propertyeditor/workbench/DocumentHistory.h>
#include <orv/propertyeditor/workbench/FindSettings.h>
#include <orv/propertyeditor/workbench/JournalKeeper.h>
#include <orv/propertyeditor/workbench/RecoveredPlace.h>
#include <orv/propertyeditor/workbench/RecoveryJournal.h>
#include <orv/propertyeditor/workbench/RecoveryPanel.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>
#include <orv/propertyeditor/workbench/Workbench.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QPointer>

namespace orv {

namespace {

/// Where a workflow is at home whose file isn't what it was any more: beside it, where its relative
/// references hold, under a name that nothing has.
QString besideTheFile(const QString &file)
{
    const QFileInfo info(file);
    const QString name = EditorWindow::tr("%1 (recovered)").arg(info.completeBaseName());
    return pathForResult(info.dir().filePath(name + u'.' + info.suffix()), DuplicateFilePolicy::KeepBoth);
}

QString pathOfRecovered(const RecoveryEntry &entry, RecoveryFileState state)
{
    if (entry.file.isEmpty())
        return entry.name;
    return state == RecoveryFileState::Unchanged ? entry.file : besideTheFile(entry.file);
}

/// Also where there is no file yet.
bool isOfThisVersion(const QString &path)
{
    if (!QFileInfo(path).isAbsolute() || !QFileInfo::exists(path))
        return true;
    const Result<PropertyEditor::WorkflowFile> file = PropertyEditor::WorkflowFile::open(path);
    return !file.hasError() && file->version() == WflwMetaData::currentWorkflowVersion();
}

} // namespace

void EditorWindow::buildRecovery()
{
    if (!m_store)
        return;
    m_history = m_workbench->history();
    m_keeper = new JournalKeeper(this, m_store,
                                 {[this] { return stateToKeep(); },
                                  [this] { return dFunc()->getLastSavedWorkflow(); },
                                  [this] { return dFunc()->lost(); }});
    connect(m_history, &DocumentHistory::stateChanged, m_keeper, &JournalKeeper::noteEdit);
    connect(m_history, &DocumentHistory::upgradeDropped, m_keeper, &JournalKeeper::beginWithoutFile);
    m_recovery = new RecoveryPanel(m_store);
    m_recoveryPanel = m_workbench->addPanel(m_recovery, QStringLiteral("recovery"), tr("Unsave&d Workflows"),
                                            Qt::BottomDockWidgetArea);
    connect(m_recoveryPanel->toggleViewAction(), &QAction::triggered, m_recovery, [this](bool isShown) {
        if (isShown)
            m_recovery->refresh();
    });
    connect(m_recovery, &RecoveryPanel::recoverRequested, this, &EditorWindow::recover);
    connect(m_recovery, &RecoveryPanel::keptForLater, m_recoveryPanel, &QWidget::hide);
    connect(m_recovery, &RecoveryPanel::emptied, m_recoveryPanel, &QWidget::hide);
}

/// Of a workflow whose upgrade was taken back, nothing is unsaved; but one that was recovered is nowhere
/// else.
std::optional<PropertyEditorContent> EditorWindow::stateToKeep() const
{
    if (!m_history->isUpgradeTakenBack())
        return m_history->state().content(extendedMetadata());
    PropertyEditorContent opened(dFunc()->getLastSavedWorkflow());
    return opened.tabsAndContent().isEmpty() ? std::nullopt : std::optional(opened);
}

void EditorWindow::offerRecovery()
{
    if (!m_recovery || !m_recovery->refresh())
        return;
    m_recoveryPanel->show();
    m_recoveryPanel->raise();
}

void EditorWindow::recover(const RecoveryEntry &entry, RecoveryFileState state)
{
    const QPointer<EditorWindow> self(this);
    Result<RecoveryStore::Taken> taken = m_store->take(entry);
    if (taken.hasError()) {
        m_recovery->refresh();
        m_recovery->tell(taken.ecatch());
        return;
    }
    if (entry.hasDocument) {
        const QPointer<EditorWindow> window = isPristine() ? this : anotherWindow();
        window->show();
        const bool isShown = window->showRecovered(*taken, entry, pathOfRecovered(entry, state));
        if (!isShown && window && window != self && window->isPristine())
            window->close();
    } else {
        // Its lock goes with it, and so does the journal: the window that opens makes one of its own.
        taken->journal.reset();
        openFiles({entry.file});
    }
    if (self && !m_recovery->refresh())
        m_recoveryPanel->hide();
}

/// What isn't shown stays in the journal.
bool EditorWindow::showRecovered(RecoveryStore::Taken &taken, const RecoveryEntry &entry, const QString &path)
{
    const QPointer<EditorWindow> self(this);
    std::optional<FileStamp> stamp = FileStamp::of(path);
    // The panel has looked at the file earlier.
    if (stamp && stamp->time > entry.edited)
        stamp.reset();
    PropertyEditorContent content(taken.document);
    if (openWorkflow(&content, std::nullopt, path) != OpenStatus::Opened || !self)
        return false;
    dFunc()->countAsUnsaved(entry.lost);
    m_keeper->adopt(std::move(taken.journal));
    m_history->countAsUnsaved();
    rememberFile(stamp);
    // An upgrade that was edited was kept as it was, and its file as that is.
    if (!isOfThisVersion(path))
        m_isUpgraded = true;
    // What changed since the last save is told by the file, if it is still the one that was opened.
    if (path == entry.file && QFileInfo(path).isAbsolute())
        m_workbench->find()->compareWithFile(path);
    tell(tr("The workflow was recovered. Save it to keep it."));
    showRecoveredPlace(this, entry.lastEdit);
    return self;
}

} // namespace orv
