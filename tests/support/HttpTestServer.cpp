#include "HttpTestServer.h"

#include <QSslServer>
#include <QTcpSocket>
#include <QTimer>

HttpTestServer::HttpTestServer(const std::optional<QSslConfiguration> &tls)
    : m_isEncrypted(tls.has_value())
{
    m_thread.start();
    QObject *const context = new QObject;
    context->moveToThread(&m_thread);
    QMetaObject::invokeMethod(
        context,
        [this, &tls, context] {
            listen(tls);
            delete context;
        },
        Qt::BlockingQueuedConnection);
}

HttpTestServer::~HttpTestServer()
{
    QMetaObject::invokeMethod(
        m_server.get(), [this] { delete m_server.release(); }, Qt::BlockingQueuedConnection);
    m_thread.quit();
    m_thread.wait();
}

void HttpTestServer::listen(const std::optional<QSslConfiguration> &tls)
{
    if (tls) {
        auto server = std::make_unique<QSslServer>();
        server->setSslConfiguration(*tls);
        m_server = std::move(server);
    } else {
        m_server = std::make_unique<QTcpServer>();
    }
    QObject::connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, m_server.get(),
                     [this] { accept(); });
    if (!m_server->listen(QHostAddress::LocalHost))
        qFatal("The server of the test can't listen.");
    m_port = m_server->serverPort();
}

QUrl HttpTestServer::address() const
{
    const QString scheme = m_isEncrypted ? QStringLiteral("https") : QStringLiteral("http");
    return QUrl(QStringLiteral("%1://127.0.0.1:%2").arg(scheme).arg(m_port));
}

void HttpTestServer::setAnswer(const QByteArray &path, const Answer &answer)
{
    const QMutexLocker lock(&m_mutex);
    m_answers.insert(path, answer);
}

QList<HttpTestServer::Request> HttpTestServer::requests() const
{
    const QMutexLocker lock(&m_mutex);
    return m_requests;
}

void HttpTestServer::accept()
{
    while (QTcpSocket *socket = m_server->nextPendingConnection()) {
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { receive(socket); });
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        if (socket->bytesAvailable() > 0)
            receive(socket);
    }
}

void HttpTestServer::receive(QTcpSocket *socket)
{
    const QByteArray received = socket->property("received").toByteArray() + socket->readAll();
    socket->setProperty("received", received);
    const qsizetype end = received.indexOf("\r\n\r\n");
    if (end < 0)
        return;
    socket->setProperty("received", QByteArray());
    QList<QByteArray> lines = received.left(end).split('\n');
    const QList<QByteArray> first = lines.takeFirst().trimmed().split(' ');
    const QUrl target = QUrl::fromEncoded(first.value(1));
    Request request{first.value(0), target.path().toUtf8(), QUrlQuery(target), {}};
    for (const QByteArray &line : lines) {
        const qsizetype colon = line.indexOf(':');
        request.headers.insert(line.left(colon).trimmed().toLower(), line.mid(colon + 1).trimmed());
    }
    answer(socket, request);
}

void HttpTestServer::answer(QTcpSocket *socket, const Request &request)
{
    QMutexLocker lock(&m_mutex);
    m_requests.append(request);
    const Answer answer = m_answers.value(request.path, Answer{.status = 404, .body = "{}"});
    lock.unlock();
    if (answer.manner == Manner::Silent)
        return;
    if (answer.manner == Manner::HangsUp) {
        socket->abort();
        return;
    }
    if (answer.manner != Manner::Babbles) {
        socket->write("HTTP/1.1 " + QByteArray::number(answer.status) + " Told\r\n");
        socket->write("Content-Type: " + answer.contentType + "\r\n");
        if (answer.manner != Manner::Endless)
            socket->write("Content-Length: " +
                          QByteArray::number(answer.declaredSize.value_or(answer.body.size())) + "\r\n");
        for (const QByteArray &header : answer.headers)
            socket->write(header + "\r\n");
        socket->write("Connection: close\r\n\r\n");
    }
    sendBody(socket, answer);
}

void HttpTestServer::sendBody(QTcpSocket *socket, const Answer &answer)
{
    const QByteArray half = answer.body.left(answer.body.size() / 2);
    switch (answer.manner) {
    case Manner::ClosesMidway:
        socket->write(half);
        socket->disconnectFromHost();
        break;
    case Manner::StopsMidway:
        socket->write(half);
        break;
    case Manner::Drips: {
        auto *const timer = new QTimer(socket);
        QObject::connect(timer, &QTimer::timeout, socket, [socket, body = answer.body]() mutable {
            socket->write(body.left(1));
            body.remove(0, 1);
        });
        timer->start(50);
        break;
    }
    case Manner::Endless: {
        const auto more = [socket, body = answer.body] {
            while (socket->bytesToWrite() < 65536 && socket->state() == QAbstractSocket::ConnectedState)
                socket->write(body);
        };
        QObject::connect(socket, &QTcpSocket::bytesWritten, socket, more);
        more();
        break;
    }
    default:
        socket->write(answer.body);
        socket->disconnectFromHost();
    }
}
