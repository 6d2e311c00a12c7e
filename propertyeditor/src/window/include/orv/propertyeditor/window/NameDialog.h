#pragma once

#include <orv/widgets/Export.h>

#include <QDialog>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QComboBox)
QT_FORWARD_DECLARE_CLASS(QLineEdit)

namespace orv {

/// Asks for the name of a tab or column, for a column, or for both. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT NameDialog : public QDialog
{
    Q_OBJECT

public:
    /// What is asked for; any other number is AddTab.
    enum Mode : int
    {
        AddTab = 0,
        AddColumn = 1,
        RemoveColumn = 2,
        RenameColumn = 3,
    };

    explicit NameDialog(int mode, QWidget *parent = nullptr);

    /// What can be chosen, in place of what could before. Warns on a dialog that offers no choice.
    void setComboStrings(const QStringList &texts);
    /// Both are empty on a dialog that doesn't ask for them.
    [[nodiscard]] QString name() const;
    [[nodiscard]] QString comboText() const;

private:
    QComboBox *m_combo = nullptr;
    QLineEdit *m_name = nullptr;
};

} // namespace orv
