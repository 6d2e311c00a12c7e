#include "orv/resources/ResourceHandlerUtils.h"

#include "internal/LocalPath.h"

#include <orv/core/Logging.h>
#include <orv/resources/ResourceManager.h>

namespace orv::ResourceHandlerUtils {

Result<bool> exists(const ResourceReferenceSPtr &reference)
{
    Result<ResourceHandlerSPtr> handler = ResourceManager::getHandler(reference);
    if (handler.hasError())
        return handler.ecatch();
    Result<bool> answer = (*handler)->exists();
    if (answer.hasError())
        return answer.ecatch();
    return answer;
}

bool checkExists(const ResourceReferenceSPtr &reference)
{
    const Result<bool> answer = exists(reference);
    if (answer.hasError())
        qCWarning(genericLog()).noquote() << answer.error().errorMessage();
    return answer.valueOr(false);
}

bool validateReference(const ResourceReferenceSPtr &reference)
{
    const Result<bool> answer = exists(reference);
    if (answer.hasError())
        qCWarning(genericLog()).noquote() << answer.error().errorMessage();
    else if (!*answer)
        qCWarning(genericLog()).noquote() << "There is no" << reference->readableText();
    return answer.valueOr(false);
}

QString fullPath(const ResourceReferenceSPtr &reference)
{
    if (!reference || !reference->isScheme(ResourceReference::Scheme::LocalFile))
        return {};
    return LocalPath::withSlashes(reference->text());
}

} // namespace orv::ResourceHandlerUtils
