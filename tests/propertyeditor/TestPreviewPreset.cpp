#include "OrvTest.h"
#include "TestData.h"

#include <orv/propertyeditor/engine/PreviewPreset.h>

#include <QDateTime>

using namespace orv;
using namespace Qt::StringLiterals;

using PresetContent = PreviewPreset::Content;
using MirelProperties = PreviewPreset::MirelProperties;

namespace {

MirelProperties someProperties()
{
    return {.cysMod = u"Carbamidomethyl / 57.021464"_s,
            .lysMod = u"Acetyl / 42.010565"_s,
            .argMod = u"a=b"_s,
            .nTermMod = u"Formyl / 27.994915"_s,
            .cTermMod = u"Amidated / -0.984016"_s,
            .digestLetters = u"RK"_s,
            .digestSide = 1,
            .fragType = 2,
            .digestType = 3,
            .phosphoSearch = true,
            .wildcard = true,
            .allCharges = true};
}

PresetContent someContent()
{
    return PresetContent::fromMirelProperties(u"/s/a.raw"_s, u"/d/b.fasta"_s, u"/o"_s, someProperties());
}

} // namespace

class TestPreviewPreset : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void defaultsOfTheFormsDiffer();
    void theFileHasTwentyLines();
    void anEmptyContentIsWrittenWhole();
    void theHeadNamesFormatAndTime();
    void aLineBreakEndsItsLine();
    void aFileIsReadBack();
    void theOrderOfLinesDoesNotMatter();
    void linesAreRead_data();
    void linesAreRead();
    void theLaterOfTwoLinesCounts();
    void linesOfOtherKeysArePassedOver();
    void aHeadAloneGivesDefaults();
    void anyHeadIsRead();
    void windowsLineEndsAreRead();
    void aLongLineWithoutSignIsPassedOverAtOnce();
    void aTextWithoutAKnownLineIsNone_data();
    void aTextWithoutAKnownLineIsNone();
    void aFileThatCannotBeReadFails_data();
    void aFileThatCannotBeReadFails();
    void propertiesPassThroughTheirMap();
    void anEmptyMapHasNoDefaults();
    void theMapHasTheTypesOfTheFields();
    void theMapIsReadByNumberAndType();
    void ofSeveralValuesTheFoundOneCounts();
    void theFormsExchangeFieldsByName();
    void aWorkflowIsWrittenWithAHead();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_dir.filePath(name); }
    const QTemporaryDir m_dir;
};

void TestPreviewPreset::defaultsOfTheFormsDiffer()
{
    const PresetContent content;
    QCOMPARE(content.fragType, -1);
    QCOMPARE(content.digestSide, -1);
    QCOMPARE(content.digestType, -1);
    QVERIFY(!content.wildcard && !content.phosphoSearch && !content.allCharges);
    const MirelProperties properties;
    QCOMPARE(properties.fragType, 0);
    QCOMPARE(properties.digestSide, 0);
    QCOMPARE(properties.digestType, 2);
    QVERIFY(!properties.wildcard && !properties.phosphoSearch && !properties.allCharges);
}

void TestPreviewPreset::theFileHasTwentyLines()
{
    QCOMPARE(someContent().convertToFileContent(PresetContent::WithoutHeader),
             u"SpectraFiles=/s/a.raw\nDatabaseFiles=/d/b.fasta\nOutputFolder=/o\nArgMod=a=b\n"
             "CysMod=Carbamidomethyl / 57.021464\nLysMod=Acetyl / 42.010565\nNTermMod=Formyl / 27.994915\n"
             "CTermMod=Amidated / -0.984016\nDigestLetters=RK\nWildcard=1\nphospho_search=1\nAllCharges=1\n"
             "FragType=2\ndigest_side=1\nDigestType=3\nFirstK=\nDebugMode=0\nDebugText=\n"
             "ProteomeDiscovererSuggestedKarvonWorkflow=\nProteomeDiscovererVersion=\n"_s);
}

