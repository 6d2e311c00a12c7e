#include "Documents.h"
#include "OrvTest.h"
#include "TestData.h"

#include <orv/project/ProjectCreationStatusFile.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/engine/RunFolder.h>

#include <QDir>
#include <QSysInfo>
#include <QTemporaryDir>

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

ORV_REGISTER_TEST(TestRunFolder)

#include "TestRunFolder.moc"
