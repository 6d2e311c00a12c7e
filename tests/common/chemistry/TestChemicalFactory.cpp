#include "OrvTest.h"

#include <orv/chemistry/ChemicalFactory.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestChemicalFactory : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void peptideMassesAgreeWithPublishedOnes_data();
    void peptideMassesAgreeWithPublishedOnes();
    void proteinMassesAgreeWithPublishedOnes_data();
    void proteinMassesAgreeWithPublishedOnes();
    void oligonucleotidesAgreeWithPublishedFormulas_data();
    void oligonucleotidesAgreeWithPublishedFormulas();
    void sequencesWithoutFormulaAreRefusedWithTheirPlace_data();
    void sequencesWithoutFormulaAreRefusedWithTheirPlace();
    void ownBuildingBlocksAreUsed();
    void ownBuildingBlocksReplaceDefaultOnes();
    void badBuildingBlocksAreRefused_data();
    void badBuildingBlocksAreRefused();
    void typesOfBuildingBlocksAreNamed_data();
    void typesOfBuildingBlocksAreNamed();
    void oldFormulasLoseWhatTheBondsCost_data();
    void oldFormulasLoseWhatTheBondsCost();
    void anOldFormulaThatCannotBeReadIsRefused();
    void convertedFreeCompoundsAreTheDefaultBlocks_data();
    void convertedFreeCompoundsAreTheDefaultBlocks();
};

namespace {

const ChemicalFactory &factory()
{
    return ChemicalFactory::defaultFactory();
}

ChemicalFormula parsed(const QString &text)
{
    return ChemicalFormula::parse(text).valueOr({});
}

} // namespace

void TestChemicalFactory::peptideMassesAgreeWithPublishedOnes_data()
{
    QTest::addColumn<QString>("sequence");
    QTest::addColumn<double>("protonatedDa");
    // [M+H]+ of the makers' calibration mixtures, monoisotopic.
    QTest::newRow("angiotensin II") << u"DRVYIHPF"_s << 1046.5418;
    QTest::newRow("[Glu1]-fibrinopeptide B") << u"EGVNDNEEGFFSAR"_s << 1570.6768;
    QTest::newRow("ACTH 18-39") << u"RPVKVYPNGAEDESAEAFPLEF"_s << 2465.1983;
}

void TestChemicalFactory::peptideMassesAgreeWithPublishedOnes()
{
    QFETCH(QString, sequence);
    QFETCH(double, protonatedDa);
    const Result<ChemicalFormula> formula = factory().formula(sequence, ChainType::Protein);
    ORV_VERIFY_OK(formula);
    constexpr double kProtonDa = 1.00727646688;
    const double got = formula->monoisotopicMass() + kProtonDa;
    QVERIFY2(std::abs(got - protonatedDa) < 3e-4, qPrintable(QString::number(got, 'f', 5)));
}

void TestChemicalFactory::proteinMassesAgreeWithPublishedOnes_data()
{
    QTest::addColumn<QString>("sequence");
    QTest::addColumn<double>("averageDa");
    // UniProt P68082 without its first methionine, and P0CG48.
    QTest::newRow("horse apomyoglobin") << u"GLSDGEWQQVLNVWGKVEADIAGHGQEVLIRLFTGHPETLEKFDKFKHLKTEAEMKASEDLKKH"
                                           u"GTVVLTALGGILKKKGHHEAELKPLAQSHATKHKIPI"
                                           u"KYLEFISDAIIHVLHSKHPGDFGADAQGAMTKALELFRNDIAAKYKELGFQG"_s
                                        << 16951.5;
    QTest::newRow("human ubiquitin")
        << u"MQIFVKTLTGKTITLEVEPSDTIENVKAKIQDKEGIPPDQQRLIFAGKQLEDGRTLSDYNIQKESTLHLVLRLRGG"_s << 8564.8;
}

void TestChemicalFactory::proteinMassesAgreeWithPublishedOnes()
{
    QFETCH(QString, sequence);
    QFETCH(double, averageDa);
    const Result<ChemicalFormula> formula = factory().formula(sequence, ChainType::Protein);
    ORV_VERIFY_OK(formula);
    // Revisions of the atomic weights, carbon's above all, make this much of a difference.
    constexpr double kOfRevisions = 20e-6;
    QVERIFY2(std::abs(formula->averageMass() - averageDa) < kOfRevisions * averageDa,
             qPrintable(QString::number(formula->averageMass(), 'f', 3)));
}

