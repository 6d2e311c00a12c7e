#pragma once

#include <orv/core/Export.h>

#include <QLocale>
#include <QString>
#include <QStringView>

#include <optional>

/// Numbers as people write them and as tables keep them. A table keeps the digits that were typed, never a
/// rounded value: "1.50" stays "1.50", with a point, no group signs and no blanks. Any thread.
namespace orv::NumberText {

enum class DecimalSign
{
    Point,
    Comma,
};

/// The sign that people of this locale type; a point for those that use another one.
[[nodiscard]] ORV_WORKFLOW_EXPORT DecimalSign signOf(const QLocale &locale);

/// The kept form of \a typed. A point that stands alone is always a decimal sign, as instruments write it. A
/// comma is one where \a sign says so, or where it can't part thousands ("0,435"). Nothing for what is no
/// number, and for "1,234" where people write a point: it may be two numbers, and isn't guessed.
[[nodiscard]] ORV_WORKFLOW_EXPORT std::optional<QString> canonical(QStringView typed, DecimalSign sign);

/// Whether \a typed is such a text that may be two numbers.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isAmbiguous(QStringView typed);

/// Whether \a text is a number in its kept form.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isCanonical(QStringView text);

/// The number of a kept form; nothing for any other text and for what no double holds.
[[nodiscard]] ORV_WORKFLOW_EXPORT std::optional<double> value(QStringView text);

/// The kept form of a number, with as few digits as tell it from others, and without an exponent where that
/// can be read.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString fromDouble(double number);

/// A kept form as people of that sign read it: the same digits.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString shown(QStringView text, DecimalSign sign);

} // namespace orv::NumberText
