#include "OrvTest.h"

#include <orv/table/CsvReader.h>

#include <QBuffer>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

struct Outcome
{
    QList<QStringList> rows;
    QList<qsizetype> lines;
    Error error;
};

Outcome readAll(const QByteArray &text, const CsvReader::Limits &limits = {})
{
    QBuffer device;
    device.setData(text);
    device.open(QIODevice::ReadOnly);
    CsvReader reader(&device, limits);
    Outcome outcome;
    for (;;) {
        const Result<std::optional<CsvRow>> row = reader.next();
        if (row.hasError()) {
            outcome.error = row.error();
            return outcome;
        }
        if (!row->has_value())
            return outcome;
        outcome.rows.append((*row)->fields);
        outcome.lines.append((*row)->line);
    }
}

class BrokenDevice : public QIODevice
{
protected:
    qint64 readData(char * /*data*/, qint64 /*size*/) override
    {
        setErrorString(u"the disk is gone"_s);
        return -1;
    }
    qint64 writeData(const char * /*data*/, qint64 /*size*/) override { return -1; }
};

} // namespace

class TestCsvReader : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void fieldsAndRowsAreTold_data();
    void fieldsAndRowsAreTold();
    void rowsKnowTheLineOnWhichTheyBegin();
    void rowsAreReadAcrossChunks();
    void malformedTextIsRefusedWithItsLine_data();
    void malformedTextIsRefusedWithItsLine();
    void sizesAreBounded_data();
    void sizesAreBounded();
    void sizesAtTheLimitPass();
    void rowsBeforeAFaultAreGiven();
    void aFailureIsGivenAgain();
    void aDeviceThatFailsIsReported();
    void otherSignsMayPartAndEncloseFields();
};

void TestCsvReader::otherSignsMayPartAndEncloseFields()
{
    QBuffer device;
    device.setData("a;b,c;'d;''e'\n\"x\";y\n");
    device.open(QIODevice::ReadOnly);
    CsvReader reader(&device, {}, {.separator = ';', .quote = '\''});
    QCOMPARE(reader.next().value()->fields, QStringList({u"a"_s, u"b,c"_s, u"d;'e"_s}));
    QCOMPARE(reader.next().value()->fields, QStringList({u"\"x\""_s, u"y"_s}));
    QVERIFY(!reader.next().value().has_value());
}

void TestCsvReader::fieldsAndRowsAreTold_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QList<QStringList>>("rows");
    using Rows = QList<QStringList>;
    const auto row = [](const char *name, const QByteArray &text, const Rows &rows) {
        QTest::newRow(name) << text << rows;
    };
    row("nothing", "", {});
    row("a byte order mark alone", "\xEF\xBB\xBF", {});
    row("one field", "a", {{u"a"_s}});
    row("a last line without an end", "a,b\nc,d", {{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}});
    row("CR LF", "a,b\r\nc,d\r\n", {{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}});
    row("CR alone", "a,b\rc,d\r", {{u"a"_s, u"b"_s}, {u"c"_s, u"d"_s}});
    row("empty fields", ",,\n", {{u""_s, u""_s, u""_s}});
    row("an empty field at the very end", "a,", {{u"a"_s, u""_s}});
    row("an empty quoted field", "\"\"\n", {{u""_s}});
    row("blank lines", "\n\na\n\r\n\nb\n\n", {{u"a"_s}, {u"b"_s}});
    row("blanks belong to the field", " a ,\t\n", {{u" a "_s, u"\t"_s}});
    row("a comma in quotes", "\"a,b\",c\n", {{u"a,b"_s, u"c"_s}});
    row("a quote in quotes", "\"say \"\"a\"\"\"\n", {{u"say \"a\""_s}});
    row("line breaks in quotes", "\"a\r\nb\n\nc\",d\n", {{u"a\r\nb\n\nc"_s, u"d"_s}});
    row("a byte order mark before a quote", "\xEF\xBB\xBF\"a\",b\n", {{u"a"_s, u"b"_s}});
    row("a mark inside is a character",
        "\xEF\xBB\xBF"
        "a,\xEF\xBB\xBF"
        "b\n",
        {{u"a"_s, u"\uFEFFb"_s}});
    row("UTF-8", "\xC2\xB5,\xE2\x82\xAC,\xF0\x9F\xA7\xAA\n", {{u"µ"_s, u"€"_s, u"\U0001F9EA"_s}});
    row("rows of different widths", "a\nb,c\n", {{u"a"_s}, {u"b"_s, u"c"_s}});
}

void TestCsvReader::fieldsAndRowsAreTold()
{
    QFETCH(QByteArray, text);
    QFETCH(QList<QStringList>, rows);
    const Outcome outcome = readAll(text);
    ORV_VERIFY_OK(outcome.error);
    QCOMPARE(outcome.rows, rows);
}

