#include "orv/propertyeditor/editors/ValueUnitDialog.h"

#include <KProperty.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <spinbox.h>

#include <limits>

namespace orv {

using PropertyEditorStringConstants::DATA;
using PropertyEditorStringConstants::VALUE_KEY;

namespace {

constexpr QLatin1String kUnitKey("unit");

bool hasUnit(const QJsonObject &value)
{
    return !value.value(kUnitKey).toString().isEmpty();
}

} // namespace

ValueUnitDialog::ValueUnitDialog(const KProperty &property, QWidget *parent)
    : IGenericEditorDialog(parent)
    , m_value(new KPropertyDoubleSpinBox(property, this, 0))
    , m_unit(new QComboBox(this))
{
    constexpr double kMost = std::numeric_limits<double>::max();
    m_value->setObjectName(QStringLiteral("ValueSpinBox"));
    m_value->setAccessibleName(tr("Value"));
    m_value->setRange(property.option("min", -kMost).toDouble(), property.option("max", kMost).toDouble());
    m_value->installEventFilter(this);
    m_unit->setObjectName(QStringLiteral("UnitComboBox"));
    m_unit->setAccessibleName(tr("Unit"));
    m_unit->addItems({QStringLiteral("Da"), QStringLiteral("ppm"), QStringLiteral("mmu")});
    m_unit->installEventFilter(this);
    auto *fields = new QHBoxLayout;
    fields->addWidget(m_value, 1);
    fields->addWidget(m_unit);
    auto *ok = new QPushButton(tr("Ok"), this);
    auto *cancel = new QPushButton(tr("Cancel"), this);
    ok->setDefault(true);
    auto *buttons = new QHBoxLayout;
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
    const double value = m_value->QDoubleSpinBox::value();
    const bool isValueChanged = value != m_shownValue;
    const bool isUnitChanged = m_unit->currentIndex() != m_shownUnit;
    if (!isValueChanged && !isUnitChanged)
        return m_data;
    QJsonObject changed = m_data;
    if (isValueChanged || !changed.contains(VALUE_KEY))
        changed.insert(VALUE_KEY, value);
    if (isUnitChanged || !hasUnit(changed))
        changed.insert(kUnitKey, m_unit->currentText());
    // The form of a setting that nobody has set.
    if (changed.value(DATA) == QJsonValue(QString()))
        changed.remove(DATA);
    return changed;
}

void ValueUnitDialog::setData(const QJsonObject &value)
{
    m_data = value;
    const QString unit = value.value(kUnitKey).toString();
    m_value->setValue(value.value(VALUE_KEY).toVariant().toDouble());
    // A unit that isn't offered stands there until another one is chosen.
    m_unit->setPlaceholderText(unit);
    m_unit->setCurrentIndex(hasUnit(value) ? m_unit->findText(unit, Qt::MatchFixedString) : 0);
    m_shownValue = m_value->QDoubleSpinBox::value();
    m_shownUnit = m_unit->currentIndex();
    m_value->selectAll();
}

bool ValueUnitDialog::eventFilter(QObject *watched, QEvent *event)
{
    // Who scrolls over a field doesn't mean to change it.
    return event->type() == QEvent::Wheel || IGenericEditorDialog::eventFilter(watched, event);
}

} // namespace orv
