#include "WidgetTest.h"
#include "WindowFixture.h"
#include "grid/WholeWorkflow.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/workbench/RecoveryJournal.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>

#include <QProcess>
#include <QRandomGenerator>
#include <QSignalSpy>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

namespace {

QJsonObject documentWith(const QString &samples, const char *name = "Mixture")
{
    return documentOf({settingsCell("Karvon", {setting("Samples", samples)})}, metadata("5.47.0", name));
}

QJsonObject largeDocument()
{
    constexpr int kSamples = 10'000;
    constexpr int kColumns = 20;
    QJsonArray samples;
    for (int i = 0; i < kSamples; ++i) {
        samples.append(
            QJsonObject{{u"SampleName"_s, u"S%1"_s.arg(i)}, {u"SamplePath"_s, u"/data/%1.mzML"_s.arg(i)}});
    }
    const QJsonObject table{{u"Samples"_s, samples}};
    QList<QJsonObject> cells{QJsonObject{
        {u"type"_s, u"Samples"_s},
        {u"properties"_s, QJsonArray{QJsonObject{{u"name"_s, u"SamplesTable"_s}, {u"value"_s, table}}}}}};
    while (cells.size() < kColumns)
        cells.append(WholeWorkflow::defaultCell(BaseItemType::Karvon));
    return documentOf(cells);
}

PropertyEditorContent stateWith(const QString &samples)
{
    return PropertyEditorContent(documentWith(samples));
}

/// Journals in a folder of their own.
struct Journals
{
    QTemporaryDir place;
    QString folder = place.filePath(u"data/journals"_s);

    /// What a program leaves behind that ends with a journal of \a state over \a base.
    RecoveryEntry leave(const QString &file, const QJsonObject &base,
                        const PropertyEditorContent &state) const
    {
        {
            RecoveryStore store(folder);
            const std::unique_ptr<RecoveryJournal> journal = store.newJournal();
            journal->begin(file, base);
            journal->write(state);
        }
        return RecoveryStore(folder).entries().value(0);
    }

    [[nodiscard]] QStringList files() const { return QDir(folder).entryList(QDir::Files, QDir::Name); }

    [[nodiscard]] QString write(const QString &name, const QByteArray &bytes) const
    {
        QDir().mkpath(folder);
        QFile file(folder + u'/' + name);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("The journal can't be written");
        return file.fileName();
    }
};

/// The numbers and times of the edits that a child told before it was killed.
QList<QPair<int, qint64>> editsOf(const QByteArray &output)
{
    QList<QPair<int, qint64>> edits;
    for (const QByteArray &line : output.left(output.lastIndexOf('\n')).split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        edits.append({words.value(0).toInt(), words.value(1).toLongLong()});
    }
    return edits;
}

} // namespace

class RecoveryTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void unsavedChangesOutliveTheProgram();
    void changesAreTold();
    void numbersAreToldWithTheirUnits_data();
    void numbersAreToldWithTheirUnits();
    void theLastEditIsKept();
    void theWorkflowsOwnPropertiesAreChanges();
    void aStateLikeTheFileLeavesNothing();
    void documentsThatWereNeverSavedAreKept();
    void savedDocumentsBeginAnew();
    void journalsOfLivingWindowsAreNotOffered();
    void takenJournalsGoOn();
    void takenJournalsThatAreSavedGo();
    void discardedJournalsGo();
    void changedFilesAreSeen();
    void whatCannotBeReadIsSetAside_data();
    void whatCannotBeReadIsSetAside();
    void endlessJournalsAreNotRead();
    void damageInsideIsFoundWhenItIsTaken();
    void aFolderThatCannotBeWrittenIsToldOnce();
    void tooLargeDocumentsAreTold();
    void manyChangesAreToldInPart();
    void leftoversOfKilledProgramsGo();
    void killedProgramsLeaveWholeJournals();
    void killedWindowsLoseAtMostTwoSeconds_data();
    void killedWindowsLoseAtMostTwoSeconds();
};

