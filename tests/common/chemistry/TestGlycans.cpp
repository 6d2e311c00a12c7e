#include "OrvTest.h"
#include "ParsedTable.h"

#include <orv/chemistry/DetachedGlycanUtils.h>
#include <orv/chemistry/GlycanComposition.h>
#include <orv/chemistry/GlycanOptions.h>
#include <orv/chemistry/GlycanTable.h>
#include <orv/table/rn.h>

#include <random>

using namespace orv;
using namespace Qt::StringLiterals;

class TestGlycans : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void compositionsAreReadAndWritten_data();
    void compositionsAreReadAndWritten();
    void otherCompositionsAreRefused_data();
    void otherCompositionsAreRefused();
    void massesAgreeWithPublishedOnes_data();
    void massesAgreeWithPublishedOnes();
    void labelsAreAdded();
    void unknownPiecesHaveNoFormula_data();
    void unknownPiecesHaveNoFormula();
    void defaultTablesCanBeRead();
    void optionsAreSortedByKind();
    void inventedTablesReadBackEqual();
    void inventedOptionsReadBackEqual();
    void badCellsStayInTheirRow_data();
    void badCellsStayInTheirRow();
    void badOptionsAreRefusedWithTheirRow_data();
    void badOptionsAreRefusedWithTheirRow();
};

namespace {

GlycanOptions defaultOptions()
{
    return GlycanOptions::fromRowNode(DetachedGlycanUtils::defaultOptionsRowNode()).valueOr({});
}

Glycan glycanOf(const QString &composition, const QString &label = {})
{
    Glycan glycan;
    glycan.composition = composition;
    glycan.label = label;
    return glycan;
}

} // namespace

void TestGlycans::compositionsAreReadAndWritten_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");
    QTest::newRow("G0F") << u"HexNAc(4)Hex(3)Fuc(1)"_s << u"HexNAc(4)Hex(3)Fuc(1)"_s;
    QTest::newRow("blanks") << u" HexNAc(2) Hex(5) "_s << u"HexNAc(2)Hex(5)"_s;
    QTest::newRow("digits in the name") << u"Neu5Ac(1)"_s << u"Neu5Ac(1)"_s;
    QTest::newRow("none of it") << u"Hex(0)"_s << u"Hex(0)"_s;
}

void TestGlycans::compositionsAreReadAndWritten()
{
    QFETCH(QString, text);
    const Result<GlycanComposition> read = GlycanComposition::parse(text);
    ORV_VERIFY_OK(read);
    QTEST(read->toString(), "written");
    QCOMPARE(*GlycanComposition::parse(read->toString()), *read);
}

void TestGlycans::otherCompositionsAreRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("no count") << u"Hex"_s;
    QTest::newRow("negative") << u"Hex(-1)"_s;
    QTest::newRow("too many") << u"Hex(1001)"_s;
    QTest::newRow("beyond all numbers") << u"Hex(99999999999)"_s;
    QTest::newRow("twice") << u"Hex(1)Hex(2)"_s;
    QTest::newRow("digit first") << u"5Hex(1)"_s;
    QTest::newRow("rest") << u"Hex(1)+"_s;
    QTest::newRow("endless") << u"Hex(1)"_s.repeated(200);
}

void TestGlycans::otherCompositionsAreRefused()
{
    QFETCH(QString, text);
    const Result<GlycanComposition> read = GlycanComposition::parse(text);
    QVERIFY(read.hasError());
    QCOMPARE(read.error().code(), ErrorCode::InvalidContent);
    QCOMPARE(read.error().errorMessage(), u"The composition of a glycan is malformed."_s);
}

void TestGlycans::massesAgreeWithPublishedOnes_data()
{
    QTest::addColumn<QString>("composition");
    QTest::addColumn<double>("massDa");
    // Monoisotopic masses of the free glycans, GlyTouCan.
    QTest::newRow("G0F") << u"HexNAc(4)Hex(3)Fuc(1)"_s << 1462.5444;
    QTest::newRow("Man5") << u"HexNAc(2)Hex(5)"_s << 1234.4333;
    QTest::newRow("A2G2S2") << u"HexNAc(4)Hex(5)NeuAc(2)"_s << 2222.7830;
}

