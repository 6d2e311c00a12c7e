#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/RawCell.h>

using namespace orv;
using namespace orv::PropertyEditorJsonUtils;
using namespace Qt::StringLiterals;

/// Values of raw properties: objects in bytes, lists, numbers with a unit, glycans, typed members.
class TestJsonUtilsValues : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void valuesReadAsObjects_data();
    void valuesReadAsObjects();
    void bytesThatAreNoJsonAreTold();
    void listValuesAreFound_data();
    void listValuesAreFound();
    void otherListValuesGiveTheFirstName_data();
    void otherListValuesGiveTheFirstName();
    void anEmptyListGivesAnEmptyText();
    void theFlagOfAListValueMayBeLeftOut();
    void numbersWithAUnitAreRead_data();
    void numbersWithAUnitAreRead();
    void numbersWithAUnitAreReplaced_data();
    void numbersWithAUnitAreReplaced();
    void glycansAreRead_data();
    void glycansAreRead();
    void glycansAreWritten_data();
    void glycansAreWritten();
    void backslashesSurvive_data();
    void backslashesSurvive();
    void typedMembersAreRead();
    void anAbsentMemberIsAnError();
    void aMemberOfAnotherTypeIsAnError_data();
    void aMemberOfAnotherTypeIsAnError();
    void aFailedReadLeavesTheValueAsItWas();
};

namespace {

const QStringList kNames{u"first"_s, u"second"_s, u"third"_s};

QVariant bytes(const char *json)
{
    return QByteArray(json);
}

} // namespace

void TestJsonUtilsValues::valuesReadAsObjects_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QJsonObject>("object");
    const QJsonObject object{{u"a"_s, 1}};
    QTest::newRow("bytes") << bytes(R"({"a": 1})") << object;
    QTest::newRow("text") << QVariant(u"{\"a\": 1}"_s) << object;
    QTest::newRow("object") << QVariant(object) << object;
    QTest::newRow("cell") << RawCell(object).toVariant() << object;
    QTest::newRow("array") << bytes(R"([{"a": 1}])") << QJsonObject();
    QTest::newRow("invalid") << QVariant() << QJsonObject();
    QTest::newRow("null text") << QVariant(QString()) << QJsonObject();
    QTest::newRow("null bytes") << QVariant(QByteArray()) << QJsonObject();
}

void TestJsonUtilsValues::valuesReadAsObjects()
{
    QFETCH(const QVariant, value);
    QFETCH(const QJsonObject, object);
    QCOMPARE(variantToObject(value), object);
}

void TestJsonUtilsValues::bytesThatAreNoJsonAreTold()
{
    const LogCapture log;
    QCOMPARE(variantToObject(bytes("{a")), QJsonObject());
    QCOMPARE(log.warnings().size(), 1);
    const QString warning = log.warnings().first();
    QVERIFY2(warning.startsWith(u"JSON parse error \""_s), qPrintable(warning));
    QVERIFY2(warning.contains(u" string: "_s) && warning.contains(u"{a"_s), qPrintable(warning));
}

void TestJsonUtilsValues::listValuesAreFound_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("editable");
    QTest::addColumn<QString>("text");
    QTest::newRow("a name") << QVariant(u"second"_s) << false << u"second"_s;
    QTest::newRow("a name of an editable list") << QVariant(u"second"_s) << true << u"second"_s;
    QTest::newRow("an unknown text of an editable list") << QVariant(u"mine"_s) << true << u"mine"_s;
    QTest::newRow("an empty text of an editable list") << QVariant(QString()) << true << QString();
    QTest::newRow("an index as int") << QVariant(2) << false << u"third"_s;
    QTest::newRow("an index as double") << QVariant(1.0) << false << u"second"_s;
    QTest::newRow("an index as long integer") << QVariant(qlonglong(0)) << false << u"first"_s;
    QTest::newRow("an index of an editable list") << QVariant(2) << true << u"third"_s;
}

void TestJsonUtilsValues::listValuesAreFound()
{
    QFETCH(const QVariant, value);
    QFETCH(const bool, editable);
    QFETCH(const QString, text);
    bool ok = false;
    QCOMPARE(getValueFromList(value, kNames, u"P"_s, editable, &ok), text);
    QVERIFY(ok);
}