void RecoveryTest::unsavedChangesOutliveTheProgram()
{
    const Journals journals;
    const QString file = write(journals.place, "a.wflw", documentWith(u"*"_s));
    const RecoveryEntry entry = journals.leave(file, documentWith(u"*"_s), stateWith(u"A*"_s));
    QCOMPARE(entry.file, file);
    QCOMPARE(entry.name, u"Mixture"_s);
    QVERIFY(entry.hasDocument);
    QVERIFY(qAbs(entry.edited.secsTo(QDateTime::currentDateTimeUtc())) < 60);
    RecoveryStore store(journals.folder);
    const auto taken = store.take(entry);
    QVERIFY2(!taken.hasError(), qPrintable(taken.error().errorMessage()));
    QCOMPARE(taken->document, stateWith(u"A*"_s).document());
}

void RecoveryTest::changesAreTold()
{
    const Journals journals;
    const RecoveryEntry entry = journals.leave({}, documentWith(u"*"_s), stateWith(u"A*"_s));
    QCOMPARE(entry.changes.count, 1);
    QCOMPARE(entry.changes.told.size(), 1);
    QCOMPARE(entry.changes.told.first().place,
             u"Analysis › Karvon › "_s + PropertiesNames::displayNameForType(PropertyId::Samples));
    QCOMPARE(entry.lastEdit, (RecoveryPlace{u"Analysis"_s, u"Karvon"_s, u"Samples"_s}));
    QCOMPARE(entry.changes.told.first().before, u"*"_s);
    QCOMPARE(entry.changes.told.first().after, u"A*"_s);
}

void RecoveryTest::numbersAreToldWithTheirUnits()
{
    QFETCH(QString, setting);
    QFETCH(QJsonValue, before);
    QFETCH(QJsonValue, after);
    const auto documentOfValue = [&](const QJsonValue &value) {
        return documentOf({karvonCell({WindowFixture::setting(setting.toUtf8().constData(), value)})});
    };
    const Window registersKindsOfValues;
    const Journals journals;
    const RecoveryEntry entry =
        journals.leave({}, documentOfValue(before), PropertyEditorContent(documentOfValue(after)));
    QCOMPARE(entry.changes.count, 1);
    QCOMPARE(entry.changes.told.size(), 1);
    QTEST(entry.changes.told.first().before, "told before");
    QTEST(entry.changes.told.first().after, "told after");
    QVERIFY(!entry.changes.told.first().place.contains(u'/'));
}

void RecoveryTest::numbersAreToldWithTheirUnits_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QJsonValue>("before");
    QTest::addColumn<QJsonValue>("after");
    QTest::addColumn<QString>("told before");
    QTest::addColumn<QString>("told after");
    const auto tolerance = [](double value, const QString &unit) {
        return QJsonValue(QJsonObject{{u"value"_s, value}, {u"unit"_s, unit}});
    };
    QTest::newRow("another number") << u"KarvonFragmentMassError"_s << tolerance(10, u"ppm"_s)
                                    << tolerance(5, u"ppm"_s) << u"10.00 ppm"_s << u"5.00 ppm"_s;
    QTest::newRow("another unit, too") << u"KarvonFragmentMassError"_s << tolerance(10, u"ppm"_s)
                                       << tolerance(0.5, u"Da"_s) << u"10.00 ppm"_s << u"0.50 Da"_s;
}

void RecoveryTest::theLastEditIsKept()
{
    const Journals journals;
    const auto documentWithValues = [](const QString &samples, int peaks) {
        return documentOf(
            {settingsCell("Karvon", {setting("Samples", samples), setting("KarvonCentroidTopk", peaks)})});
    };
    {
        RecoveryStore store(journals.folder);
        const std::unique_ptr<RecoveryJournal> journal = store.newJournal();
        const QSignalSpy written(journal.get(), &RecoveryJournal::written);
        journal->begin({}, documentWithValues(u"*"_s, 1));
        journal->write(PropertyEditorContent(documentWithValues(u"*"_s, 2)));
        QTRY_COMPARE(written.size(), 1);
        journal->write(PropertyEditorContent(documentWithValues(u"A*"_s, 2)));
        QTRY_COMPARE(written.size(), 2);
    }
    const RecoveryEntry entry = RecoveryStore(journals.folder).entries().value(0);
    QCOMPARE(entry.changes.count, 2);
    QCOMPARE(entry.lastEdit, (RecoveryPlace{u"Analysis"_s, u"Karvon"_s, u"Samples"_s}));
}

