#include "HttpErrors.h"

#include <orv/core/JsonUtils.h>

#include <QCoreApplication>
#include <QRegularExpression>

#include <array>

namespace orv::HttpErrors {

namespace {

struct HttpErrorsTr
{
    Q_DECLARE_TR_FUNCTIONS(Servers)
};

struct NetworkRow
{
    QNetworkReply::NetworkError error;
    const char *message;
    const char *remedy;
};

struct StatusRow
{
    int first;
    int last;
    const char *message;
    const char *remedy;
};

// clang-format off
constexpr NetworkRow kUnreachable{QNetworkReply::UnknownNetworkError, QT_TRANSLATE_NOOP("Servers", "The server \"%1\" can't be reached."), QT_TRANSLATE_NOOP("Servers", "Look at the network, and at the address in the setting \"%1\".")};

constexpr const char *kRedirected = QT_TRANSLATE_NOOP("Servers", "The server \"%1\" sends to another place, which isn't followed.");
constexpr const char *kMendAddress = QT_TRANSLATE_NOOP("Servers", "Set \"%1\" to the address at which the server itself answers.");

constexpr std::array kNetworkRows = {
    NetworkRow{QNetworkReply::InsecureRedirectError, kRedirected, kMendAddress},
    NetworkRow{QNetworkReply::TooManyRedirectsError, kRedirected, kMendAddress},
    NetworkRow{QNetworkReply::ProtocolInvalidOperationError, kRedirected, kMendAddress},
    NetworkRow{QNetworkReply::SslHandshakeFailedError, QT_TRANSLATE_NOOP("Servers", "The server \"%1\" can't be trusted."), QT_TRANSLATE_NOOP("Servers", "Have this machine trust the server's certificate, or mend the address in the setting \"%1\".")},
};

constexpr const char *kRefused = QT_TRANSLATE_NOOP("Servers", "The server \"%1\" refuses access.");
constexpr const char *kGone = QT_TRANSLATE_NOOP("Servers", "The server \"%1\" has no such thing.");
constexpr const char *kBusy = QT_TRANSLATE_NOOP("Servers", "The server \"%1\" is busy.");
constexpr const char *kTryLater = QT_TRANSLATE_NOOP("Servers", "Try again later.");
constexpr const char *kGiveToken = QT_TRANSLATE_NOOP("Servers", "Put a valid token into the environment variable %2.");

constexpr std::array kStatusRows = {
    StatusRow{401, 401, kRefused, kGiveToken},
    StatusRow{403, 403, kRefused, QT_TRANSLATE_NOOP("Servers", "Ask for the right to read it, or put the token of somebody who has it into the environment variable %2.")},
    StatusRow{404, 404, kGone, QT_TRANSLATE_NOOP("Servers", "It was moved or deleted, or the address in the setting \"%1\" is that of another server.")},
    StatusRow{410, 410, kGone, QT_TRANSLATE_NOOP("Servers", "It was deleted.")},
    StatusRow{429, 429, kBusy, kTryLater},
    StatusRow{503, 503, kBusy, kTryLater},
    StatusRow{500, 599, QT_TRANSLATE_NOOP("Servers", "The server \"%1\" failed."), QT_TRANSLATE_NOOP("Servers", "Try again later, or tell those who run the server.")},
    StatusRow{0, 999, QT_TRANSLATE_NOOP("Servers", "The server \"%1\" did not understand the request."), QT_TRANSLATE_NOOP("Servers", "See whether the address in the setting \"%1\" is that of a server of the right kind and version.")},
};
// clang-format on

Error make(ErrorCode code, const char *message, const ServerSettings &server, const char *remedy)
{
    const QString advice = HttpErrorsTr::tr(remedy).replace(QLatin1String("%1"), server.addressKey());
    return Error(code, HttpErrorsTr::tr(message).arg(server.host()))
        .addDetail(QString(advice).replace(QLatin1String("%2"), server.tokenVariable()));
}

/// A server may repeat what it was sent, in another case and with percent codes, also those of such codes.
QString withoutToken(const ServerSettings &server, QString text)
{
    QString pattern;
    for (const char c : server.token()) {
        pattern += QStringLiteral("(?:%1|%(?:25)*%2)")
                       .arg(QRegularExpression::escape(QString(QLatin1Char(c))),
                            QString::number(uchar(c), 16).rightJustified(2, u'0'));
    }
    if (!pattern.isEmpty())
        text.replace(QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption),
                     QStringLiteral("..."));
    return text;
}

/// What an error answer says for people, one line of it; nothing when it isn't in the form told.
QString wordsOf(const ServerSettings &server, const HttpAnswer &answer)
{
    constexpr qsizetype kMaxLength = 300;
    const Result<QJsonObject> json = JsonUtils::objectFromJson(answer.body);
    const QString words = json.valueOr({}).value(QLatin1String("message")).toString();
    return withoutToken(server, words).simplified().left(kMaxLength);
}

} // namespace

