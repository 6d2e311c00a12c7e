#include "Documents.h"
#include "OrvTest.h"
#include "TestData.h"

#include <orv/project/ProjectCreationStatusFile.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/engine/RunFolder.h>

#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QSysInfo>
#include <QTemporaryDir>

#include <atomic>
#include <thread>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

/// The example with absolute paths.
QJsonObject absolute(const QString &name)
{
    PropertyEditor::Content content;
    if (content.assignFromFile(TestData::examplePath(name)).hasError())
        qFatal("The example can't be read");
    content.setBaseUrl(QUrl::fromLocalFile(TestData::examplePath(u"workflows/"_s)));
    return content.toJsonObject(PropertyEditor::PropertyConversionFlag::AbsolutePaths);
}

QStringList allIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

/// The example with every sample at \a spectra.
QJsonObject withSpectra(const QString &name, const QString &spectra)
{
    QJsonObject document = absolute(name);
    QJsonArray tabs = document[u"tabs"_s].toArray();
    QJsonObject tab = tabs.at(0).toObject();
    QJsonArray cells = tab[u"cells"_s].toArray();
    QJsonObject cell = cells.at(0).toObject();
    QJsonArray samples;
    for (int i = 1; i <= 2; ++i) {
        samples.append(
            QJsonObject{{u"SamplesId"_s, i}, {u"SampleName"_s, u"S%1"_s.arg(i)}, {u"SamplePath"_s, spectra}});
    }
    cell[u"properties"_s] = QJsonArray{
        QJsonObject{{u"name"_s, u"SamplesTable"_s}, {u"value"_s, QJsonObject{{u"Samples"_s, samples}}}}};
    cells[0] = cell;
    tab[u"cells"_s] = cells;
    tabs[0] = tab;
    document[u"tabs"_s] = tabs;
    return document;
}

void makeFileIn(const QString &folder)
{
    QFile file(folder + u"/foreign.txt"_s);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("The test's file can't be written");
}

/// Where the files of a run are while they are written.
QString stagingOf(const QString &place)
{
    const QFileInfo info(place);
    const QStringList names =
        QDir(info.path()).entryList({u".%1-??????"_s.arg(info.fileName())}, QDir::Dirs | QDir::Hidden);
    return names.size() == 1 ? info.dir().filePath(names.first()) : QString();
}

#ifdef Q_OS_UNIX
/// Takes a place as soon as nothing stands there, as another program may.
class PlaceTaker
{
public:
    explicit PlaceTaker(const QString &place)
        : m_thread([this, path = QFile::encodeName(place)] {
            while (!m_isOver && !hasTaken) {
                hasTaken = ::mkdir(path.constData(), 0755) == 0;
                m_isWaiting = true;
            }
        })
    {
        while (!m_isWaiting)
            std::this_thread::yield();
    }
    ~PlaceTaker() { end(); }
    Q_DISABLE_COPY_MOVE(PlaceTaker)

    void end()
    {
        m_isOver = true;
        if (m_thread.joinable())
            m_thread.join();
    }

    std::atomic_bool hasTaken = false;

private:
    std::atomic_bool m_isOver = false;
    std::atomic_bool m_isWaiting = false;
    std::thread m_thread;
};
#endif

constexpr QLatin1String kSearched("workflows/antibody_peptide_map.wflw");

} // namespace

class TestRunFolder : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void runsHaveTheirFiles();
    void parameterFilesNameWhatTheyNeed();
    void progressIsTold();
    void stoppedRunsLeaveNothing();
    void foldersThatExistStay();
    void earlierRunsAreReplacedWhenAskedFor();
    void namesThatClashAreRefused();
    void unwritablePlacesAreTold();
    void killedRunsAreSwept();
    void samplesThatVanishAreTold_data();
    void samplesThatVanishAreTold();
    void whatTakesThePlaceMeanwhileStays_data();
    void whatTakesThePlaceMeanwhileStays();
    void earlierRunsComeBackWhereTheNewOneFails();
    void earlierRunsAreKeptWhereTheirPlaceIsTaken();
};

