#include "OrvTest.h"
#include "ParsedTable.h"

#include <orv/chemistry/ChainId.h>
#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/ProteinGenerator.h>
#include <orv/chemistry/ProteinUtils.h>
#include <orv/table/rn.h>

#include <random>

using namespace orv;
using namespace Qt::StringLiterals;
using InputOptions = ProteinGenerator::InputOptions;

class TestProteinGenerator : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void defaultTablesReadAsEmptyOptions();
    void inventedOptionsReadBackEqual();
    void unknownColumnsAndTablesSurvive();
    void absentTablesReadAsEmpty();
    void chainsWithoutNumberGetThatOfTheirRow();
    void badTablesAreRefusedWithTheirRow_data();
    void badTablesAreRefusedWithTheirRow();
    void insulinHasItsPublishedMass();
    void aProteinIsAsHeavyAsItsChainsOftenEnough();
    void sequencesAreCleaned();
    void ownBuildingBlocksCount();
    void unknownMassesAreKeptOrRefused();
    void aProteinWithoutChainsHasNoMass();
    void aProteinOfTooManyLettersIsRefused();
    void plainTablesAreChainsAndProteins_data();
    void plainTablesAreChainsAndProteins();
    void plainTablesLoseNothingAsOptions();
    void afterAFailureTheListsAreEmpty();
    void calculatorsAreMonoisotopicAndAverage();
    void aMirroredChainIsAProteinOfItself();
    void idsAreLettersThatNoChainHas_data();
    void idsAreLettersThatNoChainHas();
};

namespace {

const QString kInsulinA = u"GIVEQCCTSICSLYQLENYCN"_s;
const QString kInsulinB = u"FVNQHLCGSHLVEALYLVCGERGFFYTPKT"_s;

Chain chainOf(int number, const QString &name, const QString &sequence, ChainType type = ChainType::Protein)
{
    Chain chain;
    chain.number = number;
    chain.name = name;
    chain.sequence = sequence;
    chain.type = type;
    return chain;
}

ProteinComplex proteinOf(const QString &name, const QList<int> &chains, int disulfides = 0)
{
    ProteinComplex protein;
    protein.name = name;
    protein.chainNumbers = chains;
    protein.disulfides = disulfides;
    return protein;
}

} // namespace

void TestProteinGenerator::defaultTablesReadAsEmptyOptions()
{
    const Result<InputOptions> options =
        ProteinGenerator::parseInputOptions(ProteinUtils::defaultInputRowNode());
    ORV_VERIFY_OK(options);
    QCOMPARE(*options, InputOptions());
}

void TestProteinGenerator::inventedOptionsReadBackEqual()
{
    constexpr unsigned kSeed = 20240303;
    std::mt19937 random(kSeed);
    const auto below = [&](int bound) { return int(random() % unsigned(bound)); };
    for (int round = 0; round < 100; ++round) {
        InputOptions options;
        for (int i = below(5); i > 0; --i) {
            Chain chain = chainOf(i * 3, u"chain %1"_s.arg(below(9)), kInsulinA.left(below(20)),
                                  static_cast<ChainType>(below(3)));
            chain.id = QString::number(below(99));
            chain.isCustom = below(2) == 0;
            if (below(2))
                chain.monoisotopicMassDa = below(100000) / 7.0;
            if (below(2))
                chain.averageMassDa = below(100000);
            if (below(2))
                chain.otherCells.insert(u"Colour"_s, below(9));
            options.chains.append(chain);
        }
        for (int i = options.chains.isEmpty() ? 0 : below(5); i > 0; --i) {
            ProteinComplex protein = proteinOf(u"protein %1"_s.arg(i), {}, below(20));
            for (int count = below(4); count > 0; --count)
                protein.chainNumbers.append(options.chains.at(below(int(options.chains.size()))).number);
            for (int count = below(3); count > 0; --count)
                protein.samplesIds.append(below(100));
            options.proteins.append(protein);
        }
        for (int i = below(3); i > 0; --i)
            options.buildingBlocks.append(
                {u"X%1"_s.arg(i), u"name"_s, u"Base"_s, u"C%1"_s.arg(below(9)), {}});
        if (below(2))
            options.otherTables.append(
                {u"Modifications"_s, tableOf(R"({"data":["a"],"children":[{"data":[1]}]})")});

        const RowNode table = options.toRowNode();
        RowNode read;
        QVERIFY(rn::parse(rn::serialize(&table), &read));
        const Result<InputOptions> back = ProteinGenerator::parseInputOptions(read);
        ORV_VERIFY_OK(back);
        QVERIFY2(*back == options, qPrintable(u"seed %1, round %2"_s.arg(kSeed).arg(round)));
    }
}