void TestJsonUtilsValues::otherListValuesGiveTheFirstName_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("editable");
    QTest::addColumn<QString>("warning");
    QTest::newRow("an unknown text")
        << QVariant(u"mine"_s) << false
        << u"\"P\" is not editable list and list data does not contain value  \"mine\""_s;
    QTest::newRow("a name in another case")
        << QVariant(u"FIRST"_s) << false
        << u"\"P\" is not editable list and list data does not contain value  \"FIRST\""_s;
    QTest::newRow("an index beyond the list")
        << QVariant(99) << false << u"Invalid index QVariant(int, 99) of \"P\""_s;
    QTest::newRow("an index beyond an editable list")
        << QVariant(3) << true << u"Invalid index QVariant(int, 3) of \"P\""_s;
    QTest::newRow("a negative index")
        << QVariant(-1) << false << u"Invalid index QVariant(int, -1) of \"P\""_s;
    QTest::newRow("a double beyond all integers")
        << QVariant(1e300) << false << u"Invalid index QVariant(double, 1e+300) of \"P\""_s;
    QTest::newRow("no number") << QVariant(qQNaN()) << false
                               << u"Invalid index QVariant(double, nan) of \"P\""_s;
    QTest::newRow("an index that ends in 32 zero bits")
        << QVariant(qlonglong(1) << 32) << false
        << u"Invalid index QVariant(qlonglong, 4294967296) of \"P\""_s;
    QTest::newRow("a bool") << QVariant(true) << false
                            << u"Cannot handle the list parameter QVariant(bool, true) of \"P\""_s;
    QTest::newRow("nothing") << QVariant() << true
                             << u"Cannot handle the list parameter QVariant(Invalid) of \"P\""_s;
}

void TestJsonUtilsValues::otherListValuesGiveTheFirstName()
{
    QFETCH(const QVariant, value);
    QFETCH(const bool, editable);
    QFETCH(const QString, warning);
    const LogCapture log;
    bool ok = true;
    QCOMPARE(getValueFromList(value, kNames, u"P"_s, editable, &ok), u"first"_s);
    QVERIFY(!ok);
    QCOMPARE(log.warnings(), QStringList{warning});
}

void TestJsonUtilsValues::anEmptyListGivesAnEmptyText()
{
    const LogCapture log;
    bool ok = true;
    QCOMPARE(getValueFromList(0, {}, u"P"_s, false, &ok), QString());
    QVERIFY(!ok);
    QCOMPARE(log.warnings().size(), 1);
}

void TestJsonUtilsValues::theFlagOfAListValueMayBeLeftOut()
{
    QCOMPARE(getValueFromList(1, kNames, u"P"_s, false, nullptr), u"second"_s);
    const LogCapture log;
    QCOMPARE(getValueFromList(9, kNames, u"P"_s, false, nullptr), u"first"_s);
    QCOMPARE(log.warnings().size(), 1);
}

void TestJsonUtilsValues::numbersWithAUnitAreRead_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("number");
    QTest::newRow("double") << bytes(R"({"unit": "ppm", "value": 20.5})") << QVariant(20.5);
    QTest::newRow("integer") << bytes(R"({"unit": "ppm", "value": 9000})") << QVariant(9000.0);
    QTest::newRow("no number") << bytes(R"({"unit": "ppm"})") << QVariant();
    QTest::newRow("no value") << QVariant() << QVariant();
}

void TestJsonUtilsValues::numbersWithAUnitAreRead()
{
    QFETCH(const QVariant, value);
    QFETCH(const QVariant, number);
    const QVariant read = getValueFromValueUnit(value);
    QCOMPARE(read.isValid(), number.isValid());
    QCOMPARE(read.toDouble(), number.toDouble());
}

void TestJsonUtilsValues::numbersWithAUnitAreReplaced_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("number");
    QTest::addColumn<QJsonObject>("object");
    const QVariant value = bytes(R"({"unit": "ppm", "value": 20})");
    QTest::newRow("double") << value << QVariant(2.5)
                            << QJsonObject{{u"unit"_s, u"ppm"_s}, {u"value"_s, 2.5}};
    QTest::newRow("integer") << value << QVariant(3) << QJsonObject{{u"unit"_s, u"ppm"_s}, {u"value"_s, 3}};
    QTest::newRow("no value before") << QVariant() << QVariant(3) << QJsonObject{{u"value"_s, 3}};
}

