#pragma once

#include <orv/core/Export.h>
#include <orv/core/SourceLocation.h>

#include <QList>
#include <QSharedDataPointer>
#include <QString>
#include <QStringList>

namespace orv {

/// What kind of failure an Error reports. The numbers are part of the command line's JSON: never renumber.
enum class ErrorCode
{
    NoError = 0,
    MalformedStructure = 1, ///< the structure of a document is broken, or an upgrade step can't be done
    InvalidContent = 2,     ///< the structure holds, the content is not allowed
    CannotOpenFile = 4,     ///< a file can't be opened for reading or writing
};

/// One place in the code that an Error has passed on its way up.
struct ErrorPlace
{
    QString function;
    QString file;
    int line = 0;
};

/// A failure as a value: a code, messages for the user, details, and the trail of places that passed it on.
///
/// Every fallible function returns an Error or a Result; each level that passes one on calls ecatch() once:
/// \code
///     if (Error error = loadTab(json))
///         return error.ecatch();
/// \endcode
/// A successful Error costs one null pointer. Copies share their data. Not thread bound.
class [[nodiscard]] ORV_WORKFLOW_EXPORT Error
{
public:
    static constexpr ErrorCode NoError = ErrorCode::NoError;

    Error();
    Error(ErrorCode code); // implicit: `return Error::NoError;`
    Error(ErrorCode code, const QString &message);
    Error(ErrorCode code, const QStringList &messages);
    Error(const Error &other);
    Error(Error &&other) noexcept;
    Error &operator=(const Error &other);
    Error &operator=(Error &&other) noexcept;
    ~Error();

    [[nodiscard]] ErrorCode code() const;
    [[nodiscard]] bool hasError() const;
    explicit operator bool() const { return hasError(); }

    /// All messages, one per line.
    [[nodiscard]] QString errorMessage() const;
    [[nodiscard]] QStringList errorMessages() const;

    /// What stands beside the messages, never in them: the place in the file, the offending value, the
    /// remedy. Hosts show them behind the message.
    [[nodiscard]] QStringList details() const;

    /// Adds to a failure; on a success they are ignored, as there is nothing to explain.
    Error &addMessage(const QString &message);
    Error &addDetail(const QString &detail);

    /// Records and logs (level info) the place that passes this failure on, and returns it unchanged
    /// otherwise. On a success it does nothing.
    Error &ecatch(const char *function, const char *file, int line);
    Error &ecatch(SourceLocation place = SourceLocation::current());

    /// The places that passed this failure on, the innermost first.
    [[nodiscard]] QList<ErrorPlace> trail() const;

private:
    class Data;
    QSharedDataPointer<Data> d;
};

} // namespace orv

/// Returns the Error of an expression to the caller, with this place recorded, if it is a failure.
#define ORV_RETURN_IF_ERROR(expression)                                                                      \
    do {                                                                                                     \
        if (::orv::Error orvError = (expression); orvError.hasError())                                       \
            return orvError.ecatch();                                                                        \
    } while (false)
