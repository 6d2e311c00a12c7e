#include "OrvTest.h"

#include <orv/table/rn.h>

#include <QJsonArray>
#include <QJsonDocument>

using namespace orv;
using namespace Qt::StringLiterals;

/// What is no table is refused whole.
class TestRowNodeRefusals : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void brokenTextIsRefused_data();
    void brokenTextIsRefused();
    void everyCutTextIsRefused();
    void wrongTypesAreRefused_data();
    void wrongTypesAreRefused();
    void unfitPayloadsAreKeptAsTheyStand_data();
    void unfitPayloadsAreKeptAsTheyStand();
    void whatIsKeptShowsItsText();
    void whatHasNoFormIsTold_data();
    void whatHasNoFormIsTold();
    void repeatedKeysAreRefused_data();
    void repeatedKeysAreRefused();
    void noNodeIsRefused();
    void nestingIsBounded_data();
    void nestingIsBounded();
    void nodesTooDeepAreNotWritten();
    void countlessBracketsAreRefused();
    void textNeedsNoZeroBehindIt();
};

namespace {

RowNode before()
{
    RowNode node({u"kept"_s});
    node.addNewChild({1});
    return node;
}

bool isRefusedWhole(const QByteArray &json)
{
    RowNode node = before();
    return !rn::parse(json, &node) && node == before();
}

bool isObjectRefusedWhole(const QByteArray &json)
{
    RowNode node = before();
    return !rn::fromObject(QJsonDocument::fromJson(json).object(), &node) && node == before();
}

QByteArray aroundSecond(const QByteArray &cell)
{
    return R"({"data":["first",)" + cell + R"(],"children":[]})";
}

void row(const char *name, const QByteArray &json)
{
    QTest::newRow(name) << json;
}

void addBrokenStructures()
{
    row("nothing", "");
    row("null bytes", QByteArray(8, '\0'));
    row("blanks", " \n");
    row("mark alone", "\xEF\xBB\xBF");
    row("two nodes", "{}{}");
    row("text behind", "{} x");
    row("comma behind", "{},");
    row("open object", "{");
    row("comma without a member", R"({"data":[],})");
    row("no colon", R"({"data" []})");
    row("no value", R"({"data":})");
    row("key without quotes", "{data:[]}");
    row("single quotes", "{'data':[]}");
    row("no comma between members", R"({"data":[]"children":[]})");
    row("comma without an entry", aroundSecond("1,"));
    row("no comma between entries", aroundSecond("1 2"));
    row("open list", R"({"data":[1)");
    row("wrong bracket", R"({"data":[1}})");
    row("comma without a row", R"({"children":[{},]})");
    row("open text", R"({"data":["a)");
    row("open escape", R"({"data":["a\)");
    row("broken in a passed-over member", R"({"x":[1,2,"data":[]})");
    row("broken text in a passed-over member", "{\"x\":{\"y\":\"\xFF\"}}");
    row("key that is no text in a passed-over member", R"({"x":{1:2}})");
    row("broken in the last row", R"({"data":["a"],"children":[{"data":[1]},{"data":[2]},{"data":[3}]})");
}

void addBrokenTexts()
{
    row("cut code unit", aroundSecond(R"("\u12")"));
    row("code unit that is none", aroundSecond(R"("\u12g4")"));
    row("code unit with zero bytes", aroundSecond(QByteArray("\"\\u0\0\0\0\"", 8)));
    row("negative code unit", aroundSecond(R"("\u-123")"));
    row("code unit with a sign", aroundSecond(R"("\u+123")"));
    row("code unit with a blank", aroundSecond(R"("\u 123")"));
    row("unknown escape", aroundSecond(R"("\q")"));
    row("Latin 1", aroundSecond("\"\xB5\""));
    row("cut UTF-8", aroundSecond("\"\xC2\""));
    row("overlong UTF-8", aroundSecond("\"\xC0\x80\""));
    row("surrogate in UTF-8", aroundSecond("\"\xED\xA0\x80\""));
    row("UTF-8 cut by an escape", aroundSecond("\"\xC2\\n\xB5\""));
}

void addBrokenWordsAndNumbers()
{
    row("cut word", aroundSecond("nul"));
    row("word in capitals", aroundSecond("True"));
    row("word that goes on", aroundSecond("nullx"));
    row("NaN", aroundSecond("NaN"));
    row("infinity", aroundSecond("-Infinity"));
    row("sign alone", aroundSecond("-"));
    row("plus", aroundSecond("+1"));
    row("leading zero", aroundSecond("01"));
    row("leading zero behind a sign", aroundSecond("-01"));
    row("point without decimals", aroundSecond("1."));
    row("point without a digit before", aroundSecond(".5"));
    row("exponent without digits", aroundSecond("1e"));
    row("exponent with a sign alone", aroundSecond("1e+"));
    row("hexadecimal", aroundSecond("0x10"));
    row("number no double holds", aroundSecond("1e400"));
    row("number below all doubles", aroundSecond("1e-400"));
}

void typed(const char *name, const QByteArray &payload)
{
    const QByteArray cell = "{\"$" + QByteArray(name) + "\":" + payload + "}";
    QTest::newRow(cell.constData()) << cell;
}

void addPayloadsThatFitNothing()
{
    for (const char *name : {"unknown", "Double", "", "QString"})
        typed(name, "1");
    // A bool and a typed payload fit none.
    for (const char *name :
         {"double", "float", "int64",    "uint",  "uint64",  "long",       "ulong",     "short",  "ushort",
          "char",   "schar", "uchar",    "qchar", "strings", "bytes",      "map",       "hash",   "text",
          "date",   "time",  "datetime", "url",   "uuid",    "jsonObject", "jsonArray", "nullptr"}) {
        typed(name, "true");
        typed(name, "{}");
        typed(name, "{\"$float\":2}");
    }
    for (const char *name : {"double", "float", "int64", "uint",  "uint64",     "long",     "ulong", "short",
                             "ushort", "char",  "schar", "uchar", "qchar",      "strings",  "bytes", "map",
                             "hash",   "text",  "url",   "uuid",  "jsonObject", "jsonArray"})
        typed(name, "null");
    for (const char *name : {"double", "float", "int64", "uint", "short", "date", "time", "datetime",
                             "uint64", "uuid", "jsonObject", "jsonArray", "nullptr", "bytes", "qchar"})
        typed(name, "\"x!\"");
}

void addUnfitNumbers()
{
    typed("double", "\"NaN\"");
    typed("float", "1e39");
    typed("int64", "1.5");
    typed("int64", "9223372036854775808");
    typed("uint", "-1");
    typed("uint", "4294967296");
    typed("uint64", "5");
    typed("uint64", "\"-1\"");
    typed("uint64", "\"05\"");
    typed("uint64", "\"18446744073709551616\"");
    typed("short", "32768");
    typed("uchar", "-1");
    typed("qchar", "65536");
}

void addUnfitTextsAndDates()
{
    typed("strings", R"(["a",1])");
    typed("strings", "\"a\"");
    typed("text", "[65536]");
    typed("text", "\"a\"");
    typed("map", R"([["a"]])");
    typed("map", R"([["a",1,2]])");
    typed("map", R"([[1,2]])");
    typed("map", R"(["ab"])");
    typed("map", R"([["a",1],["a",2]])");
    typed("hash", R"({"a":1})");
    typed("date", "\"2024-02-30\"");
    typed("time", "\"25:00:00.000\"");
    typed("datetime", "\"2024-01-31T10:20:30.456Z\"");
    typed("datetime", R"(["2024-01-31T10:20:30.456Z"])");
    typed("datetime", R"(["2024-01-31T10:20:30.456Z","Nowhere/Never"])");
    typed("datetime", R"(["2024-01-31T10:20:30.456Z",86400])");
    typed("datetime", R"(["2024-01-31T10:20:30.456Z",null])");
    typed("datetime", R"(["2024-02-31T10:20:30.456Z","utc"])");
    typed("url", "\"a b\"");
    typed("jsonObject", "\"[]\"");
    typed("jsonArray", "\"{}\"");
    typed("nullptr", "0");
}

} // namespace

