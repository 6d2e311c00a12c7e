#include "NumberOptions.h"

#include "KProperty.h"

#include <algorithm>

namespace Internal {

namespace {

QLocale ungrouped(QLocale locale)
{
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    return locale;
}

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
    return decimals < 0 ? wholeDoubleText(value, kDefaultDecimals, locale)
                        : ungrouped(locale).toString(value, 'f', decimals);
}

QString wholeDoubleText(double value, int least, const QLocale &locale)
{
    const QLocale plain = ungrouped(locale);
    const QString shortest = plain.toString(value, 'f', QLocale::FloatingPointShortest);
    const qsizetype point = shortest.indexOf(plain.decimalPoint());
    const qsizetype shown = point < 0 ? 0 : shortest.size() - point - plain.decimalPoint().size();
    return shown < least ? plain.toString(value, 'f', least) : shortest;
}

NumberPart::NumberPart(const QString &text, const QString &prefix, const QString &suffix)
    : begin(!prefix.isEmpty() && text.startsWith(prefix) ? prefix.size() : 0)
    , end(text.size())
{
    if (!suffix.isEmpty() && text.endsWith(suffix)) {
        end = std::max(begin, end - suffix.size());
    }
}

bool isDecimalSign(QChar sign, const QLocale &locale)
{
    return sign == QLatin1Char('.') || sign == QLatin1Char(',') || locale.decimalPoint() == sign;
}

bool isNumberSeparator(QChar sign, const QLocale &locale)
{
    return isDecimalSign(sign, locale) || locale.groupSeparator() == sign;
}

} // namespace Internal
