#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMutex>
#include <QSslConfiguration>
#include <QTcpServer>
#include <QThread>
#include <QUrl>
#include <QUrlQuery>

#include <memory>
#include <optional>

class QTcpSocket;

/// A real HTTP server on this machine, in a thread of its own, that answers as it is told and misbehaves as
/// real ones do. Paths without an answer get 404. All functions are for the test's thread.
class HttpTestServer
{
public:
    enum class Manner
    {
        Proper,
        Silent,       ///< takes the request and says nothing
        HangsUp,      ///< closes the connection without a word
        ClosesMidway, ///< sends half of the body, and closes
        StopsMidway,  ///< sends half of the body, and nothing more
        Drips,        ///< sends a byte of the body from time to time
        Endless,      ///< sends the body again and again
        Babbles,      ///< sends the body alone, which is no HTTP
    };

    struct Answer
    {
        int status = 200;
        QByteArray contentType = "application/json";
        QByteArray body = {};
        QList<QByteArray> headers = {};          ///< further ones
        std::optional<qint64> declaredSize = {}; ///< told in place of the body's own
        Manner manner = Manner::Proper;
    };

    struct Request
    {
        QByteArray method;
        QByteArray path;
        QUrlQuery query;
        QHash<QByteArray, QByteArray> headers; ///< names in lower case
    };

    /// Speaks TLS if it is given a configuration with a certificate and its key.
    explicit HttpTestServer(const std::optional<QSslConfiguration> &tls = {});
    ~HttpTestServer();
    Q_DISABLE_COPY_MOVE(HttpTestServer)

    /// "http://127.0.0.1:PORT", or with https.
    [[nodiscard]] QUrl address() const;
    void setAnswer(const QByteArray &path, const Answer &answer);
    /// All so far, in their order.
    [[nodiscard]] QList<Request> requests() const;

private:
    void listen(const std::optional<QSslConfiguration> &tls);
    void accept();
    void receive(QTcpSocket *socket);
    void answer(QTcpSocket *socket, const Request &request);
    void sendBody(QTcpSocket *socket, const Answer &answer);

    QThread m_thread;
    std::unique_ptr<QTcpServer> m_server; // lives in the thread
    quint16 m_port = 0;
    bool m_isEncrypted = false;
    mutable QMutex m_mutex;
    QHash<QByteArray, Answer> m_answers;
    QList<Request> m_requests;
};
