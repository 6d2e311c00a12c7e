#include "HttpTransfer.h"

#include "HttpErrors.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QThread>
#include <QThreadStorage>

#include <algorithm>

namespace orv {

namespace {

constexpr int kHttpOk = 200;
constexpr int kMaxRedirections = 5;
constexpr qint64 kMaxErrorBody = qint64(64) * 1024;
constexpr qint64 kReadAhead = qint64(1024) * 1024;
// A server that sends a byte now and then is never silent, yet never ends: after some silences' time a
// transfer has to have this pace.
constexpr qint64 kMinBytesPerMs = 16;
constexpr qint64 kSilencesBeforePace = 4;

using Managers = QThreadStorage<QNetworkAccessManager *>;

Managers &managers()
{
    static Managers all;
    return all;
}

/// One per thread keeps connections open from request to request. It goes with its thread.
QNetworkAccessManager &networkOfThisThread()
{
    const QEventLoop loop; // gives a thread that Qt didn't start what timers need
    if (!managers().localData()) {
        managers().setLocalData(new QNetworkAccessManager);
        // The main thread outlives the application, which TLS needs to close its connections.
        if (QThread::currentThread() == QCoreApplication::instance()->thread())
            qAddPostRoutine([] { managers().setLocalData(nullptr); });
    }
    return *managers().localData();
}

QUrl urlOf(const HttpRequest &request)
{
    QUrl url = request.server.address();
    QString folder = url.path(QUrl::FullyEncoded);
    while (folder.endsWith(QLatin1Char('/')))
        folder.chop(1);
    url.setPath(folder + QLatin1Char('/') + request.path, QUrl::StrictMode);
    QByteArray query;
    for (const auto &[key, value] : request.query) {
        query += query.isEmpty() ? "" : "&";
        query += QUrl::toPercentEncoding(key) + '=' + QUrl::toPercentEncoding(value);
    }
    url.setQuery(query.isEmpty() ? QString() : QString::fromLatin1(query), QUrl::StrictMode);
    return url;
}

QNetworkRequest networkRequest(const HttpRequest &request)
{
    QNetworkRequest result(urlOf(request));
    result.setRawHeader("Accept", request.contentType);
    // Packed answers would make lengths and bounds meaningless.
    result.setRawHeader("Accept-Encoding", "identity");
    if (!request.server.token().isEmpty())
        result.setRawHeader("Authorization", "Bearer " + request.server.token());
    result.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::SameOriginRedirectPolicy);
    result.setMaximumRedirectsAllowed(kMaxRedirections);
    result.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    result.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    result.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    result.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    result.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    return result;
}

QByteArray plainType(const QNetworkReply &reply)
{
    return reply.rawHeader("Content-Type").split(';').constFirst().trimmed().toLower();
}

/// -1 when the server doesn't tell.
qint64 declaredSize(const QNetworkReply &reply)
{
    bool isNumber = false;
    const qint64 size = reply.rawHeader("Content-Length").trimmed().toLongLong(&isNumber);
    return isNumber ? size : -1;
}

} // namespace

HttpTransfer::HttpTransfer(HttpRequest request, Done done)
    : m_request(std::move(request))
    , m_done(std::move(done))
    , m_reply(networkOfThisThread().get(networkRequest(m_request)))
{
    watch();
}

HttpTransfer::~HttpTransfer()
{
    // What it tells while it goes is of no use any more.
    if (m_reply)
        m_reply->disconnect(this);
}

void HttpTransfer::watch()
{
    m_reply->setReadBufferSize(kReadAhead);
    connect(m_reply.get(), &QNetworkReply::readyRead, this, &HttpTransfer::read);
    // Out of the reply's own functions, so that it can be destroyed.
    connect(m_reply.get(), &QNetworkReply::finished, this, &HttpTransfer::takeEnd, Qt::QueuedConnection);
    connect(&m_clock, &QTimer::timeout, this, &HttpTransfer::checkTime);
    m_sinceStart.start();
    m_sinceNews.start();
    m_clock.start(std::clamp(m_request.server.timeoutMs() / 10, 1, 1000));
}

void HttpTransfer::read()
{
    if (!m_reply || m_isEnding)
        return;
    m_sinceNews.restart();
    m_answer.status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    m_answer.contentType = plainType(*m_reply);
    const bool isWanted = m_answer.status == kHttpOk;
    const qint64 limit = isWanted ? m_request.maxSize : kMaxErrorBody;
    const QByteArray bytes = m_reply->readAll();
    m_received += bytes.size();
    if (std::max(m_received, declaredSize(*m_reply)) > limit) {
        // What an error answer says beyond its bound is nothing to people; its status is.
        end(isWanted ? Result<HttpAnswer>(HttpErrors::tooLarge(m_request.server, limit)) : m_answer);
    } else if (!isWanted || !m_request.sink) {
        m_answer.body += bytes;
    } else if (m_answer.contentType == m_request.contentType &&
               m_request.sink->write(bytes) != bytes.size()) {
        end(HttpErrors::cannotStore(m_request.server, m_request.sink->errorString()));
    }
}

void HttpTransfer::takeEnd()
{
    if (!m_reply || m_isEnding)
        return;
    read();
    if (m_isEnding)
        return;
    const qint64 declared = declaredSize(*m_reply);
    const QNetworkReply::NetworkError error = m_reply->error();
    const bool isCut = declared >= 0 && m_received < declared;
    const bool hasClosed = m_answer.status == kHttpOk && error != QNetworkReply::NoError;
    if (isCut || hasClosed)
        end(HttpErrors::cutShort(m_request.server));
    else if (m_answer.status == 0 || error == QNetworkReply::InsecureRedirectError ||
             error == QNetworkReply::TooManyRedirectsError)
        end(HttpErrors::network(m_request.server, error, m_reply->errorString()));
    else
        end(m_answer);
}

void HttpTransfer::checkTime()
{
    const qint64 silence = m_request.server.timeoutMs();
    const qint64 allowed = kSilencesBeforePace * silence + m_received / kMinBytesPerMs;
    if (m_sinceNews.hasExpired(silence) || m_sinceStart.hasExpired(allowed))
        end(HttpErrors::silent(m_request.server));
}

void HttpTransfer::end(const Result<HttpAnswer> &answer)
{
    if (m_isEnding)
        return;
    m_isEnding = true;
    m_clock.stop();
    // Later, so that whoever hears of it may destroy this transfer and its reply.
    QMetaObject::invokeMethod(
        this,
        [this, done = m_done, answer] {
            delete m_reply.release();
            done(answer);
        },
        Qt::QueuedConnection);
}

} // namespace orv
