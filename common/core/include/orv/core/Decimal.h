#pragma once

#include <orv/core/Export.h>

#include <QString>

#include <optional>

namespace orv {

/// A number with a fixed count of decimals, such as a time in minutes with two: 1.0 with 2 decimals reads
/// "1.00". Stored as a scaled integer, so that equality and text are exact. A plain value.
class ORV_WORKFLOW_EXPORT Decimal
{
public:
    static constexpr int kMaxDecimals = 9;

    Decimal() = default;

    /// Rounds \a value half away from zero to \a decimals (0 to 9, clamped). Nothing for a value that isn't
    /// finite or has more than 18 digits with its decimals.
    [[nodiscard]] static std::optional<Decimal> fromDouble(double value, int decimals);

    /// Parses "-12.50"; the count of decimals is that of the text. Nothing for any other text, more than 9
    /// decimals or more than 18 digits.
    [[nodiscard]] static std::optional<Decimal> fromString(const QString &text);

    [[nodiscard]] double toDouble() const;
    [[nodiscard]] QString toString() const;
    [[nodiscard]] int decimals() const { return m_decimals; }

    /// Compares the numbers: 1.0 equals 1.00.
    friend bool operator==(const Decimal &a, const Decimal &b) { return compare(a, b) == 0; }
    friend bool operator<(const Decimal &a, const Decimal &b) { return compare(a, b) < 0; }

private:
    friend int compare(const Decimal &a, const Decimal &b);

    qint64 m_scaled = 0;
    int m_decimals = 0;
};

/// Below, equal or above: negative, 0, positive.
ORV_WORKFLOW_EXPORT int compare(const Decimal &a, const Decimal &b);

} // namespace orv