void TestGlycans::massesAgreeWithPublishedOnes()
{
    QFETCH(QString, composition);
    QFETCH(double, massDa);
    const Result<ChemicalFormula> formula = defaultOptions().formula(glycanOf(composition));
    ORV_VERIFY_OK(formula);
    QVERIFY2(std::abs(formula->monoisotopicMass() - massDa) < 1e-3,
             qPrintable(QString::number(formula->monoisotopicMass(), 'f', 4)));
}

void TestGlycans::labelsAreAdded()
{
    QList<GlycanOption> options = defaultOptions().options();
    // Reductive amination with 2-aminobenzamide, C7H8N2O, and loss of the sugar's oxygen.
    options.append(
        {GlycanOptionKind::Label, u"2-AB"_s, ChemicalFormula::parse(u"C7H8N2"_s).value(), true, {}});
    const GlycanOptions labelled(options);
    const Result<ChemicalFormula> formula = labelled.formula(glycanOf(u"Hex(5)HexNAc(2)"_s, u"2-AB"_s));
    ORV_VERIFY_OK(formula);
    QVERIFY(std::abs(formula->monoisotopicMass() - 1354.5020) < 1e-3);
}

void TestGlycans::unknownPiecesHaveNoFormula_data()
{
    QTest::addColumn<QString>("composition");
    QTest::addColumn<QString>("label");
    QTest::newRow("moiety") << u"Pent(1)"_s << QString();
    QTest::newRow("label") << u"Hex(1)"_s << u"2-AA"_s;
    QTest::newRow("an adduct is no label") << u"Hex(1)"_s << u"H"_s;
    QTest::newRow("no composition") << QString() << QString();
}

void TestGlycans::unknownPiecesHaveNoFormula()
{
    QFETCH(QString, composition);
    QFETCH(QString, label);
    QVERIFY(defaultOptions().formula(glycanOf(composition, label)).hasError());
}

void TestGlycans::defaultTablesCanBeRead()
{
    const Result<GlycanTable> table = GlycanTable::fromRowNode(DetachedGlycanUtils::defaultTableRowNode());
    ORV_VERIFY_OK(table);
    QVERIFY(table->glycans().isEmpty());
    QCOMPARE(table->toRowNode(), DetachedGlycanUtils::defaultTableRowNode());
    const RowNode options = DetachedGlycanUtils::defaultOptionsRowNode();
    ORV_VERIFY_OK(GlycanOptions::fromRowNode(options));
    QCOMPARE(defaultOptions().toRowNode(), options);
}

void TestGlycans::optionsAreSortedByKind()
{
    const GlycanOptions options = defaultOptions();
    QStringList moieties;
    for (const GlycanOption &moiety : options.ofKind(GlycanOptionKind::Moiety))
        moieties.append(moiety.name);
    QCOMPARE(moieties, QStringList({u"Hex"_s, u"HexNAc"_s, u"Fuc"_s, u"NeuAc"_s, u"NeuGc"_s}));
    QCOMPARE(options.ofKind(GlycanOptionKind::Adduct).size(), 1);
    QVERIFY(options.ofKind(GlycanOptionKind::Label).isEmpty());
    QVERIFY(options.ofKind(GlycanOptionKind::Derivatization).isEmpty());
}

