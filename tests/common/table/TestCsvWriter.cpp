#include "OrvTest.h"

#include <orv/table/CsvReader.h>
#include <orv/table/CsvWriter.h>

#include <QBuffer>
#include <QRandomGenerator>

using namespace orv;
using namespace Qt::StringLiterals;

class TestCsvWriter : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreWritten_data();
    void rowsAreWritten();
    void anyRowsReadBackEqual();
    void anotherSeparatorMayPartFields();
};

void TestCsvWriter::anotherSeparatorMayPartFields()
{
    QCOMPARE(CsvWriter::row({u"a,b"_s, u"c\td"_s, QString()}, '\t'), "a,b\t\"c\td\"\t\r\n"_ba);
}

void TestCsvWriter::rowsAreWritten_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("plain") << QStringList({u"a"_s, u"b c"_s}) << QByteArray("a,b c\r\n");
    QTest::newRow("empty fields") << QStringList({u""_s, u"b"_s, u""_s}) << QByteArray(",b,\r\n");
    QTest::newRow("one empty field") << QStringList(u""_s) << QByteArray("\"\"\r\n");
    QTest::newRow("comma") << QStringList(u"a,b"_s) << QByteArray("\"a,b\"\r\n");
    QTest::newRow("quotes") << QStringList(u"5\" x"_s) << QByteArray("\"5\"\" x\"\r\n");
    QTest::newRow("line break") << QStringList(u"a\nb"_s) << QByteArray("\"a\nb\"\r\n");
    QTest::newRow("other alphabets") << QStringList(u"µ"_s) << QByteArray("\xC2\xB5\r\n");
}

void TestCsvWriter::rowsAreWritten()
{
    QFETCH(QStringList, fields);
    QFETCH(QByteArray, text);
    QCOMPARE(CsvWriter::row(fields), text);
}

void TestCsvWriter::anyRowsReadBackEqual()
{
    constexpr quint32 kSeed = 4711;
    QRandomGenerator random(kSeed);
    const QString letters = u"a,\"\n\r ;\tµ漢"_s;
    QList<QStringList> rows;
    QByteArray text;
    for (int i = 0; i < 200; ++i) {
        QStringList row;
        for (int field = random.bounded(1, 6); field > 0; --field) {
            QString value;
            for (int length = random.bounded(6); length > 0; --length)
                value += letters.at(random.bounded(int(letters.size())));
            row.append(value);
        }
        rows.append(row);
        text += CsvWriter::row(row);
    }
    QBuffer buffer(&text);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CsvReader reader(&buffer);
    for (const QStringList &expected : std::as_const(rows)) {
        const auto row = reader.next();
        ORV_VERIFY_OK(row);
        QVERIFY2(row->has_value(), "seed 4711");
        QCOMPARE((**row).fields, expected);
    }
    const auto end = reader.next();
    ORV_VERIFY_OK(end);
    QVERIFY(!end->has_value());
}

ORV_REGISTER_TEST(TestCsvWriter)
#include "TestCsvWriter.moc"
