#include "EngineFiles.h"
#include "LogCapture.h"
#include "OrvTest.h"
#include "TestData.h"

#include <orv/propertyeditor/engine/KarvonPropertiesGetter.h>
#include <orv/resources/ResourceManager.h>

#include <QDateTime>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QSysInfo>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace EngineFiles;
using namespace Qt::StringLiterals;

namespace {

QString valueOf(const QByteArray &file, const char *key)
{
    return valuesOf(file).value(QString::fromLatin1(key), u"no line"_s);
}

QJsonObject mass(double value, const QString &unit)
{
    return {{u"value"_s, value}, {u"unit"_s, unit}};
}

QJsonObject modifications(const QString &text)
{
    return {{u"modifications"_s, text}};
}

const QString kMotifs = u"\\nallowed_third_letters_in_nglycan_motif=ST\\n"_s;

} // namespace

class TestKarvonPresetCreator : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theHeadHasSixLines();
    void theFileHasNothingBelowItsKeys();
    void constantsDontFollowTheWorkflow();
    void theSampleAndTheDatabaseAreNamed();
    void theFirstSampleOfANameCounts();
    void aSampleThatDoesNotExistHasNoSpectra();
    void aFileThatDoesNotExistIsLoggedAndLeftOut();
    void aFileThatAppearsIsFoundByTheNextCall();
    void aServerThatIsNotConnectedLeavesTheSpectraOut();
    void callsDontRememberEachOther();
    void theWorkflowMayGoAway();
    void massUnits_data();
    void massUnits();
    void aMassErrorWithoutObjectHasItsDefault();
    void massErrorsAreLoggedAsDebug();
    void wordsForSwitchesBecomeDigits_data();
    void wordsForSwitchesBecomeDigits();
    void lineBreaksBecomeMarks_data();
    void lineBreaksBecomeMarks();
    void textsAreEscaped_data();
    void textsAreEscaped();
    void emptyObjectsGiveNothing_data();
    void emptyObjectsGiveNothing();
    void whatIsNoObjectIsLeftOutWithAWord();
    void aMoleculeIsAMachineAndThreeOptions_data();
    void aMoleculeIsAMachineAndThreeOptions();
    void theLaterOfMoleculeAndMachineCounts();
    void motifLettersFollowTheModifications();
    void listsGoByTheirNumber();
    void settingsOfNoPropertyArePassedOver();
    void aMachineThatDoesNotExistIsEmptyWithAWord();
    void mergingIsAskedFor_data();
    void mergingIsAskedFor();
    void mergingOfSeveralNeedsAll();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_dir.filePath(name); }
    QString make(const QString &name) const
    {
        QFile file(at(name));
        return file.open(QIODevice::WriteOnly) ? at(name) : QString();
    }

    const QTemporaryDir m_dir;
};

void TestKarvonPresetCreator::theHeadHasSixLines()
{
    QCoreApplication::setApplicationVersion(u"6.0.55"_s);
    const QDateTime before = QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch());
    const QStringList lines = QString::fromUtf8(fileOf(QJsonArray())).split(u'\n');
    QCoreApplication::setApplicationVersion({});
    QCOMPARE(lines.first(5), QStringList({u"#Orv-Karvon parameters"_s, u"#Build info: 6.0.55"_s,
                                          u"#OS Arch: "_s + QSysInfo::buildCpuArchitecture(),
                                          u"#OS Name: "_s + QSysInfo::prettyProductName(), u"#"_s}));
    const QDateTime time = QDateTime::fromString(lines.at(5).sliced(1), Qt::ISODate);
    QVERIFY(time.isValid() && time >= before && time <= QDateTime::currentDateTime());
    QVERIFY(lines.at(6).startsWith(u"Custom_xlink="_s));
}

void TestKarvonPresetCreator::theFileHasNothingBelowItsKeys()
{
    const QByteArray file = fileOf(QJsonArray());
    QVERIFY(file.endsWith("\nxlink_details=\n"));
    QCOMPARE(file.count('\n'), 96);
    QVERIFY(!file.contains("\n\n"));
}

void TestKarvonPresetCreator::constantsDontFollowTheWorkflow()
{
    const QByteArray file =
        fileOf({entry(38, u"true"_s), entry(58, QJsonObject{{u"glycans"_s, u"Hex(5)"_s}})});
    QCOMPARE(valueOf(file, "OutputFolder"), u""_s);
    QCOMPARE(valueOf(file, "ProteomeDiscovererVersion"), u""_s);
    QCOMPARE(valueOf(file, "PARAMETER_VERSION"), u"1.4.1"_s);
    QCOMPARE(valueOf(file, "skip_bad_spectra"), u"1"_s);
    for (const char *key : {"n_glycan_checkbox", "o_glycan_checkbox", "deisotoped_spectra_checkbox"})
        QCOMPARE(valueOf(file, key), u"0"_s);
}

