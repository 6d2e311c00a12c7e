#include "LogCapture.h"
#include "OrvTest.h"
#include "SampleJson.h"

#include <orv/samples/StoredSamples.h>

#include <QJsonArray>
#include <QRandomGenerator>

using namespace orv;
using namespace Qt::StringLiterals;

using SampleJson::parsed;

namespace {

/// Tables with right, wrong, old and unknown members, the same for the same seed.
class AnyTable
{
public:
    explicit AnyTable(quint32 seed)
        : m_random(seed)
    {}

    QJsonObject table()
    {
        QJsonArray samples;
        for (int i = number(3); i > 0; --i)
            samples.append(number(40) == 0 ? anyValue() : QJsonValue(sample(i)));
        QJsonObject table{{u"Samples"_s, number(40) == 0 ? anyValue() : QJsonValue(samples)}};
        if (number(4) == 0)
            table.insert(u"CustomColumns"_s, number(6) == 0 ? anyValue() : columns());
        if (number(8) == 0)
            table.insert(u"TraceImportAndProcessingOptions"_s, anyValue());
        if (number(8) == 0)
            table.insert(u"Novelty"_s, anyValue());
        if (number(20) == 0)
            table.remove(u"Samples"_s);
        return table;
    }

private:
    int number(int limit) { return int(m_random.bounded(limit)); }

    QJsonValue anyValue()
    {
        static const QJsonArray values{1,
                                       1.5,
                                       5e9,
                                       true,
                                       QString(),
                                       u"/a.raw"_s,
                                       u"C:\\a.raw"_s,
                                       u"file:///a%20b"_s,
                                       u"talvane:/f/a"_s,
                                       u"talvane:a"_s,
                                       u"https://example.org/a"_s,
                                       u"file:///a%FFb"_s,
                                       QString(QChar::Null),
                                       QJsonValue::Null,
                                       QJsonArray{},
                                       QJsonArray{u"/t.csv"_s, QString()},
                                       QJsonArray{u"https://example.org/t"_s},
                                       QJsonArray{1},
                                       QJsonObject{},
                                       QJsonObject{{u"/a.raw"_s, QJsonObject{{u"x"_s, 1}}}, {u"y"_s, 2}}};
        return values.at(number(int(values.size())));
    }

    QJsonValue columns()
    {
        const QJsonArray columns[] = {
            {QJsonObject{{u"name"_s, u"Plate"_s}, {u"type"_s, u"number"_s}}},
            {QJsonObject{{u"name"_s, u"Plate"_s}}},
            {QJsonObject{{u"name"_s, u"Plate"_s}, {u"type"_s, u"text"_s}, {u"attribute"_s, QString()}}},
            {QJsonObject{{u"name"_s, u"SampleName"_s}, {u"type"_s, u"text"_s}}}};
        return columns[number(4)];
    }

    QJsonObject sample(int id)
    {
        static const QStringList keys{
            u"SamplePath"_s, u"FilePath"_s,  u"FileName"_s,   u"Traces"_s,          u"TracesCsv"_s,
            u"TracesMs"_s,   u"Reference"_s, u"Ms2Search"_s,  u"ExtraReferences"_s, u"SampleTimeUnit"_s,
            u"Digestion"_s,  u"Metadata"_s,  u"SampleType"_s, u"FileMetadata"_s,    u"SampleName"_s,
            u"SamplesId"_s,  u"Plate"_s,     QString()};
        QJsonObject sample{{u"SamplesId"_s, id}, {u"SampleName"_s, u"S"_s}, {u"FilePath"_s, u"/a.raw"_s}};
        for (int i = number(4); i > 0; --i)
            sample.insert(keys.at(number(int(keys.size()))), anyValue());
        if (number(10) == 0)
            sample.remove(number(2) == 0 ? u"SamplesId"_s : u"SampleName"_s);
        return sample;
    }

    QRandomGenerator m_random;
};

/// What a table is read as: its text with the warnings, or the error.
template<typename Samples>
QStringList readAs(const QJsonObject &table)
{
    const LogCapture log;
    const auto samples = Samples::fromJson(table);
    if (samples.hasError())
        return QStringList{samples.error().errorMessage()} + samples.error().details();
    return QStringList{QString::fromUtf8(QJsonDocument(samples->toJson()).toJson())} + log.warnings();
}

} // namespace

class TestStoredSamples : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theyReadAndWarnAsTheirContentDoes();
    void theirContentIsThatOfTheirTable();
    void writtenTablesStayAsTheyAre_data();
    void writtenTablesStayAsTheyAre();
    void whatWasLeftOutIsWritten_data();
    void whatWasLeftOutIsWritten();
    void wrongMembersFailAtOnce();
    void theirReferencesAreThoseOfTheirContent();
    void theFirstWrongMemberIsTold_data();
    void theFirstWrongMemberIsTold();
    void wrongMembersThatNobodyAsksForAreNoFault();
    void emptyOnesHaveNoSamples();
};