void TestProteinGenerator::unknownColumnsAndTablesSurvive()
{
    const RowNode table = tableOf(R"({"data":["Other","Chains","Proteins"],"children":[
        {"data":["x"],"children":[{"data":[5]}]},
        {"data":["Name","Sequence","Number","Colour"],"children":[{"data":["LC","DIQ",1,"red"]}]},
        {"data":["Name","ChainNumbers","Stock"],"children":[{"data":["half",[1],"A7"]}]}]})");
    const Result<InputOptions> options = ProteinGenerator::parseInputOptions(table);
    ORV_VERIFY_OK(options);
    QCOMPARE(options->otherTables.size(), 1);
    const RowNode written = options->toRowNode();
    const Result<InputOptions> back = ProteinGenerator::parseInputOptions(written);
    ORV_VERIFY_OK(back);
    QCOMPARE(*back, *options);
    QCOMPARE(back->chains.constFirst().otherCells.value(u"Colour"_s), QVariant(u"red"_s));
    QCOMPARE(back->proteins.constFirst().otherCells.value(u"Stock"_s), QVariant(u"A7"_s));
    QCOMPARE(*written.getChild(written.getColumnIndexFromName(u"Other"_s)), *table.getChild(0));
}

void TestProteinGenerator::absentTablesReadAsEmpty()
{
    for (const char *json :
         {"{}", R"({"data":["Chains"]})", R"({"data":["Proteins","Chains"],"children":[{}]})"}) {
        const Result<InputOptions> options = ProteinGenerator::parseInputOptions(tableOf(json));
        ORV_VERIFY_OK(options);
        QVERIFY(options->chains.isEmpty());
        QVERIFY(options->proteins.isEmpty());
    }
}

void TestProteinGenerator::chainsWithoutNumberGetThatOfTheirRow()
{
    const Result<InputOptions> options = ProteinGenerator::parseInputOptions(tableOf(
        R"({"data":["Chains"],"children":[{"data":["Name"],"children":[{"data":["HC"]},{"data":["LC"]}]}]})"));
    ORV_VERIFY_OK(options);
    QCOMPARE(options->chains.at(0).number, 1);
    QCOMPARE(options->chains.at(1).number, 2);
    QVERIFY(!options->chains.at(0).isCustom);
}

void TestProteinGenerator::badTablesAreRefusedWithTheirRow_data()
{
    QTest::addColumn<QByteArray>("chains");
    QTest::addColumn<QByteArray>("proteins");
    QTest::addColumn<QString>("place");
    const QByteArray chain = R"({"data":[1,"Protein"]})";
    QTest::newRow("number twice") << chain + ',' + chain << QByteArray()
                                  << u"Row 2 of the table \"Chains\""_s;
    QTest::newRow("number 0") << QByteArray(R"({"data":[0,null]})") << QByteArray()
                              << u"Row 1 of the table \"Chains\""_s;
    QTest::newRow("unknown type") << QByteArray(R"({"data":[1,"Sugar"]})") << QByteArray() << u"\"Sugar\""_s;
    QTest::newRow("chain that isn't there")
        << chain << QByteArray(R"({"data":[[1,2],0]})") << u"There is no chain 2"_s;
    QTest::newRow("negative disulfides")
        << chain << QByteArray(R"({"data":[[1],-1]})") << u"Row 1 of the table \"Proteins\""_s;
    QTest::newRow("disulfides in words") << chain << QByteArray(R"({"data":[[1],"two"]})") << u"\"two\""_s;
}

