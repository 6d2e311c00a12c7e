#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <functional>
#include <memory>

namespace orv {

/// A connection to one SQLite file. Each has a name of its own, so that any number may be open at a time, on
/// any threads; one connection belongs to the thread that opened it, and closes the file as it is destroyed.
///
/// The file may come from anywhere: its schema is not trusted with functions that have side effects. Errors
/// name the file in the message, and have the reason and the remedy as details: CannotOpenFile when it is
/// missing, unreadable or in use, MalformedStructure when it is damaged or no database.
/// \code
///     auto connection = SqliteConnection::open(u"resultConnection"_s, path);
///     if (!connection)
///         return connection.ecatch();
///     auto rows = connection.value()->rows(u"SELECT Reference FROM MsFiles WHERE Position < ?"_s, {10});
/// \endcode
class ORV_WORKFLOW_EXPORT SqliteConnection
{
public:
    /// Opens an existing file for reading. Nothing is created or changed, also no companion file of SQLite's;
    /// what an interrupted writer left in such a file is an error, as it can't be seen without it.
    /// \a name tells what the connection is for; a number is added to it.
    [[nodiscard]] static Result<std::unique_ptr<SqliteConnection>> open(const QString &name,
                                                                        const QString &path);

    /// Makes a new file of what \a fill writes, whole or not at all. Fails with InvalidContent if there is
    /// such a file, with the error of \a fill, and with CannotOpenFile if it can't be written.
    static Error createFile(const QString &path, const std::function<Error(SqliteConnection &)> &fill);

    ~SqliteConnection();
    Q_DISABLE_COPY_MOVE(SqliteConnection)

    /// Unique in the process.
    [[nodiscard]] QString name() const;
    [[nodiscard]] QString path() const;

    /// The rows of a statement with \a values in the places of its question marks. All are read: the
    /// statement has to bound them.
    [[nodiscard]] Result<QList<QVariantList>> rows(const QString &statement,
                                                   const QVariantList &values = {}) const;
    Error execute(const QString &statement, const QVariantList &values = {}) const;

    /// Whether there is a plain table of that name. A view, a virtual table and one with computed columns are
    /// none, as reading them would run what the file says.
    [[nodiscard]] Result<bool> hasTable(const QString &table) const;
    /// The names of its columns; empty for a table that isn't there.
    [[nodiscard]] Result<QStringList> columns(const QString &table) const;

private:
    class Private;
    explicit SqliteConnection(std::unique_ptr<Private> data);

    std::unique_ptr<Private> d;
};

} // namespace orv
