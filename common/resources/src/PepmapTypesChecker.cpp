#include "orv/resources/PepmapTypesChecker.h"

namespace orv::PepmapTypesChecker {

bool isPepmapType(FileType type)
{
    return type == MirelFileTypes::DRAVIK || type == MirelFileTypes::INTACT || type == MirelFileTypes::OLIGO;
}

bool isPepmapFile(const QString &path)
{
    return isPepmapType(FileTypes::typeOfPath(path));
}

} // namespace orv::PepmapTypesChecker
