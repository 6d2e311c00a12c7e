#include "orv/propertyeditor/workbench/RecoveryStore.h"

#include "RecoveryFile.h"
#include "RecoveryWriter.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/workbench/RecoveryJournal.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThreadPool>
#include <QUuid>

#include <algorithm>

namespace orv {

using RecoveryFile::Fault;

namespace {

struct RecoveryStoreTr
{
    Q_DECLARE_TR_FUNCTIONS(RecoveryStore)
};

/// Null where another program holds the journal, or nothing may be written beside it.
std::unique_ptr<QLockFile> lockOfJournal(const QString &journal)
{
    auto lock = std::make_unique<QLockFile>(journal + RecoveryFile::kLockSuffix);
    // Only the end of its process frees a lock, never its age.
    lock->setStaleLockTime(0);
    return lock->tryLock() ? std::move(lock) : nullptr;
}

Error journalIsHeld(const RecoveryEntry &entry)
{
    return Error(ErrorCode::InvalidContent,
                 RecoveryStoreTr::tr("The unsaved workflow is in use by another window or program."))
        .addDetail(RecoveryStoreTr::tr("The journal is %1.").arg(entry.journal));
}

Error journalHasGone(const RecoveryEntry &entry)
{
    return Error(ErrorCode::CannotOpenFile, RecoveryStoreTr::tr("The unsaved workflow isn't there any more."))
        .addDetail(RecoveryStoreTr::tr("The journal was %1.").arg(entry.journal));
}

QString suffixOf(Fault fault)
{
    return fault == Fault::Foreign ? QStringLiteral(".foreign") : QStringLiteral(".damaged");
}

} // namespace

RecoveryStore::RecoveryStore(const QString &folder)
    : m_folder(folder)
    , m_writer(std::make_shared<QThreadPool>())
{
    m_writer->setMaxThreadCount(1);
}

RecoveryStore::~RecoveryStore()
{
    m_writer->waitForDone();
}

QString RecoveryStore::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QLatin1String("/journals");
}

QList<RecoveryEntry> RecoveryStore::entries()
{
    removeLeftovers();
    QList<RecoveryEntry> found;
    const QFileInfoList files = QDir(m_folder).entryInfoList(
        {QLatin1Char('*') + RecoveryFile::kSuffix}, QDir::Files | QDir::System | QDir::Hidden, QDir::Name);
    for (const QFileInfo &file : files) {
        const QString path = file.filePath();
        const std::unique_ptr<QLockFile> lock = lockOfJournal(path);
        if (!lock)
            continue;
        const RecoveryFile::Header header = RecoveryFile::readHeader(path);
        if (header.fault == Fault::None)
            found.append(header.entry);
        else if (QFileInfo::exists(path))
            putAside(path, suffixOf(header.fault));
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const RecoveryEntry &a, const RecoveryEntry &b) { return a.edited > b.edited; });
    return found;
}

/// What a killed program was about to write: the journal beside it is whole.
void RecoveryStore::removeLeftovers() const
{
    // Six letters of any case, never a word that somebody would write.
    static const QRegularExpression unfinished(
        QStringLiteral("^(.+\\.journal)(\\.(?=[a-z]*[A-Z])[A-Za-z]{6}|\\.lock)$"));
    const QStringList files = QDir(m_folder).entryList(QDir::Files | QDir::Hidden);
    for (const QString &file : files) {
        const QRegularExpressionMatch match = unfinished.match(file);
        const QString journal = QDir(m_folder).filePath(match.captured(1));
        // A lock that was left behind goes with ours.
        if (match.hasMatch() && lockOfJournal(journal) && !file.endsWith(RecoveryFile::kLockSuffix))
            QFile::remove(QDir(m_folder).filePath(file));
    }
}

void RecoveryStore::putAside(const QString &path, const QString &suffix)
{
    QString aside = path + suffix;
    for (int i = 2; QFileInfo::exists(aside); ++i)
        aside = path + suffix + QString::number(i);
    if (QFile::rename(path, aside)) {
        m_setAside.append(aside);
        qCWarning(propertyEditorLog).noquote() << "A journal that can't be read was set aside:" << aside;
    } else {
        qCWarning(propertyEditorLog).noquote() << "A journal can't be read, and not be renamed:" << path;
    }
}

std::unique_ptr<RecoveryJournal> RecoveryStore::newJournal()
{
    const QString name = QUuid::createUuid().toString(QUuid::WithoutBraces) + RecoveryFile::kSuffix;
    return std::make_unique<RecoveryJournal>(
        std::make_shared<RecoveryWriter>(QDir(m_folder).filePath(name), m_writer.get()), m_writer);
}

Result<RecoveryStore::Taken> RecoveryStore::take(const RecoveryEntry &entry)
{
    if (!QFileInfo::exists(entry.journal))
        return journalHasGone(entry);
    std::unique_ptr<QLockFile> lock = lockOfJournal(entry.journal);
    if (!lock)
        return journalIsHeld(entry);
    const RecoveryFile::Header header = RecoveryFile::readHeader(entry.journal);
    const RecoveryFile::Document document = RecoveryFile::readDocument(header);
    const Fault fault = header.fault == Fault::None ? document.fault : header.fault;
    if (fault != Fault::None) {
        putAside(entry.journal, suffixOf(fault));
        return Error(ErrorCode::InvalidContent,
                     RecoveryStoreTr::tr("What was kept of the workflow is damaged and can't be recovered."))
            .addDetail(RecoveryStoreTr::tr("The journal was set aside: %1")
                           .arg(m_setAside.isEmpty() ? entry.journal : m_setAside.constLast()));
    }
    auto journal = std::make_unique<RecoveryJournal>(
        std::make_shared<RecoveryWriter>(header.entry, std::move(lock), m_writer.get()), m_writer);
    return Taken{document.object, std::move(journal)};
}

Error RecoveryStore::discard(const RecoveryEntry &entry)
{
    if (!QFileInfo::exists(entry.journal))
        return journalHasGone(entry);
    const std::unique_ptr<QLockFile> lock = lockOfJournal(entry.journal);
    if (!lock)
        return journalIsHeld(entry);
    QFile file(entry.journal);
    if (file.remove())
        return Error::NoError;
    return Error(ErrorCode::CannotOpenFile,
                 RecoveryStoreTr::tr("The unsaved workflow can't be discarded: %1").arg(file.errorString()))
        .addDetail(RecoveryStoreTr::tr("The journal is %1.").arg(entry.journal));
}

RecoveryFileState RecoveryStore::fileState(const RecoveryEntry &entry)
{
    if (entry.file.isEmpty())
        return RecoveryFileState::NeverSaved;
    if (!QFileInfo::exists(entry.file))
        return RecoveryFileState::Missing;
    const QByteArray checksum = RecoveryFile::checksumOfFile(entry.file);
    if (checksum.isEmpty() || entry.checksum.isEmpty())
        return RecoveryFileState::Unknown;
    return checksum == entry.checksum ? RecoveryFileState::Unchanged : RecoveryFileState::Changed;
}

} // namespace orv
