#include "EditorWindow.h"

#include "Libraries.h"
#include "RecentFiles.h"
#include "Runs.h"

#include <orv/core/Settings.h>
#include <orv/propertyeditor/editors/SlowQuestion.h>
#include <orv/propertyeditor/window/PropertyEditorDirLocations.h>
#include <orv/propertyeditor/window/PropertyEditorWindowJsonFile.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workbench/JournalKeeper.h>
#include <orv/propertyeditor/workbench/Workbench.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/ORVFileDialog.h>
#include <orv/widgets/ORVStyle.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMenuBar>
#include <QMimeData>
#include <QPointer>
#include <QStatusBar>
#include <QUrl>

namespace orv {

namespace {

constexpr QLatin1String kGeometry("Editor/WindowGeometry");
constexpr QLatin1String kPanels("Editor/WindowPanels");

/// The document in a portable folder, else the path itself.
QString fileIn(const QString &path)
{
    return WflwUtils::isMirelPortableWorkflow(path) ? WflwUtils::workflowInPortableWorkflow(path) : path;
}

/// Empty for a file that can be read, and wasn't opened for a reason that somebody was told.
QStringList whyUnreadable(const QString &path)
{
    PropertyEditorWindowJsonFile workflow(fileIn(path));
    PropertyEditorContent content;
    if (workflow.loadTabsFromJson(&content))
        return {};
    const QStringList reasons = workflow.error().errorMessages() + workflow.error().details();
    return {EditorWindow::tr("%1: %2").arg(path, reasons.join(u' '))};
}

QStringList workflowsIn(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls()) {
        const QString path = url.toLocalFile();
        if (WflwUtils::isMirelWorkflow(path) || WflwUtils::isMirelPortableWorkflow(path))
            paths.append(path);
    }
    return paths;
}

} // namespace

EditorWindow::EditorWindow(CoreMainWindow *mainWindow, std::shared_ptr<RecoveryStore> store)
    : PropertyEditorDesktopWindow(mainWindow)
    , m_mainWindow(mainWindow)
    , m_store(std::move(store))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    buildFileMenu();
    followFile();
    m_workbench = new Workbench(this);
    buildRecovery();
    buildHelpMenu();
    restoreLayout();
    statusBar()->showMessage(tr("Open a workflow with %1, or drop its file here.")
                                 .arg(QKeySequence(QKeySequence::Open).toString(QKeySequence::NativeText)));
    connect(this, &PropertyEditorWindow::documentSaved, this,
            [this] { RecentFiles::add(workflowFilePath()); });
    connect(this, &PropertyEditorWindow::sendToProcessing, this, &EditorWindow::run);
    connect(this, &PropertyEditorWindow::openProject, this,
            [](const QString &folder) { QDesktopServices::openUrl(QUrl::fromLocalFile(folder)); });
}

EditorWindow::~EditorWindow()
{
    if (m_keeper)
        m_keeper->flush();
}

void EditorWindow::restoreLayout()
{
    restoreGeometry(as::value(kGeometry).toByteArray());
    if (restoreState(as::value(kPanels).toByteArray()))
        m_workbench->keepPanelSizes();
    if (m_recoveryPanel)
        m_recoveryPanel->hide();
}

EditorWindow *EditorWindow::anotherWindow() const
{
    return new EditorWindow(m_mainWindow, m_store);
}

void EditorWindow::buildFileMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    const auto add = [this, menu](const QString &text, QKeySequence::StandardKey key, auto slot) {
        QAction *action = menu->addAction(text);
        action->setShortcuts(key);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    add(tr("&New Window"), QKeySequence::New, [this] { anotherWindow()->show(); });
    add(tr("&Open..."), QKeySequence::Open, [this] { selectAndOpenWorkflow(); });
    QMenu *recent = menu->addMenu(tr("Open &Recent"));
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecentMenu(recent); });
    menu->addSeparator();
    add(tr("&Save"), QKeySequence::Save, [this] { save(); });
    // Not every desktop names a key for it.
    add(tr("Save &As..."), QKeySequence::SaveAs, [this] {
        saveWorkflowAs();
    })->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    add(tr("Workflow &Properties..."), QKeySequence::UnknownKey, [this] { openWorkflowProperties(); });
    menu->addSeparator();
    add(tr("Create Pro&ject..."), QKeySequence::UnknownKey, [this] { createProjectClicked(); });
    menu->addSeparator();
    add(tr("&Close"), QKeySequence::Close, [this] { close(); });
    add(tr("&Quit"), QKeySequence::Quit, [] { QApplication::closeAllWindows(); });
}

