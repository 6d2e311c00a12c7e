#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"
#include "TableCells.h"

#include <orv/chemistry/ProteinGenerator.h>
#include <orv/propertyeditor/PropertiesGetter.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/resources/ResourceReference.h>

using namespace orv;
using namespace Qt::StringLiterals;
using TableCells::cell;
using TableCells::entry;

namespace {

using Documents::tab;

PropertiesGetter getterFor(const QJsonArray &tabs)
{
    return PropertiesGetter(PropertyEditorContent(Documents::document(tabs)));
}

/// A document of one tab with a row of cells.
PropertiesGetter getterFor(const QString &name, const QJsonArray &cells)
{
    QStringList columns;
    for (qsizetype i = 0; i < cells.size(); ++i)
        columns.append(QString::number(i));
    return getterFor({tab(name, columns, cells)});
}

PropertiesGetter getterForCells(const QJsonArray &cells)
{
    return getterFor(u"Tab"_s, cells);
}

QList<BaseItemType> typesOf(const QList<PropertiesGetter::CellData> &cells)
{
    QList<BaseItemType> types;
    for (const PropertiesGetter::CellData &data : cells)
        types.append(data.type);
    return types;
}

QJsonObject samplesTable(const QStringList &names)
{
    QJsonArray samples;
    for (const QString &name : names)
        samples.append(QJsonObject{{u"SampleName"_s, name}});
    return {{u"Samples"_s, samples}};
}

QJsonObject samplesCell(const QStringList &names)
{
    return cell(u"Samples"_s, {entry(u"SamplesTable"_s, samplesTable(names))});
}

PropertiesGetter::CellData samplesData(const QStringList &names)
{
    return getterForCells({samplesCell(names)}).samples().constFirst();
}

QList<SamplesInput::Entry> entries(const QStringList &names)
{
    QList<SamplesInput::Entry> samples;
    for (const QString &name : names)
        samples.emplaceBack().name = name;
    return samples;
}

QStringList namesOf(const QList<SamplesInput::Entry> &samples)
{
    QStringList names;
    for (const SamplesInput::Entry &sample : samples)
        names.append(sample.name);
    return names;
}

Chain chain(int number, const QString &name, const QString &sequence)
{
    Chain result;
    result.number = number;
    result.name = name;
    result.sequence = sequence;
    return result;
}

ProteinComplex protein(const QString &name, const QList<int> &chainNumbers)
{
    ProteinComplex result;
    result.name = name;
    result.chainNumbers = chainNumbers;
    return result;
}

QJsonObject proteinTable(const QList<ProteinComplex> &proteins)
{
    ProteinGenerator::InputOptions options;
    options.chains = {chain(1, u"HC"_s, u"EVQLVESGGGLVQPGG"_s), chain(2, u"LC"_s, u"DIQMTQSPSSLSASVG"_s)};
    options.proteins = proteins;
    return PropertyEditorJsonUtils::rowNodeToObject(options.toRowNode());
}

QJsonObject intactProteinsCell(const QList<ProteinComplex> &proteins)
{
    return cell(u"IntactProteins"_s, {entry(u"IntactProteins"_s, proteinTable(proteins))});
}

QJsonObject proteinsCell(const QList<QJsonArray> &rows)
{
    return cell(
        u"Proteins"_s,
        {entry(u"Proteins"_s, TableCells::node({u"ProteinAccessionName"_s, u"ProteinSequence"_s}, rows))});
}

QJsonObject databaseCell(const QJsonArray &paths)
{
    QJsonArray rows;
    for (const auto path : paths)
        rows.append(QJsonObject{{u"id"_s, rows.size() + 1}, {u"fasta"_s, path}, {u"species"_s, QString()}});
    return cell(u"Database"_s, {entry(u"SequenceDatabases"_s, QJsonObject{{u"sequences"_s, rows}})});
}

} // namespace