void TestRowNodeRefusals::brokenTextIsRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    addBrokenStructures();
    addBrokenTexts();
    addBrokenWordsAndNumbers();
}

void TestRowNodeRefusals::brokenTextIsRefused()
{
    QFETCH(QByteArray, json);
    QVERIFY(isRefusedWhole(json));
}

void TestRowNodeRefusals::everyCutTextIsRefused()
{
    const QByteArray json = R"({"data":["a\u00b5",-1.5e3,{"$double":"nan"},null,true,[1]],"x":{"y":[]},)"
                            R"("children":[{"data":[1,"µ"],"children":[]}]})";
    RowNode node;
    QVERIFY(rn::parse(json, &node));
    for (qsizetype size = 0; size < json.size(); ++size)
        QVERIFY2(isRefusedWhole(json.first(size)), json.first(size).constData());
}

void TestRowNodeRefusals::wrongTypesAreRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    row("data is an object", R"({"data":{}})");
    row("data is null", R"({"data":null})");
    row("data are a text", R"({"data":"a"})");
    row("children are an object", R"({"children":{}})");
    row("children are null", R"({"children":null})");
    row("children are a number", R"({"children":3})");
    row("row is a list", R"({"children":[[]]})");
    row("row is a text", R"({"children":["a"]})");
    row("row is null", R"({"children":[{},null]})");
    row("row's data are a text", R"({"children":[{"data":"a"}]})");
    row("row's children are a number", R"({"children":[{"children":1}]})");
}

