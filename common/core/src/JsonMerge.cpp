#include "orv/core/JsonMerge.h"

#include <QByteArrayView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>
#include <QList>
#include <QStringList>

#include <cstring>

namespace orv {

namespace {

/// Elements of an array of another length are looked for among so many that come next, which bounds the cost.
constexpr qsizetype kMostSkipped = 1000;

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// A member or an element: the blanks in front, its name with the colon, its value and the blanks behind.
struct Part
{
    QByteArray before;
    QString key;
    QByteArray name; ///< of an element none
    QByteArrayView value;
    QByteArray behind;
};

/// An array or object by its parts.
struct Parts
{
    QList<Part> list;
    QByteArray inside; ///< the blanks of an empty one
};

/// Takes well-formed text apart.
class Splitter
{
public:
    explicit Splitter(QByteArrayView text)
        : m_position(text.begin())
        , m_end(text.end())
    {}

    Parts split()
    {
        const bool isObject = *m_position == '{';
        const char last = isObject ? '}' : ']';
        Parts parts;
        while (m_position != m_end && *m_position != last) {
            ++m_position; // the bracket or a comma
            QByteArray blanks = takeBlanks();
            if (m_position == m_end || *m_position == last) {
                parts.inside = blanks;
                break;
            }
            parts.list.append(takePart(blanks, isObject));
        }
        return parts;
    }

private:
    Part takePart(const QByteArray &before, bool isObject)
    {
        Part part{before, {}, {}, {}, {}};
        if (isObject) {
            const char *const begin = m_position;
            skipString();
            const QByteArray array = '[' + QByteArray(begin, m_position - begin) + ']';
            part.key = QJsonDocument::fromJson(array).array().at(0).toString();
            takeBlanks();
            m_position += m_position != m_end; // the colon
            takeBlanks();
            part.name = QByteArray(begin, m_position - begin);
        }
        const char *const begin = m_position;
        skipValue();
        part.value = QByteArrayView(begin, m_position - begin);
        part.behind = takeBlanks();
        return part;
    }

    QByteArray takeBlanks()
    {
        const char *const begin = m_position;
        while (m_position != m_end && isBlank(*m_position))
            ++m_position;
        return {begin, m_position - begin};
    }

    void skipString()
    {
        for (++m_position; m_position != m_end && *m_position != '"'; ++m_position)
            m_position += *m_position == '\\' && m_position + 1 != m_end;
        m_position += m_position != m_end;
    }

    void skipValue()
    {
        int depth = 0;
        while (m_position != m_end) {
            const char c = *m_position;
            if (c == '"') {
                skipString();
            } else if (c == '{' || c == '[') {
                ++depth;
                ++m_position;
            } else if (depth > 0) {
                depth -= c == '}' || c == ']';
                ++m_position;
            } else if (std::strchr(",]} \t\r\n", c)) {
                return;
            } else {
                ++m_position;
                continue;
            }
            if (depth == 0)
                return;
        }
    }

    const char *m_position;
    const char *m_end;
};

/// The blanks of a line before what stands in it; nothing where the text has no lines.
QByteArray indentOf(const QByteArray &blanks)
{
    const qsizetype line = blanks.lastIndexOf('\n');
    return line < 0 ? QByteArray() : blanks.mid(line + 1);
}

/// The text of a new value behind \a blanks.
QByteArray written(const QJsonValue &value, const QByteArray &blanks)
{
    const bool hasLines = blanks.contains('\n');
    const QByteArray array =
        QJsonDocument(QJsonArray{value}).toJson(hasLines ? QJsonDocument::Indented : QJsonDocument::Compact);
    if (!hasLines)
        return array.sliced(1, array.size() - 2);
    const QByteArray text = array.sliced(2, array.size() - 5);
    // The element of the array stands four blanks in.
    return QByteArray(text).replace("\n    ", "\n" + indentOf(blanks)).trimmed();
}

QByteArray joined(const Parts &parts, char first, char last)
{
    QByteArray text(1, first);
    for (qsizetype i = 0; i < parts.list.size(); ++i) {
        const Part &part = parts.list.at(i);
        text += (i == 0 ? QByteArray() : QByteArray(",")) + part.before + part.name;
        text += part.value;
        text += part.behind;
    }
    return text + (parts.list.isEmpty() ? parts.inside : QByteArray()) + last;
}

/// Makes the text of one value out of that of another.
class Merger
{
public:
    QByteArray merged(QByteArrayView text, const QJsonValue &present, const QJsonValue &wanted,
                      const QByteArray &blanks)
    {
        if (present == wanted)
            return text.toByteArray();
        if (present.isObject() && wanted.isObject())
            return mergedObject(text, present.toObject(), wanted.toObject());
        if (present.isArray() && wanted.isArray())
            return mergedArray(text, present.toArray(), wanted.toArray());
        return written(wanted, blanks);
    }

private:
    QByteArrayView keep(const QByteArray &text)
    {
        m_kept.append(text);
        return m_kept.constLast();
    }

