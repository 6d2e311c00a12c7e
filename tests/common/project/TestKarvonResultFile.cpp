#include "OrvTest.h"
#include "RawDatabase.h"

#include <orv/project/KarvonResultFile.h>
#include <orv/project/ProjectFile.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestKarvonResultFile : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_dir = std::make_unique<QTemporaryDir>(); }

    void filesAreReadInTheirOrder();
    void aFileWithoutTheListTellsOfNone();
    void whatIsNoResultIsAnError_data();
    void whatIsNoResultIsAnError();
    void tooManyFilesAreRefused();

private:
    [[nodiscard]] QString at(const QString &name) const { return m_dir->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_dir = std::make_unique<QTemporaryDir>();
};

void TestKarvonResultFile::filesAreReadInTheirOrder()
{
    const QStringList files{u"b.raw"_s, u"C:\\data\\größe.d"_s, u"managed:/1/a"_s, u"b.raw"_s};
    ORV_VERIFY_OK(createKarvrslt(at(u"a.karvrslt"_s), files));
    const auto read = getMSFilesFromKarvrslt(at(u"a.karvrslt"_s));
    ORV_VERIFY_OK(read);
    QCOMPARE(*read, files);
}

void TestKarvonResultFile::aFileWithoutTheListTellsOfNone()
{
    ORV_VERIFY_OK(createKarvrslt(at(u"empty.karvrslt"_s), {}));
    ORV_VERIFY_OK(ProjectFile::create(at(u"a.karvon"_s), {}));
    for (const QString &name : {u"empty.karvrslt"_s, u"a.karvon"_s}) {
        const auto read = getMSFilesFromKarvrslt(at(name));
        ORV_VERIFY_OK(read);
        QCOMPARE(*read, QStringList());
    }
}

void TestKarvonResultFile::whatIsNoResultIsAnError_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<ErrorCode>("code");

    QTest::newRow("missing") << u"missing"_s << ErrorCode::CannotOpenFile;
    QTest::newRow("text") << u"text"_s << ErrorCode::MalformedStructure;
    QTest::newRow("other columns") << u"other"_s << ErrorCode::MalformedStructure;
}

void TestKarvonResultFile::whatIsNoResultIsAnError()
{
    QFile text(at(u"text"_s));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write(QByteArray(200, 'x')) == 200);
    text.close();
    RawDatabase(at(u"other"_s)).run(u"CREATE TABLE MsFiles (Path TEXT)"_s);
    QFETCH(QString, name);
    const auto read = getMSFilesFromKarvrslt(at(name));
    QVERIFY(read.hasError());
    QTEST(read.error().code(), "code");
    QVERIFY(read.error().errorMessage().contains(at(name)));
}

void TestKarvonResultFile::tooManyFilesAreRefused()
{
    {
        RawDatabase writer(at(u"a.karvrslt"_s));
        writer.run(u"CREATE TABLE MsFiles (Position INTEGER PRIMARY KEY, Reference TEXT NOT NULL)"_s);
        writer.run(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100001) "
                   "INSERT INTO MsFiles SELECT i, 'a.raw' FROM n"_s);
    }
    const auto read = getMSFilesFromKarvrslt(at(u"a.karvrslt"_s));
    QVERIFY(read.hasError());
    QCOMPARE(read.error().code(), ErrorCode::InvalidContent);
    RawDatabase(at(u"a.karvrslt"_s)).run(u"DELETE FROM MsFiles WHERE Position = 1"_s);
    QCOMPARE(getMSFilesFromKarvrslt(at(u"a.karvrslt"_s)).value().size(), 100000);
}

ORV_REGISTER_TEST(TestKarvonResultFile)
#include "TestKarvonResultFile.moc"
