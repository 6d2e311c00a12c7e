// The whole chain of upgrades against one load and write of the object form: documents that nearly every step
// lets in, and documents that only the steps for all documents write.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <KProperty>
#include <KPropertySet>
#include <orv/core/JsonUtils.h>
#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/KPropertySetUtils.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/workflow/WflwUpgrader.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QSet>
#include <QVersionNumber>

#include <algorithm>

using namespace orv;
using PropertyEditor::Content;
using PropertyEditor::PropertyConversionFlag;

namespace {

const QString kCells = QStringLiteral("cells");
const QString kTabs = QStringLiteral("tabs");
const QString kProperties = QStringLiteral("properties");

/// Settings that steps insert, so that no document of that age has them.
QSet<PropertyId> laterSettings()
{
    return {PropertyId::ExportSearchReport,
            PropertyId::ReportConfiguration,
            PropertyId::KarvonInclusionFilter,
            PropertyId::KarvonMoleculeType,
            PropertyId::KarvonNglycanMotifLetters,
            PropertyId::IsotopeModel,
            PropertyId::PdfReportTemplate,
            PropertyId::AlignmentEnabled,
            PropertyId::AlignmentTolerance,
            PropertyId::ToleranceDetermination,
            PropertyId::InSilicoPeptidesFile,
            PropertyId::InSilicoMode,
            PropertyId::TheoreticalPeptides,
            PropertyId::XicMode,
            PropertyId::FastXicBlockScans,
            PropertyId::FastXicCacheSize,
            PropertyId::FastXicMzBins};
}

QJsonObject settingsCell(BaseItemType type)
{
    QList<PropertyId> ids = (allowedProperties(type) - laterSettings()).values();
    std::sort(ids.begin(), ids.end());
    KPropertySet set;
    for (const PropertyId id : ids) {
        KProperty *const property =
            PropertySetCreator::createDefaultProperty(id, PropertySetCreator::Priority::High);
        if (!property)
            continue;
        if (id == PropertyId::AdvancedConfiguration)
            property->setValue(QStringLiteral("[XIC]\nMode=Standard\n"));
        KPropertySetUtils::insertInKPropertySet(QStringLiteral("Settings"), property, &set, -1);
    }
    QJsonObject cell =
        PropertySetCreator::propertySetToObject(set, PropertyConversionFlag::KeepPaths).value();
    cell.insert(QStringLiteral("type"), baseItemTypeToString(type));
    return cell;
}

/// A document of version 5.5.0 whose steps are cells of \a types by turns.
QByteArray oldDocument(int samples, int steps, const QList<BaseItemType> &types, const QString &icon)
{
    QJsonObject document = QJsonDocument::fromJson(Lifelike::document(samples, steps)).object();
    QJsonArray tabs = document.value(kTabs).toArray();
    QJsonObject processing = tabs.takeAt(1).toObject();
    QJsonArray cells;
    for (int i = 0; i < steps; ++i)
        cells.append(settingsCell(types.at(i % types.size())));
    processing.insert(kCells, cells);
    const QJsonObject sequences = QJsonDocument::fromJson(Lifelike::proteins(10)).object();
    tabs.append(sequences.value(kTabs).toArray().at(0));
    tabs.append(processing);
    document.insert(kTabs, tabs);
    const QJsonObject metadata{{QStringLiteral("version"), QStringLiteral("5.5.0")},
                               {QStringLiteral("icon"), icon}};
    document.insert(QStringLiteral("metadata"), QString::fromUtf8(JsonUtils::toCompactJson(metadata)));
    return QJsonDocument(document).toJson();
}

void add(const std::string &group, const QByteArray &bytes)
{
    const auto document = std::make_shared<PropertyEditorContent>(bytes);
    benchmark::RegisterBenchmark((group + "/baseline").c_str(), [bytes](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state)
            benchmark::DoNotOptimize(QJsonDocument::fromJson(bytes).toJson());
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark((group + "/load and write").c_str(), [bytes](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state) {
            Content content;
            if (content.assignFromJson(QJsonDocument::fromJson(bytes).object(),
                                       PropertyEditor::ValidationOption::SkipTypeValidation))
                qFatal("The benchmark's document can't be loaded");
            benchmark::DoNotOptimize(content.toJson(PropertyConversionFlag::KeepPaths));
        }
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark((group + "/chain").c_str(), [document](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state) {
            PropertyEditorContent upgraded(*document);
            const Error error =
                WflwUpgrader::upgradeWorkflow(QVersionNumber(5, 5, 0), &upgraded, nullptr, false);
            if (error)
                qFatal("%s", qPrintable((error.errorMessages() + error.details()).join(QLatin1Char('\n'))));
        }
    })->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char *argv[])
{
    QLoggingCategory::setFilterRules(QStringLiteral("orv.*=false"));
    struct Size
    {
        const char *label;
        int samples;
        int steps;
    };
    const QList<BaseItemType> edited{BaseItemType::Karvon, BaseItemType::Senthia};
    for (const Size &size : {Size{"1 MB of settings", 96, 50}, Size{"1 MB of samples", 2500, 4},
                             Size{"20 MB of samples", 50000, 4}}) {
        add("nearly every step, " + std::string(size.label),
            oldDocument(size.samples, size.steps, edited, QStringLiteral("digested-oligo")));
        add("no step, " + std::string(size.label),
            oldDocument(size.samples, size.steps, {BaseItemType::Intact}, QString()));
    }
    return runRatioBenchmarks(argc, argv);
}