class TestPropertiesGetter : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void settingsComeInTheSystemsUnits();
    void settingsThatTheTypeMayNotHoldAreLeftOut();
    void theFirstOfTwoEntriesOfOneSettingCounts();
    void oldNamesAreUnderstood();
    void documentsComeByTheirType();
    void everyRowOfAColumnIsADocument();
    void onlyTenTypesAreDocuments_data();
    void onlyTenTypesAreDocuments();
    void requiredCellsOfTheSameRowAreMergedIn();
    void requiredCellsOfAllTabsCount();
    void peptideStepsTakeIsotopesAndDisulfides();
    void aMissingRequiredCellIsAWarningPerRow();
    void theFirstRowTellsWhatAColumnIs();
    void typesOfCellsIgnoreCase();
    void aColumnThatBeginsWithoutTypeIsUnknown();
    void brokenCellsAreLoggedAndPassedOver();
    void globalsAreDatabasesAndThenProteins();
    void everySamplesTableIsOneEntry();
    void fastaBeginsWithAnEmptyLine();
    void intactProteinsComeBeforeOthers();
    void peptideStepsGetTheChainsOfIntactProteins();
    void peptideStepsGetOtherProteinsWhole();
    void oneProteinForCombinationsRemovesTheText();
    void proteinsThatCannotBeMadeAreAWarning();
    void noProteinsGiveNoText();
    void referencesAreThoseOfTheFirstDatabaseTable();
    void aBrokenDatabaseTableHasNoReferences();
    void namesMatchWildcards_data();
    void namesMatchWildcards();
    void severalPatternsGiveEachNameOnce();
    void patternsOfASamplesItem();
    void patternsKeepCustomColumns();
    void entriesThatMatchNothingAreFilteredOut();
    void aSamplesTableThatCannotBeReadHasNoNames();
};

void TestPropertiesGetter::settingsComeInTheSystemsUnits()
{
    const auto getter = getterForCells({cell(u"Intact"_s, {entry(u"BpiPeakTolMax"_s, u"0.5"_s)})});
    QTest::ignoreMessage(QtWarningMsg, "Can't find cell 'Masses' required by cell 'Intact'");
    QTest::ignoreMessage(QtWarningMsg, "Can't find cell 'IntactOptions' required by cell 'Intact'");
    const auto documents = getter.documents();
    QCOMPARE(documents.size(), 1);
    const QMap<PropertyId, QVariant> expected{{PropertyId::BpiPeakTolMax, 0.005}};
    QCOMPARE(documents.constFirst().properties, expected);
}

void TestPropertiesGetter::settingsThatTheTypeMayNotHoldAreLeftOut()
{
    const auto getter = getterForCells(
        {cell(u"Trenq"_s, {entry(u"Samples"_s, u"a*"_s), entry(u"SamplesTable"_s, samplesTable({u"x"_s})),
                           entry(u"NoSuchSetting"_s, 1)})});
    const QMap<PropertyId, QVariant> expected{{PropertyId::Samples, u"a*"_s}};
    QCOMPARE(getter.documents().constFirst().properties, expected);
}

void TestPropertiesGetter::theFirstOfTwoEntriesOfOneSettingCounts()
{
    const auto getter = getterForCells(
        {cell(u"Trenq"_s, {entry(u"Samples"_s, u"first"_s), entry(u"Samples"_s, u"second"_s)})});
    QCOMPARE(getter.documents().constFirst().properties.value(PropertyId::Samples), QVariant(u"first"_s));
}

void TestPropertiesGetter::oldNamesAreUnderstood()
{
    const auto getter = getterForCells({cell(u"Samples"_s, {entry(u"Samples"_s, samplesTable({u"old"_s}))})});
    QCOMPARE(PropertiesGetter::samplesMatchingRegExp(getter.samples().constFirst(), u"*"_s),
             QStringList{u"old"_s});
}

void TestPropertiesGetter::documentsComeByTheirType()
{
    QJsonArray cells;
    for (const QString &type : {u"TrenqPreview"_s, u"Trenq"_s, u"MultiDocReport"_s, u"Ostrale"_s, u"Oligo"_s,
                                u"Preview"_s, u"Karvon"_s, u"Dravik"_s})
        cells.append(cell(type, {}));
    const QList<BaseItemType> expected{BaseItemType::Dravik,  BaseItemType::Karvon,
                                       BaseItemType::Preview, BaseItemType::Oligo,
                                       BaseItemType::Ostrale, BaseItemType::MultiDocReport,
                                       BaseItemType::Trenq,   BaseItemType::TrenqPreview};
    QCOMPARE(typesOf(getterForCells(cells).documents()), expected);
}