void TestJsonUtilsValues::numbersWithAUnitAreReplaced()
{
    QFETCH(const QVariant, value);
    QFETCH(const QVariant, number);
    QFETCH(const QJsonObject, object);
    const QVariant replaced = setValueInValueUnit(value, number);
    QCOMPARE(replaced.typeId(), int(QMetaType::QJsonObject));
    QCOMPARE(replaced.toJsonObject(), object);
    QCOMPARE(getValueFromValueUnit(replaced).toDouble(), number.toDouble());
}

void TestJsonUtilsValues::glycansAreRead_data()
{
    QTest::addColumn<QJsonObject>("object");
    QTest::addColumn<QString>("glycans");
    const QJsonObject inside{{u"glycans"_s, u"inside"_s}};
    QTest::newRow("directly") << QJsonObject{{u"glycans"_s, u"here"_s}} << u"here"_s;
    QTest::newRow("in data") << QJsonObject{{u"data"_s, inside}} << u"inside"_s;
    QTest::newRow("data come first") << QJsonObject{{u"data"_s, inside}, {u"glycans"_s, u"here"_s}}
                                     << u"inside"_s;
    QTest::newRow("data without glycans")
        << QJsonObject{{u"data"_s, QJsonObject()}, {u"glycans"_s, u"here"_s}} << QString();
    QTest::newRow("data that are no object")
        << QJsonObject{{u"data"_s, QJsonArray{inside}}, {u"glycans"_s, u"here"_s}} << u"here"_s;
    QTest::newRow("two backslashes are one")
        << QJsonObject{{u"glycans"_s, u"C:\\\\db\\\\x.txt"_s}} << u"C:\\db\\x.txt"_s;
    QTest::newRow("a single backslash stays") << QJsonObject{{u"glycans"_s, u"C:\\db"_s}} << u"C:\\db"_s;
    QTest::newRow("nothing") << QJsonObject() << QString();
}

void TestJsonUtilsValues::glycansAreRead()
{
    QFETCH(const QJsonObject, object);
    QFETCH(const QString, glycans);
    QCOMPARE(storedSerializedGlycans(object), glycans);
}

void TestJsonUtilsValues::glycansAreWritten_data()
{
    QTest::addColumn<QJsonObject>("object");
    QTest::addColumn<QJsonObject>("written");
    const QJsonObject old{{u"glycans"_s, u"old"_s}, {u"mode"_s, 1}};
    const QJsonObject now{{u"glycans"_s, u"a\\\\b"_s}, {u"mode"_s, 1}};
    QTest::newRow("directly") << old << now;
    QTest::newRow("in data") << QJsonObject{{u"data"_s, old}, {u"x"_s, 2}}
                             << QJsonObject{{u"data"_s, now}, {u"x"_s, 2}};
    QTest::newRow("in data alone") << QJsonObject{{u"data"_s, old}, {u"glycans"_s, u"here"_s}}
                                   << QJsonObject{{u"data"_s, now}, {u"glycans"_s, u"here"_s}};
    QTest::newRow("beside data that are no object")
        << QJsonObject{{u"data"_s, 5}} << QJsonObject{{u"data"_s, 5}, {u"glycans"_s, u"a\\\\b"_s}};
    QTest::newRow("anew") << QJsonObject() << QJsonObject{{u"glycans"_s, u"a\\\\b"_s}};
}

void TestJsonUtilsValues::glycansAreWritten()
{
    QFETCH(QJsonObject, object);
    QFETCH(const QJsonObject, written);
    updateStoredSerializedGlycans(&object, u"a\\b"_s);
    QCOMPARE(object, written);
}

void TestJsonUtilsValues::backslashesSurvive_data()
{
    QTest::addColumn<QString>("glycans");
    QTest::newRow("a path of Windows") << u"[C:\\glycans\\new.txt]"_s;
    QTest::newRow("a path of a server") << u"[\\\\server\\glycans]"_s;
    QTest::newRow("four") << u"\\\\\\\\"_s;
}

void TestJsonUtilsValues::backslashesSurvive()
{
    QFETCH(const QString, glycans);
    QJsonObject object;
    updateStoredSerializedGlycans(&object, glycans);
    QCOMPARE(storedSerializedGlycans(object), glycans);
}