void TestKarvonPresetCreator::theSampleAndTheDatabaseAreNamed()
{
    Content content;
    load(&content, {{u"a"_s, make(u"a 1:2.raw"_s)}});
    const KarvonPresetCreator creator(content, *search({}));
    const QByteArray file = creator.presetForSample(u"a"_s, u"C:\\db\\\u00e4.fasta"_s);
    QCOMPARE(valueOf(file, "DatabaseFiles"), u"C\\:/db/\u00e4.fasta"_s);
    QCOMPARE(valueOf(file, "SpectraFiles"), at(u"a 1\\:2.raw"_s));
    QCOMPARE(*creator.spectraFileOf(u"a"_s), at(u"a 1:2.raw"_s));
}

void TestKarvonPresetCreator::theFirstSampleOfANameCounts()
{
    Content content;
    load(&content, {{u"a"_s, make(u"first.raw"_s)}, {u"a"_s, make(u"second.raw"_s)}});
    const KarvonPresetCreator creator(content, *search({}));
    QCOMPARE(valueOf(creator.presetForSample(u"a"_s, {}), "SpectraFiles"), at(u"first.raw"_s));
}

void TestKarvonPresetCreator::aSampleThatDoesNotExistHasNoSpectra()
{
    const LogCapture log;
    Content content;
    load(&content, {{u"a"_s, make(u"a.raw"_s)}});
    const KarvonPresetCreator creator(content, *search({}));
    const QByteArray file = creator.presetForSample(u"A"_s, {});
    QCOMPARE(valueOf(file, "SpectraFiles"), u""_s);
    QCOMPARE(valuesOf(file).size(), 90);
    QCOMPARE(log.texts(QtInfoMsg), QStringList());
    QCOMPARE(log.warnings(), QStringList());
    const Result<QString> spectra = creator.spectraFileOf(u"A"_s);
    QCOMPARE(spectra.error().code(), ErrorCode::InvalidContent);
    QVERIFY(spectra.error().errorMessage().contains(u"\"A\""_s));
}

void TestKarvonPresetCreator::aFileThatDoesNotExistIsLoggedAndLeftOut()
{
    Content content;
    load(&content, {{u"a"_s, at(u"missing.raw"_s)}});
    const KarvonPresetCreator creator(content, *search({}));
    const LogCapture log;
    const QByteArray file = creator.presetForSample(u"a"_s, u"x.fasta"_s);
    QCOMPARE(valueOf(file, "SpectraFiles"), u""_s);
    QCOMPARE(valueOf(file, "DatabaseFiles"), u"x.fasta"_s);
    QVERIFY(log.texts(QtInfoMsg).join(u' ').contains(u"missing.raw"_s));
    QCOMPARE(creator.spectraFileOf(u"a"_s).error().code(), ErrorCode::CannotOpenFile);
}

void TestKarvonPresetCreator::aFileThatAppearsIsFoundByTheNextCall()
{
    Content content;
    load(&content, {{u"a"_s, at(u"later.raw"_s)}});
    const KarvonPresetCreator creator(content, *search({}));
    QCOMPARE(valueOf(creator.presetForSample(u"a"_s, {}), "SpectraFiles"), u""_s);
    make(u"later.raw"_s);
    QCOMPARE(valueOf(creator.presetForSample(u"a"_s, {}), "SpectraFiles"), at(u"later.raw"_s));
}

void TestKarvonPresetCreator::aServerThatIsNotConnectedLeavesTheSpectraOut()
{
    Content content;
    load(&content, {{u"a"_s, u"talvane:/projects/17/qc.tolq"_s}});
    const KarvonPresetCreator creator(content, *search({}));
    const LogCapture log;
    QCOMPARE(valueOf(creator.presetForSample(u"a"_s, {}), "SpectraFiles"), u""_s);
    QVERIFY(!log.texts(QtInfoMsg).isEmpty());
}

