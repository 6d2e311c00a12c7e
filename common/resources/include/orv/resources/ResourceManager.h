#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/resources/ResourceHandler.h>

#include <functional>

/// Handlers of references, by scheme. Local files are handled here; clients of servers register theirs. Any
/// thread.
namespace orv::ResourceManager {

/// Makes the handler of a reference of one scheme. Called on the thread that asks for a handler.
using HandlerFactory = std::function<Result<ResourceHandlerSPtr>(const ResourceReferenceSPtr &reference)>;

/// Puts \a factory in charge of \a scheme, in place of an earlier one; an empty one gives up the scheme, and
/// LocalFile then goes back to the handler of this module. Handlers that were made before stay as they are.
ORV_WORKFLOW_EXPORT void setHandlerFactory(ResourceReference::Scheme scheme, const HandlerFactory &factory);

/// Whether references of \a scheme are handled by this module itself, whose handlers may be used on several
/// threads at once. One that a host registered is called on the thread that needs the answer.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isBuiltIn(ResourceReference::Scheme scheme);

/// The handler of \a reference, which fetches nothing by itself. Fails with InvalidContent for a null or
/// empty reference, and for a scheme that nothing here is in charge of.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<ResourceHandlerSPtr>
getHandler(const ResourceReferenceSPtr &reference);

/// As getHandler, with the resource fetched: grab() of the result doesn't block any more. Fails as grab does.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<ResourceHandlerSPtr>
retrieve(const ResourceReferenceSPtr &reference);

/// ResourceHandler::metadata of \a reference.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QJsonObject>
retrieveMetadata(const ResourceReferenceSPtr &reference);

} // namespace orv::ResourceManager