void TestStoredSamples::theyReadAndWarnAsTheirContentDoes()
{
    for (quint32 seed = 1; seed <= 4000; ++seed) {
        const QJsonObject table = AnyTable(seed).table();
        const QStringList expected = readAs<SamplesAndTracesContent>(table);
        const QStringList found = readAs<StoredSamples>(table);
        QVERIFY2(found == expected, qPrintable(u"seed %1:\n%2\nagainst\n%3"_s.arg(seed).arg(
                                        found.join(u'\n'), expected.join(u'\n'))));
    }
}

void TestStoredSamples::theirContentIsThatOfTheirTable()
{
    const QJsonObject table = parsed(R"({"Samples":[
        {"SamplesId":7,"SampleName":"A","FilePath":"/a.raw","Traces":["/t.csv"],"Plate":3}]})");
    const Result<StoredSamples> samples = StoredSamples::fromJson(table);
    QVERIFY(!samples.hasError());
    const SamplesAndTracesContent &content = samples->content();
    QCOMPARE(content.samples.samples.size(), 1);
    QCOMPARE(content.samples.samples[0].id, 7);
    QCOMPARE(content.samples.samples[0].msFile->text(), u"/a.raw"_s);
    QCOMPARE(content.samples.samples[0].traces.size(), 1);
    QCOMPARE(content.samples.samples[0].customValues.value(u"Plate"_s).toInt(), 3);
    QCOMPARE(content.samples.columns.customColumnNames(), QStringList(u"Plate"_s));
    QCOMPARE(samples->toJson(), table);
}

void TestStoredSamples::writtenTablesStayAsTheyAre_data()
{
    QTest::addColumn<QByteArray>("table");

    QTest::newRow("present members") << QByteArray(
        R"({"Samples":[{"SamplesId":1,"SampleName":"A","SamplePath":"C:\\a.raw","Traces":["talvane:/f/a"],
            "ExtraReferences":[],"Reference":false,"SampleTimeUnit":"min","Digestion":"","SampleType":"x",
            "Metadata":"odd","FileMetadata":{"/a.raw":{"x":1},"y":2}}]})");
    QTest::newRow("old members") << QByteArray(
        R"({"Samples":[{"SamplesId":-1,"SampleName":"","FilePath":"","TracesCsv":"/t","Ms2Search":"/m"}]})");
    QTest::newRow("null members") << QByteArray(
        R"({"Samples":[{"SamplesId":1,"SampleName":"A","SamplePath":null,"Traces":null}],"CustomColumns":null})");
    QTest::newRow("unknown members") << QByteArray(
        R"({"Samples":[{"SamplesId":1,"SampleName":"A","New":[1,{}]}],"New":true})");
    QTest::newRow("no samples") << QByteArray(R"({"Samples":[]})");
    QTest::newRow("a tree of rows") << QByteArray(
        R"({"data":["SampleName","FilePath"],"children":[{"data":["A","/a.raw"],"children":[]}]})");
}

void TestStoredSamples::writtenTablesStayAsTheyAre()
{
    QFETCH(QByteArray, table);
    const Result<StoredSamples> samples = StoredSamples::fromJson(parsed(table));
    QVERIFY(!samples.hasError());
    QCOMPARE(samples->toJson(), parsed(table));
    QVERIFY(samples->content().samples.samples.size() <= 1);
    QCOMPARE(samples->toJson(), parsed(table));
}

void TestStoredSamples::whatWasLeftOutIsWritten_data()
{
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<QByteArray>("written");

    QTest::newRow("number") << QByteArray(R"({"Samples":[{"SampleName":"A"}]})")
                            << QByteArray(R"({"Samples":[{"SamplesId":1,"SampleName":"A"}]})");
    QTest::newRow("null number") << QByteArray(R"({"Samples":[{"SamplesId":null,"SampleName":"A"}]})")
                                 << QByteArray(R"({"Samples":[{"SamplesId":1,"SampleName":"A"}]})");
    QTest::newRow("name") << QByteArray(R"({"Samples":[{"SamplesId":1}]})")
                          << QByteArray(R"({"Samples":[{"SamplesId":1,"SampleName":""}]})");
    QTest::newRow("samples") << QByteArray("{}") << QByteArray(R"({"Samples":[]})");
    QTest::newRow("type of a column")
        << QByteArray(R"({"Samples":[],"CustomColumns":[{"name":"Plate"}]})")
        << QByteArray(R"({"Samples":[],"CustomColumns":[{"name":"Plate","type":""}]})");
}

