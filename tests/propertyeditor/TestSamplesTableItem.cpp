#include "Documents.h"
#include "OrvTest.h"

#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/resources/ResourceReference.h>

#include <QSignalSpy>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

namespace {

QJsonObject samplesCell(const QJsonValue &value, const QString &name = u"SamplesTable"_s)
{
    return {{u"type"_s, u"Samples"_s},
            {u"name"_s, u"Samples"_s},
            {u"properties"_s, QJsonArray{QJsonObject{{u"name"_s, name}, {u"value"_s, value}}}}};
}

QJsonObject twoSamples()
{
    return {
        {u"Samples"_s,
         QJsonArray{
             QJsonObject{{u"SamplesId"_s, 1}, {u"SampleName"_s, u"lot 1"_s}, {u"SamplePath"_s, u"a.raw"_s}},
             QJsonObject{
                 {u"SamplesId"_s, 2}, {u"SampleName"_s, u"lot 2"_s}, {u"SamplePath"_s, u"b.raw"_s}}}}};
}

} // namespace

class TestSamplesTableItem : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void samplesComeBackAsTheyWere();
    void theNameOfOldDocumentsIsHealed();
    void cellsWithoutSamplesAreRefused_data();
    void cellsWithoutSamplesAreRefused();
    void aBrokenSampleIsRefused();
    void contentIsReplaced();
    void metadataFillColumns();
    void relativeFilesBecomeAbsoluteOnDemand();
    void definitionsOfColumnsAreReadBesideTheSamples();
    void clearLeavesNothing();
    void whatIsNotKeptIsTold();
};

void TestSamplesTableItem::samplesComeBackAsTheyWere()
{
    SamplesTableItem item;
    QSignalSpy resets(&item, &BaseItem::reset);
    ORV_VERIFY_OK(item.assignFromJson(samplesCell(twoSamples()), {}));
    QCOMPARE(resets.count(), 1);
    QCOMPARE(item.samplesInput().size(), 2);
    QCOMPARE(item.samplesInput().at(1).name, u"lot 2"_s);
    QCOMPARE(item.samplesInput().at(1).msFile->text(), u"b.raw"_s);
    QCOMPARE(item.samplesWithCustomColumns().samples.size(), 2);
    QCOMPARE(item.toJson(PropertyConversionFlag::KeepPaths), samplesCell(twoSamples()));
}

void TestSamplesTableItem::theNameOfOldDocumentsIsHealed()
{
    SamplesTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(samplesCell(twoSamples(), u"Samples"_s), {}));
    QCOMPARE(item.toJson(PropertyConversionFlag::KeepPaths), samplesCell(twoSamples()));
}

void TestSamplesTableItem::cellsWithoutSamplesAreRefused_data()
{
    QTest::addColumn<QJsonObject>("json");
    QTest::addColumn<QString>("message");
    const QString unsupported =
        u"Could not parse JSON. \"properties\" has unsupported format in \"SamplesTable\"."_s;
    QTest::newRow("no properties") << QJsonObject{{u"type"_s, u"Samples"_s}} << unsupported;
    QTest::newRow("properties that are no array")
        << QJsonObject{{u"type"_s, u"Samples"_s}, {u"properties"_s, QJsonObject()}} << unsupported;
    // Without a blank before "is", as this text always was.
    QTest::newRow("another property") << samplesCell(QJsonObject(), u"Isotope"_s)
                                      << u"Could not parse JSON. Subobject \"SamplesTable\"is empty."_s;
}

void TestSamplesTableItem::cellsWithoutSamplesAreRefused()
{
    QFETCH(QJsonObject, json);
    QFETCH(QString, message);
    SamplesTableItem item;
    const Error error = item.assignFromJson(json, {});
    QCOMPARE(int(error.code()), 1);
    QCOMPARE(error.errorMessages(), QStringList(message));
}

void TestSamplesTableItem::aBrokenSampleIsRefused()
{
    SamplesTableItem item;
    const QJsonObject broken{{u"Samples"_s, QJsonArray{QJsonObject{{u"SampleName"_s, QJsonArray()}}}}};
    QVERIFY(item.assignFromJson(samplesCell(broken), {}).hasError());
}

void TestSamplesTableItem::contentIsReplaced()
{
    SamplesTableItem source;
    ORV_VERIFY_OK(source.assignFromJson(samplesCell(twoSamples()), {}));
    SamplesTableItem target;
    target.setContent(source.content());
    QCOMPARE(target.samplesInput().size(), 2);
    QVERIFY(target.content() == source.content());
    QVERIFY(target.tracesOptions() == source.tracesOptions());
}

