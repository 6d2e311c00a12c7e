#pragma once

#include <orv/table/RowNode.h>
#include <orv/table/rn.h>

#include <QByteArray>

namespace orv::Internal {

/// Writes a node as compact JSON text.
class RowNodeWriter
{
public:
    /// False when the node nests too deep or holds a value of a type without a form.
    [[nodiscard]] bool write(const RowNode &node);

    [[nodiscard]] QByteArray takeText() { return std::move(m_text); }

private:
    template<typename List, typename WriteItem>
    [[nodiscard]] bool writeArray(const List &list, WriteItem writeItem);
    [[nodiscard]] bool writeCell(const QVariant &value);
    [[nodiscard]] bool writeMap(const QVariantMap &map);
    [[nodiscard]] bool writeUnread(const rn::UnreadCell &cell, bool fits);
    [[nodiscard]] bool writeTyped(const QVariant &value);
    void writeText(QStringView text);
    template<typename Number>
    void writeNumber(Number number);

    [[nodiscard]] bool open(char bracket);
    void close(char bracket);

    QByteArray m_text;
    int m_depth = 0;
};

} // namespace orv::Internal
