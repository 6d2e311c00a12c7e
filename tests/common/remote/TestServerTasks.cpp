#include "LogCapture.h"
#include "OrvTest.h"
#include "ServerFixture.h"

#include <orv/remote/TalvaneConnection.h>
#include <orv/remote/TalvaneDownloadTolqMetadataTask.h>
#include <orv/remote/UnifiGetItemFolderTask.h>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTimer>

#include <array>
#include <thread>

using namespace orv;
using namespace Qt::StringLiterals;

using Manner = HttpTestServer::Manner;
using State = BaseTask::State;

namespace {

const QByteArray kFolderPath = "/lab/api/1/items/folder";
const QByteArray kFolder = R"({"name": "Runs", "path": "Company/Runs"})";

State runToItsEnd(UnifiGetItemFolderTask *task)
{
    if (Error error = Task::exec(task))
        return task->state();
    BaseTask::waitForAllFinished(task);
    return task->state();
}

} // namespace

class TestServerTasks : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aTaskGoesThroughItsStates();
    void theFolderOfAnItemIsAskedFor();
    void severalTasksRunAtTheSameTime();
    void waitingEndsWithItsLimit();
    void anEmptyListAndNullTasksAreFinished();
    void aTaskThatWasNotStartedIsNotWaitedFor();
    void aTaskOfAnotherThreadIsNotWaitedFor();
    void aTaskRunsOnce();
    void aCancelledTaskEndsAtOnce();
    void aTaskIsCancelledFromAnotherThread();
    void aTaskCancelledBeforeItsStartDoesNotRun();
    void cancellingAFinishedTaskChangesNothing();
    void aRunningTaskCanBeDestroyed();
    void aTaskCanBeDestroyedWhenItTellsItsEnd();
    void aTaskRunsOnAThreadWithoutALoop();
    void aSilentServerEndsATaskOnAnyThread();
    void aTaskRunsWithinARunningLoop();
    void aTaskFinishesAfterQuit();
    void withoutAnAddressSendingFailsWithTheTask();
    void unifiTasksFailWhenUnifiIsOff();
    void anItemNeedsAnIdentifier();
    void badFoldersAreRefused_data();
    void badFoldersAreRefused();
};

void TestServerTasks::aTaskGoesThroughItsStates()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kFolderPath, {.body = kFolder});
    UnifiGetItemFolderTask task(u"0b61"_s);
    const QSignalSpy spy(&task, &BaseTask::finished);
    QCOMPARE(task.state(), State::NotStarted);
    QVERIFY(!task.isFinished());
    ORV_VERIFY_OK(Task::exec(&task));
    QCOMPARE(task.state(), State::Running);
    QVERIFY(!task.isFinished());
    QVERIFY(BaseTask::waitForAllFinished(&task, -1));
    QCOMPARE(task.state(), State::Succeeded);
    QVERIFY(task.isFinished());
    ORV_VERIFY_OK(task.error());
    QVERIFY(task.warnings().isEmpty());
    QCOMPARE(spy.size(), 1);
}

void TestServerTasks::theFolderOfAnItemIsAskedFor()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kFolderPath, {.body = kFolder});
    UnifiGetItemFolderTask task(u"a/b&c=d+%20"_s);
    QCOMPARE(runToItsEnd(&task), State::Succeeded);
    QCOMPARE(task.folder().name, u"Runs"_s);
    QCOMPARE(task.folder().path, u"Company/Runs"_s);
    const HttpTestServer::Request request = fixture.server.requests().value(0);
    QCOMPARE(request.path, kFolderPath);
    QCOMPARE(request.query.queryItemValue(u"id"_s, QUrl::FullyDecoded), u"a/b&c=d+%20"_s);
    QCOMPARE(request.headers.value("authorization"), "Bearer unifi-secret");
}

void TestServerTasks::severalTasksRunAtTheSameTime()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kFolderPath, {.body = kFolder});
    std::array<UnifiGetItemFolderTask, 3> tasks{
        UnifiGetItemFolderTask(u"1"_s), UnifiGetItemFolderTask(u"2"_s), UnifiGetItemFolderTask(u"3"_s)};
    TalvaneDownloadTolqMetadataTask missing({u"/a"_s, u"b.tolq"_s, 1});
    const LogCapture log;
    QList<BaseTask *> list{&missing};
    QVERIFY(!TalvaneConnection::instance()->sendRequest(&missing).hasError());
    for (UnifiGetItemFolderTask &task : tasks) {
        ORV_VERIFY_OK(Task::exec(&task));
        list.append(&task);
    }
    QVERIFY(BaseTask::waitForAllFinished(list, -1));
    for (const UnifiGetItemFolderTask &task : tasks)
        QCOMPARE(task.state(), State::Succeeded);
    QCOMPARE(missing.state(), State::Failed);
    QCOMPARE(fixture.server.requests().size(), 4);
}

