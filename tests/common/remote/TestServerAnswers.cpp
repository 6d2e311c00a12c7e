#include "LogCapture.h"
#include "OrvTest.h"
#include "ServerFixture.h"

#include <orv/remote/TalvaneConnection.h>
#include <orv/remote/TalvaneDownloadTolqMetadataTask.h>

#include <QProcess>
#include <QSslKey>
#include <QStandardPaths>
#include <QTcpServer>

using namespace orv;
using namespace Qt::StringLiterals;

using Answer = HttpTestServer::Answer;
using Manner = HttpTestServer::Manner;

Q_DECLARE_METATYPE(HttpTestServer::Answer)

namespace {

const QByteArray kPath = "/api/1/files/tolq-metadata";
const QByteArray kGoodBody = R"({"version": "1.4.0", "sample": "run 17.ulvar2", "traceMappings": []})";

struct Outcome
{
    BaseTask::State state = BaseTask::State::NotStarted;
    Error error;
    QString sample;

    QString texts() const { return (error.errorMessages() + error.details()).join(u'\n'); }
};

/// Asks for the metadata of one file, whatever comes of it.
Outcome ask()
{
    TalvaneDownloadTolqMetadataTask task({u"/projects/17"_s, u"qc & more.tolq"_s, 1});
    const Result<void> sent = TalvaneConnection::instance()->sendRequest(&task);
    if (!sent.hasError())
        BaseTask::waitForAllFinished(&task, -1);
    return {task.state(), task.error(), task.metadata().sample()};
}

/// The same on a thread that ends with it: OpenSSL frees what a thread leaves behind a moment after its end,
/// which must not be the end of the process, where memory is counted.
Outcome askOnOwnThread()
{
    Outcome outcome;
    const std::unique_ptr<QThread> thread(QThread::create([&outcome] { outcome = ask(); }));
    thread->start();
    thread->wait();
    return outcome;
}

QSslConfiguration selfSigned(const QString &folder)
{
    const QString program = QStandardPaths::findExecutable(u"openssl"_s);
    if (program.isEmpty())
        qFatal("The test needs the program openssl.");
    const QString key = folder + u"/key.pem"_s;
    const QString certificate = folder + u"/certificate.pem"_s;
    QProcess process;
    process.start(program, {u"req"_s, u"-x509"_s, u"-newkey"_s, u"rsa:2048"_s, u"-nodes"_s, u"-days"_s,
                            u"2"_s, u"-subj"_s, u"/CN=127.0.0.1"_s, u"-addext"_s,
                            u"subjectAltName=IP:127.0.0.1"_s, u"-keyout"_s, key, u"-out"_s, certificate});
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("openssl can't make a certificate.");
    QFile keyFile(key);
    if (!keyFile.open(QIODevice::ReadOnly))
        qFatal("There is no key.");
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificateChain(QSslCertificate::fromPath(certificate));
    configuration.setPrivateKey(QSslKey(&keyFile, QSsl::Rsa));
    return configuration;
}

} // namespace

class TestServerAnswers : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aGoodAnswerIsRead_data();
    void aGoodAnswerIsRead();
    void theQuestionIsAsDocumented();
    void withoutATokenNoneIsSent();
    void badAnswersGiveAClearError_data();
    void badAnswersGiveAClearError();
    void theTokenIsInNoTextAndNoLine();
    void theServersOwnWordsAreToldInShort();
    void redirectionsWithinTheServerAreFollowed();
    void redirectionsElsewhereAreRefused_data();
    void redirectionsElsewhereAreRefused();
    void endlessRedirectionsEnd();
    void anUnreachableServerIsNamed();
    void certificatesThatNobodyVouchesForAreRefused();
    void aServerThatDoesNotSpeakTlsIsRefused();
    void cookiesAreNotKept();
};

void TestServerAnswers::aGoodAnswerIsRead_data()
{
    QTest::addColumn<Answer>("answer");

    QTest::newRow("plain") << Answer{.body = kGoodBody};
    QTest::newRow("with a character set")
        << Answer{.contentType = "Application/JSON; charset=utf-8", .body = kGoodBody};
    QTest::newRow("dripping fast enough")
        << Answer{.body = kGoodBody.left(26) + '}', .manner = Manner::Drips};
}

