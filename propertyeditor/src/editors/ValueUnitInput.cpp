#include "orv/propertyeditor/editors/ValueUnitInput.h"

#include <orv/table_model/NumberText.h>

#include <QLocale>

#include <array>

namespace orv::ValueUnitInput {

QStringList partsOf(const QString &text)
{
    constexpr std::array kDirectionMarks = {QChar(0x061C), QChar(0x200E), QChar(0x200F)};
    QString visible = text;
    for (const QChar mark : kDirectionMarks)
        visible.remove(mark);
    return visible.split(u' ', Qt::SkipEmptyParts);
}

std::optional<double> numberOf(const QString &text)
{
    const QLocale locale;
    if (const auto canonical = NumberText::canonical(text, NumberText::signOf(locale)))
        return NumberText::value(*canonical);
    bool ok = false;
    const double number = locale.toDouble(text, &ok);
    return ok ? std::optional(number) : std::nullopt;
}

} // namespace orv::ValueUnitInput
