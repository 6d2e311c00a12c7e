#include "orv/propertyeditor/workflow/PortableTarget.h"

#include <orv/core/FileUtils.h>
#include <orv/core/JsonUtils.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>
#include <orv/propertyeditor/workflow/WorkflowReferences.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>
#include <QUrl>

#include <filesystem>
#include <system_error>
#include <utility>

#ifdef Q_OS_LINUX
#include <fcntl.h>

#include <cstdio>
#endif

namespace orv {

namespace {

/// Foreign files that a refusal names.
constexpr qsizetype kNamedFiles = 3;

struct PortableTargetTr
{
    Q_DECLARE_TR_FUNCTIONS(PortableTarget)
};

Error refused(const QString &folder, const QString &reason)
{
    return Error(ErrorCode::InvalidContent,
                 PortableTargetTr::tr("The folder %1 isn't replaced.").arg(QDir::toNativeSeparators(folder)))
        .addDetail(reason)
        .addDetail(PortableTargetTr::tr("Name another folder, or move away what is in this one."));
}

Error notMade(const QString &folder, const QString &reason)
{
    return Error(ErrorCode::CannotOpenFile,
                 PortableTargetTr::tr("Failed to create %1").arg(QDir::toNativeSeparators(folder)))
        .addDetail(reason);
}

/// What a portable folder has beside its document, by the paths that the document names.
class OwnFiles
{
public:
    OwnFiles(const QDir &folder, const QStringList &named)
    {
        for (const QString &path : named) {
            const QString name = folder.relativeFilePath(path);
            if (!name.startsWith(QLatin1String("..")) && QDir::isRelativePath(name))
                m_names.insert(name);
        }
    }

