#include "ExternalDataSourceHandler.h"

#include <orv/resources/ExternalDataSources.h>
#include <orv/resources/ResourceManager.h>

namespace orv {

Result<ResourceHandlerSPtr> ExternalDataSourceHandler::local() const
{
    Result<QString> path = ExternalDataSources::localPath(reference());
    if (path.hasError())
        return path.ecatch();
    Result<ResourceReferenceSPtr> file = ResourceReference::fromString(*path);
    if (file.hasError())
        return file.ecatch();
    Result<ResourceHandlerSPtr> handler = ResourceManager::getHandler(*file);
    if (handler.hasError())
        return handler.ecatch();
    return handler;
}

bool ExternalDataSourceHandler::isAvailableLocally() const
{
    const Result<ResourceHandlerSPtr> handler = local();
    return !handler.hasError() && (*handler)->isAvailableLocally();
}

Result<bool> ExternalDataSourceHandler::exists()
{
    Result<ResourceHandlerSPtr> handler = local();
    if (handler.hasError())
        return handler.ecatch();
    return (*handler)->exists();
}

Result<QString> ExternalDataSourceHandler::grab()
{
    Result<ResourceHandlerSPtr> handler = local();
    if (handler.hasError())
        return handler.ecatch();
    return (*handler)->grab();
}

Result<QJsonObject> ExternalDataSourceHandler::metadata()
{
    Result<ResourceHandlerSPtr> handler = local();
    if (handler.hasError())
        return handler.ecatch();
    return (*handler)->metadata();
}

} // namespace orv