void EditorWindow::fillRecentMenu(QMenu *menu)
{
    menu->clear();
    const QStringList files = RecentFiles::all();
    for (const QString &path : files) {
        QAction *action = menu->addAction(QString(path).replace(u'&', QLatin1String("&&")));
        action->setData(path);
        connect(action, &QAction::triggered, this, [this, path] { openRecent(path); });
        markIfMissing(menu, path);
    }
    if (files.isEmpty())
        menu->addAction(tr("No workflow was opened yet"))->setEnabled(false);
    else
        connect(menu->addAction(tr("&Forget These")), &QAction::triggered, this, &RecentFiles::clear);
}

/// Entries show at once; a drive that sleeps answers when it can, and is asked once until then.
void EditorWindow::markIfMissing(QMenu *menu, const QString &path)
{
    if (m_sought.contains(path))
        return;
    m_sought.insert(path);
    const auto mark = [this, menu = QPointer(menu), path](bool isThere) {
        m_sought.remove(path);
        const QList<QAction *> entries = menu && !isThere ? menu->actions() : QList<QAction *>();
        for (QAction *entry : entries) {
            if (entry->data() == path)
                entry->setText(tr("%1 (not found)").arg(QString(path).replace(u'&', QLatin1String("&&"))));
        }
    };
    const auto atOnce = SlowQuestion::ask([path] { return QFileInfo::exists(path); }, this, mark,
                                          std::chrono::milliseconds(0));
    if (atOnce)
        mark(*atOnce);
}

void EditorWindow::buildHelpMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Help"));
    connect(menu->addAction(tr("&About ORV Workflow Editor")), &QAction::triggered, this,
            &EditorWindow::showAbout);
}

void EditorWindow::showAbout()
{
    QStringList libraries;
    for (const LinkedLibrary &library : linkedLibraries()) {
        const QString name = (library.name + u' ' + library.version).trimmed();
        libraries.append(tr("%1 (%2)").arg(name, library.licence));
    }
    const QString text =
        tr("ORV Workflow Editor %1\nFormat version %2 of workflows\nLicence: %3\n\nIt stands on:\n%4")
            .arg(QApplication::applicationVersion(), WflwMetaData::currentWorkflowVersion().toString(),
                 QStringLiteral("LGPL-2.1-or-later"), libraries.join(u'\n'));
    ORVStyle::information(this, tr("About ORV Workflow Editor"), text);
}

bool EditorWindow::isPristine() const
{
    return dFunc()->workflowFilePath().isNull() && content().tabsAndContent().isEmpty();
}

EditorWindow *EditorWindow::windowOf(const QString &path) const
{
    const QString file = QFileInfo(fileIn(path)).canonicalFilePath();
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *window = qobject_cast<EditorWindow *>(widget);
        // A window may show something else by now, which has no file.
        const bool hasFile = window && QFileInfo(window->workflowFilePath()).isAbsolute();
        if (hasFile && !file.isEmpty() && window->m_file == file && !window->isPristine())
            return window;
    }
    return nullptr;
}

void EditorWindow::comeForward()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    tell(tr("The workflow is open here already."));
}

PropertyEditorWindow::OpenStatus EditorWindow::openBesides(const QString &path)
{
    if (EditorWindow *window = windowOf(path)) {
        window->comeForward();
        return OpenStatus::Opened;
    }
    if (isPristine())
        return openWorkflow(path);
    const QPointer<EditorWindow> window = anotherWindow();
    window->show();
    const OpenStatus status = window->openWorkflow(path);
    if (window && window->isPristine())
        window->close();
    return status;
}

void EditorWindow::openFiles(const QStringList &paths)
{
    const QPointer<EditorWindow> self(this);
    QStringList unreadable;
    for (const QString &path : paths) {
        if (self && openBesides(path) == OpenStatus::NotOpened)
            unreadable += whyUnreadable(path);
    }
    if (self)
        tellUnreadable(unreadable);
}

void EditorWindow::tellUnreadable(const QStringList &files)
{
    if (!files.isEmpty())
        ORVStyle::warning(this, tr("Open"), tr("Not opened:\n%1").arg(files.join(u'\n')));
}

