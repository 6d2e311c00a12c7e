#include "OrvTest.h"
#include "SampleJson.h"

#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/samples/MetadataInSamples.h>
#include <orv/samples/SampleReferenceUpdater.h>
#include <orv/samples/SamplesAndTracesContent.h>
#include <orv/samples/SamplesIndex.h>

using namespace orv;
using namespace Qt::StringLiterals;

using SampleJson::parsed;
using SampleJson::reference;

namespace {

constexpr int kMany = 10'000;

QJsonObject manySamples()
{
    QJsonArray samples;
    for (int i = 1; i <= kMany; ++i) {
        samples.append(QJsonObject{{u"SamplesId"_s, i},
                                   {u"SampleName"_s, u"sample %1"_s.arg(i)},
                                   {u"SamplePath"_s, u"/runs/%1.raw"_s.arg(i)},
                                   {u"Traces"_s, QJsonArray{u"/runs/%1.csv"_s.arg(i), u"/runs/shared.csv"_s}},
                                   {u"ExtraReferences"_s, QJsonArray{u"/runs/%1.karvrslt"_s.arg(i)}},
                                   {u"Plate"_s, i % 96}});
    }
    return {{u"Samples"_s, samples}};
}

SamplesAndTracesContent read(const QJsonObject &json)
{
    const Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(json);
    if (content.hasError())
        qFatal("The test's samples are broken: %s", qPrintable(content.error().errorMessage()));
    return *content;
}

SamplesAndTracesContent threeSamples()
{
    return read(parsed(R"({"Samples":[
        {"SamplesId":1,"SampleName":"A","SamplePath":"/a.raw","Traces":["/t.csv"],"FileMetadata":{"/a.raw":{"x":1}}},
        {"SamplesId":2,"SampleName":"B","SamplePath":"/a.raw","ExtraReferences":["/t.csv","/a.raw"]},
        {"SamplesId":2,"SampleName":"A","FileMetadata":{"/a.raw":{"x":2}}}]})"));
}

} // namespace

class TestManySamples : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void manySamplesAreLoadedAndSaved();
    void samplesAreFoundByIdNameAndFile();
    void theFirstOfSeveralIsFound();
    void whatIsNotThereHasNoPlace();
    void filesOfManySamplesAreReplaced();
    void theFirstSampleGetsTheNewFile();
    void theFirstCompanionIsReplaced();
    void whatIsReplacedIsFoundAgain();
    void unknownFilesChangeNothing();
    void metadataMoveInAllSamples();
    void metadataOfManySamplesAreRebuilt();
    void everySampleMayHaveAColumnOfItsOwn();
    void manyColumnsFromMetadataAreReplaced();
};

void TestManySamples::manySamplesAreLoadedAndSaved()
{
    const QJsonObject json = manySamples();
    const SamplesAndTracesContent content = read(json);
    QCOMPARE(content.samples.samples.size(), kMany);
    QCOMPARE(content.references().size(), 4 * kMany);
    QCOMPARE(content.samples.columns.customColumnNames(), QStringList(u"Plate"_s));
    QCOMPARE(content.toJson(), json);
}

void TestManySamples::samplesAreFoundByIdNameAndFile()
{
    const SamplesAndTracesContent content = read(manySamples());
    const SamplesIndex index(content.samples.samples);
    const SamplesIndex ofEntries(content.samples.entries());
    for (int i = 1; i <= kMany; ++i) {
        QCOMPARE(index.placeOfId(i), i - 1);
        QCOMPARE(index.placeOfName(u"sample %1"_s.arg(i)), i - 1);
        QCOMPARE(index.idsOfFile(reference(u"file:///runs/%1.raw"_s.arg(i))), QList<int>({i}));
        QCOMPARE(ofEntries.placeOfId(i), i - 1);
    }
}

void TestManySamples::theFirstOfSeveralIsFound()
{
    const SamplesIndex index(threeSamples().samples.samples);
    QCOMPARE(index.placeOfId(2), 1);
    QCOMPARE(index.placeOfName(u"A"_s), 0);
    QCOMPARE(index.placesOfFile(reference(u"/a.raw"_s)), QList<qsizetype>({0, 1}));
    QCOMPARE(index.idsOfFile(reference(u"/a.raw"_s)), QList<int>({1, 2}));
}