void RecoveryTest::theWorkflowsOwnPropertiesAreChanges()
{
    const Journals journals;
    const RecoveryEntry entry = journals.leave({}, documentWith(u"*"_s, "Mixture"),
                                               PropertyEditorContent(documentWith(u"*"_s, "Antibody")));
    QCOMPARE(entry.changes.count, 1);
    QCOMPARE(entry.changes.told.first(),
             (RecoveryChange{u"Name of the workflow"_s, u"Mixture"_s, u"Antibody"_s}));
}

void RecoveryTest::aStateLikeTheFileLeavesNothing()
{
    const Journals journals;
    {
        RecoveryStore store(journals.folder);
        const std::unique_ptr<RecoveryJournal> journal = store.newJournal();
        journal->begin(journals.place.filePath(u"a.wflw"_s), documentWith(u"*"_s));
        journal->write(stateWith(u"A*"_s));
        const QSignalSpy written(journal.get(), &RecoveryJournal::written);
        QTRY_COMPARE(written.size(), 1);
        journal->write(stateWith(u"*"_s));
        QTRY_COMPARE(written.size(), 2);
    }
    QCOMPARE(journals.files(), QStringList());
}

void RecoveryTest::documentsThatWereNeverSavedAreKept()
{
    const Journals journals;
    const RecoveryEntry entry = journals.leave({}, {}, stateWith(u"A*"_s));
    QCOMPARE(entry.file, QString());
    QVERIFY(entry.hasDocument);
    QCOMPARE(RecoveryStore::fileState(entry), RecoveryFileState::NeverSaved);
    const RecoveryChange tab = entry.changes.told.constLast();
    QCOMPARE(tab, (RecoveryChange{u"Analysis"_s, QString(), u"Analysis"_s}));
}

void RecoveryTest::savedDocumentsBeginAnew()
{
    const Journals journals;
    {
        RecoveryStore store(journals.folder);
        const std::unique_ptr<RecoveryJournal> journal = store.newJournal();
        journal->begin({}, {});
        journal->write(stateWith(u"A*"_s));
        journal->begin(journals.place.filePath(u"a.wflw"_s), documentWith(u"A*"_s));
    }
    QCOMPARE(journals.files(), QStringList());
}

void RecoveryTest::journalsOfLivingWindowsAreNotOffered()
{
    const Journals journals;
    RecoveryStore store(journals.folder);
    std::unique_ptr<RecoveryJournal> journal = store.newJournal();
    const QSignalSpy written(journal.get(), &RecoveryJournal::written);
    journal->begin({}, {});
    journal->write(stateWith(u"A*"_s));
    QTRY_COMPARE(written.size(), 1);
    QVERIFY(store.entries().isEmpty());
    QVERIFY(RecoveryStore(journals.folder).entries().isEmpty());
    journal.reset();
    QTRY_COMPARE(store.entries().size(), 1);
}

void RecoveryTest::takenJournalsGoOn()
{
    const Journals journals;
    const RecoveryEntry entry = journals.leave({}, documentWith(u"*"_s), stateWith(u"A*"_s));
    {
        RecoveryStore store(journals.folder);
        const auto taken = store.take(entry);
        QVERIFY(!taken.hasError());
        QVERIFY(store.entries().isEmpty());
        QVERIFY(store.take(entry).hasError());
        QVERIFY(store.discard(entry).hasError());
        taken->journal->goOn(taken->document);
        taken->journal->write(stateWith(u"B*"_s));
    }
    RecoveryStore store(journals.folder);
    const QList<RecoveryEntry> entries = store.entries();
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries.first().journal, entry.journal);
    QCOMPARE(entries.first().changes.count, 2);
    QCOMPARE(store.take(entries.first())->document, stateWith(u"B*"_s).document());
}