    QByteArray mergedObject(QByteArrayView text, const QJsonObject &present, const QJsonObject &wanted)
    {
        const Parts old = Splitter(text).split();
        Parts parts{{}, old.inside};
        for (Part part : old.list) {
            if (!wanted.contains(part.key))
                continue;
            part.value =
                keep(merged(part.value, present.value(part.key), wanted.value(part.key), part.before));
            parts.list.append(part);
        }
        closeGap(old, &parts);
        for (auto it = wanted.begin(); it != wanted.end(); ++it) {
            if (!present.contains(it.key()))
                insertMember(it.key(), it.value(), old, &parts);
        }
        return joined(parts, '{', '}');
    }

    /// In front of the first member with a greater name, so that sorted members stay sorted.
    void insertMember(const QString &key, const QJsonValue &value, const Parts &old, Parts *parts)
    {
        const QByteArray before = old.list.isEmpty() ? QByteArray() : old.list.constFirst().before;
        const QByteArray name = written(key, {}) + (before.contains('\n') ? ": " : ":");
        qsizetype position = 0;
        while (position < parts->list.size() && parts->list.at(position).key < key)
            ++position;
        Part part{before, key, name, keep(written(value, before)), {}};
        if (position == parts->list.size()) {
            part.behind = old.list.isEmpty() ? old.inside : old.list.constLast().behind;
            if (position > 0)
                parts->list.last().behind.clear();
        }
        parts->list.insert(position, part);
    }

    QByteArray mergedArray(QByteArrayView text, const QJsonArray &present, const QJsonArray &wanted)
    {
        const Parts old = Splitter(text).split();
        Parts parts{{}, old.inside};
        const bool areSame = present.size() == wanted.size();
        const QByteArray before = old.list.isEmpty() ? QByteArray() : old.list.constFirst().before;
        qsizetype next = 0;
        for (qsizetype i = 0; i < wanted.size(); ++i) {
            const qsizetype found = areSame ? i : find(wanted.at(i), present, next);
            if (found < 0) {
                parts.list.append(Part{before, {}, {}, keep(written(wanted.at(i), before)), {}});
                continue;
            }
            Part part = old.list.at(found);
            part.value = keep(merged(part.value, present.at(found), wanted.at(i), part.before));
            parts.list.append(part);
            next = found + 1;
        }
        closeGap(old, &parts);
        return joined(parts, '[', ']');
    }

    static qsizetype find(const QJsonValue &value, const QJsonArray &in, qsizetype from)
    {
        const qsizetype end = std::min(in.size(), from + kMostSkipped);
        for (qsizetype i = from; i < end; ++i) {
            if (in.at(i) == value)
                return i;
        }
        return -1;
    }

    /// The last part has the blanks before the closing bracket, whichever part was the last one.
    static void closeGap(const Parts &old, Parts *parts)
    {
        if (!old.list.isEmpty() && !parts->list.isEmpty())
            parts->list.last().behind = old.list.constLast().behind;
    }

    QList<QByteArray> m_kept; ///< what parts refer to
};

} // namespace

QByteArray mergedJson(const QByteArray &text, const QJsonObject &wanted)
{
    const QJsonObject present = QJsonDocument::fromJson(text).object();
    const qsizetype begin = text.indexOf('{');
    const qsizetype end = text.lastIndexOf('}') + 1;
    if (begin < 0 || end <= begin)
        return QJsonDocument(wanted).toJson();
    const QByteArrayView root = QByteArrayView(text).sliced(begin, end - begin);
    QByteArray merged =
        text.first(begin) + Merger().merged(root, present, wanted, QByteArray("\n")) + text.sliced(end);
    // Form is worth keeping, content is a duty.
    const bool isWanted = QJsonDocument::fromJson(merged).object() == wanted;
    return isWanted ? merged : QJsonDocument(wanted).toJson();
}

} // namespace orv
