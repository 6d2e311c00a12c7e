#include "orv/project/DocumentDatabaseHandler.h"

#include <algorithm>

namespace orv {

DocumentDatabaseHandler::DocumentDatabaseHandler(std::unique_ptr<SqliteConnection> connection)
    : m_connection(std::move(connection))
{}

Result<std::unique_ptr<DocumentDatabaseHandler>> DocumentDatabaseHandler::open(const QString &connectionName,
                                                                               const QString &fileName)
{
    auto connection = SqliteConnection::open(connectionName, fileName);
    if (!connection)
        return connection.ecatch();
    return std::unique_ptr<DocumentDatabaseHandler>(
        new DocumentDatabaseHandler(std::move(connection.value())));
}

Result<int> DocumentDatabaseHandler::schemaVersion() const
{
    auto rows = m_connection->rows(QStringLiteral("PRAGMA user_version"));
    if (!rows)
        return rows.ecatch();
    return rows->isEmpty() ? 1 : std::max(1, rows->constFirst().value(0).toInt());
}

} // namespace orv
