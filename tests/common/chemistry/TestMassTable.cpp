#include "OrvTest.h"
#include "ParsedTable.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/MassUtils.h>
#include <orv/table/rn.h>

#include <random>

using namespace orv;
using namespace Qt::StringLiterals;

class TestMassTable : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowsBecomeMasses();
    void massesThatStandAsTextAreNumbers_data();
    void massesThatStandAsTextAreNumbers();
    void whatIsNoNumberIsKept();
    void cellsOfAnyTypeAreKept();
    void defaultRowsAreEmptyMasses();
    void theIdColumnIsWrittenAndCanBeRemoved();
    void inventedMassesReadBackEqual();
    void aMatchToleranceReadsBack();
    void badMatchTolerancesAreRefused_data();
    void badMatchTolerancesAreRefused();
    void goodMassesPass();
    void faultsAreTold_data();
    void faultsAreTold();
    void warningsAlonePass_data();
    void warningsAlonePass();
    void listsMayBeNullAndAreAppendedTo();
};

namespace {

const QList<int> kMassSamples{1, 2};

} // namespace

void TestMassTable::rowsBecomeMasses()
{
    const QList<DeltaMass> masses = MassUtils::deltaMassesFromRowNode(
        tableOf(R"({"data":["Mass","Name","SamplesIds","Colour"],)"
                R"("children":[{"data":[148055.9,"G0F/G0F",[2,1],"red"]},{"data":[-18.01,"water"]}]})"));
    QCOMPARE(masses.size(), 2);
    QCOMPARE(masses[0].name, u"G0F/G0F"_s);
    QCOMPARE(masses[0].massDa, 148055.9);
    QCOMPARE(masses[0].samplesIds, QList<int>({2, 1}));
    QCOMPARE(masses[0].otherCells.value(u"Colour"_s), QVariant(u"red"_s));
    QCOMPARE(masses[1].massDa, -18.01);
    QVERIFY(masses[1].samplesIds.isEmpty());
    QVERIFY(masses[1].otherCells.isEmpty());
}

void TestMassTable::massesThatStandAsTextAreNumbers_data()
{
    QTest::addColumn<QByteArray>("cell");
    QTest::addColumn<double>("mass");
    QTest::newRow("text") << QByteArray(R"("148055.9")") << 148055.9;
    QTest::newRow("blanks") << QByteArray(R"(" -15.977 ")") << -15.977;
    QTest::newRow("int") << QByteArray("5") << 5.0;
    QTest::newRow("double") << QByteArray(R"({"$double":5})") << 5.0;
}

void TestMassTable::massesThatStandAsTextAreNumbers()
{
    QFETCH(QByteArray, cell);
    const QList<DeltaMass> masses = MassUtils::deltaMassesFromRowNode(
        tableOf(R"({"data":["Mass"],"children":[{"data":[)" + cell + "]}]}"));
    QVERIFY(masses.constFirst().massDa.has_value());
    QTEST(*masses.constFirst().massDa, "mass");
}

void TestMassTable::whatIsNoNumberIsKept()
{
    const RowNode table =
        tableOf(R"({"data":["Name","Mass"],"children":[{"data":["a","12,5"]},{"data":["b","nan"]}]})");
    const QList<DeltaMass> masses = MassUtils::deltaMassesFromRowNode(table);
    QVERIFY(!masses[0].massDa);
    QCOMPARE(masses[0].unreadableMass, u"12,5"_s);
    QCOMPARE(masses[1].unreadableMass, u"nan"_s);
    QCOMPARE(MassUtils::deltaMassesFromRowNode(MassUtils::deltaMassesToRowNode(masses)), masses);
}

