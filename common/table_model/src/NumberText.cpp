#include "orv/table_model/NumberText.h"

#include <algorithm>
#include <cmath>

namespace orv::NumberText {

namespace {

constexpr char16_t kMinusSign = 0x2212;
constexpr char16_t kNoBreakSpace = 0x00A0;
constexpr char16_t kNarrowNoBreakSpace = 0x202F;

bool isDigitSign(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isGroupBlank(QChar c)
{
    return c == u' ' || c == kNoBreakSpace || c == kNarrowNoBreakSpace || c == u'\'' || c == QChar(0x2019);
}

qsizetype digitsFrom(QStringView text, qsizetype at)
{
    qsizetype end = at;
    while (end < text.size() && isDigitSign(text[end]))
        ++end;
    return end - at;
}

/// Where the exponent begins, or the end.
qsizetype exponentAt(QStringView text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'e' || text[i] == u'E')
            return i;
    }
    return text.size();
}

/// "1.234.567" with \a group: one to three digits, then groups of three.
bool isGrouped(QStringView digits, QChar group)
{
    const qsizetype first = digitsFrom(digits, 0);
    if (first < 1 || first > 3 || digits[0] == u'0')
        return false;
    for (qsizetype at = first; at < digits.size(); at += 4) {
        if (digits[at] != group || digitsFrom(digits, at + 1) < 3 ||
            (at + 4 < digits.size() && digits[at + 4] != group))
            return false;
    }
    return true;
}

/// The digits before the decimal sign without their group signs, nothing where these stand out of place.
std::optional<QString> withoutGroups(QStringView whole, QChar ownSign)
{
    const auto sign = std::find_if(whole.cbegin(), whole.cend(), [](QChar c) { return !isDigitSign(c); });
    if (sign == whole.cend())
        return whole.toString();
    const bool isAllowed = isGroupBlank(*sign) || ((*sign == u',' || *sign == u'.') && *sign != ownSign);
    if (!isAllowed || !isGrouped(whole, *sign))
        return std::nullopt;
    return whole.toString().remove(*sign);
}

/// Where the decimal sign stands: the last of the two kinds, and the only one of its kind.
qsizetype decimalAt(QStringView digits)
{
    const qsizetype last = std::max(digits.lastIndexOf(u'.'), digits.lastIndexOf(u','));
    return last >= 0 && digits.count(digits[last]) == 1 ? last : -1;
}

bool mayPartThousands(QStringView digits)
{
    return digits.count(u',') == 1 && !digits.contains(u'.') && isGrouped(digits, u',');
}

QStringView withoutSign(QStringView text)
{
    const bool isSigned = !text.isEmpty() && (text[0] == u'-' || text[0] == u'+' || text[0] == kMinusSign);
    return isSigned ? text.sliced(1) : text;
}

bool isExponent(QStringView text)
{
    if (text.isEmpty())
        return true;
    const QStringView digits = withoutSign(text.sliced(1));
    return !digits.isEmpty() && digitsFrom(digits, 0) == digits.size();
}

} // namespace

DecimalSign signOf(const QLocale &locale)
{
    return locale.decimalPoint() == QLatin1String(",") ? DecimalSign::Comma : DecimalSign::Point;
}

bool isCanonical(QStringView text)
{
    qsizetype at = !text.isEmpty() && text[0] == u'-' ? 1 : 0;
    const qsizetype whole = digitsFrom(text, at);
    at += whole;
    qsizetype fraction = 0;
    if (at < text.size() && text[at] == u'.') {
        fraction = digitsFrom(text, at + 1);
        at += fraction + 1;
    }
    if (whole + fraction == 0)
        return false;
    return at == text.size() || (exponentAt(text) == at && isExponent(text.sliced(at)));
}

std::optional<QString> canonical(QStringView typed, DecimalSign sign)
{
    const QStringView text = typed.trimmed();
    if (isCanonical(text))
        return text.toString();
    const QStringView unsignedText = withoutSign(text);
    const QStringView digits = unsignedText.first(exponentAt(unsignedText));
    if (sign == DecimalSign::Point && mayPartThousands(digits))
        return std::nullopt;
    const qsizetype at = decimalAt(digits);
    const QStringView wholeDigits = at < 0 ? digits : digits.first(at);
    const QChar ownSign = at < 0 ? QChar() : digits[at];
    const std::optional<QString> whole = withoutGroups(wholeDigits, ownSign);
    if (!whole)
        return std::nullopt;
    QString kept = unsignedText.size() < text.size() && text[0] != u'+' ? QStringLiteral("-") : QString();
    kept += *whole;
    if (at >= 0)
        kept += u'.' + digits.sliced(at + 1).toString();
    kept += unsignedText.sliced(digits.size()).toString().replace(kMinusSign, u'-');
    return isCanonical(kept) ? std::optional(kept) : std::nullopt;
}

bool isAmbiguous(QStringView typed)
{
    const QStringView unsignedText = withoutSign(typed.trimmed());
    return mayPartThousands(unsignedText.first(exponentAt(unsignedText)));
}

std::optional<double> value(QStringView text)
{
    if (!isCanonical(text))
        return std::nullopt;
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

QString shown(QStringView text, DecimalSign sign)
{
    QString result = text.toString();
    if (sign == DecimalSign::Comma && isCanonical(text))
        result.replace(u'.', u',');
    return result;
}

QString fromDouble(double number)
{
    const double size = std::abs(number);
    const bool isReadable = size == 0 || (size >= 1e-6 && size < 1e15);
    return QString::number(number, isReadable ? 'f' : 'g', QLocale::FloatingPointShortest);
}

} // namespace orv::NumberText