void TestChemicalFactory::oligonucleotidesAgreeWithPublishedFormulas_data()
{
    QTest::addColumn<QString>("sequence");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("formula");
    const int dna = static_cast<int>(ChainType::Dna);
    const int rna = static_cast<int>(ChainType::Rna);
    // PubChem.
    QTest::newRow("thymidine") << u"T"_s << dna << u"C10H14N2O5"_s;
    QTest::newRow("adenosine") << u"A"_s << rna << u"C10H13N5O4"_s;
    QTest::newRow("inosine") << u"[I]"_s << rna << u"C10H12N4O5"_s;
    QTest::newRow("5'-guanylic acid") << u"pG"_s << rna << u"C10H14N5O8P"_s;
    QTest::newRow("3'-uridylic acid") << u"Up"_s << rna << u"C9H13N2O9P"_s;
    QTest::newRow("guanosine 3',5'-bisphosphate") << u"pGp"_s << rna << u"C10H15N5O11P2"_s;
    QTest::newRow("ApG") << u"ApG"_s << rna << u"C20H25N10O11P"_s;
    // Modomics.
    QTest::newRow("2'-O-methyluridine") << u"[Um]"_s << rna << u"C10H14N2O6"_s;
    // The labels of the medicines give the sodium salts; here are the free acids.
    QTest::newRow("fomivirsen") << u"G*C*G*T*T*T*G*C*T*C*T*T*C*T*T*C*T*T*G*C*G"_s << dna
                                << u"C204H263N63O114P20S20"_s;
    QTest::newRow("nusinersen")
        << u"[Te]*[5mCe]*[Ae]*[5mCe]*[Te]*[Te]*[Te]*[5mCe]*[Ae]*[Te]*[Ae]*[Ae]*[Te]*[Ge]*[5mCe]*[Te]*[Ge]*[Ge]"_s
        << rna << u"C234H340N61O128P17S17"_s;
    QTest::newRow("inotersen")
        << u"[Te]*[5mCe]*[Te]*[Te]*[Ge]*G*T*T*A*[5mC]*A*T*G*A*A*[Ae]*[Te]*[5mCe]*[5mCe]*[5mCe]"_s << dna
        << u"C230H318N69O121P19S19"_s;
}

void TestChemicalFactory::oligonucleotidesAgreeWithPublishedFormulas()
{
    QFETCH(QString, sequence);
    QFETCH(int, type);
    QFETCH(QString, formula);
    const Result<ChemicalFormula> read = factory().formula(sequence, static_cast<ChainType>(type));
    ORV_VERIFY_OK(read);
    QCOMPARE(read->toString(), parsed(formula).toString());
}

void TestChemicalFactory::sequencesWithoutFormulaAreRefusedWithTheirPlace_data()
{
    QTest::addColumn<QString>("sequence");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("place");
    const int protein = static_cast<int>(ChainType::Protein);
    const int rna = static_cast<int>(ChainType::Rna);
    QTest::newRow("empty") << QString() << protein << u"empty"_s;
    QTest::newRow("lower case") << u"PEp"_s << protein << u"character 3"_s;
    for (const char *letter : {"B", "J", "O", "X", "Z", "*", "-"}) {
        QTest::newRow(letter) << u"PE"_s + QString::fromLatin1(letter) + u"K"_s << protein
                              << u"character 3"_s;
    }
    QTest::newRow("not ASCII") << u"PÉP"_s << protein << u"character 2"_s;
    QTest::newRow("endless protein") << QString(100001, u'A') << protein << u"character 100001"_s;
    QTest::newRow("endless RNA") << QString(100001, u'A') << rna << u"character 100001"_s;
    QTest::newRow("beyond any length") << QString(900000, u'A') << rna << u"too long"_s;
    QTest::newRow("no base") << u"GAX"_s << rna << u"character 3"_s;
    QTest::newRow("lower case base") << u"GAu"_s << rna << u"character 3"_s;
    QTest::newRow("open bracket") << u"GA[Um"_s << rna << u"character 3"_s;
    QTest::newRow("empty bracket") << u"GA[]"_s << rna << u"character 3"_s;
    QTest::newRow("unknown sugar") << u"GA[Uz]"_s << rna << u"\"Uz\""_s;
    QTest::newRow("phosphate alone") << u"p"_s << rna << u"no nucleotide"_s;
    QTest::newRow("linker at the end") << u"GA*"_s << rna << u"character 3"_s;
    QTest::newRow("linker in front") << u"*GA"_s << rna << u"character 1"_s;
}

