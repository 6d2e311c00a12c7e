#include "orv/resources/ExternalDataSources.h"

#include <orv/core/Settings.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QCoreApplication>
#include <QDir>

namespace orv::ExternalDataSources {

namespace {

struct ExternalDataSourcesTr
{
    Q_DECLARE_TR_FUNCTIONS(ExternalDataSources)
};

Error refusal(const ResourceReferenceSPtr &reference, const QString &reason)
{
    return Error(ErrorCode::InvalidContent, ExternalDataSourcesTr::tr("\"%1\" has no place on this machine.")
                                                .arg(ResourceReferenceUtils::toString(reference, true)))
        .addDetail(reason);
}

/// Settings take backslashes for separators of their keys, and ".." leads out of a folder anywhere.
bool leadsElsewhere(const ResourceReference::Parts &parts)
{
    constexpr QLatin1Char backslash('\\');
    const QLatin1String up("..");
    return parts.server.contains(backslash) || parts.folder.contains(backslash) ||
           parts.name.contains(backslash) || parts.name == up ||
           parts.folder.split(QLatin1Char('/')).contains(up);
}

} // namespace

QString settingsKey(const QString &name)
{
    return QLatin1String("ExternalDataSources/") + name;
}

Result<QString> localPath(const ResourceReferenceSPtr &reference)
{
    if (!reference || !reference->isScheme(ResourceReference::Scheme::ExternalDataSource))
        return refusal(reference, ExternalDataSourcesTr::tr("It does not refer to an external data source."));
    const ResourceReference::Parts &parts = reference->parts();
    if (leadsElsewhere(parts))
        return refusal(reference, ExternalDataSourcesTr::tr(
                                      "Its path leads out of the source; name the file by a path without "
                                      "\"..\" and backslashes."));
    const QString key = settingsKey(parts.server);
    const QString folder = as::value(key).toString();
    if (folder.isEmpty() || QDir::isRelativePath(folder))
        return refusal(reference,
                       ExternalDataSourcesTr::tr("Set \"%1\" to the absolute path of the folder at which the "
                                                 "source \"%2\" is mounted.")
                           .arg(key, parts.server));
    return QDir::cleanPath(folder + parts.folder + QLatin1Char('/') + parts.name);
}

} // namespace orv::ExternalDataSources
