#include "orv/core/JsonScanner.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <array>
#include <cstring>
#include <deque>
#include <map>
#include <memory>
#include <vector>

namespace orv {

namespace {

/// A key of an open object: its bytes, and a fingerprint that tells most keys apart at one glance.
struct Key
{
    const char *begin;
    size_t size;
    quint64 fingerprint;

    Key(const char *text, size_t length)
        : begin(text)
        , size(length)
        , fingerprint(length)
    {
        quint64 head = 0;
        quint64 tail = 0;
        std::memcpy(&head, text, std::min(length, sizeof head));
        std::memcpy(&tail, text + length - std::min(length, sizeof tail), std::min(length, sizeof tail));
        fingerprint ^= head ^ (tail << 7U) ^ (tail >> 57U);
    }

    [[nodiscard]] QByteArrayView text() const { return {begin, qsizetype(size)}; }

    bool operator==(const Key &other) const
    {
        return fingerprint == other.fingerprint && size == other.size &&
               std::memcmp(begin, other.begin, size) == 0;
    }
};

/// Objects of documents have few keys: looking at them in a row beats a table up to this many.
constexpr size_t kLinearKeys = 32;

constexpr qsizetype kMarkSize = 3;

constexpr std::array<bool, 256> structuralBytes()
{
    std::array<bool, 256> table{};
    for (const char c : {'{', '}', '[', ']', ',', '"', '.'})
        table[static_cast<unsigned char>(c)] = true;
    return table;
}

/// Most of a written document is white space, colons and digits, none of which matters here.
constexpr std::array<bool, 256> kStructural = structuralBytes();

/// The escapes of a string.
struct Escapes
{
    bool any = false;
    const char *illegal = nullptr; ///< the backslash of the first that JSON doesn't know
};

/// The quotation mark that ends the string at \a p, or \a end.
const char *endOfString(const char *p, const char *end, Escapes *escapes)
{
    for (; p != end && *p != '"'; ++p) {
        if (*p == '\\') {
            escapes->any = true;
            if (++p == end)
                return end;
            if (!escapes->illegal && (*p == '\0' || !std::strchr("\"\\/bfnrtu", *p)))
                escapes->illegal = p - 1;
        }
    }
    return p;
}

QString keyText(const char *start, const char *end, bool escaped)
{
    const QByteArray raw(start, end - start);
    if (!escaped)
        return QString::fromUtf8(raw);
    const QByteArray array = "[\"" + raw + "\"]";
    return QJsonDocument::fromJson(array).array().at(0).toString();
}

class Scanner
{
public:
    explicit Scanner(QByteArrayView json)
        : m_begin(json.data())
        , m_end(json.data() + json.size())
    {}

    std::optional<JsonFault> run()
    {
        const char *p = m_begin;
        while (true) {
            while (p != m_end && !kStructural[static_cast<unsigned char>(*p)])
                ++p;
            if (p == m_end)
                return {};
            const char c = *p++;
            if (c == '"') {
                const char *const start = p;
                Escapes escapes;
                p = endOfString(start, m_end, &escapes);
                if (escapes.illegal)
                    return illegalEscape(escapes.illegal);
                if (m_keyExpected && !insertKey(start, p, escapes.any))
                    return JsonFault{JsonFault::Kind::DuplicateKey, keyText(start, p, escapes.any),
                                     start - 1 - m_begin};
                m_keyExpected = false;
                p += p != m_end;
            } else if (c == '.') {
                if (!isDigit(p - 2) || !isDigit(p))
                    return illegalNumber(p - 1);
            } else {
                handle(c);
            }
        }
    }

private:
    /// An open array or object; the keys of an object stand from firstKey on in the common list.
    struct Level
    {
        bool isObject;
        size_t firstKey;
        std::unique_ptr<QSet<QByteArrayView>> index = {}; ///< only for objects of many keys
    };

