#pragma once

#include <orv/widgets/DialogService.h>

#include <QDialog>
#include <QPointer>

#include <utility>

namespace orv {

/// A dialog for one question. Its parent may go while somebody answers, and takes the dialog along:
/// \code
///     ModalDialog<NameDialog> dialog(NameDialog::AddTab, this);
///     if (dialog.exec())
///         addTab(dialog->name());
/// \endcode
/// GUI thread.
template<class Dialog>
class ModalDialog
{
public:
    template<class... Arguments>
    explicit ModalDialog(Arguments &&...arguments)
        : m_dialog(new Dialog(std::forward<Arguments>(arguments)...))
    {}
    ~ModalDialog() { delete m_dialog; }
    Q_DISABLE_COPY_MOVE(ModalDialog)

    /// Whether it was accepted and is still there.
    [[nodiscard]] bool exec() { return DialogService::exec(*m_dialog) && m_dialog; }

    Dialog *operator->() const { return m_dialog; }
    explicit operator bool() const { return !m_dialog.isNull(); }

private:
    QPointer<Dialog> m_dialog;
};

} // namespace orv
