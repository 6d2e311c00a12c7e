#include "LogCapture.h"
#include "MzmlTexts.h"
#include "OrvTest.h"
#include "RecordingQuestions.h"
#include "SampleTree.h"
#include "TestData.h"
#include "TraceFiles.h"

#include <orv/core_ms/CustomSettingsUtils.h>
#include <orv/propertyeditor/workflow/MirelElutionPeaksBackwardsCompatibility.h>

using namespace orv;
using namespace Qt::StringLiterals;

using Answer = MissingFileQuestions::Answer;
using Entry = TracesImportList::Entry;

namespace {

ResourceReferenceSPtr reference(const QString &text)
{
    return ResourceReference::fromString(text).valueOr({});
}

const QString kMissing = u"/nowhere/run 1.mzML"_s;
const QString kMissingLine = u"File /nowhere/run 1.mzML not found. Cannot load traces for this file."_s;

QStringList described(const QList<Entry> &entries)
{
    QStringList texts;
    for (const Entry &entry : entries) {
        texts.append(u"%1 %2 %3"_s.arg(int(entry.traceItem().type()))
                         .arg(entry.traceItem().channelName(), entry.isImported() ? u"on" : u"off"));
    }
    return texts;
}

QStringList tracesOf(const QString &path)
{
    ResourceReferenceSPtr file = reference(path);
    bool stopAsking = false;
    return described(extractTracesFromMsFile(&file, &stopAsking));
}

} // namespace

class TestTracesOfMsFile : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void noReferenceHasNoTraces();
    void theFirstTicIsImportedAndTheBasePeakIsNot();
    void traceItemsHaveNameAndId();
    void aTicThatIsNotTheFirstIsNotImported();
    void everyMissingFileGivesALineInAConsole();
    void withoutAPersonMissingFilesAreLoggedAsInAConsole();
    void theQuestionHasItsTexts();
    void continuingHasNoTraces();
    void anotherFileTakesThePlace();
    void choosingNothingHasNoTraces();
    void aChoiceThatIsNoReferenceIsShown();
    void aChoiceThatIsMissingTooIsShown();
    void askingStopsWithTheBoxChecked_data();
    void askingStopsWithTheBoxChecked();
    void theAnswerIsForgottenOnWish();
    void aStoppedQuestionFollowsTheRememberedAnswer();
    void whatCannotBeFetchedIsShown();
    void whatCannotBeFetchedIsLoggedInAConsole();
    void whatCannotBeReadIsLogged_data();
    void whatCannotBeReadIsLogged();
    void expertSettingsReachTheReader();
};

void TestTracesOfMsFile::noReferenceHasNoTraces()
{
    const PersonAtTheScreen person;
    bool stopAsking = false;
    ResourceReferenceSPtr none;
    QVERIFY(extractTracesFromMsFile(&none, &stopAsking).isEmpty());
    QVERIFY(!none);
    ResourceReferenceSPtr empty = reference({});
    QVERIFY(extractTracesFromMsFile(&empty, &stopAsking).isEmpty());
    QVERIFY(person->questions.isEmpty());
    QVERIFY(person->errors.isEmpty());
}

void TestTracesOfMsFile::theFirstTicIsImportedAndTheBasePeakIsNot()
{
    QCOMPARE(tracesOf(goodFile()), (QStringList{u"1 TIC on"_s, u"2 BPC off"_s}));
    QCOMPARE(tracesOf(TestData::path(u"core_ms/ms/ten_ms2.mzML"_s)), QStringList());
}

void TestTracesOfMsFile::traceItemsHaveNameAndId()
{
    ResourceReferenceSPtr file =
        reference(TestData::path(u"core_ms/ms/20171013_HMP_C61_ISO_P1_GA1_UV_VIS_2.mzML"_s));
    bool stopAsking = false;
    const QList<Entry> entries = extractTracesFromMsFile(&file, &stopAsking);
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries.first().traceItem(), TraceItem(TraceType::Other, {u"Chromatogram 1"_s, u"index=0"_s}));
    QVERIFY(entries.first().isImported());
    QVERIFY(entries.first().samplesIds().isAll());
}

void TestTracesOfMsFile::aTicThatIsNotTheFirstIsNotImported()
{
    using MzmlTexts::chromatogram;
    const SampleTree tree;
    tree.add(u"a.mzML"_s,
             MzmlTexts::mzml({}, chromatogram("uv", "MS:1000812") + chromatogram("tic 1", "MS:1000235") +
                                     chromatogram("tic 2", "MS:1000235") + chromatogram("bpc", "MS:1000628") +
                                     chromatogram("srm", "MS:1001473")));
    QCOMPARE(tracesOf(tree.at(u"a.mzML"_s)),
             (QStringList{u"1 tic 1 on"_s, u"1 tic 2 off"_s, u"2 bpc off"_s, u"3 uv on"_s, u"4 srm on"_s}));
}

