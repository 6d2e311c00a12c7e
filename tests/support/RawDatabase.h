#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>

/// An SQLite file as any other program has it open, to make what the library itself would never write.
class RawDatabase
{
public:
    explicit RawDatabase(const QString &path)
        : m_name(QStringLiteral("raw-%1").arg(quintptr(this)))
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name);
        database.setDatabaseName(path);
        if (!database.open())
            qFatal("Cannot open %s", qPrintable(path));
    }
    ~RawDatabase() { QSqlDatabase::removeDatabase(m_name); }
    Q_DISABLE_COPY_MOVE(RawDatabase)

    void run(const QString &statement, const QVariantList &values = {})
    {
        QSqlQuery query(QSqlDatabase::database(m_name));
        query.prepare(statement);
        for (const QVariant &value : values)
            query.addBindValue(value);
        if (!query.exec())
            qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
    }

private:
    QString m_name;
};
