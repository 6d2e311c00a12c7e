#include "orv/resources/UnifiResourceReference.h"

#include <QCoreApplication>

namespace orv::UnifiResourceReference {

namespace {

QString withoutBraces(const QString &id)
{
    const bool hasBraces = id.startsWith(QLatin1Char('{')) && id.endsWith(QLatin1Char('}'));
    return hasBraces ? id.mid(1, id.size() - 2) : id;
}

QString withoutOuterSlashes(QString path)
{
    while (path.startsWith(QLatin1Char('/')))
        path.remove(0, 1);
    while (path.endsWith(QLatin1Char('/')))
        path.chop(1);
    return path;
}

} // namespace

Result<ResourceReferenceSPtr> create(const QString &server, const QString &id, const QString &path,
                                     const QString &name)
{
    const ResourceReference::Parts parts{server, withoutBraces(id), withoutOuterSlashes(path), name};
    // References of old documents have none, and can't be told apart once a folder is renamed.
    if (parts.id.isEmpty())
        return Error(ErrorCode::InvalidContent,
                     QCoreApplication::translate("ResourceReference", "A UNIFI item needs its identifier."))
            .addDetail(parts.folder + QLatin1Char('/') + name);
    Result<ResourceReferenceSPtr> reference =
        ResourceReference::create(ResourceReference::Scheme::UNIFI, parts);
    if (reference.hasError())
        return reference.ecatch();
    return reference;
}

} // namespace orv::UnifiResourceReference