void TestPropertiesGetter::everyRowOfAColumnIsADocument()
{
    const auto named = [](const QString &name) { return cell(u"Karvon"_s, {entry(u"Samples"_s, name)}); };
    const auto getter =
        getterFor({tab(u"T"_s, {u"A"_s, u"B"_s},
                       {named(u"a0"_s), named(u"b0"_s), named(u"a1"_s), named(u"b1"_s), named(u"a2"_s)})});
    QStringList found;
    for (const PropertiesGetter::CellData &data : getter.documents())
        found.append(u"%1 %2"_s.arg(data.properties.value(PropertyId::Samples).toString()).arg(data.index));
    QCOMPARE(found, (QStringList{u"a0 0"_s, u"a1 1"_s, u"a2 2"_s, u"b0 0"_s, u"b1 1"_s}));
}

void TestPropertiesGetter::onlyTenTypesAreDocuments_data()
{
    QTest::addColumn<QString>("type");
    for (const char *type : {"CaldrinDIA", "Samples", "Database", "Masses", "Proteins", "OligoOptions"})
        QTest::newRow(type) << QString::fromLatin1(type);
}

void TestPropertiesGetter::onlyTenTypesAreDocuments()
{
    QFETCH(QString, type);
    QVERIFY(getterForCells({cell(type, {})}).documents().isEmpty());
}

void TestPropertiesGetter::requiredCellsOfTheSameRowAreMergedIn()
{
    const auto masses = [](int unit) {
        return cell(u"Masses"_s, {entry(u"MassTable"_s, TableCells::node({u"Row %1"_s.arg(unit)}))});
    };
    const auto options = cell(u"IntactOptions"_s, {entry(u"IntactOptions"_s, TableCells::node({u"O"_s}))});
    const auto intact = cell(u"Intact"_s, {entry(u"Samples"_s, u"*"_s)});
    const auto getter = getterFor(
        {tab(u"T"_s, {u"I"_s, u"M"_s, u"O"_s}, {intact, masses(0), options, intact, masses(1), options})});
    const auto documents = getter.documents();
    QCOMPARE(documents.size(), 2);
    QCOMPARE(getter.warnings(), QStringList());
    for (int row = 0; row < 2; ++row) {
        const auto &properties = documents.at(row).properties;
        QCOMPARE(properties.keys(),
                 (QList<PropertyId>{PropertyId::IntactOptions, PropertyId::MassTable, PropertyId::Samples}));
        QVERIFY(properties.value(PropertyId::MassTable).toString().contains(u"Row %1"_s.arg(row)));
    }
}

void TestPropertiesGetter::requiredCellsOfAllTabsCount()
{
    const auto getter =
        getterFor({tab(u"A"_s, {u"M"_s, u"O"_s}, {cell(u"Masses"_s, {}), cell(u"IntactOptions"_s, {})}),
                   tab(u"B"_s, {u"I"_s}, {cell(u"Intact"_s, {})})});
    QCOMPARE(getter.documents().size(), 1);
    QVERIFY(getter.warnings().isEmpty());
}

void TestPropertiesGetter::peptideStepsTakeIsotopesAndDisulfides()
{
    const auto getter = getterForCells({cell(u"Senthia"_s, {}),
                                        cell(u"Isotope"_s, {entry(u"Isotope"_s, TableCells::node({}))}),
                                        cell(u"Disulfide"_s, {entry(u"Disulfide"_s, TableCells::node({}))})});
    QCOMPARE(getter.documents().constFirst().properties.keys(),
             (QList<PropertyId>{PropertyId::Disulfide, PropertyId::Isotope}));
}

void TestPropertiesGetter::aMissingRequiredCellIsAWarningPerRow()
{
    const auto getter = getterFor({tab(u"T"_s, {u"I"_s, u"O"_s},
                                       {cell(u"Intact"_s, {}), cell(u"IntactOptions"_s, {}),
                                        cell(u"Intact"_s, {}), cell(u"IntactOptions"_s, {})})});
    LogCapture log;
    QCOMPARE(getter.documents().size(), 2);
    const QStringList expected(2, u"Can't find cell 'Masses' required by cell 'Intact'"_s);
    QCOMPARE(getter.warnings(), expected);
    QCOMPARE(log.warnings(), expected);
    QCOMPARE(log.lines().constFirst().category, u"orv.property_editor"_s);
}

