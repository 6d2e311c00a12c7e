#pragma once

#include "FileStamp.h"

#include <orv/propertyeditor/window/PropertyEditorDesktopWindow.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>

#include <QSet>

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

    /// Goes to the window that shows the file already; else opens in this window if it is empty, or in a new
    /// one, so that nothing unsaved goes.
    OpenStatus openBesides(const QString &path);
    /// Writes the workflow into its file. It asks for a name where there is no file yet or where an earlier
    /// version wrote it, for a folder where it is that of a portable workflow, and before it takes away what
    /// another program wrote meanwhile.
    void save();
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
    void followFile();
    /// \a stamp is that of the content which is shown.
    void rememberFile(const std::optional<FileStamp> &stamp);
    void buildRecovery();
    void buildHelpMenu();
    void fillRecentMenu(QMenu *menu);
    void markIfMissing(QMenu *menu, const QString &path);
    void openRecent(const QString &path);
    OpenStatus openAndTell(const QString &path);
    [[nodiscard]] EditorWindow *windowOf(const QString &path) const;
    void comeForward();
    [[nodiscard]] bool mayReplaceFile();
    void tellUnreadable(const QStringList &files);
    void run(const PropertyEditor::Content &content, const Path &outputPath, DuplicateFilePolicy policy);
    /// In the status line, and to who listens to the screen.
    void tell(const QString &message);
    void showAbout();
    void recover(const RecoveryEntry &entry, RecoveryFileState state);
    [[nodiscard]] bool showRecovered(RecoveryStore::Taken &taken, const RecoveryEntry &entry,
                                     const QString &path);
    [[nodiscard]] std::optional<PropertyEditorContent> stateToKeep() const;
    void restoreLayout();
    [[nodiscard]] bool isPristine() const;
    [[nodiscard]] EditorWindow *anotherWindow() const;

    CoreMainWindow *const m_mainWindow;
    QSet<QString> m_sought; ///< recent files, until their drive answers
    const std::shared_ptr<RecoveryStore> m_store;
    QString m_file;                         ///< the canonical path of what was opened or saved last
    std::optional<FileStamp> m_fileStamp;   ///< as it was then; none where it may be another by now
    bool m_isUpgraded = false;              ///< the file is of another version than what is shown
    JournalKeeper *m_keeper = nullptr;      ///< a child
    Workbench *m_workbench = nullptr;       ///< a child
    DocumentHistory *m_history = nullptr;   ///< a child
    RecoveryPanel *m_recovery = nullptr;    ///< in the panel
    QDockWidget *m_recoveryPanel = nullptr; ///< a child
};

} // namespace orv