    [[nodiscard]] bool isDigit(const char *p) const
    {
        return p >= m_begin && p < m_end && *p >= '0' && *p <= '9';
    }

    [[nodiscard]] JsonFault illegalNumber(const char *point) const
    {
        const auto isPart = [](char c) { return !std::strchr(" \t\r\n,:[]{}\"", c); };
        const char *begin = point;
        while (begin > m_begin && isPart(begin[-1]))
            --begin;
        const char *end = point;
        while (end < m_end && isPart(*end))
            ++end;
        return {JsonFault::Kind::IllegalNumber, QString::fromUtf8(begin, end - begin), begin - m_begin};
    }

    /// The backslash and the whole character behind it, which may have several bytes.
    [[nodiscard]] JsonFault illegalEscape(const char *backslash) const
    {
        constexpr qsizetype kLongestCharacter = 4;
        const QByteArrayView rest(backslash + 1,
                                  std::min<qsizetype>(kLongestCharacter, m_end - backslash - 1));
        QString character = QString::fromUtf8(rest);
        character.truncate(character.isEmpty() || !character.at(0).isHighSurrogate() ? 1 : 2);
        return {JsonFault::Kind::IllegalEscape, QLatin1Char('\\') + character, backslash - m_begin};
    }

    void handle(char c)
    {
        m_keyExpected = false;
        switch (c) {
        case '{':
        case '[':
            m_keyExpected = c == '{';
            m_levels.push_back({m_keyExpected, m_keys.size()});
            break;
        case ',':
            m_keyExpected = !m_levels.empty() && m_levels.back().isObject;
            break;
        default:
            if (!m_levels.empty()) {
                m_keys.erase(m_keys.begin() + qsizetype(m_levels.back().firstKey), m_keys.end());
                m_levels.pop_back();
            }
        }
    }

    /// UTF-8, which half a surrogate pair has not: all such would become the same replacement character. They
    /// stay UTF-16, behind a byte that no UTF-8 text holds.
    static QByteArray comparable(QString key)
    {
        while (key.startsWith(QChar::ByteOrderMark))
            key.remove(0, 1);
        if (key.isValidUtf16())
            return key.toUtf8();
        return '\xFF' + QByteArray(reinterpret_cast<const char *>(key.utf16()), key.size() * 2);
    }

    bool insertKey(const char *start, const char *end, bool escaped)
    {
        // QJsonDocument drops a byte order mark that begins a text, so keys that differ by it become the
        // same.
        while (!escaped && end - start >= kMarkSize &&
               std::memcmp(start, "\xEF\xBB\xBF", size_t(kMarkSize)) == 0)
            start += kMarkSize;
        if (escaped) {
            const QByteArray &kept = m_unescaped.emplace_back(comparable(keyText(start, end, true)));
            return insert(Key(kept.constData(), size_t(kept.size())));
        }
        return insert(Key(start, size_t(end - start)));
    }

    bool insert(const Key &key)
    {
        Level &level = m_levels.back();
        const auto first = m_keys.begin() + qsizetype(level.firstKey);
        if (m_keys.size() - level.firstKey < kLinearKeys) {
            if (std::find(first, m_keys.end(), key) != m_keys.end())
                return false;
        } else {
            if (!level.index) {
                level.index = std::make_unique<QSet<QByteArrayView>>();
                for (auto it = first; it != m_keys.end(); ++it)
                    level.index->insert(it->text());
            }
            const qsizetype before = level.index->size();
            level.index->insert(key.text());
            if (level.index->size() == before)
                return false;
        }
        m_keys.push_back(key);
        return true;
    }

    const char *m_begin;
    const char *m_end;
    std::vector<Level> m_levels;
    std::vector<Key> m_keys;
    std::deque<QByteArray> m_unescaped; ///< keys with escapes, in the form in which they are compared
    bool m_keyExpected = false;
};

/// What is looked for: the pointers that end at a value, and the members of it that others lead through.
struct Wanted
{
    QStringList pointers;
    std::map<QString, Wanted> members;

