#include "orv/remote/RemoteHandlers.h"

#include "internal/ExternalDataSourceHandler.h"
#include "internal/TalvaneHandler.h"
#include "internal/UnifiHandler.h"

#include <orv/resources/ResourceManager.h>

namespace orv::RemoteHandlers {

namespace {

using Scheme = ResourceReference::Scheme;

template<typename Handler>
void installFor(Scheme scheme)
{
    ResourceManager::setHandlerFactory(
        scheme, [](const ResourceReferenceSPtr &reference) -> Result<ResourceHandlerSPtr> {
            return ResourceHandlerSPtr(new Handler(reference));
        });
}

} // namespace

void install()
{
    installFor<TalvaneHandler>(Scheme::ServerFile);
    installFor<TalvaneHandler>(Scheme::ManagedResource);
    installFor<ExternalDataSourceHandler>(Scheme::ExternalDataSource);
    installFor<UnifiHandler>(Scheme::UNIFI);
}

} // namespace orv::RemoteHandlers
