#include "LifelikeDocument.h"

#include <KProperty>
#include <KPropertySet>
#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/KPropertySetUtils.h>
#include <orv/propertyeditor/PropertySetCreator.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace orv;

namespace Lifelike {

namespace {

constexpr int kSettings = 79;

QString stamp()
{
    return QStringLiteral(R"({"created":"2023-05-04T10:11:12","user":"scientist","version":"5.46.0"})");
}

QJsonObject cell(const QString &type, const QString &name, const QJsonArray &properties)
{
    return {{QStringLiteral("type"), type},
            {QStringLiteral("name"), name},
            {QStringLiteral("title"), name},
            {QStringLiteral("metadata"), stamp()},
            {QStringLiteral("properties"), properties}};
}

/// The entries of a search with their defaults, in groups as an application writes them.
const QJsonArray &settings()
{
    static const QJsonArray entries = [] {
        QList<PropertyId> ids = allowedProperties(BaseItemType::Karvon).values();
        std::sort(ids.begin(), ids.end());
        if (ids.size() < kSettings)
            qFatal("A search has fewer settings than the benchmark's cells");
        KPropertySet set;
        for (PropertyId id : ids.first(kSettings)) {
            const auto priority =
                id % 2 ? PropertySetCreator::Priority::High : PropertySetCreator::Priority::Low;
            KPropertySetUtils::insertInKPropertySet(QStringLiteral("Instrument Parameters"),
                                                    PropertySetCreator::createDefaultProperty(id, priority),
                                                    &set, -1);
        }
        const auto cell =
            PropertySetCreator::propertySetToObject(set, PropertyEditor::PropertyConversionFlag::KeepPaths);
        return cell->value(QStringLiteral("properties")).toArray();
    }();
    return entries;
}

QJsonObject samplesCell(int samples)
{
    QJsonArray entries;
    for (int i = 0; i < samples; ++i) {
        entries.append(QJsonObject{
            {QStringLiteral("SamplesId"), i + 1},
            {QStringLiteral("SampleName"),
             QStringLiteral("antibody_digest_%1").arg(i, 5, 10, QLatin1Char('0'))},
            {QStringLiteral("FilePath"),
             QStringLiteral("/data/2023/antibody/antibody_digest_%1.mzML").arg(i, 5, 10, QLatin1Char('0'))},
            {QStringLiteral("Protease"), QStringLiteral("Trypsin")},
            {QStringLiteral("Reference"), i == 0},
            {QStringLiteral("Metadata"), QJsonObject{{QStringLiteral("type"), 0}}}});
    }
    const QJsonObject value{{QStringLiteral("Samples"), entries}};
    return cell(
        QStringLiteral("Samples"), QStringLiteral("Sample Input"),
        {QJsonObject{{QStringLiteral("name"), QStringLiteral("Samples")}, {QStringLiteral("value"), value}}});
}

QJsonObject settingsCellObject(int number)
{
    return cell(QStringLiteral("Karvon"), QStringLiteral("Step %1").arg(number), settings());
}

/// Names, by which others find a thing, and what a table is made of stay.
QJsonValue wrongValue(const QString &key, const QJsonValue &value)
{
    static const QStringList kept{QStringLiteral("SamplesId"), QStringLiteral("SampleName"),
                                  QStringLiteral("columns")};
    if (kept.contains(key))
        return value;
    if (value.isDouble())
        return -1e9;
    if (value.isString())
        return QStringLiteral("?/wrong/") + value.toString();
    if (value.isArray()) {
        QJsonArray array = value.toArray();
        for (auto &&element : array)
            element = wrongValue(key, element);
        return array;
    }
    QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it)
        it.value() = wrongValue(it.key(), it.value());
    return value.isObject() ? QJsonValue(object) : value;
}

QJsonObject withWrongValues(QJsonObject cell)
{
    QJsonArray entries = cell.value(QStringLiteral("properties")).toArray();
    for (auto &&element : entries) {
        QJsonObject entry = element.toObject();
        entry.insert(QStringLiteral("value"), wrongValue({}, entry.value(QStringLiteral("value"))));
        element = entry;
    }
    cell.insert(QStringLiteral("properties"), entries);
    return cell;
}

} // namespace

