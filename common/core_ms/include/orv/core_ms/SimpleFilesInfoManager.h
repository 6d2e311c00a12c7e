#pragma once

#include <orv/core_ms/FilesInfoManagerInterface.h>
#include <orv/resources/ResourceReferenceKey.h>

#include <QHash>
#include <QList>
#include <QUrl>

namespace orv {

/// Asks the home of each file, once. A local path that leads nowhere is corrected where the disk has exactly
/// one name for each part that differs in case alone, and where its backslashes must be slashes. Blocks on
/// the disk or server; on one thread at a time.
class ORV_WORKFLOW_EXPORT SimpleFilesInfoManager : public FilesInfoManagerInterface
{
public:
    /// Null and empty references are left out. Relative files count from \a baseUrl, a folder with a slash at
    /// its end, or from the current folder; references keep their relative texts.
    explicit SimpleFilesInfoManager(const QList<ResourceReferenceSPtr> &references, const QUrl &baseUrl = {});

    [[nodiscard]] Result<ResourceReferenceSPtr>
    validateAndCorrectFileReference(const ResourceReferenceSPtr &reference) override;

private:
    const QUrl m_baseUrl;
    /// Null until the home was asked.
    QHash<ResourceReferenceKey, std::optional<Result<ResourceReferenceSPtr>>> m_answers;
};

} // namespace orv
