#include "JsonCursor.h"

#include "CellType.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

namespace orv::Internal {

namespace {

constexpr quint64 kEveryByte = 0x0101010101010101;
constexpr quint64 kHighBits = 0x8080808080808080;
constexpr qsizetype kWordSize = 8;

/// Counts of digits of which any number is exact in a quint64 and in a double.
constexpr int kExactIntegerDigits = 18;
constexpr int kExactDoubleDigits = 15;

constexpr std::array<double, 16> kPowersOfTen = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

const QByteArrayView kByteOrderMark("\xEF\xBB\xBF");

/// High bits where a byte of \a word is \a byte, and perhaps in bytes behind the first such.
quint64 bytesEqual(quint64 word, char byte)
{
    const quint64 difference = word ^ (kEveryByte * quint8(byte));
    return (difference - kEveryByte) & ~difference & kHighBits;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::optional<qint64> integerIn(const char *begin, const char *end)
{
    qint64 integer = 0;
    const auto [stop, error] = std::from_chars(begin, end, integer);
    return stop == end && error == std::errc() ? std::optional(integer) : std::nullopt;
}

/// QString::fromUtf8 would drop a byte order mark at the beginning.
bool appendUtf8(QByteArrayView bytes, QString *text)
{
    if (!bytes.isValidUtf8())
        return false;
    while (bytes.startsWith(kByteOrderMark)) {
        text->append(QChar::ByteOrderMark);
        bytes = bytes.sliced(kByteOrderMark.size());
    }
    text->append(QString::fromUtf8(bytes));
    return true;
}

bool appendCodeUnit(QByteArrayView digits, QString *text)
{
    // Of the number readers of Qt some step over blanks, and others stop at zero bytes.
    ushort unit = 0;
    const auto [stop, error] = std::from_chars(digits.begin(), digits.end(), unit, 16);
    text->append(QChar(unit));
    return digits.size() == 4 && stop == digits.end() && error == std::errc();
}

/// The escape behind a backslash; how many bytes it has, 0 when it is none.
qsizetype appendEscape(QByteArrayView escape, QString *text)
{
    constexpr QByteArrayView kLetters("\"\\/bfnrt");
    constexpr QByteArrayView kMeanings("\"\\/\b\f\n\r\t");
    if (escape.isEmpty())
        return 0;
    if (escape[0] == 'u')
        return appendCodeUnit(escape.sliced(1).first(std::min<qsizetype>(4, escape.size() - 1)), text) ? 5
                                                                                                       : 0;
    const qsizetype letter = kLetters.indexOf(escape[0]);
    if (letter < 0)
        return 0;
    text->append(QLatin1Char(kMeanings[letter]));
    return 1;
}

} // namespace

JsonCursor::JsonCursor(QByteArrayView json)
    : m_at(json.data())
    , m_end(json.data() + json.size())
{
    if (json.startsWith(kByteOrderMark))
        m_at += kByteOrderMark.size();
}

void JsonCursor::skipBlanks()
{
    while (m_at != m_end && (*m_at == ' ' || *m_at == '\n' || *m_at == '\r' || *m_at == '\t'))
        ++m_at;
}

char JsonCursor::peek()
{
    skipBlanks();
    return m_at == m_end ? '\0' : *m_at;
}

bool JsonCursor::take(char token)
{
    if (peek() != token || atEnd())
        return false;
    ++m_at;
    return true;
}

bool JsonCursor::takeWord(QByteArrayView word)
{
    skipBlanks();
    if (m_end - m_at < word.size() || std::memcmp(m_at, word.data(), size_t(word.size())) != 0)
        return false;
    m_at += word.size();
    return true;
}

std::optional<RawText> JsonCursor::takeText()
{
    RawText text{++m_at, 0, true, false};
    quint64 high = 0;
    while (true) {
        // Words of nothing special first: most texts are a few of these.
        for (; m_end - m_at >= kWordSize; m_at += kWordSize) {
            quint64 word = 0;
            std::memcpy(&word, m_at, sizeof word);
            if (bytesEqual(word, '"') | bytesEqual(word, '\\'))
                break;
            high |= word;
        }
        while (m_at != m_end && *m_at != '"' && *m_at != '\\')
            high |= quint8(*m_at++);
        if (m_at == m_end)
            return {};
        if (*m_at == '"')
            break;
        text.isEscaped = true;
        m_at += std::min<qsizetype>(2, m_end - m_at);
    }
    text.size = m_at++ - text.begin;
    text.isAscii = !(high & kHighBits);
    return text;
}

bool JsonCursor::takeDigits(quint64 *number, int *digits)
{
    const char *const begin = m_at;
    // Wraps where there are too many digits, which the callers ask first.
    for (; m_at != m_end && isDigit(*m_at); ++m_at)
        *number = *number * 10 + quint64(*m_at - '0');
    *digits += int(std::min<qsizetype>(m_at - begin, kExactIntegerDigits + 1));
    return m_at != begin;
}

bool JsonCursor::takeExponent()
{
    ++m_at;
    if (m_at != m_end && (*m_at == '+' || *m_at == '-'))
        ++m_at;
    quint64 exponent = 0;
    int digits = 0;
    return takeDigits(&exponent, &digits);
}

bool JsonCursor::takeNumber(QVariant *number)
{
    const char *const begin = m_at;
    const bool isNegative = m_at != m_end && *m_at == '-';
    m_at += isNegative;
    const char *const first = m_at;
    quint64 mantissa = 0;
    int digits = 0;
    if (!takeDigits(&mantissa, &digits) || (*first == '0' && m_at - first > 1))
        return false;
    int decimals = 0;
    const bool hasPoint = m_at != m_end && *m_at == '.';
    if (hasPoint && (++m_at, !takeDigits(&mantissa, &decimals)))
        return false;
    const bool hasExponent = m_at != m_end && (*m_at == 'e' || *m_at == 'E');
    if (hasExponent && !takeExponent())
        return false;
    if (!hasPoint && !hasExponent && digits <= kExactIntegerDigits) {
        *number = integerCell(isNegative ? -qint64(mantissa) : qint64(mantissa));
        return true;
    }
    double value = 0;
    if (!hasExponent && digits + decimals <= kExactDoubleDigits) {
        // Two exact numbers: their quotient is rounded once, as the nearest double must be.
        value = double(mantissa) / kPowersOfTen[size_t(decimals)];
        value = isNegative ? -value : value;
    } else if (const std::optional<qint64> integer = integerIn(begin, m_at)) {
        *number = integerCell(*integer);
        return true;
    } else if (std::from_chars(begin, m_at, value).ec != std::errc()) {
        return false;
    }
    *number = numberCell(value);
    return true;
}

std::optional<QString> textOf(const RawText &raw)
{
    if (raw.isAscii && !raw.isEscaped)
        return QString::fromLatin1(raw.bytes());
    QString text;
    QByteArrayView rest = raw.bytes();
    while (true) {
        const qsizetype run = rest.indexOf('\\');
        if (!appendUtf8(run < 0 ? rest : rest.first(run), &text))
            return {};
        if (run < 0)
            return text;
        const qsizetype escape = appendEscape(rest.sliced(run + 1), &text);
        if (escape == 0)
            return {};
        rest = rest.sliced(run + 1 + escape);
    }
}

} // namespace orv::Internal
