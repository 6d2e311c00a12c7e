#include "Losses.h"

#include "Failure.h"

#include <QJsonObject>

namespace orv::cli {

void printLosses(const QString &file, const QList<Loss> &lost)
{
    for (const Loss &loss : lost)
        printRemark(file, QStringLiteral("lost: %1: %2: %3").arg(loss.path, loss.what, loss.why));
}

QJsonArray toJson(const QList<Loss> &lost)
{
    QJsonArray array;
    for (const Loss &loss : lost) {
        array.append(QJsonObject{{QStringLiteral("path"), loss.path},
                                 {QStringLiteral("what"), loss.what},
                                 {QStringLiteral("why"), loss.why}});
    }
    return array;
}

} // namespace orv::cli
