#include "OrvTest.h"

#include <orv/chemistry/ProteinAutoPopulateOptions.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestProteinAutoPopulateOptions : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreReadAndWritten_data();
    void namesAreReadAndWritten();
    void otherNamesAreOfPlainProteins_data();
    void otherNamesAreOfPlainProteins();
    void allCombinationsAreMade();
    void theEmptyCombinationIsLeftOut();
    void impossibleCombinationsAreRefused_data();
    void impossibleCombinationsAreRefused();
};

namespace {

QList<Chain> chains()
{
    Chain heavy;
    heavy.number = 1;
    heavy.name = u"HC"_s;
    Chain light;
    light.number = 5;
    light.name = u"LC"_s;
    return {heavy, light};
}

} // namespace

void TestProteinAutoPopulateOptions::namesAreReadAndWritten_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("written");
    QTest::newRow("ranges") << u"Auto(HC1:0-2,LC:1-2)"_s << u"Auto(HC1:0-2,LC:1-2)"_s;
    QTest::newRow("counts") << u"Auto(HC:2)"_s << u"Auto(HC:2-2)"_s;
    QTest::newRow("none") << u"Auto(HC)"_s << u"Auto(HC:0-1)"_s;
    QTest::newRow("blanks") << u" Auto( heavy chain : 0 - 2 , LC ) "_s << u"Auto(heavy chain:0-2,LC:0-1)"_s;
}

void TestProteinAutoPopulateOptions::namesAreReadAndWritten()
{
    QFETCH(QString, name);
    QVERIFY(ProteinAutoPopulateOptions::mayConvert(name));
    const Result<ProteinAutoPopulateOptions> options = ProteinAutoPopulateOptions::fromString(name);
    ORV_VERIFY_OK(options);
    QTEST(options->toString(), "written");
    QCOMPARE(*ProteinAutoPopulateOptions::fromString(options->toString()), *options);
}

void TestProteinAutoPopulateOptions::otherNamesAreOfPlainProteins_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("a protein") << u"sp|P02769|ALBU_BOVIN"_s;
    QTest::newRow("begins alike") << u"Autotaxin"_s;
    QTest::newRow("no chain") << u"Auto()"_s;
    QTest::newRow("empty chain") << u"Auto(HC,)"_s;
    QTest::newRow("lower case") << u"auto(HC)"_s;
    QTest::newRow("twice") << u"Auto(HC:1,HC:2)"_s;
    QTest::newRow("out of order") << u"Auto(HC:2-1)"_s;
    QTest::newRow("too many") << u"Auto(HC:0-101)"_s;
    QTest::newRow("no count") << u"Auto(HC:many)"_s;
    QTest::newRow("endless") << u"Auto("_s + QString(2000, u'A') + u')';
}

void TestProteinAutoPopulateOptions::otherNamesAreOfPlainProteins()
{
    QFETCH(QString, name);
    QVERIFY(!ProteinAutoPopulateOptions::mayConvert(name));
    const Result<ProteinAutoPopulateOptions> options = ProteinAutoPopulateOptions::fromString(name);
    QVERIFY(options.hasError());
    QCOMPARE(options.error().code(), ErrorCode::InvalidContent);
    QCOMPARE(options.error().errorMessage(), u"The name of combined proteins is malformed."_s);
}

void TestProteinAutoPopulateOptions::allCombinationsAreMade()
{
    const Result<QList<ProteinComplex>> proteins =
        ProteinAutoPopulateOptions::fromString(u"Auto(HC:1-2,LC:0-1)"_s)->proteins(chains());
    ORV_VERIFY_OK(proteins);
    QStringList names;
    for (const ProteinComplex &protein : *proteins)
        names.append(protein.name);
    QCOMPARE(names, QStringList({u"HC"_s, u"HC-LC"_s, u"HC-HC"_s, u"HC-HC-LC"_s}));
    QCOMPARE(proteins->constLast().chainNumbers, QList<int>({1, 1, 5}));
}

void TestProteinAutoPopulateOptions::theEmptyCombinationIsLeftOut()
{
    const Result<QList<ProteinComplex>> proteins =
        ProteinAutoPopulateOptions::fromString(u"Auto(HC:0-2,LC:0-2)"_s)->proteins(chains());
    ORV_VERIFY_OK(proteins);
    QCOMPARE(proteins->size(), 8);
}

void TestProteinAutoPopulateOptions::impossibleCombinationsAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown chain") << u"Auto(HC,XC)"_s;
    QTest::newRow("too many combinations") << u"Auto(HC:0-100,LC:0-100)"_s;
}

void TestProteinAutoPopulateOptions::impossibleCombinationsAreRefused()
{
    QFETCH(QString, name);
    const Result<QList<ProteinComplex>> proteins =
        ProteinAutoPopulateOptions::fromString(name)->proteins(chains());
    QVERIFY(proteins.hasError());
    QCOMPARE(proteins.error().code(), ErrorCode::InvalidContent);
}

ORV_REGISTER_TEST(TestProteinAutoPopulateOptions)
#include "TestProteinAutoPopulateOptions.moc"