void TestGlycans::inventedTablesReadBackEqual()
{
    constexpr unsigned kSeed = 20240305;
    std::mt19937 random(kSeed);
    for (int round = 0; round < 100; ++round) {
        QList<Glycan> glycans;
        for (int i = int(random() % 5); i > 0; --i) {
            Glycan glycan = glycanOf(random() % 2 ? u"Hex(%1)"_s.arg(random() % 9) : QString(), u"2-AB"_s);
            glycan.name = QString::number(random(), 36);
            if (random() % 2)
                glycan.massDa = double(random()) / 1e6;
            if (random() % 2)
                glycan.retentionTimeMinutes = double(random()) / 1e8;
            if (random() % 2)
                glycan.otherCells.insert(u"Area"_s, int(random() % 9));
            glycans.append(glycan);
        }
        const RowNode table = GlycanTable(glycans).toRowNode();
        RowNode read;
        QVERIFY(rn::parse(rn::serialize(&table), &read));
        const Result<GlycanTable> back = GlycanTable::fromRowNode(read);
        ORV_VERIFY_OK(back);
        QVERIFY2(back->glycans() == glycans, qPrintable(u"seed %1, round %2"_s.arg(kSeed).arg(round)));
    }
}

void TestGlycans::inventedOptionsReadBackEqual()
{
    constexpr unsigned kSeed = 20240306;
    std::mt19937 random(kSeed);
    for (int round = 0; round < 100; ++round) {
        QList<GlycanOption> options;
        for (int i = int(random() % 6); i > 0; --i) {
            options.append({static_cast<GlycanOptionKind>(random() % 4),
                            u"piece %1"_s.arg(i),
                            ChemicalFormula::parse(u"C%1H%2"_s.arg(random() % 20).arg(random() % 20)).value(),
                            random() % 2 == 0,
                            {}});
        }
        const RowNode table = GlycanOptions(options).toRowNode();
        RowNode read;
        QVERIFY(rn::parse(rn::serialize(&table), &read));
        const Result<GlycanOptions> back = GlycanOptions::fromRowNode(read);
        ORV_VERIFY_OK(back);
        QVERIFY2(back->options() == options, qPrintable(u"seed %1, round %2"_s.arg(kSeed).arg(round)));
    }
}

void TestGlycans::badCellsStayInTheirRow_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::newRow("mass") << QByteArray(R"("G0F","","heavy","",null)");
    QTest::newRow("list for a mass") << QByteArray(R"("G0F","",[1],"",null)");
    QTest::newRow("time") << QByteArray(R"("G0F","",null,"","late")");
    QTest::newRow("composition") << QByteArray(R"("G0F","Hex(",null,"",null)");
    QTest::newRow("blanks") << QByteArray(R"("G0F"," Hex(5) ",null,"",null)");
    QTest::newRow("name of another type") << QByteArray(R"([true],"",null,7,null)");
}

void TestGlycans::badCellsStayInTheirRow()
{
    QFETCH(QByteArray, row);
    const RowNode node =
        tableOf(R"({"data":["Name","Composition","Mass","Label","RetentionTime"],"children":[{"data":[)" +
                row + "]}]}");
    const Result<GlycanTable> table = GlycanTable::fromRowNode(node);
    ORV_VERIFY_OK(table);
    QVERIFY(!table->glycans()[0].massDa && !table->glycans()[0].retentionTimeMinutes);
    QVERIFY(table->toRowNode() == node);
}

void TestGlycans::badOptionsAreRefusedWithTheirRow_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::newRow("unknown kind") << QByteArray(R"("Sugar","Hex","C6H10O5")");
    QTest::newRow("no name") << QByteArray(R"("Moiety","","C6H10O5")");
    QTest::newRow("name twice") << QByteArray(R"("Moiety","A","C6H10O5")");
    QTest::newRow("no formula of elements") << QByteArray(R"("Moiety","Hex","Hexose")");
}

void TestGlycans::badOptionsAreRefusedWithTheirRow()
{
    QFETCH(QByteArray, row);
    const Result<GlycanOptions> options = GlycanOptions::fromRowNode(
        tableOf(R"({"data":["Kind","Name","Formula"],"children":[{"data":["Moiety","A","C"]},{"data":[)" +
                row + "]}]}"));
    QVERIFY(options.hasError());
    QCOMPARE(options.error().code(), ErrorCode::InvalidContent);
    QVERIFY(options.error().details().join(u' ').contains(u"row 2"_s, Qt::CaseInsensitive));
}

ORV_REGISTER_TEST(TestGlycans)
#include "TestGlycans.moc"
