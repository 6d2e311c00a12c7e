#pragma once

#include "Documents.h"

#include <KProperty>
#include <KPropertySet>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/engine/KarvonPresetCreator.h>
#include <orv/table/XenosetPreset.h>

#include <QMap>

#include <memory>

/// What the tests of the engine's parameter files share.
namespace EngineFiles {

struct Sample
{
    QString name;
    QString file;
};

inline QString nameOf(int number)
{
    return orv::PropertiesNames::internalNameForType(orv::PropertyId(number));
}

inline QJsonObject entry(int number, const QJsonValue &value)
{
    return {{QStringLiteral("name"), nameOf(number)}, {QStringLiteral("value"), value}};
}

/// A search with these settings, whether or not its kind of cell may hold them.
inline std::unique_ptr<orv::PropertyEditor::KeyValueItem> search(const QJsonArray &entries)
{
    auto item = std::make_unique<orv::PropertyEditor::KeyValueItem>(orv::BaseItemType::Karvon);
    const orv::Error error = item->assignFromJson(
        {{QStringLiteral("type"), QStringLiteral("Karvon")}, {QStringLiteral("properties"), entries}},
        orv::PropertyEditor::ValidationOption::SkipTypeValidation);
    if (error.hasError())
        qFatal("The test's cell can't be loaded: %s", qPrintable(error.errorMessage()));
    return item;
}

inline void load(orv::PropertyEditor::Content *content, const QList<Sample> &samples)
{
    QJsonArray rows;
    for (const Sample &sample : samples) {
        rows.append(QJsonObject{{QStringLiteral("SampleName"), sample.name},
                                {QStringLiteral("FilePath"), sample.file}});
    }
    const QJsonObject cell{
        {QStringLiteral("type"), QStringLiteral("Samples")},
        {QStringLiteral("properties"),
         QJsonArray{QJsonObject{{QStringLiteral("name"), QStringLiteral("SamplesTable")},
                                {QStringLiteral("value"), QJsonObject{{QStringLiteral("Samples"), rows}}}}}}};
    const orv::Error error = content->assignFromJson(Documents::document(
        {Documents::tab(QStringLiteral("Samples"), {QStringLiteral("Samples")}, {cell})}));
    if (error.hasError())
        qFatal("The test's samples can't be loaded: %s", qPrintable(error.errorMessage()));
}

/// The file of a search in a workflow without samples.
inline QByteArray fileOf(const orv::PropertyEditor::KeyValueItem &item)
{
    return orv::KarvonPresetCreator(orv::PropertyEditor::Content(), item).presetForSample({}, {});
}

inline QByteArray fileOf(const QJsonArray &entries)
{
    return fileOf(*search(entries));
}

/// The lines below the head, key first.
inline QList<QPair<QString, QString>> linesOf(const QByteArray &file)
{
    QList<QPair<QString, QString>> lines;
    for (const QString &line : QString::fromUtf8(file).split(QLatin1Char('\n'))) {
        const qsizetype sign = line.indexOf(QLatin1Char('='));
        if (!line.startsWith(QLatin1Char('#')) && sign > 0)
            lines.append({line.first(sign), line.sliced(sign + 1)});
    }
    return lines;
}

inline QMap<QString, QString> valuesOf(const QByteArray &file)
{
    QMap<QString, QString> values;
    for (const auto &[key, value] : linesOf(file))
        values.insert(key, value);
    return values;
}

inline std::unique_ptr<KPropertySet> read(const QByteArray &file)
{
    const orv::Result<orv::XenosetPreset> preset = orv::XenosetPreset::fromText(file);
    if (preset.hasError())
        qFatal("The test's file is refused: %s", qPrintable(preset.error().details().join(QLatin1Char(' '))));
    return std::unique_ptr<KPropertySet>(orv::KarvonPresetCreator::propertySetFromXenoset(*preset));
}

inline QVariant valueIn(const KPropertySet &set, int number)
{
    return set.property(nameOf(number).toUtf8()).value();
}

} // namespace EngineFiles
