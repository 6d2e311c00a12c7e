#include "WidgetTest.h"

#include <orv/propertyeditor/workbench/BackgroundWork.h>

#include <QSemaphore>

#include <functional>
#include <memory>
#include <new>
#include <stdexcept>
#include <thread>

using namespace orv;
using namespace Qt::StringLiterals;

using Answer = Result<int>;

Q_DECLARE_METATYPE(std::function<void()>)

class BackgroundWorkTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void resultsAreHeardLater();
    void whatIsThrownBecomesAnError_data();
    void whatIsThrownBecomesAnError();
    void nobodyHearsOfWhatWasCancelled();
    void theOwnerMayGoWhileItWorks();
    void theOwnerMayGoInItsHandler();
};

void BackgroundWorkTest::resultsAreHeardLater()
{
    BackgroundWork work;
    QList<int> heard;
    work.run<int>([](const auto &) -> Answer { return 1; },
                  [&heard](const Answer &answer) { heard.append(*answer); });
    work.run<int>([](const auto &) -> Answer { return Error(ErrorCode::InvalidContent, u"No"_s); },
                  [&heard](const Answer &answer) { heard.append(answer.hasError() ? 2 : 0); });
    QVERIFY(heard.isEmpty());
    QTRY_COMPARE(heard.size(), 2);
    QVERIFY(heard.contains(1) && heard.contains(2));
}

void BackgroundWorkTest::whatIsThrownBecomesAnError_data()
{
    QTest::addColumn<std::function<void()>>("fail");
    QTest::addColumn<QString>("message");
    QTest::newRow("memory") << std::function<void()>([] { throw std::bad_alloc(); })
                            << u"Something went wrong: there isn't enough memory."_s;
    QTest::newRow("exception") << std::function<void()>([] { throw std::runtime_error("disk on fire"); })
                               << u"Something went wrong: disk on fire"_s;
    QTest::newRow("anything") << std::function<void()>([] { throw 7; })
                              << u"Something went wrong: the reason isn't known."_s;
}

void BackgroundWorkTest::whatIsThrownBecomesAnError()
{
    QFETCH(const std::function<void()>, fail);
    QFETCH(const QString, message);
    BackgroundWork work;
    QString heard;
    work.run<int>(
        [fail](const auto &) -> Answer {
            fail();
            return 1;
        },
        [&heard](const Answer &answer) { heard = answer.error().errorMessage(); });
    QTRY_COMPARE(heard, message);
}

void BackgroundWorkTest::nobodyHearsOfWhatWasCancelled()
{
    BackgroundWork work;
    const auto isCancelledSeen = std::make_shared<QSemaphore>();
    QStringList heard;
    work.run<int>(
        [isCancelledSeen](const auto &isCancelled) -> Answer {
            while (!isCancelled)
                std::this_thread::yield();
            isCancelledSeen->release();
            return 1;
        },
        [&heard](const Answer &) { heard.append(u"cancelled"_s); });
    work.cancel();
    QVERIFY(isCancelledSeen->tryAcquire(1, 20000));
    work.run<int>([](const auto &) -> Answer { return 2; },
                  [&heard](const Answer &) { heard.append(u"next"_s); });
    QTRY_COMPARE(heard, QStringList{u"next"_s});
    QCoreApplication::processEvents();
    QCOMPARE(heard, QStringList{u"next"_s});
}

void BackgroundWorkTest::theOwnerMayGoWhileItWorks()
{
    const auto isCancelledSeen = std::make_shared<QSemaphore>();
    {
        BackgroundWork work;
        work.run<int>(
            [isCancelledSeen](const auto &isCancelled) -> Answer {
                while (!isCancelled)
                    std::this_thread::yield();
                isCancelledSeen->release();
                return 1;
            },
            [](const Answer &) { qFatal("Nobody is there"); });
    }
    QVERIFY(isCancelledSeen->tryAcquire(1, 20000));
    QCoreApplication::processEvents();
}

void BackgroundWorkTest::theOwnerMayGoInItsHandler()
{
    auto work = std::make_unique<BackgroundWork>();
    work->run<int>([](const auto &) -> Answer { return 1; }, [&work](const Answer &) { work.reset(); });
    QTRY_VERIFY(!work);
}

WIDGET_REGISTER_TEST(BackgroundWorkTest)
#include "BackgroundWorkTest.moc"
