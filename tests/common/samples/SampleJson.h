#pragma once

#include <orv/resources/ResourceReference.h>

#include <QJsonDocument>
#include <QJsonObject>

/// JSON and references that a test spells out; a broken one ends the test program.
namespace SampleJson {

inline QJsonObject parsed(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        qFatal("The test's JSON is broken: %s", json.constData());
    return document.object();
}

inline orv::ResourceReferenceSPtr reference(const QString &text)
{
    const auto result = orv::ResourceReference::fromString(text);
    if (result.hasError())
        qFatal("The test's reference is broken: %s", qPrintable(text));
    return *result;
}

} // namespace SampleJson
