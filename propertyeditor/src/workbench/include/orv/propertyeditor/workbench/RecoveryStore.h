#pragma once

#include <orv/core/Result.h>
#include <orv/propertyeditor/workbench/RecoveryEntry.h>
#include <orv/propertyeditor/workbench/RecoveryJournal.h>
#include <orv/widgets/Export.h>

#include <QJsonObject>
#include <QStringList>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QThreadPool)

namespace orv {

/// The folder of journals, from which unsaved workflows are recovered after a crash, a kill, or a window that
/// was closed without saving. A journal belongs to the program that holds its lock; those of other living
/// programs aren't offered. Nothing here touches the workflows' own files. Any thread, one at a time.
/// \code
///     const auto store = std::make_shared<RecoveryStore>(RecoveryStore::defaultFolder());
///     for (const RecoveryEntry &entry : store->entries())
///         offer(entry);
/// \endcode
class ORV_PROPERTY_EDITOR_EXPORT RecoveryStore
{
public:
    /// The folder is made by the first journal.
    explicit RecoveryStore(const QString &folder);
    /// Waits until the journals are written.
    ~RecoveryStore();
    Q_DISABLE_COPY_MOVE(RecoveryStore)

    /// "journals" in the folder of the application's data.
    [[nodiscard]] static QString defaultFolder();

    /// What no living program holds, the latest first. A journal that is damaged, too large or of another
    /// kind is set aside: it gets the suffix ".damaged" or ".foreign", and isn't listed again.
    [[nodiscard]] QList<RecoveryEntry> entries();
    /// The journals that entries() and take() have set aside, by their new paths.
    [[nodiscard]] const QStringList &setAside() const { return m_setAside; }

    /// For a document that is being opened. Nothing is written before it begins.
    [[nodiscard]] std::unique_ptr<RecoveryJournal> newJournal();

    struct Taken
    {
        QJsonObject document;
        std::unique_ptr<RecoveryJournal> journal; ///< goes on with the entry's, which stays until it is saved
    };

    /// The document of \a entry, empty if it has none. InvalidContent for a damaged journal, which is set
    /// aside, and for one that another program took meanwhile; CannotOpenFile for one that has gone.
    [[nodiscard]] Result<Taken> take(const RecoveryEntry &entry);

    /// Deletes the journal. Fails as take() for one that another program holds.
    Error discard(const RecoveryEntry &entry);

    /// Reads the whole file of \a entry: a slow disk keeps the caller. Any thread.
    [[nodiscard]] static RecoveryFileState fileState(const RecoveryEntry &entry);

private:
    void removeLeftovers() const;
    void putAside(const QString &path, const QString &suffix);

    const QString m_folder;
    const std::shared_ptr<QThreadPool> m_writer; ///< of one thread
    QStringList m_setAside;
};

} // namespace orv
