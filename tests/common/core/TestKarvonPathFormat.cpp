#include "OrvTest.h"

#include <orv/core/KarvonPathFormat.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestKarvonPathFormat : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void pathsAreRewritten_data();
    void pathsAreRewritten();
};

void TestKarvonPathFormat::pathsAreRewritten_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("written");
    QTest::newRow("empty") << u""_s << u""_s;
    QTest::newRow("plain") << u"/data/a b.raw"_s << u"/data/a b.raw"_s;
    QTest::newRow("relative") << u"a.raw"_s << u"a.raw"_s;
    QTest::newRow("colon") << u"/data/a:b.raw"_s << u"/data/a\\:b.raw"_s;
    QTest::newRow("drive") << u"C:\\data\\new.raw"_s << u"C\\:/data/new.raw"_s;
    QTest::newRow("share") << u"\\\\server\\share\\a.raw"_s << u"//server/share/a.raw"_s;
    QTest::newRow("long path") << u"\\\\?\\C:\\data\\a.raw"_s << u"C\\:/data/a.raw"_s;
    QTest::newRow("not ASCII") << u"/data/\u00e4.raw"_s << u"/data/\u00e4.raw"_s;
#ifndef Q_OS_WIN
    QTest::newRow("backslash in a name") << u"/data/a\\b.raw"_s << u"/data/a\\\\b.raw"_s;
#endif
}

void TestKarvonPathFormat::pathsAreRewritten()
{
    QFETCH(QString, path);
    QFETCH(QString, written);
    QCOMPARE(toKarvonPathFormat(path), written);
}

ORV_REGISTER_TEST(TestKarvonPathFormat)

#include "TestKarvonPathFormat.moc"
