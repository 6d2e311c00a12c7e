#include "TableStore.h"

#include <algorithm>
#include <functional>

namespace orv {

TableStore::TableStore(const QList<TableColumn> &columns)
    : m_derived(columns)
    , m_columns(int(columns.size()))
{}

QStringView TableStore::derivedText(quint32 row, int column) const
{
    if (const QString *const known = m_derived.find(row, column))
        return *known;
    QStringList texts;
    for (int other = 0; other < m_columns; ++other)
        texts.append(m_derived.has(other) ? QString() : text(slot(row, other)).toString());
    return m_derived.keep(row, column, m_derived.derive(column, texts));
}

quint32 TableStore::addRow()
{
    m_slots.resize(m_slots.size() + size_t(m_columns));
    return m_rows++;
}

quint32 TableStore::addRow(const QStringList &texts)
{
    const quint32 row = addRow();
    const int count = std::min(int(texts.size()), m_columns);
    for (int column = 0; column < count; ++column)
        m_slots[index(row, column)] = keep(texts[column]);
    return row;
}

std::optional<TableSlot> TableStore::slotOf(QStringView text) const
{
    const char16_t *const begin = m_units.data();
    const char16_t *const source = text.utf16();
    const std::less<const char16_t *> isBefore;
    if (m_units.empty() || text.isEmpty() || isBefore(source, begin) ||
        !isBefore(source, begin + m_units.size()))
        return std::nullopt;
    return TableSlot{quint32(source - begin), quint32(text.size())};
}

TableSlot TableStore::keep(QStringView text)
{
    if (text.isEmpty())
        return {};
    Q_ASSERT(hasRoom(text.size()));
    const auto at = quint32(m_units.size());
    m_units.insert(m_units.end(), text.utf16(), text.utf16() + text.size());
    return {at, quint32(text.size())};
}

} // namespace orv
