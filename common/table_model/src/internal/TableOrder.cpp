#include "TableOrder.h"

#include <algorithm>

namespace orv {

int TableOrder::placeOf(quint32 id) const
{
    if (m_places.empty() && !m_ids.isEmpty()) {
        m_places.assign(size_t(*std::max_element(m_ids.cbegin(), m_ids.cend())) + 1, -1);
        for (int place = 0; place < m_ids.size(); ++place)
            m_places[m_ids[place]] = place;
    }
    return id < m_places.size() ? m_places[id] : -1;
}

void TableOrder::assign(QList<quint32> ids)
{
    m_ids = std::move(ids);
    m_places.clear();
}

void TableOrder::insert(const QList<int> &places, const QList<quint32> &ids)
{
    QList<quint32> merged;
    merged.reserve(m_ids.size() + ids.size());
    qsizetype taken = 0;
    for (qsizetype i = 0; i < places.size(); ++i) {
        while (merged.size() < places[i] && taken < m_ids.size())
            merged.append(m_ids[taken++]);
        merged.append(ids[i]);
    }
    merged.append(m_ids.sliced(taken));
    assign(std::move(merged));
}

void TableOrder::remove(const QList<int> &places)
{
    QList<quint32> left;
    left.reserve(m_ids.size() - places.size());
    auto next = places.cbegin();
    for (int place = 0; place < m_ids.size(); ++place) {
        if (next != places.cend() && *next == place)
            ++next;
        else
            left.append(m_ids[place]);
    }
    assign(std::move(left));
}

QList<RowRun> runsMissingIn(const TableOrder &other, const TableOrder &order)
{
    QList<RowRun> runs;
    for (int place = 0; place < order.size(); ++place) {
        if (other.placeOf(order.at(place)) >= 0)
            continue;
        if (!runs.isEmpty() && runs.constLast().last == place - 1)
            runs.last().last = place;
        else
            runs.append({place, place});
    }
    return runs;
}

bool hasCommonRowsInOneOrder(const TableOrder &before, const TableOrder &after)
{
    int last = -1;
    for (const quint32 id : before.ids()) {
        const int place = after.placeOf(id);
        if (place >= 0 && place < last)
            return false;
        last = std::max(last, place);
    }
    return true;
}

} // namespace orv