void TestManySamples::whatIsNotThereHasNoPlace()
{
    const SamplesIndex index(threeSamples().samples.samples);
    QCOMPARE(index.placeOfId(3), -1);
    QCOMPARE(index.placeOfName(u"a"_s), -1);
    QVERIFY(index.placesOfFile(reference(u"/t.csv"_s)).isEmpty());
    QVERIFY(index.idsOfFile({}).isEmpty());
    QCOMPARE(SamplesIndex(QList<SamplesInput::Entry>()).placeOfId(0), -1);
}

void TestManySamples::filesOfManySamplesAreReplaced()
{
    SamplesAndTracesContent content = read(manySamples());
    SampleReferenceUpdater updater(&content.samples.samples);
    for (int i = kMany; i > 0; --i) {
        const QString number = QString::number(i);
        QVERIFY(updater.replaceFile(reference(u"/runs/%1.raw"_s.arg(number)),
                                    reference(u"/new/%1.raw"_s.arg(number))));
        QVERIFY(updater.replaceCompanion(reference(u"/runs/shared.csv"_s),
                                         reference(u"/new/%1.csv"_s.arg(number))));
    }
    QVERIFY(!updater.replaceCompanion(reference(u"/runs/shared.csv"_s), reference(u"/x"_s)));
    const SamplesInput::Entry &last = content.samples.samples.last();
    QCOMPARE(ResourceReferenceUtils::toString(last.msFile), u"/new/%1.raw"_s.arg(kMany));
    QCOMPARE(ResourceReferenceUtils::toStringList(last.companions()),
             QStringList({u"/runs/%1.csv"_s.arg(kMany), u"/new/1.csv"_s, u"/runs/%1.karvrslt"_s.arg(kMany)}));
}

void TestManySamples::theFirstSampleGetsTheNewFile()
{
    SamplesAndTracesContent content = threeSamples();
    SampleReferenceUpdater updater(&content.samples.samples);
    QVERIFY(updater.replaceFile(reference(u"file:///a.raw"_s), reference(u"/b.raw"_s)));
    QCOMPARE(ResourceReferenceUtils::toString(content.samples.samples[0].msFile), u"/b.raw"_s);
    QCOMPARE(ResourceReferenceUtils::toString(content.samples.samples[1].msFile), u"/a.raw"_s);
    QCOMPARE(ResourceReferenceUtils::toString(content.samples.samples[1].extraReferences[1]), u"/a.raw"_s);
}

void TestManySamples::theFirstCompanionIsReplaced()
{
    SamplesAndTracesContent content = threeSamples();
    SampleReferenceUpdater updater(&content.samples.samples);
    QVERIFY(updater.replaceCompanion(reference(u"/a.raw"_s), reference(u"/b.raw"_s)));
    QCOMPARE(ResourceReferenceUtils::toString(content.samples.samples[1].extraReferences[1]), u"/b.raw"_s);
    QCOMPARE(ResourceReferenceUtils::toString(content.samples.samples[1].msFile), u"/a.raw"_s);
    QVERIFY(updater.replaceCompanion(reference(u"/t.csv"_s), reference(u"/u.csv"_s)));
    QCOMPARE(ResourceReferenceUtils::toString(content.samples.samples[0].traces[0]), u"/u.csv"_s);
    QCOMPARE(ResourceReferenceUtils::toString(content.samples.samples[1].extraReferences[0]), u"/t.csv"_s);
}

void TestManySamples::whatIsReplacedIsFoundAgain()
{
    SamplesAndTracesContent content = threeSamples();
    SampleReferenceUpdater updater(&content.samples.samples);
    QVERIFY(updater.replaceFile(reference(u"/a.raw"_s), reference(u"/b.raw"_s)));
    QVERIFY(updater.replaceFile(reference(u"/b.raw"_s), reference(u"/a.raw"_s)));
    QVERIFY(updater.replaceFile(reference(u"/a.raw"_s), reference(u"/c.raw"_s)));
    QCOMPARE(ResourceReferenceUtils::toString(content.samples.samples[0].msFile), u"/c.raw"_s);
    QVERIFY(updater.replaceFile(reference(u"/a.raw"_s), reference(u"/d.raw"_s)));
    QVERIFY(!updater.replaceFile(reference(u"/a.raw"_s), reference(u"/e.raw"_s)));
    QCOMPARE(ResourceReferenceUtils::toString(content.samples.samples[1].msFile), u"/d.raw"_s);
}

