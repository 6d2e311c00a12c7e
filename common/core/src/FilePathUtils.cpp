#include <orv/core/FilePathUtils.h>

namespace orv::FilePathUtils {

int winMaxPathLength()
{
    return 260;
}

bool isWinLongPath(const QString &path)
{
    return path.size() >= winMaxPathLength();
}

bool hasWinLongPathPrefix(const QString &path)
{
    return path.startsWith(QLatin1String(R"(\\?\)")) || path.startsWith(QLatin1String("//?/"));
}

} // namespace orv::FilePathUtils
