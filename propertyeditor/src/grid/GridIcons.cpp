#include "GridIcons.h"

#include <QFile>

namespace orv::GridIcons {

QIcon icon(IconName drawing, const char *resource, const char *themeName)
{
    const QLatin1String theme(themeName ? themeName : "");
    if (!theme.isEmpty() && QIcon::hasThemeIcon(theme))
        return QIcon::fromTheme(theme);
    const QString file = QLatin1String(resource ? resource : "");
    return !file.isEmpty() && QFile::exists(file) ? QIcon(file) : Icons::icon(drawing);
}

} // namespace orv::GridIcons