void RecoveryTest::takenJournalsThatAreSavedGo()
{
    const Journals journals;
    const RecoveryEntry entry = journals.leave({}, {}, stateWith(u"A*"_s));
    {
        RecoveryStore store(journals.folder);
        const auto taken = store.take(entry);
        taken->journal->goOn(taken->document);
        taken->journal->begin(journals.place.filePath(u"a.wflw"_s), taken->document);
    }
    QCOMPARE(journals.files(), QStringList());
}

void RecoveryTest::discardedJournalsGo()
{
    const Journals journals;
    const RecoveryEntry entry = journals.leave({}, {}, stateWith(u"A*"_s));
    RecoveryStore store(journals.folder);
    QVERIFY(!store.discard(entry).hasError());
    QCOMPARE(journals.files(), QStringList());
    const Error again = store.discard(entry);
    QCOMPARE(again.errorMessage(), u"The unsaved workflow isn't there any more."_s);
}

void RecoveryTest::changedFilesAreSeen()
{
    const Journals journals;
    const QString file = write(journals.place, "a.wflw", documentWith(u"*"_s));
    const RecoveryEntry entry = journals.leave(file, documentWith(u"*"_s), stateWith(u"A*"_s));
    QVERIFY(!entry.checksum.isEmpty());
    QCOMPARE(RecoveryStore::fileState(entry), RecoveryFileState::Unchanged);
    (void)write(journals.place, "a.wflw", documentWith(u"C*"_s));
    QCOMPARE(RecoveryStore::fileState(entry), RecoveryFileState::Changed);
    QVERIFY(QFile::remove(file));
    QCOMPARE(RecoveryStore::fileState(entry), RecoveryFileState::Missing);
}

void RecoveryTest::whatCannotBeReadIsSetAside_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("suffix");
    const QString damaged = u".damaged"_s;
    const QString foreign = u".foreign"_s;
    QTest::newRow("empty") << QByteArray() << damaged;
    QTest::newRow("noise") << QByteArray("\0\xff\x80 noise\n\n", 11) << damaged;
    QTest::newRow("no line") << QByteArray("{") << damaged;
    QTest::newRow("a line without end") << QByteArray(2 << 20, 'a') << damaged;
    QTest::newRow("another JSON file") << QByteArray("{}\n{}") << foreign;
    QTest::newRow("a list") << QByteArray("[]\n") << damaged;
    QTest::newRow("deep nesting") << QByteArray(100000, '[') + '\n' << damaged;
    QTest::newRow("later form") << QByteArray(R"({"journal":"orv-workflow-journal","form":2})"
                                              "\n{}")
                                << foreign;
    QTest::newRow("cut short") << QByteArray(
                                      R"({"journal":"orv-workflow-journal","form":1,"documentBytes":100})"
                                      "\n{}")
                               << damaged;
    QTest::newRow("claims too much")
        << QByteArray(R"({"journal":"orv-workflow-journal","form":1,"documentBytes":1e18})"
                      "\n{}")
        << damaged;
    QTest::newRow("claims less than nothing")
        << QByteArray(R"({"journal":"orv-workflow-journal","form":1,"documentBytes":-2})"
                      "\n{}")
        << damaged;
}

void RecoveryTest::whatCannotBeReadIsSetAside()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, suffix);
    const Journals journals;
    const LogCapture log;
    const QString path = journals.write(u"a.journal"_s, bytes);
    RecoveryStore store(journals.folder);
    QVERIFY(store.entries().isEmpty());
    QCOMPARE(store.setAside(), QStringList{path + suffix});
    QCOMPARE(TestData::read(path + suffix), bytes);
    QCOMPARE(journals.files(), QStringList{u"a.journal"_s + suffix});
    QVERIFY(store.entries().isEmpty());
    QCOMPARE(store.setAside().size(), 1);
}

