#pragma once

#include <orv/widgets/DuplicateFilePolicy.h>
#include <orv/widgets/Export.h>
#include <orv/widgets/Path.h>

#include <QDialog>

QT_FORWARD_DECLARE_CLASS(QButtonGroup)
QT_FORWARD_DECLARE_CLASS(QDialogButtonBox)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLineEdit)

namespace orv {

/// Asks for the folder of several projects, and what becomes of those that exist there. It begins in the
/// folder where projects were made last, and remembers the one that is accepted. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT TargetProjectPathChooserDialog : public QDialog
{
    Q_OBJECT

public:
    explicit TargetProjectPathChooserDialog(QWidget *parent = nullptr);

    [[nodiscard]] Path outputPath() const;
    [[nodiscard]] DuplicateFilePolicy duplicateFilePolicy() const;

    void accept() override;

private:
    void build();
    void browse();
    void check();

    QLineEdit *m_folder = nullptr;
    QLabel *m_problem = nullptr;
    QButtonGroup *m_policies = nullptr;
    QDialogButtonBox *m_buttons = nullptr;
};

} // namespace orv
