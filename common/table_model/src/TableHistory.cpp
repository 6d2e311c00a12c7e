#include "orv/table_model/TableHistory.h"

#include "internal/TableEdit.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace orv {

TableHistory::TableHistory(QObject *parent)
    : QObject(parent)
{}

TableHistory::~TableHistory() = default;

QString TableHistory::undoText() const
{
    return canUndo() ? m_edits[size_t(m_index) - 1]->text() : QString();
}

QString TableHistory::redoText() const
{
    return canRedo() ? m_edits[size_t(m_index)]->text() : QString();
}

// The index moves first: a step that a listener takes meanwhile then stands behind this one.
void TableHistory::undo()
{
    if (!canUndo())
        return;
    const std::shared_ptr<TableEdit> edit = m_edits[size_t(--m_index)];
    const QPointer<TableHistory> guard(this);
    edit->undo();
    if (guard)
        Q_EMIT indexChanged();
}

void TableHistory::redo()
{
    if (!canRedo())
        return;
    const std::shared_ptr<TableEdit> edit = m_edits[size_t(m_index++)];
    const QPointer<TableHistory> guard(this);
    edit->redo();
    if (guard)
        Q_EMIT indexChanged();
}

void TableHistory::clear()
{
    drop(0, m_edits.size());
    if (std::exchange(m_index, 0) != 0)
        Q_EMIT indexChanged();
}

qsizetype TableHistory::forget(int steps)
{
    const int count = std::clamp(steps, 0, m_index);
    m_index -= count;
    m_forgotten += count;
    return drop(0, size_t(count));
}

qsizetype TableHistory::drop(size_t first, size_t last)
{
    qsizetype bytes = 0;
    for (size_t i = first; i < last; ++i)
        bytes += m_edits[i]->heldBytes();
    m_edits.erase(m_edits.begin() + qsizetype(first), m_edits.begin() + qsizetype(last));
    m_heldBytes -= bytes;
    return bytes;
}

void TableHistory::push(std::unique_ptr<TableEdit> edit)
{
    drop(size_t(m_index), m_edits.size());
    m_heldBytes += edit->heldBytes();
    m_edits.push_back(std::move(edit));
    redo();
}

} // namespace orv