void TestPreviewPreset::anEmptyContentIsWrittenWhole()
{
    QCOMPARE(
        PresetContent().convertToFileContent(PresetContent::ConvertMode(7)),
        u"SpectraFiles=\nDatabaseFiles=\nOutputFolder=\nArgMod=\nCysMod=\nLysMod=\nNTermMod=\nCTermMod=\n"
        "DigestLetters=\nWildcard=0\nphospho_search=0\nAllCharges=0\nFragType=-1\ndigest_side=-1\n"
        "DigestType=-1\nFirstK=\nDebugMode=0\nDebugText=\nProteomeDiscovererSuggestedKarvonWorkflow=\n"
        "ProteomeDiscovererVersion=\n"_s);
}

void TestPreviewPreset::theHeadNamesFormatAndTime()
{
    const QString text = PresetContent().convertToFileContent(PresetContent::WithHeader);
    const QStringList lines = text.split(u'\n');
    QCOMPARE(lines.at(0), u"#ORV-Preview parameters v1.15"_s);
    QVERIFY(lines.at(1).startsWith(u'#'));
    QVERIFY(QDateTime::fromString(lines.at(1).sliced(1), Qt::ISODate).isValid());
    QCOMPARE(lines.sliced(2).join(u'\n'), PresetContent().convertToFileContent(PresetContent::WithoutHeader));
}

void TestPreviewPreset::aLineBreakEndsItsLine()
{
    PresetContent content;
    content.argMod = u"a\nb"_s;
    const QString text = content.convertToFileContent(PresetContent::WithoutHeader);
    QVERIFY(text.contains(u"\nArgMod=a\nb\nCysMod="_s));
    QCOMPARE(PresetContent::fromFileContent(text.toUtf8()).argMod, u"a"_s);
}

void TestPreviewPreset::aFileIsReadBack()
{
    QFile file(at(u"a.prv"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(someContent().convertToFileContent(PresetContent::WithHeader).toUtf8());
    file.close();
    const Result<PresetContent> content = PresetContent::fromPreviewPresetFile(at(u"a.prv"_s));
    ORV_VERIFY_OK(content);
    QVERIFY(*content == someContent());
    QCOMPARE(content.warnings(), QStringList());
}

void TestPreviewPreset::theOrderOfLinesDoesNotMatter()
{
    QStringList lines = someContent().convertToFileContent(PresetContent::WithHeader).split(u'\n');
    std::ranges::reverse(lines);
    QVERIFY(PresetContent::fromFileContent(lines.join(u'\n').toUtf8()) == someContent());
}

void TestPreviewPreset::linesAreRead_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("written"); ///< a line of the file that is then written
    QTest::newRow("text") << "ArgMod= a "_ba
                          << "ArgMod= a "_ba;
    QTest::newRow("value with a sign") << "ArgMod=a=b"_ba
                                       << "ArgMod=a=b"_ba;
    QTest::newRow("value of signs") << "ArgMod==="_ba
                                    << "ArgMod==="_ba;
    QTest::newRow("signs in front") << "==ArgMod=a"_ba
                                    << "ArgMod=a"_ba;
    QTest::newRow("no value") << "FragType="_ba
                              << "FragType=-1"_ba;
    QTest::newRow("no sign") << "FragType"_ba
                             << "FragType=-1"_ba;
    QTest::newRow("no number") << "FragType=two"_ba
                               << "FragType=0"_ba;
    QTest::newRow("number") << "FragType=7"_ba
                            << "FragType=7"_ba;
    QTest::newRow("number beyond") << "FragType=99999999999"_ba
                                   << "FragType=0"_ba;
    QTest::newRow("switch by another number") << "Wildcard=2"_ba
                                              << "Wildcard=1"_ba;
    QTest::newRow("switch by a negative number") << "Wildcard=-1"_ba
                                                 << "Wildcard=1"_ba;
    QTest::newRow("switch by a word") << "Wildcard=true"_ba
                                      << "Wildcard=0"_ba;
    QTest::newRow("remark") << "#Wildcard=1"_ba
                            << "Wildcard=0"_ba;
    QTest::newRow("blank before the remark") << " #ArgMod=1"_ba
                                             << "ArgMod="_ba;
    QTest::newRow("key with a blank") << "ArgMod =1"_ba
                                      << "ArgMod="_ba;
    QTest::newRow("key in another case") << "argmod=1"_ba
                                         << "ArgMod="_ba;
    QTest::newRow("not ASCII") << "ArgMod=\xC2\xB5"_ba
                               << "ArgMod=\xC2\xB5"_ba;
    QTest::newRow("byte order mark") << "\xEF\xBB\xBF"
                                        "ArgMod=a"_ba
                                     << "ArgMod=a"_ba;
}

void TestPreviewPreset::linesAreRead()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, written);
    const QByteArray text =
        PresetContent::fromFileContent(line).convertToFileContent(PresetContent::WithoutHeader).toUtf8();
    QVERIFY2(text.contains('\n' + written + '\n'), text.constData());
}

