#include "orv/table_model/TableHistory.h"

#include "internal/TableEdit.h"

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

void TableHistory::moveTo(int index)
{
    if (std::exchange(m_index, index) != index)
        Q_EMIT indexChanged();
}

void TableHistory::undo()
{
    if (!canUndo())
        return;
    m_edits[size_t(m_index) - 1]->undo();
    moveTo(m_index - 1);
}

void TableHistory::redo()
{
    if (!canRedo())
        return;
    m_edits[size_t(m_index)]->redo();
    moveTo(m_index + 1);
}

void TableHistory::clear()
{
    m_edits.clear();
    moveTo(0);
}

void TableHistory::push(std::unique_ptr<TableEdit> edit)
{
    m_edits.resize(size_t(m_index));
    m_edits.push_back(std::move(edit));
    redo();
}

} // namespace orv