void TestChemicalFactory::sequencesWithoutFormulaAreRefusedWithTheirPlace()
{
    QFETCH(QString, sequence);
    QFETCH(int, type);
    QFETCH(QString, place);
    const Result<ChemicalFormula> read = factory().formula(sequence, static_cast<ChainType>(type));
    QVERIFY(read.hasError());
    QCOMPARE(read.error().code(), ErrorCode::InvalidContent);
    QVERIFY2(read.error().details().constFirst().contains(place),
             qPrintable(read.error().details().constFirst()));
}

void TestChemicalFactory::ownBuildingBlocksAreUsed()
{
    const Result<ChemicalFactory> own =
        factory().withBuildingBlocks({{u"Y"_s, u"pseudouracil"_s, u"Base"_s, u"C4H3N2O2"_s, {}},
                                      {u"x"_s, u"amide"_s, u"Linker"_s, u"CNO"_s, {}}});
    ORV_VERIFY_OK(own);
    QCOMPARE(own->formula(u"Y"_s, ChainType::Rna)->toString(),
             factory().formula(u"U"_s, ChainType::Rna)->toString());
    QCOMPARE(
        (*own->formula(u"UxU"_s, ChainType::Rna) - *factory().formula(u"UU"_s, ChainType::Rna)).toString(),
        (parsed(u"CNO"_s) - parsed(u"HO2P"_s)).toString());
    QVERIFY(factory().formula(u"Y"_s, ChainType::Rna).hasError());
}

void TestChemicalFactory::ownBuildingBlocksReplaceDefaultOnes()
{
    const qsizetype count = factory().buildingBlocks().size();
    const Result<ChemicalFactory> own =
        factory().withBuildingBlocks({{u"A"_s, u"heavy adenine"_s, u"base"_s, u"C5H4_15N5"_s, {}}});
    ORV_VERIFY_OK(own);
    QCOMPARE(own->buildingBlocks().size(), count);
    QCOMPARE(own->formula(u"A"_s, ChainType::Rna)->toString(), u"C10H13O4_15N5"_s);
}

void TestChemicalFactory::badBuildingBlocksAreRefused_data()
{
    QTest::addColumn<QString>("symbol");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("formula");
    QTest::newRow("no symbol") << QString() << u"Base"_s << u"C5H4N5"_s;
    QTest::newRow("unknown type") << u"A"_s << u"Nucleobase"_s << u"C5H4N5"_s;
    QTest::newRow("no formula of elements") << u"A"_s << u"Base"_s << u"Ade"_s;
}

void TestChemicalFactory::badBuildingBlocksAreRefused()
{
    QFETCH(QString, symbol);
    QFETCH(QString, type);
    QFETCH(QString, formula);
    const Result<ChemicalFactory> own = factory().withBuildingBlocks({{symbol, {}, type, formula, {}}});
    QVERIFY(own.hasError());
    QCOMPARE(own.error().code(), ErrorCode::InvalidContent);
    QVERIFY(own.error().details().join(u' ').contains(u'"' + symbol + u'"'));
}

void TestChemicalFactory::typesOfBuildingBlocksAreNamed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("type");
    QTest::newRow("base") << u"Base"_s << static_cast<int>(BuildingBlockType::Base);
    QTest::newRow("any case") << u" suGAR "_s << static_cast<int>(BuildingBlockType::Sugar);
    QTest::newRow("linker") << u"Linker"_s << static_cast<int>(BuildingBlockType::Linker);
    QTest::newRow("5' end") << u"FivePrimeEnd"_s << static_cast<int>(BuildingBlockType::FivePrimeEnd);
    QTest::newRow("3' end") << u"ThreePrimeEnd"_s << static_cast<int>(BuildingBlockType::ThreePrimeEnd);
    QTest::newRow("none") << QString() << -1;
    QTest::newRow("other") << u"Phosphate"_s << -1;
}

void TestChemicalFactory::typesOfBuildingBlocksAreNamed()
{
    QFETCH(QString, text);
    QFETCH(int, type);
    const std::optional<BuildingBlockType> read = ChemicalFactory::buildingBlockType(text);
    QCOMPARE(read ? static_cast<int>(*read) : -1, type);
    if (read)
        QCOMPARE(ChemicalFactory::buildingBlockType(ChemicalFactory::buildingBlockTypeToString(*read)), read);
}

