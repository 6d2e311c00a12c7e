#pragma once

#include <orv/propertyeditor/window/PropertyEditorDesktopWindow.h>

QT_FORWARD_DECLARE_CLASS(QMenu)

namespace orv {

/// One workflow of the application: the document window with menus, recent files and drops. Several may be
/// open at once; each deletes itself when it closes.
class EditorWindow : public PropertyEditorDesktopWindow
{
    Q_OBJECT

public:
    explicit EditorWindow(CoreMainWindow *mainWindow);

    OpenStatus selectAndOpenWorkflow() override;
    OpenStatus openWorkflow(const QString &filePath,
                            const ResourceReferenceSPtr &folderToPreselect = {}) override;
    using PropertyEditorDesktopWindow::openWorkflow;

    /// Opens in this window if it is empty, else in a new one, so that nothing unsaved goes.
    OpenStatus openBesides(const QString &path);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void buildFileMenu();
    void buildHelpMenu();
    void fillRecentMenu(QMenu *menu);
    void openRecent(const QString &path);
    void run(const PropertyEditor::Content &content, const Path &outputPath, DuplicateFilePolicy policy);
    void showAbout();
    [[nodiscard]] bool isPristine() const;

    CoreMainWindow *const m_mainWindow;
};

} // namespace orv
