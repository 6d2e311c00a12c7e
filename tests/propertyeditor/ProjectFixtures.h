#pragma once

#include "CurrentVersion.h"
#include "Documents.h"

#include <orv/project/ProjectFile.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/Content.h>

/// Documents with samples and settings, and projects made of them.
namespace ProjectFixtures {

struct Sample
{
    QString name;
    QString file;
    QStringList traces;
    QStringList results;
};

inline QJsonObject samplesCell(const QList<Sample> &samples, const QJsonArray &traces = {})
{
    QJsonArray rows;
    for (const Sample &sample : samples) {
        rows.append(
            QJsonObject{{QStringLiteral("SamplesId"), int(rows.size()) + 1},
                        {QStringLiteral("SampleName"), sample.name},
                        {QStringLiteral("SamplePath"), sample.file},
                        {QStringLiteral("Traces"), QJsonArray::fromStringList(sample.traces)},
                        {QStringLiteral("ExtraReferences"), QJsonArray::fromStringList(sample.results)}});
    }
    const QJsonObject options{{QStringLiteral("TracesImportList"), traces}};
    const QJsonObject value{{QStringLiteral("Samples"), rows},
                            {QStringLiteral("TraceImportAndProcessingOptions"), options}};
    const QJsonObject entry{{QStringLiteral("name"), QStringLiteral("SamplesTable")},
                            {QStringLiteral("value"), value}};
    return {{QStringLiteral("type"), QStringLiteral("Samples")},
            {QStringLiteral("properties"), QJsonArray{entry}}};
}

/// A cell of settings, with the text that chooses its samples unless that is null.
inline QJsonObject step(const QString &type, const QString &pattern = {})
{
    QJsonArray entries;
    if (!pattern.isNull()) {
        const QString name = orv::PropertiesNames::internalNameForType(orv::PropertyId::Samples);
        entries.append(QJsonObject{{QStringLiteral("name"), name}, {QStringLiteral("value"), pattern}});
    }
    return {{QStringLiteral("type"), type}, {QStringLiteral("properties"), entries}};
}

/// One tab with a column for each cell.
inline QJsonObject document(const QJsonArray &cells, QJsonObject metadata = {})
{
    QStringList columns;
    for (qsizetype i = 0; i < cells.size(); ++i)
        columns.append(QString::number(i));
    if (!metadata.contains(QStringLiteral("version")))
        metadata.insert(QStringLiteral("version"), currentVersionText());
    return Documents::document({Documents::tab(QStringLiteral("Tab"), columns, cells)}, metadata);
}

inline void load(orv::PropertyEditor::Content *content, const QJsonObject &document)
{
    if (const orv::Error error = content->assignFromJson(document))
        qFatal("%s", qPrintable(error.errorMessage()));
}

inline void makeProject(const QString &path, const QJsonObject &document)
{
    const orv::Error error =
        orv::ProjectFile::create(path, {{orv::kMirelProjectCreationOptions, Documents::toBytes(document)}});
    if (error)
        qFatal("%s", qPrintable(error.errorMessage()));
}

} // namespace ProjectFixtures
