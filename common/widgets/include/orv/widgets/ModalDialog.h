#pragma once

#include <orv/widgets/DialogService.h>

#include <QDialog>
#include <QPointer>

namespace orv {

/// A dialog for one question. Its parent may go while somebody answers, and takes the dialog along:
/// \code
///     ModalDialog dialog(new NameDialog(NameDialog::AddTab, this));
///     if (dialog.exec())
///         addTab(dialog->name());
/// \endcode
/// GUI thread.
template<class Dialog>
class ModalDialog
{
public:
    /// Takes \a dialog over.
    explicit ModalDialog(Dialog *dialog)
        : m_dialog(dialog)
    {}
    ~ModalDialog() { delete m_dialog; }
    Q_DISABLE_COPY_MOVE(ModalDialog)

    /// Whether it was accepted and is still there.
    [[nodiscard]] bool exec() { return m_dialog && DialogService::exec(*m_dialog) && m_dialog; }

    [[nodiscard]] Dialog *get() const { return m_dialog; }
    Dialog *operator->() const { return m_dialog; }

private:
    QPointer<Dialog> m_dialog;
};

} // namespace orv