    /// Named itself, in a named folder, or a companion of a named file (run.wiff.scan of run.wiff).
    [[nodiscard]] bool contain(const QString &name) const
    {
        for (qsizetype end = name.size(); end > 0; --end) {
            const bool isPart =
                end == name.size() || name.at(end) == QLatin1Char('/') || name.at(end) == QLatin1Char('.');
            if (isPart && m_names.contains(name.left(end)))
                return true;
        }
        return false;
    }

private:
    QSet<QString> m_names;
};

QStringList foreignFiles(const QString &folder, const QString &document, const OwnFiles &own)
{
    const QDir home(QDir(folder).absolutePath());
    QStringList foreign;
    QDirIterator it(home.path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const bool isFolder = it.fileInfo().isDir() && !it.fileInfo().isSymLink();
        const QString name = home.relativeFilePath(path);
        if (!isFolder && name != document && !own.contain(name))
            foreign.append(name);
    }
    foreign.sort();
    return foreign;
}

Error refusedForeign(const QString &folder, const QStringList &foreign)
{
    const QString names = foreign.first(std::min(foreign.size(), kNamedFiles)).join(QLatin1String(", "));
    return refused(
        folder, foreign.size() <= kNamedFiles
                    ? PortableTargetTr::tr("It holds what is no part of a portable workflow: %1.").arg(names)
                    : PortableTargetTr::tr("It holds what is no part of a portable workflow: %1 "
                                           "and %2 more files.")
                          .arg(names)
                          .arg(foreign.size() - kNamedFiles));
}

Error checkVersion(const QString &folder, const QJsonObject &document)
{
    const Result<QVersionNumber> version =
        WflwMetaData::exactVersion(PropertyEditorContent(document).metadata());
    if (version.hasError())
        return refused(folder, version.error().errorMessage());
    if (!WflwMetaData::isNewerThanCurrent(*version))
        return Error::NoError;
    return refused(folder,
                   PortableTargetTr::tr("Its document has the newer version %1.").arg(version->toString()));
}

/// Lets two folders change places at once.
bool exchange(const std::filesystem::path &first, const std::filesystem::path &second)
{
#if defined(Q_OS_LINUX) && defined(RENAME_EXCHANGE)
    return renameat2(AT_FDCWD, first.c_str(), AT_FDCWD, second.c_str(), RENAME_EXCHANGE) == 0;
#else
    Q_UNUSED(first)
    Q_UNUSED(second)
    return false;
#endif
}

/// \a staged takes the place \a target, what stood there that of \a old.
std::error_code putInPlace(const std::filesystem::path &staged, const std::filesystem::path &target,
                           const std::filesystem::path &old)
{
    std::error_code error;
    const bool isThere =
        std::filesystem::symlink_status(target, error).type() != std::filesystem::file_type::not_found;
    if (isThere && exchange(staged, target))
        return {};
    if (isThere) {
        std::filesystem::rename(target, old, error);
        if (error)
            return error;
    }
    std::filesystem::rename(staged, target, error);
    std::error_code ignored; // the first reason counts
    if (error && isThere)
        std::filesystem::rename(old, target, ignored);
    return error;
}

} // namespace

PortableTarget::PortableTarget(const QString &folder)
    : m_folder(QDir::cleanPath(folder))
{}

PortableTarget::~PortableTarget() = default;

Error PortableTarget::checkReplaceable(const QString &folder)
{
    const QFileInfo info(folder);
    if (!info.exists() || info.isSymLink())
        return Error::NoError;
    if (!info.isDir())
        return refused(folder, PortableTargetTr::tr("It is a file, no folder."));
    const QString file = WflwUtils::workflowInPortableWorkflow(folder);
    if (!QFileInfo::exists(file)) {
        const QStringList foreign = foreignFiles(folder, {}, OwnFiles(QDir(folder), {}));
        return foreign.isEmpty() ? Error::NoError : refusedForeign(folder, foreign);
    }
    const Result<QByteArray> bytes = FileUtils::readFile(file);
    const Result<QJsonObject> document =
        bytes.hasError() ? Result<QJsonObject>(bytes.error()) : JsonUtils::objectFromJson(*bytes);
    if (document.hasError()) {
        return refused(
            folder,
            PortableTargetTr::tr("Its document can't be read: %1").arg(document.error().errorMessage()));
    }
    ORV_RETURN_IF_ERROR(checkVersion(folder, *document));
    const QString home = QDir(folder).absolutePath();
    const OwnFiles own(
        QDir(home), WorkflowReferences::localPaths(*document, QUrl::fromLocalFile(home + QLatin1Char('/'))));
    const QStringList foreign = foreignFiles(folder, QFileInfo(file).fileName(), own);
    return foreign.isEmpty() ? Error::NoError : refusedForeign(folder, foreign);
}

Error PortableTarget::prepare()
{
    const QFileInfo place(m_folder);
    if (!QDir().mkpath(place.path()))
        return notMade(m_folder, PortableTargetTr::tr("The folder that is to hold it can't be made."));
    m_room = std::make_unique<QTemporaryDir>(place.path() + QLatin1String("/.") + place.fileName() +
                                             QLatin1String("-XXXXXX"));
    if (!m_room->isValid())
        return notMade(m_folder, m_room->errorString());
    return Error::NoError;
}

QString PortableTarget::stagedFolder() const
{
    return m_room ? m_room->filePath(QFileInfo(m_folder).fileName()) : QString();
}

QString PortableTarget::asInPlace(QString text) const
{
    return m_room ? text.replace(stagedFolder(), m_folder) : text;
}

Error PortableTarget::commit()
{
    const auto native = [](const QString &path) {
        return std::filesystem::path(QFile::encodeName(path).toStdString());
    };
    const std::error_code error =
        putInPlace(native(stagedFolder()), native(m_folder), native(m_room->filePath(QStringLiteral("old"))));
    if (error)
        return notMade(m_folder, QString::fromLocal8Bit(error.message().c_str()));
    if (!m_room->remove())
        qCWarning(propertyEditorLog) << "Can't remove" << m_room->path() << ", which holds what was replaced";
    return Error::NoError;
}

} // namespace orv