void TestKarvonPresetCreator::callsDontRememberEachOther()
{
    Content content;
    load(&content, {{u"a"_s, make(u"a.raw"_s)}, {u"b"_s, make(u"b.raw"_s)}});
    const KarvonPresetCreator creator(content, *search({entry(29, 7)}));
    const QByteArray first = creator.presetForSample(u"a"_s, u"x"_s);
    const QByteArray second = creator.presetForSample(u"b"_s, {});
    QCOMPARE(valueOf(first, "SpectraFiles"), at(u"a.raw"_s));
    QCOMPARE(valueOf(second, "SpectraFiles"), at(u"b.raw"_s));
    QCOMPARE(valueOf(second, "DatabaseFiles"), u""_s);
    QCOMPARE(linesOf(second).size(), 90);
    QCOMPARE(valueOf(second, "centroid_topk"), u"7"_s);
    QCOMPARE(valuesOf(creator.presetForSample(u"a"_s, u"x"_s)), valuesOf(first));
}

void TestKarvonPresetCreator::theWorkflowMayGoAway()
{
    auto content = std::make_unique<Content>();
    load(content.get(), {{u"a"_s, make(u"a.raw"_s)}});
    auto item = search({entry(29, 7)});
    const KarvonPresetCreator creator(*content, *item);
    content.reset();
    item.reset();
    const QByteArray file = creator.presetForSample(u"a"_s, {});
    QCOMPARE(valueOf(file, "SpectraFiles"), at(u"a.raw"_s));
    QCOMPARE(valueOf(file, "centroid_topk"), u"7"_s);
}

void TestKarvonPresetCreator::massUnits_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("flag");
    QTest::newRow("Da") << u"Da"_s << u"1"_s;
    QTest::newRow("DA") << u"DA"_s << u"1"_s;
    QTest::newRow("da") << u"da"_s << u"1"_s;
    QTest::newRow("ppm") << u"ppm"_s << u"0"_s;
    QTest::newRow("mmu") << u"mmu"_s << u"0"_s;
    QTest::newRow("empty") << u""_s << u"0"_s;
}

void TestKarvonPresetCreator::massUnits()
{
    QFETCH(QString, unit);
    QFETCH(QString, flag);
    const QByteArray file =
        fileOf({entry(55, mass(0.5, unit)), entry(56, mass(0.5, unit)), entry(80, mass(0.5, unit))});
    for (const char *key : {"fragment_mass_error", "fragment_mass_error2", "precursor_mass_error"})
        QCOMPARE(valueOf(file, key), u"0.5"_s);
    for (const char *key : {"fragment_unit", "fragment_unit2", "precursor_unit"})
        QCOMPARE(valueOf(file, key), flag);
}

void TestKarvonPresetCreator::aMassErrorWithoutObjectHasItsDefault()
{
    const QByteArray empty = fileOf({entry(55, QJsonObject())});
    QCOMPARE(valueOf(empty, "fragment_mass_error"), u"20"_s);
    const QByteArray unitAlone = fileOf({entry(55, QJsonObject{{u"unit"_s, u"Da"_s}})});
    QCOMPARE(valueOf(unitAlone, "fragment_mass_error"), u"0"_s);
    QCOMPARE(valueOf(unitAlone, "fragment_unit"), u"1"_s);
}

void TestKarvonPresetCreator::massErrorsAreLoggedAsDebug()
{
    QLoggingCategory::setFilterRules(u"orv.property_editor.debug=true"_s);
    const LogCapture log;
    (void)fileOf({entry(80, mass(0.5, u"mmu"_s))});
    QLoggingCategory::setFilterRules({});
    const QStringList lines = log.texts(QtDebugMsg).filter(u"Mass error of property"_s);
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines.at(2).contains(u"mmu"_s) && lines.at(2).contains(u"ppm"_s), qPrintable(lines.at(2)));
}

void TestKarvonPresetCreator::wordsForSwitchesBecomeDigits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");
    QTest::newRow("TRUE") << u"TRUE"_s << u"1"_s;
    QTest::newRow("True") << u"True"_s << u"1"_s;
    QTest::newRow("False") << u"False"_s << u"0"_s;
    QTest::newRow("longer") << u"true "_s << u"true "_s;
}

void TestKarvonPresetCreator::wordsForSwitchesBecomeDigits()
{
    QFETCH(QString, text);
    QFETCH(QString, written);
    QCOMPARE(valueOf(fileOf({entry(52, text)}), "extra_text"), written);
}

