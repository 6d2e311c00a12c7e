#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QStringList>

/// Small documents for the tests of the content tree.
namespace Documents {

inline QJsonObject parse(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        qFatal("The test's JSON is broken: %s", json.constData());
    return document.object();
}

inline QJsonObject cell(const QString &type, const QString &name = {})
{
    QJsonObject object{{QStringLiteral("type"), type}, {QStringLiteral("properties"), QJsonArray()}};
    if (!name.isEmpty())
        object.insert(QStringLiteral("name"), name);
    return object;
}

inline QJsonObject tab(const QString &name, const QStringList &columns, const QJsonArray &cells)
{
    return {{QStringLiteral("name"), name},
            {QStringLiteral("columns"), QJsonArray::fromStringList(columns)},
            {QStringLiteral("cells"), cells}};
}

inline QJsonObject document(const QJsonArray &tabs, const QJsonObject &metadata = {})
{
    const QByteArray text = QJsonDocument(metadata).toJson(QJsonDocument::Compact);
    return {{QStringLiteral("tabs"), tabs}, {QStringLiteral("metadata"), QString::fromUtf8(text)}};
}

inline QByteArray toBytes(const QJsonObject &object)
{
    return QJsonDocument(object).toJson();
}

} // namespace Documents
