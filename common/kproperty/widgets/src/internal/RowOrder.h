#pragma once

#include <cstddef>
#include <vector>

namespace Internal {

/// Which of a fixed number of slots are still there, and in which row each of them stands. Rows go from
/// anywhere in time that grows with the logarithm of their number, so that removing all of them is no square.
class RowOrder
{
public:
    /// Adds a slot behind all others, before any is removed.
    void append()
    {
        // A tree of counts: the node at place i sums the slots that its lowest bit spans.
        const std::size_t place = m_counts.size() + 1;
        int count = 1;
        for (std::size_t step = 1; step < (place & (~place + 1)); step <<= 1) {
            count += m_counts[place - step - 1];
        }
        m_counts.push_back(count);
        ++m_size;
    }

    void remove(std::size_t slot)
    {
        for (std::size_t place = slot + 1; place <= m_counts.size(); place += place & (~place + 1)) {
            --m_counts[place - 1];
        }
        --m_size;
    }

    [[nodiscard]] int size() const { return m_size; }

    /// The row of a slot: how many stand before it.
    [[nodiscard]] int rowOf(std::size_t slot) const
    {
        int row = 0;
        for (std::size_t place = slot; place > 0; place &= place - 1) {
            row += m_counts[place - 1];
        }
        return row;
    }

    /// The slot in \a row, which must be there.
    [[nodiscard]] std::size_t slotIn(int row) const
    {
        std::size_t step = 1;
        while (step * 2 <= m_counts.size()) {
            step *= 2;
        }
        std::size_t place = 0;
        for (int rest = row + 1; step > 0; step /= 2) {
            if (place + step <= m_counts.size() && m_counts[place + step - 1] < rest) {
                place += step;
                rest -= m_counts[place - 1];
            }
        }
        return place;
    }

private:
    std::vector<int> m_counts;
    int m_size = 0;
};

} // namespace Internal