void TestProteinGenerator::badTablesAreRefusedWithTheirRow()
{
    QFETCH(QByteArray, chains);
    QFETCH(QByteArray, proteins);
    QFETCH(QString, place);
    const Result<InputOptions> options = ProteinGenerator::parseInputOptions(
        tableOf(R"({"data":["Chains","Proteins"],"children":[{"data":["Number","Type"],"children":[)" +
                chains + R"(]},{"data":["ChainNumbers","Disulfides"],"children":[)" + proteins + "]}]}"));
    QVERIFY(options.hasError());
    QCOMPARE(options.error().code(), ErrorCode::InvalidContent);
    QVERIFY2(options.error().details().join(u' ').contains(place),
             qPrintable(options.error().details().join(u' ')));
}

void TestProteinGenerator::insulinHasItsPublishedMass()
{
    InputOptions options;
    options.chains = {chainOf(1, u"A"_s, kInsulinA), chainOf(2, u"B"_s, kInsulinB)};
    options.proteins = {proteinOf(u"human insulin"_s, {1, 2}, 3)};
    ProteinGenerator generator(false);
    ORV_VERIFY_OK(generator.init(options.toRowNode()));
    // PubChem, C257H383N65O77S6.
    const ProteinComplex &insulin = generator.proteinComplexList().proteinList().constFirst();
    QVERIFY(std::abs(*insulin.monoisotopicMassDa - 5803.638) < 0.002);
    QVERIFY(std::abs(*insulin.averageMassDa - 5807.6) < 0.1);
    QCOMPARE(insulin.sequence, kInsulinA + kInsulinB);
}

void TestProteinGenerator::aProteinIsAsHeavyAsItsChainsOftenEnough()
{
    InputOptions options;
    options.chains = {chainOf(4, u"HC"_s, u"EVQL"_s), chainOf(9, u"LC"_s, u"DIQ"_s)};
    options.proteins = {proteinOf(u"mAb"_s, {4, 4, 9, 9})};
    ProteinGenerator generator(false);
    ORV_VERIFY_OK(generator.init(options.toRowNode()));
    const ProteinComplexList &list = generator.proteinComplexList();
    const Chain *heavy = list.chainList().find(4);
    const Chain *light = list.chainList().find(9);
    QVERIFY(heavy && light);
    QVERIFY(!list.chainList().find(5));
    QCOMPARE(*list.proteinList().constFirst().averageMassDa,
             2 * (*heavy->averageMassDa + *light->averageMassDa));
    QCOMPARE(list.proteinList().constFirst().sequence, u"EVQLEVQLDIQDIQ"_s);
}

void TestProteinGenerator::sequencesAreCleaned()
{
    InputOptions options;
    options.chains = {chainOf(1, u"protein"_s, u" evq\r\nL\t"_s),
                      chainOf(2, u"RNA"_s, u" A [Um]\n*G "_s, ChainType::Rna)};
    ProteinGenerator generator(false);
    ORV_VERIFY_OK(generator.init(options.toRowNode()));
    const QList<Chain> chains = generator.proteinComplexList().chainList().toVector();
    QCOMPARE(chains.at(0).sequence, u"EVQL"_s);
    QCOMPARE(chains.at(1).sequence, u"A[Um]*G"_s);
}

void TestProteinGenerator::ownBuildingBlocksCount()
{
    InputOptions options;
    options.chains = {chainOf(1, u"RNA"_s, u"AY"_s, ChainType::Rna)};
    ProteinGenerator generator(false);
    QVERIFY(generator.init(options.toRowNode()).hasError());
    options.buildingBlocks = {{u"Y"_s, u"pseudouracil"_s, u"Base"_s, u"C4H3N2O2"_s, {}}};
    ORV_VERIFY_OK(generator.init(options.toRowNode()));
    options.buildingBlocks.first().formula = u"nonsense"_s;
    QVERIFY(generator.init(options.toRowNode()).hasError());
}

