#pragma once

#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/PropertyEditorWindowPrivate.h>
#include <orv/widgets/Export.h>

QT_FORWARD_DECLARE_CLASS(QToolButton)

namespace orv {

class PropertyEditorDesktopWindowPrivate;

/// The document window of desktop applications: makes projects, and saves portable workflows.
/// \code
///     PropertyEditorDesktopWindow window(mainWindow, nullptr);
///     QObject::connect(&window, &PropertyEditorWindow::sendToProcessing, application, &Application::run);
///     window.show();
///     window.openWorkflow(path);
/// \endcode
/// GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT PropertyEditorDesktopWindow : public PropertyEditorWindow
{
    Q_OBJECT

public:
    /// Both may be null; \a mainWindow isn't owned.
    explicit PropertyEditorDesktopWindow(CoreMainWindow *mainWindow, QWidget *parent = nullptr);
    ~PropertyEditorDesktopWindow() override;

    [[nodiscard]] WorkflowAppType workflowAppType() const override { return WorkflowAppType::Mirel; }
    void enableWorkflowFileOperations(bool enabled) override;

protected:
    /// Asks for a folder that carries the workflow with its files, and goes on with the workflow in there.
    void savePortableWorkflow();

private:
    friend class PropertyEditorDesktopWindowPrivate;

    void writePortableWorkflow(const QString &path);
    void tellNotCarried(const QStringList &files);

    PropertyEditorDesktopWindowPrivate *desktop() const;
};

class ORV_PROPERTY_EDITOR_EXPORT PropertyEditorDesktopWindowPrivate : public PropertyEditorWindowPrivate
{
    Q_OBJECT

public:
    PropertyEditorDesktopWindowPrivate(PropertyEditorDesktopWindow *window, CoreMainWindow *mainWindow);
    ~PropertyEditorDesktopWindowPrivate() override;

    bool createProject() override;

private:
    friend class PropertyEditorDesktopWindow;

    PropertyEditorDesktopWindow *const m_window;
    QToolButton *m_savePortableButton = nullptr;
};

} // namespace orv
