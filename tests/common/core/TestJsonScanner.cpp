#include "OrvTest.h"

#include <orv/core/JsonScanner.h>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

/// An object of \a count different keys and then \a last.
QByteArray objectWithKeys(int count, const QByteArray &last)
{
    QByteArray json = "{";
    for (int i = 0; i < count; ++i)
        json += "\"key" + QByteArray::number(i) + "\":" + QByteArray::number(i) + ",";
    return json + "\"" + last + "\":0}";
}

} // namespace

class TestJsonScanner : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void keysThatDifferPass_data();
    void keysThatDifferPass();
    void aRepeatedKeyIsFoundWhereItStandsAgain_data();
    void aRepeatedKeyIsFoundWhereItStandsAgain();
    void anUnknownEscapeIsFoundWhereItStands_data();
    void anUnknownEscapeIsFoundWhereItStands();
    void legalEscapesPass();
    void aPointWithoutDigitsIsFoundWhereItStands_data();
    void aPointWithoutDigitsIsFoundWhereItStands();
    void legalNumbersPass();
    void anyTextIsSurvived_data();
    void anyTextIsSurvived();
    void manyKeysTakeNoLongerThanTheirNumber();
    void pointersHaveLines_data();
    void pointersHaveLines();
    void manyPointersAreFoundInOneWalk();
};

void TestJsonScanner::keysThatDifferPass_data()
{
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("empty") << ""_ba;
    QTest::newRow("empty object") << "{}"_ba;
    QTest::newRow("two keys") << R"({"a":1,"b":2})"_ba;
    QTest::newRow("another case") << R"({"a":1,"A":2})"_ba;
    QTest::newRow("prefix") << R"({"a":1,"aa":2})"_ba;
    QTest::newRow("the key as a value") << R"({"a":"a","b":"a"})"_ba;
    QTest::newRow("the key as an element") << R"({"a":["a","a",{"a":"a"}]})"_ba;
    QTest::newRow("the key inside and outside") << R"({"a":{"a":{"a":{}}}})"_ba;
    QTest::newRow("siblings") << R"([{"a":1},{"a":2}])"_ba;
    QTest::newRow("siblings behind a level") << R"({"x":{"a":1},"y":{"a":2},"a":3})"_ba;
    QTest::newRow("quotes and braces in texts") << R"({"a":"{\"a\":1,","b":"}","c":"\\"})"_ba;
    QTest::newRow("escaped keys that differ") << R"({"\u0061":1,"\u0062":2,"\\u0061":3})"_ba;
    QTest::newRow("composed and decomposed characters") << "{\"\xC3\xA4\":1,\"a\xCC\x88\":2}"_ba;
    QTest::newRow("lone surrogates that differ") << R"({"\ud800":1,"\ud801":2})"_ba;
    QTest::newRow("32 keys") << objectWithKeys(31, "last");
    QTest::newRow("33 keys") << objectWithKeys(32, "last");
    QTest::newRow("1000 keys, twice")
        << "[" + objectWithKeys(1000, "last") + "," + objectWithKeys(1000, "last") + "]";
}

void TestJsonScanner::keysThatDifferPass()
{
    QFETCH(QByteArray, json);
    const std::optional<JsonFault> duplicate = findJsonFault(json);
    QVERIFY2(!duplicate, duplicate ? qPrintable(duplicate->text) : "");
}

void TestJsonScanner::aRepeatedKeyIsFoundWhereItStandsAgain_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("key");

    QTest::newRow("two keys") << R"({"a":1,"a":2})"_ba << u"a"_s;
    QTest::newRow("equal values too") << R"({"a":1,"a":1})"_ba << u"a"_s;
    QTest::newRow("empty key") << R"({"":1,"":2})"_ba << QString();
    QTest::newRow("behind a nested object") << R"({"a":{"b":[{"c":1}]},"b":2,"a":3})"_ba << u"a"_s;
    QTest::newRow("in an array of objects") << R"([{"a":1},{"b":1,"b":2}])"_ba << u"b"_s;
    QTest::newRow("deep") << R"({"x":[[{"y":{"z":1,"z":2}}]]})"_ba << u"z"_s;
    QTest::newRow("escaped second") << R"({"type":1,"t\u0079pe":2})"_ba << u"type"_s;
    QTest::newRow("escaped first") << R"({"t\u0079pe":1,"type":2})"_ba << u"type"_s;
    QTest::newRow("escaped in two ways") << R"({"\u00E4":1,"\u00e4":2})"_ba << u"\u00e4"_s;
    QTest::newRow("surrogate pair and UTF-8")
        << "{\"\\ud83e\\uddea\":1,\"\xF0\x9F\xA7\xAA\":2}"_ba << u"\U0001F9EA"_s;
    QTest::newRow("escaped quote") << R"({"a\"b":1,"a\u0022b":2})"_ba << u"a\"b"_s;
    QTest::newRow("byte order mark before the second") << "{\"a\":1,\"\xEF\xBB\xBF"
                                                          "a\":2}"_ba
                                                       << u"a"_s;
    QTest::newRow("escaped byte order mark") << R"({"\ufeffa":1,"a":2})"_ba << u"a"_s;
    QTest::newRow("escaped solidus") << R"({"a/b":1,"a\/b":2})"_ba << u"a/b"_s;
    QTest::newRow("blanks before the colon") << "{\"a\" :1 ,\n\t\"a\" :2}"_ba << u"a"_s;
    QTest::newRow("32 keys, the first again") << objectWithKeys(31, "key0") << u"key0"_s;
    QTest::newRow("33 keys, the first again") << objectWithKeys(32, "key0") << u"key0"_s;
    QTest::newRow("34 keys, the 33rd again") << objectWithKeys(33, "key32") << u"key32"_s;
    QTest::newRow("500 keys, escaped") << objectWithKeys(500, "k\\u0065y499") << u"key499"_s;
}

