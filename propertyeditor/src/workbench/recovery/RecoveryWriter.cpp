#include "RecoveryWriter.h"

#include "RecoveryChanges.h"
#include "RecoveryFile.h"

#include <orv/core/DetachedWork.h>
#include <orv/core/FileUtils.h>
#include <orv/core/JsonUtils.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/workbench/RecoveryJournal.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QThreadPool>

#include <chrono>
#include <utility>

namespace orv {

namespace {

constexpr std::chrono::milliseconds kPatience(500);

struct RecoveryWriterTr
{
    Q_DECLARE_TR_FUNCTIONS(RecoveryWriter)
};

Error notKept(const QString &path, const QString &reason)
{
    return Error(ErrorCode::CannotOpenFile,
                 RecoveryWriterTr::tr("Unsaved changes can't be kept for recovery: %1").arg(reason))
        .addDetail(RecoveryWriterTr::tr("The journal is %1.").arg(path))
        .addDetail(RecoveryWriterTr::tr("Save the workflow soon."));
}

} // namespace

RecoveryWriter::RecoveryWriter(const QString &path, QThreadPool *pool)
    : m_path(path)
    , m_pool(pool)
{
    m_entry.journal = path;
}

RecoveryWriter::RecoveryWriter(const RecoveryEntry &entry, std::unique_ptr<QLockFile> lock, QThreadPool *pool)
    : m_path(entry.journal)
    , m_pool(pool)
    , m_lock(std::move(lock))
    , m_entry(entry)
{}

RecoveryWriter::~RecoveryWriter() = default;

void RecoveryWriter::setListener(RecoveryJournal *listener)
{
    const std::lock_guard guard(m_mutex);
    m_listener = listener;
}

template<typename Change>
void RecoveryWriter::order(Change change)
{
    const std::lock_guard guard(m_mutex);
    change(m_orders);
    m_hasOrders = true;
    if (std::exchange(m_isRunning, true))
        return;
    m_pool->start([self = shared_from_this()] { self->run(); });
}

void RecoveryWriter::begin(const QString &file, const QJsonObject &base)
{
    order([&](Orders &orders) { orders = {Beginning{file, base}, std::nullopt, std::nullopt, false}; });
}

void RecoveryWriter::goOn(const QJsonObject &base)
{
    order([&](Orders &orders) { orders.newBase = base; });
}

void RecoveryWriter::write(const PropertyEditorContent &state, const QStringList &lost)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    order([&](Orders &orders) { orders.state.emplace(State{state, lost, now}); });
}

void RecoveryWriter::finish()
{
    order([](Orders &orders) { orders.isLast = true; });
}

void RecoveryWriter::run()
{
    while (true) {
        Orders orders;
        {
            const std::lock_guard guard(m_mutex);
            m_isRunning = std::exchange(m_hasOrders, false);
            if (!m_isRunning)
                return;
            orders = std::exchange(m_orders, {});
        }
        carryOut(orders);
    }
}

void RecoveryWriter::carryOut(const Orders &orders)
{
    if (orders.beginning)
        start(*orders.beginning);
    if (orders.newBase) {
        m_base = *orders.newBase;
        m_written = m_base;
        m_earlier = m_entry.changes;
    }
    if (orders.state)
        tell(keep(*orders.state));
    if (orders.isLast)
        end();
}

void RecoveryWriter::start(const Beginning &beginning)
{
    m_base = beginning.base;
    m_written = m_base;
    m_earlier = {};
    m_entry = {};
    m_entry.journal = m_path;
    m_entry.file = beginning.file;
    m_entry.edited = QDateTime::currentDateTimeUtc();
    m_entry.name = WflwMetaData::nameFromMetaDataObject(PropertyEditorContent(m_base).metadata());
    if (m_lock)
        removeFile();
    if (m_entry.file.isEmpty())
        return;
    askChecksum();
    // That it is open, for the case that the program doesn't end as it should.
    if (Error error = save(m_entry, {}))
        tell(error);
}

