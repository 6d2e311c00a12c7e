#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QTest>
#include <quazip/quazip.h>
#include <quazip/quazipfile.h>

struct ZipEntry
{
    QString name;
    QByteArray bytes;
    unsigned mode = 0100644;        ///< as the system keeps it: file, folder or link, and permissions
    const char *password = nullptr; ///< encrypts the entry
};

inline QByteArray tolqMetadata(const QByteArray &sample, const QByteArray &version = "1.4.0",
                               const QByteArray &more = {})
{
    return R"({"version": ")" + version + R"(", "sample": ")" + sample + "\"" + more + "}";
}

inline void makeZip(const QString &path, const QList<ZipEntry> &entries)
{
    QuaZip zip(path);
    zip.setUtf8Enabled(true);
    QVERIFY(zip.open(QuaZip::mdCreate));
    for (const ZipEntry &entry : entries) {
        QuaZipNewInfo info(entry.name);
        info.externalAttr = entry.mode << 16;
        QuaZipFile file(&zip);
        QVERIFY(file.open(QIODevice::WriteOnly, info, entry.password));
        QCOMPARE(file.write(entry.bytes), qint64(entry.bytes.size()));
        file.close();
        QCOMPARE(file.getZipError(), 0);
    }
    zip.close();
    QCOMPARE(zip.getZipError(), 0);
}