void RecoveryTest::endlessJournalsAreNotRead()
{
#ifdef Q_OS_UNIX
    const Journals journals;
    const LogCapture log;
    QVERIFY(QDir().mkpath(journals.folder));
    QVERIFY(QFile::link(u"/dev/zero"_s, journals.folder + u"/zero.journal"_s));
    QCOMPARE(mkfifo(QFile::encodeName(journals.folder + u"/pipe.journal"_s).constData(), 0600), 0);
    QVERIFY(RecoveryStore(journals.folder).entries().isEmpty());
#endif
}

void RecoveryTest::damageInsideIsFoundWhenItIsTaken()
{
    const Journals journals;
    const RecoveryEntry entry = journals.leave({}, {}, stateWith(u"ALPHA"_s));
    QByteArray bytes = TestData::read(entry.journal);
    bytes.replace(bytes.lastIndexOf("ALPHA"), 5, "OMEGA");
    (void)journals.write(QFileInfo(entry.journal).fileName(), bytes);
    const LogCapture log;
    RecoveryStore store(journals.folder);
    QCOMPARE(store.entries().size(), 1);
    const auto taken = store.take(entry);
    QVERIFY(taken.hasError());
    QCOMPARE(taken.error().errorMessage(),
             u"What was kept of the workflow is damaged and can't be recovered."_s);
    QCOMPARE(TestData::read(entry.journal + u".damaged"_s), bytes);
    QVERIFY(store.entries().isEmpty());
}

void RecoveryTest::aFolderThatCannotBeWrittenIsToldOnce()
{
    const QTemporaryDir place;
    const QString blocked = write(place, "blocked", QByteArray("a file where the folder would be"));
    const LogCapture log;
    RecoveryStore store(blocked);
    const std::unique_ptr<RecoveryJournal> journal = store.newJournal();
    const QSignalSpy failed(journal.get(), &RecoveryJournal::failed);
    const QSignalSpy written(journal.get(), &RecoveryJournal::written);
    journal->begin({}, {});
    journal->write(stateWith(u"A*"_s));
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY(failed.first().at(0).value<Error>().errorMessage().startsWith(
        u"Unsaved changes can't be kept for recovery: "_s));
    QVERIFY(QFile::remove(blocked));
    journal->write(stateWith(u"B*"_s));
    QTRY_COMPARE(written.size(), 1);
    QCOMPARE(failed.size(), 1);
}

void RecoveryTest::tooLargeDocumentsAreTold()
{
    const Journals journals;
    const LogCapture log;
    RecoveryStore store(journals.folder);
    const std::unique_ptr<RecoveryJournal> journal = store.newJournal();
    const QSignalSpy failed(journal.get(), &RecoveryJournal::failed);
    const QSignalSpy written(journal.get(), &RecoveryJournal::written);
    journal->begin({}, {});
    journal->write(stateWith(u"A*"_s));
    QTRY_COMPARE(written.size(), 1);
    journal->write(stateWith(QString(qsizetype(65) * 1024 * 1024, u'a')));
    QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, 60000);
    QVERIFY(failed.first().at(0).value<Error>().errorMessage().contains(u"too large"_s));
    // The last one that fits stays.
    QCOMPARE(journals.files().filter(u".journal"_s).size(), 2);
}

void RecoveryTest::manyChangesAreToldInPart()
{
    QJsonArray settings;
    for (int i = 0; i < 500; ++i)
        settings.append(setting(qPrintable(u"Unknown%1"_s.arg(i)), i));
    const Journals journals;
    const RecoveryEntry entry = journals.leave(
        {}, documentWith(u"*"_s), PropertyEditorContent(documentOf({settingsCell("Karvon", settings)})));
    QVERIFY2(entry.changes.count > 400, qPrintable(QString::number(entry.changes.count)));
    QCOMPARE(entry.changes.told.size(), 200);
}

