#include "OrvTest.h"

#include <orv/core/JsonMerge.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>

using namespace orv;
using namespace Qt::StringLiterals;

class TestJsonMerge : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatStaysIsTheSameByteForByte_data();
    void whatStaysIsTheSameByteForByte();
    void whateverIsWantedIsWhatIsRead_data();
    void whateverIsWantedIsWhatIsRead();
    void longArraysTakeNoLongerThanTheirLength();
};

void TestJsonMerge::whatStaysIsTheSameByteForByte_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("wanted");
    QTest::addColumn<QByteArray>("merged");
    const auto row = [](const char *name, const char *text, const char *wanted, const char *merged) {
        QTest::newRow(name) << QByteArray(text) << QByteArray(wanted) << QByteArray(merged);
    };
    row("nothing new", " {\"b\" :1.50 ,\"a\":-0.0}\n", R"({"a":0,"b":1.5})", " {\"b\" :1.50 ,\"a\":-0.0}\n");
    row("numbers beyond a double", R"({"n":12345678901234567890,"t":"x","s":0.1000000000000000055})",
        R"({"n":12345678901234567890,"t":"y","s":0.1})",
        R"({"n":12345678901234567890,"t":"y","s":0.1000000000000000055})");
    row("byte order mark", "\xEF\xBB\xBF{\"a\": 1}\r\n", R"({"a":2})", "\xEF\xBB\xBF{\"a\": 2}\r\n");
    row("deep inside", R"({"l":[1.0,{"x":[2.0,"a"]}]})", R"({"l":[1,{"x":[2,"b"]}]})",
        R"({"l":[1.0,{"x":[2.0,"b"]}]})");
    row("a member less", R"({"a":1.0, "b":2, "c":3.0 })", R"({"a":1,"c":3})", R"({"a":1.0, "c":3.0 })");
    row("the last member less", "{\n  \"a\": 1.0,\n  \"b\": 2\n}", R"({"a":1})", "{\n  \"a\": 1.0\n}");
    row("no member left", "{ \"a\":1 }", R"({})", "{}");
    row("a member more in between", R"({"a":1.0,"c":3.0})", R"({"a":1,"b":2,"c":3})",
        R"({"a":1.0,"b":2,"c":3.0})");
    row("a member more at the end", "{\n  \"a\": 1.0\n}", R"({"a":1,"b":{"x":[1]}})",
        "{\n  \"a\": 1.0,\n  \"b\": {\n      \"x\": [\n          1\n      ]\n  }\n}");
    row("into an empty object", "{ }", R"({"a":1})", R"({"a":1 })");
    row("an element less", R"({"l":[1.0, 2.0, 3.0]})", R"({"l":[1,3]})", R"({"l":[1.0, 3.0]})");
    row("an element more", R"({"l":[1.0,3.0]})", R"({"l":[1,2,3]})", R"({"l":[1.0,2,3.0]})");
    row("brackets and quotes in texts", R"({"a":"}\"],","b":1.0,"c":"x"})", R"({"a":"}\"],","b":1,"c":"y"})",
        R"({"a":"}\"],","b":1.0,"c":"y"})");
    row("escapes stay", R"({"\u0061":"\u00e4\/","b":1})", R"({"a":"ä/","b":2})",
        R"({"\u0061":"\u00e4\/","b":2})");
    row("another type", R"({"a":[1.0],"b":1.0})", R"({"a":{"x":1},"b":1})", R"({"a":{"x":1},"b":1.0})");
}

void TestJsonMerge::whatStaysIsTheSameByteForByte()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, wanted);
    QFETCH(QByteArray, merged);
    QCOMPARE(mergedJson(text, QJsonDocument::fromJson(wanted).object()), merged);
}

namespace {

QJsonValue randomValue(QRandomGenerator &random, int depth)
{
    const int kind = int(random.bounded(depth > 0 ? 6 : 4));
    if (kind == 0)
        return random.bounded(3);
    if (kind == 1)
        return random.bounded(2) == 1;
    if (kind == 2)
        return QString(u"t\"\\\n,]}"_s).left(random.bounded(7));
    if (kind == 3)
        return {};
    QJsonArray array;
    QJsonObject object;
    for (int i = int(random.bounded(4)); i > 0; --i) {
        array.append(randomValue(random, depth - 1));
        object.insert(u"k%1"_s.arg(random.bounded(4)), randomValue(random, depth - 1));
    }
    return kind == 4 ? QJsonValue(array) : QJsonValue(object);
}

} // namespace

void TestJsonMerge::whateverIsWantedIsWhatIsRead_data()
{
    QTest::addColumn<int>("format");
    QTest::newRow("indented") << int(QJsonDocument::Indented);
    QTest::newRow("compact") << int(QJsonDocument::Compact);
}

void TestJsonMerge::whateverIsWantedIsWhatIsRead()
{
    QFETCH(int, format);
    QRandomGenerator random(20261122);
    for (int i = 0; i < 2000; ++i) {
        const QJsonObject before{{u"v"_s, randomValue(random, 4)}, {u"w"_s, randomValue(random, 3)}};
        const QJsonObject wanted{{u"v"_s, randomValue(random, 4)}, {u"w"_s, randomValue(random, 3)}};
        const QByteArray text = QJsonDocument(before).toJson(QJsonDocument::JsonFormat(format));
        const QByteArray merged = mergedJson(text, wanted);
        QJsonParseError error;
        QCOMPARE(QJsonDocument::fromJson(merged, &error).object(), wanted);
        QCOMPARE(error.error, QJsonParseError::NoError);
        QCOMPARE(mergedJson(merged, before).isEmpty(), false);
        QCOMPARE(mergedJson(text, before), text);
    }
}

void TestJsonMerge::longArraysTakeNoLongerThanTheirLength()
{
    QJsonArray numbers;
    for (int i = 0; i < 200000; ++i)
        numbers.append(i);
    const QByteArray text = QJsonDocument(QJsonObject{{u"l"_s, numbers}}).toJson();
    numbers.removeFirst();
    const QByteArray merged = mergedJson(text, {{u"l"_s, numbers}});
    QCOMPARE(QJsonDocument::fromJson(merged).object(), (QJsonObject{{u"l"_s, numbers}}));
}

ORV_REGISTER_TEST(TestJsonMerge)

#include "TestJsonMerge.moc"
