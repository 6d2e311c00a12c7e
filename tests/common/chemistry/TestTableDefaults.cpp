#include "OrvTest.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/DetachedGlycanUtils.h>
#include <orv/chemistry/DisulfideUtils.h>
#include <orv/chemistry/IntactOptionsUtils.h>
#include <orv/chemistry/IsotopeUtils.h>
#include <orv/chemistry/MassUtils.h>
#include <orv/chemistry/ProteinUtils.h>
#include <orv/chemistry/SettableFeatureFinderParameters.h>
#include <orv/table/rn.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestTableDefaults : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void tablesHaveTheirColumnsAndRows_data();
    void tablesHaveTheirColumnsAndRows();
    void tablesSurviveTheirJsonForm_data() { tablesHaveTheirColumnsAndRows_data(); }
    void tablesSurviveTheirJsonForm();
    void rowsAreAsWideAsTheirHeader_data() { tablesHaveTheirColumnsAndRows_data(); }
    void rowsAreAsWideAsTheirHeader();
    void aNegativeCountOfMassesGivesNone();
    void theMatchToleranceIsZeroDalton();
    void theUnitsOfAToleranceAreDaltonAndPpm();
    void theInputOfProteinsHasATableBelowEachColumn();
    void theFeatureFinderStartsWithTheSettingsDefaults();
};

void TestTableDefaults::tablesHaveTheirColumnsAndRows_data()
{
    QTest::addColumn<RowNode>("table");
    QTest::addColumn<QStringList>("columns");
    QTest::addColumn<int>("rows");

    QTest::newRow("released glycans")
        << DetachedGlycanUtils::defaultTableRowNode()
        << QStringList{u"Name"_s, u"Composition"_s, u"Mass"_s, u"Label"_s, u"RetentionTime"_s} << 0;
    QTest::newRow("glycan options") << DetachedGlycanUtils::defaultOptionsRowNode()
                                    << QStringList{u"Kind"_s, u"Name"_s, u"Formula"_s, u"Complete"_s} << 6;
    QTest::newRow("disulfides") << Disulfide::DisulfideUtils::defaultRowNode()
                                << QStringList{u"FirstChain"_s, u"FirstPosition"_s, u"SecondChain"_s,
                                               u"SecondPosition"_s}
                                << 0;
    // The rule of the property asks for at least one.
    QTest::newRow("isotopes") << IsotopeUtils::defaultRowNode()
                              << QStringList{u"Name"_s, u"Element"_s, u"MassNumber"_s, u"Enrichment"_s} << 1;
    QTest::newRow("masses") << MassUtils::defaultRowNode(5)
                            << QStringList{u"Name"_s, u"Mass"_s, u"Protein"_s, u"SamplesIds"_s} << 5;
    QTest::newRow("match tolerance") << MassUtils::defaultMatchToleranceRowNode()
                                     << QStringList{u"Value"_s, u"Unit"_s} << 1;
    QTest::newRow("intact options") << IntactOptionsUtils::defaultRowNode()
                                    << QStringList{u"Name"_s,          u"MinimumMz"_s,   u"MaximumMz"_s,
                                                   u"MinimumMass"_s,   u"MaximumMass"_s, u"MinimumCharge"_s,
                                                   u"MaximumCharge"_s, u"Adduct"_s}
                                    << 1;
    QTest::newRow("proteins") << ProteinUtils::defaultRowNode()
                              << QStringList{u"ProteinAccessionName"_s, u"ProteinAliasName"_s,
                                             u"ProteinSequence"_s}
                              << 0;
}

void TestTableDefaults::tablesHaveTheirColumnsAndRows()
{
    QFETCH(RowNode, table);
    QFETCH(QStringList, columns);
    QFETCH(int, rows);

    QCOMPARE(table.getRootDataAsStringList(), columns);
    QCOMPARE(table.getChildListSize(), rows);
}

void TestTableDefaults::tablesSurviveTheirJsonForm()
{
    QFETCH(RowNode, table);
    RowNode read;
    QVERIFY(rn::parse(rn::serialize(&table), &read));
    QCOMPARE(read, table);
}

void TestTableDefaults::rowsAreAsWideAsTheirHeader()
{
    QFETCH(RowNode, table);
    for (int i = 0; i < table.getChildListSize(); ++i)
        QCOMPARE(table.getChild(i)->data.size(), table.data.size());
}

void TestTableDefaults::aNegativeCountOfMassesGivesNone()
{
    QCOMPARE(MassUtils::defaultRowNode(-1).getChildListSize(), 0);
    QCOMPARE(MassUtils::defaultRowNode(-1).data.size(), 4);
}

void TestTableDefaults::theMatchToleranceIsZeroDalton()
{
    const RowNode table = MassUtils::defaultMatchToleranceRowNode();
    QCOMPARE(table.getChildFirst()->getDataAt(QString(kMassToleranceValue)), QVariant(0.0));
    QCOMPARE(table.getChildFirst()->getDataAt(QString(kMassToleranceUnit)), QVariant(u"Dalton"_s));
}

void TestTableDefaults::theUnitsOfAToleranceAreDaltonAndPpm()
{
    QCOMPARE(MassUtils::possibleMassToleranceUnits(), QStringList({u"Dalton"_s, u"ppm"_s}));
}

void TestTableDefaults::theInputOfProteinsHasATableBelowEachColumn()
{
    const RowNode root = ProteinUtils::defaultInputRowNode();
    QCOMPARE(root.getRowDataToStringList(), QStringList({u"Chains"_s, u"Proteins"_s, u"BuildingBlocks"_s}));
    QCOMPARE(root.getChildListSize(), 3);
    const RowNode *chains = root.getChild(root.getColumnIndexFromName(QString(kChains)));
    QVERIFY(chains->getRowDataToStringList().contains(QString(kisCustom)));
    for (int i = 0; i < root.getChildListSize(); ++i)
        QCOMPARE(root.getChild(i)->getChildListSize(), 0);
}

void TestTableDefaults::theFeatureFinderStartsWithTheSettingsDefaults()
{
    const SettableFeatureFinderParameters parameters;
    QCOMPARE(parameters.maximumCharge, 10);
    QCOMPARE(parameters.minimumCharge, 1);
    QCOMPARE(parameters.minimumIsotopeCorrelation, 0.8);
    QCOMPARE(parameters.maximumIsotopeCount, 8);
    QCOMPARE(parameters.minimumIsotopeCount, 2);
    QCOMPARE(parameters.mergeChargeStates, true);
    QCOMPARE(parameters.missedScans, 1);
    QCOMPARE(parameters.mzTolerancePpm, 10.0);
    QCOMPARE(parameters.peaksPerScan, 0);
    QCOMPARE(parameters.minimumScanCount, 3);
    QCOMPARE(parameters.minimumSignalToNoise, 3.0);
    QCOMPARE(parameters.smoothingScans, 3);
    QCOMPARE(parameters.splitDepthPercent, 50);
    QCOMPARE(parameters.threadCount, 0);
    QCOMPARE(parameters.maximumElutionMinutes, 5.0);
    QCOMPARE(parameters.minimumElutionMinutes, 0.05);
}

ORV_REGISTER_TEST(TestTableDefaults)
#include "TestTableDefaults.moc"
