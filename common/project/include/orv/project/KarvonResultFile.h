#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QString>
#include <QStringList>

namespace orv {

/// The texts of the references to the MS files that a Karvon search went through, in their order. None if the
/// result doesn't tell, as a project doesn't. \a path is a local one; errors as those of SqliteConnection,
/// and InvalidContent for more than a hundred thousand files. Any thread.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QStringList> getMSFilesFromKarvrslt(const QString &path);

/// Creates a search result that tells of these MS files and of nothing else, whole or not at all. Fails as
/// SqliteConnection::createFile. Any thread.
ORV_WORKFLOW_EXPORT Error createKarvrslt(const QString &path, const QStringList &msFiles);

} // namespace orv