void TestStoredSamples::whatWasLeftOutIsWritten()
{
    QFETCH(QByteArray, table);
    QFETCH(QByteArray, written);
    const Result<StoredSamples> samples = StoredSamples::fromJson(parsed(table));
    QVERIFY(!samples.hasError());
    QCOMPARE(samples->toJson(), parsed(written));
}

void TestStoredSamples::wrongMembersFailAtOnce()
{
    const Result<StoredSamples> samples = StoredSamples::fromJson(parsed(
        R"({"Samples":[{"SamplesId":1,"SampleName":"A"},{"SamplesId":2,"SampleName":"B","SampleType":3}]})"));
    QVERIFY(samples.hasError());
    QCOMPARE(samples.error().code(), ErrorCode::InvalidContent);
    QCOMPARE(samples.error().errorMessage(), u"\"SampleType\" must be a string, but there is a number."_s);
    QVERIFY(samples.error().details().contains(u"It is element 1 of \"Samples\"."_s));
}

void TestStoredSamples::theirReferencesAreThoseOfTheirContent()
{
    const auto textsOf = [](const QList<ResourceReferenceSPtr> &references) {
        QStringList texts;
        for (const ResourceReferenceSPtr &reference : references)
            texts.append(reference->text());
        return texts;
    };
    const LogCapture log;
    qsizetype found = 0;
    for (quint32 seed = 1; seed <= 2000; ++seed) {
        const QJsonObject table = AnyTable(seed).table();
        const Result<StoredSamples> samples = StoredSamples::fromJson(table);
        if (samples.hasError())
            continue;
        const QStringList texts = textsOf(samples->references());
        QVERIFY2(texts == textsOf(samples->content().references()), qPrintable(u"seed %1"_s.arg(seed)));
        found += texts.size();
    }
    QVERIFY(found > 100);
    const Result<StoredSamples> samples = StoredSamples::fromJson(parsed(R"({"Samples":[
        {"SamplesId":1,"SampleName":"A","SamplePath":"/a.raw","FilePath":"/old.raw","Traces":["/t.csv","/t.csv"]},
        {"SamplesId":2,"SampleName":"B","FilePath":"","TracesMs":"/m.csv","Ms2Search":"/s","Plate":"/p"}]})"));
    QVERIFY(!samples.hasError());
    QCOMPARE(textsOf(samples->references()),
             QStringList({u"/a.raw"_s, u"/t.csv"_s, u"/t.csv"_s, u"/m.csv"_s, u"/s"_s}));
}

void TestStoredSamples::theFirstWrongMemberIsTold_data()
{
    QTest::addColumn<QByteArray>("sample");
    QTest::addColumn<QString>("told");

    QTest::newRow("two of them") << QByteArray(R"({"SamplesId":"1","SampleName":2})")
                                 << u"\"SamplesId\" must be a number, but there is a string."_s;
    QTest::newRow("no whole number") << QByteArray(R"({"SamplesId":1.5})")
                                     << u"\"SamplesId\" must be a whole number."_s;
    QTest::newRow("an old member for a null one")
        << QByteArray(R"({"SamplesId":1,"SamplePath":null,"FileName":{}})")
        << u"\"FileName\" must be a string, but there is an object."_s;
}

void TestStoredSamples::theFirstWrongMemberIsTold()
{
    QFETCH(QByteArray, sample);
    const Result<SamplesInput::Entry> entry = SamplesInput::Entry::fromJson(parsed(sample));
    QVERIFY(entry.hasError());
    QTEST(entry.error().errorMessage(), "told");
}

void TestStoredSamples::wrongMembersThatNobodyAsksForAreNoFault()
{
    const auto entry = SamplesInput::Entry::fromJson(parsed(
        R"({"SamplesId":4,"SampleName":"A","SamplePath":"/a.raw","FilePath":7,"Traces":[],"TracesMs":[]})"));
    QVERIFY(!entry.hasError());
    QCOMPARE(entry->id, 4);
    QCOMPARE(entry->name, u"A"_s);
    QCOMPARE(entry->msFile->text(), u"/a.raw"_s);
    QVERIFY(entry->traces.isEmpty());
}

void TestStoredSamples::emptyOnesHaveNoSamples()
{
    const StoredSamples samples;
    QVERIFY(samples.content().samples.samples.isEmpty());
    QCOMPARE(samples.toJson(), parsed(R"({"Samples":[]})"));
}

ORV_REGISTER_TEST(TestStoredSamples)

#include "TestStoredSamples.moc"
