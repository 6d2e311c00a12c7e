#include "Losses.h"

#include "Failure.h"
#include "ValueText.h"

#include <QJsonObject>

namespace orv::cli {

void printLosses(const QString &file, const QList<Loss> &lost)
{
    for (const Loss &loss : lost) {
        const QString line = QStringLiteral("%1: %2: %3: %4")
                                 .arg(loss.isChange() ? QStringLiteral("changed") : QStringLiteral("lost"),
                                      loss.path, loss.what, loss.why);
        printRemark(file,
                    loss.isChange()
                        ? QStringLiteral("%1 (%2 -> %3)").arg(line, oneLine(loss.stored), oneLine(loss.read))
                        : line);
    }
}

QJsonArray toJson(const QList<Loss> &lost)
{
    QJsonArray array;
    for (const Loss &loss : lost) {
        array.append(QJsonObject{{QStringLiteral("path"), loss.path},
                                 {QStringLiteral("what"), loss.what},
                                 {QStringLiteral("why"), loss.why},
                                 {QStringLiteral("stored"), orNull(loss.stored)},
                                 {QStringLiteral("read"), orNull(loss.read)}});
    }
    return array;
}

} // namespace orv::cli