void TestProteinGenerator::unknownMassesAreKeptOrRefused()
{
    InputOptions options;
    options.chains = {chainOf(1, u"odd"_s, u"PEPXIDE"_s), chainOf(2, u"good"_s, u"PEPTIDE"_s)};
    options.proteins = {proteinOf(u"both"_s, {1, 2}), proteinOf(u"good"_s, {2})};
    ProteinGenerator strict(false);
    const Error error = strict.init(options.toRowNode());
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QVERIFY(error.details().join(u' ').contains(u"\"odd\""_s));

    ProteinGenerator lenient(true, nullptr);
    ORV_VERIFY_OK(lenient.init(options.toRowNode()));
    const ProteinComplexList &list = lenient.proteinComplexList();
    QCOMPARE(list.chainList().find(1)->sequence, u"PEPXIDE"_s);
    QVERIFY(!list.chainList().find(1)->averageMassDa);
    QVERIFY(!list.proteinList().at(0).averageMassDa);
    QVERIFY(!list.proteinList().at(0).monoisotopicMassDa);
    QVERIFY(list.proteinList().at(1).averageMassDa);
}

void TestProteinGenerator::aProteinWithoutChainsHasNoMass()
{
    InputOptions options;
    options.proteins = {proteinOf(u"nothing"_s, {})};
    ProteinGenerator generator(false);
    ORV_VERIFY_OK(generator.init(options.toRowNode()));
    QVERIFY(!generator.proteinComplexList().proteinList().constFirst().averageMassDa);
}

void TestProteinGenerator::aProteinOfTooManyLettersIsRefused()
{
    InputOptions options;
    options.chains = {chainOf(1, u"long"_s, QString(90000, u'A'))};
    options.proteins = {proteinOf(u"giant"_s, QList<int>(12, 1))};
    ProteinGenerator generator(true);
    const Error error = generator.init(options.toRowNode());
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QVERIFY(error.details().join(u' ').contains(u"\"giant\""_s));
}

void TestProteinGenerator::plainTablesAreChainsAndProteins_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("proteins")
        << QByteArray(
               R"({"data":["ProteinAccessionName","ProteinAliasName","ProteinSequence"],"children":[)"
               R"({"data":["P1","alias","PEPTIDE"]},{"data":["","alias","PEPTIDE"]},{"data":["P3","","  "]}]})")
        << QStringList{u"P1"_s, u"alias"_s};
    QTest::newRow("name and sequence")
        << QByteArray(R"({"data":["Name","Sequence","isCustom"],"children":[{"data":["HC","PEPTIDE",1]}]})")
        << QStringList{u"HC"_s};
    QTest::newRow("no rows") << QByteArray(R"({"data":["Name","Sequence"]})") << QStringList();
}

void TestProteinGenerator::plainTablesAreChainsAndProteins()
{
    QFETCH(QByteArray, json);
    QFETCH(QStringList, names);
    ProteinGenerator generator(true, nullptr);
    ORV_VERIFY_OK(generator.init(tableOf(json)));
    const ProteinComplexList &list = generator.proteinComplexList();
    QStringList chains;
    QStringList proteins;
    for (const Chain &chain : list.chainList().toVector()) {
        chains.append(chain.name);
        QCOMPARE(chain.sequence, u"PEPTIDE"_s);
    }
    for (const ProteinComplex &protein : list.proteinList()) {
        proteins.append(protein.name);
        QCOMPARE(protein.sequence, u"PEPTIDE"_s);
        QVERIFY(std::abs(*protein.monoisotopicMassDa - 799.35997) < 1e-4);
    }
    QCOMPARE(chains, names);
    QCOMPARE(proteins, names);
}

