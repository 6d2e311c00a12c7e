#include "OrvTest.h"
#include "SampleTree.h"
#include "TestData.h"

#include <orv/propertyeditor/validators/MGFValidator.h>

#include <QThreadPool>
#include <QTimer>
#include <QtConcurrentRun>

#include <functional>
#include <thread>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

namespace {

const QString kWithoutMs1 = u"Cannot create a project using an MGF sample with no MS1 data."_s;

/// A list of peaks that takes a while to read, for the spectrum of level 1 stands at its end.
QByteArray longList()
{
    return QByteArray("BEGIN IONS\nPEPMASS=500.5\nCHARGE=2+\n100.5 10\n200.5 20\nEND IONS\n")
               .repeated(40000) +
           "BEGIN IONS\n100.5 10\n200.5 20\nEND IONS\n";
}

/// Runs \a check within the application's loop, which is told to quit as soon as the check handles events.
/// The loop ends all the same.
void runAndQuitMeanwhile(const std::function<void()> &check)
{
    QTimer::singleShot(0, QCoreApplication::instance(), [&check] {
        QTimer::singleShot(0, QCoreApplication::instance(), &QCoreApplication::quit);
        check();
    });
    QCoreApplication::exec();
}

/// Puts a pool of one thread in place of the application's.
class OneThread
{
public:
    OneThread() { QThreadPool::globalInstance()->setMaxThreadCount(1); }
    ~OneThread() { QThreadPool::globalInstance()->setMaxThreadCount(m_before); }
    Q_DISABLE_COPY_MOVE(OneThread)

private:
    const int m_before = QThreadPool::globalInstance()->maxThreadCount();
};

} // namespace

class TestMgfValidator : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void quittingMeanwhileChangesNoVerdict();
    void theNextLoopOfTheThreadRunsOn();
    void checksOnAPoolOfOneThreadEnd();
    void timersRunMeanwhile();
    void worksOnThreadsThatQtDidNotStart();
};

void TestMgfValidator::quittingMeanwhileChangesNoVerdict()
{
    const SampleTree tree;
    tree.add(u"long.mgf"_s, longList());
    const QString bad = TestData::path(u"core_ms/ms/pyteomics_test.mgf"_s);
    Error good;
    Error wanting;
    runAndQuitMeanwhile([&] {
        good = MGFValidator().validateSample(tree.at(u"long.mgf"_s));
        wanting = MGFValidator().validateSample(bad);
    });
    ORV_VERIFY_OK(good);
    QCOMPARE(wanting.errorMessage(), kWithoutMs1);
}

void TestMgfValidator::theNextLoopOfTheThreadRunsOn()
{
    const SampleTree tree;
    tree.add(u"long.mgf"_s, longList());
    runAndQuitMeanwhile([&] { ORV_VERIFY_OK(MGFValidator().validateSample(tree.at(u"long.mgf"_s))); });
    QTest::qWait(50);
    runAndQuitMeanwhile([&] { ORV_VERIFY_OK(MGFValidator().validateSample(tree.at(u"long.mgf"_s))); });
}

void TestMgfValidator::checksOnAPoolOfOneThreadEnd()
{
    const SampleTree tree;
    tree.add(u"long.mgf"_s, longList());
    const OneThread pool;
    const auto check = [path = tree.at(u"long.mgf"_s)] { return MGFValidator().validateSample(path); };
    const QList<QFuture<Error>> checks{QtConcurrent::run(check), QtConcurrent::run(check)};
    for (const QFuture<Error> &future : checks) {
        QTRY_VERIFY_WITH_TIMEOUT(future.isFinished(), 60000);
        ORV_VERIFY_OK(future.result());
    }
}

void TestMgfValidator::timersRunMeanwhile()
{
    const SampleTree tree;
    tree.add(u"long.mgf"_s, longList());
    bool hasRun = false;
    QTimer::singleShot(0, this, [&hasRun] { hasRun = true; });
    ORV_VERIFY_OK(MGFValidator().validateSample(tree.at(u"long.mgf"_s)));
    QVERIFY(hasRun);
}

void TestMgfValidator::worksOnThreadsThatQtDidNotStart()
{
    Error error;
    std::thread([&error] {
        error = MGFValidator().validateSample(TestData::path(u"core_ms/ms/pyteomics_test.mgf"_s));
    }).join();
    QCOMPARE(error.errorMessage(), kWithoutMs1);
}

ORV_REGISTER_TEST(TestMgfValidator)
#include "TestMgfValidator.moc"
