#include "CellComparison.h"
#include "OrvTest.h"

#include <orv/table/rn.h>

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTimeZone>
#include <QUrl>
#include <QUuid>

using namespace orv;
using namespace Qt::StringLiterals;

/// Which JSON stands for which value, both ways, in text and in parsed documents.
class TestRowNodeForm : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreWrittenAs_data();
    void valuesAreWrittenAs();
    void valuesReadBackEqual_data() { valuesAreWrittenAs_data(); }
    void valuesReadBackEqual();
    void valuesReadBackEqualWithinLists_data() { valuesAreWrittenAs_data(); }
    void valuesReadBackEqualWithinLists();
    void plainJsonReadsAs_data();
    void plainJsonReadsAs();
    void valuesWithoutAFormAreRefused_data();
    void valuesWithoutAFormAreRefused();
};

namespace {

RowNode holding(const QVariant &value)
{
    return RowNode({value});
}

QByteArray around(const QByteArray &cell)
{
    return R"({"data":[)" + cell + R"(],"children":[]})";
}

QDateTime moment()
{
    return QDateTime(QDate(2024, 1, 31), QTime(10, 20, 30, 456), Qt::UTC);
}

template<typename T>
QVariant lowest()
{
    return QVariant::fromValue(std::numeric_limits<T>::lowest());
}

template<typename T>
QVariant highest()
{
    return QVariant::fromValue(std::numeric_limits<T>::max());
}

void row(const char *name, const QVariant &value, const QByteArray &json)
{
    QTest::newRow(name) << value << json;
}

void addPlainRows()
{
    row("invalid", QVariant(), "null");
    row("true", true, "true");
    row("false", false, "false");
    row("int", 5, "5");
    row("lowest int", lowest<int>(), "-2147483648");
    row("highest int", highest<int>(), "2147483647");
    row("64 bits beyond int", qlonglong(2147483648), "2147483648");
    row("64 bits below int", qlonglong(-2147483649), "-2147483649");
    row("64 bits beyond doubles", qlonglong(9007199254740993), "9007199254740993");
    row("lowest 64 bits", lowest<qlonglong>(), "-9223372036854775808");
    row("highest 64 bits", highest<qlonglong>(), "9223372036854775807");
    row("double", 18.0106, "18.0106");
    row("smallest double", 5e-324, "5e-324");
    row("double without a short form", 0.1 + 0.2, "0.30000000000000004");
    row("integral double beyond integers", 1e300, "1e+300");
    row("first double beyond integers", 9223372036854775808.0, "9223372036854775808");
    row("text", u"water"_s, "\"water\"");
    row("empty text", QString(u""_s), "\"\"");
    row("null text", QString(), "\"\"");
    row("text that reads as a number", u"5"_s, "\"5\"");
    row("text beyond ASCII", u"µg/mL \U0001F9EA"_s, "\"µg/mL \U0001F9EA\"");
    row("text with quotes and controls", u"a\"b\\c\n\t\0d\x1F\x7F"_s,
        "\"a\\\"b\\\\c\\u000a\\u0009\\u0000d\\u001f\x7F\"");
    row("text with a mark inside", u"a\uFEFF"_s, "\"a\uFEFF\"");
    row("list", QVariantList{1, u"a"_s, QVariant(), QVariantList{true}}, R"([1,"a",null,[true]])");
    row("empty list", QVariantList(), "[]");
    row("map", QVariantMap{{u"b"_s, 1}, {u"a"_s, 2.0}}, R"({"a":{"$double":2},"b":1})");
    row("empty map", QVariantMap(), "{}");
    row("map with two dollar keys", QVariantMap{{u"$a"_s, 1}, {u"$b"_s, 2}}, R"({"$a":1,"$b":2})");
}

void addNumberRows()
{
    row("integral double", 5.0, R"({"$double":5})");
    row("zero", 0.0, R"({"$double":0})");
    row("minus zero", -0.0, R"({"$double":"-0"})");
    row("double as large as 64 bits", -9223372036854775808.0, R"({"$double":-9223372036854775808})");
    row("NaN", std::numeric_limits<double>::quiet_NaN(), R"({"$double":"nan"})");
    row("infinity", std::numeric_limits<double>::infinity(), R"({"$double":"inf"})");
    row("minus infinity", -std::numeric_limits<double>::infinity(), R"({"$double":"-inf"})");
    row("64 bits in the range of int", qlonglong(5), R"({"$int64":5})");
    row("unsigned", highest<uint>(), R"({"$uint":4294967295})");
    row("unsigned 64 bits", highest<qulonglong>(), R"({"$uint64":"18446744073709551615"})");
    row("long", QVariant::fromValue(5L), R"({"$long":5})");
    row("unsigned long", QVariant::fromValue(5UL), R"({"$ulong":"5"})");
    row("short", lowest<short>(), R"({"$short":-32768})");
    row("unsigned short", highest<ushort>(), R"({"$ushort":65535})");
    row("char", QVariant::fromValue('a'), R"({"$char":97})");
    row("signed char", lowest<signed char>(), R"({"$schar":-128})");
    row("unsigned char", highest<uchar>(), R"({"$uchar":255})");
    row("float", 0.5F, R"({"$float":0.5})");
    row("integral float", 16.0F, R"({"$float":16})");
    row("highest float", highest<float>(), R"({"$float":3.4028234663852886e+38})");
    row("infinite float", std::numeric_limits<float>::infinity(), R"({"$float":"inf"})");
}

void addTextRows()
{
    row("null pointer", QVariant::fromValue(nullptr), R"({"$nullptr":null})");
    row("text with half a pair", QString(QChar(0xD83E)) + u'a', R"({"$text":[55358,97]})");
    row("text that begins with a mark", u"\uFEFFa"_s, R"({"$text":[65279,97]})");
    row("character", QChar(u'µ'), R"({"$qchar":181})");
    row("texts", QStringList{u"a"_s, u""_s, u"\uFEFF"_s}, R"({"$strings":["a","",{"$text":[65279]}]})");
    row("no texts", QStringList(), R"({"$strings":[]})");
    row("bytes", QByteArray("\0\xFFz", 3), R"({"$bytes":"AP96"})");
    row("no bytes", QByteArray(), R"({"$bytes":""})");
    row("URL", QUrl(u"file:///a%20b/µ#c"_s), R"({"$url":"file:///a%20b/%C2%B5#c"})");
    row("empty URL", QUrl(), R"({"$url":""})");
    row("UUID", QUuid(u"{67c8770b-44f1-410a-ab9a-f9b5446f13ee}"_s),
        R"({"$uuid":"{67c8770b-44f1-410a-ab9a-f9b5446f13ee}"})");
}

void addContainerRows()
{
    row("map like a type", QVariantMap{{u"$double"_s, 5}}, R"({"$map":[["$double",5]]})");
    row("map like an unknown type", QVariantMap{{u"$"_s, QVariant()}}, R"({"$map":[["$",null]]})");
    row("map like a map like a type", QVariantMap{{u"$map"_s, QVariantList()}}, R"({"$map":[["$map",[]]]})");
    row("map with an odd key", QVariantMap{{u"\uFEFFa"_s, 1}, {u"b"_s, 2}},
        R"({"$map":[["b",2],[{"$text":[65279,97]},1]]})");
    row("hash", QVariantHash{{u"b"_s, 1}, {u"a"_s, 2.0}}, R"({"$hash":[["a",{"$double":2}],["b",1]]})");
    row("JSON object", QJsonObject{{u"a"_s, QJsonArray{1, 2.5}}}, R"({"$jsonObject":"{\"a\":[1,2.5]}"})");
    row("JSON array", QJsonArray{1, QJsonObject()}, R"({"$jsonArray":"[1,{}]"})");
}

void addDateRows()
{
    row("date", QDate(2024, 1, 31), R"({"$date":"2024-01-31"})");
    row("invalid date", QDate(), R"({"$date":null})");
    row("date before year 1", QDate(-44, 3, 15), R"({"$date":1705428})");
    row("date after year 9999", QDate(10000, 1, 1), R"({"$date":5373485})");
    row("time", QTime(1, 2, 3, 4), R"({"$time":"01:02:03.004"})");
    row("invalid time", QTime(), R"({"$time":null})");
    row("moment", moment(), R"({"$datetime":["2024-01-31T10:20:30.456Z","utc"]})");
    row("moment here", moment().toLocalTime(), R"({"$datetime":["2024-01-31T10:20:30.456Z","local"]})");
    row("moment elsewhere", moment().toOffsetFromUtc(7200),
        R"({"$datetime":["2024-01-31T10:20:30.456Z",7200]})");
    row("moment in a zone", moment().toTimeZone(QTimeZone("Europe/Berlin")),
        R"({"$datetime":["2024-01-31T10:20:30.456Z","Europe/Berlin"]})");
    row("moment far away", QDateTime(QDate(12024, 1, 31), QTime(0, 0), Qt::UTC),
        R"({"$datetime":[317276179200000,"utc"]})");
    row("invalid moment", QDateTime(), R"({"$datetime":null})");
}

} // namespace

void TestRowNodeForm::valuesAreWrittenAs_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("json");
    addPlainRows();
    addNumberRows();
    addTextRows();
    addContainerRows();
    addDateRows();
}

