#pragma once

#include <orv/widgets/Export.h>

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>

namespace orv {

/// One thing in which an unsaved workflow differs from what it was, as people read it.
struct RecoveryChange
{
    QString place;  ///< names from the tab down
    QString before; ///< empty for what was added
    QString after;  ///< empty for what was removed

    bool operator==(const RecoveryChange &other) const = default;
};

/// The changes that a journal tells: all of them in number, the first ones in words.
struct RecoveryChanges
{
    static constexpr qsizetype kMostTold = 200;

    qsizetype count = 0;
    QList<RecoveryChange> told;

    /// Those of \a more behind the ones that are there.
    void append(const RecoveryChanges &more);
};

/// Where a workflow was edited, as differences name it; what isn't known is empty.
struct RecoveryPlace
{
    QString tab;
    QString column;
    QString setting;

    bool operator==(const RecoveryPlace &other) const = default;
};

/// What can be recovered of a window that ended. A plain value.
struct RecoveryEntry
{
    QString journal;          ///< its path
    QString file;             ///< that the document was opened from; empty if it was never saved
    QByteArray checksum;      ///< SHA-256 in hex digits of the file as it was opened; empty if not known
    QString name;             ///< the workflow's own
    QDateTime edited;         ///< when the last change was kept, in UTC
    bool hasDocument = false; ///< else the workflow was open without unsaved changes, and can be opened again
    RecoveryChanges changes;
    RecoveryPlace lastEdit;
    QStringList lost; ///< what the document lacks of its file, as far as that is kept
};

/// What became of a file since an entry was made.
enum class RecoveryFileState
{
    Unchanged,
    Changed,
    Missing,
    NeverSaved,
    Unknown, ///< it can't be read, or its checksum wasn't known yet
};

} // namespace orv

Q_DECLARE_METATYPE(orv::RecoveryEntry)
