#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/core/SqliteConnection.h>

#include <QString>

#include <memory>

namespace orv {

/// An open project, which is an SQLite file (docs/formats.md). It is open for reading alone, belongs to the
/// thread that opened it, and is closed as it is destroyed. Any number may be open at a time, also of one
/// file and of one name.
class ORV_WORKFLOW_EXPORT DocumentDatabaseHandler
{
public:
    /// \a connectionName tells what the project is opened for. Errors as those of SqliteConnection::open.
    [[nodiscard]] static Result<std::unique_ptr<DocumentDatabaseHandler>> open(const QString &connectionName,
                                                                               const QString &fileName);

    [[nodiscard]] QString fileName() const { return m_connection->path(); }
    [[nodiscard]] const SqliteConnection &connection() const { return *m_connection; }

    /// Which of the forms of a project this is, from 1; projects of the first form don't tell it. May be
    /// higher than what this version knows.
    [[nodiscard]] Result<int> schemaVersion() const;

private:
    explicit DocumentDatabaseHandler(std::unique_ptr<SqliteConnection> connection);

    std::unique_ptr<SqliteConnection> m_connection;
};

} // namespace orv