void TestRowNodeRefusals::wrongTypesAreRefused()
{
    QFETCH(QByteArray, json);
    QVERIFY(isRefusedWhole(json));
    QVERIFY(isObjectRefusedWhole(json));
    QVERIFY(isRefusedWhole("[" + json + "]"));
    QVERIFY(isRefusedWhole("\"a\"") && isRefusedWhole("5") && isRefusedWhole("null") && isRefusedWhole("[]"));
}

void TestRowNodeRefusals::unfitPayloadsAreKeptAsTheyStand_data()
{
    QTest::addColumn<QByteArray>("cell");
    addPayloadsThatFitNothing();
    addUnfitNumbers();
    addUnfitTextsAndDates();
}

void TestRowNodeRefusals::unfitPayloadsAreKeptAsTheyStand()
{
    QFETCH(QByteArray, cell);
    for (const QByteArray &entry :
         {cell, "[" + cell + "]", "{\"a\":" + cell + "}", "{\"$map\":[[\"a\"," + cell + "]]}"}) {
        const QByteArray json =
            R"({"data":["a","b"],"children":[{"data":["x",)" + entry + R"(],"children":[]}]})";
        const QJsonObject document = QJsonDocument::fromJson(json).object();
        QVERIFY(!document.isEmpty());
        RowNode fromText;
        RowNode fromObject;
        QVERIFY(rn::parse(json, &fromText));
        QVERIFY(rn::fromObject(document, &fromObject));
        QVERIFY(rn::canSerialize(fromText) && rn::canSerialize(fromObject));
        for (const RowNode *node : {&fromText, &fromObject}) {
            QCOMPARE(node->getChildFirst()->getDataAt(0), QVariant(u"x"_s));
            // A map with such a key alone is written by its pairs, which tells the same.
            if (entry.startsWith("{\"$map\""))
                continue;
            QCOMPARE(rn::toObject(node), document);
            QCOMPARE(QJsonDocument::fromJson(rn::serialize(node)).object(), document);
        }
    }
}

void TestRowNodeRefusals::whatIsKeptShowsItsText()
{
    RowNode node;
    QVERIFY(rn::parse(R"({"data":[{"$later": {"b": 1, "a": "x"}}]})", &node));
    const QVariant entry = node.getDataAt(0);
    QCOMPARE(entry.value<rn::UnreadCell>().type, u"$later"_s);
    QCOMPARE(entry.value<rn::UnreadCell>().payload, QJsonValue(QJsonObject{{u"a"_s, u"x"_s}, {u"b"_s, 1}}));
    QCOMPARE(entry.toString(), uR"({"$later":{"a":"x","b":1}})"_s);
    QCOMPARE(entry, RowNode(node).getDataAt(0));
}

void TestRowNodeRefusals::whatHasNoFormIsTold_data()
{
    QTest::addColumn<QVariant>("entry");
    QTest::addColumn<bool>("canBeWritten");

    QVariant nested = QVariantList{1};
    for (int i = 0; i < 300; ++i)
        nested = QVariantList{nested};
    QTest::newRow("null") << QVariant() << true;
    QTest::newRow("number") << QVariant(2.5) << true;
    QTest::newRow("text") << QVariant(u"a"_s) << true;
    QTest::newRow("bytes") << QVariant("a"_ba) << true;
    QTest::newRow("list") << QVariant(QVariantList{1, u"a"_s}) << true;
    QTest::newRow("list of numbers of its own type") << QVariant::fromValue(QList<int>{1, 2}) << false;
    QTest::newRow("in a list") << QVariant(QVariantList{QVariant::fromValue(QList<int>{1})}) << false;
    QTest::newRow("in a map") << QVariant(QVariantMap{{u"a"_s, QVariant::fromValue(QList<int>{1})}}) << false;
    QTest::newRow("in a hash") << QVariant(QVariantHash{{u"a"_s, QVariant::fromValue(QList<int>{1})}})
                               << false;
    QTest::newRow("nests too deep") << nested << false;
}

void TestRowNodeRefusals::whatHasNoFormIsTold()
{
    QFETCH(QVariant, entry);
    QFETCH(bool, canBeWritten);
    QCOMPARE(rn::canSerialize(entry), canBeWritten);
    RowNode table;
    table.addNewChild(VariantItems(QVariantList{entry}));
    QCOMPARE(rn::canSerialize(table), canBeWritten);
    bool ok = false;
    Q_UNUSED(rn::serialize(&table, &ok))
    QCOMPARE(ok, canBeWritten);
    Q_UNUSED(rn::toObject(&table, &ok))
    QCOMPARE(ok, canBeWritten);
}

