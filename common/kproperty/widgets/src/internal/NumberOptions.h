#pragma once

#include <QLocale>
#include <QString>
#include <QVariant>

class KProperty;

namespace Internal {

/// What the options of a property say about the text of a number.
struct NumberText
{
    QString prefix;
    QString suffix;
    QString minimumText;

    /// For an editor: with the spaces that part them from the number.
    explicit NumberText(const KProperty &property);

    [[nodiscard]] QString around(const QString &number) const { return prefix + number + suffix; }
};

/// Decimals of a double without a precision.
constexpr int kDefaultDecimals = 2;

/// The decimals that the option "precision" asks for, or -1.
[[nodiscard]] int decimalsOf(const KProperty &property);

/// With \a decimals < 0: as many as the value has, at least two.
[[nodiscard]] QString doubleText(double value, int decimals, const QLocale &locale);

/// As many decimals as the value has, at least \a least: what one edits is what is held.
[[nodiscard]] QString wholeDoubleText(double value, int least, const QLocale &locale);

/// Where the number stands in the text of an editor, between prefix and suffix.
struct NumberPart
{
    qsizetype begin;
    qsizetype end;

    NumberPart(const QString &text, const QString &prefix, const QString &suffix);
};

/// True for the signs that languages write before decimals, whatever \a locale has.
[[nodiscard]] bool isDecimalSign(QChar sign, const QLocale &locale);
/// True for these, and for what \a locale writes between groups of digits.
[[nodiscard]] bool isNumberSeparator(QChar sign, const QLocale &locale);

} // namespace Internal
