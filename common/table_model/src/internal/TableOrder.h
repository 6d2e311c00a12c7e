#pragma once

#include <QList>

#include <vector>

namespace orv {

/// A sequence of row ids that also tells where an id stands.
class TableOrder
{
public:
    [[nodiscard]] int size() const { return int(m_ids.size()); }
    [[nodiscard]] quint32 at(int place) const { return m_ids.at(place); }
    [[nodiscard]] const QList<quint32> &ids() const { return m_ids; }
    /// -1 for an id that isn't there.
    [[nodiscard]] int placeOf(quint32 id) const;

    void assign(QList<quint32> ids);
    /// \a places are ascending and count in the sequence that results.
    void insert(const QList<int> &places, const QList<quint32> &ids);
    /// \a places are ascending.
    void remove(const QList<int> &places);

private:
    QList<quint32> m_ids;
    mutable std::vector<int> m_places; ///< by id, -1 for none; empty until it is asked for
};

/// Rows that stand together, both ends among them.
struct RowRun
{
    int first = 0;
    int last = 0;
};

/// The places in \a order whose rows \a other doesn't have.
[[nodiscard]] QList<RowRun> runsMissingIn(const TableOrder &other, const TableOrder &order);

/// Whether no two rows that both have changed their order.
[[nodiscard]] bool hasCommonRowsInOneOrder(const TableOrder &before, const TableOrder &after);

} // namespace orv
