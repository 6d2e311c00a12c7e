#include "OrvTest.h"

#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/samples/SamplesAndTracesContent.h>

#include <QRandomGenerator>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

/// Contents of any kind, the same for the same seed.
class AnyContent
{
public:
    explicit AnyContent(quint32 seed)
        : m_random(seed)
    {}

    SamplesAndTracesContent content()
    {
        SamplesAndTracesContent content;
        for (int i = number(3); i > 0; --i)
            content.samples.columns.addCustomColumn(
                {text(), u"text"_s, number(2) == 0 ? text() : QString(), {}});
        for (int i = number(4); i > 0; --i)
            content.samples.samples.append(sample(content.samples.columns));
        QList<TracesImportList::Entry> traces;
        for (int i = number(3); i > 0; --i)
            traces.append(trace());
        content.options.traces.setList(traces);
        for (int i = number(3); i > 0; --i)
            content.options.peaksOptions.append(preset());
        return content;
    }

private:
    int number(int limit) { return int(m_random.bounded(limit)); }

    QString text()
    {
        const QString alphabet = u"Ab/\\%:#;\" \n\u00e9\u4e2d"_s;
        QString text;
        for (int i = number(6); i > 0; --i)
            text.append(alphabet[number(int(alphabet.size()))]);
        return text;
    }

    ResourceReferenceSPtr file()
    {
        const QString prefixes[] = {u"/x"_s, u"C:\\x"_s,      u"\\\\s\\x"_s,
                                    u"x"_s,  u"talvane:/x"_s, u"managed:/x"_s};
        return ResourceReference::fromString(prefixes[number(6)] + text() + u"x"_s).valueOr({});
    }

    QList<ResourceReferenceSPtr> files()
    {
        QList<ResourceReferenceSPtr> files;
        for (int i = number(3); i > 0; --i) {
            if (const ResourceReferenceSPtr one = file())
                files.append(one);
        }
        return files;
    }

    SamplesInput::SampleWithCustomColumns sample(const SamplesInput::CustomColumns &columns)
    {
        SamplesInput::SampleWithCustomColumns sample;
        sample.id = number(1000) - 100;
        sample.name = text();
        sample.msFile = number(4) == 0 ? ResourceReferenceSPtr() : file();
        sample.traces = files();
        sample.extraReferences = files();
        sample.isReference = number(2) == 0;
        sample.timeUnit = text();
        sample.digestion = text();
        sample.sampleType = text();
        if (number(2) == 0)
            sample.metadata.insert(text(), number(9));
        if (number(2) == 0)
            sample.fileMetadata.insert(text(), {{text(), text()}});
        for (const QString &column : columns.customColumnNames()) {
            const QVariant values[] = {text(), number(100), number(100) / 8.0, number(2) == 0};
            if (number(3) != 0)
                sample.customValues.insert(column, values[number(4)]);
        }
        return sample;
    }

    TracesImportList::Entry trace()
    {
        TracesImportList::Entry entry(TraceItem(TraceType(number(12) - 1), {text(), text()}));
        entry.setImported(number(2) == 0);
        entry.setPeaksOptionsName(text());
        if (number(2) == 0)
            entry.setSamplesIds(TraceSampleIds({number(9), number(9)}));
        return entry;
    }

    ElutionPeaksOptions preset()
    {
        ElutionPeaksOptions preset;
        preset.setName(text());
        if (number(2) == 0)
            preset.setTimeRange(ElutionPeaksOptions::TimeRange{
                *Decimal::fromDouble(number(99) / 7.0, number(5)), *Decimal::fromDouble(number(99), 2)});
        ElutionPeaksOptions::CreationOptions options;
        options.findsPeaks = number(2) == 0;
        options.smoothSigma = number(100) / 7.0;
        options.intervalTimeMinutes = number(100) / 7.0;
        options.correctsBaseline = number(2) == 0;
        options.smoothSigmaBaseline = number(100) / 7.0;
        options.autoCompute = ElutionPeaksOptions::AutoCompute(number(3));
        if (number(2) == 0)
            options.peakWidthFactor = Decimal::fromDouble(number(100) / 7.0, number(5));
        preset.setCreationOptions(options);
        return preset;
    }

    QRandomGenerator m_random;
};

} // namespace

class TestSamplesRoundTrip : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void anyContentSurvivesItsJson();
    void anyContentSurvivesItsText();
};

void TestSamplesRoundTrip::anyContentSurvivesItsJson()
{
    for (quint32 seed = 1; seed <= 500; ++seed) {
        const SamplesAndTracesContent content = AnyContent(seed).content();
        const QString label = u"seed %1"_s.arg(seed);
        const Result<SamplesAndTracesContent> again = SamplesAndTracesContent::fromJson(content.toJson());
        QVERIFY2(!again.hasError(),
                 qPrintable(label + u": "_s + QString::fromUtf8(OrvTests::describe(again))));
        QVERIFY2(again->toJson() == content.toJson(), qPrintable(label));
        QVERIFY2(again->samples.entries() == content.samples.entries(), qPrintable(label));
        QVERIFY2(again->samples.columns.customColumnNames() == content.samples.columns.customColumnNames(),
                 qPrintable(label));
        for (qsizetype i = 0; i < content.samples.samples.size(); ++i)
            QVERIFY2(again->samples.samples[i].customValues == content.samples.samples[i].customValues,
                     qPrintable(label));
        QVERIFY2(again->options == content.options || again->options.toJson() == content.options.toJson(),
                 qPrintable(label));
        QVERIFY2(ResourceReferenceUtils::toStringList(again->references()) ==
                     ResourceReferenceUtils::toStringList(content.references()),
                 qPrintable(label));
    }
}

void TestSamplesRoundTrip::anyContentSurvivesItsText()
{
    for (quint32 seed = 1001; seed <= 1200; ++seed) {
        const SamplesAndTracesContent content = AnyContent(seed).content();
        const QByteArray text = QJsonDocument(content.toJson()).toJson();
        const auto again = SamplesAndTracesContent::fromJson(QJsonDocument::fromJson(text).object());
        QVERIFY2(!again.hasError(), qPrintable(QString::number(seed)));
        QCOMPARE(QJsonDocument(again->toJson()).toJson(), text);
    }
}

ORV_REGISTER_TEST(TestSamplesRoundTrip)

#include "TestSamplesRoundTrip.moc"