void TestServerAnswers::aGoodAnswerIsRead()
{
    QFETCH(Answer, answer);
    const LogCapture log;
    ServerFixture fixture;
    if (answer.manner == Manner::Drips)
        answer.body = R"({"version":"1","sample":"r"})";
    fixture.server.setAnswer(kPath, answer);
    const Outcome outcome = ask();
    ORV_VERIFY_OK(outcome.error);
    QCOMPARE(outcome.state, BaseTask::State::Succeeded);
    QVERIFY(!outcome.sample.isEmpty());
}

void TestServerAnswers::theQuestionIsAsDocumented()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kPath, {.body = kGoodBody});
    ORV_VERIFY_OK(ask().error);
    const QList<HttpTestServer::Request> requests = fixture.server.requests();
    QCOMPARE(requests.size(), 1);
    QCOMPARE(requests[0].method, "GET");
    QCOMPARE(requests[0].path, kPath);
    QCOMPARE(requests[0].query.queryItemValue(u"path"_s, QUrl::FullyDecoded), u"/projects/17"_s);
    QCOMPARE(requests[0].query.queryItemValue(u"name"_s, QUrl::FullyDecoded), u"qc & more.tolq"_s);
    QCOMPARE(requests[0].headers.value("accept"), "application/json");
    QCOMPARE(requests[0].headers.value("accept-encoding"), "identity");
    QCOMPARE(requests[0].headers.value("authorization"), "Bearer talvane-secret");
}

void TestServerAnswers::withoutATokenNoneIsSent()
{
    ServerFixture fixture;
    qunsetenv("ORV_TALVANE_TOKEN");
    fixture.server.setAnswer(kPath, {.body = kGoodBody});
    ORV_VERIFY_OK(ask().error);
    QVERIFY(!fixture.server.requests().value(0).headers.contains("authorization"));
}

void TestServerAnswers::badAnswersGiveAClearError_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("message");
    QTest::addColumn<ErrorCode>("code");

    const QString silent = u"did not answer in time"_s;
    const QString cut = u"was cut short"_s;
    const QString unreadable = u"can't be read"_s;
    const ErrorCode unreachable = ErrorCode::CannotOpenFile;
    const ErrorCode invalid = ErrorCode::InvalidContent;
    QTest::newRow("silence") << Answer{.manner = Manner::Silent} << silent << unreachable;
    QTest::newRow("closed") << Answer{.manner = Manner::HangsUp} << u"can't be reached"_s << unreachable;
    QTest::newRow("stops midway") << Answer{.body = kGoodBody, .manner = Manner::StopsMidway} << silent
                                  << unreachable;
    QTest::newRow("drips for ever") << Answer{.body = QByteArray(4000, ' '), .manner = Manner::Drips}
                                    << silent << unreachable;
    QTest::newRow("closes midway") << Answer{.body = kGoodBody, .manner = Manner::ClosesMidway} << cut
                                   << invalid;
    QTest::newRow("longer than told")
        << Answer{.body = kGoodBody, .declaredSize = 10} << unreadable << invalid;
    QTest::newRow("shorter than told") << Answer{.body = kGoodBody, .declaredSize = 5000} << cut << invalid;
    QTest::newRow("tells a huge body")
        << Answer{.body = "{}", .declaredSize = qint64(1) << 40} << u"is too large"_s << invalid;
    QTest::newRow("sends for ever") << Answer{.body = QByteArray(65536, ' '), .manner = Manner::Endless}
                                    << u"is too large"_s << invalid;
    QTest::newRow("no HTTP") << Answer{.body = "220 mail ready\r\n\r\n", .manner = Manner::Babbles}
                             << u"can't be reached"_s << unreachable;
    QTest::newRow("not allowed to anybody") << Answer{.status = 401} << u"refuses access"_s << unreachable;
    QTest::newRow("asks for a password")
        << Answer{.status = 401, .headers = {"WWW-Authenticate: Basic realm=\"x\""}} << u"refuses access"_s
        << unreachable;
    QTest::newRow("forbidden") << Answer{.status = 403} << u"refuses access"_s << unreachable;
    QTest::newRow("missing") << Answer{.status = 404} << u"has no such thing"_s << unreachable;
    QTest::newRow("gone") << Answer{.status = 410} << u"has no such thing"_s << unreachable;
    QTest::newRow("too many requests") << Answer{.status = 429} << u"is busy"_s << unreachable;
    QTest::newRow("internal") << Answer{.status = 500, .body = "{}"} << u"failed"_s << unreachable;
    QTest::newRow("error that never ends")
        << Answer{.status = 500, .body = QByteArray(65536, 'x'), .manner = Manner::Endless} << u"failed"_s
        << unreachable;
    QTest::newRow("unavailable") << Answer{.status = 503} << u"is busy"_s << unreachable;
    QTest::newRow("no content") << Answer{.status = 204} << u"did not understand"_s << unreachable;
    QTest::newRow("sign-in page") << Answer{.contentType = "text/html", .body = kGoodBody}
                                  << u"something else"_s << invalid;
    QTest::newRow("no type") << Answer{.contentType = "", .body = kGoodBody} << u"something else"_s
                             << invalid;
    QTest::newRow("no JSON") << Answer{.body = "{\"version\": "} << unreadable << invalid;
    QTest::newRow("empty") << Answer{} << unreadable << invalid;
    QTest::newRow("no object") << Answer{.body = "[]"} << unreadable << invalid;
    QTest::newRow("deep") << Answer{.body = QByteArray(2000, '[') + QByteArray(2000, ']')} << unreadable
                          << invalid;
    QTest::newRow("no metadata") << Answer{.body = "{}"} << unreadable << invalid;
    QTest::newRow("a member of another type")
        << Answer{.body = R"({"version": 14, "sample": "a"})"} << unreadable << invalid;
}

