#include "orv/propertyeditor/Version.h"

namespace orv {

QString libraryVersion()
{
    return QStringLiteral(ORV_VERSION);
}

} // namespace orv
