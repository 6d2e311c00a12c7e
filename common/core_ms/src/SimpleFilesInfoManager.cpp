#include "orv/core_ms/SimpleFilesInfoManager.h"

#include <orv/core/FilePathUtils.h>
#include <orv/resources/ResourceHandlerUtils.h>
#include <orv/resources/ResourceManager.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <optional>

namespace orv {

namespace {

using Answer = Result<ResourceReferenceSPtr>;

struct SimpleFilesInfoManagerTr
{
    Q_DECLARE_TR_FUNCTIONS(SimpleFilesInfoManager)
};

/// The only entry of \a folder whose name differs from \a name in case alone.
std::optional<QString> nameInAnotherCase(const QString &folder, const QString &name)
{
    std::optional<QString> found;
    const QStringList entries =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) != 0)
            continue;
        if (found)
            return {};
        found = entry;
    }
    return found;
}

/// \a path, which counts from \a root, with the case of letters that the disk has. The current folder is an
/// empty text.
std::optional<QString> existingPath(const QString &path, const QString &root)
{
    const QStringList names = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    QString found = path.startsWith(QLatin1Char('/')) ? QStringLiteral("/") : QString();
    for (const QString &name : names) {
        const QString prefix = found.isEmpty() || found.endsWith(QLatin1Char('/')) ? found : found + u'/';
        if (QFileInfo::exists(root + prefix + name)) {
            found = prefix + name;
        } else if (const auto other =
                       nameInAnotherCase(found.isEmpty() ? root + QLatin1Char('.') : root + found, name)) {
            found = prefix + *other;
        } else {
            return {};
        }
    }
    return names.isEmpty() ? std::nullopt : std::optional(found);
}

Answer missing(const ResourceReferenceSPtr &reference)
{
    return Error(
               ErrorCode::CannotOpenFile,
               SimpleFilesInfoManagerTr::tr("The file \"%1\" does not exist.").arg(reference->readableText()))
        .addDetail(SimpleFilesInfoManagerTr::tr("Restore the file, or refer to another one."));
}

Answer askedLocally(const ResourceReferenceSPtr &reference, const QUrl &baseUrl)
{
    const QString root = ResourceReferenceUtils::isRelative(reference) ? baseUrl.toLocalFile() : QString();
    if (QFileInfo::exists(root + reference->text()))
        return reference;
    const std::optional<QString> path = existingPath(ResourceHandlerUtils::fullPath(reference), root);
    if (!path)
        return missing(reference);
    Answer corrected = ResourceReference::fromString(*path);
    if (corrected.hasError())
        return corrected.ecatch();
    return corrected;
}

Answer asked(const ResourceReferenceSPtr &reference, const QUrl &baseUrl)
{
    if (reference->isScheme(ResourceReference::Scheme::LocalFile))
        return askedLocally(reference, baseUrl);
    Result<bool> exists = ResourceHandlerUtils::exists(reference);
    if (exists.hasError())
        return exists.ecatch();
    return *exists ? Answer(reference) : missing(reference);
}

} // namespace

FilesInfoManagerInterface::~FilesInfoManagerInterface() = default;

SimpleFilesInfoManager::SimpleFilesInfoManager(const QList<ResourceReferenceSPtr> &references,
                                               const QUrl &baseUrl)
    : m_baseUrl(baseUrl)
{
    for (const ResourceReferenceSPtr &reference : references) {
        if (reference && !reference->isEmpty())
            m_answers.insert(reference, std::nullopt);
    }
}

Result<ResourceReferenceSPtr>
SimpleFilesInfoManager::validateAndCorrectFileReference(const ResourceReferenceSPtr &reference)
{
    const auto answer = m_answers.find(reference);
    if (answer == m_answers.end()) {
        return Error(ErrorCode::InvalidContent,
                     SimpleFilesInfoManagerTr::tr("The file is none of those that are asked for."))
            .addDetail(reference ? reference->readableText() : QString());
    }
    if (!answer->has_value())
        *answer = asked(reference, m_baseUrl);
    return **answer;
}

} // namespace orv