void TestServerAnswers::badAnswersGiveAClearError()
{
    QFETCH(Answer, answer);
    QFETCH(QString, message);
    QFETCH(ErrorCode, code);
    const LogCapture log;
    ServerFixture fixture;
    fixture.server.setAnswer(kPath, answer);
    const Outcome outcome = ask();
    QCOMPARE(outcome.state, BaseTask::State::Failed);
    QVERIFY2(outcome.error.errorMessage().contains(message), qPrintable(outcome.texts()));
    QVERIFY2(outcome.error.errorMessage().contains(fixture.host()), qPrintable(outcome.texts()));
    QVERIFY2(!outcome.error.details().isEmpty(), "what is to be done?");
    QCOMPARE(outcome.error.code(), code);
    QVERIFY(!outcome.texts().contains(u"%"_s));
    QVERIFY(outcome.sample.isEmpty());
}

void TestServerAnswers::theTokenIsInNoTextAndNoLine()
{
    const LogCapture log;
    ServerFixture fixture;
    const QByteArray token = ServerFixture::kTalvaneToken;
    const QByteArray encoded = token.toPercentEncoding({}, token);
    const QByteArray twiceEncoded = encoded.toPercentEncoding();
    const auto holdsSecret = [](const QString &text) {
        return text.contains(u"secret"_s, Qt::CaseInsensitive) || text.contains(u"73%65"_s) ||
               text.contains(u"73%2565"_s);
    };
    const QList<Answer> answers = {
        {.status = 401, .body = "{\"message\": \"bad token " + token + "\"}"},
        {.contentType = "text/" + token, .body = token},
        {.body = "{\"sample\": \"a\", \"version\": \"" + token + "\"}"},
        {.status = 302, .headers = {"Location: http://127.0.0.1:1/" + token}},
        {.status = 401, .body = "{\"message\": \"BAD TOKEN " + token.toUpper() + "\"}"},
        {.status = 401, .body = "{\"message\": \"bad token " + encoded + "\"}"},
        {.status = 401, .body = "{\"message\": \"bad token " + encoded.toLower() + "\"}"},
        {.status = 401, .body = "{\"message\": \"bad token " + twiceEncoded + "\"}"},
        {.contentType = "text/" + encoded, .body = token},
    };
    for (const Answer &answer : answers) {
        fixture.server.setAnswer(kPath, answer);
        const Outcome outcome = ask();
        QVERIFY(outcome.error.hasError());
        QVERIFY2(!holdsSecret(outcome.texts()), qPrintable(outcome.texts()));
    }
    QVERIFY(!log.lines().isEmpty());
    for (const LogCapture::Line &line : log.lines())
        QVERIFY2(!holdsSecret(line.text), qPrintable(line.text));
}

void TestServerAnswers::theServersOwnWordsAreToldInShort()
{
    const LogCapture log;
    ServerFixture fixture;
    fixture.server.setAnswer(kPath, {.status = 503, .body = R"({"message": "Archived.\nBack in 2 h."})"});
    QVERIFY(ask().error.details().contains(u"It says: Archived. Back in 2 h."_s));
    fixture.server.setAnswer(kPath,
                             {.status = 503, .body = "{\"message\": \"" + QByteArray(9000, 'x') + "\"}"});
    QVERIFY(ask().texts().size() < 600);
    fixture.server.setAnswer(kPath, {.status = 503, .body = R"({"message": {"a": 1}})"});
    QVERIFY(!ask().texts().contains(u"It says"_s));
}

