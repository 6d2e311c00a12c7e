#include "SampleIds.h"

#include <QStringList>

#include <algorithm>

namespace orv::Internal {

QList<int> idsOutside(const QList<int> &ids, const QSet<int> &known)
{
    QList<int> outside;
    std::copy_if(ids.begin(), ids.end(), std::back_inserter(outside),
                 [&](int id) { return !known.contains(id); });
    return outside;
}

QString joinedNumbers(const QList<int> &numbers)
{
    QStringList texts;
    for (int number : numbers)
        texts.append(QString::number(number));
    return texts.join(QLatin1String(", "));
}

} // namespace orv::Internal
