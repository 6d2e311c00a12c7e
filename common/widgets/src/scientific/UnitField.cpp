#include "UnitField.h"

#include "../table/CellEditors.h"

#include <QHBoxLayout>

namespace orv {

UnitField::UnitField(const TableColumn &column, const QStringList &units, QWidget *parent)
    : QWidget(parent)
    , m_column(column)
{
    const NumberText::DecimalSign sign = NumberText::signOf(QLocale());
    m_line = new CellLineEdit(
        column, sign, [column](QStringView kept) { return column.problem(kept); }, this);
    m_line->setObjectName(column.name);
    m_line->setFrame(true);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_line, 1);
    setFocusProxy(m_line);
    connect(m_line, &QLineEdit::textEdited, this, &UnitField::edited);
    connect(m_line, &QLineEdit::textChanged, this, &UnitField::explain);
    if (!units.isEmpty()) {
        TableColumn choices{.name = column.name, .title = column.title, .kind = TableColumnKind::Choice};
        choices.choices = units;
        choices.isRequired = true;
        m_unit = new CellChoiceBox(choices, this);
        m_unit->setObjectName(column.name + QStringLiteral("Unit"));
        m_unit->setFocusPolicy(Qt::StrongFocus);
        layout->addWidget(m_unit);
        connect(m_unit, &QComboBox::activated, this, &UnitField::edited);
    }
    setTitle(column.title);
}

void UnitField::setTitle(const QString &title)
{
    m_line->setAccessibleName(title);
    explain();
    if (m_unit) {
        m_unit->setAccessibleName(tr("Unit: %1").arg(title));
        m_unit->setToolTip(tr("Unit of: %1").arg(title));
    }
}

void UnitField::explain()
{
    if (!problem().isEmpty())
        return;
    m_line->setToolTip(m_column.explanation);
    m_line->setAccessibleDescription(m_column.explanation);
}

QString UnitField::text() const
{
    return m_column.kept(m_line->text(), NumberText::signOf(QLocale()));
}

std::optional<double> UnitField::value() const
{
    return problem().isEmpty() ? NumberText::value(text()) : std::nullopt;
}

QString UnitField::unit() const
{
    return m_unit ? m_unit->text() : m_column.unit;
}

QString UnitField::problem() const
{
    return m_column.problem(text());
}

void UnitField::set(const QString &kept, const QString &unit)
{
    const QSignalBlocker silent(this);
    m_line->setText(m_column.shown(kept, NumberText::signOf(QLocale())));
    if (m_unit)
        m_unit->setText(unit);
}

} // namespace orv
