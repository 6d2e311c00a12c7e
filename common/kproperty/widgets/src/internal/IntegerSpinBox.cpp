#include "IntegerSpinBox.h"

#include "KProperty.h"
#include "NumberOptions.h"

#include <QLineEdit>

#include <algorithm>
#include <limits>

namespace Internal {

IntegerSpinBox::IntegerSpinBox(const KProperty &property, QWidget *parent)
    : QAbstractSpinBox(parent)
    , m_type(property.type())
{
    const NumberText text(property);
    m_prefix = text.prefix;
    m_suffix = text.suffix;
    switch (m_type) {
    case KProperty::UInt:
        m_maximum = std::numeric_limits<uint>::max();
        break;
    case KProperty::ULongLong:
        m_maximum = std::numeric_limits<qulonglong>::max();
        break;
    default:
        m_minimum = std::numeric_limits<qlonglong>::min();
        m_maximum = std::numeric_limits<qlonglong>::max();
        break;
    }
    const QVariant minimum = property.option("min");
    const QVariant maximum = property.option("max");
    if (minimum.isValid()) {
        m_minimum = std::max(m_minimum, toNumber(minimum));
    }
    if (maximum.isValid() && toNumber(maximum) >= m_minimum) {
        m_maximum = std::min(m_maximum, toNumber(maximum));
    }
    m_step = std::max<Number>(1, toNumber(property.option("step", 1)));
    connect(lineEdit(), &QLineEdit::textEdited, this, &IntegerSpinBox::textEdited);
}

IntegerSpinBox::Number IntegerSpinBox::toNumber(const QVariant &value)
{
    return value.typeId() == QMetaType::ULongLong ? Number(value.toULongLong()) : Number(value.toLongLong());
}

QVariant IntegerSpinBox::value() const
{
    switch (m_type) {
    case KProperty::UInt:
        return static_cast<uint>(m_value);
    case KProperty::ULongLong:
        return static_cast<qulonglong>(m_value);
    default:
        return static_cast<qlonglong>(m_value);
    }
}

QString IntegerSpinBox::numberPart(const QString &text) const
{
    QString number = text;
    if (!m_prefix.isEmpty() && number.startsWith(m_prefix)) {
        number.remove(0, m_prefix.size());
    }
    if (!m_suffix.isEmpty() && number.endsWith(m_suffix)) {
        number.chop(m_suffix.size());
    }
    return number.trimmed();
}

IntegerSpinBox::Number IntegerSpinBox::parse(const QString &text, bool *ok) const
{
    const QString number = numberPart(text);
    const Number parsed =
        number.startsWith(QLatin1Char('-')) ? Number(number.toLongLong(ok)) : Number(number.toULongLong(ok));
    return parsed;
}

QString IntegerSpinBox::toText(Number number) const
{
    const QString digits = number < 0 ? QString::number(static_cast<qlonglong>(number))
                                      : QString::number(static_cast<qulonglong>(number));
    return m_prefix + digits + m_suffix;
}

void IntegerSpinBox::setValue(const QVariant &value)
{
    m_value = toNumber(value);
    lineEdit()->setText(toText(m_value));
}

void IntegerSpinBox::stepBy(int steps)
{
    m_value = std::clamp(m_value + steps * m_step, m_minimum, m_maximum);
    lineEdit()->setText(toText(m_value));
    lineEdit()->selectAll();
    Q_EMIT commitData(this);
}

QValidator::State IntegerSpinBox::validate(QString &input, int &) const
{
    const QString number = numberPart(input);
    if (number.isEmpty() || (number == QLatin1String("-") && m_minimum < 0)) {
        return QValidator::Intermediate;
    }
    bool ok = false;
    const Number parsed = parse(input, &ok);
    if (!ok || parsed > m_maximum) {
        return QValidator::Invalid;
    }
    return parsed < m_minimum ? QValidator::Intermediate : QValidator::Acceptable;
}

void IntegerSpinBox::fixup(QString &input) const
{
    input = toText(m_value);
}

void IntegerSpinBox::textEdited()
{
    QString text = lineEdit()->text();
    int position = 0;
    if (validate(text, position) == QValidator::Acceptable) {
        bool ok = false;
        m_value = parse(text, &ok);
        Q_EMIT commitData(this);
    }
}

QAbstractSpinBox::StepEnabled IntegerSpinBox::stepEnabled() const
{
    StepEnabled enabled = StepNone;
    enabled.setFlag(StepUpEnabled, m_value < m_maximum);
    enabled.setFlag(StepDownEnabled, m_value > m_minimum);
    return enabled;
}

} // namespace Internal
