#include "OrvTest.h"
#include "References.h"
#include "SampleTree.h"

#include <orv/core_ms/SimpleFilesInfoManager.h>
#include <orv/resources/ResourceReferenceUtils.h>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

Result<ResourceReferenceSPtr> answer(const QString &text)
{
    const ResourceReferenceSPtr asked = referenceOf(text);
    SimpleFilesInfoManager manager({asked});
    return manager.validateAndCorrectFileReference(asked);
}

} // namespace

class TestFilesInfoManager : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aFileThatIsThereStaysAsItIs();
    void namesAreCorrected_data();
    void namesAreCorrected();
    void aRelativePathStaysRelative();
    void relativePathsMayCountFromAnotherFolder_data();
    void relativePathsMayCountFromAnotherFolder();
    void whatIsMissingFails_data();
    void whatIsMissingFails();
    void twoNamesThatFitAreNoAnswer();
    void othersFilesAreUnknown();
    void aServerThatNothingReachesFails();
    void aFileIsAskedForOnce();
};

void TestFilesInfoManager::aFileThatIsThereStaysAsItIs()
{
    const SampleTree tree;
    tree.add(u"runs/a.mzML"_s);
    const ResourceReferenceSPtr file = referenceOf(tree.at(u"runs/a.mzML"_s));
    SimpleFilesInfoManager manager({file, nullptr, referenceOf({})});
    const Result<ResourceReferenceSPtr> found = manager.validateAndCorrectFileReference(file);
    ORV_VERIFY_OK(found);
    QCOMPARE(*found, file);
}

void TestFilesInfoManager::namesAreCorrected_data()
{
    QTest::addColumn<QString>("asked");
    QTest::newRow("case of the name") << u"Runs/A.MZML"_s;
    QTest::newRow("case of a folder") << u"RUNS/a.mzML"_s;
    QTest::newRow("two separators") << u"Runs//A.mzml"_s;
    QTest::newRow("a detour") << u"Runs/../runs/a.mzml"_s;
}

void TestFilesInfoManager::namesAreCorrected()
{
    QFETCH(QString, asked);
    const SampleTree tree;
    tree.add(u"Runs/a.mzML"_s);
    const Result<ResourceReferenceSPtr> found = answer(tree.at({}) + u'/' + asked);
    ORV_VERIFY_OK(found);
    QVERIFY2(QFileInfo::exists((*found)->text()), qPrintable((*found)->text()));
    QCOMPARE(QFileInfo((*found)->text()).canonicalFilePath(),
             QFileInfo(tree.at(u"Runs/a.mzML"_s)).canonicalFilePath());
}

void TestFilesInfoManager::aRelativePathStaysRelative()
{
    const SampleTree tree;
    tree.add(u"data/run 1.mzML"_s);
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(tree.at({})));
    const Result<ResourceReferenceSPtr> found = answer(u"Data\\Run 1.mzML"_s);
    QVERIFY(QDir::setCurrent(before));
    ORV_VERIFY_OK(found);
    QCOMPARE((*found)->text(), u"data/run 1.mzML"_s);
}

void TestFilesInfoManager::relativePathsMayCountFromAnotherFolder_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("as it is") << u"data/run 1.mzML"_s;
    QTest::newRow("another case") << u"Data/run 1.mzml"_s;
    QTest::newRow("another system's") << u"data\\run 1.mzML"_s;
}

void TestFilesInfoManager::relativePathsMayCountFromAnotherFolder()
{
    QFETCH(QString, text);
    const SampleTree tree;
    tree.add(u"data/run 1.mzML"_s);
    const ResourceReferenceSPtr asked = referenceOf(text);
    SimpleFilesInfoManager manager({asked}, QUrl::fromLocalFile(tree.at({}) + u'/'));
    const Result<ResourceReferenceSPtr> found = manager.validateAndCorrectFileReference(asked);
    ORV_VERIFY_OK(found);
    QCOMPARE((*found)->text(), u"data/run 1.mzML"_s);
    QVERIFY(answer(text).hasError());
}

void TestFilesInfoManager::whatIsMissingFails_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("absolute") << u"/nowhere/a.mzML"_s;
    QTest::newRow("relative") << u"nowhere/a.mzML"_s;
    QTest::newRow("another system's") << u"C:\\runs\\a.mzML"_s;
}

void TestFilesInfoManager::whatIsMissingFails()
{
    QFETCH(QString, text);
    const Result<ResourceReferenceSPtr> found = answer(text);
    QVERIFY(found.hasError());
    QCOMPARE(found.error().code(), ErrorCode::CannotOpenFile);
    QVERIFY(found.error().errorMessage().contains(u"a.mzML"_s));
}

void TestFilesInfoManager::twoNamesThatFitAreNoAnswer()
{
    const SampleTree tree;
    tree.addAll({u"a.mzML"_s, u"A.mzML"_s});
    if (QDir(tree.at({})).entryList(QDir::Files).size() < 2)
        QSKIP("This disk holds no two names that differ in case alone.");
    QCOMPARE(answer(tree.at(u"a.MZML"_s)).error().code(), ErrorCode::CannotOpenFile);
}

void TestFilesInfoManager::othersFilesAreUnknown()
{
    SimpleFilesInfoManager manager({referenceOf(u"a.mzML"_s)});
    for (const ResourceReferenceSPtr &other :
         {referenceOf(u"b.mzML"_s), referenceOf({}), ResourceReferenceSPtr()})
        QCOMPARE(manager.validateAndCorrectFileReference(other).error().code(), ErrorCode::InvalidContent);
}

void TestFilesInfoManager::aServerThatNothingReachesFails()
{
    const Result<ResourceReferenceSPtr> found = answer(u"talvane:/projects/a.mzML"_s);
    QCOMPARE(found.error().code(), ErrorCode::InvalidContent);
}

void TestFilesInfoManager::aFileIsAskedForOnce()
{
    const SampleTree tree;
    tree.add(u"a.mzML"_s);
    const ResourceReferenceSPtr file = referenceOf(tree.at(u"a.mzML"_s));
    SimpleFilesInfoManager manager({file});
    ORV_VERIFY_OK(manager.validateAndCorrectFileReference(file));
    QVERIFY(QFile::remove(tree.at(u"a.mzML"_s)));
    ORV_VERIFY_OK(manager.validateAndCorrectFileReference(referenceOf(tree.at(u"./a.mzML"_s))));
}

ORV_REGISTER_TEST(TestFilesInfoManager)
#include "TestFilesInfoManager.moc"
