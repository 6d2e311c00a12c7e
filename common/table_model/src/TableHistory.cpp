#include "orv/table_model/TableHistory.h"

#include "internal/TableEdit.h"

#include <QPointer>

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
    m_edits.clear();
    if (std::exchange(m_index, 0) != 0)
        Q_EMIT indexChanged();
}

qsizetype TableHistory::heldBytes() const
{
    qsizetype bytes = 0;
    for (const std::shared_ptr<TableEdit> &edit : m_edits)
        bytes += edit->heldBytes();
    return bytes;
}

void TableHistory::push(std::unique_ptr<TableEdit> edit)
{
    m_edits.resize(size_t(m_index));
    m_edits.push_back(std::move(edit));
    redo();
}

} // namespace orv
