#include "orv/core/Error.h"

#include <orv/core/Logging.h>

#include <QSharedData>

namespace orv {

class Error::Data : public QSharedData
{
public:
    ErrorCode code = ErrorCode::NoError;
    QStringList messages;
    QStringList details;
    QList<ErrorPlace> trail;
};

Error::Error() = default;
Error::Error(const Error &other) = default;
Error::Error(Error &&other) noexcept = default;
Error &Error::operator=(const Error &other) = default;
Error &Error::operator=(Error &&other) noexcept = default;
Error::~Error() = default;

Error::Error(ErrorCode code)
    : Error(code, QStringList())
{}

Error::Error(ErrorCode code, const QString &message)
    : Error(code, QStringList(message))
{}

Error::Error(ErrorCode code, const QStringList &messages)
{
    if (code == ErrorCode::NoError)
        return;
    d = new Data;
    d->code = code;
    d->messages = messages;
}

ErrorCode Error::code() const
{
    return hasError() ? d->code : ErrorCode::NoError;
}

bool Error::hasError() const
{
    return d.constData() != nullptr;
}

QString Error::errorMessage() const
{
    return errorMessages().join(QLatin1Char('\n'));
}

QStringList Error::errorMessages() const
{
    return hasError() ? d->messages : QStringList();
}

QStringList Error::details() const
{
    return hasError() ? d->details : QStringList();
}

Error &Error::addMessage(const QString &message)
{
    if (hasError())
        d->messages.append(message);
    return *this;
}

Error &Error::addDetail(const QString &detail)
{
    if (hasError())
        d->details.append(detail);
    return *this;
}

Error &Error::ecatch(const char *function, const char *file, int line)
{
    if (!hasError())
        return *this;
    d->trail.append({QString::fromUtf8(function), QString::fromUtf8(file), line});
    qCInfo(genericLog).noquote() << "Error passed on by" << function << "in" << file << "line" << line << ":"
                                 << errorMessage();
    return *this;
}

Error &Error::ecatch(SourceLocation place)
{
    return ecatch(place.function_name(), place.file_name(), static_cast<int>(place.line()));
}

QList<ErrorPlace> Error::trail() const
{
    return hasError() ? d->trail : QList<ErrorPlace>();
}

} // namespace orv