void TestPreviewPreset::theLaterOfTwoLinesCounts()
{
    QCOMPARE(PresetContent::fromFileContent("ArgMod=a\nArgMod=b\nArgMod=\n").argMod, u"b"_s);
}

void TestPreviewPreset::linesOfOtherKeysArePassedOver()
{
    QVERIFY(PresetContent::fromFileContent("FirstK=3\nDebugMode=1\nDebugText=x\nNoSuchKey=1\n"
                                           "ProteomeDiscovererVersion=2\n") == PresetContent());
}

void TestPreviewPreset::aHeadAloneGivesDefaults()
{
    QVERIFY(PresetContent::fromFileContent("#ORV-Preview parameters v1.15\n#2026-11-15T04:11:00\n") ==
            PresetContent());
    QVERIFY(PresetContent::fromFileContent("") == PresetContent());
}

void TestPreviewPreset::anyHeadIsRead()
{
    QCOMPARE(PresetContent::fromFileContent("#ORV-Preview parameters v9.99\nFragType=2").fragType, 2);
}

void TestPreviewPreset::windowsLineEndsAreRead()
{
    const PresetContent content = PresetContent::fromFileContent("ArgMod=a\r\nFragType=2\r\nCysMod=\r\n");
    QCOMPARE(content.argMod, u"a"_s);
    QCOMPARE(content.fragType, 2);
    QCOMPARE(content.cysMod, u""_s);
}

void TestPreviewPreset::aLongLineWithoutSignIsPassedOverAtOnce()
{
    QVERIFY(PresetContent::fromFileContent(QByteArray(4'000'000, 'a')) == PresetContent());
    QVERIFY(PresetContent::fromFileContent("==" + QByteArray(4'000'000, 'a')) == PresetContent());
}

void TestPreviewPreset::aTextWithoutAKnownLineIsNone_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isFileContent");
    QTest::newRow("own file")
        << PreviewPreset::Content().convertToFileContent(PreviewPreset::Content::WithHeader).toUtf8() << true;
    QTest::newRow("one key without a value") << "x\nFirstK=\r\n"_ba << true;
    QTest::newRow("empty") << ""_ba << false;
    QTest::newRow("other keys") << "[a]\nPath=/x\nfirstk=1\n"_ba << false;
    QTest::newRow("key in a comment") << "#FirstK=\nFirstK"_ba << false;
    QTest::newRow("binary") << QByteArray(100, '\0') << false;
}

void TestPreviewPreset::aTextWithoutAKnownLineIsNone()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isFileContent);
    QCOMPARE(PreviewPreset::Content::isFileContent(text), isFileContent);
}

void TestPreviewPreset::aFileThatCannotBeReadFails_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << u"missing.prv"_s;
    QTest::newRow("folder") << u"."_s;
    QTest::newRow("too large") << u"large.prv"_s;
}

void TestPreviewPreset::aFileThatCannotBeReadFails()
{
    QFETCH(QString, name);
    QFile large(at(u"large.prv"_s));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(PresetContent::kMaximumSize + 1));
    large.close();
    const Result<PresetContent> content = PresetContent::fromPreviewPresetFile(at(name));
    QVERIFY(content.hasError());
    QCOMPARE(content.error().code(), ErrorCode::CannotOpenFile);
    QCOMPARE(int(content.error().code()), 4);
    QCOMPARE(content.error().errorMessage(), u"Cannot open file: %1"_s.arg(at(name)));
    QVERIFY(!content.error().details().isEmpty());
    QCOMPARE(content.error().trail().size(), 1);
}