void TestPropertiesGetter::theFirstRowTellsWhatAColumnIs()
{
    const auto getter = getterFor({tab(
        u"T"_s, {u"A"_s}, {cell(u"Karvon"_s, {}), cell(u"Trenq"_s, {entry(u"Samples"_s, u"second"_s)})})});
    const auto documents = getter.documents();
    QCOMPARE(typesOf(documents), (QList<BaseItemType>{BaseItemType::Karvon, BaseItemType::Karvon}));
    QCOMPARE(documents.constLast().properties.value(PropertyId::Samples), QVariant(u"second"_s));
}

void TestPropertiesGetter::typesOfCellsIgnoreCase()
{
    QCOMPARE(getterForCells({cell(u"kArvon"_s, {})}).documents().size(), 1);
}

void TestPropertiesGetter::aColumnThatBeginsWithoutTypeIsUnknown()
{
    // The row below has a type, which doesn't count.
    const auto getter =
        getterFor({tab(u"T"_s, {u"A"_s}, {QJsonObject{{u"name"_s, u"x"_s}}, cell(u"Karvon"_s, {})})});
    QVERIFY(getter.documents().isEmpty());
    QVERIFY(getter.warnings().isEmpty());
}

void TestPropertiesGetter::brokenCellsAreLoggedAndPassedOver()
{
    const QByteArray good = R"({"type": "Karvon"})";
    const PropertyEditorContent::Tabs tabs{
        {u"T"_s, {{u"A"_s, u"B"_s}, VariantItems{QByteArray("{oops"), good, good, QByteArray("[1]"), good}}}};
    const PropertiesGetter getter{PropertyEditorContent(tabs)};
    LogCapture log;
    // The first column is left alone; of the second only the first row can be read.
    QCOMPARE(getter.documents().size(), 1);
    QVERIFY(log.warnings().contains(u"Cannot parse json content"_s));
}

void TestPropertiesGetter::globalsAreDatabasesAndThenProteins()
{
    const auto getter =
        getterFor({tab(u"T"_s, {u"P"_s, u"D"_s},
                       {proteinsCell({{u"a"_s, u"PEPTIDE"_s}}), databaseCell({u"/lab/a.fasta"_s}),
                        proteinsCell({{u"b"_s, u"PEPTIDE"_s}}), databaseCell({u"/lab/b.fasta"_s})})});
    const auto globals = getter.globals();
    QCOMPARE(typesOf(globals), (QList<BaseItemType>{BaseItemType::Database, BaseItemType::Proteins}));
    for (const PropertiesGetter::CellData &data : globals)
        QCOMPARE(data.index, 0);
    QVERIFY(globals.at(0).properties.value(PropertyId::SequenceDatabases).toString().contains(u"a.fasta"_s));
    QVERIFY(globals.at(1).properties.contains(PropertyId::Proteins));
}

void TestPropertiesGetter::everySamplesTableIsOneEntry()
{
    const auto samples = getterForCells({samplesCell({u"a"_s}), samplesCell({u"b"_s, u"c"_s})}).samples();
    QCOMPARE(samples.size(), 2);
    QCOMPARE(PropertiesGetter::samplesMatchingRegExp(samples.at(1), u"*"_s), (QStringList{u"b"_s, u"c"_s}));
}

void TestPropertiesGetter::fastaBeginsWithAnEmptyLine()
{
    const auto getter = getterForCells(
        {proteinsCell({{u"Trypsin β"_s, u"IVGGYTCGANTVPYQVSLNSGYHF"_s}, {u"Tiny"_s, u"MK"_s}})});
    QCOMPARE(getter.fastaContent(), QByteArray("\n>Trypsin β\nIVGGYTCGANTVPYQVSLNSGYHF\n\n>Tiny\nMK\n"));
}

void TestPropertiesGetter::intactProteinsComeBeforeOthers()
{
    const auto getter = getterForCells(
        {proteinsCell({{u"Other"_s, u"PEPTIDE"_s}}), intactProteinsCell({protein(u"Fab"_s, {1, 2})})});
    QCOMPARE(getter.fastaContent(), QByteArray("\n>Fab\nEVQLVESGGGLVQPGGDIQMTQSPSSLSASVG\n"));
}

