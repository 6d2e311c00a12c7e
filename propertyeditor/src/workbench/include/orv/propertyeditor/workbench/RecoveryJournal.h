#pragma once

#include <orv/core/Error.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/widgets/Export.h>

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QThreadPool)

namespace orv {

class RecoveryWriter;

/// Keeps the unsaved changes of one document on the disk, so that they outlive the program. States are handed
/// over as values that share their data, and are compared, converted and written on a thread of their own; a
/// newer state replaces one that waits. Each write goes to a file beside the journal, is flushed and renamed.
/// The thread that made it.
class ORV_PROPERTY_EDITOR_EXPORT RecoveryJournal : public QObject
{
    Q_OBJECT

public:
    /// The largest document that is kept: 64 MiB of compact JSON.
    static constexpr qint64 kMostBytes = qint64(64) * 1024 * 1024;

    /// For RecoveryStore.
    RecoveryJournal(std::shared_ptr<RecoveryWriter> writer, std::shared_ptr<QThreadPool> pool);
    /// What was handed over is still written, which nobody waits for. A journal without a document goes, one
    /// with unsaved changes stays and can be taken.
    ~RecoveryJournal() override;

    /// The document that was opened from \a file, or never saved, looks like \a base. What was kept before is
    /// deleted: a document that was saved begins anew. The file's checksum is read in the background.
    void begin(const QString &file, const QJsonObject &base);
    /// Keeps \a state in place of an earlier one, with what it lacks of its file. One that equals the base
    /// isn't kept.
    void write(const PropertyEditorContent &state, const QStringList &lost = {});
    /// What is written from now on is compared with \a base, and its changes come behind those that are kept
    /// already. For documents that were recovered.
    void goOn(const QJsonObject &base);

    [[nodiscard]] QString path() const;

Q_SIGNALS:
    /// A state is on the disk, or was equal to the base.
    void written();
    /// A state can't be kept. Said once until one can be kept again.
    void failed(const orv::Error &error);

private:
    friend class RecoveryWriter;

    void tell(const Error &error);

    // The pool's own threads hold the writer alone: the last one who lets the pool go waits for them.
    const std::shared_ptr<QThreadPool> m_pool;
    const std::shared_ptr<RecoveryWriter> m_writer;
    bool m_hasFailed = false;
};

} // namespace orv
