#include "LogCapture.h"
#include "OrvTest.h"
#include "SampleJson.h"

#include <orv/samples/MetadataInSamples.h>
#include <orv/samples/SamplesAndTracesContent.h>

using namespace orv;
using namespace Qt::StringLiterals;

using SampleJson::parsed;

namespace {

SamplesAndTracesContent samplesWithNotes()
{
    const Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(parsed(R"({"Samples":[
        {"SamplesId":1,"SampleName":"A","Note":"mine"},{"SamplesId":2,"SampleName":"B"},
        {"SamplesId":3,"SampleName":"C"}]})"));
    if (content.hasError())
        qFatal("The test's samples are broken");
    return *content;
}

MetadataMapping mapping(const QList<int> &ids, const QString &attribute, const QJsonValue &value)
{
    return {ids, {attribute, value, {}}, MappingTarget::Samples};
}

TalvaneMetadataMappingConnection connection(const QString &attribute, const QString &alias = {})
{
    return {attribute, MappingTarget::Samples, {}, alias};
}

} // namespace

class TestMetadataInSamples : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void connectionsMakeColumnsAndMappingsFillThem();
    void columnsAreNamedByTheAlias();
    void staleMetadataGo();
    void columnsOfUsersStay();
    void aUsersColumnIsNotFilledByMetadata();
    void theLastOfSeveralValuesStays();
    void anAttributeMayFillTwoColumns();
    void valuesOfEveryKindAreShown_data();
    void valuesOfEveryKindAreShown();
    void samplesThatAreNotThereArePassedOver();
    void columnsFromMetadataSurviveAFile();
};

void TestMetadataInSamples::connectionsMakeColumnsAndMappingsFillThem()
{
    SamplesAndTracesContent content = samplesWithNotes();
    rebuildMetadataInSamples({connection(u"pH"_s), connection(u"Operator"_s)},
                             {mapping({1, 3}, u"Operator"_s, u"Ada"_s), mapping({2}, u"pH"_s, 7.5),
                              mapping({1}, u"unconnected"_s, 1)},
                             &content.samples);
    QCOMPARE(content.samples.columns.customColumnNames(), QStringList({u"Note"_s, u"pH"_s, u"Operator"_s}));
    QCOMPARE(content.samples.samples[0].customValues,
             QVariantMap({{u"Note"_s, u"mine"_s}, {u"Operator"_s, u"Ada"_s}}));
    QCOMPARE(content.samples.samples[1].customValues, QVariantMap({{u"pH"_s, 7.5}}));
    QCOMPARE(content.samples.samples[2].customValues, QVariantMap({{u"Operator"_s, u"Ada"_s}}));
}

void TestMetadataInSamples::columnsAreNamedByTheAlias()
{
    SamplesAndTracesContent content = samplesWithNotes();
    rebuildMetadataInSamples({connection(u"ph_value"_s, u"pH"_s)}, {mapping({1}, u"ph_value"_s, 7)},
                             &content.samples);
    QCOMPARE(content.samples.columns.columns().last().name, u"pH"_s);
    QCOMPARE(content.samples.columns.columns().last().attribute, u"ph_value"_s);
    QCOMPARE(content.samples.samples[0].customValues.value(u"pH"_s).toInt(), 7);
}

void TestMetadataInSamples::staleMetadataGo()
{
    SamplesAndTracesContent content = samplesWithNotes();
    rebuildMetadataInSamples({connection(u"pH"_s)}, {mapping({1, 2}, u"pH"_s, 7)}, &content.samples);
    rebuildMetadataInSamples({connection(u"pH"_s)}, {mapping({2}, u"pH"_s, 8)}, &content.samples);
    QVERIFY(!content.samples.samples[0].customValues.contains(u"pH"_s));
    QCOMPARE(content.samples.samples[1].customValues.value(u"pH"_s).toInt(), 8);
    rebuildMetadataInSamples({}, {}, &content.samples);
    QVERIFY(content == samplesWithNotes());
}

void TestMetadataInSamples::columnsOfUsersStay()
{
    SamplesAndTracesContent content = samplesWithNotes();
    rebuildMetadataInSamples({}, {}, &content.samples);
    QVERIFY(content == samplesWithNotes());
    QCOMPARE(content.samples.columns.customColumnNames(), QStringList(u"Note"_s));
}