QByteArray allWrong(const QByteArray &document)
{
    QJsonObject object = QJsonDocument::fromJson(document).object();
    QJsonArray tabs = object.value(QStringLiteral("tabs")).toArray();
    for (auto &&element : tabs) {
        QJsonObject tab = element.toObject();
        QJsonArray cells = tab.value(QStringLiteral("cells")).toArray();
        for (auto &&cell : cells)
            cell = withWrongValues(cell.toObject());
        tab.insert(QStringLiteral("cells"), cells);
        element = tab;
    }
    object.insert(QStringLiteral("tabs"), tabs);
    return QJsonDocument(object).toJson();
}

QByteArray settingsCell()
{
    return QJsonDocument(settingsCellObject(0)).toJson();
}

QByteArray proteins(int count)
{
    const QString residues =
        QStringLiteral("MKWVTFISLLFLFSSAYSRGVFRRDAHKSEVAHRFKDLGEENFKALVLIAFAQYLQQCPFEDHVK");
    QJsonArray rows;
    for (int i = 0; i < count; ++i) {
        const QString sequence = residues.repeated(1 + i % 12).chopped(i % 7);
        rows.append(QJsonObject{
            {QStringLiteral("data"), QJsonArray{QStringLiteral("P%1").arg(i, 5, 10, QLatin1Char('0')),
                                                QStringLiteral("Protein %1").arg(i), sequence}},
            {QStringLiteral("children"), QJsonArray()}});
    }
    const QJsonObject table{{QStringLiteral("data"), QJsonArray{QStringLiteral("ProteinAccessionName"),
                                                                QStringLiteral("ProteinAliasName"),
                                                                QStringLiteral("ProteinSequence")}},
                            {QStringLiteral("children"), rows},
                            {QStringLiteral("proteinAnnotations"), QJsonArray()}};
    const QJsonObject proteinsCell = cell(QStringLiteral("Proteins"), QStringLiteral("Proteins"),
                                          {QJsonObject{{QStringLiteral("name"), QStringLiteral("Proteins")},
                                                       {QStringLiteral("value"), table}}});
    const QJsonArray tabs{QJsonObject{{QStringLiteral("name"), QStringLiteral("Sequences")},
                                      {QStringLiteral("columns"), QJsonArray{QStringLiteral("Proteins")}},
                                      {QStringLiteral("cells"), QJsonArray{proteinsCell}}}};
    return QJsonDocument(QJsonObject{{QStringLiteral("tabs"), tabs},
                                     {QStringLiteral("metadata"), stamp()},
                                     {QStringLiteral("extendedMetadata"), QJsonObject()}})
        .toJson();
}

bool isForAMoment()
{
    return qEnvironmentVariableIsSet("ORV_BENCHMARK_MOMENT");
}

int sized(int count)
{
    return isForAMoment() ? qMin(count, 100) : count;
}

QByteArray document(int samples, int steps)
{
    QJsonArray columns;
    QJsonArray cells;
    for (int i = 0; i < steps; ++i) {
        columns.append(QStringLiteral("Step %1").arg(i));
        cells.append(settingsCellObject(i));
    }
    const QJsonArray tabs{QJsonObject{{QStringLiteral("name"), QStringLiteral("Samples")},
                                      {QStringLiteral("columns"), QJsonArray{QStringLiteral("Sample Input")}},
                                      {QStringLiteral("cells"), QJsonArray{samplesCell(sized(samples))}}},
                          QJsonObject{{QStringLiteral("name"), QStringLiteral("Processing")},
                                      {QStringLiteral("columns"), columns},
                                      {QStringLiteral("cells"), cells}}};
    const QJsonObject document{{QStringLiteral("tabs"), tabs},
                               {QStringLiteral("metadata"), stamp()},
                               {QStringLiteral("extendedMetadata"), QJsonObject()}};
    return QJsonDocument(document).toJson();
}

} // namespace Lifelike
