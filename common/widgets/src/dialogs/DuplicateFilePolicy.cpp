#include "orv/widgets/DuplicateFilePolicy.h"

#include <QDir>
#include <QFileInfo>

namespace orv {

QString pathForResult(const QString &path, DuplicateFilePolicy policy)
{
    const QFileInfo info(path);
    if (policy == DuplicateFilePolicy::Overwrite || !info.exists())
        return path;
    if (policy == DuplicateFilePolicy::Skip)
        return {};
    const QString suffix = info.suffix().isEmpty() ? QString() : u'.' + info.suffix();
    QString free = path;
    for (int number = 2; QFileInfo::exists(free); ++number) {
        const QString name = QStringLiteral("%1 (%2)%3").arg(info.completeBaseName()).arg(number).arg(suffix);
        free = info.dir().filePath(name);
    }
    return free;
}

} // namespace orv
