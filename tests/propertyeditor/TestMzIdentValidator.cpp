#include "ContextTranslator.h"
#include "CurrentVersion.h"
#include "OrvTest.h"
#include "ValidatorRun.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/validators/MzIdentValidator.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using ProjectFixtures::samplesCell;

namespace {

const QString kNoTable = u"The workflow doesn't have samples table."_s;
const QString kUnchecked =
    u"There is a Karvon project with \"Export mzIdentML\" property unchecked or missing.\n"
    "Please set the property checked and rerun the project creation process."_s;

QJsonObject search(const QString &pattern, const QJsonValue &exports = QJsonValue::Undefined)
{
    QList<std::pair<PropertyId, QJsonValue>> values{{PropertyId::Samples, pattern}};
    if (!exports.isUndefined())
        values.append({PropertyId::KarvonExportMzIdentML, exports});
    return settings(u"Karvon"_s, values);
}

/// The samples in a tab of that name, and the searches in another.
Content workflow(const QString &samplesTab, const QJsonArray &searches)
{
    const QJsonObject samples = samplesCell({{u"lot 1"_s, u"/data/1.raw"_s, {}, {}}});
    QStringList columns;
    for (qsizetype i = 0; i < searches.size(); ++i)
        columns.append(QString::number(i));
    Content content;
    ProjectFixtures::load(&content, Documents::document({Documents::tab(u"Search"_s, columns, searches),
                                                         Documents::tab(samplesTab, {u"Files"_s}, {samples})},
                                                        {{u"version"_s, currentVersionText()}}));
    return content;
}

} // namespace

class TestMzIdentValidator : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theSamplesLeadTheirTab();
    void countingSearchesMustExport_data();
    void countingSearchesMustExport();
    void theFirstFaultEndsTheWalk();
    void theTextIsNotTranslated();
};

void TestMzIdentValidator::theSamplesLeadTheirTab()
{
    QVERIFY(runOf<MzIdentValidator>(workflow(u"Samples"_s, {search(u"lot*"_s, u"true"_s)})).isGood);
    // The table is there, but under another name.
    const ValidatorRun elsewhere =
        runOf<MzIdentValidator>(workflow(u"samples"_s, {search(u"lot*"_s, u"true"_s)}));
    QVERIFY(!elsewhere.isGood);
    QCOMPARE(elsewhere.errors, QList<QString>{kNoTable});
    QVERIFY(!elsewhere.findings.constFirst().hint.isEmpty());

    Content other;
    ProjectFixtures::load(
        &other, Documents::document({Documents::tab(u"Samples"_s, {u"0"_s}, {search(u"lot*"_s, u"true"_s)})},
                                    {{u"version"_s, currentVersionText()}}));
    QCOMPARE(runOf<MzIdentValidator>(other).errors, QList<QString>{kNoTable});
    Content empty;
    ProjectFixtures::load(&empty, Documents::document({Documents::tab(u"Samples"_s, {}, {})}));
    QCOMPARE(runOf<MzIdentValidator>(empty).errors, QList<QString>{kNoTable});
}

void TestMzIdentValidator::countingSearchesMustExport_data()
{
    QTest::addColumn<QJsonObject>("search");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("exports") << search(u"lot*"_s, u"true"_s) << true;
    QTest::newRow("unchecked") << search(u"lot*"_s, u"false"_s) << false;
    QTest::newRow("missing") << search(u"lot*"_s) << false;
    QTest::newRow("matches no sample") << search(u"other*"_s, u"false"_s) << true;
    QTest::newRow("has no pattern") << search(u""_s, u"false"_s) << true;
    QTest::newRow("is no search") << settings(u"Senthia"_s, {{PropertyId::Samples, u"lot*"_s}}) << true;
}

void TestMzIdentValidator::countingSearchesMustExport()
{
    QFETCH(QJsonObject, search);
    QFETCH(bool, isGood);
    const ValidatorRun run = runOf<MzIdentValidator>(workflow(u"Samples"_s, {search}));
    QCOMPARE(run.isGood, isGood);
    QCOMPARE(run.errors, isGood ? QList<QString>() : QList<QString>{kUnchecked});
}

void TestMzIdentValidator::theFirstFaultEndsTheWalk()
{
    const Content content =
        workflow(u"Samples"_s, {search(u"lot*"_s, u"true"_s), search(u"lot*"_s), search(u"*"_s)});
    const ValidatorRun run = runOf<MzIdentValidator>(content);
    QCOMPARE(run.errors, QList<QString>{kUnchecked});
    QCOMPARE(run.findings.size(), 1);
    QCOMPARE(run.findings.constFirst().place.item, content.findAllItems(BaseItemType::Karvon).at(1));
    QCOMPARE(run.findings.constFirst().place.property, PropertyId::KarvonExportMzIdentML);
}

void TestMzIdentValidator::theTextIsNotTranslated()
{
    const ContextTranslator translator;
    const ValidatorRun run = runOf<MzIdentValidator>(workflow(u"Samples"_s, {search(u"lot*"_s)}));
    QCOMPARE(run.errors, QList<QString>{kUnchecked});
    QCOMPARE(runOf<MzIdentValidator>(Content()).errors, QList<QString>{u"AbstractValidator|"_s + kNoTable});
}

ORV_REGISTER_TEST(TestMzIdentValidator)
#include "TestMzIdentValidator.moc"