void TestSamplesTableItem::metadataFillColumns()
{
    SamplesTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(samplesCell(twoSamples()), {}));
    QCOMPARE(int(item.target()), 1);
    TalvaneMetadataMappingConnection connection;
    connection.attribute = u"column_temperature"_s;
    connection.target = MappingTarget::Samples;
    connection.alias = u"Temperature"_s;
    MetadataMapping mapping;
    mapping.sampleIds = {2};
    mapping.value.attribute = connection.attribute;
    mapping.value.value = 60;
    mapping.target = MappingTarget::Samples;
    item.reloadMetadata({mapping}, {connection});
    QCOMPARE(item.samplesWithCustomColumns().samples.at(1).customValues.value(u"Temperature"_s).toInt(), 60);
    QVERIFY(!item.samplesWithCustomColumns().samples.at(0).customValues.value(u"Temperature"_s).toBool());
}

void TestSamplesTableItem::relativeFilesBecomeAbsoluteOnDemand()
{
    const QJsonObject sample{
        {u"SamplesId"_s, 1},
        {u"SampleName"_s, u"lot 1"_s},
        {u"SamplePath"_s, u"data/a#1.raw"_s},
        {u"Traces"_s, QJsonArray{u"../uv.csv"_s, u"/elsewhere/uv.csv"_s}},
        {u"ExtraReferences"_s, QJsonArray{u"talvane:/lab/r.karvrslt"_s, u"r.karvrslt"_s}}};
    const QJsonObject cell = samplesCell(QJsonObject{{u"Samples"_s, QJsonArray{sample}}});
    SamplesTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(cell, {}));
    const auto stored = [&item](PropertyConversionFlag flag) {
        const QJsonArray entries = item.toJson(flag).value(u"properties"_s).toArray();
        return entries.at(0)[u"value"_s][u"Samples"_s][0].toObject();
    };
    QCOMPARE(stored(PropertyConversionFlag::AbsolutePaths), sample);
    item.setBaseUrl(QUrl::fromLocalFile(u"/lab/study/"_s));
    QCOMPARE(stored(PropertyConversionFlag::KeepPaths), sample);
    const QJsonObject absolute = stored(PropertyConversionFlag::AbsolutePaths);
    QCOMPARE(absolute.value(u"SamplePath"_s).toString(), u"/lab/study/data/a#1.raw"_s);
    QCOMPARE(absolute.value(u"Traces"_s).toArray(), (QJsonArray{u"/lab/uv.csv"_s, u"/elsewhere/uv.csv"_s}));
    QCOMPARE(absolute.value(u"ExtraReferences"_s).toArray(),
             (QJsonArray{u"talvane:/lab/r.karvrslt"_s, u"/lab/study/r.karvrslt"_s}));
    // The item itself keeps what it had.
    QCOMPARE(stored(PropertyConversionFlag::KeepPaths), sample);
}

void TestSamplesTableItem::definitionsOfColumnsAreReadBesideTheSamples()
{
    QJsonObject cell = samplesCell(twoSamples());
    QJsonArray properties = cell.value(u"properties"_s).toArray();
    const QJsonObject column{{u"name"_s, u"Condition"_s}, {u"type"_s, u"text"_s}};
    properties.append(QJsonObject{
        {u"name"_s, u"CustomColumns"_s},
        {u"value"_s, QJsonObject{{u"data"_s, QJsonArray{column}}, {u"children"_s, QJsonArray()}}}});
    cell.insert(u"properties"_s, properties);
    SamplesTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(cell, {}));
    QCOMPARE(item.customColumnsMetaData().data.size(), 1);
    QCOMPARE(item.customColumnsMetaData().data.at(0).toMap().value(u"name"_s), QVariant(u"Condition"_s));
    // The samples hold their columns themselves, so the definitions aren't written again.
    QCOMPARE(item.toJson(PropertyConversionFlag::KeepPaths), samplesCell(twoSamples()));
    ORV_VERIFY_OK(item.assignFromJson(samplesCell(twoSamples()), {}));
    QVERIFY(item.customColumnsMetaData().isEmpty());
}

void TestSamplesTableItem::clearLeavesNothing()
{
    SamplesTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(samplesCell(twoSamples()), {}));
    item.clear();
    QVERIFY(item.samplesInput().isEmpty());
}

void TestSamplesTableItem::whatIsNotKeptIsTold()
{
    LossCollector losses;
    SamplesTableItem item;
    QJsonObject json = samplesCell(twoSamples());
    json.insert(u"extra"_s, 1);
    ORV_VERIFY_OK(item.load(json, {}, LoadContext(&losses)));
    QCOMPARE(losses.losses().size(), 1);
    QCOMPARE(losses.losses().constFirst().path, u"/extra"_s);
}

ORV_REGISTER_TEST(TestSamplesTableItem)
#include "TestSamplesTableItem.moc"