void TestJsonUtilsValues::typedMembersAreRead()
{
    const QJsonObject object{{u"bool"_s, true},
                             {u"int"_s, -7},
                             {u"largest"_s, 2147483647},
                             {u"double"_s, 1.5},
                             {u"text"_s, u"t"_s}};
    bool flag = false;
    ORV_VERIFY_OK(parseBoolValueForKey(object, u"bool"_s, &flag));
    QCOMPARE(flag, true);
    int number = 0;
    ORV_VERIFY_OK(parseIntValueForKey(object, u"int"_s, &number));
    QCOMPARE(number, -7);
    ORV_VERIFY_OK(parseIntValueForKey(object, u"largest"_s, &number));
    QCOMPARE(number, 2147483647);
    double real = 0;
    ORV_VERIFY_OK(parseDoubleValueForKey(object, u"double"_s, &real));
    QCOMPARE(real, 1.5);
    ORV_VERIFY_OK(parseDoubleValueForKey(object, u"int"_s, &real));
    QCOMPARE(real, -7.0);
    QString text;
    ORV_VERIFY_OK(parseQStringValueForKey(object, u"text"_s, &text));
    QCOMPARE(text, u"t"_s);
}

void TestJsonUtilsValues::anAbsentMemberIsAnError()
{
    bool flag = false;
    int number = 0;
    double real = 0;
    QString text;
    const QJsonObject object{{u"other"_s, 1}};
    for (const Error &error :
         {parseBoolValueForKey(object, u"key"_s, &flag), parseIntValueForKey(object, u"key"_s, &number),
          parseDoubleValueForKey(object, u"key"_s, &real),
          parseQStringValueForKey(object, u"key"_s, &text)}) {
        QCOMPARE(error.code(), ErrorCode::InvalidContent);
        QCOMPARE(error.errorMessage(), u"Key not found: [key]"_s);
    }
}

void TestJsonUtilsValues::aMemberOfAnotherTypeIsAnError_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("refusedAs");
    // B bool, I integer, D double, S text
    QTest::newRow("bool") << QJsonValue(true) << u"IDS"_s;
    QTest::newRow("text") << QJsonValue(u"1"_s) << u"BID"_s;
    QTest::newRow("number with a fraction") << QJsonValue(1.5) << u"BIS"_s;
    QTest::newRow("number beyond int") << QJsonValue(2147483648.0) << u"BIS"_s;
    QTest::newRow("integer") << QJsonValue(1) << u"BS"_s;
    QTest::newRow("null") << QJsonValue() << u"BIDS"_s;
    QTest::newRow("object") << QJsonValue(QJsonObject()) << u"BIDS"_s;
}

void TestJsonUtilsValues::aMemberOfAnotherTypeIsAnError()
{
    QFETCH(const QJsonValue, value);
    QFETCH(const QString, refusedAs);
    const QJsonObject object{{u"key"_s, value}};
    bool flag = false;
    int number = 0;
    double real = 0;
    QString text;
    const struct
    {
        char16_t kind;
        Error error;
        QString message;
    } reads[] = {
        {u'B', parseBoolValueForKey(object, u"key"_s, &flag),
         u"Value for key [key] does not represent a bool"_s},
        {u'I', parseIntValueForKey(object, u"key"_s, &number),
         u"Value for key [key] does not represent an integer"_s},
        {u'D', parseDoubleValueForKey(object, u"key"_s, &real),
         u"Value for key [key] does not represent a double"_s},
        {u'S', parseQStringValueForKey(object, u"key"_s, &text),
         u"Value for key [key] does not represent a string"_s},
    };
    for (const auto &read : reads) {
        const bool refused = refusedAs.contains(QChar(read.kind));
        QCOMPARE(read.error.code(), refused ? ErrorCode::InvalidContent : ErrorCode::NoError);
        QCOMPARE(read.error.errorMessage(), refused ? read.message : QString());
    }
}

void TestJsonUtilsValues::aFailedReadLeavesTheValueAsItWas()
{
    const QJsonObject object{{u"text"_s, u"t"_s}};
    int number = 5;
    QVERIFY(parseIntValueForKey(object, u"text"_s, &number).hasError());
    QVERIFY(parseIntValueForKey(object, u"none"_s, &number).hasError());
    QCOMPARE(number, 5);
}

ORV_REGISTER_TEST(TestJsonUtilsValues)
#include "TestJsonUtilsValues.moc"