void TestKarvonPresetCreator::lineBreaksBecomeMarks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");
    QTest::newRow("line feed") << u"a\nb"_s << u"a\\nb"_s;
    QTest::newRow("Windows") << u"a\r\nb"_s << u"a\\nb"_s;
    QTest::newRow("at the end") << u"a\r\n"_s << u"a\\n"_s;
    QTest::newRow("several") << u"\n\r\n\n"_s << u"\\n\\n\\n"_s;
    QTest::newRow("mark that stands there") << u"a\\nb"_s << u"a\\nb"_s;
    QTest::newRow("nothing is escaped") << u"a:\\b"_s << u"a:\\b"_s;
}

void TestKarvonPresetCreator::lineBreaksBecomeMarks()
{
    QFETCH(QString, text);
    QFETCH(QString, written);
    QCOMPARE(valueOf(fileOf({entry(52, text)}), "extra_text"), written);
}

void TestKarvonPresetCreator::textsAreEscaped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");
    QTest::newRow("plain") << u"Hex(5)"_s << u"Hex(5)"_s;
    QTest::newRow("colon") << u"a:b:"_s << u"a\\:b\\:"_s;
    QTest::newRow("backslash") << u"a\\b"_s << u"a\\\\b"_s;
    QTest::newRow("mark of a line break") << u"a\\nb"_s << u"a\\nb"_s;
    QTest::newRow("escaped colon") << u"a\\:b"_s << u"a\\\\\\:b"_s;
    QTest::newRow("line feed") << u"a\nb\n"_s << u"a\\nb\\n"_s;
    QTest::newRow("a name with n behind a backslash is lost") << u"C:\\new"_s << u"C\\:\\new"_s;
}

void TestKarvonPresetCreator::textsAreEscaped()
{
    QFETCH(QString, text);
    QFETCH(QString, written);
    QCOMPARE(valueOf(fileOf({entry(58, QJsonObject{{u"glycans"_s, text}})}), "glycan_text"), written);
    QCOMPARE(valueOf(fileOf({entry(67, modifications(text))}), "mod_text"), written + kMotifs);
}

void TestKarvonPresetCreator::emptyObjectsGiveNothing_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QJsonObject>("object");
    for (const QJsonObject &object : {QJsonObject(), QJsonObject{{u"other"_s, 1}}}) {
        const char *which = object.isEmpty() ? "empty" : "without its member";
        QTest::addRow("glycans, %s", which) << 58 << "glycan_text"_ba << object;
        QTest::addRow("inclusion list, %s", which) << 59 << "kinclusion_filter"_ba << object;
        QTest::addRow("modifications, %s", which) << 67 << "mod_text"_ba << object;
        QTest::addRow("peak filter, %s", which) << 78 << "peak_filter_selected"_ba << object;
    }
    QTest::newRow("glycans, empty text") << 58 << "glycan_text"_ba << QJsonObject{{u"glycans"_s, u""_s}};
    QTest::newRow("inclusion list, empty")
        << 59 << "kinclusion_filter"_ba << QJsonObject{{u"inclusion"_s, u""_s}};
    QTest::newRow("peak filter, empty text")
        << 78 << "peak_filter_selected"_ba << QJsonObject{{u"peakfilter"_s, u""_s}};
}

void TestKarvonPresetCreator::emptyObjectsGiveNothing()
{
    QFETCH(int, id);
    QFETCH(QByteArray, key);
    QFETCH(QJsonObject, object);
    QCOMPARE(valueOf(fileOf({entry(id, object)}), key.constData()), id == 67 ? kMotifs : QString());
}

void TestKarvonPresetCreator::whatIsNoObjectIsLeftOutWithAWord()
{
    const auto item = search({entry(78, QJsonObject{{u"peakfilter"_s, u"1"_s}})});
    QVERIFY(item->setValue(PropertyId(78), u"204.09"_s));
    QTest::ignoreMessage(QtWarningMsg,
                         "The value is no JSON object and is left out: \"KarvonPeakFilterSelected\"");
    QCOMPARE(valueOf(fileOf(*item), "peak_filter_selected"), u""_s);
}

void TestKarvonPresetCreator::aMoleculeIsAMachineAndThreeOptions_data()
{
    QTest::addColumn<int>("molecule");
    QTest::addColumn<QString>("machine");
    QTest::newRow("RNA") << 0 << u"RNA\\:HCD"_s;
    QTest::newRow("DNA") << 1 << u"DNA\\:HCD"_s;
    QTest::newRow("another") << 2 << u"peptide\\:CID"_s;
}

