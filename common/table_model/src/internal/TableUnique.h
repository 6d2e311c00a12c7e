#pragma once

#include "TableStore.h"

#include <QString>

#include <unordered_map>
#include <vector>

namespace orv {

/// Finds rows of the table that hold the same in one column. Rows with the same value are a chain, so that
/// one that comes or goes costs the same however many there are. Empty cells are passed over; numbers are the
/// same when their values are.
class TableUnique
{
public:
    static constexpr quint32 kNone = 0xFFFFFFFF;

    /// The store outlives this.
    TableUnique(const TableStore &store, int column, bool isNumeric);

    [[nodiscard]] int column() const { return m_column; }

    /// With what the store holds for them: a row leaves before its cell changes and enters afterwards. Each
    /// gives the one row whose value begins or ceases to be repeated by it, or kNone.
    quint32 enter(quint32 row);
    quint32 leave(quint32 row);

    /// A row other than \a row that holds \a text, or kNone.
    [[nodiscard]] quint32 otherRow(quint32 row, QStringView text) const;

private:
    struct Hash
    {
        using is_transparent = void;
        const TableStore *store;
        bool isNumeric;
        size_t operator()(QStringView text) const;
        size_t operator()(TableSlot slot) const { return (*this)(store->text(slot)); }
    };

    struct Equal
    {
        using is_transparent = void;
        const TableStore *store;
        bool isNumeric;
        [[nodiscard]] bool same(QStringView a, QStringView b) const;
        bool operator()(TableSlot a, TableSlot b) const { return same(store->text(a), store->text(b)); }
        bool operator()(QStringView a, TableSlot b) const { return same(a, store->text(b)); }
        bool operator()(TableSlot a, QStringView b) const { return same(store->text(a), b); }
    };

    const TableStore &m_store;
    int m_column;
    std::unordered_map<TableSlot, quint32, Hash, Equal> m_first; ///< of each chain, by a text like its own
    std::vector<quint32> m_next;                                 ///< by row id
    std::vector<quint32> m_previous;
};

} // namespace orv
