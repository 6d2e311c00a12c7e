#include "orv/core/JsonNumbers.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cstring>
#include <vector>

namespace orv {

namespace {

/// As many as every double needs.
constexpr qsizetype kMostDigits = 17;

struct JsonNumbersTr
{
    Q_DECLARE_TR_FUNCTIONS(JsonNumbers)
};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Digits without zeros at the ends, and the power of ten of the last one: equal for equal numbers.
struct Decimal10
{
    QByteArray digits;
    qint64 exponent = 0;

    explicit Decimal10(QByteArrayView text)
    {
        const auto mark = std::find_if(text.begin(), text.end(), [](char c) { return c == 'e' || c == 'E'; });
        const QByteArrayView mantissa = text.first(mark - text.begin());
        if (mark != text.end())
            exponent = text.sliced(mantissa.size() + 1).toByteArray().toLongLong();
        const qsizetype point = mantissa.indexOf('.');
        if (point >= 0)
            exponent -= mantissa.size() - point - 1;
        std::copy_if(mantissa.begin(), mantissa.end(), std::back_inserter(digits), &isDigit);
        while (digits.endsWith('0')) {
            digits.chop(1);
            ++exponent;
        }
        digits.remove(0, std::find_if(digits.begin(), digits.end(), [](char c) { return c != '0'; }) -
                             digits.begin());
        if (digits.isEmpty())
            exponent = 0;
    }

    bool operator==(const Decimal10 &) const = default;
};

/// Most documents have no such number, and need no walk.
bool hasManyDigits(QByteArrayView json)
{
    qsizetype count = 0;
    for (const char c : json) {
        count = isDigit(c) ? count + 1 : c == '.' ? count : 0;
        if (count > kMostDigits)
            return true;
    }
    return false;
}

class NumberWalk
{
public:
    explicit NumberWalk(QByteArrayView json)
        : m_position(json.begin())
        , m_end(json.end())
    {}

    QList<Loss> run()
    {
        while (m_position != m_end)
            step(*m_position);
        return m_losses;
    }

private:
    struct Level
    {
        bool isObject;
        qsizetype index = 0;
        QString key = {};
    };

    void step(char c)
    {
        if (c == '"')
            return takeString();
        if (isDigit(c) || c == '-')
            return takeNumber();
        ++m_position;
        if (c == '{' || c == '[') {
            m_levels.push_back({c == '{'});
            m_keyExpected = c == '{';
        } else if ((c == '}' || c == ']') && !m_levels.empty()) {
            m_levels.pop_back();
            m_keyExpected = false;
        } else if (c == ',' && !m_levels.empty()) {
            ++m_levels.back().index;
            m_keyExpected = m_levels.back().isObject;
        }
    }

    void takeString()
    {
        const char *const begin = m_position;
        for (++m_position; m_position != m_end && *m_position != '"'; ++m_position)
            m_position += *m_position == '\\' && m_position + 1 != m_end;
        m_position += m_position != m_end;
        if (!m_keyExpected || m_levels.empty())
            return;
        const QByteArray array = '[' + QByteArray(begin, m_position - begin) + ']';
        m_levels.back().key = QJsonDocument::fromJson(array).array().at(0).toString();
        m_keyExpected = false;
    }

    void takeNumber()
    {
        const char *const begin = m_position;
        while (m_position != m_end && (isDigit(*m_position) || std::strchr("+-.eE", *m_position)))
            ++m_position;
        const QByteArray text(begin, m_position - begin);
        const Decimal10 stored(text);
        if (stored.digits.size() <= kMostDigits)
            return;
        QByteArray written = QJsonDocument::fromJson('[' + text + ']').toJson(QJsonDocument::Compact);
        written = written.mid(1, written.size() - 2);
        if (Decimal10(written) != stored)
            m_losses.append({pointer(), JsonNumbersTr::tr("a number"),
                             JsonNumbersTr::tr("it has more digits than are kept"), QString::fromLatin1(text),
                             QString::fromLatin1(written)});
    }

    [[nodiscard]] QString pointer() const
    {
        QString pointer;
        for (const Level &level : m_levels)
            pointer += QLatin1Char('/') +
                       (level.isObject ? jsonPointerToken(level.key) : QString::number(level.index));
        return pointer;
    }

    const char *m_position;
    const char *m_end;
    std::vector<Level> m_levels;
    QList<Loss> m_losses;
    bool m_keyExpected = false;
};

} // namespace

QList<Loss> lossesOfNumbers(QByteArrayView json)
{
    return hasManyDigits(json) ? NumberWalk(json).run() : QList<Loss>();
}

} // namespace orv
