#include <orv/core/PathUtils.h>
#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/resources/ResourceTypeChecker.h>

#include <algorithm>

namespace orv::ResourceTypeChecker {

bool matches(const ResourceReferenceSPtr &reference, FileType type)
{
    return FileTypes::isType(ResourceReferenceUtils::localName(reference), type);
}

bool isMSFileType(const ResourceReferenceSPtr &reference)
{
    const QString name = ResourceReferenceUtils::localName(reference);
    const QStringList suffixes = FileTypes::msDataSuffixes();
    return std::any_of(suffixes.begin(), suffixes.end(),
                       [&name](const QString &suffix) { return PathUtils::hasExtension(name, suffix); });
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