void TestRowNodeForm::valuesAreWrittenAs()
{
    QFETCH(QVariant, value);
    QFETCH(QByteArray, json);
    const RowNode node = holding(value);
    bool ok = false;
    const QByteArray text = rn::serialize(&node, &ok);
    QVERIFY(ok);
    // to_chars and the literal may spell a number beyond integers differently; the value is checked on
    // reading.
    if (value.typeId() != QMetaType::Double || !json.startsWith("9223372036854775808"))
        QCOMPARE(text, around(json));
    QCOMPARE(rn::toObject(&node, &ok), QJsonDocument::fromJson(around(json)).object());
    QVERIFY(ok);
}

void TestRowNodeForm::valuesReadBackEqual()
{
    QFETCH(QVariant, value);
    QFETCH(QByteArray, json);
    RowNode fromText;
    QVERIFY(rn::parse(around(json), &fromText));
    QVERIFY(CellComparison::isSame(fromText, holding(value)));
    RowNode fromObject;
    QVERIFY(rn::fromObject(QJsonDocument::fromJson(around(json)).object(), &fromObject));
    QVERIFY(CellComparison::isSame(fromObject, holding(value)));
    RowNode spaced;
    QVERIFY(rn::parse(QJsonDocument::fromJson(around(json)).toJson(QJsonDocument::Indented), &spaced));
    QVERIFY(CellComparison::isSame(spaced, holding(value)));
}

