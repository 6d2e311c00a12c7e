#include "Libraries.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSslSocket>

#include <csv.h>
#include <zlib.h>

namespace orv {

namespace {

QString runningSqlite()
{
    const QString connection = QStringLiteral("about-sqlite");
    QString version;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(QStringLiteral(":memory:"));
        if (database.open()) {
            QSqlQuery query(QStringLiteral("SELECT sqlite_version()"), database);
            version = query.next() ? query.value(0).toString() : QString();
        }
    }
    QSqlDatabase::removeDatabase(connection);
    return version;
}

QString runningOpenSsl()
{
    return QSslSocket::sslLibraryVersionString().section(u' ', 1, 1);
}

QString linkedCsv()
{
    return QStringLiteral("%1.%2.%3").arg(CSV_MAJOR).arg(CSV_MINOR).arg(CSV_RELEASE);
}

} // namespace

QList<LinkedLibrary> linkedLibraries()
{
    return {
        {QStringLiteral("libcsv"), linkedCsv(), QStringLiteral("LGPL-2.1-or-later")},
        {QStringLiteral("OpenSSL"), runningOpenSsl(), QStringLiteral("Apache-2.0")},
        {QStringLiteral("ProteoWizard (tables)"), {}, QStringLiteral("Apache-2.0")},
        {QStringLiteral("Qt"), QLatin1String(qVersion()), QStringLiteral("LGPL-3.0")},
        {QStringLiteral("QuaZip"), QStringLiteral(ORV_QUAZIP_VERSION),
         QStringLiteral("LGPL-2.1 with linking exception")},
        {QStringLiteral("SQLite"), runningSqlite(), QStringLiteral("public domain")},
        {QStringLiteral("zlib"), QLatin1String(zlibVersion()), QStringLiteral("Zlib")},
    };
}

} // namespace orv
