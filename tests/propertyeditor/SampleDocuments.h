#pragma once

#include "Documents.h"

#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/samples/SamplesAndTracesContent.h>

/// Documents that hold samples and little else.
namespace SampleDocuments {

inline QJsonObject sample(int id, const QString &name, const QString &path, const QJsonObject &more = {})
{
    QJsonObject object = more;
    object.insert(QStringLiteral("SamplesId"), id);
    object.insert(QStringLiteral("SampleName"), name);
    object.insert(QStringLiteral("SamplePath"), path);
    return object;
}

/// \a table is the value of the samples' cell, which lies in the column "Sample Input" of the tab "Samples".
inline orv::PropertyEditorContent ofTable(const QJsonObject &table, const QJsonObject &metadata = {})
{
    QJsonObject cell = Documents::cell(QStringLiteral("Samples"));
    cell.insert(QStringLiteral("properties"),
                QJsonArray{QJsonObject{{QStringLiteral("name"), QStringLiteral("SamplesTable")},
                                       {QStringLiteral("value"), table}}});
    return orv::PropertyEditorContent(Documents::document(
        {Documents::tab(QStringLiteral("Samples"), {QStringLiteral("Sample Input")}, {cell})}, metadata));
}

inline orv::PropertyEditorContent ofSamples(const QJsonArray &samples, const QJsonObject &metadata = {})
{
    return ofTable({{QStringLiteral("Samples"), samples}}, metadata);
}

/// The value of the samples' cell as it is stored.
inline QJsonObject tableOf(const orv::PropertyEditorContent &content)
{
    const QJsonObject document = QJsonDocument::fromJson(content.toJson()).object();
    const QJsonObject tab = document.value(QStringLiteral("tabs")).toArray().at(0).toObject();
    const QJsonObject cell = tab.value(QStringLiteral("cells")).toArray().at(0).toObject();
    const QJsonObject entry = cell.value(QStringLiteral("properties")).toArray().at(0).toObject();
    return entry.value(QStringLiteral("value")).toObject();
}

inline orv::SamplesAndTracesContent samplesOf(const orv::PropertyEditorContent &content)
{
    return orv::SamplesAndTracesContent::fromJson(tableOf(content)).valueOr({});
}

/// Reference and metadata of the first sample.
inline orv::SamplesInput::Entry firstSample(const orv::PropertyEditorContent &content)
{
    return samplesOf(content).samples.entries().value(0);
}

} // namespace SampleDocuments