void TestRowNodeRefusals::repeatedKeysAreRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    row("data", R"({"data":[1],"data":[1]})");
    row("data, once escaped", R"({"data":[1],"\u0064ata":[2]})");
    row("children", R"({"children":[],"children":[]})");
    row("of a map", aroundSecond(R"({"a":1,"b":2,"a":1})"));
    row("of a type", aroundSecond(R"({"$double":1,"$double":1})"));
}

void TestRowNodeRefusals::repeatedKeysAreRefused()
{
    QFETCH(QByteArray, json);
    QVERIFY(isRefusedWhole(json));
}

void TestRowNodeRefusals::noNodeIsRefused()
{
    QVERIFY(!rn::parse("{}", nullptr));
    QVERIFY(!rn::fromObject({}, nullptr));
}

void TestRowNodeRefusals::nestingIsBounded_data()
{
    QTest::addColumn<QByteArray>("opening");
    QTest::addColumn<QByteArray>("innermost");
    QTest::addColumn<QByteArray>("closing");
    QTest::addColumn<int>("levelsEach");
    QTest::addColumn<int>("levelsAround");

    QTest::newRow("lists") << QByteArray("[") << QByteArray("1") << QByteArray("]") << 1 << 2;
    QTest::newRow("maps") << QByteArray(R"({"a":)") << QByteArray("1") << QByteArray("}") << 1 << 2;
    QTest::newRow("typed lists") << QByteArray(R"({"$map":[["a",)") << QByteArray("1") << QByteArray("]]}")
                                 << 3 << 2;
}

void TestRowNodeRefusals::nestingIsBounded()
{
    QFETCH(QByteArray, opening);
    QFETCH(QByteArray, innermost);
    QFETCH(QByteArray, closing);
    QFETCH(int, levelsEach);
    QFETCH(int, levelsAround);
    const int deepest = (rn::kMaxNesting - levelsAround) / levelsEach;
    const auto nested = [&](int count) {
        return R"({"data":[)" + opening.repeated(count) + innermost + closing.repeated(count) + "]}";
    };
    RowNode node;
    QVERIFY(rn::parse(nested(deepest), &node));
    RowNode again;
    QVERIFY(rn::parse(rn::serialize(&node), &again));
    QVERIFY(again == node);
    QVERIFY(rn::fromObject(rn::toObject(&node), &again));
    QVERIFY(again == node);
    QVERIFY(isRefusedWhole(nested(deepest + 1)));
    QVERIFY(isObjectRefusedWhole(nested(deepest + 1)));
    QVERIFY(isRefusedWhole(nested(100000)));
    QVERIFY(isRefusedWhole(R"({"x":)" + nested(deepest + 1) + "}"));
}

void TestRowNodeRefusals::nodesTooDeepAreNotWritten()
{
    RowNode node;
    RowNode *deepest = &node;
    bool ok = true;
    for (int levels = 2; levels + 2 <= rn::kMaxNesting; levels += 2)
        deepest = deepest->addNewChildMatchRootDataSize();
    const QByteArray text = rn::serialize(&node, &ok);
    QVERIFY(ok);
    RowNode readBack;
    QVERIFY(rn::parse(text, &readBack));
    QVERIFY(readBack == node);
    QVERIFY(rn::fromObject(rn::toObject(&node, &ok), &readBack));
    QVERIFY(ok && readBack == node);
    deepest = deepest->addNewChildMatchRootDataSize();
    QVERIFY(rn::serialize(&node, &ok).isEmpty());
    QVERIFY(!ok);
    QVERIFY(rn::toObject(&node, &ok).isEmpty());
    QVERIFY(!ok);
    for (int i = 0; i < 100000; ++i)
        deepest = deepest->addNewChildMatchRootDataSize();
    QVERIFY(rn::serialize(&node).isEmpty());
    QVariant list;
    for (int i = 0; i < rn::kMaxNesting; ++i)
        list = QVariantList{list};
    const RowNode deepCell({list});
    QVERIFY(rn::serialize(&deepCell).isEmpty());
    QVERIFY(rn::toObject(&deepCell).isEmpty());
}

void TestRowNodeRefusals::countlessBracketsAreRefused()
{
    for (const char *bracket : {"[", "{", "{\"data\":[", "{\"children\":[", "{\"x\":[", "{\"x\":"})
        QVERIFY2(isRefusedWhole(QByteArray(bracket).repeated(1000000)), bracket);
}

void TestRowNodeRefusals::textNeedsNoZeroBehindIt()
{
    for (const QByteArray &text : {QByteArray("{"), aroundSecond("1").first(17), aroundSecond("-").first(18),
                                   aroundSecond("nu").first(19)}) {
        const std::vector<char> exact(text.begin(), text.end());
        QVERIFY(isRefusedWhole(QByteArray::fromRawData(exact.data(), qsizetype(exact.size()))));
    }
}

ORV_REGISTER_TEST(TestRowNodeRefusals)

#include "TestRowNodeRefusals.moc"
