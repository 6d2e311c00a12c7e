#include "TestData.h"
#include "WidgetTest.h"

#include <orv/project/ProjectCreationStatusFile.h>
#include <orv/propertyeditor/engine/RunFolder.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

constexpr int kSamples = 10'000;

/// The example of a peptide map with more samples than a run is made of in an instant.
QByteArray largeDocument(const QString &spectra)
{
    QJsonObject document =
        QJsonDocument::fromJson(
            TestData::read(TestData::examplePath(u"workflows/antibody_peptide_map.wflw"_s)))
            .object();
    QJsonArray samples;
    for (int i = 0; i < kSamples; ++i) {
        samples.append(QJsonObject{
            {u"SamplesId"_s, i + 1}, {u"SampleName"_s, u"S%1"_s.arg(i)}, {u"SamplePath"_s, spectra}});
    }
    QJsonArray tabs = document.value(u"tabs"_s).toArray();
    QJsonObject tab = tabs.at(0).toObject();
    QJsonObject cell = tab.value(u"cells"_s).toArray().at(0).toObject();
    cell.insert(u"properties"_s, QJsonArray{QJsonObject{{u"name"_s, u"SamplesTable"_s},
                                                        {u"value"_s, QJsonObject{{u"Samples"_s, samples}}}}});
    tab.insert(u"cells"_s, QJsonArray{cell});
    tabs.replace(0, tab);
    document.insert(u"tabs"_s, tabs);
    return QJsonDocument(document).toJson();
}

} // namespace

/// The program is killed while it writes a run: what stands there then is whole, or nothing.
class KilledRunsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingHalfWrittenLooksWhole();
    void theEarlierRunStaysUntilTheNewOneIsThere();

private:
    [[nodiscard]] QString place() const { return m_folder->filePath(u"map.run"_s); }
    [[nodiscard]] QStringList allThere() const
    {
        return QDir(m_folder->path()).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    /// Of the run that is being made; 0 if there is none.
    [[nodiscard]] int filesInTheMaking() const;
    [[nodiscard]] int jobsOfTheRun() const;
    void start(QProcess *child) const
    {
        child->start(QStringLiteral(ORV_RUN_CHILD),
                     {m_folder->filePath(u"map.wflw"_s), m_folder->filePath(u"map"_s)});
    }
    [[nodiscard]] bool killBehind(int files) const;
    [[nodiscard]] bool runToItsEnd() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void KilledRunsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QFile file(m_folder->filePath(u"map.wflw"_s));
    const QString spectra = m_folder->filePath(u"all.mzML"_s);
    QVERIFY(QFile(spectra).open(QIODevice::WriteOnly));
    const QByteArray document = largeDocument(spectra);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(document) == document.size());
}

int KilledRunsTest::filesInTheMaking() const
{
    for (const QString &folder : allThere()) {
        if (folder.startsWith(u".map.run-"_s))
            return int(QDir(m_folder->filePath(folder + u"/run"_s)).count());
    }
    return 0;
}

int KilledRunsTest::jobsOfTheRun() const
{
    const auto status = ProjectCreationStatusFile::read(ProjectCreationStatusFile::statusFilePath(place()));
    return status.hasError() ? 0 : int(status->jobs().size());
}

bool KilledRunsTest::killBehind(int files) const
{
    QProcess child;
    start(&child);
    const bool isWriting = QTest::qWaitFor([this, files] { return filesInTheMaking() > files; }, 120'000);
    child.kill();
    return child.waitForFinished() && isWriting && child.exitStatus() == QProcess::CrashExit;
}

bool KilledRunsTest::runToItsEnd() const
{
    QProcess child;
    start(&child);
    return child.waitForFinished(240'000) && child.exitStatus() == QProcess::NormalExit &&
           child.exitCode() == 0;
}

void KilledRunsTest::nothingHalfWrittenLooksWhole()
{
    QVERIFY(killBehind(1));
    QVERIFY(killBehind(300));
    QVERIFY(!QFileInfo::exists(place()));
    QVERIFY(runToItsEnd());
    QCOMPARE(jobsOfTheRun(), kSamples);
    // What was left behind went.
    QCOMPARE(allThere(), QStringList{u"map.run"_s});
}

void KilledRunsTest::theEarlierRunStaysUntilTheNewOneIsThere()
{
    QVERIFY(QDir().mkpath(place()));
    const QString document = place() + u'/' + RunFolder::kWorkflowName;
    ProjectCreationStatusFile status;
    status.setJobs({{u"earlier.xenoset"_s, ProjectCreationStatusFile::JobState::Queued}});
    QVERIFY(!status.write(ProjectCreationStatusFile::statusFilePath(place())).hasError());
    QFile file(document);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("earlier") == 7);
    file.close();
    QVERIFY(killBehind(300));
    QCOMPARE(TestData::read(document), "earlier");
    QCOMPARE(jobsOfTheRun(), 1);
}

WIDGET_REGISTER_TEST(KilledRunsTest)
#include "KilledRunsTest.moc"
