#include "ValueUnitDialog.h"

#include <KProperty.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <limits>

namespace orv {

using PropertyEditorStringConstants::VALUE_KEY;

namespace {

constexpr QLatin1String kUnitKey("unit");

} // namespace

ValueUnitDialog::ValueUnitDialog(const KProperty &property, QWidget *parent)
    : IGenericEditorDialog(parent)
    , m_value(new QDoubleSpinBox(this))
    , m_unit(new QComboBox(this))
{
    constexpr double kMost = std::numeric_limits<double>::max();
    m_value->setObjectName(QStringLiteral("ValueSpinBox"));
    m_value->setAccessibleName(tr("Value"));
    m_value->setRange(property.option("min", -kMost).toDouble(), property.option("max", kMost).toDouble());
    m_unit->setObjectName(QStringLiteral("UnitComboBox"));
    m_unit->setAccessibleName(tr("Unit"));
    m_unit->addItems({QStringLiteral("Da"), QStringLiteral("ppm"), QStringLiteral("mmu")});
    auto *fields = new QHBoxLayout;
    fields->addWidget(m_value, 1);
    fields->addWidget(m_unit);
    auto *buttons = new QHBoxLayout;
    auto *ok = new QPushButton(tr("Ok"), this);
    auto *cancel = new QPushButton(tr("Cancel"), this);
    ok->setDefault(true);
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addLayout(buttons);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

ValueUnitDialog::~ValueUnitDialog() = default;

QJsonObject ValueUnitDialog::data() const
{
    if (m_value->value() == m_shownValue && m_unit->currentText() == m_shownUnit)
        return m_data;
    QJsonObject changed = m_data;
    if (m_value->value() != m_shownValue)
        changed.insert(VALUE_KEY, m_value->value());
    changed.insert(kUnitKey, m_unit->currentText());
    return changed;
}

void ValueUnitDialog::setData(const QJsonObject &value)
{
    m_data = value;
    m_value->setValue(value.value(VALUE_KEY).toDouble(0.0));
    m_unit->setCurrentIndex(std::max(0, m_unit->findText(value.value(kUnitKey).toString())));
    m_shownValue = m_value->value();
    m_shownUnit = m_unit->currentText();
}

} // namespace orv