Error silent(const ServerSettings &server)
{
    return make(ErrorCode::CannotOpenFile,
                QT_TRANSLATE_NOOP("Servers", "The server \"%1\" did not answer in time."), server, kTryLater);
}

Error cutShort(const ServerSettings &server)
{
    return make(ErrorCode::InvalidContent,
                QT_TRANSLATE_NOOP("Servers", "The answer of the server \"%1\" was cut short."), server,
                kTryLater);
}

Error tooLarge(const ServerSettings &server, qint64 maxSize)
{
    return make(ErrorCode::InvalidContent,
                QT_TRANSLATE_NOOP("Servers", "The answer of the server \"%1\" is too large."), server,
                QT_TRANSLATE_NOOP("Servers",
                                  "See whether the address in the setting \"%1\" is the right one."))
        .addDetail(HttpErrorsTr::tr("At most %1 bytes are taken.").arg(maxSize));
}

Error cannotStore(const ServerSettings &server, const QString &reason)
{
    return make(ErrorCode::CannotOpenFile,
                QT_TRANSLATE_NOOP("Servers", "What the server \"%1\" sends can't be stored."), server,
                QT_TRANSLATE_NOOP("Servers", "Make room on the disk, or set another folder."))
        .addDetail(reason);
}

Error network(const ServerSettings &server, QNetworkReply::NetworkError error, const QString &reason)
{
    const auto *const found = std::find_if(kNetworkRows.begin(), kNetworkRows.end(),
                                           [error](const NetworkRow &row) { return row.error == error; });
    const NetworkRow &row = found == kNetworkRows.end() ? kUnreachable : *found;
    Error result = make(ErrorCode::CannotOpenFile, row.message, server, row.remedy);
    if (row.message != kRedirected) // whose reason names the other place
        result.addDetail(withoutToken(server, reason));
    return result;
}

Error status(const ServerSettings &server, const HttpAnswer &answer)
{
    const auto *const row =
        std::find_if(kStatusRows.begin(), kStatusRows.end(), [&answer](const StatusRow &r) {
            return r.first <= answer.status && answer.status <= r.last;
        });
    Error result = make(ErrorCode::CannotOpenFile, row->message, server, row->remedy);
    if (const QString words = wordsOf(server, answer); !words.isEmpty())
        result.addDetail(HttpErrorsTr::tr("It says: %1").arg(words));
    return result.addDetail(HttpErrorsTr::tr("Its answer has the status %1.").arg(answer.status));
}

Error wrongType(const ServerSettings &server, const HttpAnswer &answer, const QByteArray &wanted)
{
    constexpr qsizetype kMaxLength = 100;
    return make(ErrorCode::InvalidContent,
                QT_TRANSLATE_NOOP("Servers", "The server \"%1\" answers something else than was asked for."),
                server,
                QT_TRANSLATE_NOOP("Servers",
                                  "Something in between may have answered, such as the sign-in page of "
                                  "a network. See also whether the address in the setting \"%1\" is the "
                                  "right one."))
        .addDetail(HttpErrorsTr::tr("It sends \"%1\" in place of \"%2\".")
                       .arg(withoutToken(server, QString::fromLatin1(answer.contentType)).left(kMaxLength),
                            QString::fromLatin1(wanted)));
}

Error unreadable(const ServerSettings &server, const Error &reason)
{
    Error error = make(ErrorCode::InvalidContent,
                       QT_TRANSLATE_NOOP("Servers", "The answer of the server \"%1\" can't be read."), server,
                       QT_TRANSLATE_NOOP("Servers", "Tell those who run the server."));
    for (const QString &text : reason.errorMessages() + reason.details())
        error.addDetail(withoutToken(server, text));
    return error;
}

} // namespace orv::HttpErrors
