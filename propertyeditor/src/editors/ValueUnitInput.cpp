#include "orv/propertyeditor/editors/ValueUnitInput.h"

#include <orv/table_model/NumberText.h>

#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

namespace orv::ValueUnitInput {

namespace {

std::optional<double> numberIn(const QLocale &locale, const QString &text)
{
    // No group begins with zero: "0,435" has decimals.
    const auto first = std::find_if(text.cbegin(), text.cend(), [](QChar sign) { return sign.isDigit(); });
    const bool isUngrouped = first != text.cend() && *first == locale.zeroDigit();
    if (isUngrouped && text.contains(locale.groupSeparator()))
        return std::nullopt;
    bool ok = false;
    const double number = locale.toDouble(text, &ok);
    return ok && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

} // namespace

QStringList partsOf(const QString &text)
{
    constexpr std::array kDirectionMarks = {QChar(0x061C), QChar(0x200E), QChar(0x200F)};
    QString visible = text;
    for (const QChar mark : kDirectionMarks)
        visible.remove(mark);
    return visible.split(u' ', Qt::SkipEmptyParts);
}

QString inLocale(const QString &number)
{
    const QLocale locale;
    if (numberIn(locale, number))
        return number;
    const auto canonical = NumberText::canonical(number, NumberText::signOf(locale));
    return canonical ? QString(*canonical).replace(u'.', locale.decimalPoint()) : number;
}

std::optional<double> numberOf(const QString &text)
{
    return numberIn(QLocale(), inLocale(text));
}

} // namespace orv::ValueUnitInput