void TestTracesOfMsFile::everyMissingFileGivesALineInAConsole()
{
    const auto questions = std::make_shared<RecordingQuestions>();
    MissingFileQuestions::setInstance(questions);
    const LogCapture log;
    ResourceReferenceSPtr file = reference(kMissing);
    bool stopAsking = false;
    for (int i = 0; i < 3; ++i)
        QVERIFY(extractTracesFromMsFile(&file, &stopAsking).isEmpty());
    MissingFileQuestions::setInstance(nullptr);
    QCOMPARE(log.warnings(), QStringList(3, kMissingLine));
    QVERIFY(questions->questions.isEmpty());
    QVERIFY(!stopAsking);
    QCOMPARE(file->text(), kMissing);
}

void TestTracesOfMsFile::withoutAPersonMissingFilesAreLoggedAsInAConsole()
{
    OrvApplication::setConsoleApplication(false);
    const LogCapture log;
    QVERIFY(tracesOf(kMissing).isEmpty());
    OrvApplication::setConsoleApplication({});
    QCOMPARE(log.warnings(), QStringList{kMissingLine});
}

void TestTracesOfMsFile::theQuestionHasItsTexts()
{
    const PersonAtTheScreen person;
    QVERIFY(tracesOf(kMissing).isEmpty());
    QCOMPARE(person->questions.size(), 1);
    const MissingFileQuestions::Question question = person->questions.first();
    QCOMPARE(question.title, u"File does not exist"_s);
    QCOMPARE(
        question.text,
        u"The file: \"/nowhere/run 1.mzML\" was not found. Would you like to load this file from another "
        "directory? If you choose to continue, the traces for this file will not be loaded."_s);
    QCOMPARE(question.findButton, u"Find file"_s);
    QCOMPARE(question.cancelButton, u"Continue"_s);
    QCOMPARE(question.checkBox, u"Do not ask again (for this workflow)"_s);
    QCOMPARE(question.checkBoxObjectName, u"DoNotAskAgainCheckBox"_s);
}

void TestTracesOfMsFile::continuingHasNoTraces()
{
    const PersonAtTheScreen person;
    ResourceReferenceSPtr file = reference(kMissing);
    bool stopAsking = false;
    for (int i = 0; i < 2; ++i)
        QVERIFY(extractTracesFromMsFile(&file, &stopAsking).isEmpty());
    QCOMPARE(person->questions.size(), 2);
    QVERIFY(person->dialogs.isEmpty());
    QVERIFY(person->errors.isEmpty());
    QVERIFY(!stopAsking);
    QCOMPARE(file->text(), kMissing);
}

void TestTracesOfMsFile::anotherFileTakesThePlace()
{
    const PersonAtTheScreen person;
    person->reply.answer = Answer::FindFile;
    person->chosen = goodFile();
    ResourceReferenceSPtr file = reference(kMissing);
    bool stopAsking = false;
    QCOMPARE(described(extractTracesFromMsFile(&file, &stopAsking)),
             (QStringList{u"1 TIC on"_s, u"2 BPC off"_s}));
    QCOMPARE(file->text(), goodFile());
    QCOMPARE(person->dialogs, QStringList{u"Ms file"_s});
    QVERIFY(!stopAsking);
}

void TestTracesOfMsFile::choosingNothingHasNoTraces()
{
    const PersonAtTheScreen person;
    person->reply.answer = Answer::FindFile;
    ResourceReferenceSPtr file = reference(kMissing);
    bool stopAsking = false;
    QVERIFY(extractTracesFromMsFile(&file, &stopAsking).isEmpty());
    QCOMPARE(file->text(), kMissing);
    QVERIFY(person->errors.isEmpty());
}

void TestTracesOfMsFile::aChoiceThatIsNoReferenceIsShown()
{
    const PersonAtTheScreen person;
    person->reply.answer = Answer::FindFile;
    person->chosen = u"ftp://server/run.mzML"_s;
    const Error error = ResourceReference::fromString(person->chosen).error();
    ResourceReferenceSPtr file = reference(kMissing);
    bool stopAsking = false;
    QVERIFY(extractTracesFromMsFile(&file, &stopAsking).isEmpty());
    QCOMPARE(file->text(), kMissing);
    QCOMPARE(person->errors, QStringList{u"Error: "_s + error.errorMessage()});
}

void TestTracesOfMsFile::aChoiceThatIsMissingTooIsShown()
{
    const PersonAtTheScreen person;
    person->reply.answer = Answer::FindFile;
    person->chosen = u"/nowhere/else.mzML"_s;
    QVERIFY(tracesOf(kMissing).isEmpty());
    QCOMPARE(person->questions.size(), 1);
    QCOMPARE(person->errors, QStringList{u"Error: The file \"/nowhere/else.mzML\" does not exist."_s});
}

