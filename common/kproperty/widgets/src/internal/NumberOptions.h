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

/// The decimals that the option "precision" asks for, or -1.
[[nodiscard]] int decimalsOf(const KProperty &property);

/// With \a decimals < 0: as many as the value has, at least two.
[[nodiscard]] QString doubleText(double value, int decimals, const QLocale &locale);

} // namespace Internal