void TestRunFolder::runsHaveTheirFiles()
{
    const QTemporaryDir folder;
    const QString place = folder.filePath(u"mab.run"_s);
    const QJsonObject document = absolute(u"workflows/antibody_peptide_map.wflw"_s);
    const Result<QString> run = RunFolder::write(document, place);
    QVERIFY2(!run.hasError(), qPrintable(run.error().errorMessage()));
    QCOMPARE(*run, place);
    const QStringList files = allIn(place);
    QVERIFY(files.contains(u"workflow.wflw"_s));
    QVERIFY(files.contains(u"sequences.fasta"_s));
    QVERIFY(files.contains(u"mAb reference.MS_MS search.xenoset"_s));
    QCOMPARE(Documents::parse(TestData::read(place + u"/workflow.wflw"_s)), document);
    QVERIFY(TestData::read(place + u"/sequences.fasta"_s).contains("\n>"));
    const Result<ProjectCreationStatusFile> status =
        ProjectCreationStatusFile::read(ProjectCreationStatusFile::statusFilePath(place));
    QVERIFY(!status.hasError());
    QCOMPARE(status->jobs().size(), files.filter(u".xenoset"_s).size());
    QVERIFY(!status->jobs().isEmpty());
    QCOMPARE(status->jobs().first().state, ProjectCreationStatusFile::JobState::Queued);
    QCOMPARE(allIn(folder.path()), QStringList{u"mab.run"_s});
}

void TestRunFolder::parameterFilesNameWhatTheyNeed()
{
    const QTemporaryDir folder;
    const QString place = folder.filePath(u"mab.run"_s);
    QVERIFY(RunFolder::write(absolute(u"workflows/antibody_peptide_map.wflw"_s), place));
    const QByteArray text = TestData::read(place + u"/mAb reference.MS_MS search.xenoset"_s);
    QVERIFY(text.contains((place + u"/sequences.fasta"_s).toUtf8()));
    QVERIFY(text.contains("mab_reference.mzML"));
}

void TestRunFolder::progressIsTold()
{
    const QTemporaryDir folder;
    QList<int> steps;
    int count = 0;
    const Result<QString> run =
        RunFolder::write(absolute(u"workflows/antibody_peptide_map.wflw"_s), folder.filePath(u"a.run"_s),
                         [&](int done, int all, const QString &) {
                             steps.append(done);
                             count = all;
                             return true;
                         });
    QVERIFY(run);
    QCOMPARE(steps.first(), 0);
    QCOMPARE(steps.last(), count);
    QCOMPARE(steps.size(), count + 1);
}

void TestRunFolder::stoppedRunsLeaveNothing()
{
    for (const int last : {0, 1, 3, 4}) {
        const QTemporaryDir folder;
        const Result<QString> run =
            RunFolder::write(absolute(u"workflows/antibody_peptide_map.wflw"_s), folder.filePath(u"a.run"_s),
                             [last](int done, int, const QString &) { return done < last; });
        QVERIFY(!run.hasError());
        QCOMPARE(*run, QString());
        QCOMPARE(allIn(folder.path()), QStringList());
    }
}

void TestRunFolder::foldersThatExistStay()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"a.run"_s));
    const Result<QString> run =
        RunFolder::write(absolute(u"workflows/antibody_peptide_map.wflw"_s), folder.filePath(u"a.run"_s));
    QCOMPARE(run.error().code(), ErrorCode::InvalidContent);
    QVERIFY(run.error().errorMessage().contains(u"a.run"_s));
    QCOMPARE(allIn(folder.filePath(u"a.run"_s)), QStringList());
}

void TestRunFolder::earlierRunsAreReplacedWhenAskedFor()
{
    const QTemporaryDir folder;
    const QJsonObject document = absolute(u"workflows/antibody_peptide_map.wflw"_s);
    const QString place = folder.filePath(u"a.run"_s);
    QVERIFY(RunFolder::write(document, place));
    QFile more(place + u"/more.txt"_s);
    QVERIFY(more.open(QIODevice::WriteOnly));
    const auto stop = [](int, int, const QString &) { return false; };
    QVERIFY(RunFolder::write(document, place, stop, RunFolder::Existing::Replaced));
    QVERIFY(more.exists());
    QVERIFY(RunFolder::write(document, place, {}, RunFolder::Existing::Replaced));
    QVERIFY(!more.exists());
    QCOMPARE(allIn(folder.path()), QStringList{u"a.run"_s});
    const QString other = folder.filePath(u"b.run"_s);
    QVERIFY(QDir().mkpath(other));
    QVERIFY(RunFolder::write(document, other, {}, RunFolder::Existing::Replaced).hasError());
}