void TestServerAnswers::redirectionsWithinTheServerAreFollowed()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kPath, {.status = 307, .headers = {"Location: /moved"}});
    fixture.server.setAnswer("/moved", {.body = kGoodBody});
    const Outcome outcome = ask();
    ORV_VERIFY_OK(outcome.error);
    QCOMPARE(outcome.sample, u"run 17.ulvar2"_s);
}

void TestServerAnswers::redirectionsElsewhereAreRefused_data()
{
    QTest::addColumn<int>("status");

    for (const int status : {301, 302, 303, 307, 308})
        QTest::newRow(qPrintable(QString::number(status))) << status;
}

void TestServerAnswers::redirectionsElsewhereAreRefused()
{
    QFETCH(int, status);
    const LogCapture log;
    ServerFixture fixture;
    HttpTestServer other; // another port is another origin
    other.setAnswer("/x", {.body = kGoodBody});
    fixture.server.setAnswer(
        kPath, {.status = status, .headers = {"Location: " + other.address().toEncoded() + "/x"}});
    const Outcome outcome = ask();
    QCOMPARE(outcome.state, BaseTask::State::Failed);
    QVERIFY2(outcome.error.errorMessage().contains(u"another place"_s), qPrintable(outcome.texts()));
    QVERIFY2(other.requests().isEmpty(), "neither the question nor the token goes there");
}

void TestServerAnswers::endlessRedirectionsEnd()
{
    const LogCapture log;
    ServerFixture fixture;
    fixture.server.setAnswer(kPath, {.status = 302, .headers = {"Location: " + kPath}});
    const Outcome outcome = ask();
    QCOMPARE(outcome.state, BaseTask::State::Failed);
    QVERIFY2(outcome.error.errorMessage().contains(u"another place"_s), qPrintable(outcome.texts()));
    QVERIFY(fixture.server.requests().size() < 10);
}

void TestServerAnswers::anUnreachableServerIsNamed()
{
    const LogCapture log;
    QTcpServer taken; // its port is free once it is closed
    QVERIFY(taken.listen(QHostAddress::LocalHost));
    const QString host = u"127.0.0.1:%1"_s.arg(taken.serverPort());
    taken.close();
    const as::ScopedOverride address(u"Talvane/Address"_s, QString(u"http://"_s + host));
    const Outcome outcome = ask();
    QCOMPARE(outcome.error.errorMessage(), u"The server \"%1\" can't be reached."_s.arg(host));
    QCOMPARE(outcome.error.code(), ErrorCode::CannotOpenFile);
    QVERIFY(outcome.texts().contains(u"Talvane/Address"_s));
}

void TestServerAnswers::certificatesThatNobodyVouchesForAreRefused()
{
    const LogCapture log;
    const QTemporaryDir folder;
    HttpTestServer server(selfSigned(folder.path()));
    server.setAnswer(kPath, {.body = kGoodBody});
    const as::ScopedOverride address(u"Talvane/Address"_s, server.address().toString());
    const Outcome outcome = askOnOwnThread();
    QCOMPARE(outcome.state, BaseTask::State::Failed);
    QVERIFY2(outcome.error.errorMessage().contains(u"can't be trusted"_s), qPrintable(outcome.texts()));
    QVERIFY(server.requests().isEmpty());
}

void TestServerAnswers::aServerThatDoesNotSpeakTlsIsRefused()
{
    const LogCapture log;
    ServerFixture fixture;
    QUrl encrypted = fixture.server.address();
    encrypted.setScheme(u"https"_s);
    const as::ScopedOverride address(u"Talvane/Address"_s, encrypted.toString());
    const Outcome outcome = askOnOwnThread();
    QCOMPARE(outcome.state, BaseTask::State::Failed);
    QVERIFY(fixture.server.requests().isEmpty());
}

void TestServerAnswers::cookiesAreNotKept()
{
    ServerFixture fixture;
    fixture.server.setAnswer(kPath, {.body = kGoodBody, .headers = {"Set-Cookie: a=b; Path=/"}});
    ORV_VERIFY_OK(ask().error);
    ORV_VERIFY_OK(ask().error);
    QVERIFY(!fixture.server.requests().value(1).headers.contains("cookie"));
}

ORV_REGISTER_TEST(TestServerAnswers)

#include "TestServerAnswers.moc"
