#include "OrvTest.h"

#include <KProperty>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/PropertyText.h>
#include <orv/resources/ResourceReference.h>

#include <QJsonArray>
#include <QJsonDocument>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

using ContentMode = PropertyEditorContent::ContentMode;

Result<QVariant> valueOf(int number, const QString &text, ContentMode mode = ContentMode::DesktopMode)
{
    const auto id = PropertyId(number);
    const std::unique_ptr<KProperty> property(
        PropertySetCreator::createDefaultProperty(id, PropertySetCreator::Priority::High));
    return PropertyText::toValue(id, text, *property, mode);
}

QString legalValues(int number)
{
    const auto id = PropertyId(number);
    const std::unique_ptr<KProperty> property(
        PropertySetCreator::createDefaultProperty(id, PropertySetCreator::Priority::High));
    return PropertyText::legalValues(id, *property);
}

} // namespace

class TestPropertyText : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void textsBecomeValues_data();
    void textsBecomeValues();
    void otherTextsAreRefused_data();
    void otherTextsAreRefused();
    void theRuleOfThePropertyCounts();
    void filesAreNotLookedFor();
    void referencesAndObjectsAreRead();
    void valuesWithUnitAreReadAsPeopleSayThem_data();
    void valuesWithUnitAreReadAsPeopleSayThem();
    void legalValuesAreTold_data();
    void legalValuesAreTold();
    void valuesBecomeTheTextsThatMeanThem_data();
    void valuesBecomeTheTextsThatMeanThem();
    void everyDefaultHasATextThatMeansIt();
    void whatNoTextMeansHasNone();
};

void TestPropertyText::textsBecomeValues_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    const auto row = [](int number, const QString &text, const QVariant &value) {
        QTest::addRow("%d %s", number, qPrintable(text)) << number << text << value;
    };
    for (const QString &text : {u"true"_s, u"TRUE"_s, u"yes"_s, u"ok"_s, u"on"_s, u"1"_s, u" true "_s})
        row(1, text, true);
    for (const QString &text : {u"false"_s, u"no"_s, u"off"_s, u"0"_s})
        row(1, text, false);
    row(29, u" 12 "_s, 12);
    row(2, u"1.5e1"_s, 15.0);
    row(2, u"1.5 min"_s, 1.5);
    row(2, u"0.29"_s, 0.29);
    row(95, u"12 Da"_s, 12);
    row(43, u" RK "_s, u" RK "_s);
    row(43, QString(), QString());
    row(44, u"Semi-specific"_s, u"Semi-specific"_s);
    row(44, u"0"_s, u"Non-specific"_s);
    row(130, u"Mine @ W | N-term"_s, u"Mine @ W | N-term"_s);
    row(220, u"2"_s, u"2"_s);
    row(306, u"Fast"_s, u"Fast"_s);
    row(70, u"S, C"_s, QStringList({u"S"_s, u"C"_s}));
}

void TestPropertyText::textsBecomeValues()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    QFETCH(QVariant, value);
    const auto result = valueOf(number, text);
    ORV_VERIFY_OK(result);
    QCOMPARE(result->typeId(), value.typeId());
    QCOMPARE(*result, value);
}

void TestPropertyText::otherTextsAreRefused_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    const auto row = [](int number, const QString &text) {
        QTest::addRow("%d '%s'", number, qPrintable(text)) << number << text;
    };
    row(1, u"maybe"_s);
    row(1, u"2"_s);
    row(1, QString());
    row(29, u"1.5"_s);
    row(29, u"99999999999"_s);
    row(29, QString());
    row(2, u"much"_s);
    row(2, u"nan"_s);
    row(2, u"1.5 s"_s);
    row(2, u"min"_s);
    row(2, u"inf"_s);
    row(44, u"Sometimes"_s);
    row(44, u"99"_s);
    row(44, u"-1"_s);
    row(220, u"7"_s);
    row(306, u"fast"_s);
    row(70, u"S, X"_s);
    row(67, u"[1]"_s);
    row(67, u"{"_s);
    row(67, u"{\"a\":"_s.repeated(600) + u'1' + u"}"_s.repeated(600)); // no document could hold it
    row(36, u"NaN"_s);                                                 // a number that is stored as a text
    row(36, u"1e999"_s);
    row(60, u"gopher://x"_s);
    for (const QString &tolerance : {u"-5 ppm"_s, u"5 mmu"_s, u"5 ppb"_s, u"10001 ppm"_s, u"ppm"_s,
                                     u"5 5 ppm"_s, u"nan Da"_s, QString(), uR"({"unit":"mmu","value":5})"_s,
                                     uR"({"unit":"ppm","value":-5})"_s, uR"({"unit":"ppm","value":"5"})"_s})
        row(80, tolerance);
    row(228, u"5 mmu"_s);
}

