#include "orv/resources/ResourceManager.h"

#include "internal/LocalResourceHandler.h"

#include <QCoreApplication>
#include <QMap>
#include <QReadWriteLock>

namespace orv::ResourceManager {

namespace {

using Scheme = ResourceReference::Scheme;

struct ResourceManagerTr
{
    Q_DECLARE_TR_FUNCTIONS(ResourceManager)
};

struct Registry
{
    QReadWriteLock lock;
    QMap<Scheme, HandlerFactory> factories;
};

Registry &registry()
{
    static Registry instance;
    return instance;
}

HandlerFactory factoryOf(Scheme scheme)
{
    Registry &all = registry();
    const QReadLocker locker(&all.lock);
    return all.factories.value(scheme);
}

} // namespace

void setHandlerFactory(ResourceReference::Scheme scheme, const HandlerFactory &factory)
{
    Registry &all = registry();
    const QWriteLocker locker(&all.lock);
    if (factory)
        all.factories.insert(scheme, factory);
    else
        all.factories.remove(scheme);
}

bool isBuiltIn(Scheme scheme)
{
    return scheme == Scheme::LocalFile && !factoryOf(scheme);
}

Result<ResourceHandlerSPtr> getHandler(const ResourceReferenceSPtr &reference)
{
    if (!reference || reference->isEmpty())
        return Error(ErrorCode::InvalidContent, ResourceManagerTr::tr("The reference is empty."));
    if (const HandlerFactory factory = factoryOf(reference->scheme())) {
        Result<ResourceHandlerSPtr> handler = factory(reference);
        if (handler.hasError())
            return handler.ecatch();
        return handler;
    }
    if (reference->isScheme(Scheme::LocalFile))
        return ResourceHandlerSPtr(new LocalResourceHandler(reference));
    return Error(ErrorCode::InvalidContent,
                 ResourceManagerTr::tr("\"%1\" can't be reached from here.").arg(reference->readableText()))
        .addDetail(ResourceManagerTr::tr(
            "The application is not connected to the server that holds it. Connect it, or refer "
            "to a local file."));
}

Result<ResourceHandlerSPtr> retrieve(const ResourceReferenceSPtr &reference)
{
    Result<ResourceHandlerSPtr> handler = getHandler(reference);
    if (handler.hasError())
        return handler.ecatch();
    Result<QString> path = (*handler)->grab();
    if (path.hasError())
        return path.ecatch();
    return handler;
}

Result<QJsonObject> retrieveMetadata(const ResourceReferenceSPtr &reference)
{
    Result<ResourceHandlerSPtr> handler = getHandler(reference);
    if (handler.hasError())
        return handler.ecatch();
    Result<QJsonObject> metadata = (*handler)->metadata();
    if (metadata.hasError())
        return metadata.ecatch();
    return metadata;
}

} // namespace orv::ResourceManager
