#include "orv/core/LossObserver.h"

namespace orv {

LossObserver::~LossObserver() = default;
LossCollector::~LossCollector() = default;

QString jsonPointerToken(const QString &key)
{
    QString token = key;
    token.replace(QLatin1Char('~'), QLatin1String("~0"));
    token.replace(QLatin1Char('/'), QLatin1String("~1"));
    return token;
}

} // namespace orv
