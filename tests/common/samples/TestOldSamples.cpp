#include "OrvTest.h"
#include "SampleJson.h"
#include "TestData.h"

#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/samples/SamplesAndTracesContent.h>

#include <QDirIterator>

using namespace orv;
using namespace Qt::StringLiterals;

using SampleJson::parsed;
using SampleJson::reference;

namespace {

constexpr char kTree[] =
    R"({"data":["SampleName","SamplePath","SampleTimeUnit","Digestion","TracesCsv","TracesMs",
    "Ms2Search","SampleType","Metadata","Dose"],"children":[
    {"data":["A","/a.raw","min","Trypsin","/a.csv","","/a.karvrslt","blank","",1.5],"children":[]},
    {"data":["B","/b.raw"],"children":[]},{"data":[],"children":[]},
    {"data":["C","",null,"","","/c.raw","","","",null,"beyond"],"children":[]}],"note":"kept"})";

/// The values of the samples cells of a document.
QList<QJsonObject> samplesTables(const QString &path)
{
    QList<QJsonObject> tables;
    const QJsonArray tabs = parsed(TestData::read(path)).value(u"tabs"_s).toArray();
    for (const auto tab : tabs) {
        for (const auto cell : tab.toObject().value(u"cells"_s).toArray()) {
            if (cell.toObject().value(u"type"_s).toString() != u"Samples"_s)
                continue;
            for (const auto property : cell.toObject().value(u"properties"_s).toArray())
                tables.append(property.toObject().value(u"value"_s).toObject());
        }
    }
    return tables;
}

} // namespace

class TestOldSamples : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreReadAsSamples();
    void rowsAreWrittenAsTheyWere();
    void changedRowsTakeThePresentForm();
    void brokenRowsAreNoSamples();
    void documentsKeepTheirSamples_data();
    void documentsKeepTheirSamples();
};

void TestOldSamples::rowsAreReadAsSamples()
{
    const Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(parsed(kTree));
    ORV_VERIFY_OK(content);
    QCOMPARE(content->samples.names(), QStringList({u"A"_s, u"B"_s, QString(), u"C"_s}));
    const QList<SamplesInput::Entry> entries = content->samples.entries();
    for (qsizetype i = 0; i < entries.size(); ++i)
        QCOMPARE(entries[i].id, int(i) + 1);
    QCOMPARE(ResourceReferenceUtils::toString(entries[0].msFile), u"/a.raw"_s);
    QCOMPARE(entries[0].timeUnit, u"min"_s);
    QCOMPARE(entries[0].digestion, u"Trypsin"_s);
    QCOMPARE(entries[0].sampleType, u"blank"_s);
    QCOMPARE(ResourceReferenceUtils::toStringList(entries[0].traces), QStringList(u"/a.csv"_s));
    QCOMPARE(ResourceReferenceUtils::toStringList(entries[0].extraReferences), QStringList(u"/a.karvrslt"_s));
    QCOMPARE(content->samples.samples[0].customValues, QVariantMap({{u"Dose"_s, 1.5}}));
    QVERIFY(!entries[2].msFile && !entries[3].msFile);
    QCOMPARE(ResourceReferenceUtils::toStringList(entries[3].traces), QStringList(u"/c.raw"_s));
}

void TestOldSamples::rowsAreWrittenAsTheyWere()
{
    Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(parsed(kTree));
    ORV_VERIFY_OK(content);
    QCOMPARE(content->toJson(), parsed(kTree));
    content->samples.samples[0].name = u"renamed"_s;
    QVERIFY(content->toJson() != parsed(kTree));
    content->samples.samples[0].name = u"A"_s;
    QCOMPARE(content->toJson(), parsed(kTree));
}

void TestOldSamples::changedRowsTakeThePresentForm()
{
    Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(parsed(kTree));
    ORV_VERIFY_OK(content);
    content->samples.samples[1].msFile = reference(u"/new.raw"_s);
    const QJsonObject json = content->toJson();
    QVERIFY(!json.contains(u"data"_s) && !json.contains(u"children"_s));
    QCOMPARE(json.value(u"note"_s).toString(), u"kept"_s);
    const Result<SamplesAndTracesContent> again = SamplesAndTracesContent::fromJson(json);
    ORV_VERIFY_OK(again);
    QVERIFY(*again == *content);
    QCOMPARE(again->samples.names(), content->samples.names());
    QCOMPARE(ResourceReferenceUtils::toString(again->samples.samples[1].msFile), u"/new.raw"_s);
    QCOMPARE(again->samples.samples[0].customValues, content->samples.samples[0].customValues);
}

void TestOldSamples::brokenRowsAreNoSamples()
{
    const Result<SamplesAndTracesContent> content =
        SamplesAndTracesContent::fromJson(parsed(R"({"data":["SampleName"],"children":[1]})"));
    QVERIFY(content.hasError());
    QCOMPARE(content.error().code(), ErrorCode::InvalidContent);
}

void TestOldSamples::documentsKeepTheirSamples_data()
{
    QTest::addColumn<QString>("path");

    for (const QString &folder : {TestData::path(u"versions"_s), TestData::examplePath(u"workflows"_s)}) {
        QDirIterator files(folder, {u"*.wflw"_s}, QDir::Files);
        while (files.hasNext()) {
            const QString path = files.next();
            QTest::newRow(qPrintable(files.fileName())) << path;
        }
    }
}

void TestOldSamples::documentsKeepTheirSamples()
{
    QFETCH(QString, path);
    const QList<QJsonObject> tables = samplesTables(path);
    QVERIFY(!tables.isEmpty());
    for (const QJsonObject &table : tables) {
        const Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(table);
        ORV_VERIFY_OK(content);
        QVERIFY(!content->samples.samples.isEmpty());
        for (const SamplesInput::Entry &sample : content->samples.entries())
            QVERIFY2(sample.id > 0 && !sample.name.isEmpty() && sample.msFile, qPrintable(sample.name));
        QCOMPARE(content->toJson(), table);
    }
}

ORV_REGISTER_TEST(TestOldSamples)

#include "TestOldSamples.moc"
