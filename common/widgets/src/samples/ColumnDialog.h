#pragma once

#include <orv/samples/CustomColumns.h>

#include <QDialog>

QT_FORWARD_DECLARE_CLASS(QComboBox)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QPushButton)

namespace orv {

/// Asks for the name and type of a custom column. A name that is taken is told while it is typed.
class ColumnDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ColumnDialog(const SamplesInput::CustomColumns &present, QWidget *parent = nullptr);

    [[nodiscard]] SamplesInput::CustomColumn column() const;

private:
    void check();

    SamplesInput::CustomColumns m_present;
    QLineEdit *m_name;
    QComboBox *m_type;
    QLabel *m_problem;
    QPushButton *m_add = nullptr;
};

} // namespace orv