void RecoveryTest::leftoversOfKilledProgramsGo()
{
    const Journals journals;
    RecoveryStore store(journals.folder);
    const std::unique_ptr<RecoveryJournal> living = store.newJournal();
    const QSignalSpy written(living.get(), &RecoveryJournal::written);
    living->begin({}, {});
    living->write(stateWith(u"A*"_s));
    QTRY_COMPARE(written.size(), 1);
    const QString name = QFileInfo(living->path()).fileName();
    for (const QString &file : {u"a.journal.XyabZz"_s, u"b.journal.backup"_s, u"b.journal.damaged"_s,
                                u"c.txt"_s, name + u".abcDef"_s})
        (void)journals.write(file, "half");
    (void)store.entries();
    QStringList expected{u"b.journal.backup"_s, u"b.journal.damaged"_s, u"c.txt"_s, name,
                         name + u".abcDef"_s,   name + u".lock"_s};
    expected.sort();
    QCOMPARE(journals.files(), expected);
}

void RecoveryTest::killedProgramsLeaveWholeJournals()
{
    constexpr quint32 kSeed = 20240607;
    QRandomGenerator random(kSeed);
    qInfo("The seed is %u", kSeed);
    int found = 0;
    for (int round = 0; round < 12; ++round) {
        const Journals journals;
        QProcess child;
        child.start(text(ORV_RECOVERY_CHILD), {u"journal"_s, journals.folder});
        QVERIFY(child.waitForReadyRead());
        QThread::msleep(random.bounded(5, 250));
        child.kill();
        QVERIFY(child.waitForFinished());
        const int last = editsOf(child.readAllStandardOutput()).constLast().first;
        RecoveryStore store(journals.folder);
        const QList<RecoveryEntry> entries = store.entries();
        QCOMPARE(store.setAside(), QStringList());
        QCOMPARE(journals.files().size(), entries.size());
        if (entries.isEmpty())
            continue; // it was killed before the first one was there
        QCOMPARE(entries.size(), 1);
        const auto taken = store.take(entries.first());
        QVERIFY2(!taken.hasError(), qPrintable(taken.error().errorMessage()));
        const QString name =
            WflwMetaData::nameFromMetaDataObject(PropertyEditorContent(taken->document).metadata());
        QCOMPARE(entries.first().name, name);
        QVERIFY(name.toInt() >= 1 && name.toInt() <= last + 1);
        ++found;
    }
    QVERIFY2(found >= 6, qPrintable(QString::number(found)));
}

void RecoveryTest::killedWindowsLoseAtMostTwoSeconds_data()
{
    QTest::addColumn<QJsonObject>("document");
    QTest::addColumn<int>("rounds");
    QTest::newRow("small") << documentWith(u"*"_s) << 3;
    QTest::newRow("10,000 samples and 20 columns") << largeDocument() << 2;
}

void RecoveryTest::killedWindowsLoseAtMostTwoSeconds()
{
    QFETCH(const QJsonObject, document);
    QFETCH(const int, rounds);
    constexpr quint32 kSeed = 19;
    QRandomGenerator random(kSeed);
    qInfo("The seed is %u", kSeed);
    for (int round = 0; round < rounds; ++round) {
        const Journals journals;
        const QString file = write(journals.place, "a.wflw", document);
        QProcess child;
        child.start(text(ORV_RECOVERY_CHILD), {u"window"_s, journals.folder, file});
        QVERIFY(child.waitForReadyRead(60000));
        QThread::msleep(random.bounded(2100, 3600));
        const qint64 killed = QDateTime::currentMSecsSinceEpoch();
        child.kill();
        QVERIFY(child.waitForFinished());
        int expected = 0;
        for (const auto &[number, time] : editsOf(child.readAllStandardOutput())) {
            if (time <= killed - 2000)
                expected = number;
        }
        RecoveryStore store(journals.folder);
        const QList<RecoveryEntry> entries = store.entries();
        QCOMPARE(entries.size(), 1);
        QCOMPARE(entries.first().file, file);
        QVERIFY2(entries.first().name.toInt() >= expected,
                 qPrintable(u"%1 of %2"_s.arg(entries.first().name).arg(expected)));
        QVERIFY(expected > 0);
    }
}

WIDGET_REGISTER_TEST(RecoveryTest)
#include "RecoveryTest.moc"
