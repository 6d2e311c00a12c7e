#include "OrvTest.h"
#include "SampleJson.h"

#include <orv/samples/SamplesAndTracesContent.h>

using namespace orv;
using namespace Qt::StringLiterals;

using SampleJson::parsed;
using SamplesInput::CustomColumn;
using SamplesInput::CustomColumns;

namespace {

SamplesAndTracesContent read(const QByteArray &json)
{
    const Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(parsed(json));
    if (content.hasError())
        qFatal("The test's samples are broken: %s", json.constData());
    return *content;
}

constexpr char kImplied[] = R"({"Samples":[{"SamplesId":1,"SampleName":"A","Condition":"treated","Dose":1.5},
    {"SamplesId":2,"SampleName":"B","Condition":"control","Plate":"A01","Well":{"x":1},"Dose":"high"}]})";

} // namespace

class TestCustomColumns : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void columnsAreAddedAndRemoved();
    void namesThatCannotBeColumnsAreRefused_data();
    void namesThatCannotBeColumnsAreRefused();
    void listedColumnsAreRead();
    void withoutAListTheMembersOfSamplesAreColumns();
    void aNewColumnIsListed();
    void aColumnTakesItsValuesAlong();
    void valuesAreWrittenUnderTheNameOfTheirColumn();
    void aValueCannotReplaceASamplesOwnMember();
};

void TestCustomColumns::columnsAreAddedAndRemoved()
{
    CustomColumns columns;
    QVERIFY(columns.isEmpty());
    QVERIFY(columns.addCustomColumn(u"Dose"_s, u"number"_s));
    QVERIFY(columns.addCustomColumn(u"Note"_s));
    QCOMPARE(columns.customColumnNames(), QStringList({u"Dose"_s, u"Note"_s}));
    QCOMPARE(columns.columns().at(1).type, u"text"_s);
    QVERIFY(!columns.columns().at(1).isFromMetadata());
    QVERIFY(columns.contains(u"Note"_s));
    QVERIFY(!columns.contains(u"note"_s));
    QVERIFY(columns.removeCustomColumn(u"Dose"_s));
    QVERIFY(!columns.removeCustomColumn(u"Dose"_s));
    QCOMPARE(columns.customColumnNames(), QStringList(u"Note"_s));
}

void TestCustomColumns::namesThatCannotBeColumnsAreRefused_data()
{
    QTest::addColumn<QString>("name");

    for (const char *name : {"", "taken", "SamplesId", "SampleName", "SamplePath", "FilePath", "FileName",
                             "Traces", "TracesCsv", "TracesMs", "ExtraReferences", "Ms2Search", "Reference",
                             "Metadata", "FileMetadata", "SampleTimeUnit", "Digestion", "SampleType"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestCustomColumns::namesThatCannotBeColumnsAreRefused()
{
    QFETCH(QString, name);
    CustomColumns columns;
    QVERIFY(columns.addCustomColumn(u"taken"_s));
    QVERIFY(!columns.addCustomColumn(name));
    QCOMPARE(columns.customColumnNames(), QStringList(u"taken"_s));
}

void TestCustomColumns::listedColumnsAreRead()
{
    const SamplesAndTracesContent content = read(R"({"Samples":[{"SamplesId":1,"Dose":2,"Note":"x"}],
        "CustomColumns":[{"name":"Dose","type":"number"},{"name":"pH","type":"number","attribute":"ph"}]})");
    QCOMPARE(content.samples.columns.customColumnNames(), QStringList({u"Dose"_s, u"pH"_s}));
    QVERIFY(content.samples.columns.columns().at(1).isFromMetadata());
    QCOMPARE(content.samples.samples.first().customValues, QVariantMap({{u"Dose"_s, 2}}));
}

void TestCustomColumns::withoutAListTheMembersOfSamplesAreColumns()
{
    const SamplesAndTracesContent content = read(kImplied);
    const QList<CustomColumn> columns = content.samples.columns.columns();
    QCOMPARE(content.samples.columns.customColumnNames(),
             QStringList({u"Condition"_s, u"Dose"_s, u"Plate"_s}));
    QCOMPARE(columns.at(0).type, u"text"_s);
    // One sample has a number there, another a text.
    QCOMPARE(columns.at(1).type, u"text"_s);
    QCOMPARE(content.samples.samples.at(1).customValues,
             QVariantMap({{u"Condition"_s, u"control"_s}, {u"Dose"_s, u"high"_s}, {u"Plate"_s, u"A01"_s}}));
    QCOMPARE(content.toJson(), parsed(kImplied));
}

void TestCustomColumns::aNewColumnIsListed()
{
    SamplesAndTracesContent content = read(kImplied);
    QVERIFY(content.samples.columns.addCustomColumn(u"Later"_s));
    const QJsonArray listed = content.toJson().value(u"CustomColumns"_s).toArray();
    QCOMPARE(listed.size(), 4);
    const Result<SamplesAndTracesContent> again = SamplesAndTracesContent::fromJson(content.toJson());
    ORV_VERIFY_OK(again);
    QVERIFY(again->samples.columns == content.samples.columns);
}

void TestCustomColumns::aColumnTakesItsValuesAlong()
{
    SamplesAndTracesContent content = read(kImplied);
    QVERIFY(content.samples.removeCustomColumn(u"Condition"_s));
    QVERIFY(!content.samples.removeCustomColumn(u"Condition"_s));
    const QJsonArray samples = content.toJson().value(u"Samples"_s).toArray();
    for (const auto sample : samples)
        QVERIFY(!sample.toObject().contains(u"Condition"_s));
    QVERIFY(samples.at(1).toObject().contains(u"Plate"_s));
}

void TestCustomColumns::valuesAreWrittenUnderTheNameOfTheirColumn()
{
    SamplesAndTracesContent content;
    QVERIFY(content.samples.columns.addCustomColumn(u"Dose"_s, u"number"_s));
    SamplesInput::SampleWithCustomColumns sample;
    sample.id = 1;
    sample.customValues.insert(u"Dose"_s, 2.5);
    content.samples.samples.append(sample);
    QCOMPARE(content.toJson(), parsed(R"({"Samples":[{"SamplesId":1,"SampleName":"","Dose":2.5}]})"));
}

void TestCustomColumns::aValueCannotReplaceASamplesOwnMember()
{
    SamplesAndTracesContent content = read(kImplied);
    content.samples.samples[0].customValues.insert(u"SampleName"_s, u"forged"_s);
    QCOMPARE(content.toJson(), parsed(kImplied));
}

ORV_REGISTER_TEST(TestCustomColumns)

#include "TestCustomColumns.moc"