void TestChemicalFactory::oldFormulasLoseWhatTheBondsCost_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("free");
    QTest::addColumn<QString>("bound");
    QTest::newRow("base") << static_cast<int>(BuildingBlockType::Base) << u"C5H5N5"_s << u"C5H4N5"_s;
    QTest::newRow("sugar") << static_cast<int>(BuildingBlockType::Sugar) << u"C5H10O5"_s << u"C5H7O4"_s;
    QTest::newRow("linker") << static_cast<int>(BuildingBlockType::Linker) << u"H3PO4"_s << u"HO2P"_s;
    QTest::newRow("end") << static_cast<int>(BuildingBlockType::FivePrimeEnd) << u"H2O"_s << u"H"_s;
    QTest::newRow("nothing") << static_cast<int>(BuildingBlockType::Base) << QString() << u"H-1"_s;
}

void TestChemicalFactory::oldFormulasLoseWhatTheBondsCost()
{
    QFETCH(int, type);
    QFETCH(QString, free);
    const Result<QString> bound =
        ChemicalFactory::convertOldOligoBuildingBlockFormula(free, static_cast<BuildingBlockType>(type));
    ORV_VERIFY_OK(bound);
    QTEST(*bound, "bound");
}

void TestChemicalFactory::anOldFormulaThatCannotBeReadIsRefused()
{
    const Result<QString> bound =
        ChemicalFactory::convertOldOligoBuildingBlockFormula(u"adenine"_s, BuildingBlockType::Base);
    QVERIFY(bound.hasError());
    QCOMPARE(bound.error().code(), ErrorCode::InvalidContent);
}

void TestChemicalFactory::convertedFreeCompoundsAreTheDefaultBlocks_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("symbol");
    QTest::addColumn<QString>("free");
    // Formulas of the free compounds: PubChem.
    QTest::newRow("cytosine") << u"Base"_s << u"C"_s << u"C4H5N3O"_s;
    QTest::newRow("guanine") << u"Base"_s << u"G"_s << u"C5H5N5O"_s;
    QTest::newRow("thymine") << u"Base"_s << u"T"_s << u"C5H6N2O2"_s;
    QTest::newRow("uracil") << u"Base"_s << u"U"_s << u"C4H4N2O2"_s;
    QTest::newRow("hypoxanthine") << u"Base"_s << u"I"_s << u"C5H4N4O"_s;
    QTest::newRow("5-methylcytosine") << u"Base"_s << u"5mC"_s << u"C5H7N3O"_s;
    QTest::newRow("2-deoxyribose") << u"Sugar"_s << u"d"_s << u"C5H10O4"_s;
    QTest::newRow("ribose") << u"Sugar"_s << u"r"_s << u"C5H10O5"_s;
    QTest::newRow("2-O-methylribose") << u"Sugar"_s << u"m"_s << u"C6H12O5"_s;
    QTest::newRow("2-fluoro-2-deoxyribose") << u"Sugar"_s << u"f"_s << u"C5H9FO4"_s;
    QTest::newRow("phosphoric acid") << u"Linker"_s << u"p"_s << u"H3PO4"_s;
    QTest::newRow("phosphorothioic acid") << u"Linker"_s << u"*"_s << u"H3PO3S"_s;
    QTest::newRow("phosphoric acid, 5' end") << u"FivePrimeEnd"_s << u"p"_s << u"H3PO4"_s;
    QTest::newRow("water, 3' end") << u"ThreePrimeEnd"_s << u"OH"_s << u"H2O"_s;
}

void TestChemicalFactory::convertedFreeCompoundsAreTheDefaultBlocks()
{
    QFETCH(QString, type);
    QFETCH(QString, symbol);
    QFETCH(QString, free);
    const Result<QString> bound =
        ChemicalFactory::convertOldOligoBuildingBlockFormula(free, *ChemicalFactory::buildingBlockType(type));
    ORV_VERIFY_OK(bound);
    const QList<BuildingBlock> blocks = factory().buildingBlocks();
    const auto block = std::find_if(blocks.begin(), blocks.end(), [&](const BuildingBlock &candidate) {
        return candidate.type == type && candidate.symbol == symbol;
    });
    QVERIFY(block != blocks.end());
    QCOMPARE(*bound, parsed(block->formula).toString());
}

ORV_REGISTER_TEST(TestChemicalFactory)
#include "TestChemicalFactory.moc"
