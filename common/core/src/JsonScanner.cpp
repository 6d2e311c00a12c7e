#include <orv/core/JsonScanner.h>

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstring>
#include <unordered_map>
#include <vector>

namespace orv {

namespace {

/// A key as it stands in the text, without its quotes. Escapes are kept: they are undone only where a key
/// holds one, which no writer of ours produces.
struct Key
{
    const char *begin;
    qsizetype size;
    size_t hash;
    QByteArray unescaped; ///< used in place of the text when not null

    [[nodiscard]] QByteArrayView text() const
    {
        return unescaped.isNull() ? QByteArrayView(begin, size) : QByteArrayView(unescaped);
    }
};

/// Objects of documents have few keys: comparing hashes in a row beats a table up to this many.
constexpr size_t kLinearKeys = 32;

constexpr qsizetype kMarkSize = 3;

/// The keys seen in one open object.
class KeySet
{
public:
    void clear()
    {
        m_keys.clear();
        m_index.clear();
    }

    bool insert(Key key)
    {
        if (m_keys.size() < kLinearKeys) {
            for (const Key &seen : m_keys) {
                if (seen.hash == key.hash && seen.text() == key.text())
                    return false;
            }
            m_keys.push_back(std::move(key));
            return true;
        }
        if (m_index.empty()) {
            for (size_t i = 0; i < m_keys.size(); ++i)
                m_index.emplace(m_keys[i].hash, i);
        }
        const auto [first, last] = m_index.equal_range(key.hash);
        for (auto it = first; it != last; ++it) {
            if (m_keys[it->second].text() == key.text())
                return false;
        }
        m_index.emplace(key.hash, m_keys.size());
        m_keys.push_back(std::move(key));
        return true;
    }

private:
    std::vector<Key> m_keys;
    std::unordered_multimap<size_t, size_t> m_index;
};

class Scanner
{
public:
    explicit Scanner(QByteArrayView json)
        : m_begin(json.data())
        , m_end(json.data() + json.size())
    {
    }

    std::optional<DuplicateKey> run()
    {
        for (const char *p = m_begin; p != m_end;) {
            switch (*p) {
            case '{':
                open(true);
                ++p;
                break;
            case '[':
                open(false);
                ++p;
                break;
            case '}':
            case ']':
                if (m_depth > 0)
                    --m_depth;
                m_keyExpected = false;
                ++p;
                break;
            case ',':
                m_keyExpected = m_depth > 0 && m_levels[m_depth - 1].isObject;
                ++p;
                break;
            case '"': {
                const char *const start = p + 1;
                bool escaped = false;
                p = endOfString(start, &escaped);
                if (m_keyExpected && !insertKey(start, p, escaped))
                    return DuplicateKey{keyText(start, p, escaped), start - 1 - m_begin};
                m_keyExpected = false;
                p += p != m_end;
                break;
            }
            default:
                ++p;
            }
        }
        return {};
    }

private:
    struct Level
    {
        bool isObject = false;
        KeySet keys;
    };

    void open(bool isObject)
    {
        if (m_depth == m_levels.size())
            m_levels.emplace_back();
        Level &level = m_levels[m_depth++];
        level.isObject = isObject;
        level.keys.clear();
        m_keyExpected = isObject;
    }

    const char *endOfString(const char *p, bool *escaped) const
    {
        while (p != m_end) {
            const auto *quote = static_cast<const char *>(std::memchr(p, '"', size_t(m_end - p)));
            if (!quote)
                return m_end;
            const auto *slash = static_cast<const char *>(std::memchr(p, '\\', size_t(quote - p)));
            if (!slash)
                return quote;
            *escaped = true;
            if (m_end - slash < 2)
                return m_end;
            p = slash + 2;
        }
        return m_end;
    }

    static QString keyText(const char *start, const char *end, bool escaped)
    {
        const QByteArray raw(start, end - start);
        if (!escaped)
            return QString::fromUtf8(raw);
        const QByteArray array = "[\"" + raw + "\"]";
        return QJsonDocument::fromJson(array).array().at(0).toString();
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
        Key key{start, end - start, 0, {}};
        if (escaped)
            key.unescaped = comparable(keyText(start, end, true));
        key.hash = qHash(key.text(), 0);
        return m_levels[m_depth - 1].keys.insert(std::move(key));
    }

    const char *m_begin;
    const char *m_end;
    std::vector<Level> m_levels;
    size_t m_depth = 0;
    bool m_keyExpected = false;
};

} // namespace

std::optional<DuplicateKey> findDuplicateKey(QByteArrayView json)
{
    return Scanner(json).run();
}

} // namespace orv
