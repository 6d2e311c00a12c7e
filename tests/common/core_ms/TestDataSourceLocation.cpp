#include "OrvTest.h"

#include <orv/core/FilePathUtils.h>
#include <orv/core_ms/DataSourceLocation.h>
#include <orv/core_ms/MsFileInfo.h>

using namespace orv;
using namespace orv::msreader;
using namespace Qt::StringLiterals;

class TestDataSourceLocation : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void theKindsHaveTheirNumbers();
    void aPathIsToldInLogs();
    void aDatabaseIsToldInLogs();
    void keyAndSampleFollow();
    void pathsAreChecked_data();
    void pathsAreChecked();
    void aTooLongPathIsToldWithItsRemedy();
    void projectDatabasesAreEmbeddedDataCuts();
};

void TestDataSourceLocation::theKindsHaveTheirNumbers()
{
    QCOMPARE(int(DataSourceLocation().kind), 1);
    QCOMPARE(int(DataSourceLocation::ofPath(u"a"_s).kind), 1);
    QCOMPARE(int(DataSourceLocation::ofDatabase(nullptr).kind), 2);
}

void TestDataSourceLocation::aPathIsToldInLogs()
{
    QCOMPARE(DataSourceLocation::ofPath(u"/data/a b.raw"_s).toString(), u"local_path: /data/a b.raw"_s);
}

void TestDataSourceLocation::aDatabaseIsToldInLogs()
{
    int place = 0;
    const auto location = DataSourceLocation::ofDatabase(reinterpret_cast<DocumentDatabaseHandler *>(&place));
    QCOMPARE(location.toString(), u"dbHandler: 0x"_s + QString::number(quintptr(&place), 16));
}

void TestDataSourceLocation::keyAndSampleFollow()
{
    auto location = DataSourceLocation::ofPath(u"a.wiff"_s);
    location.key = u"k"_s;
    QCOMPARE(location.toString(), u"local_path: a.wiff : k"_s);
    location.sample = {u"blank"_s, u"sample=1"_s};
    QCOMPARE(location.toString(), u"local_path: a.wiff : ksampleName: blank, nativeSampleId: sample=1"_s);
    location.key.reset();
    QCOMPARE(location.toString(), u"local_path: a.wiffsampleName: blank, nativeSampleId: sample=1"_s);
    // An empty key is a key, and texts that look like places stand as they are.
    location.key = QString();
    location.sample = {u"%2"_s, u"%1"_s};
    QCOMPARE(location.toString(), u"local_path: a.wiff : sampleName: %2, nativeSampleId: %1"_s);
}

void TestDataSourceLocation::pathsAreChecked_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("message");
    const auto ofLength = [](const QString &start, int length) { return start.leftJustified(length, u'x'); };
    const int limit = FilePathUtils::winMaxPathLength();
    const QString tooLong = u"The path exceeds %1"_s.arg(limit);

    QTest::newRow("empty") << QString() << u"Vendor file name is empty"_s;
    QTest::newRow("short") << u"/a.raw"_s << QString();
    QTest::newRow("not there") << u"/nowhere/a.raw"_s << QString();
    QTest::newRow("the longest") << ofLength(u"/"_s, 260) << QString();
    QTest::newRow("too long") << ofLength(u"/"_s, 261) << tooLong;
    QTest::newRow("far too long") << ofLength(u"C:\\"_s, 10 * limit) << tooLong;
    QTest::newRow("long with the prefix") << ofLength(u"\\\\?\\C:\\"_s, 261) << QString();
    QTest::newRow("long with the other prefix") << ofLength(u"//?/C:/"_s, 10 * limit) << QString();
}

void TestDataSourceLocation::pathsAreChecked()
{
    QFETCH(QString, path);
    QFETCH(QString, message);
    const Error error = DataSourceLocation::checkValidVendorFilePath(path);
    QCOMPARE(error.code(), message.isEmpty() ? ErrorCode::NoError : ErrorCode::InvalidContent);
    QCOMPARE(error.errorMessage(), message);
}

void TestDataSourceLocation::aTooLongPathIsToldWithItsRemedy()
{
    const QStringList details = DataSourceLocation::checkValidVendorFilePath(QString(300, u'x')).details();
    QCOMPARE(details.size(), 2);
    QVERIFY(details.first().contains(u"300"_s));
}

void TestDataSourceLocation::projectDatabasesAreEmbeddedDataCuts()
{
    auto location = DataSourceLocation::ofDatabase(nullptr);
    location.localPath = u"a.mgf"_s; // doesn't count
    for (bool byName : {true, false}) {
        for (bool firstOnly : {true, false})
            QCOMPARE(MsFileInfo::detectFormat(location, byName, firstOnly),
                     QSet{VendorDataFormat::DataCutEmbedded});
        QVERIFY(MsFileInfo::isRecognised(location, byName));
    }
}

ORV_REGISTER_TEST(TestDataSourceLocation)

#include "TestDataSourceLocation.moc"
