#include "orv/resources/LocalResourceReference.h"

#include <orv/resources/ResourceReference.h>

namespace orv::LocalResourceReference {

bool isLocalReference(const QString &text)
{
    const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
    return !reference.hasError() && !(*reference)->isEmpty() &&
           (*reference)->isScheme(ResourceReference::Scheme::LocalFile);
}

} // namespace orv::LocalResourceReference
