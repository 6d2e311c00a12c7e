#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/core/DetachedWork.h>
#include <orv/core/FileLinks.h>

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <new>
#include <stdexcept>

using namespace orv;
using namespace Qt::StringLiterals;

class TestDetachedWork : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void resultsArrive();
    void whatIsThrownArrivesAsAnError_data();
    void whatIsThrownArrivesAsAnError();
    void whatStartedWorkThrowsIsLogged();
    void linksEndBehindTheLast();
};

void TestDetachedWork::resultsArrive()
{
    QFuture<Result<int>> work = DetachedWork::run<int>([] { return 7; });
    work.waitForFinished();
    QCOMPARE(*work.result(), 7);
}

void TestDetachedWork::whatIsThrownArrivesAsAnError_data()
{
    using Work = std::function<int()>;
    QTest::addColumn<Work>("work");
    QTest::addColumn<QString>("told");
    QTest::newRow("no memory") << Work([]() -> int { throw std::bad_alloc(); }) << u"memory"_s;
    QTest::newRow("a reason") << Work([]() -> int { throw std::runtime_error("broken pipe"); })
                              << u"broken pipe"_s;
    QTest::newRow("anything") << Work([]() -> int { throw 7; }) << u"isn't known"_s;
}

void TestDetachedWork::whatIsThrownArrivesAsAnError()
{
    QFETCH(const std::function<int()>, work);
    QFETCH(const QString, told);
    QFuture<Result<int>> future = DetachedWork::run<int>(work);
    future.waitForFinished();
    QCOMPARE(future.resultCount(), 1);
    const Result<int> result = future.result();
    QVERIFY(result.hasError());
    QVERIFY2(result.error().errorMessage().contains(told), qPrintable(result.error().errorMessage()));
}

void TestDetachedWork::whatStartedWorkThrowsIsLogged()
{
    const LogCapture log;
    QVERIFY(!DetachedWork::start([] { throw std::bad_alloc(); }).hasError());
    QTRY_VERIFY(log.warnings().join(u' ').contains(u"memory"_s));
}

void TestDetachedWork::linksEndBehindTheLast()
{
    const QTemporaryDir folder;
    const auto at = [&folder](const QString &name) { return folder.filePath(name); };
    QVERIFY(QFile::link(u"b"_s, at(u"a"_s)));
    QVERIFY(QFile::link(at(u"nothing"_s), at(u"b"_s)));
    QVERIFY(QFile::link(u"circle"_s, at(u"circle"_s)));
    QCOMPARE(FileLinks::end(at(u"a"_s)), at(u"nothing"_s));
    QCOMPARE(FileLinks::end(at(u"plain"_s)), at(u"plain"_s));
    QCOMPARE(FileLinks::end(at(u"circle"_s)), at(u"circle"_s));
}

Q_DECLARE_METATYPE(std::function<int()>)
ORV_REGISTER_TEST(TestDetachedWork)
#include "TestDetachedWork.moc"
