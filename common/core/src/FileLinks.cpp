#include "orv/core/FileLinks.h"

#include <QFileInfo>

namespace orv {

QString FileLinks::end(const QString &path)
{
    constexpr int kMostLinks = 40; // as many as Linux follows
    QString target = path;
    for (int i = 0; i < kMostLinks && QFileInfo(target).isSymLink(); ++i)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

} // namespace orv