void TestPropertyText::otherTextsAreRefused()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    const auto result = valueOf(number, text);
    QVERIFY(result.hasError());
    QCOMPARE(int(result.error().code()), 2);
    const QString name = PropertiesNames::internalNameForType(PropertyId(number));
    QCOMPARE(result.error().errorMessages(),
             QStringList(u"The value \"%1\" is not allowed for %2."_s.arg(text, name)));
    QCOMPARE(result.error().details().constLast(), u"Allowed: %1."_s.arg(legalValues(number)));
}

void TestPropertyText::theRuleOfThePropertyCounts()
{
    const auto negative = valueOf(29, u"-5"_s);
    QVERIFY(negative.hasError());
    QVERIFY(negative.error().details().constFirst().contains(u"must be in range"_s));
    const auto noLetters = valueOf(70, QString());
    QVERIFY(noLetters.hasError());
    const auto digestion = valueOf(130, u"Trypsin @ R,K"_s);
    QVERIFY(digestion.hasError());
}

void TestPropertyText::filesAreNotLookedFor()
{
    ORV_VERIFY_OK(valueOf(60, u"../filters/missing.xml"_s));
    ORV_VERIFY_OK(valueOf(58, u"{\"glycans\": \"[file:C:/missing.txt]\"}"_s, ContentMode::TalvaneMode));
}

void TestPropertyText::referencesAndObjectsAreRead()
{
    const auto reference = valueOf(60, u"../a b.xml"_s);
    ORV_VERIFY_OK(reference);
    QCOMPARE(reference->value<ResourceReferenceSPtr>()->text(), u"../a b.xml"_s);
    const auto none = valueOf(60, QString());
    ORV_VERIFY_OK(none);
    QVERIFY(!none->value<ResourceReferenceSPtr>());
    const auto object = valueOf(67, u"{\"modifications\": \"m\"}"_s);
    ORV_VERIFY_OK(object);
    const QJsonObject expected{{u"modifications"_s, u"m"_s}};
    QCOMPARE(QJsonDocument::fromJson(object->toByteArray()).object(), expected);
}

void TestPropertyText::valuesWithUnitAreReadAsPeopleSayThem_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("unit");
    QTest::newRow("number and unit") << 80 << u"5 ppm"_s << 5.0 << u"ppm"_s;
    QTest::newRow("no blank") << 55 << u"0.02Da"_s << 0.02 << u"Da"_s;
    QTest::newRow("other case") << 56 << u" 0.5 DA "_s << 0.5 << u"Da"_s;
    QTest::newRow("the unit that it has") << 80 << u"7.5"_s << 7.5 << u"ppm"_s;
    QTest::newRow("exponent") << 80 << u"1e1 ppm"_s << 10.0 << u"ppm"_s;
    QTest::newRow("JSON") << 80 << uR"({"unit":"Da","value":0.5})"_s << 0.5 << u"Da"_s;
    QTest::newRow("mass") << 228 << u"4000 Da"_s << 4000.0 << u"Da"_s;
}

void TestPropertyText::valuesWithUnitAreReadAsPeopleSayThem()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    QFETCH(double, value);
    QFETCH(QString, unit);
    const auto result = valueOf(number, text);
    ORV_VERIFY_OK(result);
    const QJsonObject object = QJsonDocument::fromJson(result->toByteArray()).object();
    QCOMPARE(object, (QJsonObject{{u"unit"_s, unit}, {u"value"_s, value}}));
}

