#pragma once

#include <orv/propertyeditor/validators/Finding.h>

#include <QHash>

namespace orv::PropertyEditor {

/// While it lives, hears what is noted on this thread. One inside another takes its place.
class FindingNotes
{
public:
    struct Note
    {
        QString message;
        FindingPlace place;
        QString hint;
        QString rule;
    };

    FindingNotes();
    ~FindingNotes();
    Q_DISABLE_COPY_MOVE(FindingNotes)

    void add(const Note &note) { m_notes[note.message].append(note); }
    /// Those with that message, in order; one without a place if there is none.
    [[nodiscard]] QList<Note> notesOf(const QString &message) const;

    [[nodiscard]] static FindingNotes *current();

private:
    FindingNotes *m_outer;
    QHash<QString, QList<Note>> m_notes;
};

} // namespace orv::PropertyEditor
