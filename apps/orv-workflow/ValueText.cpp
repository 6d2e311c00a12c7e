#include "ValueText.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace orv::cli {

QString oneLine(const QJsonValue &value)
{
    constexpr qsizetype kLongest = 60;
    // A value alone is no JSON document for the writer; its list is.
    const QByteArray json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    const QString text = QString::fromUtf8(json.mid(1, json.size() - 2));
    return text.size() <= kLongest ? text : text.left(kLongest - 3) + QLatin1String("...");
}

QJsonValue orNull(const QJsonValue &value)
{
    return value.isUndefined() ? QJsonValue() : value;
}

QJsonValue orNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

} // namespace orv::cli