void TestPropertyText::legalValuesAreTold_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("switch") << 1 << u"true or false"_s;
    QTest::newRow("whole number in a range") << 29 << u"a whole number from 0 to 1000000"_s;
    QTest::newRow("number in a range") << 2 << u"a number from 0 to 1000"_s;
    QTest::newRow("number above another") << 213 << u"a number above 0 and at most 1000000"_s;
    QTest::newRow("text") << 43 << u"a text"_s;
    QTest::newRow("file") << 60 << u"a path or the text of a reference"_s;
    QTest::newRow("value with unit")
        << 80 << u"a number from 0 to 10000 with the unit ppm or Da, such as \"5 ppm\""_s;
    QTest::newRow("object") << 67 << u"a JSON object"_s;
    QTest::newRow("checkable list") << 70 << u"any of these, separated by commas: S, T, C"_s;
    QTest::newRow("keys with texts")
        << 220
        << u"one of: 0 for \"Light (one core)\", 1 for \"Normal (all but two cores)\", 2 for "
           "\"Heavy (all cores)\""_s;
}

void TestPropertyText::legalValuesAreTold()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    QCOMPARE(legalValues(number), text);
}

void TestPropertyText::valuesBecomeTheTextsThatMeanThem_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QJsonValue>("stored");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("unit");
    const auto mass = [](double value, const QString &unit) {
        return QJsonObject{{u"unit"_s, unit}, {u"value"_s, value}};
    };
    QTest::newRow("switch") << 1 << QJsonValue(true) << u"true"_s << QString();
    QTest::newRow("whole number") << 29 << QJsonValue(500) << u"500"_s << QString();
    QTest::newRow("value with unit") << 80 << QJsonValue(mass(10.123456789, u"ppm"_s)) << u"10.123456789"_s
                                     << u"ppm"_s;
    QTest::newRow("small value") << 80 << QJsonValue(mass(1e-7, u"Da"_s)) << u"1e-07"_s << u"Da"_s;
    QTest::newRow("value with more members")
        << 80 << QJsonValue(QJsonObject{{u"more"_s, 1}, {u"unit"_s, u"Da"_s}, {u"value"_s, 0.5}})
        << uR"({"more":1,"unit":"Da","value":0.5})"_s << QString();
    QTest::newRow("checkable list") << 70 << QJsonValue(QJsonArray{u"S"_s, u"C"_s}) << u"S, C"_s << QString();
    QTest::newRow("file") << 60 << QJsonValue(u"/a b/c.txt"_s) << u"/a b/c.txt"_s << QString();
}

void TestPropertyText::valuesBecomeTheTextsThatMeanThem()
{
    QFETCH(int, number);
    QFETCH(QJsonValue, stored);
    const auto id = PropertyId(number);
    KProperty property;
    QStringList errors;
    QVERIFY2(PropertySetCreator::modifyKProperty(id, PropertySetCreator::Priority::High, stored, &property,
                                                 &errors),
             qPrintable(errors.join(u' ')));
    const auto text = PropertyText::fromValue(id, property);
    QVERIFY(text);
    QTEST(text->text, "text");
    QTEST(text->unit, "unit");
}

void TestPropertyText::everyDefaultHasATextThatMeansIt()
{
    int count = 0;
    for (const PropertyId id : PropertiesNames::names()->keys()) {
        const QJsonValue stored = PropertySetCreator::storedDefault(id);
        KProperty property;
        QStringList errors;
        if (stored.isUndefined() || !PropertySetCreator::modifyKProperty(
                                        id, PropertySetCreator::Priority::High, stored, &property, &errors))
            continue;
        QVERIFY2(PropertyText::fromValue(id, property), property.name().constData());
        ++count;
    }
    QVERIFY2(count > 200, qPrintable(QString::number(count)));
}

void TestPropertyText::whatNoTextMeansHasNone()
{
    const auto id = PropertyId(70);
    const std::unique_ptr<KProperty> property(
        PropertySetCreator::createDefaultProperty(id, PropertySetCreator::Priority::High));
    property->setValue(QStringList{u"S, T"_s});
    QVERIFY(!PropertyText::fromValue(id, *property));
}

ORV_REGISTER_TEST(TestPropertyText)
#include "TestPropertyText.moc"
