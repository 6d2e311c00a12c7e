#include "OrvTest.h"
#include "References.h"

#include <orv/core_ms/SampleFileChecker.h>
#include <orv/core_ms/SampleFileFinder.h>
#include <orv/resources/ResourceManager.h>

#include <QDir>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace orv;
using namespace Qt::StringLiterals;
using State = SampleFileChecker::State;

namespace {

void makeFile(const QString &path)
{
    if (!QDir().mkpath(QFileInfo(path).path()))
        qFatal("No folder");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write("<mzML/>") < 0)
        qFatal("No file");
}

QStringList namesOf(const SampleFileFinder::Found &found)
{
    QStringList names;
    for (const SamplePathAndName &sample : found.samples)
        names.append(sample.name);
    return names;
}

} // namespace

class TestSampleFiles : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void filesAreAskedInTheBackground();
    void serversAndUnknownFoldersAreNotAsked();
    void aHandlerOfAHostIsNotAskedOnThreads();
    void aFileThatNeverAnswersKeepsNobody();
    void forgottenAnswersAreAskedAnew();
    void vendorsFoldersAreOneSample();
    void deepFoldersAreCut();
};

void TestSampleFiles::filesAreAskedInTheBackground()
{
    const QTemporaryDir folder;
    makeFile(folder.filePath(u"a.mzML"_s));
    SampleFileChecker checker;
    QSignalSpy answers(&checker, &SampleFileChecker::answered);
    const ResourceReferenceSPtr there = referenceOf(folder.filePath(u"a.mzML"_s));
    const ResourceReferenceSPtr gone = referenceOf(folder.filePath(u"b.mzML"_s));
    QVERIFY(!checker.answer(there));
    QVERIFY(!checker.answer(gone));
    QVERIFY(!checker.answer(nullptr));
    QTRY_VERIFY(!checker.isBusy());
    QVERIFY(answers.size() >= 1 && answers.size() <= 2);
    QCOMPARE(checker.answer(there)->state, State::Found);
    QVERIFY(checker.answer(there)->text.contains(u"mzML"_s, Qt::CaseInsensitive));
    QCOMPARE(checker.answer(gone)->state, State::Missing);
}

void TestSampleFiles::serversAndUnknownFoldersAreNotAsked()
{
    SampleFileChecker checker(
        [](const ResourceReferenceSPtr &) -> SampleFileChecker::Answer { qFatal("nobody may ask"); });
    QCOMPARE(checker.answer(referenceOf(u"talvane:/a/b.raw"_s))->state, State::NotChecked);
    QCOMPARE(checker.answer(referenceOf(u"b.raw"_s))->state, State::NotChecked);
    QVERIFY(!checker.isBusy());
}

void TestSampleFiles::aHandlerOfAHostIsNotAskedOnThreads()
{
    ResourceManager::setHandlerFactory(
        ResourceReference::Scheme::LocalFile,
        [](const ResourceReferenceSPtr &) -> Result<ResourceHandlerSPtr> { qFatal("nobody may ask"); });
    SampleFileChecker checker;
    const auto answer = checker.answer(referenceOf(u"/d/b.raw"_s));
    ResourceManager::setHandlerFactory(ResourceReference::Scheme::LocalFile, {});
    QCOMPARE(answer->state, State::NotChecked);
}

void TestSampleFiles::aFileThatNeverAnswersKeepsNobody()
{
    const auto asked = std::make_shared<QSemaphore>();
    const auto released = std::make_shared<QSemaphore>();
    const auto ended = std::make_shared<QSemaphore>();
    {
        SampleFileChecker checker([=](const ResourceReferenceSPtr &) -> SampleFileChecker::Answer {
            asked->release();
            released->acquire();
            ended->release();
            return {State::Found, {}};
        });
        for (int i = 0; i < 100; ++i)
            QVERIFY(!checker.answer(referenceOf(u"/d/%1.raw"_s.arg(i))));
        asked->acquire(4);
        QCOMPARE(asked->available(), 0);
    }
    // The checker has gone while four are being asked; the rest is never asked for.
    released->release(100);
    ended->acquire(4);
    QCOMPARE(asked->available(), 0);
}

void TestSampleFiles::forgottenAnswersAreAskedAnew()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"late.mgf"_s);
    SampleFileChecker checker;
    QVERIFY(!checker.answer(referenceOf(path)));
    QTRY_VERIFY(!checker.isBusy());
    makeFile(path);
    QCOMPARE(checker.answer(referenceOf(path))->state, State::Missing);
    checker.forget();
    QVERIFY(!checker.answer(referenceOf(path)));
    QTRY_VERIFY(!checker.isBusy());
    QCOMPARE(checker.answer(referenceOf(path))->state, State::Found);
}

void TestSampleFiles::vendorsFoldersAreOneSample()
{
    const QTemporaryDir folder;
    for (const char *name : {"run10.mzML", "run2.mzML", "notes.docx", "deep/x.mgf", "big.d/inside.mzML",
                             "waters.raw/_FUNC001.DAT"})
        makeFile(folder.filePath(QString::fromLatin1(name)));
    const auto found =
        SampleFileFinder::find({folder.path(), folder.filePath(u"notes.docx"_s), u"/gone/z.raw/"_s});
    QCOMPARE(namesOf(found), (QStringList{u"big"_s, u"x"_s, u"run2"_s, u"run10"_s, u"waters"_s, u"z"_s}));
    QCOMPARE(found.leftOut, QStringList(folder.filePath(u"notes.docx"_s)));
    QVERIFY(!found.isCut);
}

void TestSampleFiles::deepFoldersAreCut()
{
    const QTemporaryDir folder;
    makeFile(folder.filePath(u"1/2/3/4/5/6/7/deep.mgf"_s));
    makeFile(folder.filePath(u"1/2/3/4/5/near.mgf"_s));
    const auto found = SampleFileFinder::find({folder.path()});
    QCOMPARE(namesOf(found), QStringList(u"near"_s));
    QVERIFY(found.isCut);
}

ORV_REGISTER_TEST(TestSampleFiles)

#include "TestSampleFiles.moc"