void TestPreviewPreset::propertiesPassThroughTheirMap()
{
    const auto map = someProperties().toPropertiesMap();
    QCOMPARE(map.size(), 12);
    QVERIFY(MirelProperties::fromPropertiesMap(map) == someProperties());
}

void TestPreviewPreset::anEmptyMapHasNoDefaults()
{
    MirelProperties expected;
    expected.digestType = 0;
    QVERIFY(MirelProperties::fromPropertiesMap({}) == expected);
}

void TestPreviewPreset::theMapHasTheTypesOfTheFields()
{
    const auto map = someProperties().toPropertiesMap();
    for (const int text : {245, 249, 241, 250, 242, 244})
        QCOMPARE(map.value(PropertyId(text)).typeId(), int(QMetaType::QString));
    for (const int number : {243, 247, 248})
        QCOMPARE(map.value(PropertyId(number)).typeId(), int(QMetaType::Int));
    for (const int flag : {251, 246, 252})
        QCOMPARE(map.value(PropertyId(flag)).typeId(), int(QMetaType::Bool));
    QCOMPARE(map.value(PropertyId(245)), QVariant(u"Carbamidomethyl / 57.021464"_s));
    QCOMPARE(map.value(PropertyId(249)), QVariant(u"Acetyl / 42.010565"_s));
    QCOMPARE(map.value(PropertyId(241)), QVariant(u"a=b"_s));
    QCOMPARE(map.value(PropertyId(250)), QVariant(u"Formyl / 27.994915"_s));
    QCOMPARE(map.value(PropertyId(242)), QVariant(u"Amidated / -0.984016"_s));
    QCOMPARE(map.value(PropertyId(243)), QVariant(1));
    QCOMPARE(map.value(PropertyId(247)), QVariant(2));
    QCOMPARE(map.value(PropertyId(248)), QVariant(3));
}

void TestPreviewPreset::theMapIsReadByNumberAndType()
{
    const auto properties = MirelProperties::fromPropertiesMap(
        {{PropertyId(247), u"2"_s}, {PropertyId(251), u"true"_s}, {PropertyId(244), 5}, {PropertyId(29), 7}});
    QCOMPARE(properties.fragType, 2);
    QVERIFY(properties.phosphoSearch && !properties.wildcard);
    QCOMPARE(properties.digestLetters, u"5"_s);
}

void TestPreviewPreset::ofSeveralValuesTheFoundOneCounts()
{
    QMultiMap<PropertyId, QVariant> map;
    map.insert(PropertyId(247), 1);
    map.insert(PropertyId(247), 2);
    QCOMPARE(MirelProperties::fromPropertiesMap(map).fragType, map.find(PropertyId(247))->toInt());
}

void TestPreviewPreset::theFormsExchangeFieldsByName()
{
    const PresetContent content = someContent();
    QCOMPARE(content.spectraFiles, u"/s/a.raw"_s);
    QCOMPARE(content.databaseFiles, u"/d/b.fasta"_s);
    QCOMPARE(content.outputFolder, u"/o"_s);
    QCOMPARE(content.digestSide, 1);
    QCOMPARE(content.lysMod, u"Acetyl / 42.010565"_s);
    QVERIFY(MirelProperties::fromPreviewPreset(content) == someProperties());
    QCOMPARE(MirelProperties::fromPreviewPreset(PresetContent()).digestType, -1);
}

void TestPreviewPreset::aWorkflowIsWrittenWithAHead()
{
    const QString text = PreviewPreset::createPresetContentFromWorkflow(u"/s/a.raw"_s, u"/d/b.fasta"_s,
                                                                        u"/o"_s, someProperties());
    QVERIFY(text.startsWith(u"#ORV-Preview parameters v1.15\n#"_s));
    QVERIFY(text.endsWith(someContent().convertToFileContent(PresetContent::WithoutHeader)));
}

ORV_REGISTER_TEST(TestPreviewPreset)

#include "TestPreviewPreset.moc"
