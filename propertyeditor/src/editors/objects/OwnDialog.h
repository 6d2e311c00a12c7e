#pragma once

#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/DialogService.h>

#include <QDialog>
#include <QPointer>

namespace orv {

/// A dialog for as long as it is asked. Its window may take it along while it is open.
template<class Dialog>
class OwnDialog
{
public:
    explicit OwnDialog(Dialog *dialog)
        : m_dialog(dialog)
    {}
    ~OwnDialog() { delete m_dialog; }
    Q_DISABLE_COPY_MOVE(OwnDialog)

    /// Whether it was accepted, and still exists.
    [[nodiscard]] bool exec() { return m_dialog && DialogService::exec(*m_dialog) && m_dialog; }
    [[nodiscard]] Dialog *get() const { return m_dialog; }
    Dialog *operator->() const { return m_dialog; }

private:
    QPointer<Dialog> m_dialog;
};

/// Above which window dialogs open: that of the application, else that of \a editor.
[[nodiscard]] inline QWidget *windowForDialog(const QWidget *editor)
{
    if (CoreMainWindow *main = CoreMainWindow::getMainWindow())
        return main;
    return editor ? editor->window() : nullptr;
}

} // namespace orv
