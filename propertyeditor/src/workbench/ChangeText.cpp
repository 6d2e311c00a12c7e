#include "ChangeText.h"

#include "ShortText.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace orv::ChangeText {

QString ofPlace(const QString &path)
{
    constexpr qsizetype kLongestPlace = 400;
    return ShortText::end(path, kLongestPlace);
}

QString ofText(const QString &text)
{
    constexpr qsizetype kLongestText = 120;
    return ShortText::beginning(text, kLongestText);
}

QString ofValue(const QJsonValue &value)
{
    if (value.isUndefined())
        return {};
    if (value.isString())
        return ofText(value.toString());
    if (const QJsonValue name = value[QLatin1String("name")]; name.isString())
        return ofText(name.toString());
    // A value alone is no JSON document for the writer; its list is.
    const QByteArray json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return ofText(QString::fromUtf8(json.mid(1, json.size() - 2)));
}

} // namespace orv::ChangeText