void TestServerTasks::waitingEndsWithItsLimit()
{
    const LogCapture log;
    ServerFixture fixture;
    fixture.server.setAnswer(kFolderPath, {.manner = Manner::Silent});
    UnifiGetItemFolderTask task(u"1"_s);
    ORV_VERIFY_OK(Task::exec(&task));
    QVERIFY(!BaseTask::waitForAllFinished(&task, 0));
    QVERIFY(!BaseTask::waitForAllFinished(&task, 20));
    QCOMPARE(task.state(), State::Running);
    QVERIFY(BaseTask::waitForAllFinished(&task, -1)); // the request has its own limit
    QCOMPARE(task.state(), State::Failed);
}

void TestServerTasks::anEmptyListAndNullTasksAreFinished()
{
    QVERIFY(BaseTask::waitForAllFinished(QList<BaseTask *>()));
    QVERIFY(BaseTask::waitForAllFinished(QList<BaseTask *>{nullptr}));
}

void TestServerTasks::aTaskThatWasNotStartedIsNotWaitedFor()
{
    const LogCapture log;
    UnifiGetItemFolderTask task(u"1"_s);
    QVERIFY(!BaseTask::waitForAllFinished(&task, -1));
    QCOMPARE(log.warnings(), QStringList(u"A task that wasn't started can't be waited for."_s));
}

void TestServerTasks::aTaskOfAnotherThreadIsNotWaitedFor()
{
    const LogCapture log;
    ServerFixture fixture;
    fixture.server.setAnswer(kFolderPath, {.body = kFolder});
    UnifiGetItemFolderTask task(u"1"_s);
    ORV_VERIFY_OK(Task::exec(&task));
    bool isFinished = true;
    std::thread([&] { isFinished = BaseTask::waitForAllFinished(&task, -1); }).join();
    QVERIFY(!isFinished);
    QCOMPARE(log.warnings(), QStringList(u"A task is waited for on its own thread only."_s));
    QVERIFY(BaseTask::waitForAllFinished(&task));
}

void TestServerTasks::aTaskRunsOnce()
{
    const LogCapture log;
    ServerFixture fixture;
    fixture.server.setAnswer(kFolderPath, {.body = kFolder});
    UnifiGetItemFolderTask task(u"1"_s);
    QCOMPARE(runToItsEnd(&task), State::Succeeded);
    QCOMPARE(Task::exec(&task).errorMessage(), u"A task runs once."_s);
    QCOMPARE(task.state(), State::Succeeded);
    QCOMPARE(fixture.server.requests().size(), 1);
}

void TestServerTasks::aCancelledTaskEndsAtOnce()
{
    const LogCapture log;
    ServerFixture fixture;
    fixture.server.setAnswer(kFolderPath, {.manner = Manner::Silent});
    UnifiGetItemFolderTask task(u"1"_s);
    const QSignalSpy spy(&task, &BaseTask::finished);
    ORV_VERIFY_OK(Task::exec(&task));
    task.cancel();
    QCOMPARE(task.state(), State::Cancelled);
    QCOMPARE(task.error().errorMessage(), u"The request was cancelled."_s);
    QVERIFY(BaseTask::waitForAllFinished(&task));
    QTest::qWait(ServerFixture::kPatienceMs + 100);
    QCOMPARE(task.state(), State::Cancelled);
    QCOMPARE(spy.size(), 1);
}

void TestServerTasks::aTaskIsCancelledFromAnotherThread()
{
    const LogCapture log;
    ServerFixture fixture;
    const as::ScopedOverride patience(u"Servers/TimeoutMs"_s, 60000);
    fixture.server.setAnswer(kFolderPath, {.manner = Manner::Silent});
    UnifiGetItemFolderTask task(u"1"_s);
    ORV_VERIFY_OK(Task::exec(&task));
    std::thread other([&task] { task.cancel(); });
    QVERIFY(BaseTask::waitForAllFinished(&task, 30000));
    other.join();
    QCOMPARE(task.state(), State::Cancelled);
}

void TestServerTasks::aTaskCancelledBeforeItsStartDoesNotRun()
{
    const LogCapture log;
    ServerFixture fixture;
    UnifiGetItemFolderTask task(u"1"_s);
    task.cancel();
    QCOMPARE(Task::exec(&task).errorMessage(), u"The request was cancelled."_s);
    TalvaneDownloadTolqMetadataTask other({u"/a"_s, u"b.tolq"_s, 1});
    other.cancel();
    QVERIFY(TalvaneConnection::instance()->sendRequest(&other).hasError());
    QCOMPARE(other.state(), State::Cancelled);
    QVERIFY(fixture.server.requests().isEmpty());
}

void TestServerTasks::cancellingAFinishedTaskChangesNothing()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kFolderPath, {.body = kFolder});
    UnifiGetItemFolderTask task(u"1"_s);
    QCOMPARE(runToItsEnd(&task), State::Succeeded);
    task.cancel();
    QCOMPARE(task.state(), State::Succeeded);
    ORV_VERIFY_OK(task.error());
}

