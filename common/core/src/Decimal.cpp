#include "orv/core/Decimal.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orv {

namespace {

constexpr std::array<qint64, Decimal::kMaxDecimals + 1> kPowersOfTen = {
    1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000, 1000000000};

constexpr int kMaxDigits = 18;
constexpr double kTooLarge = 1e18;

qint64 powerOfTen(int exponent)
{
    return kPowersOfTen[size_t(exponent)];
}

} // namespace

std::optional<Decimal> Decimal::fromDouble(double value, int decimals)
{
    Decimal result;
    result.m_decimals = std::clamp(decimals, 0, kMaxDecimals);
    const double scaled = std::round(value * double(powerOfTen(result.m_decimals)));
    if (!std::isfinite(scaled) || std::abs(scaled) >= kTooLarge)
        return {};
    result.m_scaled = qint64(scaled);
    return result;
}

std::optional<Decimal> Decimal::fromString(const QString &text)
{
    const bool negative = text.startsWith(QLatin1Char('-'));
    const qsizetype dot = text.indexOf(QLatin1Char('.'));
    qint64 scaled = 0;
    int digits = 0;
    int decimals = 0;
    for (qsizetype i = negative ? 1 : 0; i < text.size(); ++i) {
        if (i == dot)
            continue;
        const char16_t unit = text[i].unicode();
        if (unit < u'0' || unit > u'9' || ++digits > kMaxDigits)
            return {};
        scaled = scaled * 10 + (unit - u'0');
        decimals += dot >= 0 && i > dot;
    }
    if (digits == 0 || decimals > kMaxDecimals || (dot >= 0 && decimals == 0))
        return {};
    Decimal result;
    result.m_scaled = negative ? -scaled : scaled;
    result.m_decimals = decimals;
    return result;
}

double Decimal::toDouble() const
{
    return double(m_scaled) / double(powerOfTen(m_decimals));
}

QString Decimal::toString() const
{
    const qint64 scale = powerOfTen(m_decimals);
    const qint64 magnitude = std::abs(m_scaled);
    QString text = m_scaled < 0 ? QStringLiteral("-") : QString();
    text += QString::number(magnitude / scale);
    if (m_decimals > 0) {
        text += QLatin1Char('.') +
                QString::number(magnitude % scale).rightJustified(m_decimals, QLatin1Char('0'));
    }
    return text;
}

int compare(const Decimal &a, const Decimal &b)
{
    // Whole parts first: scaling the one with fewer decimals up could overflow.
    const qint64 scaleA = powerOfTen(a.m_decimals);
    const qint64 scaleB = powerOfTen(b.m_decimals);
    const qint64 wholeA = a.m_scaled / scaleA;
    const qint64 wholeB = b.m_scaled / scaleB;
    if (wholeA != wholeB)
        return wholeA < wholeB ? -1 : 1;
    const qint64 fractionA = (a.m_scaled % scaleA) * (powerOfTen(Decimal::kMaxDecimals) / scaleA);
    const qint64 fractionB = (b.m_scaled % scaleB) * (powerOfTen(Decimal::kMaxDecimals) / scaleB);
    return fractionA == fractionB ? 0 : fractionA < fractionB ? -1 : 1;
}

} // namespace orv