void TestJsonScanner::aRepeatedKeyIsFoundWhereItStandsAgain()
{
    QFETCH(QByteArray, json);
    const std::optional<JsonFault> duplicate = findJsonFault(json);
    QVERIFY(duplicate.has_value());
    QTEST(duplicate->text, "key");
    QCOMPARE(json.at(duplicate->offset), '"');
    QVERIFY(!findJsonFault(json.left(duplicate->offset)));
}

void TestJsonScanner::anUnknownEscapeIsFoundWhereItStands_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("escape");
    QTest::addColumn<int>("offset");

    QTest::newRow("a path typed by hand") << R"({"file":"D:\Data\run1.mzML"})"_ba << u"\\D"_s << 11;
    QTest::newRow("in a key") << R"({"a\x":1})"_ba << u"\\x"_s << 3;
    QTest::newRow("behind legal ones") << R"(["\n\t","\\\\","\q"])"_ba << u"\\q"_s << 16;
    QTest::newRow("upper case U") << "[\"\\U0041\"]"_ba << u"\\U"_s << 2;
    QTest::newRow("apostrophe") << "[\"it\\'s\"]"_ba << u"\\'"_s << 4;
    QTest::newRow("a character of two bytes") << "[\"\\\xC3\xA4\"]"_ba << u"\\\u00e4"_s << 2;
    QTest::newRow("a character of four bytes") << "[\"\\\xF0\x9F\xA7\xAA\"]"_ba << u"\\\U0001F9EA"_s << 2;
    QTest::newRow("a zero byte") << QByteArray("[\"\\\0\"]", 6) << u"\\"_s + QChar(u'\0') << 2;
    QTest::newRow("before a key that stands twice") << "{\"a\":\"\\D\",\"a\":1}"_ba << u"\\D"_s << 6;
}

void TestJsonScanner::anUnknownEscapeIsFoundWhereItStands()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, escape);
    QFETCH(int, offset);
    const std::optional<JsonFault> fault = findJsonFault(json);
    QVERIFY(fault.has_value());
    QCOMPARE(*fault, (JsonFault{JsonFault::Kind::IllegalEscape, escape, offset}));
}

void TestJsonScanner::aPointWithoutDigitsIsFoundWhereItStands_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("number");
    QTest::addColumn<int>("offset");
    QTest::newRow("none behind") << R"({"a":1.})"_ba << u"1."_s << 5;
    QTest::newRow("none before") << R"({"a":[2.5, .5]})"_ba << u".5"_s << 11;
    QTest::newRow("negative") << R"([-.5])"_ba << u"-.5"_s << 1;
    QTest::newRow("exponent behind") << R"([1.e5])"_ba << u"1.e5"_s << 1;
}

void TestJsonScanner::aPointWithoutDigitsIsFoundWhereItStands()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, number);
    QFETCH(int, offset);
    const std::optional<JsonFault> fault = findJsonFault(json);
    QVERIFY(fault.has_value());
    QCOMPARE(*fault, (JsonFault{JsonFault::Kind::IllegalNumber, number, offset}));
}

void TestJsonScanner::legalNumbersPass()
{
    QVERIFY(!findJsonFault(R"({"a.":[0.5,-1.25e-3,1E5,12],"b":"1. .5","\u002e":"."})"));
}

void TestJsonScanner::legalEscapesPass()
{
    const QByteArray json = "[\"\\\"\\\\\\/\\b\\f\\n\\r\\t\\u00e4\\u00E4\", \"D:\\\\Data\"]";
    QVERIFY(!findJsonFault(json));
}