void TestManySamples::unknownFilesChangeNothing()
{
    SamplesAndTracesContent content = threeSamples();
    SampleReferenceUpdater updater(&content.samples.samples);
    QVERIFY(!updater.replaceFile(reference(u"/x.raw"_s), reference(u"/y.raw"_s)));
    QVERIFY(!updater.replaceCompanion(reference(u"/x.raw"_s), reference(u"/y.raw"_s)));
    QVERIFY(!updater.replaceCompanion({}, reference(u"/y.raw"_s)));
    QVERIFY(!updater.replaceCompanion(reference(u"/t.csv"_s), {}));
    updater.moveFileMetadata(u"/x.raw"_s, u"/y.raw"_s);
    updater.moveFileMetadata(u"/a.raw"_s, u"/a.raw"_s);
    QVERIFY(content == threeSamples());
}

void TestManySamples::metadataMoveInAllSamples()
{
    SamplesAndTracesContent content = threeSamples();
    SampleReferenceUpdater updater(&content.samples.samples);
    updater.moveFileMetadata(u"/a.raw"_s, u"/b.raw"_s);
    QCOMPARE(content.samples.samples[0].fileMetadata.value(u"/b.raw"_s).value(u"x"_s).toInt(), 1);
    QCOMPARE(content.samples.samples[2].fileMetadata.value(u"/b.raw"_s).value(u"x"_s).toInt(), 2);
    QVERIFY(!content.samples.samples[0].fileMetadata.contains(u"/a.raw"_s));
    updater.moveFileMetadata(u"/b.raw"_s, u"/c.raw"_s);
    QVERIFY(content.samples.samples[2].fileMetadata.contains(u"/c.raw"_s));
}

void TestManySamples::metadataOfManySamplesAreRebuilt()
{
    SamplesAndTracesContent content = read(manySamples());
    QList<MetadataMapping> mappings;
    for (int i = 1; i <= kMany; ++i)
        mappings.append({{i}, {u"pH"_s, i, {}}, MappingTarget::Samples});
    rebuildMetadataInSamples({{u"pH"_s, MappingTarget::Samples, {}}}, mappings, &content.samples);
    for (int i = 1; i <= kMany; ++i)
        QCOMPARE(content.samples.samples[i - 1].customValues.value(u"pH"_s).toInt(), i);
}

void TestManySamples::everySampleMayHaveAColumnOfItsOwn()
{
    QJsonArray samples;
    for (int i = 1; i <= kMany; ++i)
        samples.append(QJsonObject{{u"SamplesId"_s, i}, {u"SampleName"_s, u"A"_s}, {u"only %1"_s.arg(i), i}});
    const QJsonObject json{{u"Samples"_s, samples}};
    const SamplesAndTracesContent content = read(json);
    QCOMPARE(content.samples.columns.columns().size(), kMany);
    QCOMPARE(content.toJson(), json);
}

void TestManySamples::manyColumnsFromMetadataAreReplaced()
{
    SamplesAndTracesContent content = read(manySamples());
    QList<TalvaneMetadataMappingConnection> connections;
    QList<MetadataMapping> mappings;
    for (int i = 1; i <= kMany; ++i) {
        connections.append({u"attribute %1"_s.arg(i), MappingTarget::Samples, {}});
        mappings.append({{i, 1}, {u"attribute %1"_s.arg(i), i, {}}, MappingTarget::Samples});
    }
    rebuildMetadataInSamples(connections, mappings, &content.samples);
    QCOMPARE(content.samples.columns.columns().size(), kMany + 1);
    QCOMPARE(content.samples.samples[0].customValues.size(), kMany + 1);
    QCOMPARE(content.samples.samples[1].customValues.size(), 2);
    rebuildMetadataInSamples({}, {}, &content.samples);
    QCOMPARE(content.toJson(), manySamples());
}

ORV_REGISTER_TEST(TestManySamples)

#include "TestManySamples.moc"
