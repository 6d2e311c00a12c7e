#include "orv/resources/ResourceTypeChecker.h"

#include <orv/resources/ResourceReferenceUtils.h>

namespace orv::ResourceTypeChecker {

bool matches(const ResourceReferenceSPtr &reference, FileType type)
{
    return FileTypes::isType(ResourceReferenceUtils::localName(reference), type);
}

bool isMSFileType(const ResourceReferenceSPtr &reference)
{
    return FileTypes::hasMsDataSuffix(ResourceReferenceUtils::localName(reference));
}

bool isTolqFileType(const ResourceReferenceSPtr &reference)
{
    return matches(reference, FileTypes::TOLQ);
}

bool isCSVOrTextFileType(const ResourceReferenceSPtr &reference)
{
    return matches(reference, FileTypes::CSV) || matches(reference, FileTypes::TXT);
}

bool isElectropherogramFileType(const ResourceReferenceSPtr &reference)
{
    return matches(reference, MirelFileTypes::PI);
}

bool isKarvonResultFileType(const ResourceReferenceSPtr &reference)
{
    return matches(reference, MirelFileTypes::KARVRSLT) || matches(reference, MirelFileTypes::KARVON);
}

bool isCaldrinResultFileType(const ResourceReferenceSPtr &reference)
{
    return matches(reference, MirelFileTypes::CALDRSLT);
}

} // namespace orv::ResourceTypeChecker
