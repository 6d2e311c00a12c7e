#include "OrvTest.h"
#include "ValidatorRun.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/validators/SamplesPatternValidator.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using ProjectFixtures::samplesCell;
using ProjectFixtures::step;

namespace {

const QString kNoSampleMatches = u"The workflow doesn't have any samples"_s;

QJsonObject lotAndBlank()
{
    return samplesCell({{u"lot 1"_s, u"/data/1.raw"_s, {}, {}}, {u"blank"_s, u"/data/blank.raw"_s, {}, {}}});
}

ValidatorRun check(const QJsonArray &cells)
{
    return runOf<SamplesPatternValidator>(contentOf(cells));
}

QString noneUse(const QString &type)
{
    return u"%1 documents don't use any valid samples. At least one %1 document should use valid samples"_s
        .arg(type);
}

} // namespace

class TestSamplesPatternValidator : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void reportsOverDocumentsPass();
    void samplesAreNeeded_data();
    void samplesAreNeeded();
    void withoutDocumentsNothingIsAsked();
    void aProjectAloneHasNothingToCompareWith_data();
    void aProjectAloneHasNothingToCompareWith();
    void patternsChooseSamples_data();
    void patternsChooseSamples();
    void oneOfThreeDocumentsWithoutSamplesIsAWarning();
    void eachTypeIsCountedOnItsOwn();
    void findingsNameTheDocuments();
};

void TestSamplesPatternValidator::reportsOverDocumentsPass()
{
    const ValidatorRun run = check({step(u"MultiDocReport"_s), step(u"Karvon"_s, u"nothing"_s)});
    QVERIFY(run.isGood);
    QVERIFY(run.errors.isEmpty());
}

void TestSamplesPatternValidator::samplesAreNeeded_data()
{
    QTest::addColumn<QJsonArray>("cells");
    QTest::newRow("no table") << QJsonArray{step(u"Karvon"_s)};
    QTest::newRow("an empty table") << QJsonArray{samplesCell({}), step(u"Karvon"_s)};
    QTest::newRow("no documents either") << QJsonArray{samplesCell({})};
}

void TestSamplesPatternValidator::samplesAreNeeded()
{
    QFETCH(QJsonArray, cells);
    const ValidatorRun run = check(cells);
    QVERIFY(!run.isGood);
    QCOMPARE(run.errors, QList<QString>{kNoSampleMatches});
    QVERIFY(!run.findings.constFirst().hint.isEmpty());
}

void TestSamplesPatternValidator::withoutDocumentsNothingIsAsked()
{
    QVERIFY(check({samplesCell({{u"a"_s, u"/data/a.intact"_s, {}, {}}})}).isGood);
}

void TestSamplesPatternValidator::aProjectAloneHasNothingToCompareWith_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("a Dravik project") << u"/data/a.dravik"_s << false;
    QTest::newRow("an Intact project") << u"/data/a.INTACT"_s << false;
    QTest::newRow("an Oligo project") << u"/data/a.oligo"_s << true;
    QTest::newRow("an MS file") << u"/data/a.raw"_s << true;
}

void TestSamplesPatternValidator::aProjectAloneHasNothingToCompareWith()
{
    QFETCH(QString, file);
    QFETCH(bool, isGood);
    // The pattern would fail too: this check ends the run.
    const ValidatorRun alone =
        check({samplesCell({{u"a"_s, file, {}, {}}}), step(u"Intact"_s, isGood ? u"a"_s : u"nothing"_s)});
    QCOMPARE(alone.isGood, isGood);
    QCOMPARE(alone.errors,
             isGood ? QList<QString>()
                    : QList<QString>{u"Reference sample requires at least one non-reference sample."_s});
    if (!isGood)
        QCOMPARE(alone.findings.constFirst().place.sample, u"a"_s);
    QVERIFY(
        check({samplesCell({{u"a"_s, file, {}, {}}, {u"b"_s, u"/data/b.raw"_s, {}, {}}}), step(u"Intact"_s)})
            .isGood);
}

void TestSamplesPatternValidator::patternsChooseSamples_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("no pattern") << QString() << true;
    QTest::newRow("an empty pattern") << u""_s << true;
    QTest::newRow("a name") << u"lot 1"_s << true;
    QTest::newRow("a wildcard") << u"lot*"_s << true;
    QTest::newRow("the second of two") << u"none; blank"_s << true;
    QTest::newRow("another name") << u"lot 2"_s << false;
    QTest::newRow("case counts") << u"LOT*"_s << false;
}

void TestSamplesPatternValidator::patternsChooseSamples()
{
    QFETCH(QString, pattern);
    QFETCH(bool, isGood);
    for (const char *type :
         {"Dravik", "Senthia", "Karvon", "Preview", "Intact", "Oligo", "Ostrale", "Trenq", "TrenqPreview"}) {
        const QString name = QString::fromLatin1(type);
        const ValidatorRun run = check({lotAndBlank(), step(name, pattern)});
        QCOMPARE(run.isGood, isGood);
        QCOMPARE(run.errors, isGood ? QList<QString>() : QList<QString>{noneUse(name)});
        QVERIFY(run.warnings.isEmpty());
    }
    // No document by this rule.
    QVERIFY(check({lotAndBlank(), step(u"CaldrinDIA"_s, pattern)}).isGood);
}

void TestSamplesPatternValidator::oneOfThreeDocumentsWithoutSamplesIsAWarning()
{
    const ValidatorRun run = check({lotAndBlank(), step(u"Trenq"_s, u"lot*"_s), step(u"Trenq"_s, u"none"_s),
                                    step(u"Trenq"_s, u"blank"_s)});
    QVERIFY(run.isGood);
    QCOMPARE(run.errors, QList<QString>());
    QCOMPARE(run.warnings, QList<QString>{u"Not all Trenq documents use valid samples"_s});
}

void TestSamplesPatternValidator::eachTypeIsCountedOnItsOwn()
{
    const ValidatorRun run =
        check({lotAndBlank(), step(u"Senthia"_s, u"none"_s), step(u"Karvon"_s, u"none"_s),
               step(u"Karvon"_s, u"lot*"_s), step(u"Intact"_s, u"none"_s), step(u"Intact"_s, u"nobody"_s)});
    QVERIFY(!run.isGood);
    QCOMPARE(run.errors, (QList<QString>{noneUse(u"Senthia"_s), noneUse(u"Intact"_s)}));
    QCOMPARE(run.warnings, QList<QString>{u"Not all Karvon documents use valid samples"_s});
}

void TestSamplesPatternValidator::findingsNameTheDocuments()
{
    const Content content =
        contentOf({lotAndBlank(), step(u"Intact"_s, u"none"_s), step(u"Intact"_s, u"nobody"_s)});
    const ValidatorRun run = runOf<SamplesPatternValidator>(content);
    QCOMPARE(run.findings.size(), 2);
    const QList<BaseItem *> documents = content.findDocumentItems();
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(run.findings.at(i).rule, u"SamplesPattern"_s);
        QCOMPARE(run.findings.at(i).place.item, documents.at(i));
        QCOMPARE(run.findings.at(i).place.property, PropertyId::Samples);
        QVERIFY(!run.findings.at(i).hint.isEmpty());
    }
}

ORV_REGISTER_TEST(TestSamplesPatternValidator)
#include "TestSamplesPatternValidator.moc"