void TestCsvReader::rowsKnowTheLineOnWhichTheyBegin()
{
    QCOMPARE(readAll("a\n\n\"b\r\nb\r\n\",x\r\nc\rd\n").lines, QList<qsizetype>({1, 3, 6, 7}));
}

void TestCsvReader::rowsAreReadAcrossChunks()
{
    QByteArray text;
    QList<QStringList> rows;
    for (int i = 0; i < 40000; ++i) {
        text += QByteArray::number(i) + ",\"text, of \xC2\xB5\r\nrow\"\r\n";
        rows.append({QString::number(i), u"text, of µ\r\nrow"_s});
    }
    const Outcome outcome = readAll(text);
    ORV_VERIFY_OK(outcome.error);
    QCOMPARE(outcome.rows, rows);
    QCOMPARE(outcome.lines.last(), 2 * 39999 + 1);
}

void TestCsvReader::malformedTextIsRefusedWithItsLine_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("place");
    const auto row = [](const char *name, const QByteArray &text, const QString &message,
                        const QString &place) { QTest::newRow(name) << text << message << place; };
    const QString outOfPlace = u"A quote stands where it may not."_s;
    const QString endless = u"A quoted field has no end."_s;
    const QString foreign = u"The table is not UTF-8."_s;
    row("a quote inside a bare field", "a\nb\"c\n", outOfPlace, u"line 2"_s);
    row("text behind a closing quote", "a\n\"x\ny\"z\n", outOfPlace, u"line 3"_s);
    row("a blank before a quote", "a, \"b\"\n", outOfPlace, u"line 1"_s);
    row("a quote without its end", "a\nb,\"c\nd\ne\n", endless, u"line 2"_s);
    row("a lone quote", "\"", endless, u"line 1"_s);
    row("Latin-1", "a\n\n\xB5,b\n", foreign, u"line 3"_s);
    row("a character that is cut short", "a\n\xE2\x82", foreign, u"line 2"_s);
}

void TestCsvReader::malformedTextIsRefusedWithItsLine()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    QFETCH(QString, place);
    const Outcome outcome = readAll(text);
    QCOMPARE(outcome.error.code(), ErrorCode::InvalidContent);
    QCOMPARE(outcome.error.errorMessage(), message);
    QCOMPARE(outcome.error.details().value(0), place);
    QCOMPARE(outcome.error.details().size(), 2);
}

void TestCsvReader::sizesAreBounded_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    QTest::newRow("a long field") << QByteArray("ok\n" + QByteArray(11, 'x') + "\n")
                                  << u"A field is larger than 10 bytes."_s;
    QTest::newRow("a quote that swallows the file")
        << QByteArray("ok\n\"" + QByteArray(1 << 20, '\n')) << u"A field is larger than 10 bytes."_s;
    QTest::newRow("a long row") << QByteArray("ok\n0123456789,0123456789,x\n")
                                << u"A row is larger than 20 bytes."_s;
    QTest::newRow("a wide row") << QByteArray("ok\n,,,,\n") << u"A row has more than 4 fields."_s;
}

void TestCsvReader::sizesAreBounded()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    const Outcome outcome = readAll(text, {.fieldBytes = 10, .rowBytes = 20, .rowFields = 4});
    QCOMPARE(outcome.error.code(), ErrorCode::InvalidContent);
    QCOMPARE(outcome.error.errorMessage(), message);
    QCOMPARE(outcome.error.details().value(0), u"line 2"_s);
}

void TestCsvReader::sizesAtTheLimitPass()
{
    const Outcome outcome =
        readAll("0123456789,0123456789,,\n0123456789\n", {.fieldBytes = 10, .rowBytes = 20, .rowFields = 4});
    ORV_VERIFY_OK(outcome.error);
    QCOMPARE(outcome.rows.size(), 2);
}

void TestCsvReader::rowsBeforeAFaultAreGiven()
{
    const Outcome outcome = readAll("a\nb\nc\"\n");
    QVERIFY(outcome.error.hasError());
    QCOMPARE(outcome.rows, QList<QStringList>({{u"a"_s}, {u"b"_s}}));
}

void TestCsvReader::aFailureIsGivenAgain()
{
    QBuffer device;
    device.setData("a\"\nb\n");
    device.open(QIODevice::ReadOnly);
    CsvReader reader(&device);
    QVERIFY(reader.next().hasError());
    QVERIFY(reader.next().hasError());
}

void TestCsvReader::aDeviceThatFailsIsReported()
{
    BrokenDevice device;
    device.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    CsvReader reader(&device);
    const Result<std::optional<CsvRow>> row = reader.next();
    QVERIFY(row.hasError());
    QCOMPARE(row.error().code(), ErrorCode::CannotOpenFile);
    QCOMPARE(row.error().details(), QStringList(u"the disk is gone"_s));
}

ORV_REGISTER_TEST(TestCsvReader)
#include "TestCsvReader.moc"