void TestRunFolder::namesThatClashAreRefused()
{
    const QTemporaryDir folder;
    QJsonObject document = absolute(u"workflows/antibody_peptide_map.wflw"_s);
    QByteArray text = QJsonDocument(document).toJson();
    text.replace("mAb 4 weeks 40 \xc2\xb0"
                 "C",
                 "mab REFERENCE");
    const Result<QString> run = RunFolder::write(Documents::parse(text), folder.filePath(u"a.run"_s));
    QCOMPARE(run.error().code(), ErrorCode::InvalidContent);
    QVERIFY2(run.error().errorMessage().contains(u".xenoset"_s), qPrintable(run.error().errorMessage()));
    QCOMPARE(allIn(folder.path()), QStringList());
}

void TestRunFolder::unwritablePlacesAreTold()
{
    const Result<QString> run =
        RunFolder::write(absolute(u"workflows/antibody_peptide_map.wflw"_s), u"/proc/none/a.run"_s);
    QCOMPARE(run.error().code(), ErrorCode::CannotOpenFile);
    QVERIFY(run.error().errorMessage().contains(u"/proc/none"_s));
}

void TestRunFolder::killedRunsAreSwept()
{
    const QTemporaryDir folder;
    for (const QString &name :
         {u".a.run-Xy12ab"_s, u".b.run-Xy12ab"_s, u".a.run-notes"_s, u".a.run-Zz00zz"_s}) {
        QVERIFY(QDir(folder.path()).mkpath(name + u"/run"_s));
        if (name == u".a.run-Zz00zz"_s)
            continue; // nobody ever held it
        QFile lock(folder.filePath(name + u"/.lock"_s));
        QVERIFY(lock.open(QIODevice::WriteOnly));
        lock.write("2000000000\nkilled\n" + QSysInfo::machineHostName().toUtf8() + "\n\n\n");
    }
    QVERIFY(
        RunFolder::write(absolute(u"workflows/antibody_peptide_map.wflw"_s), folder.filePath(u"a.run"_s)));
    QCOMPARE(allIn(folder.path()),
             (QStringList{u".a.run-Zz00zz"_s, u".a.run-notes"_s, u".b.run-Xy12ab"_s, u"a.run"_s}));
}

void TestRunFolder::samplesThatVanishAreTold_data()
{
    QTest::addColumn<QString>("example");
    QTest::newRow("search") << QString(kSearched);
    QTest::newRow("preview") << u"workflows/server_preview.wflw"_s;
}

void TestRunFolder::samplesThatVanishAreTold()
{
    QFETCH(const QString, example);
    const QTemporaryDir folder;
    const QTemporaryDir data;
    const QString spectra = data.filePath(u"a.mzML"_s);
    makeFileIn(data.path());
    QVERIFY(QFile::rename(data.filePath(u"foreign.txt"_s), spectra));
    const QJsonObject document = withSpectra(example, spectra);
    const QString place = folder.filePath(u"a.run"_s);
    const Result<QString> whole = RunFolder::write(document, place);
    QVERIFY2(!whole.hasError(), qPrintable(whole.error().errorMessage()));
    // Gone behind the first of the two samples.
    const Result<QString> run = RunFolder::write(
        document, place,
        [&spectra](int, int, const QString &name) {
            return !name.startsWith(u"S2."_s) || !QFile::exists(spectra) || QFile::remove(spectra);
        },
        RunFolder::Existing::Replaced);
    QVERIFY(run.hasError());
    QCOMPARE(run.error().code(), ErrorCode::CannotOpenFile);
    QCOMPARE(run.error().errorMessage(), u"The file of the sample \"S2\" can't be had any more."_s);
    QVERIFY2(run.error().details().join(u' ').contains(spectra),
             qPrintable(run.error().details().join(u' ')));
    QCOMPARE(allIn(folder.path()), QStringList{u"a.run"_s});
    const QStringList files = QDir(place).entryList({u"S1.*"_s, u"S2.*"_s}, QDir::Files);
    QVERIFY(files.size() >= 2);
    for (const QString &name : files)
        QVERIFY2(TestData::read(place + u'/' + name).contains(spectra.toUtf8()), qPrintable(name));
}