void TestMassTable::cellsOfAnyTypeAreKept()
{
    const RowNode table = tableOf(R"({"data":["Id","Name","Mass","Protein","SamplesIds"],"children":[
        {"data":[0,5,[1.5],true,"all"]},{"data":["x",[1]," 2.5 ",[],[1,"x"]]}]})");
    const QList<DeltaMass> masses = MassUtils::deltaMassesFromRowNode(table);
    QCOMPARE(masses[1].massDa, 2.5);
    QCOMPARE(masses[1].samplesIds, QList<int>({1}));
    QVERIFY(MassUtils::deltaMassesToRowNode(masses) == table);
    DeltaMass edited = masses[1];
    edited.massDa = 3;
    edited.samplesIds = {2};
    const RowNode back = MassUtils::deltaMassesToRowNode({edited});
    QCOMPARE(back.getChild(0)->getDataAt(u"Mass"_s), QVariant(3.0));
    QCOMPARE(back.getChild(0)->getDataAt(u"SamplesIds"_s), QVariant(QVariantList{2}));
}

void TestMassTable::defaultRowsAreEmptyMasses()
{
    const QList<DeltaMass> masses = MassUtils::deltaMassesFromRowNode(MassUtils::defaultRowNode(5));
    QCOMPARE(masses.size(), 5);
    for (const DeltaMass &mass : masses)
        QVERIFY(mass.isEmpty());
    QVERIFY(MassUtils::validate(masses, {}, nullptr, nullptr));
}

void TestMassTable::theIdColumnIsWrittenAndCanBeRemoved()
{
    DeltaMass mass;
    mass.id = 7;
    mass.name = u"G0F"_s;
    mass.massDa = 1444.5;
    RowNode table = MassUtils::deltaMassesToRowNode({mass});
    QCOMPARE(table.getChild(0)->getDataAt(QString(kId)), QVariant(7));
    QVERIFY(table.removeColumn(kId));
    QCOMPARE(table.getRootDataAsStringList(), MassUtils::defaultRowNode(0).getRootDataAsStringList());
    mass.id = 0;
    QCOMPARE(MassUtils::deltaMassesFromRowNode(table), QList<DeltaMass>{mass});
}

void TestMassTable::inventedMassesReadBackEqual()
{
    constexpr unsigned kSeed = 20240302;
    std::mt19937 random(kSeed);
    std::uniform_real_distribution<double> number(-1000.0, 200000.0);
    for (int round = 0; round < 100; ++round) {
        QList<DeltaMass> masses;
        for (int rows = int(random() % 6); rows > 0; --rows) {
            DeltaMass mass;
            mass.id = int(random() % 50);
            mass.name = QString::number(random(), 36);
            if (random() % 3)
                mass.massDa = number(random);
            else if (random() % 2)
                mass.unreadableMass = u"about "_s + QString::number(random());
            mass.protein = random() % 2 ? u"mAb"_s : QString();
            for (int ids = int(random() % 3); ids > 0; --ids)
                mass.samplesIds.append(int(random() % 100));
            if (random() % 2)
                mass.otherCells.insert(u"Column %1"_s.arg(random() % 3), int(random() % 10));
            masses.append(mass);
        }
        const RowNode table = MassUtils::deltaMassesToRowNode(masses);
        RowNode read;
        QVERIFY(rn::parse(rn::serialize(&table), &read));
        QVERIFY2(MassUtils::deltaMassesFromRowNode(read) == masses,
                 qPrintable(u"seed %1, round %2"_s.arg(kSeed).arg(round)));
    }
}

void TestMassTable::aMatchToleranceReadsBack()
{
    const Result<MassTolerance> read =
        MassUtils::matchToleranceFromRowNode(MassUtils::matchToleranceToRowNode({30.0, u"ppm"_s, {}}));
    ORV_VERIFY_OK(read);
    QCOMPARE(*read, (MassTolerance{30.0, u"ppm"_s, {}}));
    ORV_VERIFY_OK(MassUtils::matchToleranceFromRowNode(MassUtils::defaultMatchToleranceRowNode()));
}

void TestMassTable::badMatchTolerancesAreRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("empty") << QByteArray("{}");
    QTest::newRow("no row") << QByteArray(R"({"data":["Value","Unit"]})");
    QTest::newRow("no unit") << QByteArray(R"({"data":["Value"],"children":[{"data":[5]}]})");
    QTest::newRow("unknown unit") << QByteArray(R"({"data":["Value","Unit"],"children":[{"data":[5,"%"]}]})");
    QTest::newRow("negative") << QByteArray(R"({"data":["Value","Unit"],"children":[{"data":[-5,"ppm"]}]})");
    QTest::newRow("text") << QByteArray(R"({"data":["Value","Unit"],"children":[{"data":["x","ppm"]}]})");
}