void TestServerTasks::aRunningTaskCanBeDestroyed()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kFolderPath, {.body = QByteArray(65536, ' '), .manner = Manner::Endless});
    auto task = std::make_unique<UnifiGetItemFolderTask>(u"1"_s);
    ORV_VERIFY_OK(Task::exec(task.get()));
    BaseTask::waitForAllFinished(task.get(), 20);
    task.reset();
    QTest::qWait(20);
}

void TestServerTasks::aTaskCanBeDestroyedWhenItTellsItsEnd()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kFolderPath, {.body = kFolder});
    auto *task = new UnifiGetItemFolderTask(u"1"_s);
    QPointer<UnifiGetItemFolderTask> alive(task);
    connect(task, &BaseTask::finished, this, [task] { delete task; });
    ORV_VERIFY_OK(Task::exec(task));
    QTRY_VERIFY(!alive);
}

void TestServerTasks::aTaskRunsOnAThreadWithoutALoop()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kFolderPath, {.body = kFolder});
    std::array<State, 4> states{};
    std::vector<std::thread> running;
    for (State &state : states) {
        running.emplace_back([&state] {
            UnifiGetItemFolderTask task(u"1"_s);
            state = runToItsEnd(&task);
        });
    }
    for (std::thread &thread : running)
        thread.join();
    for (const State state : states)
        QCOMPARE(state, State::Succeeded);
}

void TestServerTasks::aSilentServerEndsATaskOnAnyThread()
{
    const LogCapture log;
    ServerFixture fixture;
    fixture.server.setAnswer(kFolderPath, {.manner = Manner::Silent});
    State state = State::NotStarted;
    std::thread([&state] {
        UnifiGetItemFolderTask task(u"1"_s);
        state = runToItsEnd(&task);
    }).join();
    QCOMPARE(state, State::Failed);
}

void TestServerTasks::aTaskRunsWithinARunningLoop()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kFolderPath, {.body = kFolder});
    QEventLoop outer;
    State state = State::NotStarted;
    QTimer::singleShot(0, &outer, [&] {
        UnifiGetItemFolderTask task(u"1"_s);
        state = runToItsEnd(&task);
        outer.quit();
    });
    outer.exec();
    QCOMPARE(state, State::Succeeded);
}

void TestServerTasks::aTaskFinishesAfterQuit()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kFolderPath, {.body = kFolder});
    State state = State::NotStarted;
    const std::unique_ptr<QThread> thread(QThread::create([&state] {
        QThread::currentThread()->exit();
        UnifiGetItemFolderTask task(u"1"_s);
        state = runToItsEnd(&task);
    }));
    thread->start();
    QVERIFY(thread->wait());
    QCOMPARE(state, State::Succeeded);
}

void TestServerTasks::withoutAnAddressSendingFailsWithTheTask()
{
    const LogCapture log;
    TalvaneDownloadTolqMetadataTask task({u"/a"_s, u"b.tolq"_s, 1});
    const Result<void> sent = TalvaneConnection::instance()->sendRequest(&task);
    QVERIFY(sent.hasError());
    QCOMPARE(sent.error().errorMessage(), u"The address of the server isn't set."_s);
    QCOMPARE(task.state(), State::Failed);
    QCOMPARE(task.error().errorMessage(), sent.error().errorMessage());
    QVERIFY(BaseTask::waitForAllFinished(&task));
}

void TestServerTasks::unifiTasksFailWhenUnifiIsOff()
{
    const LogCapture log;
    ServerFixture fixture;
    const as::ScopedOverride off(u"UNIFI/Enabled"_s, false);
    UnifiGetItemFolderTask task(u"1"_s);
    QCOMPARE(Task::exec(&task).errorMessage(), u"UNIFI is not switched on."_s);
    QCOMPARE(task.state(), State::Failed);
    QVERIFY(fixture.server.requests().isEmpty());
}

void TestServerTasks::anItemNeedsAnIdentifier()
{
    const LogCapture log;
    ServerFixture fixture;
    UnifiGetItemFolderTask task{QString()};
    QVERIFY(Task::exec(&task).hasError());
    QVERIFY(fixture.server.requests().isEmpty());
}

void TestServerTasks::badFoldersAreRefused_data()
{
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("no path") << QByteArray(R"({"name": "Runs"})");
    QTest::newRow("path is no text") << QByteArray(R"({"path": ["Runs"]})");
    QTest::newRow("name is no text") << QByteArray(R"({"path": "Runs", "name": 1})");
    QTest::newRow("a key twice") << QByteArray(R"({"path": "Runs", "path": "Other"})");
}

void TestServerTasks::badFoldersAreRefused()
{
    QFETCH(QByteArray, json);
    const LogCapture log;
    ServerFixture fixture;
    fixture.server.setAnswer(kFolderPath, {.body = json});
    UnifiGetItemFolderTask task(u"1"_s);
    QCOMPARE(runToItsEnd(&task), State::Failed);
    QVERIFY(task.error().errorMessage().contains(u"can't be read"_s));
    QCOMPARE(task.folder(), UnifiResourceMetadata::Folder());
}

ORV_REGISTER_TEST(TestServerTasks)

#include "TestServerTasks.moc"
