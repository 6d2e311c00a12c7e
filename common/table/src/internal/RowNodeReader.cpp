#include "RowNodeReader.h"

#include "CellType.h"
#include "NodeKeys.h"

#include <orv/table/rn.h>

#include <QJsonArray>
#include <QJsonDocument>

namespace orv::Internal {

// The functions below call each other as deep as the text nests; enter() bounds that.

RowNodeReader::RowNodeReader(QByteArrayView json)
    : m_cursor(json)
{}

bool RowNodeReader::read(RowNode *node)
{
    if (m_cursor.peek() != '{' || !readNode(node))
        return false;
    m_cursor.skipBlanks();
    return m_cursor.atEnd();
}

bool RowNodeReader::enter()
{
    return ++m_depth <= rn::kMaxNesting;
}

bool RowNodeReader::push(QVariant value)
{
    m_stack.push_back(std::move(value));
    return true;
}

bool RowNodeReader::readNode(RowNode *node)
{
    bool hasData = false;
    bool hasChildren = false;
    if (!enter() || !m_cursor.take('{'))
        return false;
    if (!m_cursor.take('}')) {
        do {
            if (!readMember(node, &hasData, &hasChildren))
                return false;
        } while (m_cursor.take(','));
        if (!m_cursor.take('}'))
            return false;
    }
    leave();
    return true;
}

bool RowNodeReader::readMember(RowNode *node, bool *hasData, bool *hasChildren)
{
    QString key;
    if (!readKey(&key))
        return false;
    if (key == kDataKey) {
        QVariantList cells;
        if (std::exchange(*hasData, true) || m_cursor.peek() != '[' || !readCells(&cells))
            return false;
        node->data = VariantItems(std::move(cells));
        return true;
    }
    if (key == kChildrenKey)
        return !std::exchange(*hasChildren, true) && m_cursor.peek() == '[' && readChildren(node);
    return skipValue();
}

bool RowNodeReader::readChildren(RowNode *node)
{
    if (!enter() || !m_cursor.take('['))
        return false;
    if (!m_cursor.take(']')) {
        do {
            RowNode *child = m_cursor.peek() == '{' ? node->addNewChild({}) : nullptr;
            if (!child || !readNode(child))
                return false;
        } while (m_cursor.take(','));
        if (!m_cursor.take(']'))
            return false;
    }
    leave();
    return true;
}

bool RowNodeReader::readCells(QVariantList *cells)
{
    if (!enter() || !m_cursor.take('['))
        return false;
    const size_t first = m_stack.size();
    if (!m_cursor.take(']')) {
        do {
            if (!readCell())
                return false;
        } while (m_cursor.take(','));
        if (!m_cursor.take(']'))
            return false;
    }
    cells->reserve(qsizetype(m_stack.size() - first));
    for (size_t i = first; i < m_stack.size(); ++i)
        cells->append(std::move(m_stack[i]));
    m_stack.resize(first);
    leave();
    return true;
}

bool RowNodeReader::readCell()
{
    switch (m_cursor.peek()) {
    case '"':
        return readText();
    case '[': {
        QVariantList list;
        return readCells(&list) && push(QVariant(list));
    }
    case '{':
        return readObject();
    case 'n':
        return m_cursor.takeWord("null") && push({});
    case 't':
        return m_cursor.takeWord("true") && push(true);
    case 'f':
        return m_cursor.takeWord("false") && push(false);
    default: {
        QVariant number;
        return m_cursor.takeNumber(&number) && push(std::move(number));
    }
    }
}

bool RowNodeReader::readText()
{
    const std::optional<RawText> raw = m_cursor.takeText();
    if (!raw)
        return false;
    if (const QVariant *known = m_texts.find(*raw))
        return push(*known);
    std::optional<QString> text = textOf(*raw);
    if (!text)
        return false;
    m_stack.emplace_back(*std::move(text));
    m_texts.insert(*raw, m_stack.back());
    return true;
}

bool RowNodeReader::readKey(QString *key)
{
    const std::optional<RawText> raw = m_cursor.peek() == '"' ? m_cursor.takeText() : std::nullopt;
    std::optional<QString> text = raw ? textOf(*raw) : std::nullopt;
    if (!text || !m_cursor.take(':'))
        return false;
    *key = *std::move(text);
    return true;
}

bool RowNodeReader::readObject()
{
    if (!enter() || !m_cursor.take('{'))
        return false;
    QVariantMap map;
    const char *payload = nullptr;
    const char *payloadEnd = nullptr;
    if (!m_cursor.take('}')) {
        do {
            QString key;
            if (!readKey(&key) || map.contains(key))
                return false;
            payload = m_cursor.position();
            if (!readCell())
                return false;
            payloadEnd = m_cursor.position();
            map.insert(key, m_stack.back());
            m_stack.pop_back();
        } while (m_cursor.take(','));
        if (!m_cursor.take('}'))
            return false;
    }
    leave();
    if (map.size() != 1 || !isTypeName(map.firstKey()))
        return push(map);
    return push(cellOfType(map.firstKey(), map.first(), [payload, payloadEnd] {
        const QByteArray array = '[' + QByteArray(payload, payloadEnd - payload) + ']';
        return QJsonDocument::fromJson(array).array().at(0);
    }));
}

bool RowNodeReader::skipValue()
{
    switch (m_cursor.peek()) {
    case '{':
        return skipContainer(true);
    case '[':
        return skipContainer(false);
    default:
        if (!readCell())
            return false;
        m_stack.pop_back();
        return true;
    }
}

bool RowNodeReader::skipContainer(bool isObject)
{
    const char end = isObject ? '}' : ']';
    if (!enter() || !m_cursor.take(isObject ? '{' : '['))
        return false;
    if (!m_cursor.take(end)) {
        QString key;
        do {
            if ((isObject && !readKey(&key)) || !skipValue())
                return false;
        } while (m_cursor.take(','));
        if (!m_cursor.take(end))
            return false;
    }
    leave();
    return true;
}

} // namespace orv::Internal