PropertyEditorWindow::OpenStatus EditorWindow::openAndTell(const QString &path)
{
    const QPointer<EditorWindow> self(this);
    const OpenStatus status = openBesides(path);
    if (self && status == OpenStatus::NotOpened)
        tellUnreadable(whyUnreadable(path));
    return status;
}

PropertyEditorWindow::OpenStatus EditorWindow::selectAndOpenWorkflow()
{
    const QPointer<EditorWindow> self(this);
    const QString path =
        ORVFileDialog::getOpenFileName(this, tr("Launch Workflow"), {}, WflwUtils::workflowFiltersInDialog(),
                                       PropertyEditorDirLocations::OpenWorkflowLocation);
    return self && !path.isEmpty() ? openAndTell(path) : OpenStatus::NotOpened;
}

void EditorWindow::openRecent(const QString &path)
{
    const auto open = [this, path](bool isThere) {
        if (isThere) {
            openAndTell(path);
            return;
        }
        RecentFiles::remove(path);
        ORVStyle::warning(this, tr("Open Recent"), tr("The workflow isn't there any more: %1").arg(path));
    };
    const auto isThere = SlowQuestion::ask([path] { return QFileInfo::exists(path); }, this, open);
    if (isThere)
        open(*isThere);
    else
        tell(tr("Waiting for %1...").arg(QDir::toNativeSeparators(path)));
}

PropertyEditorWindow::OpenStatus EditorWindow::openWorkflow(const QString &filePath,
                                                            const ResourceReferenceSPtr &folderToPreselect)
{
    const QPointer<EditorWindow> self(this);
    // Before it is read: questions wait for their answers, and another program may write meanwhile.
    std::optional<FileStamp> stamp = FileStamp::of(fileIn(filePath));
    const auto saving = connect(this, &PropertyEditorWindow::documentUpgraded, this,
                                [this, &stamp](const DocumentUpgrade &, bool isSaved) {
                                    if (isSaved)
                                        stamp = FileStamp::of(workflowFilePath());
                                });
    const OpenStatus status = PropertyEditorDesktopWindow::openWorkflow(filePath, folderToPreselect);
    disconnect(saving);
    if (self && status == OpenStatus::Opened) {
        rememberFile(stamp);
        RecentFiles::add(filePath);
    }
    // An empty window has no file that a save would write over.
    if (self && status != OpenStatus::Opened && workflowTabs()->count() == 0)
        dFunc()->setWorkflowFilePath({});
    return status;
}

void EditorWindow::run(const PropertyEditor::Content &content, const Path &outputPath,
                       DuplicateFilePolicy policy)
{
    const QPointer<EditorWindow> self(this);
    QElapsedTimer clock;
    clock.start();
    const Runs::Outcome outcome = Runs::write(content, outputPath, content.name(), policy, this);
    if (!self)
        return;
    if (outcome.error.hasError()) {
        ORVStyle::critical(this, tr("Project creation"), outcome.error.errorMessage(), QMessageBox::Ok, {},
                           QMessageBox::NoButton, outcome.error.details().join(u'\n'));
    }
    if (self && !outcome.kept.isEmpty()) {
        ORVStyle::information(
            this, tr("Project creation"),
            tr("There is a run already, and it was kept: %1\nTo make another one, choose to keep "
               "both, or another name.")
                .arg(outcome.kept));
    }
    if (self && !outcome.folders.isEmpty())
        // Where no file manager opens it, a person still knows where the run is.
        tell(tr("The run was written to %1").arg(QDir::toNativeSeparators(outcome.folders.constFirst())));
    if (self)
        Q_EMIT projectCreationFinished(outcome.error, outcome.folders, clock.elapsed());
    for (const QString &folder : outcome.folders) {
        if (self)
            Q_EMIT openProject(folder);
    }
}

void EditorWindow::tell(const QString &message)
{
    m_workbench->tell(message);
}

void EditorWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!workflowsIn(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void EditorWindow::dropEvent(QDropEvent *event)
{
    const QStringList paths = workflowsIn(*event->mimeData());
    event->acceptProposedAction();
    // Whoever dropped them waits until this returns, and opening may ask.
    QMetaObject::invokeMethod(
        this, [this, paths] { openFiles(paths); }, Qt::QueuedConnection);
}

void EditorWindow::closeEvent(QCloseEvent *event)
{
    as::setValue(kGeometry, saveGeometry());
    as::setValue(kPanels, saveState());
    PropertyEditorDesktopWindow::closeEvent(event);
}

} // namespace orv
