#include "orv/core_ms/Ulvar2Dao.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <atomic>

namespace orv::ulvar2 {

namespace {

struct Ulvar2DaoTr
{
    Q_DECLARE_TR_FUNCTIONS(Ulvar2Dao)
};

Error cannotOpen(const QString &path, const QString &detail)
{
    return Error(ErrorCode::CannotOpenFile, Ulvar2DaoTr::tr("Could not open the file: %1").arg(path))
        .addDetail(detail);
}

Error damaged(const QString &path, const QString &detail)
{
    return Error(ErrorCode::InvalidContent, Ulvar2DaoTr::tr("The Ulvar2 file can't be read: %1").arg(path))
        .addDetail(detail)
        .addDetail(Ulvar2DaoTr::tr("Process or copy the sample again."));
}

QString newConnectionName()
{
    static std::atomic<quint64> count = 0;
    return QStringLiteral("orv-ulvar2-%1").arg(++count);
}

Error checkIsDatabase(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return cannotOpen(path, Ulvar2DaoTr::tr("It isn't there, or its folder can't be read."));
    if (!info.isFile())
        return cannotOpen(path, Ulvar2DaoTr::tr("It is no regular file."));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return cannotOpen(path, file.errorString());
    const QByteArrayView magic("SQLite format 3\0", 16);
    if (file.read(magic.size()) != magic)
        return damaged(path, Ulvar2DaoTr::tr("It is no SQLite database."));
    return Error::NoError;
}

} // namespace

Ulvar2Dao::Ulvar2Dao() = default;

Ulvar2Dao::~Ulvar2Dao()
{
    close();
}

void Ulvar2Dao::close()
{
    if (m_connection.isEmpty())
        return;
    QSqlDatabase::removeDatabase(m_connection);
    m_connection.clear();
}

Error Ulvar2Dao::open(const QString &path)
{
    close();
    ORV_RETURN_IF_ERROR(checkIsDatabase(path));
    m_path = path;
    m_connection = newConnectionName();
    QString reason;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
        database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=2000"));
        database.setDatabaseName(QFileInfo(path).absoluteFilePath());
        if (!database.isValid())
            reason = Ulvar2DaoTr::tr(
                "The SQLite driver of Qt is missing; on Debian: apt-get install libqt6sql6-sqlite");
        else if (!database.open())
            reason = database.lastError().text();
    }
    if (reason.isEmpty())
        return Error::NoError;
    close();
    return cannotOpen(path, reason).ecatch();
}

/// Whether to read the records is to read what the file stores. A view or virtual table of that name, and a
/// column whose values are computed as they are read, could keep SQLite busy without end.
Error Ulvar2Dao::checkTable(QSqlQuery &query) const
{
    if (!query.exec(QStringLiteral("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = 'Info' "
                                   "AND sql LIKE 'CREATE TABLE%'")))
        return damaged(m_path, query.lastError().text());
    if (!query.next())
        return damaged(m_path, Ulvar2DaoTr::tr("It has no table \"Info\"."));
    constexpr int computed = 2;
    if (!query.exec(
            QStringLiteral("SELECT 1 FROM pragma_table_xinfo('Info') WHERE hidden = %1").arg(computed)))
        return damaged(m_path, query.lastError().text());
    return query.next() ? damaged(m_path, Ulvar2DaoTr::tr("Its table \"Info\" has computed columns."))
                        : Error();
}

Result<QList<InfoRecord>> Ulvar2Dao::readInfos() const
{
    if (m_connection.isEmpty())
        return Error(ErrorCode::CannotOpenFile, Ulvar2DaoTr::tr("No Ulvar2 file is open."));
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.setForwardOnly(true);
    ORV_RETURN_IF_ERROR(checkTable(query));
    if (!query.exec(QStringLiteral("SELECT substr(Key, 1, %1), substr(Value, 1, %1) FROM Info LIMIT %2")
                        .arg(kMostCharacters + 1)
                        .arg(kMostInfos + 1)))
        return damaged(m_path, query.lastError().text());
    QList<InfoRecord> infos;
    while (query.next()) {
        InfoRecord info{query.value(0).toString(), query.value(1).toString()};
        if (info.key.size() > kMostCharacters || info.value.size() > kMostCharacters)
            return damaged(m_path, Ulvar2DaoTr::tr("Record %1 is too long.").arg(infos.size() + 1));
        if (infos.size() == kMostInfos)
            return damaged(m_path, Ulvar2DaoTr::tr("It has more than %1 records.").arg(kMostInfos));
        infos.append(std::move(info));
    }
    if (query.lastError().isValid())
        return damaged(m_path, query.lastError().text());
    return infos;
}

} // namespace orv::ulvar2
