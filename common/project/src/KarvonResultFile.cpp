#include "orv/project/KarvonResultFile.h"

#include <orv/core/FileUtils.h>
#include <orv/core/SqliteConnection.h>

#include <QCoreApplication>

namespace orv {

namespace {

struct KarvonResultFileTr
{
    Q_DECLARE_TR_FUNCTIONS(KarvonResultFile)
};

// Stored in files.
const QString &tableName()
{
    static const QString name = QStringLiteral("MsFiles");
    return name;
}

constexpr int kMaxFiles = 100'000;

/// Whether the list fits into memory without harm.
Error checkSize(const SqliteConnection &connection)
{
    const QString statement = QStringLiteral("SELECT COUNT(*), TOTAL(LENGTH(Reference)) FROM %1");
    auto rows = connection.rows(statement.arg(tableName()));
    if (!rows)
        return rows.ecatch();
    const QVariantList &counts = rows->constFirst();
    if (counts.value(0).toLongLong() <= kMaxFiles &&
        counts.value(1).toDouble() <= double(FileUtils::kMaxFileSize))
        return Error::NoError;
    return Error(ErrorCode::InvalidContent,
                 KarvonResultFileTr::tr("The list of MS files is too large: %1").arg(connection.path()))
        .addDetail(KarvonResultFileTr::tr(
                       "At most %1 references are read. Restore the file from a copy, or search anew.")
                       .arg(kMaxFiles));
}

Error fill(const SqliteConnection &connection, const QStringList &msFiles)
{
    ORV_RETURN_IF_ERROR(connection.execute(
        QStringLiteral("CREATE TABLE %1 (Position INTEGER PRIMARY KEY, Reference TEXT NOT NULL)")
            .arg(tableName())));
    const QString statement = QStringLiteral("INSERT INTO %1 (Reference) VALUES (?)").arg(tableName());
    for (const QString &file : msFiles)
        ORV_RETURN_IF_ERROR(connection.execute(statement, {file}));
    return Error::NoError;
}

} // namespace

Result<QStringList> getMSFilesFromKarvrslt(const QString &path)
{
    auto connection = SqliteConnection::open(QStringLiteral("karvonResultConnection"), path);
    if (!connection)
        return connection.ecatch();
    Result<bool> hasTable = connection.value()->hasTable(tableName());
    if (!hasTable)
        return hasTable.ecatch();
    if (!*hasTable)
        return QStringList();
    ORV_RETURN_IF_ERROR(checkSize(*connection.value()));
    auto rows = connection.value()->rows(
        QStringLiteral("SELECT Reference FROM %1 ORDER BY Position").arg(tableName()));
    if (!rows)
        return rows.ecatch();
    QStringList files;
    files.reserve(rows->size());
    for (const QVariantList &row : *rows)
        files.append(row.constFirst().toString());
    return files;
}

Error createKarvrslt(const QString &path, const QStringList &msFiles)
{
    ORV_RETURN_IF_ERROR(SqliteConnection::createFile(
        path, [&msFiles](SqliteConnection &connection) { return fill(connection, msFiles); }));
    return Error::NoError;
}

} // namespace orv
