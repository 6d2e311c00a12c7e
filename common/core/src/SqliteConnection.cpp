#include "orv/core/SqliteConnection.h"

#include <orv/core/FileUtils.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QUrl>

#include <algorithm>
#include <array>
#include <atomic>

namespace orv {

namespace {

struct SqliteConnectionTr
{
    Q_DECLARE_TR_FUNCTIONS(SqliteConnection)
};

const QString &driverName()
{
    static const QString name = QStringLiteral("QSQLITE");
    return name;
}

// From the description of SQLite's file format.
constexpr qint64 kHeaderSize = 100;
constexpr QByteArrayView kMagic("SQLite format 3\0", 16);
constexpr qsizetype kReadVersionPlace = 19;
constexpr char kWriteAheadVersion = 2;

// SQLite's result codes, which are a fixed part of its interface.
struct Failure
{
    int number;
    ErrorCode code;
    const char *remedy;
};

constexpr const char *kInUse =
    QT_TRANSLATE_NOOP("SqliteConnection", "Another program is using it. Close it there, or try again later.");
constexpr const char *kDamaged =
    QT_TRANSLATE_NOOP("SqliteConnection", "The file is damaged or cut short. Restore it from a copy.");
constexpr const char *kInterrupted = QT_TRANSLATE_NOOP(
    "SqliteConnection", "A program was interrupted while it wrote the file. Open it once with "
                        "that program, which mends it.");
constexpr const char *kNoAccess =
    QT_TRANSLATE_NOOP("SqliteConnection", "Check the rights on the file and its folder, and the disk.");

constexpr const char *kOtherForm = QT_TRANSLATE_NOOP(
    "SqliteConnection",
    "The file doesn't have the form that is expected. Name another one, or create it anew.");

constexpr std::array kFailures = {
    Failure{1, ErrorCode::MalformedStructure, kOtherForm}, // SQLITE_ERROR
    Failure{5, ErrorCode::CannotOpenFile, kInUse},         // SQLITE_BUSY
    Failure{6, ErrorCode::CannotOpenFile, kInUse},         // SQLITE_LOCKED
    Failure{8, ErrorCode::CannotOpenFile, kInterrupted}, // SQLITE_READONLY, of a journal that is to be undone
    Failure{10, ErrorCode::CannotOpenFile, kNoAccess},   // SQLITE_IOERR
    Failure{11, ErrorCode::MalformedStructure, kDamaged}, // SQLITE_CORRUPT
    Failure{13, ErrorCode::CannotOpenFile, kNoAccess},    // SQLITE_FULL
    Failure{14, ErrorCode::CannotOpenFile, kNoAccess},    // SQLITE_CANTOPEN
    Failure{26, ErrorCode::MalformedStructure, kDamaged}, // SQLITE_NOTADB
};

Error failureOf(const QString &path, const QSqlError &error)
{
    // The upper bytes only refine the code.
    const int number = error.nativeErrorCode().toInt() & 0xff;
    const auto *const failure =
        std::ranges::find_if(kFailures, [number](const Failure &f) { return f.number == number; });
    const bool known = failure != kFailures.end();
    Error result(known ? failure->code : ErrorCode::MalformedStructure,
                 SqliteConnectionTr::tr("Could not read the database: %1").arg(path));
    result.addDetail(error.databaseText().isEmpty() ? error.driverText() : error.databaseText());
    if (known)
        result.addDetail(SqliteConnectionTr::tr(failure->remedy));
    return result;
}

Error notADatabase(const QString &path, const QString &reason)
{
    return Error(ErrorCode::MalformedStructure,
                 SqliteConnectionTr::tr("Could not read the database: %1").arg(path))
        .addDetail(reason)
        .addDetail(SqliteConnectionTr::tr("Name a file that one of the applications has written."));
}

Error cannotWrite(const QString &path, const QString &reason)
{
    return Error(ErrorCode::CannotOpenFile, SqliteConnectionTr::tr("Could not write the file: %1").arg(path))
        .addDetail(reason);
}

bool hasPendingLog(const QString &path)
{
    return QFileInfo(path + QLatin1String("-wal")).size() > 0;
}

/// How SQLite is to open a file of which these are the first bytes. A file with a write-ahead log makes
/// SQLite create companions even for a reader; without a log in progress the file is all there is, and with
/// one the companions are there already.
Result<QString> readingUri(const QString &path)
{
    const Result<QByteArray> header = FileUtils::readBeginning(path, kHeaderSize);
    if (!header)
        return header.error();
    if (header->isEmpty())
        return notADatabase(path, SqliteConnectionTr::tr("The file is empty."));
    if (!header->startsWith(kMagic))
        return notADatabase(path, SqliteConnectionTr::tr("The file is no SQLite database."));
    if (header->size() < kHeaderSize)
        return notADatabase(
            path, SqliteConnectionTr::tr("The file is cut short after %1 bytes.").arg(header->size()));

    // SQLite keeps its companions beside the file that a link leads to.
    const QString target = QFileInfo(path).canonicalFilePath();
    QString uri = QString::fromLatin1(QUrl::fromLocalFile(target).toEncoded());
    uri += QLatin1String("?mode=ro");
    if (header->at(kReadVersionPlace) == kWriteAheadVersion)
        uri += hasPendingLog(target) ? QLatin1String("&readonly_shm=1") : QLatin1String("&immutable=1");
    return uri;
}

} // namespace

class SqliteConnection::Private
{
public:
    Private(const QString &purpose, QString filePath)
        : name(uniqueName(purpose))
        , path(std::move(filePath))
    {}