void TestPropertiesGetter::peptideStepsGetTheChainsOfIntactProteins()
{
    const auto getter =
        getterForCells({cell(u"Senthia"_s, {}), intactProteinsCell({protein(u"Fab"_s, {1, 2})})});
    QCOMPARE(getter.fastaContent(), QByteArray("\n>HC\nEVQLVESGGGLVQPGG\n\n>LC\nDIQMTQSPSSLSASVG\n"));
}

void TestPropertiesGetter::peptideStepsGetOtherProteinsWhole()
{
    const auto getter = getterForCells({cell(u"Senthia"_s, {}), proteinsCell({{u"Other"_s, u"PEPTIDE"_s}})});
    QCOMPARE(getter.fastaContent(), QByteArray("\n>Other\nPEPTIDE\n"));
}

void TestPropertiesGetter::oneProteinForCombinationsRemovesTheText()
{
    const QJsonObject cell =
        intactProteinsCell({protein(u"Fab"_s, {1, 2}), protein(u"Auto(HC:0-2,LC)"_s, {1, 2})});
    QCOMPARE(getterForCells({cell}).fastaContent(), QByteArray());
}

void TestPropertiesGetter::proteinsThatCannotBeMadeAreAWarning()
{
    // The protein names a chain that isn't there.
    const auto getter = getterForCells({intactProteinsCell({protein(u"Fab"_s, {1, 7})})});
    LogCapture log;
    QCOMPARE(getter.fastaContent(), QByteArray());
    QCOMPARE(getter.warnings().size(), 1);
    QVERIFY(getter.warnings().constFirst().startsWith(u"Creation of ProteinGenerator failed"_s));
    QCOMPARE(log.warnings(), getter.warnings());
}

void TestPropertiesGetter::noProteinsGiveNoText()
{
    QCOMPARE(getterForCells({cell(u"Karvon"_s, {})}).fastaContent(), QByteArray());
    QCOMPARE(getterForCells({proteinsCell({})}).fastaContent(), QByteArray());
}

void TestPropertiesGetter::referencesAreThoseOfTheFirstDatabaseTable()
{
    QVERIFY(getterForCells({cell(u"Karvon"_s, {})}).fastaReferences().isEmpty());
    const auto getter = getterForCells(
        {databaseCell({u"/lab/a.fasta"_s, QString(), u"/lab/b.fasta"_s}), databaseCell({u"/lab/c.fasta"_s})});
    QStringList texts;
    for (const auto &reference : getter.fastaReferences())
        texts.append(reference->text());
    QCOMPARE(texts, (QStringList{u"/lab/a.fasta"_s, u"/lab/b.fasta"_s}));
}

void TestPropertiesGetter::aBrokenDatabaseTableHasNoReferences()
{
    const auto getter = getterForCells(
        {cell(u"Database"_s, {entry(u"SequenceDatabases"_s, QJsonObject{{u"sequences"_s, 1}})})});
    LogCapture log;
    QVERIFY(getter.fastaReferences().isEmpty());
    QCOMPARE(getter.warnings().size(), 1);
    QCOMPARE(log.warnings(), getter.warnings());
}

void TestPropertiesGetter::namesMatchWildcards_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("matching");
    QTest::newRow("all") << u"*"_s << QStringList{u"sample1"_s, u"sample2"_s, u"Sample1"_s, u"sample.x"_s};
    QTest::newRow("brackets are a set") << u"sample[12]"_s << QStringList{u"sample1"_s, u"sample2"_s};
    QTest::newRow("a dot is a dot") << u"sample.*"_s << QStringList{u"sample.x"_s};
    QTest::newRow("one letter") << u"sample?"_s << QStringList{u"sample1"_s, u"sample2"_s};
    QTest::newRow("case counts") << u"Sample*"_s << QStringList{u"Sample1"_s};
    QTest::newRow("the whole name") << u"sample"_s << QStringList();
    QTest::newRow("nothing") << QString() << QStringList();
}

void TestPropertiesGetter::namesMatchWildcards()
{
    QFETCH(QString, pattern);
    QFETCH(QStringList, matching);
    const QStringList names{u"sample1"_s, u"sample2"_s, u"Sample1"_s, u"sample.x"_s};
    QCOMPARE(PropertiesGetter::samplesMatchingRegExp(entries(names), pattern), matching);
    QCOMPARE(PropertiesGetter::samplesMatchingRegExp(entries(names), QStringList{pattern}), matching);
    QCOMPARE(PropertiesGetter::samplesMatchingRegExp(samplesData(names), pattern), matching);
    QCOMPARE(PropertiesGetter::samplesMatchingRegExp(samplesData(names), QStringList{pattern}), matching);
}

