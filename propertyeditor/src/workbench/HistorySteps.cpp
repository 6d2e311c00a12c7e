#include "HistorySteps.h"

#include <orv/table_model/TableHistory.h>

#include <numeric>

namespace orv {

qsizetype HistorySteps::heldBytes() const
{
    return std::accumulate(m_steps.cbegin(), m_steps.cend(), qsizetype(0),
                           [](qsizetype bytes, const HistoryStep &step) { return bytes + step.bytes; });
}

const HistoryStep *HistorySteps::next(Direction direction) const
{
    const int step = direction == Direction::Back ? m_index - 1 : m_index;
    return step >= 0 && step < m_steps.size() ? &m_steps.at(step) : nullptr;
}

void HistorySteps::clear()
{
    m_steps.clear();
    m_index = 0;
}

void HistorySteps::append(HistoryStep step)
{
    m_steps.resize(m_index);
    step.bytes = step.change.heldBytes() + step.text.size() * qsizetype(sizeof(QChar));
    m_steps.append(std::move(step));
    ++m_index;
}

HistoryStep HistorySteps::takeLast()
{
    m_steps.resize(m_index);
    --m_index;
    return m_steps.takeLast();
}

std::optional<HistoryStep> HistorySteps::takeFirst()
{
    if (m_steps.size() < 2 || m_index == 0)
        return {};
    --m_index;
    return m_steps.takeFirst();
}

std::optional<int> HistorySteps::firstOf(const TableHistory *table, int done) const
{
    std::optional<int> first;
    for (int i = m_index - 1; i >= 0; --i) {
        for (const TableMove &move : m_steps.at(i).tables) {
            if (move.history != table)
                continue;
            // The table went on by itself behind that step, which is undone by its content.
            if (move.after != first.value_or(done))
                return first;
            first = move.before;
        }
    }
    return first;
}

void HistorySteps::forgetUpgrade()
{
    if (m_steps.isEmpty() || !m_steps.constFirst().upgradedFile)
        return;
    // Nothing leads to the other steps from a document that isn't upgraded.
    if (m_index == 0) {
        m_steps.clear();
        return;
    }
    m_steps.removeFirst();
    --m_index;
}

void HistorySteps::settle(const DocumentState &state, const DocumentState &actual)
{
    if (actual == state)
        return;
    if (m_index > 0) {
        StateChange &last = m_steps[m_index - 1].change;
        last = StateChange::between(last.applied(state, Direction::Back), actual);
    }
    if (m_index < m_steps.size()) {
        StateChange &next = m_steps[m_index].change;
        next = StateChange::between(actual, next.applied(state, Direction::Forth));
    }
}

void HistorySteps::followMetadata(const QJsonObject &before, const QJsonObject &after)
{
    for (HistoryStep &step : m_steps)
        step.change.followMetadata(before, after);
}

} // namespace orv
