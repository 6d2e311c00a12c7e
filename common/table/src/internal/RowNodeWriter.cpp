#include "RowNodeWriter.h"

#include "CellType.h"
#include "NodeKeys.h"
#include "Writable.h"

#include <QJsonDocument>

#include <array>
#include <charconv>

namespace orv::Internal {

// The functions below call each other as deep as the node nests; open() bounds that.

bool RowNodeWriter::open(char bracket)
{
    m_text.append(bracket);
    return ++m_depth <= rn::kMaxNesting;
}

void RowNodeWriter::close(char bracket)
{
    m_text.append(bracket);
    --m_depth;
}

bool RowNodeWriter::write(const RowNode &node)
{
    if (!open('{'))
        return false;
    writeText(u"data");
    m_text.append(':');
    if (!writeArray(node.data, [this](const QVariant &cell) { return writeCell(cell); }))
        return false;
    m_text.append(',');
    writeText(u"children");
    m_text.append(':');
    if (!open('['))
        return false;
    for (int i = 0; i < node.getChildListSize(); ++i) {
        if (i > 0)
            m_text.append(',');
        if (!write(*node.getChild(i)))
            return false;
    }
    close(']');
    close('}');
    return true;
}

template<typename List, typename WriteItem>
bool RowNodeWriter::writeArray(const List &list, WriteItem writeItem)
{
    if (!open('['))
        return false;
    bool isFirst = true;
    for (const auto &item : list) {
        if (!std::exchange(isFirst, false))
            m_text.append(',');
        if (!writeItem(item))
            return false;
    }
    close(']');
    return true;
}

bool RowNodeWriter::writeCell(const QVariant &value)
{
    const void *const data = value.constData();
    switch (cellFormOf(value)) {
    case CellForm::Null:
        m_text.append("null");
        return true;
    case CellForm::Bool:
        m_text.append(value.toBool() ? "true" : "false");
        return true;
    case CellForm::Integer:
        writeNumber(value.toLongLong());
        return true;
    case CellForm::Double:
        writeNumber(*static_cast<const double *>(data));
        return true;
    case CellForm::Text:
        writeText(*static_cast<const QString *>(data));
        return true;
    case CellForm::List:
        return writeArray(*static_cast<const QVariantList *>(data),
                          [this](const QVariant &item) { return writeCell(item); });
    case CellForm::Map:
        return writeMap(*static_cast<const QVariantMap *>(data));
    case CellForm::Unread:
        return writeUnread(*static_cast<const rn::UnreadCell *>(data),
                           isWritable(value, rn::kMaxNesting - m_depth));
    case CellForm::Typed:
        break;
    }
    return writeTyped(value);
}

bool RowNodeWriter::writeUnread(const rn::UnreadCell &cell, bool fits)
{
    m_text.append(QJsonDocument(QJsonObject{{cell.type, cell.payload}}).toJson(QJsonDocument::Compact));
    return fits;
}

bool RowNodeWriter::writeMap(const QVariantMap &map)
{
    if (!open('{'))
        return false;
    for (auto it = map.begin(); it != map.end(); ++it) {
        if (it != map.begin())
            m_text.append(',');
        writeText(it.key());
        m_text.append(':');
        if (!writeCell(it.value()))
            return false;
    }
    close('}');
    return true;
}

bool RowNodeWriter::writeTyped(const QVariant &value)
{
    const CellType *type = cellTypeOf(value);
    if (!type || !open('{'))
        return false;
    writeText(QString(type->name));
    m_text.append(':');
    if (!writeCell(type->toPayload(value)))
        return false;
    close('}');
    return true;
}

template<typename Number>
void RowNodeWriter::writeNumber(Number number)
{
    std::array<char, 32> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    Q_ASSERT(error == std::errc());
    m_text.append(digits.data(), end - digits.data());
}

void RowNodeWriter::writeText(QStringView text)
{
    constexpr std::array kHexDigits = {'0', '1', '2', '3', '4', '5', '6', '7',
                                       '8', '9', 'a', 'b', 'c', 'd', 'e', 'f'};
    m_text.append('"');
    while (!text.isEmpty()) {
        const auto *const stop = std::find_if(text.begin(), text.end(), [](QChar c) {
            return c < QLatin1Char(' ') || c == QLatin1Char('"') || c == QLatin1Char('\\');
        });
        m_text.append(text.first(stop - text.begin()).toUtf8());
        text = text.sliced(stop - text.begin());
        if (text.isEmpty())
            break;
        const char c = text[0].toLatin1();
        if (c == '"' || c == '\\') {
            m_text.append('\\').append(c);
        } else {
            m_text.append("\\u00").append(kHexDigits[size_t(c >> 4)]).append(kHexDigits[size_t(c & 15)]);
        }
        text = text.sliced(1);
    }
    m_text.append('"');
}

} // namespace orv::Internal
