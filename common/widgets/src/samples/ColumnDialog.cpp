#include "ColumnDialog.h"

#include <orv/widgets/MeaningColors.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace orv {

namespace {

struct ColumnType
{
    const char *type; ///< in files
    const char *title;
};

constexpr std::array kColumnTypes = {
    ColumnType{"text", QT_TRANSLATE_NOOP("orv::ColumnDialog", "Text")},
    ColumnType{"number", QT_TRANSLATE_NOOP("orv::ColumnDialog", "Number")},
    ColumnType{"bool", QT_TRANSLATE_NOOP("orv::ColumnDialog", "Yes or no")},
};

} // namespace

ColumnDialog::ColumnDialog(const SamplesInput::CustomColumns &present, QWidget *parent)
    : QDialog(parent)
    , m_present(present)
    , m_name(new QLineEdit)
    , m_type(new QComboBox)
    , m_problem(new QLabel)
{
    setWindowTitle(tr("Add Column"));
    m_name->setObjectName(QStringLiteral("columnName"));
    m_name->setToolTip(tr("What the column is called, such as \"Condition\" or \"Replicate\""));
    m_type->setObjectName(QStringLiteral("columnType"));
    m_type->setToolTip(tr("What stands in the column"));
    for (const ColumnType &row : kColumnTypes)
        m_type->addItem(tr(row.title), QString::fromLatin1(row.type));
    m_problem->setObjectName(QStringLiteral("columnProblem"));
    m_problem->setWordWrap(true);
    m_problem->setTextFormat(Qt::PlainText);
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, MeaningColors::error(colors));
    m_problem->setPalette(colors);
    auto *const form = new QFormLayout;
    form->addRow(tr("&Name:"), m_name);
    form->addRow(tr("&Type:"), m_type);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_add = buttons->addButton(tr("&Add Column"), QDialogButtonBox::AcceptRole);
    m_add->setDefault(true);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_problem);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this, &ColumnDialog::check);
    check();
}

SamplesInput::CustomColumn ColumnDialog::column() const
{
    return {m_name->text().trimmed(), m_type->currentData().toString(), {}, {}};
}

void ColumnDialog::check()
{
    SamplesInput::CustomColumns columns = m_present;
    const QString name = column().name;
    const bool isPossible = columns.addCustomColumn(column());
    m_problem->setText(isPossible || name.isEmpty() ? QString()
                                                    : tr("There is a column \"%1\" already.").arg(name));
    m_problem->setAccessibleName(m_problem->text());
    m_add->setEnabled(isPossible);
}

} // namespace orv
