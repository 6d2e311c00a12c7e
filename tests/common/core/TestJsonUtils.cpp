#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/core/JsonUtils.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestJsonUtils : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void positionsCountLinesAndCharactersFromOne_data();
    void positionsCountLinesAndCharactersFromOne();
    void wellFormedTextIsRead_data();
    void wellFormedTextIsRead();
    void aByteOrderMarkIsPassedOver();
    void brokenTextIsRefusedWithItsPlaceAndARemedy_data();
    void brokenTextIsRefusedWithItsPlaceAndARemedy();
    void nestingIsBounded_data();
    void nestingIsBounded();
    void aHundredThousandOpenArraysNeitherCrashNorHang();
    void duplicateKeysAreRefusedWithTheirPlace();
    void anUnknownEscapeIsRefusedWithItsPlaceAndTheRemedy();
    void whatCannotBeTrustedIsReadOnRequest_data();
    void whatCannotBeTrustedIsReadOnRequest();
    void anObjectIsWantedAtTheRoot_data();
    void anObjectIsWantedAtTheRoot();
    void membersOfTheWantedTypeAreGiven();
    void membersOfAnotherTypeAreRefusedByName_data();
    void membersOfAnotherTypeAreRefusedByName();
    void compactTextReadsBack();
    void everyJsonTypeHasAWord();
};

void TestJsonUtils::positionsCountLinesAndCharactersFromOne_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<qsizetype>("offset");
    QTest::addColumn<qsizetype>("line");
    QTest::addColumn<qsizetype>("column");

    const auto row = [](const char *name, const QByteArray &json, qsizetype offset, qsizetype line,
                        qsizetype column) { QTest::newRow(name) << json << offset << line << column; };
    row("empty text", "", 0, 1, 1);
    row("beginning", "{}", 0, 1, 1);
    row("within the first line", "{\"a\":1}", 5, 1, 6);
    row("on the line break", "ab\ncd", 2, 1, 3);
    row("behind the line break", "ab\ncd", 3, 2, 1);
    row("Windows line ends", "ab\r\ncd", 5, 2, 2);
    row("last line", "a\n\n\nb", 4, 4, 1);
    row("two-byte characters count once", "\xC3\xA4\xC3\xB6x", 4, 1, 3);
    row("three-byte characters count once", "\xE2\x82\xACx", 3, 1, 2);
    row("four-byte characters count once", "\xF0\x9F\xA7\xAAx", 4, 1, 2);
    row("a byte order mark doesn't count", "\xEF\xBB\xBF{x", 4, 1, 2);
    row("behind the end is the end", "ab\nc", 99, 2, 2);
    row("before the beginning is the beginning", "ab", -7, 1, 1);
}

void TestJsonUtils::positionsCountLinesAndCharactersFromOne()
{
    QFETCH(QByteArray, json);
    QFETCH(qsizetype, offset);
    const JsonUtils::TextPosition position = JsonUtils::positionOfOffset(json, offset);
    QTEST(position.line, "line");
    QTEST(position.column, "column");
}

void TestJsonUtils::wellFormedTextIsRead_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QByteArray>("compact");

    QTest::newRow("empty object") << "{}"_ba
                                  << "{}"_ba;
    QTest::newRow("empty array") << "[]"_ba
                                 << "[]"_ba;
    QTest::newRow("blanks around") << " \n\t{ \"a\" : [ 1 , 2 ] }\r\n"_ba
                                   << "{\"a\":[1,2]}"_ba;
    QTest::newRow("largest double") << "[1.7976931348623157e308]"_ba
                                    << "[1.7976931348623157e+308]"_ba;
    QTest::newRow("integer beyond double's 53 bits") << "[9007199254740993]"_ba
                                                     << "[9007199254740993]"_ba;
    QTest::newRow("smallest integer") << "[-9223372036854775808]"_ba
                                      << "[-9223372036854775808]"_ba;
    QTest::newRow("escapes") << R"(["\u00e4\n\/\\\""])"_ba
                             << "[\"\xC3\xA4\\n/\\\\\\\"\"]"_ba;
    QTest::newRow("the same key in two objects") << R"([{"a":1},{"a":{"a":2}}])"_ba
                                                 << R"([{"a":1},{"a":{"a":2}}])"_ba;
    QTest::newRow("the empty key") << R"({"":1})"_ba
                                   << R"({"":1})"_ba;
}

void TestJsonUtils::wellFormedTextIsRead()
{
    QFETCH(QByteArray, json);
    const Result<QJsonDocument> document = JsonUtils::documentFromJson(json);
    ORV_VERIFY_OK(document);
    QTEST(document->toJson(QJsonDocument::Compact), "compact");
}

void TestJsonUtils::aByteOrderMarkIsPassedOver()
{
    const Result<QJsonObject> object = JsonUtils::objectFromJson("\xEF\xBB\xBF{\"a\":1}");
    ORV_VERIFY_OK(object);
    QCOMPARE(*object, QJsonObject({{u"a"_s, 1}}));
}

