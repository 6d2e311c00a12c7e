#pragma once

#include <orv/propertyeditor/window/PropertyEditorDesktopWindow.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QDockWidget)
QT_FORWARD_DECLARE_CLASS(QMenu)

namespace orv {

class DocumentHistory;
class JournalKeeper;
class RecoveryPanel;
class Workbench;

/// One workflow of the application: the document window with menus, recent files, drops, and the recovery of
/// unsaved workflows. Several may be open at once; each deletes itself when it closes.
class EditorWindow : public PropertyEditorDesktopWindow
{
    Q_OBJECT

public:
    /// Unsaved changes are kept in \a store, or not at all without one.
    explicit EditorWindow(CoreMainWindow *mainWindow, std::shared_ptr<RecoveryStore> store = {});
    ~EditorWindow() override;

    OpenStatus selectAndOpenWorkflow() override;
    OpenStatus openWorkflow(const QString &filePath,
                            const ResourceReferenceSPtr &folderToPreselect = {}) override;
    using PropertyEditorDesktopWindow::openWorkflow;

    /// Opens in this window if it is empty, else in a new one, so that nothing unsaved goes.
    OpenStatus openBesides(const QString &path);
    /// Opens each as openBesides(), and tells of those that can't be read once the others are there.
    void openFiles(const QStringList &paths);

    /// Shows what can be recovered, if there is something.
    void offerRecovery();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void buildFileMenu();
    void buildRecovery(Workbench *workbench);
    void buildHelpMenu();
    void fillRecentMenu(QMenu *menu);
    void openRecent(const QString &path);
    OpenStatus openAndTell(const QString &path);
    void tellUnreadable(const QStringList &files);
    void run(const PropertyEditor::Content &content, const Path &outputPath, DuplicateFilePolicy policy);
    void tellRun(const QString &folder);
    void showAbout();
    void recover(const RecoveryEntry &entry, RecoveryFileState state);
    [[nodiscard]] bool showRecovered(RecoveryStore::Taken &taken, const RecoveryEntry &entry,
                                     const QString &path);
    [[nodiscard]] std::optional<PropertyEditorContent> stateToKeep() const;
    void restoreLayout();
    [[nodiscard]] bool isPristine() const;
    [[nodiscard]] EditorWindow *anotherWindow() const;

    CoreMainWindow *const m_mainWindow;
    const std::shared_ptr<RecoveryStore> m_store;
    JournalKeeper *m_keeper = nullptr;      ///< a child
    DocumentHistory *m_history = nullptr;   ///< a child
    RecoveryPanel *m_recovery = nullptr;    ///< in the panel
    QDockWidget *m_recoveryPanel = nullptr; ///< a child
};

} // namespace orv