void TestProteinGenerator::plainTablesLoseNothingAsOptions()
{
    const Result<InputOptions> options = ProteinGenerator::parseInputOptions(tableOf(
        R"({"data":["ProteinAccessionName","ProteinAliasName","ProteinSequence","Stock","isCustom"],)"
        R"("children":[{"data":["P1","alias","PEPTIDE","A7",0]},{"data":["P2",null,null,null,null]}]})"));
    ORV_VERIFY_OK(options);
    QCOMPARE(options->chains.size(), 2);
    QCOMPARE(options->proteins.size(), 2);
    const Chain &first = options->chains.constFirst();
    QCOMPARE(first.name, u"P1"_s);
    QCOMPARE(first.id, u"A"_s);
    QVERIFY(!first.isCustom);
    QCOMPARE(first.otherCells.value(u"ProteinAliasName"_s), QVariant(u"alias"_s));
    QCOMPARE(first.otherCells.value(u"Stock"_s), QVariant(u"A7"_s));
    QVERIFY(options->chains.constLast().isCustom);
}

void TestProteinGenerator::afterAFailureTheListsAreEmpty()
{
    InputOptions options;
    options.chains = {chainOf(1, u"good"_s, u"PEPTIDE"_s)};
    options.proteins = {proteinOf(u"good"_s, {1})};
    ProteinGenerator generator(false);
    ORV_VERIFY_OK(generator.init(options.toRowNode()));
    options.chains.first().sequence = u"PEPXIDE"_s;
    QVERIFY(generator.init(options.toRowNode()).hasError());
    QVERIFY(generator.proteinComplexList().chainList().toVector().isEmpty());
    QVERIFY(generator.proteinComplexList().proteinList().isEmpty());
}

void TestProteinGenerator::calculatorsAreMonoisotopicAndAverage()
{
    QCOMPARE(static_cast<int>(MassType::Monoisotopic), 0);
    QCOMPARE(static_cast<int>(MassType::Average), 1);
    const ChemicalFormula water = ChemicalFormula::parse(u"H2O"_s).value();
    QCOMPARE(ProteinGenerator::createMassCalculator(MassType::Monoisotopic).mass(water),
             water.monoisotopicMass());
    QCOMPARE(ProteinGenerator::createMassCalculator(MassType::Average).mass(water), water.averageMass());
}

void TestProteinGenerator::aMirroredChainIsAProteinOfItself()
{
    Chain chain = chainOf(7, u"LC"_s, u"DIQ"_s);
    ORV_VERIFY_OK(chain.updateMasses(ProteinGenerator::createMassCalculator(MassType::Monoisotopic),
                                     ProteinGenerator::createMassCalculator(MassType::Average)));
    const ProteinComplex protein = ProteinUtils::mirrorChain(chain);
    QCOMPARE(protein.name, u"LC"_s);
    QCOMPARE(protein.sequence, u"DIQ"_s);
    QCOMPARE(protein.chainNumbers, QList<int>{7});
    QCOMPARE(protein.disulfides, 0);
    QVERIFY(protein.samplesIds.isEmpty());
    QVERIFY(chain.averageMassDa);
    QCOMPARE(protein.averageMassDa, chain.averageMassDa);
    QCOMPARE(protein.monoisotopicMassDa, chain.monoisotopicMassDa);
}

void TestProteinGenerator::idsAreLettersThatNoChainHas_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QString>("id");
    QTest::newRow("first") << 1 << QStringList() << u"A"_s;
    QTest::newRow("last letter") << 26 << QStringList() << u"Z"_s;
    QTest::newRow("two letters") << 27 << QStringList() << u"AA"_s;
    QTest::newRow("many") << 703 << QStringList() << u"AAA"_s;
    QTest::newRow("taken") << 1 << QStringList{u"A"_s, u"B"_s, u"D"_s} << u"C"_s;
    QTest::newRow("others are taken") << 3 << QStringList{u"A"_s, u"B"_s} << u"C"_s;
    QTest::newRow("no number") << 0 << QStringList() << u"A"_s;
}

void TestProteinGenerator::idsAreLettersThatNoChainHas()
{
    QFETCH(int, number);
    QFETCH(QStringList, taken);
    QList<Chain> chains;
    for (const QString &id : taken) {
        Chain chain;
        chain.id = id;
        chains.append(chain);
    }
    QTEST(ChainId::createDefaultIdText(number, chains), "id");
}

ORV_REGISTER_TEST(TestProteinGenerator)
#include "TestProteinGenerator.moc"
