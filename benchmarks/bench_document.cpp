// Loading and writing both forms of a document against the bare JSON parse and write of the same bytes.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <orv/core/JsonUtils.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <functional>

using namespace orv;
using PropertyEditor::Content;
using PropertyEditor::PropertyConversionFlag;

namespace {

void add(const std::string &name, const std::function<void()> &work)
{
    benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state)
            work();
    })->Unit(benchmark::kMicrosecond);
}

void addLoad(const std::string &label, const QByteArray &bytes)
{
    const auto keep = [](auto &&value) { benchmark::DoNotOptimize(value); };
    add("load " + label + "/baseline", [=] { keep(QJsonDocument::fromJson(bytes)); });
    add("load " + label + "/object form", [=] {
        Content content;
        keep(content.assignFromJson(QJsonDocument::fromJson(bytes).object()).hasError());
    });
}

void addDocument(const std::string &label, const QByteArray &bytes, const QString &file)
{
    const auto keep = [](auto &&value) { benchmark::DoNotOptimize(value); };
    const auto parsed = std::make_shared<QJsonDocument>(QJsonDocument::fromJson(bytes));
    const auto value = std::make_shared<PropertyEditorContent>(bytes);
    const auto tree = std::make_shared<Content>();
    if (tree->assignFromJson(parsed->object()).hasError())
        qFatal("The benchmark's document can't be loaded");

    addLoad(label, bytes);
    add("load " + label + "/value form", [=] { keep(PropertyEditorContent(bytes)); });
    add("load file " + label + "/baseline", [=] {
        QFile device(file);
        if (device.open(QIODevice::ReadOnly))
            keep(QJsonDocument::fromJson(device.readAll()));
    });
    add("load file " + label + "/object form", [=] {
        Content content;
        keep(content.assignFromFile(file).hasError());
    });
    add("write " + label + "/baseline", [=] { keep(parsed->toJson()); });
    add("write " + label + "/value form", [=] { keep(value->toJson()); });
    add("write " + label + "/object form", [=] { keep(tree->toJson(PropertyConversionFlag::KeepPaths)); });
    add("round trip " + label + "/baseline", [=] { keep(QJsonDocument::fromJson(bytes).toJson()); });
    add("round trip " + label + "/value form", [=] { keep(PropertyEditorContent(bytes).toJson()); });
    add("round trip " + label + "/object form", [=] {
        Content content;
        if (!content.assignFromJson(QJsonDocument::fromJson(bytes).object()).hasError())
            keep(content.toJson(PropertyConversionFlag::KeepPaths));
    });
}

/// Cells of a type of a later version.
QByteArray unknownCells(int count)
{
    const QJsonObject entry{{QStringLiteral("name"), QStringLiteral("KarvonCentroidWidthVal")},
                            {QStringLiteral("value"), QStringLiteral("0.01")}};
    QJsonArray cells;
    for (int i = 0; i < count; ++i) {
        cells.append(QJsonObject{{QStringLiteral("type"), QStringLiteral("Novelty")},
                                 {QStringLiteral("name"), QString::number(i)},
                                 {QStringLiteral("properties"), QJsonArray{entry}}});
    }
    const QJsonObject tab{{QStringLiteral("name"), QStringLiteral("Tab")},
                          {QStringLiteral("columns"), QJsonArray{QStringLiteral("A")}},
                          {QStringLiteral("cells"), cells}};
    return QJsonDocument(QJsonObject{{QStringLiteral("tabs"), QJsonArray{tab}}}).toJson();
}

/// Linear when the ratio to the baseline is that of a tenth of the cells.
void addUnknownCells(int count)
{
    const QByteArray bytes = unknownCells(count);
    const std::string label = std::to_string(count) + " unknown cells";
    add("load " + label + "/baseline", [=] { benchmark::DoNotOptimize(QJsonDocument::fromJson(bytes)); });
    add("load " + label + "/object form", [=] {
        Content content;
        benchmark::DoNotOptimize(content
                                     .assignFromJson(QJsonDocument::fromJson(bytes).object(),
                                                     PropertyEditor::ValidationOption::SkipTypeValidation)
                                     .hasError());
    });
}

} // namespace

int main(int argc, char *argv[])
{
    // Each unknown cell is told as a warning.
    QLoggingCategory::setFilterRules(QStringLiteral("orv.*.debug=false\norv.*.warning=false"));
    const QTemporaryDir folder;
    struct Size
    {
        const char *label;
        int samples;
        int steps;
    };
    for (const Size &size : {Size{"35 kB", 6, 2}, Size{"1 MB", 96, 50}, Size{"10,000 samples", 10000, 4}}) {
        const QByteArray bytes = Lifelike::document(size.samples, size.steps);
        const QString path = folder.filePath(QStringLiteral("%1.wflw").arg(size.samples));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("The benchmark's file can't be written");
        addDocument(size.label, bytes, path);
    }
    for (const auto &[label, steps] : {std::pair{"1,000 settings", 13}, std::pair{"10,000 settings", 127},
                                       std::pair{"100,000 settings", 1266}})
        addLoad(label, Lifelike::document(6, Lifelike::sized(steps)));
    for (const auto &[label, samples] :
         {std::pair{"1,000 samples", 1000}, std::pair{"100,000 samples", 100000}})
        addLoad(label, Lifelike::document(Lifelike::sized(samples), 4));
    addUnknownCells(6000);
    addUnknownCells(60000);
    return runRatioBenchmarks(argc, argv);
}