void TestTracesOfMsFile::askingStopsWithTheBoxChecked_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<int>("dialogs");
    QTest::newRow("continue") << Answer::Cancel << 0;
    QTest::newRow("find file") << Answer::FindFile << 3;
}

void TestTracesOfMsFile::askingStopsWithTheBoxChecked()
{
    QFETCH(Answer, answer);
    QFETCH(int, dialogs);
    const PersonAtTheScreen person;
    person->reply = {answer, true};
    ResourceReferenceSPtr file = reference(kMissing);
    bool stopAsking = false;
    for (int i = 0; i < 3; ++i) {
        QVERIFY(extractTracesFromMsFile(&file, &stopAsking).isEmpty());
        QVERIFY(stopAsking);
    }
    QCOMPARE(person->questions.size(), 1);
    QCOMPARE(person->dialogs.size(), dialogs);
}

void TestTracesOfMsFile::theAnswerIsForgottenOnWish()
{
    const PersonAtTheScreen person;
    person->reply = {Answer::FindFile, true};
    QVERIFY(tracesOf(kMissing).isEmpty());
    MissingFileQuestions::forgetAnswer();
    ResourceReferenceSPtr file = reference(kMissing);
    bool stopAsking = true;
    QVERIFY(extractTracesFromMsFile(&file, &stopAsking).isEmpty());
    QCOMPARE(person->questions.size(), 1);
    QCOMPARE(person->dialogs.size(), 1);
}

void TestTracesOfMsFile::aStoppedQuestionFollowsTheRememberedAnswer()
{
    const PersonAtTheScreen person;
    ResourceReferenceSPtr file = reference(kMissing);
    bool stopAsking = true;
    // Nothing was remembered yet, which is Cancel.
    QVERIFY(extractTracesFromMsFile(&file, &stopAsking).isEmpty());
    QVERIFY(person->questions.isEmpty());
    QVERIFY(person->dialogs.isEmpty());
}

void TestTracesOfMsFile::whatCannotBeFetchedIsShown()
{
    const PersonAtTheScreen person;
    QVERIFY(tracesOf(u"talvane:/projects/a.mzML"_s).isEmpty());
    QVERIFY(person->questions.isEmpty());
    QCOMPARE(person->errors.size(), 1);
    QVERIFY2(person->errors.first().startsWith(u"Error: "_s), qPrintable(person->errors.first()));
}

void TestTracesOfMsFile::whatCannotBeFetchedIsLoggedInAConsole()
{
    const LogCapture log;
    QVERIFY(tracesOf(u"talvane:/projects/a.mzML"_s).isEmpty());
    QCOMPARE(log.warnings().size(), 1);
}

void TestTracesOfMsFile::whatCannotBeReadIsLogged_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("a closed format") << TestData::path(u"core_ms/vendor/thermo/small.RAW"_s);
    QTest::newRow("no MS data") << TestData::path(u"chemistry/bsa.fasta"_s);
}

void TestTracesOfMsFile::whatCannotBeReadIsLogged()
{
    QFETCH(QString, path);
    const PersonAtTheScreen person;
    const LogCapture log;
    QVERIFY(tracesOf(path).isEmpty());
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY2(log.warnings().first().contains(path), qPrintable(log.warnings().first()));
    QVERIFY(person->errors.isEmpty());
}

void TestTracesOfMsFile::expertSettingsReachTheReader()
{
    // The fault between the spectra shows only to who reads them.
    const SampleTree tree;
    tree.add(u"a.mzML"_s,
             MzmlTexts::indexed(MzmlTexts::mzml("<spectrum id=\"s\">&faulty;<cvParam></spectrum>",
                                                MzmlTexts::chromatogram("a", "MS:1000235") +
                                                    MzmlTexts::chromatogram("b", "MS:1000628"))));
    QCOMPARE(tracesOf(tree.at(u"a.mzML"_s)).size(), 2);
    CustomSettings settings;
    QVERIFY(
        settings.setupValues(u"[MsReader]\nUseIndex=false"_s, CustomSettings::Format::Sections).isEmpty());
    CustomSettingsUtils::setCurrentCustomSettings(settings);
    const LogCapture log;
    const QStringList traces = tracesOf(tree.at(u"a.mzML"_s));
    CustomSettingsUtils::setCurrentCustomSettings({});
    QVERIFY(traces.isEmpty());
    QCOMPARE(log.warnings().size(), 1);
}

ORV_REGISTER_TEST(TestTracesOfMsFile)
#include "TestTracesOfMsFile.moc"