void TestPropertiesGetter::severalPatternsGiveEachNameOnce()
{
    const QList<SamplesInput::Entry> samples = entries({u"a1"_s, u"a2"_s, u"b1"_s, u"a1"_s});
    QCOMPARE(PropertiesGetter::samplesMatchingRegExp(samples, QStringList{u"b*"_s, u"*1"_s, u"a*"_s}),
             (QStringList{u"b1"_s, u"a1"_s, u"a2"_s}));
    QCOMPARE(PropertiesGetter::samplesMatchingRegExp(samples, QStringList()), QStringList());
    // One pattern lists a name as often as it stands there.
    QCOMPARE(PropertiesGetter::samplesMatchingRegExp(samples, u"a1"_s), (QStringList{u"a1"_s, u"a1"_s}));
}

void TestPropertiesGetter::patternsOfASamplesItem()
{
    PropertyEditor::SamplesTableItem item;
    ORV_VERIFY_OK(item.assignFromJson(samplesCell({u"a"_s, u"b"_s}), {}));
    QCOMPARE(PropertiesGetter::samplesMatchingRegExp(&item, u"?"_s), (QStringList{u"a"_s, u"b"_s}));
    QCOMPARE(PropertiesGetter::samplesMatchingRegExp(&item, QStringList{u"b"_s}), QStringList{u"b"_s});
    const PropertyEditor::SamplesTableItem *none = nullptr;
    QCOMPARE(PropertiesGetter::samplesMatchingRegExp(none, u"*"_s), QStringList());
}

void TestPropertiesGetter::patternsKeepCustomColumns()
{
    const auto content = SamplesAndTracesContent::fromJson(
        {{u"CustomColumns"_s, QJsonArray{QJsonObject{{u"name"_s, u"Batch"_s}, {u"type"_s, u"text"_s}},
                                         QJsonObject{{u"name"_s, u"Dose"_s}, {u"type"_s, u"text"_s}}}},
         {u"Samples"_s, QJsonArray{QJsonObject{{u"SampleName"_s, u"a"_s}, {u"Batch"_s, u"7"_s}},
                                   QJsonObject{{u"SampleName"_s, u"b"_s}, {u"Batch"_s, u"8"_s}},
                                   QJsonObject{{u"SampleName"_s, u"c"_s}, {u"Batch"_s, u"9"_s}}}}});
    ORV_VERIFY_OK(content);
    const auto kept =
        PropertiesGetter::samplesMatchingRegExp(content->samples, QStringList{u"c"_s, u"[ab]"_s, u"c"_s});
    QCOMPARE(kept.names(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    QVERIFY(kept == content->samples);
    const auto one = PropertiesGetter::samplesMatchingRegExp(content->samples, QStringList{u"b"_s});
    QCOMPARE(one.names(), QStringList{u"b"_s});
    QVERIFY(one.columns == content->samples.columns);
    QVERIFY(one.samples.constFirst() == content->samples.samples.at(1));
}

void TestPropertiesGetter::entriesThatMatchNothingAreFilteredOut()
{
    QList<SamplesInput::Entry> samples = entries({u"a1"_s, u"b1"_s, u"a2"_s, u"c"_s});
    PropertiesGetter::filterOutNotMatchingSamples({u"c"_s, u"a?"_s}, &samples);
    QCOMPARE(namesOf(samples), (QStringList{u"a1"_s, u"a2"_s, u"c"_s}));
    PropertiesGetter::filterOutNotMatchingSamples({}, &samples);
    QVERIFY(samples.isEmpty());
}

void TestPropertiesGetter::aSamplesTableThatCannotBeReadHasNoNames()
{
    const auto getter =
        getterForCells({cell(u"Samples"_s, {entry(u"SamplesTable"_s, QJsonObject{{u"Samples"_s, 5}})})});
    LogCapture log;
    QVERIFY(PropertiesGetter::samplesMatchingRegExp(getter.samples().constFirst(), u"*"_s).isEmpty());
    QCOMPARE(log.warnings().size(), 1);
}

ORV_REGISTER_TEST(TestPropertiesGetter)
#include "TestPropertiesGetter.moc"
