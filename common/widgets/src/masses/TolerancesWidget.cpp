#include "orv/widgets/TolerancesWidget.h"

#include "../scientific/UnitField.h"

#include <orv/chemistry/MassUtils.h>
#include <orv/table_model/RowNodeBinding.h>

#include <QFormLayout>

namespace orv {

namespace {

TableColumn toleranceColumn(const QString &name, const QString &title, const QString &explanation)
{
    TableColumn column{.name = name, .title = title, .kind = TableColumnKind::Number};
    column.minimum = 0;
    column.isRequired = true;
    column.explanation = explanation;
    return column;
}

void showTolerance(UnitField *field, const MassTolerance &tolerance)
{
    field->set(RowNodeBinding::textOf(tolerance.value), tolerance.unit);
}

void takeTolerance(const UnitField *field, MassTolerance *tolerance)
{
    if (!field->value())
        return;
    if (field->text() != RowNodeBinding::textOf(tolerance->value))
        tolerance->value = *field->value();
    tolerance->unit = field->unit();
}

} // namespace

TolerancesWidget::TolerancesWidget(QWidget *parent)
    : QWidget(parent)
{
    const QStringList units = MassUtils::possibleMassToleranceUnits();
    m_product = new UnitField(
        toleranceColumn(
            QStringLiteral("productTolerance"), tr("Tolerance of the full length product"),
            tr("Largest difference between a measured mass and that of the full length product, in "
               "Dalton or ppm.")),
        units);
    m_impurities = new UnitField(
        toleranceColumn(QStringLiteral("impuritiesTolerance"), tr("Tolerance of impurities"),
                        tr("Largest difference between a measured mass and that of an impurity, in Dalton or "
                           "ppm.")),
        units);
    auto *const layout = new QFormLayout(this);
    layout->setContentsMargins({});
    layout->addRow(tr("&Full length product:"), m_product);
    layout->addRow(tr("&Impurities:"), m_impurities);
    setAccessibleName(tr("Mass tolerances"));
    for (UnitField *const field : {m_product, m_impurities})
        connect(field, &UnitField::edited, this, &TolerancesWidget::edited, Qt::QueuedConnection);
    setData({});
}

MassTolerances TolerancesWidget::data() const
{
    MassTolerances data = m_data;
    takeTolerance(m_product, &data.fullLengthProduct);
    takeTolerance(m_impurities, &data.impurities);
    return data;
}

void TolerancesWidget::setData(const MassTolerances &tolerances)
{
    m_data = tolerances;
    showTolerance(m_product, tolerances.fullLengthProduct);
    showTolerance(m_impurities, tolerances.impurities);
}

QString TolerancesWidget::problem() const
{
    return m_product->problem().isEmpty() ? m_impurities->problem() : m_product->problem();
}

QString TolerancesWidget::toPlainText() const
{
    return tr("Full length product: %1 %2").arg(m_product->text(), m_product->unit()) + u'\n' +
           tr("Impurities: %1 %2").arg(m_impurities->text(), m_impurities->unit());
}

} // namespace orv