void TestJsonUtils::brokenTextIsRefusedWithItsPlaceAndARemedy_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("remedy");

    const auto row = [](const char *name, const QByteArray &json, const QString &place,
                        const QString &remedy) { QTest::newRow(name) << json << place << remedy; };
    row("empty", "", u"Line 1, column 1."_s, u"is empty"_s);
    row("null bytes only", QByteArray(16, '\0'), {}, u"binary"_s);
    row("blanks only", " \n ", {}, u"Mend"_s);
    row("byte order mark only", "\xEF\xBB\xBF", {}, u"Mend"_s);
    row("scalar at the root", "42", {}, u"Mend"_s);
    row("null at the root", "null", {}, u"Mend"_s);
    row("no value", "{\n  \"a\": }", u"Line 2"_s, u"Mend"_s);
    row("no closing brace", "{\"a\": 1", {}, u"Mend"_s);
    row("no closing quote", "{\"a", {}, u"Mend"_s);
    row("trailing comma", "[1,]", {}, u"Mend"_s);
    row("comment", "{} // workflow", {}, u"Text follows"_s);
    row("second document", "{}{}", u"Line 1, column 3."_s, u"Text follows"_s);
    row("number beyond double", "{\"a\": 1e400}", {}, u"double"_s);
    row("negative number beyond double", "[-1e999]", {}, u"double"_s);
    row("not a number", "[NaN]", {}, u"double"_s);
    row("infinity", "[Infinity]", {}, u"double"_s);
    row("UTF-16 little endian with mark", QByteArray("\xFF\xFE{\0}\0", 6), {}, u"UTF-16"_s);
    row("UTF-16 big endian with mark", QByteArray("\xFE\xFF\0{\0}", 6), {}, u"UTF-16"_s);
    row("UTF-16 little endian", QByteArray("{\0}\0", 4), {}, u"UTF-16"_s);
    row("UTF-16 big endian", QByteArray("\0{\0}", 4), {}, u"UTF-16"_s);
    row("Latin-1", "{\"a\": \"\xE4 gr\"}", {}, u"UTF-8"_s);
    row("cut UTF-8 sequence", "[\"\xC3\"]", {}, u"UTF-8"_s);
    row("overlong UTF-8", "[\"\xC0\x80\"]", {}, u"UTF-8"_s);
    row("surrogate in UTF-8", "[\"\xED\xA0\x80\"]", {}, u"UTF-8"_s);
    row("binary", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), {}, u"binary"_s);
}

void TestJsonUtils::brokenTextIsRefusedWithItsPlaceAndARemedy()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, place);
    QFETCH(QString, remedy);
    const Result<QJsonDocument> document = JsonUtils::documentFromJson(json);
    QVERIFY(document.hasError());
    QCOMPARE(document.error().code(), ErrorCode::InvalidContent);
    QVERIFY(!document.error().errorMessage().isEmpty());
    const QStringList details = document.error().details();
    QCOMPARE(details.size(), 2);
    QVERIFY2(details[0].startsWith(place.isEmpty() ? u"Line "_s : place), qPrintable(details[0]));
    QVERIFY2(details[1].contains(remedy), qPrintable(details[1]));
}

void TestJsonUtils::nestingIsBounded_data()
{
    QTest::addColumn<int>("levels");
    QTest::addColumn<bool>("isRead");

    QTest::newRow("deep") << 1000 << true;
    QTest::newRow("the deepest") << 1024 << true;
    QTest::newRow("one too deep") << 1025 << false;
}

void TestJsonUtils::nestingIsBounded()
{
    QFETCH(int, levels);
    const Result<QJsonDocument> document =
        JsonUtils::documentFromJson(QByteArray(levels, '[') + QByteArray(levels, ']'));
    QTEST(!document.hasError(), "isRead");
    if (document.hasError())
        QVERIFY(document.error().details().last().contains(u"1024"_s));
}

void TestJsonUtils::aHundredThousandOpenArraysNeitherCrashNorHang()
{
    for (const char *level : {"[", "{\"a\":"}) {
        const Result<QJsonDocument> document =
            JsonUtils::documentFromJson(QByteArray(level).repeated(100000));
        QVERIFY(document.hasError());
        QVERIFY(document.error().details().last().contains(u"too deeply"_s));
    }
}

void TestJsonUtils::duplicateKeysAreRefusedWithTheirPlace()
{
    const Result<QJsonDocument> document =
        JsonUtils::documentFromJson("{\n  \"tabs\": [],\n  \"t\\u0061bs\": []\n}");
    QVERIFY(document.hasError());
    QCOMPARE(document.error().code(), ErrorCode::InvalidContent);
    QVERIFY(document.error().errorMessage().contains(u"\"tabs\""_s));
    QCOMPARE(document.error().details().first(), u"Line 3, column 3."_s);
}

void TestJsonUtils::anUnknownEscapeIsRefusedWithItsPlaceAndTheRemedy()
{
    const Result<QJsonObject> object = JsonUtils::objectFromJson("{\n  \"file\": \"D:\\Data\\run1.mzML\"\n}");
    QVERIFY(object.hasError());
    QCOMPARE(object.error().code(), ErrorCode::InvalidContent);
    QCOMPARE(object.error().errorMessage(), u"the escape \\D is none that JSON knows"_s);
    QCOMPARE(object.error().details().first(), u"Line 2, column 14."_s);
    QVERIFY(object.error().details().last().contains(u"write \\\\"_s));
}

