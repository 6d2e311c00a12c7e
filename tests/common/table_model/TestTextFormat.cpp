#include "OrvTest.h"
#include "TableFixture.h"

#include <orv/table_model/TextFormat.h>

#include <QStringEncoder>

using namespace orv;
using namespace Qt::StringLiterals;
using NumberText::DecimalSign;

Q_DECLARE_METATYPE(orv::TextEncoding)
Q_DECLARE_METATYPE(orv::TableTextFormat)

namespace {

QByteArray utf16(const QString &text, QStringConverter::Encoding encoding, bool hasMark)
{
    QStringEncoder encoder(encoding,
                           hasMark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(text);
}

} // namespace

class TestTextFormat : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void encodingsAreTold_data();
    void encodingsAreTold();
    void formatsAreDetected_data();
    void formatsAreDetected();
    void bytesOfAnotherEncodingAreRefused();
};

void TestTextFormat::encodingsAreTold_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<TextEncoding>("encoding");
    const QString text = u"Name;Größe µm\nä;5\n"_s;
    QTest::newRow("UTF-8") << text.toUtf8() << TextEncoding::Utf8;
    QTest::newRow("UTF-8 with mark") << "\xEF\xBB\xBF" + text.toUtf8() << TextEncoding::Utf8;
    QTest::newRow("ASCII") << "a,b\n"_ba << TextEncoding::Utf8;
    QTest::newRow("Latin-1") << text.toLatin1() << TextEncoding::Windows1252;
    using C = QStringConverter;
    QTest::newRow("UTF-16 LE with mark") << utf16(text, C::Utf16LE, true) << TextEncoding::Utf16LittleEndian;
    QTest::newRow("UTF-16 BE with mark") << utf16(text, C::Utf16BE, true) << TextEncoding::Utf16BigEndian;
    QTest::newRow("UTF-16 LE") << utf16(text, C::Utf16LE, false) << TextEncoding::Utf16LittleEndian;
    QTest::newRow("UTF-16 BE") << utf16(text, C::Utf16BE, false) << TextEncoding::Utf16BigEndian;
}

void TestTextFormat::encodingsAreTold()
{
    QFETCH(QByteArray, bytes);
    QFETCH(TextEncoding, encoding);
    QCOMPARE(TextFormat::encodingOf(bytes), encoding);
    QVERIFY(TextFormat::decoded(bytes, encoding).has_value());
    if (bytes.size() > 10)
        QVERIFY(TextFormat::decoded(bytes, encoding)->contains(u"Größe µm\n"_s));
}

void TestTextFormat::formatsAreDetected_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<TableTextFormat>("format");
    const auto utf8 = TextEncoding::Utf8;
    const auto point = DecimalSign::Point;
    const auto comma = DecimalSign::Comma;
    QTest::newRow("comma") << "Name,Mass\na,1.5\nb,2.5\n"_ba << TableTextFormat{utf8, ',', '"', true, point};
    QTest::newRow("semicolon and decimal comma")
        << "Name;Mass (Da)\na;1,5\nb;0,435\n"_ba << TableTextFormat{utf8, ';', '"', true, comma};
    QTest::newRow("tabulator") << "x\t1\ny\t2\n"_ba << TableTextFormat{utf8, '\t', '"', false, point};
    QTest::newRow("bar") << "Title|Value\nx|1\n"_ba << TableTextFormat{utf8, '|', '"', true, point};
    QTest::newRow("commas inside quotes")
        << "\"a, b, c\";1\n\"d, e, f\";2\n"_ba << TableTextFormat{utf8, ';', '"', false, point};
    QTest::newRow("single quotes") << "'a','1'\n'b,c','2'\n"_ba
                                   << TableTextFormat{utf8, ',', '\'', false, point};
    QTest::newRow("one column") << "Name\na\nb\n"_ba << TableTextFormat{utf8, ',', '"', true, point};
}

void TestTextFormat::formatsAreDetected()
{
    QFETCH(QByteArray, bytes);
    QFETCH(TableTextFormat, format);
    const TableTextFormat found = TextFormat::detected(bytes, TableFixture::columns());
    QCOMPARE(found.separator, format.separator);
    QCOMPARE(found.quote, format.quote);
    QCOMPARE(found.hasHeader, format.hasHeader);
    QVERIFY(found == format);
}

void TestTextFormat::bytesOfAnotherEncodingAreRefused()
{
    QVERIFY(!TextFormat::decoded("\xFF\xFE\xFD"_ba, TextEncoding::Utf8).has_value());
    QCOMPARE(TextFormat::decoded("\x80 \x96 \xB5"_ba, TextEncoding::Windows1252), std::optional(u"€ – µ"_s));
}

ORV_REGISTER_TEST(TestTextFormat)

#include "TestTextFormat.moc"