    ~Private()
    {
        database.close();
        // A connection is removed once no handle to it is left.
        database = QSqlDatabase();
        if (QSqlDatabase::contains(name))
            QSqlDatabase::removeDatabase(name);
    }
    Q_DISABLE_COPY_MOVE(Private)

    Error open(const QString &databaseName, const QString &options)
    {
        if (!QSqlDatabase::isDriverAvailable(driverName())) {
            return Error(ErrorCode::CannotOpenFile,
                         SqliteConnectionTr::tr("Could not read the database: %1").arg(path))
                .addDetail(SqliteConnectionTr::tr(
                    "Qt's driver for SQLite isn't installed, or the program has no application "
                    "object. On Debian install libqt6sql6-sqlite."));
        }
        database = QSqlDatabase::addDatabase(driverName(), name);
        database.setConnectOptions(options);
        database.setDatabaseName(databaseName);
        return database.open() ? Error() : failureOf(path, database.lastError());
    }

    Result<QSqlQuery> run(const QString &statement, const QVariantList &values) const
    {
        QSqlQuery query(database);
        query.setForwardOnly(true);
        if (!query.prepare(statement))
            return failureOf(path, query.lastError());
        for (const QVariant &value : values)
            query.addBindValue(value);
        if (!query.exec())
            return failureOf(path, query.lastError());
        return query;
    }

    const QString name;
    const QString path;
    QSqlDatabase database;

private:
    static QString uniqueName(const QString &purpose)
    {
        static std::atomic<quint64> counter = 0;
        return QStringLiteral("%1-%2").arg(purpose).arg(++counter);
    }
};

SqliteConnection::SqliteConnection(std::unique_ptr<Private> data)
    : d(std::move(data))
{}

SqliteConnection::~SqliteConnection() = default;

Result<std::unique_ptr<SqliteConnection>> SqliteConnection::open(const QString &name, const QString &path)
{
    Result<QString> uri = readingUri(path);
    if (!uri)
        return uri.ecatch();
    auto data = std::make_unique<Private>(name, path);
    // A writer holds the file for moments only; the wait is in milliseconds.
    ORV_RETURN_IF_ERROR(
        data->open(*uri, QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=1000")));
    std::unique_ptr<SqliteConnection> connection(new SqliteConnection(std::move(data)));
    ORV_RETURN_IF_ERROR(connection->execute(QStringLiteral("PRAGMA trusted_schema = OFF")));
    ORV_RETURN_IF_ERROR(connection->execute(QStringLiteral("PRAGMA cell_size_check = ON")));
    return connection;
}

Error SqliteConnection::createFile(const QString &path, const std::function<Error(SqliteConnection &)> &fill)
{
    if (QFileInfo::exists(path)) {
        return Error(ErrorCode::InvalidContent,
                     SqliteConnectionTr::tr("The file exists already: %1").arg(path))
            .addDetail(SqliteConnectionTr::tr("Choose another name, or remove the file first."));
    }
    const QTemporaryDir folder;
    if (!folder.isValid())
        return cannotWrite(path, folder.errorString());
    const QString draft = folder.filePath(QStringLiteral("draft"));
    {
        auto data = std::make_unique<Private>(QStringLiteral("newFileConnection"), draft);
        ORV_RETURN_IF_ERROR(data->open(draft, {}));
        SqliteConnection connection(std::move(data));
        ORV_RETURN_IF_ERROR(connection.execute(QStringLiteral("BEGIN")));
        ORV_RETURN_IF_ERROR(fill(connection));
        ORV_RETURN_IF_ERROR(connection.execute(QStringLiteral("COMMIT")));
    }
    const Result<QByteArray> bytes = FileUtils::readFile(draft);
    if (!bytes)
        return Error(bytes.error()).ecatch();
    QString reason;
    if (FileUtils::writeToFile(path, *bytes, &reason) == QFileDevice::NoError)
        return Error::NoError;
    return cannotWrite(path, reason);
}

QString SqliteConnection::name() const
{
    return d->name;
}

QString SqliteConnection::path() const
{
    return d->path;
}

Result<QList<QVariantList>> SqliteConnection::rows(const QString &statement, const QVariantList &values) const
{
    Result<QSqlQuery> query = d->run(statement, values);
    if (!query)
        return query.ecatch();
    const int width = query->record().count();
    QList<QVariantList> rows;
    while (query->next()) {
        QVariantList row;
        row.reserve(width);
        for (int column = 0; column < width; ++column)
            row.append(query->value(column));
        rows.append(row);
    }
    // A damaged page ends the rows as the last one does.
    if (query->lastError().isValid())
        return failureOf(d->path, query->lastError());
    return rows;
}

Error SqliteConnection::execute(const QString &statement, const QVariantList &values) const
{
    Result<QSqlQuery> query = d->run(statement, values);
    return query ? Error() : query.ecatch();
}

Result<bool> SqliteConnection::hasTable(const QString &table) const
{
    // A column that is hidden in the second way is computed whenever it is read.
    const auto found = rows(QStringLiteral("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ? "
                                           "COLLATE NOCASE AND sql LIKE 'CREATE TABLE%' AND NOT EXISTS "
                                           "(SELECT 1 FROM pragma_table_xinfo(?) WHERE hidden = 2) LIMIT 1"),
                            {table, table});
    if (!found)
        return Error(found.error()).ecatch();
    return !found->isEmpty();
}

Result<QStringList> SqliteConnection::columns(const QString &table) const
{
    const auto found = rows(QStringLiteral("SELECT name FROM pragma_table_info(?)"), {table});
    if (!found)
        return Error(found.error()).ecatch();
    QStringList names;
    for (const QVariantList &row : *found)
        names.append(row.constFirst().toString());
    return names;
}

} // namespace orv