void TestRowNodeForm::valuesReadBackEqualWithinLists()
{
    QFETCH(QVariant, value);
    const RowNode node = holding(QVariantList{QVariantMap{{u"$key"_s, QVariantList{value}}}, value});
    RowNode readBack;
    QVERIFY(rn::parse(rn::serialize(&node), &readBack));
    QVERIFY(CellComparison::isSame(readBack, node));
    QVERIFY(rn::fromObject(rn::toObject(&node), &readBack));
    QVERIFY(CellComparison::isSame(readBack, node));
}

void TestRowNodeForm::plainJsonReadsAs_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("integral decimal") << QByteArray("5.0") << QVariant(5);
    QTest::newRow("integral with exponent") << QByteArray("5e3") << QVariant(5000);
    QTest::newRow("large with exponent") << QByteArray("1E+18") << QVariant(qlonglong(1000000000000000000));
    QTest::newRow("minus zero") << QByteArray("-0") << QVariant(0);
    QTest::newRow("decimal minus zero") << QByteArray("-0.0") << QVariant(0);
    QTest::newRow("beyond 64 bits") << QByteArray("18446744073709551616") << QVariant(18446744073709551616.0);
    QTest::newRow("nineteen digits") << QByteArray("1234567890123456789")
                                     << QVariant(qlonglong(1234567890123456789));
    QTest::newRow("many digits") << QByteArray("0.1000000000000000055511151231257827") << QVariant(0.1);
    QTest::newRow("many zeros") << QByteArray("0.0000000000000000000001") << QVariant(1e-22);
    QTest::newRow("halfway") << QByteArray("9007199254740993.0") << QVariant(qlonglong(9007199254740992));
    QTest::newRow("escapes") << QByteArray(R"("\"\\\/\b\f\n\r\t\u00b5\ud83e\uddea")")
                             << QVariant(u"\"\\/\b\f\n\r\tµ\U0001F9EA"_s);
    QTest::newRow("escaped half of a pair")
        << QByteArray(R"("\ud83ea")") << QVariant(QString(QChar(0xD83E)) + u'a');
    QTest::newRow("raw control") << QByteArray("\"a\tb\"") << QVariant(u"a\tb"_s);
    QTest::newRow("two members, one of a type")
        << QByteArray(R"({"$double":5,"a":1})") << QVariant(QVariantMap{{u"$double"_s, 5}, {u"a"_s, 1}});
    QTest::newRow("double by a decimal") << QByteArray(R"({"$double":1.5})") << QVariant(1.5);
    QTest::newRow("escaped type") << QByteArray(R"({"\u0024double":5})") << QVariant(5.0);
    QTest::newRow("large 64 bits by type")
        << QByteArray(R"({"$int64":4294967296})") << QVariant(qlonglong(4294967296));
}

void TestRowNodeForm::plainJsonReadsAs()
{
    QFETCH(QByteArray, json);
    QFETCH(QVariant, value);
    RowNode fromText;
    QVERIFY(rn::parse(around(json), &fromText));
    QVERIFY2(CellComparison::isSame(fromText, holding(value)), fromText.data.at(0).typeName());
    RowNode fromObject;
    QVERIFY(rn::fromObject(QJsonDocument::fromJson(around(json)).object(), &fromObject));
    QVERIFY2(CellComparison::isSame(fromObject, holding(value)), fromObject.data.at(0).typeName());
}

void TestRowNodeForm::valuesWithoutAFormAreRefused_data()
{
    QTest::addColumn<QVariant>("value");
    const QVariant point(QPointF(1, 2));
    QTest::newRow("alone") << point;
    QTest::newRow("in a list") << QVariant(QVariantList{1, point});
    QTest::newRow("in a map") << QVariant(QVariantMap{{u"a"_s, point}});
    QTest::newRow("in a hash") << QVariant(QVariantHash{{u"a"_s, point}});
    QTest::newRow("pointer") << QVariant::fromValue<QObject *>(nullptr);
}

void TestRowNodeForm::valuesWithoutAFormAreRefused()
{
    QFETCH(QVariant, value);
    RowNode node;
    node.addNewChild({1, value});
    bool ok = true;
    QCOMPARE(rn::serialize(&node, &ok), QByteArray());
    QVERIFY(!ok);
    ok = true;
    QCOMPARE(rn::toObject(&node, &ok), QJsonObject());
    QVERIFY(!ok);
    QCOMPARE(rn::serialize(&node), QByteArray());
}

ORV_REGISTER_TEST(TestRowNodeForm)

#include "TestRowNodeForm.moc"