void TestMassTable::badMatchTolerancesAreRefused()
{
    QFETCH(QByteArray, json);
    const Result<MassTolerance> read = MassUtils::matchToleranceFromRowNode(tableOf(json));
    QVERIFY(read.hasError());
    QCOMPARE(read.error().code(), ErrorCode::InvalidContent);
}

void TestMassTable::goodMassesPass()
{
    QStringList errors;
    QStringList warnings;
    const QList<DeltaMass> masses{{0, u"G0F"_s, 148055.9, {}, {}, {1, 2}, {}},
                                  {0, u"G0F"_s, 148055.9, {}, u"mAb"_s, {}, {}},
                                  {0, u"water"_s, -18.01, {}, {}, {}, {}}};
    QVERIFY(MassUtils::validate(masses, kMassSamples, &errors, &warnings));
    QCOMPARE(errors + warnings, QStringList());
}

void TestMassTable::faultsAreTold_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QString>("error");
    QTest::newRow("no number") << QByteArray(R"("G0F","12,5",null)") << u"\"12,5\""_s;
    QTest::newRow("no mass") << QByteArray(R"("G0F",null,null)") << u"no mass"_s;
    QTest::newRow("samples that are gone") << QByteArray(R"("G0F",5,[7,8])") << u"7, 8"_s;
}

void TestMassTable::faultsAreTold()
{
    QFETCH(QByteArray, row);
    QFETCH(QString, error);
    QStringList errors;
    QStringList warnings;
    const RowNode table =
        tableOf(R"({"data":["Name","Mass","SamplesIds"],"children":[{"data":[]},{"data":[)" + row + "]}]}");
    QVERIFY(!MassUtils::validate(MassUtils::deltaMassesFromRowNode(table), kMassSamples, &errors, &warnings));
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors.constFirst().startsWith(u"Row 2 (\"G0F\")"_s), qPrintable(errors.constFirst()));
    QVERIFY2(errors.constFirst().contains(error), qPrintable(errors.constFirst()));
    QVERIFY(warnings.isEmpty());
}

void TestMassTable::warningsAlonePass_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<QString>("warning");
    QTest::newRow("no name") << QByteArray(R"({"data":[null,5,null]})") << u"no name"_s;
    QTest::newRow("one sample is gone") << QByteArray(R"({"data":["G0F",5,[1,7]]})") << u"samples 7,"_s;
    QTest::newRow("row twice") << QByteArray(R"({"data":["G0F",5,[1]]},{"data":["G0F",5,[1]]})")
                               << u"repeats row 1"_s;
}

void TestMassTable::warningsAlonePass()
{
    QFETCH(QByteArray, rows);
    QFETCH(QString, warning);
    QStringList errors;
    QStringList warnings;
    const RowNode table = tableOf(R"({"data":["Name","Mass","SamplesIds"],"children":[)" + rows + "]}");
    QVERIFY(MassUtils::validate(MassUtils::deltaMassesFromRowNode(table), kMassSamples, &errors, &warnings));
    QCOMPARE(errors, QStringList());
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.constFirst().contains(warning), qPrintable(warnings.constFirst()));
}

void TestMassTable::listsMayBeNullAndAreAppendedTo()
{
    const QList<DeltaMass> masses{{0, u"G0F"_s, {}, {}, {}, {}, {}}};
    QVERIFY(!MassUtils::validate(masses, kMassSamples, nullptr, nullptr));
    QStringList errors{u"earlier"_s};
    QVERIFY(!MassUtils::validate(masses, kMassSamples, &errors, nullptr));
    QCOMPARE(errors.size(), 2);
    QCOMPARE(errors.constFirst(), u"earlier"_s);
}

ORV_REGISTER_TEST(TestMassTable)
#include "TestMassTable.moc"
