#pragma once

#include "TableDerived.h"

#include <QStringView>

#include <memory>
#include <optional>
#include <vector>

namespace orv {

/// Where a text lies in a store. Stays valid as long as the store.
struct TableSlot
{
    quint32 at = 0;
    quint32 size = 0;

    friend bool operator==(TableSlot a, TableSlot b) { return a.at == b.at && a.size == b.size; }
};

/// The texts of all cells in one piece of memory, eight bytes a cell beside its characters. Nothing is ever
/// overwritten: a cell that changes points elsewhere, so that a step back is a matter of pointing again, and
/// rows that are removed keep what they hold. Rows go by ids, which are never used again.
class TableStore
{
public:
    /// What one table holds at most, in UTF-16 units: 1 GiB.
    static constexpr qsizetype kMaxUnits = qsizetype(1) << 29;

    explicit TableStore(const QList<TableColumn> &columns);

    quint32 addRow();
    /// What there is too much of is left out; there is room for the texts.
    quint32 addRow(const QStringList &texts);
    void reserveRows(qsizetype rows) { m_slots.reserve(size_t(rows) * size_t(m_columns)); }
    [[nodiscard]] quint32 rowCount() const { return m_rows; }

    [[nodiscard]] bool hasRoom(qsizetype units) const
    {
        return qsizetype(m_units.size()) + units <= kMaxUnits;
    }
    /// Where a text lies that is a part of this store, nothing for others.
    [[nodiscard]] std::optional<TableSlot> slotOf(QStringView text) const;
    /// For a \a text that there is room for.
    [[nodiscard]] TableSlot keep(QStringView text);
    /// Valid until a text is kept.
    [[nodiscard]] QStringView text(TableSlot slot) const
    {
        return {m_units.data() + slot.at, qsizetype(slot.size)};
    }

    [[nodiscard]] TableSlot slot(quint32 row, int column) const { return m_slots[index(row, column)]; }
    void setSlot(quint32 row, int column, TableSlot slot)
    {
        m_slots[index(row, column)] = slot;
        m_derived.forget(row);
    }
    /// Of a derived column what follows from the row.
    [[nodiscard]] QStringView text(quint32 row, int column) const
    {
        return m_derived.has(column) ? derivedText(row, column) : text(slot(row, column));
    }

    [[nodiscard]] qsizetype heldBytes() const
    {
        return qsizetype(m_units.size()) * qsizetype(sizeof(char16_t)) +
               qsizetype(m_slots.size()) * qsizetype(sizeof(TableSlot));
    }

    [[nodiscard]] bool hasDerived() const { return !m_derived.isEmpty(); }
    void deriveAnew() { m_derived.forgetAll(); }

private:
    [[nodiscard]] size_t index(quint32 row, int column) const
    {
        return size_t(row) * size_t(m_columns) + size_t(column);
    }

    [[nodiscard]] QStringView derivedText(quint32 row, int column) const;

    mutable TableDerived m_derived; ///< made when somebody asks
    std::vector<char16_t> m_units;
    std::vector<TableSlot> m_slots;
    int m_columns;
    quint32 m_rows = 0;
};

} // namespace orv