void TestMetadataInSamples::aUsersColumnIsNotFilledByMetadata()
{
    const LogCapture log;
    SamplesAndTracesContent content = samplesWithNotes();
    rebuildMetadataInSamples({connection(u"Note"_s), connection(u"x"_s, u"SampleName"_s)},
                             {mapping({1, 2}, u"Note"_s, u"theirs"_s), mapping({1}, u"x"_s, 1)},
                             &content.samples);
    QVERIFY(content == samplesWithNotes());
    QCOMPARE(log.warnings().size(), 2);
    QVERIFY(log.warnings().first().contains(u"Note"_s));
}

void TestMetadataInSamples::theLastOfSeveralValuesStays()
{
    SamplesAndTracesContent content = samplesWithNotes();
    rebuildMetadataInSamples({connection(u"a"_s)}, {mapping({1}, u"a"_s, 1), mapping({1}, u"a"_s, 2)},
                             &content.samples);
    QCOMPARE(content.samples.samples[0].customValues.value(u"a"_s).toInt(), 2);
}

void TestMetadataInSamples::anAttributeMayFillTwoColumns()
{
    SamplesAndTracesContent content = samplesWithNotes();
    rebuildMetadataInSamples({connection(u"a"_s, u"X"_s), connection(u"a"_s, u"Y"_s)},
                             {mapping({1}, u"a"_s, 1)}, &content.samples);
    QCOMPARE(content.samples.samples[0].customValues.value(u"X"_s).toInt(), 1);
    QCOMPARE(content.samples.samples[0].customValues.value(u"Y"_s).toInt(), 1);
}

void TestMetadataInSamples::valuesOfEveryKindAreShown_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QVariant>("cell");

    QTest::newRow("text") << QJsonValue(u"t"_s) << QVariant(u"t"_s);
    QTest::newRow("number") << QJsonValue(1.5) << QVariant(1.5);
    QTest::newRow("bool") << QJsonValue(true) << QVariant(true);
    QTest::newRow("list") << QJsonValue(QJsonArray{1, u"a"_s}) << QVariant(u"[1,\"a\"]"_s);
    QTest::newRow("object") << QJsonValue(QJsonObject{{u"a"_s, 1}}) << QVariant(u"{\"a\":1}"_s);
    QTest::newRow("null") << QJsonValue() << QVariant();
    QTest::newRow("nothing") << QJsonValue(QJsonValue::Undefined) << QVariant();
}

void TestMetadataInSamples::valuesOfEveryKindAreShown()
{
    QFETCH(QJsonValue, value);
    SamplesAndTracesContent content = samplesWithNotes();
    rebuildMetadataInSamples({connection(u"a"_s)}, {mapping({1}, u"a"_s, value)}, &content.samples);
    QTEST(content.samples.samples[0].customValues.value(u"a"_s), "cell");
}

void TestMetadataInSamples::samplesThatAreNotThereArePassedOver()
{
    SamplesAndTracesContent content = samplesWithNotes();
    rebuildMetadataInSamples({connection(u"a"_s)}, {mapping({7}, u"a"_s, 1), mapping({}, u"a"_s, 1)},
                             &content.samples);
    for (const SamplesInput::SampleWithCustomColumns &sample : content.samples.samples)
        QVERIFY(!sample.customValues.contains(u"a"_s));
}

void TestMetadataInSamples::columnsFromMetadataSurviveAFile()
{
    SamplesAndTracesContent content = samplesWithNotes();
    rebuildMetadataInSamples({connection(u"ph_value"_s, u"pH"_s)}, {mapping({1}, u"ph_value"_s, 7)},
                             &content.samples);
    Result<SamplesAndTracesContent> again = SamplesAndTracesContent::fromJson(content.toJson());
    ORV_VERIFY_OK(again);
    QVERIFY(again->samples.columns == content.samples.columns);
    rebuildMetadataInSamples({}, {}, &again->samples);
    QCOMPARE(again->samples.columns.customColumnNames(), QStringList(u"Note"_s));
    QVERIFY(!again->samples.samples[0].customValues.contains(u"pH"_s));
}

ORV_REGISTER_TEST(TestMetadataInSamples)

#include "TestMetadataInSamples.moc"
