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

/// The property whose value is the table of such a cell; empty for cells without one.
inline QString tableOf(const QString &type)
{
    static const QStringList tables{QStringLiteral("DetachedGlycans"), QStringLiteral("GlycanOptions"),
                                    QStringLiteral("IntactOptions"),   QStringLiteral("Isotope"),
                                    QStringLiteral("OligoOptions"),    QStringLiteral("OligoMolecules"),
                                    QStringLiteral("IntactProteins")};
    if (type == QStringLiteral("Masses"))
        return QStringLiteral("MassTable");
    if (type == QStringLiteral("Samples"))
        return QStringLiteral("SamplesTable");
    if (type == QStringLiteral("Database"))
        return QStringLiteral("SequenceDatabases");
    return tables.contains(type) ? type : QString();
}

/// A cell that a load followed by a save leaves as it is.
inline QJsonObject cell(const QString &type, const QString &name = {})
{
    QJsonArray properties;
    if (const QString table = tableOf(type); !table.isEmpty()) {
        QJsonObject node{{QStringLiteral("data"), QJsonArray()}, {QStringLiteral("children"), QJsonArray()}};
        if (type == QStringLiteral("Samples"))
            node = {{QStringLiteral("Samples"), QJsonArray()}};
        if (type == QStringLiteral("Database"))
            node = {{QStringLiteral("sequences"), QJsonArray()}};
        properties.append(QJsonObject{{QStringLiteral("name"), table}, {QStringLiteral("value"), node}});
    }
    QJsonObject object{{QStringLiteral("type"), type}, {QStringLiteral("properties"), properties}};
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

/// The JSON of a column, tab or document without the stamps of its cells, which every load of settings
/// renews.
inline QJsonValue withoutStamps(const QJsonValue &json)
{
    if (json.isArray()) {
        QJsonArray array;
        for (const auto element : json.toArray())
            array.append(withoutStamps(element));
        return array;
    }
    QJsonObject object = json.toObject();
    for (const QString &key : {QStringLiteral("tabs"), QStringLiteral("cells")}) {
        if (object.contains(key))
            object.insert(key, withoutStamps(object.value(key)));
    }
    if (object.contains(QStringLiteral("type")))
        object.remove(QStringLiteral("metadata"));
    return object;
}

inline QByteArray toBytes(const QJsonObject &object)
{
    return QJsonDocument(object).toJson();
}

} // namespace Documents