void TestJsonUtils::whatCannotBeTrustedIsReadOnRequest_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("value");

    QTest::newRow("sound") << R"({"a":"x"})"_ba << QString() << u"x"_s;
    QTest::newRow("a key twice") << R"({"a":"x","a":"y"})"_ba << u"the key \"a\" stands twice in one object"_s
                                 << u"y"_s;
    QTest::newRow("an unknown escape")
        << R"({"a":"\x"})"_ba << u"the escape \\x is none that JSON knows"_s << u"x"_s;
}

void TestJsonUtils::whatCannotBeTrustedIsReadOnRequest()
{
    QFETCH(QByteArray, json);
    const Result<JsonUtils::DoubtfulObject> read = JsonUtils::doubtfulObjectFromJson(json);
    ORV_VERIFY_OK(read);
    QTEST(read->fault.errorMessage(), "fault");
    QTEST(read->object.value("a"_L1).toString(), "value");
    QCOMPARE(JsonUtils::objectFromJson(json).hasError(), read->fault.hasError());
}

void TestJsonUtils::anObjectIsWantedAtTheRoot_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("isObject");

    QTest::newRow("object") << "{}"_ba << true;
    QTest::newRow("array") << "[]"_ba << false;
    QTest::newRow("array of an object") << "[{}]"_ba << false;
    QTest::newRow("broken") << "{"_ba << false;
}

void TestJsonUtils::anObjectIsWantedAtTheRoot()
{
    const LogCapture log;
    QFETCH(QByteArray, json);
    const Result<QJsonObject> object = JsonUtils::objectFromJson(json);
    QTEST(!object.hasError(), "isObject");
    if (object.hasError())
        QCOMPARE(object.error().code(), ErrorCode::InvalidContent);
}

void TestJsonUtils::membersOfTheWantedTypeAreGiven()
{
    const QJsonObject object{
        {u"object"_s, QJsonObject{{u"x"_s, 1}}}, {u"array"_s, QJsonArray{1, 2}}, {u"text"_s, u""_s}};
    const Result<QJsonObject> member = JsonUtils::objectValue(object, u"object"_s);
    ORV_VERIFY_OK(member);
    QCOMPARE(*member, QJsonObject({{u"x"_s, 1}}));
    const Result<QJsonArray> array = JsonUtils::arrayValue(object, u"array"_s);
    ORV_VERIFY_OK(array);
    QCOMPARE(array->size(), 2);
    const Result<QString> text = JsonUtils::stringValue(object, u"text"_s);
    ORV_VERIFY_OK(text);
    QCOMPARE(*text, QString());
}

void TestJsonUtils::membersOfAnotherTypeAreRefusedByName_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("word");

    QTest::newRow("null") << QJsonValue() << u"there is null"_s;
    QTest::newRow("bool") << QJsonValue(true) << u"there is a bool"_s;
    QTest::newRow("number") << QJsonValue(1.5) << u"there is a number"_s;
    QTest::newRow("absent") << QJsonValue(QJsonValue::Undefined) << u"there is nothing"_s;
}

void TestJsonUtils::membersOfAnotherTypeAreRefusedByName()
{
    QFETCH(QJsonValue, value);
    QFETCH(QString, word);
    QJsonObject object;
    object.insert(u"key"_s, value); // inserting an undefined value inserts nothing
    const auto check = [&word](const Error &error, const QString &wanted) {
        return error.code() == ErrorCode::InvalidContent &&
               error.errorMessage().contains(u"\"key\" must be "_s + wanted) &&
               error.errorMessage().contains(word);
    };
    QVERIFY(check(JsonUtils::objectValue(object, u"key"_s).error(), u"an object"_s));
    QVERIFY(check(JsonUtils::arrayValue(object, u"key"_s).error(), u"an array"_s));
    QVERIFY(check(JsonUtils::stringValue(object, u"key"_s).error(), u"a string"_s));
}

void TestJsonUtils::compactTextReadsBack()
{
    const QJsonObject object{{u"b"_s, QJsonArray{1, QJsonValue(), true}}, {u"a"_s, u"\u00e4\n"_s}};
    const QByteArray json = JsonUtils::toCompactJson(object);
    QCOMPARE(json, "{\"a\":\"\xC3\xA4\\n\",\"b\":[1,null,true]}"_ba);
    QCOMPARE(*JsonUtils::objectFromJson(json), object);
}

void TestJsonUtils::everyJsonTypeHasAWord()
{
    QStringList words;
    for (const QJsonValue::Type type :
         {QJsonValue::Null, QJsonValue::Bool, QJsonValue::Double, QJsonValue::String, QJsonValue::Array,
          QJsonValue::Object, QJsonValue::Undefined})
        words.append(JsonUtils::typeDescription(type));
    QVERIFY(!words.contains(QString()));
    QCOMPARE(words.removeDuplicates(), 0);
}

ORV_REGISTER_TEST(TestJsonUtils)

#include "TestJsonUtils.moc"
