#include "spinbox.h"

#include "internal/IntegerSpinBox.h"
#include "internal/NumberOptions.h"

#include <algorithm>
#include <limits>

using Internal::NumberText;

namespace {

/// Decimals of a spin box that shows as many as the value has: all that a double can mean.
constexpr int kAllDecimals = 15;
constexpr double kDefaultStep = 0.01;

double doubleOption(const KProperty &property, const char *name, double byDefault)
{
    return std::clamp(property.option(name, byDefault).toDouble(), KPROPERTY_MIN_PRECISE_DOUBLE,
                      KPROPERTY_MAX_PRECISE_DOUBLE);
}

/// The bounds of the options, as far as they make sense, but never so tight that opening an editor would
/// change the value that is there.
template<typename T>
std::pair<T, T> rangeFor(T minimum, T maximum, T lowest, T highest, T present)
{
    if (maximum < minimum) {
        minimum = lowest;
        maximum = highest;
    }
    return {std::min(minimum, present), std::max(maximum, present)};
}

} // namespace

KPropertyIntSpinBox::KPropertyIntSpinBox(const KProperty &prop, QWidget *parent, int itemHeight)
    : QSpinBox(parent)
{
    Q_UNUSED(itemHeight)
    constexpr int kLowest = -std::numeric_limits<int>::max();
    constexpr int kHighest = std::numeric_limits<int>::max();
    const NumberText text(prop);
    const auto [minimum, maximum] =
        rangeFor(prop.option("min", kLowest).toInt(), prop.option("max", kHighest).toInt(), kLowest, kHighest,
                 prop.value().toInt());
    setRange(minimum, maximum);
    setSingleStep(std::max(1, prop.option("step", 1).toInt()));
    setPrefix(text.prefix);
    setSuffix(text.suffix);
    setSpecialValueText(text.minimumText);
    connect(this, &QSpinBox::valueChanged, this, &KPropertyIntSpinBox::slotValueChanged);
}

KPropertyIntSpinBox::~KPropertyIntSpinBox() = default;

QVariant KPropertyIntSpinBox::value() const
{
    return QSpinBox::value();
}

QValidator::State KPropertyIntSpinBox::validate(QString &input, int &position) const
{
    const Internal::NumberPart part(input, prefix(), suffix());
    const QString number = input.mid(part.begin, part.end - part.begin);
    const bool isSeparated = std::any_of(number.cbegin(), number.cend(), [this](QChar sign) {
        return Internal::isNumberSeparator(sign, locale());
    });
    return isSeparated ? QValidator::Invalid : QSpinBox::validate(input, position);
}

void KPropertyIntSpinBox::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(this);
    QSpinBox::setValue(value.toInt());
}

void KPropertyIntSpinBox::slotValueChanged(int)
{
    Q_EMIT commitData(this);
}

KPropertyDoubleSpinBox::KPropertyDoubleSpinBox(const KProperty &prop, QWidget *parent, int itemHeight)
    : QDoubleSpinBox(parent)
{
    Q_UNUSED(itemHeight)
    const NumberText text(prop);
    const int decimals = Internal::decimalsOf(prop);
    m_leastDecimals = decimals >= 0 ? decimals : Internal::kDefaultDecimals;
    setDecimals(std::max(kAllDecimals, decimals));
    const auto [minimum, maximum] =
        rangeFor(doubleOption(prop, "min", KPROPERTY_MIN_PRECISE_DOUBLE),
                 doubleOption(prop, "max", KPROPERTY_MAX_PRECISE_DOUBLE), KPROPERTY_MIN_PRECISE_DOUBLE,
                 KPROPERTY_MAX_PRECISE_DOUBLE, prop.value().toDouble());
    setRange(minimum, maximum);
    const double step = prop.option("step", kDefaultStep).toDouble();
    setSingleStep(step > 0.0 ? step : kDefaultStep);
    setPrefix(text.prefix);
    setSuffix(text.suffix);
    setSpecialValueText(text.minimumText);
    connect(this, &QDoubleSpinBox::valueChanged, this, &KPropertyDoubleSpinBox::slotValueChanged);
}