void TestJsonScanner::anyTextIsSurvived_data()
{
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("closing only") << "]]}}"_ba;
    QTest::newRow("crossed") << "{[}]"_ba;
    QTest::newRow("open text") << "{\"a"_ba;
    QTest::newRow("open text behind a backslash") << "{\"a\\"_ba;
    QTest::newRow("broken escape in a key") << "{\"\\u00\":1,\"\\u00\":2"_ba;
    QTest::newRow("invalid UTF-8 in a key") << "{\"\xFF\":1,\"\\u0061\xFF\":2}"_ba;
    QTest::newRow("null bytes") << QByteArray(64, '\0');
    QTest::newRow("100,000 levels") << "{\"a\":["_ba.repeated(50000);
}

void TestJsonScanner::anyTextIsSurvived()
{
    QFETCH(QByteArray, json);
    const std::optional<JsonFault> duplicate = findJsonFault(json);
    QVERIFY(!duplicate || duplicate->offset < json.size());
    QVERIFY(linesOfPointers(json, {u"/a/0/a"_s, u"/nothing"_s}).size() <= 1);
}

void TestJsonScanner::manyKeysTakeNoLongerThanTheirNumber()
{
    // Compared by pairs, this would be 20,000,000,000 comparisons, and run into the time limit of the test.
    QVERIFY(!findJsonFault(objectWithKeys(200000, "last")));
}

void TestJsonScanner::pointersHaveLines_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("pointer");
    QTest::addColumn<int>("line");

    const QByteArray document = "\n{\n\"a\": [1,\n [2, 3],\n {\"x/y\": {\"m~n\":\n \"text\"}}\n],\n"
                                "\"\\u0062\":\nnull, \"c\": \"a:{[,\\\"\", \"\": 5\n, \"d\":[]}"_ba;
    QTest::newRow("the document") << document << u""_s << 2;
    QTest::newRow("an array") << document << u"/a"_s << 3;
    QTest::newRow("an element") << document << u"/a/0"_s << 3;
    QTest::newRow("an array in an array") << document << u"/a/1"_s << 4;
    QTest::newRow("its element") << document << u"/a/1/1"_s << 4;
    QTest::newRow("an object in an array") << document << u"/a/2"_s << 5;
    QTest::newRow("a slash in a key") << document << u"/a/2/x~1y"_s << 5;
    QTest::newRow("a tilde in a key") << document << u"/a/2/x~1y/m~0n"_s << 6;
    QTest::newRow("an escape in a key, the value on the next line") << document << u"/b"_s << 9;
    QTest::newRow("a string that looks like JSON") << document << u"/c"_s << 9;
    QTest::newRow("the empty key") << document << u"/"_s << 9;
    QTest::newRow("behind them") << document << u"/d"_s << 10;
    QTest::newRow("no such key") << document << u"/e"_s << 0;
    QTest::newRow("no such element") << document << u"/a/3"_s << 0;
    QTest::newRow("an element of an empty array") << document << u"/d/0"_s << 0;
    QTest::newRow("a member of a number") << document << u"/a/0/x"_s << 0;
    QTest::newRow("an element with a leading zero") << document << u"/a/00"_s << 0;
    QTest::newRow("no pointer") << document << u"a"_s << 0;
    QTest::newRow("behind a byte order mark") << "\xEF\xBB\xBF{\"a\":\r\n1}"_ba << u"/a"_s << 2;
    QTest::newRow("a scalar") << " 17"_ba << u""_s << 1;
    QTest::newRow("a line break within a string") << "{\"a\": \"x\ny\", \"b\": true}"_ba << u"/b"_s << 2;
}

void TestJsonScanner::pointersHaveLines()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, pointer);
    QFETCH(int, line);
    const QHash<QString, qsizetype> lines = linesOfPointers(json, {u"/a/1/0"_s, pointer, u"/unknown"_s});
    QCOMPARE(lines.value(pointer), line);
    QCOMPARE(lines.contains(pointer), line > 0);
}

void TestJsonScanner::manyPointersAreFoundInOneWalk()
{
    // A walk for each would be 2,500,000,000 lines, and run into the time limit of the test.
    constexpr int kCount = 50000;
    const QByteArray json = "[" + "\n0,"_ba.repeated(kCount) + "0]";
    QStringList pointers;
    for (int i = 0; i < kCount; ++i)
        pointers.append(u'/' + QString::number(i));
    const QHash<QString, qsizetype> lines = linesOfPointers(json, pointers);
    QCOMPARE(lines.size(), kCount);
    QCOMPARE(lines.value(pointers.constLast()), kCount + 1);
}

ORV_REGISTER_TEST(TestJsonScanner)

#include "TestJsonScanner.moc"
