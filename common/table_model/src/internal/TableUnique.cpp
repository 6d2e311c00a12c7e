#include "TableUnique.h"

#include <orv/table_model/NumberText.h>

#include <QHash>

#include <functional>

namespace orv {

size_t TableUnique::Hash::operator()(QStringView text) const
{
    const std::optional<double> number = isNumeric ? NumberText::value(text) : std::nullopt;
    return number ? std::hash<double>()(*number) : qHash(text, size_t(0));
}

bool TableUnique::Equal::same(QStringView a, QStringView b) const
{
    const std::optional<double> left = isNumeric ? NumberText::value(a) : std::nullopt;
    const std::optional<double> right = isNumeric ? NumberText::value(b) : std::nullopt;
    return left || right ? left == right : a == b;
}

TableUnique::TableUnique(const TableStore &store, int column, bool isNumeric)
    : m_store(store)
    , m_column(column)
    , m_first(0, Hash{&store, isNumeric}, Equal{&store, isNumeric})
{}

quint32 TableUnique::enter(quint32 row)
{
    const TableSlot slot = m_store.slot(row, m_column);
    if (slot.size == 0)
        return kNone;
    if (row >= m_next.size()) {
        m_next.resize(m_store.rowCount(), kNone);
        m_previous.resize(m_store.rowCount(), kNone);
    }
    const auto [found, isNew] = m_first.try_emplace(slot, row);
    if (isNew)
        return kNone;
    const quint32 first = std::exchange(found->second, row);
    m_next[row] = first;
    m_previous[first] = row;
    return m_next[first] == kNone ? first : kNone;
}

quint32 TableUnique::leave(quint32 row)
{
    const TableSlot slot = m_store.slot(row, m_column);
    const auto found = slot.size == 0 ? m_first.end() : m_first.find(slot);
    if (found == m_first.end())
        return kNone;
    const quint32 next = std::exchange(m_next[row], kNone);
    const quint32 previous = std::exchange(m_previous[row], kNone);
    if (next != kNone)
        m_previous[next] = previous;
    if (previous != kNone)
        m_next[previous] = next;
    else
        found->second = next;
    if (found->second == kNone) {
        m_first.erase(found);
        return kNone;
    }
    return m_next[found->second] == kNone ? found->second : kNone;
}

quint32 TableUnique::otherRow(quint32 row, QStringView text) const
{
    const auto found = text.isEmpty() ? m_first.end() : m_first.find(text);
    if (found == m_first.end())
        return kNone;
    return found->second != row ? found->second : m_next[row];
}

} // namespace orv