KPropertyDoubleSpinBox::~KPropertyDoubleSpinBox() = default;

QString KPropertyDoubleSpinBox::textFromValue(double value) const
{
    return Internal::wholeDoubleText(value, m_leastDecimals, locale());
}

/// Puts the language's own sign before the decimals; false for groups of digits and for several signs.
bool KPropertyDoubleSpinBox::readSeparators(QString *text) const
{
    const Internal::NumberPart part(*text, prefix(), suffix());
    int count = 0;
    for (qsizetype i = part.begin; i < part.end; ++i) {
        if (Internal::isDecimalSign(text->at(i), locale())) {
            text->replace(i, 1, locale().decimalPoint());
            ++count;
        } else if (Internal::isNumberSeparator(text->at(i), locale())) {
            return false;
        }
    }
    return count <= 1;
}

double KPropertyDoubleSpinBox::valueFromText(const QString &text) const
{
    QString number = text;
    return readSeparators(&number) ? QDoubleSpinBox::valueFromText(number) : value();
}

QValidator::State KPropertyDoubleSpinBox::validate(QString &input, int &position) const
{
    return readSeparators(&input) ? QDoubleSpinBox::validate(input, position) : QValidator::Invalid;
}

void KPropertyDoubleSpinBox::fixup(QString &input) const
{
    // The base class would take a comma out as a sign between groups.
    readSeparators(&input);
}

void KPropertyDoubleSpinBox::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(this);
    QDoubleSpinBox::setValue(value.toDouble());
}

void KPropertyDoubleSpinBox::slotValueChanged(double)
{
    Q_EMIT commitData(this);
}

KPropertyIntSpinBoxDelegate::KPropertyIntSpinBoxDelegate() = default;

QString KPropertyIntSpinBoxDelegate::propertyValueToString(const KProperty *prop, const QLocale &locale) const
{
    const NumberText text(*prop);
    if (!text.minimumText.isEmpty() && prop->value() == prop->option("min")) {
        return text.minimumText;
    }
    return text.around(valueToString(prop->value(), locale));
}

QString KPropertyIntSpinBoxDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    Q_UNUSED(locale)
    return value.typeId() == QMetaType::ULongLong ? QString::number(value.toULongLong())
                                                  : QString::number(value.toLongLong());
}

QWidget *KPropertyIntSpinBoxDelegate::createEditor(int type, QWidget *parent,
                                                   const QStyleOptionViewItem &option,
                                                   const QModelIndex &index) const
{
    const KProperty *const property = KPropertyUtils::propertyForIndex(index);
    if (!property) {
        return nullptr;
    }
    if (type == KProperty::Int) {
        return new KPropertyIntSpinBox(*property, parent, option.rect.height());
    }
    return new Internal::IntegerSpinBox(*property, parent);
}

KPropertyDoubleSpinBoxDelegate::KPropertyDoubleSpinBoxDelegate() = default;

QString KPropertyDoubleSpinBoxDelegate::propertyValueToString(const KProperty *prop,
                                                              const QLocale &locale) const
{
    const NumberText text(*prop);
    if (!text.minimumText.isEmpty() && prop->value().toDouble() == prop->option("min").toDouble()) {
        return text.minimumText;
    }
    return text.around(Internal::doubleText(prop->value().toDouble(), Internal::decimalsOf(*prop), locale));
}

QString KPropertyDoubleSpinBoxDelegate::valueToString(const QVariant &value, const QLocale &locale) const
{
    return locale.toString(value.toDouble());
}

QWidget *KPropertyDoubleSpinBoxDelegate::createEditor(int type, QWidget *parent,
                                                      const QStyleOptionViewItem &option,
                                                      const QModelIndex &index) const
{
    Q_UNUSED(type)
    const KProperty *const property = KPropertyUtils::propertyForIndex(index);
    return property ? new KPropertyDoubleSpinBox(*property, parent, option.rect.height()) : nullptr;
}