Error RecoveryWriter::keep(const State &state)
{
    const QJsonObject document = state.content.document();
    RecoveryEntry entry = m_entry;
    entry.changes = m_earlier;
    entry.changes.append(changesBetween(m_base, document));
    entry.edited = state.time;
    if (const std::optional<RecoveryPlace> place = placeOfLastChange(m_written, document))
        entry.lastEdit = *place;
    m_written = document;
    entry.lost = state.lost.mid(0, RecoveryChanges::kMostTold);
    entry.name = WflwMetaData::nameFromMetaDataObject(state.content.metadata());
    entry.hasDocument = entry.changes.count > 0;
    if (!entry.hasDocument && !m_entry.hasDocument)
        return Error::NoError;
    const QByteArray bytes = entry.hasDocument ? JsonUtils::toCompactJson(document) : QByteArray();
    if (bytes.size() > RecoveryJournal::kMostBytes) {
        const QLocale locale;
        return notKept(m_path, RecoveryWriterTr::tr("the workflow is too large (%1, at most %2)")
                                   .arg(locale.formattedDataSize(bytes.size()),
                                        locale.formattedDataSize(RecoveryJournal::kMostBytes)));
    }
    return save(entry, bytes).ecatch();
}

Error RecoveryWriter::save(RecoveryEntry entry, const QByteArray &document)
{
    ORV_RETURN_IF_ERROR(makePlace());
    if (m_checksum)
        entry.checksum = knownChecksum();
    QString reason;
    if (FileUtils::writeToFile(m_path, RecoveryFile::toBytes(entry, document), &reason) !=
        QFileDevice::NoError)
        return notKept(m_path, reason);
    m_entry = entry;
    return Error::NoError;
}

/// The folder, which nobody else may read, and the lock.
Error RecoveryWriter::makePlace()
{
    const QString folder = QFileInfo(m_path).absolutePath();
    if (!QFileInfo(folder).isDir()) {
        if (!QDir().mkpath(folder))
            return notKept(m_path, RecoveryWriterTr::tr("the folder can't be made: %1").arg(folder));
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    if (m_lock)
        return Error::NoError;
    auto lock = std::make_unique<QLockFile>(m_path + RecoveryFile::kLockSuffix);
    lock->setStaleLockTime(0);
    if (!lock->tryLock())
        return notKept(m_path, RecoveryWriterTr::tr("nothing can be written to the folder: %1").arg(folder));
    m_lock = std::move(lock);
    return Error::NoError;
}

void RecoveryWriter::removeFile() const
{
    QFile file(m_path);
    if (file.exists() && !file.remove())
        qCWarning(propertyEditorLog).noquote()
            << "A journal can't be removed, and its workflow will be offered:" << m_path
            << file.errorString();
}

void RecoveryWriter::end()
{
    if (m_lock && !m_entry.hasDocument)
        removeFile();
    m_lock.reset();
}

void RecoveryWriter::tell(const Error &error)
{
    if (error.hasError())
        qCWarning(propertyEditorLog).noquote() << error.errorMessage() << error.details().join(u' ');
    const std::lock_guard guard(m_mutex);
    if (!m_listener)
        return;
    // The listener takes itself away under the lock before it goes, and its events with it.
    QMetaObject::invokeMethod(
        m_listener, [listener = m_listener, error] { listener->tell(error); }, Qt::QueuedConnection);
}

void RecoveryWriter::askChecksum()
{
    m_checksum = std::make_shared<Checksum>();
    m_waitsForChecksum = true;
    const Error error = DetachedWork::start([checksum = m_checksum, file = m_entry.file] {
        const QByteArray value = RecoveryFile::checksumOfFile(file);
        const std::lock_guard guard(checksum->mutex);
        checksum->value = value;
        checksum->isThere.notify_all();
    });
    if (error.hasError())
        qCWarning(propertyEditorLog).noquote() << error.errorMessage();
}

/// Waits once, as most disks answer soon.
QByteArray RecoveryWriter::knownChecksum()
{
    std::unique_lock guard(m_checksum->mutex);
    if (std::exchange(m_waitsForChecksum, false))
        m_checksum->isThere.wait_for(guard, kPatience, [this] { return m_checksum->value.has_value(); });
    return m_checksum->value.value_or(QByteArray());
}

} // namespace orv
