#include "HistorySteps.h"

#include <orv/table_model/TableHistory.h>

#include <algorithm>
#include <numeric>
#include <utility>

namespace orv {

namespace {

struct CellPlace
{
    int tab;
    int column;
};

bool areShapedAlike(const DocumentState &a, const DocumentState &b)
{
    return std::ranges::equal(
        a.tabs, b.tabs,
        [](const DocumentState::Tab &one, const DocumentState::Tab &two) { return one.isShapedLike(two); });
}

/// Of documents of one shape.
QList<CellPlace> otherCells(const DocumentState &a, const DocumentState &b)
{
    QList<CellPlace> places;
    for (int tab = 0; tab < a.tabs.size(); ++tab) {
        for (int column = 0; column < a.tabs.at(tab).cells.size(); ++column) {
            if (!(a.tabs.at(tab).cells.at(column) == b.tabs.at(tab).cells.at(column)))
                places.append({tab, column});
        }
    }
    return places;
}

/// Tabs in front of those that a change exchanges have one number at both of its ends.
bool touches(const StateChange &change, const CellPlace &place)
{
    if (change.hasOtherTabs() && place.tab >= change.firstTab())
        return true;
    return std::ranges::any_of(change.cells(), [&place](const StateChange::CellChange &cell) {
        return cell.tab == place.tab && cell.column == place.column;
    });
}

} // namespace

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

void HistorySteps::followSaved(const DocumentState &state, const DocumentState &written)
{
    if (!areShapedAlike(state, written)) {
        settle(state, written);
        return;
    }
    followSaved(state, written, Direction::Back);
    followSaved(state, written, Direction::Forth);
}

void HistorySteps::followSaved(const DocumentState &state, const DocumentState &written, Direction direction)
{
    const bool isBack = direction == Direction::Back;
    DocumentState before = state; // at this end of the step, as it was until the save
    DocumentState now = written;
    QList<CellPlace> open = otherCells(state, written);
    for (int i = isBack ? m_index - 1 : m_index; i >= 0 && i < m_steps.size() && !open.isEmpty();
         i += isBack ? -1 : 1) {
        StateChange &change = m_steps[i].change;
        const DocumentState beyond = change.applied(before, direction);
        const bool isTouched =
            open.removeIf([&change](const CellPlace &cell) { return touches(change, cell); }) > 0;
        DocumentState beyondNow = beyond;
        for (const auto &[tab, column] : std::as_const(open))
            beyondNow.tabs[tab].cells[column] = written.tabs.at(tab).cells.at(column);
        if (isTouched)
            change = isBack ? StateChange::between(beyondNow, now) : StateChange::between(now, beyondNow);
        before = beyond;
        now = beyondNow;
    }
}

void HistorySteps::followMetadata(const QJsonObject &before, const QJsonObject &after)
{
    for (HistoryStep &step : m_steps)
        step.change.followMetadata(before, after);
}

} // namespace orv