void TestKarvonPresetCreator::aMoleculeIsAMachineAndThreeOptions()
{
    QFETCH(int, molecule);
    QFETCH(QString, machine);
    const QByteArray file =
        fileOf({entry(67, modifications(u"Oxidation / 1 @ M\noligo_search=0\n"_s)), entry(68, molecule)});
    QCOMPARE(valueOf(file, "machine_type"), machine);
    QCOMPARE(valueOf(file, "mod_text"),
             u"Oxidation / 1 @ M\\noligo_search=1\\ncleavage_flags=0\\nenable_rps=0\\n"_s + kMotifs);
    QCOMPARE(valueOf(fileOf({entry(68, molecule), entry(67, modifications({}))}), "mod_text"),
             u"cleavage_flags=0\\nenable_rps=0\\noligo_search=1"_s + kMotifs);
}

void TestKarvonPresetCreator::theLaterOfMoleculeAndMachineCounts()
{
    QCOMPARE(valueOf(fileOf({entry(68, 1), entry(62, 3)}), "machine_type"), u"peptide\\:EThcD"_s);
    QCOMPARE(valueOf(fileOf({entry(62, 3), entry(68, 1)}), "machine_type"), u"DNA\\:HCD"_s);
}

void TestKarvonPresetCreator::motifLettersFollowTheModifications()
{
    const QByteArray file = fileOf({entry(70, QJsonArray{u"S"_s, u"C"_s}), entry(67, modifications(u"a"_s))});
    QCOMPARE(valueOf(file, "mod_text"), u"a\\nallowed_third_letters_in_nglycan_motif=SC\\n"_s);
    const QByteArray none = fileOf({entry(70, QJsonArray())});
    QCOMPARE(valueOf(none, "mod_text"), u"\\nallowed_third_letters_in_nglycan_motif=\\n"_s);
}

void TestKarvonPresetCreator::listsGoByTheirNumber()
{
    const auto item = search({entry(44, 2), entry(37, 1), entry(61, u"None"_s)});
    QVERIFY(item->setValue(PropertyId(44), u"Ragged N-terminus"_s));
    QVERIFY(item->setValue(PropertyId(37), u"Text results only"_s));
    QVERIFY(item->setValue(PropertyId(61), u"445.120025, 371.1"_s));
    const QByteArray file = fileOf(*item);
    QCOMPARE(valueOf(file, "DigestType"), u"3"_s);
    QCOMPARE(valueOf(file, "ralmix_sqlite_enable"), u"0"_s);
    QCOMPARE(valueOf(file, "karvon_sqlite_enable"), u"0"_s);
    QCOMPARE(valueOf(file, "lock_mass_list"), u"445.120025, 371.1"_s);
}

void TestKarvonPresetCreator::settingsOfNoPropertyArePassedOver()
{
    const auto item = search({entry(29, 7)});
    QVERIFY(item->insert(u"NoSuchSetting"_s, 1, QMetaType::Int));
    QCOMPARE(valuesOf(fileOf(*item)), valuesOf(fileOf({entry(29, 7)})));
}

void TestKarvonPresetCreator::aMachineThatDoesNotExistIsEmptyWithAWord()
{
    QTest::ignoreMessage(QtWarningMsg, "There is no machine type 99");
    QCOMPARE(valueOf(fileOf({entry(62, 99)}), "machine_type"), u""_s);
}

void TestKarvonPresetCreator::mergingIsAskedFor_data()
{
    QTest::addColumn<QJsonArray>("entries");
    QTest::addColumn<bool>("isEnabled");
    QTest::newRow("not said") << QJsonArray() << false;
    QTest::newRow("yes") << QJsonArray{entry(215, u"true"_s)} << true;
    QTest::newRow("no") << QJsonArray{entry(215, u"false"_s)} << false;
}

void TestKarvonPresetCreator::mergingIsAskedFor()
{
    QFETCH(QJsonArray, entries);
    QFETCH(bool, isEnabled);
    QCOMPARE(KarvonPropertiesGetter::isMergeKarvonResultsEnabled(*search(entries)), isEnabled);
}

void TestKarvonPresetCreator::mergingOfSeveralNeedsAll()
{
    const auto yes = search({entry(215, u"true"_s)});
    const auto no = search({});
    using Items = QList<KeyValueItem *>;
    QVERIFY(KarvonPropertiesGetter::isMergeKarvonResultsEnabled(Items()));
    QVERIFY(KarvonPropertiesGetter::isMergeKarvonResultsEnabled(Items{yes.get(), yes.get()}));
    QVERIFY(!KarvonPropertiesGetter::isMergeKarvonResultsEnabled(Items{yes.get(), no.get()}));
}

ORV_REGISTER_TEST(TestKarvonPresetCreator)

#include "TestKarvonPresetCreator.moc"