void TestRunFolder::whatTakesThePlaceMeanwhileStays_data()
{
    QTest::addColumn<RunFolder::Existing>("existing");
    QTest::newRow("refused") << RunFolder::Existing::Refused;
    QTest::newRow("replaced") << RunFolder::Existing::Replaced;
}

void TestRunFolder::whatTakesThePlaceMeanwhileStays()
{
    QFETCH(const RunFolder::Existing, existing);
    const QTemporaryDir folder;
    const QString place = folder.filePath(u"a.run"_s);
    const auto take = [&place](int, int, const QString &) {
        if (!QFile::exists(place) && QDir().mkdir(place))
            makeFileIn(place);
        return true;
    };
    const Result<QString> run = RunFolder::write(absolute(kSearched), place, take, existing);
    QCOMPARE(run.error().code(), ErrorCode::CannotOpenFile);
    QVERIFY(run.error().errorMessage().contains(place));
    QCOMPARE(allIn(place), QStringList{u"foreign.txt"_s});
    QCOMPARE(allIn(folder.path()), QStringList{u"a.run"_s});
}

void TestRunFolder::earlierRunsComeBackWhereTheNewOneFails()
{
    const QTemporaryDir folder;
    const QString place = folder.filePath(u"a.run"_s);
    const QJsonObject document = absolute(kSearched);
    QVERIFY(RunFolder::write(document, place));
    makeFileIn(place);
    const auto spoil = [&place](int done, int count, const QString &) {
        return done < count || QDir(stagingOf(place) + u"/run"_s).removeRecursively();
    };
    const Result<QString> run = RunFolder::write(document, place, spoil, RunFolder::Existing::Replaced);
    QCOMPARE(run.error().code(), ErrorCode::CannotOpenFile);
    QVERIFY(QFile::exists(place + u"/foreign.txt"_s));
    QCOMPARE(allIn(folder.path()), QStringList{u"a.run"_s});
}

void TestRunFolder::earlierRunsAreKeptWhereTheirPlaceIsTaken()
{
#ifndef Q_OS_UNIX
    QSKIP("The place can't be taken here while it is renamed");
#else
    const QJsonObject document = absolute(kSearched);
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 20'000) {
        const QTemporaryDir folder;
        const QString place = folder.filePath(u"a.run"_s);
        QVERIFY(RunFolder::write(document, place));
        makeFileIn(place);
        std::unique_ptr<PlaceTaker> taker;
        const auto race = [&](int done, int count, const QString &) {
            // The new run can't come either, so that there is more time.
            if (done == count && QDir(stagingOf(place) + u"/run"_s).removeRecursively())
                taker = std::make_unique<PlaceTaker>(place);
            return true;
        };
        const Result<QString> run = RunFolder::write(document, place, race, RunFolder::Existing::Replaced);
        taker->end();
        if (!taker->hasTaken)
            continue; // too late: the earlier run was there again
        QCOMPARE(run.error().code(), ErrorCode::CannotOpenFile);
        const QString kept = stagingOf(place) + u"/earlier"_s;
        QVERIFY(QFile::exists(kept + u"/foreign.txt"_s));
        QVERIFY2(run.error().details().join(u' ').contains(kept),
                 qPrintable(run.error().details().join(u' ')));
        // The next run to that place doesn't sweep it.
        QVERIFY(RunFolder::write(document, place).hasError());
        QVERIFY(QFile::exists(kept + u"/foreign.txt"_s));
        return;
    }
    QSKIP("The machine is too busy for somebody to take the place in time");
#endif
}

ORV_REGISTER_TEST(TestRunFolder)

#include "TestRunFolder.moc"
