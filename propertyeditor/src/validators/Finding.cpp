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
    QList<Note> notes;
    for (const Note &note : m_notes) {
        if (note.message == message)
            notes.append(note);
    }
    if (notes.isEmpty())
        notes.append({message, {}, {}, {}});
    return notes;
}

void Findings::note(const QString &message, const FindingPlace &place, const QString &hint,
                    const QString &rule)
{
    if (FindingNotes *notes = FindingNotes::current())
        notes->add({message, place, hint, rule});
}

} // namespace orv::PropertyEditor
