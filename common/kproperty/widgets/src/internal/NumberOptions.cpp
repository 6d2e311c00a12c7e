#include "NumberOptions.h"

#include "KProperty.h"

#include <algorithm>

namespace Internal {

namespace {

constexpr int kDefaultDecimals = 2;

} // namespace

NumberText::NumberText(const KProperty &property)
    : prefix(property.option("prefix").toString().trimmed())
    , suffix(property.option("suffix").toString().trimmed())
{
    if (!prefix.isEmpty()) {
        prefix += QLatin1Char(' ');
    }
    if (!suffix.isEmpty()) {
        suffix.prepend(QLatin1Char(' '));
    }
    if (property.option("min").isValid()) {
        minimumText = property.option("minValueText").toString();
    }
}

int decimalsOf(const KProperty &property)
{
    const QVariant precision = property.option("precision");
    return precision.isValid() ? std::max(0, precision.toInt()) : -1;
}

QString doubleText(double value, int decimals, const QLocale &locale)
{
    QLocale plain = locale;
    plain.setNumberOptions(plain.numberOptions() | QLocale::OmitGroupSeparator);
    if (decimals >= 0) {
        return plain.toString(value, 'f', decimals);
    }
    const QString shortest = plain.toString(value, 'f', QLocale::FloatingPointShortest);
    const qsizetype point = shortest.indexOf(plain.decimalPoint());
    const qsizetype shown = point < 0 ? 0 : shortest.size() - point - 1;
    return shown < kDefaultDecimals ? plain.toString(value, 'f', kDefaultDecimals) : shortest;
}

} // namespace Internal
