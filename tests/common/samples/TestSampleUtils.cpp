#include "OrvTest.h"
#include "SampleJson.h"

#include <orv/samples/SampleUtils.h>

#include <QRandomGenerator>

using namespace orv;
using namespace Qt::StringLiterals;

using SampleJson::reference;

class TestSampleUtils : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreSplit_data();
    void namesAreSplit();
    void namesAreJoined_data();
    void namesAreJoined();
    void anyNamesSurvive();
    void anyTextIsSplit();
    void idsAreFoundByTheFile();
    void suffixesOfMsFilesAreCutOffNames_data();
    void suffixesOfMsFilesAreCutOffNames();
};

void TestSampleUtils::namesAreSplit_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("names");

    const auto row = [](const QString &text, const QStringList &names) {
        QTest::newRow(text.isEmpty() ? "empty" : qPrintable(text)) << text << names;
    };
    row(QString(), {});
    row(u"  "_s, {});
    row(u";; ;"_s, {});
    row(u"*"_s, {u"*"_s});
    row(u"A"_s, {u"A"_s});
    row(u"A;B"_s, {u"A"_s, u"B"_s});
    row(u" A B ; C\t"_s, {u"A B"_s, u"C"_s});
    row(u"A,B|C:D"_s, {u"A,B|C:D"_s});
    row(u"sample[12]; s?*"_s, {u"sample[12]"_s, u"s?*"_s});
    row(u"A;;B;"_s, {u"A"_s, u"B"_s});
    row(u"A;A"_s, {u"A"_s, u"A"_s});
    row(u"\"A;B\";C"_s, {u"A;B"_s, u"C"_s});
    row(u"\" A \""_s, {u" A "_s});
    row(u"\"\""_s, {QString()});
    row(u"\"A\"\"B\""_s, {u"A\"B"_s});
    row(u"A\"B"_s, {u"A\"B"_s});
    row(u"\"A;B"_s, {u"A;B"_s});
    row(u"\"A\"B"_s, {u"A"_s, u"B"_s});
    row(u"\""_s, {QString()});
    row(u"\u4e2d;\U0001f9ea"_s, {u"\u4e2d"_s, u"\U0001f9ea"_s});
}

void TestSampleUtils::namesAreSplit()
{
    QFETCH(QString, text);
    QTEST(splitSamples(text), "names");
}

void TestSampleUtils::namesAreJoined_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << QStringList() << QString();
    QTest::newRow("one") << QStringList{u"A"_s} << u"A"_s;
    QTest::newRow("two") << QStringList{u"A b"_s, u"*"_s} << u"A b; *"_s;
    QTest::newRow("separator") << QStringList{u"A;B"_s} << u"\"A;B\""_s;
    QTest::newRow("quote within") << QStringList{u"5\" column"_s} << u"5\" column"_s;
    QTest::newRow("quote in front") << QStringList{u"\"A"_s} << u"\"\"\"A\""_s;
    QTest::newRow("blanks around") << QStringList{u" A"_s, u"B "_s} << u"\" A\"; \"B \""_s;
    QTest::newRow("empty name") << QStringList{QString(), u"A"_s} << u"\"\"; A"_s;
}

void TestSampleUtils::namesAreJoined()
{
    QFETCH(QStringList, names);
    QTEST(joinSamples(names), "text");
    QCOMPARE(splitSamples(joinSamples(names)), names);
}

void TestSampleUtils::anyNamesSurvive()
{
    constexpr quint32 kSeed = 266;
    QRandomGenerator random(kSeed);
    const QString alphabet = u"Ab;\" \t\n,*[]\\\u00a0\u00e9\u4e2d"_s;
    for (int i = 0; i < 5000; ++i) {
        QStringList names;
        for (int n = random.bounded(5); n > 0; --n) {
            QString name;
            for (int c = random.bounded(6); c > 0; --c)
                name.append(alphabet[random.bounded(alphabet.size())]);
            names.append(name);
        }
        const QString text = joinSamples(names);
        QVERIFY2(splitSamples(text) == names,
                 qPrintable(u"seed %1, round %2: %3"_s.arg(kSeed).arg(i).arg(text)));
    }
}

void TestSampleUtils::anyTextIsSplit()
{
    constexpr quint32 kSeed = 267;
    QRandomGenerator random(kSeed);
    const QString alphabet = u"a;\"  "_s;
    for (int i = 0; i < 5000; ++i) {
        QString text;
        for (int c = random.bounded(12); c > 0; --c)
            text.append(alphabet[random.bounded(alphabet.size())]);
        const QStringList names = splitSamples(text);
        QVERIFY2(splitSamples(joinSamples(names)) == names,
                 qPrintable(u"seed %1, round %2: %3"_s.arg(kSeed).arg(i).arg(text)));
    }
}

void TestSampleUtils::idsAreFoundByTheFile()
{
    QList<SamplesInput::Entry> samples(4);
    const QStringList files = {u"C:\\data\\a.raw"_s, u"/b.raw"_s, QString(), u"c:/DATA/a.raw"_s};
    for (qsizetype i = 0; i < samples.size(); ++i) {
        samples[i].id = int(i) + 10;
        if (!files[i].isEmpty())
            samples[i].msFile = reference(files[i]);
        samples[i].traces = {reference(u"/t.csv"_s)};
    }
    QCOMPARE(SampleUtils::findSampleIdByFilename(samples, reference(u"C:/data/a.raw"_s)),
             QList<int>({10, 13}));
    QCOMPARE(SampleUtils::findSampleIdByFilename(samples, reference(u"file:///b.raw"_s)), QList<int>({11}));
    QCOMPARE(SampleUtils::findSampleIdByFilename(samples, reference(u"/t.csv"_s)), QList<int>());
    QCOMPARE(SampleUtils::findSampleIdByFilename(samples, reference(u"/x/b.raw"_s)), QList<int>());
    QCOMPARE(SampleUtils::findSampleIdByFilename(samples, {}), QList<int>());
}

void TestSampleUtils::suffixesOfMsFilesAreCutOffNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("cut");

    const auto row = [](const QString &name, const QString &cut) {
        QTest::newRow(name.isEmpty() ? "empty" : qPrintable(name)) << name << cut;
    };
    row(u"a.raw"_s, u"a"_s);
    row(u"a.RAW"_s, u"a"_s);
    row(u"a b.mzML"_s, u"a b"_s);
    row(u"a.data.cut"_s, u"a"_s);
    row(u"a.wiff2"_s, u"a"_s);
    row(u"a.raw.d"_s, u"a.raw"_s);
    row(u"a.csv"_s, u"a.csv"_s);
    row(u"raw"_s, u"raw"_s);
    row(u".raw"_s, u".raw"_s);
    row(u"a.raw/"_s, u"a.raw/"_s);
    row(QString(), QString());
}

void TestSampleUtils::suffixesOfMsFilesAreCutOffNames()
{
    QFETCH(QString, name);
    QTEST(SampleUtils::sampleNameWithoutMsExtensionSuffix(name), "cut");
}

ORV_REGISTER_TEST(TestSampleUtils)

#include "TestSampleUtils.moc"
