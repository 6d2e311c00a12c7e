#pragma once

#include <orv/core/Error.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/workbench/RecoveryEntry.h>

#include <QJsonObject>
#include <QLockFile>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QThreadPool)

namespace orv {

class RecoveryJournal;

/// What writes a journal: takes orders on one thread and carries them out on the pool's. It lives until the
/// last order is done, and holds the lock of its journal as long.
class RecoveryWriter : public std::enable_shared_from_this<RecoveryWriter>
{
public:
    /// \a pool outlives the orders.
    RecoveryWriter(const QString &path, QThreadPool *pool);
    /// Goes on with the journal of \a entry, which \a lock holds.
    RecoveryWriter(const RecoveryEntry &entry, std::unique_ptr<QLockFile> lock, QThreadPool *pool);
    ~RecoveryWriter();
    Q_DISABLE_COPY_MOVE(RecoveryWriter)

    [[nodiscard]] QString path() const { return m_path; }

    /// Hears of every write, until another one or none is set.
    void setListener(RecoveryJournal *listener);

    // Orders; a later one of a kind replaces an earlier one that waits.
    void begin(const QString &file, const QJsonObject &base);
    void goOn(const QJsonObject &base);
    void write(const PropertyEditorContent &state, const QStringList &lost);
    void finish();

private:
    /// Of a file that may lie on a disk that never answers.
    struct Checksum
    {
        std::mutex mutex;
        std::condition_variable isThere;
        std::optional<QByteArray> value;
    };

    struct Beginning
    {
        QString file;
        QJsonObject base;
    };

    struct State
    {
        PropertyEditorContent content;
        QStringList lost;
        QDateTime time;
    };

    struct Orders
    {
        std::optional<Beginning> beginning;
        std::optional<QJsonObject> newBase;
        std::optional<State> state;
        bool isLast = false;
    };

    template<typename Change>
    void order(Change change);
    void run();
    void carryOut(const Orders &orders);

    void start(const Beginning &beginning);
    Error keep(const State &state);
    Error save(RecoveryEntry entry, const QByteArray &document);
    Error makePlace();
    void removeFile() const;
    void end();
    void tell(const Error &error);
    void askChecksum();
    [[nodiscard]] QByteArray knownChecksum();

    const QString m_path;
    QThreadPool *const m_pool;

    std::mutex m_mutex; ///< of what both threads use
    Orders m_orders;
    bool m_hasOrders = false;
    bool m_isRunning = false;
    RecoveryJournal *m_listener = nullptr;

    // Of the pool's thread alone.
    std::unique_ptr<QLockFile> m_lock;
    std::shared_ptr<Checksum> m_checksum;
    bool m_waitsForChecksum = false;
    RecoveryEntry m_entry; ///< as it is on the disk
    QJsonObject m_base;
    QJsonObject m_written;     ///< the last state, or the base
    RecoveryChanges m_earlier; ///< those before the base
};

} // namespace orv