    [[nodiscard]] const Wanted *member(const QString &key) const
    {
        const auto found = members.find(key);
        return found == members.end() ? nullptr : &found->second;
    }
};

Wanted wantedOf(const QStringList &pointers)
{
    Wanted root;
    for (const QString &pointer : pointers) {
        Wanted *place = &root;
        const QStringList tokens = pointer.split(QLatin1Char('/'));
        for (QString token : tokens.mid(1))
            place = &place->members[token.replace(QLatin1String("~1"), QLatin1String("/"))
                                        .replace(QLatin1String("~0"), QLatin1String("~"))];
        if (tokens.constFirst().isEmpty())
            place->pointers.append(pointer);
    }
    return root;
}

/// Walks over a text and notes the lines of what is wanted.
class LineFinder
{
public:
    LineFinder(QByteArrayView json, const QStringList &pointers)
        : m_position(json.data())
        , m_end(json.data() + json.size())
        , m_wanted(wantedOf(pointers))
        , m_next(&m_wanted)
    {
        if (json.startsWith("\xEF\xBB\xBF"))
            m_position += kMarkSize;
    }

    QHash<QString, qsizetype> run()
    {
        while (m_position != m_end)
            step(*m_position++);
        return m_lines;
    }

private:
    struct Level
    {
        bool isObject;
        const Wanted *wanted; ///< null when nothing in it is
        qsizetype index = 0;
    };

    void step(char c)
    {
        switch (c) {
        case '\n':
            ++m_line;
            break;
        case ' ':
        case '\t':
        case '\r':
        case ':':
            break;
        case '{':
        case '[':
            noteValue();
            m_levels.push_back({c == '{', m_next});
            expectMember();
            break;
        case '}':
        case ']':
            m_keyExpected = false;
            if (!m_levels.empty())
                m_levels.pop_back();
            break;
        case ',':
            if (!m_levels.empty())
                ++m_levels.back().index;
            expectMember();
            break;
        case '"':
            readString();
            break;
        default:
            noteValue();
            while (m_position != m_end && !endsScalar(*m_position))
                ++m_position;
        }
    }

    static bool endsScalar(char c) { return std::strchr(",]} \t\r\n", c) != nullptr; }

    void expectMember()
    {
        if (m_levels.empty())
            return;
        const Level &level = m_levels.back();
        m_keyExpected = level.isObject;
        if (!level.isObject)
            m_next = level.wanted ? level.wanted->member(QString::number(level.index)) : nullptr;
    }

    void readString()
    {
        const char *const start = m_position;
        Escapes escapes;
        const char *const end = endOfString(start, m_end, &escapes);
        if (m_keyExpected) {
            const Wanted *container = m_levels.back().wanted;
            m_next = container ? container->member(keyText(start, end, escapes.any)) : nullptr;
            m_keyExpected = false;
        } else {
            noteValue();
        }
        m_line += std::count(start, end, '\n');
        m_position = end == m_end ? end : end + 1;
    }

    void noteValue()
    {
        if (!m_next)
            return;
        for (const QString &pointer : m_next->pointers)
            m_lines.insert(pointer, m_line);
    }

    const char *m_position;
    const char *m_end;
    const Wanted m_wanted;
    const Wanted *m_next; ///< what is wanted of the value that comes
    std::vector<Level> m_levels;
    QHash<QString, qsizetype> m_lines;
    qsizetype m_line = 1;
    bool m_keyExpected = false;
};

} // namespace

std::optional<JsonFault> findJsonFault(QByteArrayView json)
{
    return Scanner(json).run();
}

QHash<QString, qsizetype> linesOfPointers(QByteArrayView json, const QStringList &pointers)
{
    return LineFinder(json, pointers).run();
}

} // namespace orv
