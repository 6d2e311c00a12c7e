#include "FindingNotes.h"

namespace orv::PropertyEditor {

namespace {

thread_local FindingNotes *currentNotes = nullptr;

} // namespace

FindingNotes::FindingNotes()
    : m_outer(std::exchange(currentNotes, this))
{}

FindingNotes::~FindingNotes()
{
    currentNotes = m_outer;
}

FindingNotes *FindingNotes::current()
{
    return currentNotes;
}

QList<FindingNotes::Note> FindingNotes::notesOf(const QString &message) const
{
    const auto notes = m_notes.constFind(message);
    return notes == m_notes.cend() ? QList<Note>{{message, {}, {}, {}}} : *notes;
}

void Findings::note(const QString &message, const FindingPlace &place, const QString &hint,
                    const QString &rule)
{
    if (FindingNotes *notes = FindingNotes::current())
        notes->add({message, place, hint, rule});
}

} // namespace orv::PropertyEditor
