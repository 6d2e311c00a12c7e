#include "LogCapture.h"
#include "OrvTest.h"

#include <KProperty>
#include <KPropertyListData>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/resources/ResourceReference.h>

#include <QColor>
#include <QFont>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRect>
#include <QUrl>

#include <cmath>
#include <limits>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

using Creator = PropertySetCreator;
using Flag = PropertyEditor::PropertyConversionFlag;

constexpr auto kNone = PropertyId::NoProperty;

/// A property of that type, with a value that a failed reading must leave alone.
KProperty propertyOfType(int type)
{
    KProperty property("p", QVariant(), {}, {}, type);
    property.setValue(u"before"_s, KProperty::ValueOption::IgnoreOld);
    return property;
}

QByteArray indented(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

const QJsonValue kUndefined(QJsonValue::Undefined);

} // namespace

/// The stored forms of values, type by type, both ways.
class TestPropertyValues : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreRead_data();
    void valuesAreRead();
    void valuesThatDoNotFitFail_data();
    void valuesThatDoNotFitFail();
    void aThirdStateIsNull_data();
    void aThirdStateIsNull();
    void valuesAreWritten_data();
    void valuesAreWritten();
    void aDoubleKeepsSixDigits();
    void aFontComesBack_data();
    void aFontComesBack();
    void picturesNeedAScreen();
    void aValueWithoutTextIsRefused();
    void listsHoldWhatTheirKindStores_data();
    void listsHoldWhatTheirKindStores();
    void aListValueThatIsNoneFails_data();
    void aListValueThatIsNoneFails();
    void anEditableListTakesOtherTexts();
    void formerSwitchesBecomeEntries();
    void checkedTextsComeBack();
    void objectsWithAnEditorHoldTheirPayload_data();
    void objectsWithAnEditorHoldTheirPayload();
    void anObjectThatNoDocumentCouldHoldFails_data();
    void anObjectThatNoDocumentCouldHoldFails();
    void objectsWithoutAnEditorAreKept_data();
    void objectsWithoutAnEditorAreKept();
    void referencesComeBack();
    void relativeReferencesBecomeAbsolute_data();
    void relativeReferencesBecomeAbsolute();
    void theTextOfAReferenceCountsAsOne();
};

void TestPropertyValues::valuesAreRead_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QJsonValue>("json");
    QTest::addColumn<QVariant>("value");
    const auto row = [](int type, const char *label, const QJsonValue &json, const QVariant &value) {
        QTest::addRow("%d %s", type, label) << type << json << value;
    };
    row(1, "true", true, true);
    row(1, "false", false, false);
    row(1, "one", 1, true);
    row(1, "zero", 0, false);
    row(1, "text true", u"True"_s, true);
    row(1, "text yes", u"YES"_s, true);
    row(1, "text ok", u"ok"_s, true);
    row(1, "text no", u"no"_s, false);
    row(1, "text false", u"false"_s, false);
    row(1, "text 2", u"2"_s, true);
    row(1, "text 0", u"0"_s, false);
    row(1, "list", QJsonArray(), false);
    row(1, "null", QJsonValue(), false);
    row(2, "number", 7, 7);
    row(2, "fraction", 7.9, 7);
    row(2, "text", u"7"_s, 0);
    row(2, "null", QJsonValue(), 0);
    row(2, "too large", 1e300, std::numeric_limits<int>::max());
    row(3, "number", 7, 7U);
    row(3, "negative", -7, 0U);
    row(4, "number", 5e9, 5000000000LL);
    row(5, "number", 5e9, 5000000000ULL);
    row(6, "number", 1.5, 1.5);
    row(6, "text", u"1.5e-3"_s, 0.0015);
    row(6, "null", QJsonValue(), 0.0);
    row(8, "text", u"{}"_s, u"{}"_s);
    row(8, "empty", u""_s, QVariant());
    row(10, "text", u"a\nb"_s, u"a\nb"_s);
    row(10, "number", 5, QString());
    row(17, "path", u"/a b/c"_s, QUrl::fromLocalFile(u"/a b/c"_s));
    row(17, "empty", u""_s, QUrl());
    row(19, "rect", QJsonArray{1, 2, 3, u"4"_s}, QRect(1, 2, 3, 4));
    row(20, "rect", QJsonArray{1.5, 2, 3, QJsonValue()}, QRectF(1.5, 2, 3, 0));
    row(21, "size", QJsonArray{3, 4}, QSize(3, 4));
    row(22, "size", QJsonArray{3.5, 4}, QSizeF(3.5, 4));
    row(25, "point", QJsonArray{-1, 2}, QPoint(-1, 2));
    row(26, "point", QJsonArray{-1.5, 2}, QPointF(-1.5, 2));
    row(1003, "style", 6, 6);
    row(1003, "text", u"2"_s, 2);
    row(4099, "name", u"#102030"_s, QColor(16, 32, 48));
    row(4099, "empty", u""_s, QVariant());
    row(1000000, "any", QJsonArray{1}, QVariantList{1});
}

void TestPropertyValues::valuesAreRead()
{
    QFETCH(int, type);
    QFETCH(QJsonValue, json);
    QFETCH(QVariant, value);
    KProperty property("p", QVariant(), {}, {}, type);
    QVERIFY(Creator::setValueFromJson(kNone, json, &property));
    QCOMPARE(property.value().typeId(), value.typeId());
    QCOMPARE(property.value(), value);
    QVERIFY(!property.isModified());
    QVERIFY(!property.oldValue().isValid());
}

void TestPropertyValues::valuesThatDoNotFitFail_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QJsonValue>("json");
    const auto row = [](int type, const char *label, const QJsonValue &json) {
        QTest::addRow("%d %s", type, label) << type << json;
    };
    row(2, "undefined", kUndefined);
    row(10, "undefined", kUndefined);
    row(6, "text that is no number", u"much"_s);
    row(6, "empty text", u""_s);
    row(6, "bool", true);
    row(6, "list", QJsonArray{1});
    row(19, "three numbers", QJsonArray{1, 2, 3});
    row(19, "five numbers", QJsonArray{1, 2, 3, 4, 5});
    row(19, "no list", 1);
    row(19, "too large", QJsonArray{1, 2, 3, 3e9});
    row(19, "text", QJsonArray{1, 2, 3, u"x"_s});
    row(20, "bool", QJsonArray{1, 2, 3, true});
    row(21, "three numbers", QJsonArray{1, 2, 3});
    row(25, "one number", QJsonArray{1});
    row(1003, "unknown style", 7);
    row(1003, "negative style", -1);
    row(4096, "no object", u"Sans"_s);
    row(4096, "size that is none", QJsonObject{{u"size"_s, u"large"_s}});
    row(4096, "size without a number", QJsonObject{{u"size"_s, u"px"_s}});
    row(4099, "no colour", u"nocolour"_s);
}

void TestPropertyValues::valuesThatDoNotFitFail()
{
    QFETCH(int, type);
    QFETCH(QJsonValue, json);
    KProperty property = propertyOfType(type);
    QVERIFY(!Creator::setValueFromJson(kNone, json, &property));
    QCOMPARE(property.value(), QVariant(u"before"_s));
}

void TestPropertyValues::aThirdStateIsNull_data()
{
    QTest::addColumn<QJsonValue>("json");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("none") << QJsonValue(u"None"_s) << QVariant();
    QTest::newRow("empty") << QJsonValue(u""_s) << QVariant();
    QTest::newRow("true") << QJsonValue(u"TRUE"_s) << QVariant(true);
    QTest::newRow("1") << QJsonValue(u"1"_s) << QVariant(true);
    QTest::newRow("yes") << QJsonValue(u"yes"_s) << QVariant(false);
    QTest::newRow("other") << QJsonValue(u"maybe"_s) << QVariant(false);
}

void TestPropertyValues::aThirdStateIsNull()
{
    QFETCH(QJsonValue, json);
    QFETCH(QVariant, value);
    KProperty property("p", true, {}, {}, KProperty::Bool);
    QVERIFY(Creator::setKPropertyTypeFromString("3state", &property));
    QVERIFY(Creator::setValueFromJson(kNone, json, &property));
    QCOMPARE(property.value(), value);
    QCOMPARE(Creator::valueToJson(property, Flag::KeepPaths),
             QJsonValue(value.isNull() ? QString() : value.toString()));
}

void TestPropertyValues::valuesAreWritten_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QJsonValue>("json");
    const auto row = [](int type, const char *label, const QVariant &value, const QJsonValue &json) {
        QTest::addRow("%d %s", type, label) << type << value << json;
    };
    row(1, "true", true, u"true"_s);
    row(1, "false", false, u"false"_s);
    row(1, "null", QVariant(), u""_s);
    row(2, "number", 7, 7);
    row(2, "text", u"15"_s, 15);
    row(4, "number", 5000000000LL, QJsonValue(5000000000LL));
    row(6, "number", 0.00005, u"5e-05"_s);
    row(6, "whole", 10000.0, u"10000"_s);
    row(6, "int", 2, u"2"_s);
    row(6, "text", u"15"_s, u"15"_s);
    row(8, "map", QVariantMap{{u"a"_s, 1}}, QJsonObject{{u"a"_s, 1}});
    row(8, "text", u"{}"_s, u"{}"_s);
    row(10, "text", u"a\nb"_s, u"a\nb"_s);
    row(10, "null", QVariant(), u""_s);
    row(19, "rect", QRect(1, 2, 3, 4), QJsonArray{1, 2, 3, 4});
    row(20, "rect", QRectF(1.5, 2, 3, 4), QJsonArray{1.5, 2, 3, 4});
    row(21, "size", QSize(3, 4), QJsonArray{3, 4});
    row(22, "size", QSizeF(3.5, 4), QJsonArray{3.5, 4});
    row(25, "point", QPoint(-1, 2), QJsonArray{-1, 2});
    row(26, "point", QPointF(-1.5, 2), QJsonArray{-1.5, 2});
    row(1003, "style", 3, 3);
    row(4099, "colour", QColor(16, 32, 48), u"#102030"_s);
    row(3, "unsigned", 7U, u"7"_s);
}

void TestPropertyValues::valuesAreWritten()
{
    QFETCH(int, type);
    QFETCH(QVariant, value);
    QFETCH(QJsonValue, json);
    const KProperty property("p", value, {}, {}, type);
    QCOMPARE(Creator::valueToJson(property, Flag::KeepPaths), json);
}

void TestPropertyValues::aDoubleKeepsSixDigits()
{
    KProperty property("p", 1.23456789, {}, {}, KProperty::Double);
    const QJsonValue stored = Creator::valueToJson(property, Flag::KeepPaths);
    QCOMPARE(stored, QJsonValue(u"1.23457"_s));
    QVERIFY(Creator::setValueFromJson(kNone, stored, &property));
    QCOMPARE(property.value(), QVariant(1.23457));
}

void TestPropertyValues::aFontComesBack_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("written");
    QTest::newRow("pixels") << u"14px"_s << u"14px"_s;
    QTest::newRow("points") << u"10pt"_s << u"10pt"_s;
    QTest::newRow("half points") << u"10.5pt"_s << u"10.5pt"_s;
    QTest::newRow("without a unit") << u"9"_s << u"9pt"_s;
}

void TestPropertyValues::aFontComesBack()
{
    QFETCH(QString, size);
    QFETCH(QString, written);
    QJsonObject stored{{u"family"_s, u"Sans"_s}, {u"bold"_s, true},      {u"italic"_s, u"yes"_s},
                       {u"strikeout"_s, false},  {u"underline"_s, true}, {u"size"_s, size}};
    KProperty property = propertyOfType(KProperty::Font);
    QVERIFY(Creator::setValueFromJson(kNone, stored, &property));
    QCOMPARE(int(property.value().value<QFont>().weight()), 700);
    stored.insert(u"italic"_s, true);
    stored.insert(u"size"_s, written);
    QCOMPARE(Creator::valueToJson(property, Flag::KeepPaths), QJsonValue(stored));
}

void TestPropertyValues::picturesNeedAScreen()
{
    // This program has none, as one on a cluster's node.
    KProperty pixmap = propertyOfType(KProperty::Pixmap);
    QVERIFY(!Creator::setValueFromJson(kNone, u"iVBORw0KGgo="_s, &pixmap));
    KProperty cursor = propertyOfType(KProperty::Cursor);
    QVERIFY(!Creator::setValueFromJson(kNone, 13, &cursor));
}

void TestPropertyValues::aValueWithoutTextIsRefused()
{
    const KProperty property("p", QVariantList{1}, {}, {}, 1000000);
    QVERIFY(Creator::valueToJson(property, Flag::KeepPaths).isUndefined());
}

namespace {

/// The property of the catalogue with a stored value; null if it can't be read.
std::unique_ptr<KProperty> stored(int number, const QJsonValue &json)
{
    auto property = std::make_unique<KProperty>();
    QStringList errors;
    const bool ok =
        Creator::modifyKProperty(PropertyId(number), Creator::Priority::High, json, property.get(), &errors);
    return ok ? std::move(property) : nullptr;
}

} // namespace

void TestPropertyValues::listsHoldWhatTheirKindStores_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QJsonValue>("json");
    QTest::addColumn<QString>("held");
    QTest::addColumn<QJsonValue>("written");
    const auto row = [](int number, const char *label, const QJsonValue &json, const QString &held,
                        const QJsonValue &written) {
        QTest::addRow("%d %s", number, label) << number << json << held << written;
    };
    const auto texts = [](int number) { return Creator::listPropertiesData().value(PropertyId(number)); };
    QVERIFY(texts(8).size() > 1);
    row(8, "position", 1, texts(8).at(1), 1);
    row(8, "text", texts(8).at(0), texts(8).at(0), 0);
    row(182, "position, stored as text", 1, texts(182).at(1), texts(182).at(1));
    row(182, "text", texts(182).at(2), texts(182).at(2), texts(182).at(2));
    row(220, "number", 2, u"2"_s, 2);
    row(220, "number beyond the list", 77, u"77"_s, 77);
    row(306, "key", u"Fast"_s, u"Fast"_s, u"Fast"_s);
}

void TestPropertyValues::listsHoldWhatTheirKindStores()
{
    QFETCH(int, number);
    QFETCH(QJsonValue, json);
    QFETCH(QString, held);
    QFETCH(QJsonValue, written);
    const auto property = stored(number, json);
    QVERIFY(property);
    QCOMPARE(property->value(), QVariant(held));
    QVERIFY(property->listData());
    QCOMPARE(Creator::valueToJson(*property, Flag::KeepPaths), written);
}

void TestPropertyValues::aListValueThatIsNoneFails_data()
{
    QTest::addColumn<QJsonValue>("json");
    QTest::newRow("index beyond the list") << QJsonValue(99);
    QTest::newRow("negative index") << QJsonValue(-1);
    QTest::newRow("unknown text") << QJsonValue(u"Cauldron"_s);
    QTest::newRow("null") << QJsonValue();
    QTest::newRow("object") << QJsonValue(QJsonObject());
}

void TestPropertyValues::aListValueThatIsNoneFails()
{
    QFETCH(QJsonValue, json);
    const LogCapture log;
    KProperty property;
    QStringList errors;
    QVERIFY(!Creator::modifyKProperty(PropertyId(182), Creator::Priority::High, json, &property, &errors));
    const QString name = PropertiesNames::internalNameForType(PropertyId(182));
    QCOMPARE(errors, QStringList(u"Cannot convert the value of "_s + name));
    QCOMPARE(log.warnings().size(), 1);
}

void TestPropertyValues::anEditableListTakesOtherTexts()
{
    const auto editable = stored(130, u"MyEnzyme @ W | N-term"_s);
    QVERIFY(editable);
    QCOMPARE(editable->value(), QVariant(u"MyEnzyme @ W | N-term"_s));
    QCOMPARE(editable->option("extraValueAllowed"), QVariant(true));
    QCOMPARE(stored(182, 0)->option("extraValueAllowed"), QVariant(false));
}

void TestPropertyValues::formerSwitchesBecomeEntries()
{
    QCOMPARE(stored(167, false)->value(), QVariant(u"0"_s));
    QCOMPARE(stored(167, true)->value(), QVariant(u"1"_s));
    QCOMPARE(stored(167, u"true"_s)->value(), QVariant(u"1"_s));
    QCOMPARE(stored(167, 1)->value(), QVariant(u"1"_s));
}

void TestPropertyValues::checkedTextsComeBack()
{
    const QJsonArray texts{u"S"_s, u"T"_s};
    const auto property = stored(70, texts);
    QVERIFY(property);
    QCOMPARE(property->value(), QVariant(QStringList({u"S"_s, u"T"_s})));
    QVERIFY(property->option("availableItems").toStringList().contains(u"T"_s));
    QCOMPARE(property->option("displaySeparator"), QVariant(QString()));
    QCOMPARE(Creator::valueToJson(*property, Flag::KeepPaths), QJsonValue(texts));
}

void TestPropertyValues::objectsWithAnEditorHoldTheirPayload_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QJsonValue>("json");
    QTest::addColumn<QJsonObject>("payload");
    const QJsonObject tolerance{{u"unit"_s, u"Da"_s}, {u"value"_s, 0.5}};
    QTest::newRow("value with unit") << 55 << QJsonValue(tolerance) << tolerance;
    QTest::newRow("inside data") << 55 << QJsonValue(QJsonObject{{u"data"_s, tolerance}}) << tolerance;
    const QJsonObject table{{u"data"_s, QJsonArray()}, {u"children"_s, QJsonArray()}};
    QTest::newRow("data that is no object") << 202 << QJsonValue(table) << table;
    const QString text = QString::fromUtf8(QJsonDocument(tolerance).toJson());
    QTest::newRow("text of an object") << 55 << QJsonValue(text) << tolerance;
    QTest::newRow("text of no object") << 55 << QJsonValue(u"x"_s) << QJsonObject();
    QTest::newRow("null") << 55 << QJsonValue() << QJsonObject();
}

void TestPropertyValues::objectsWithAnEditorHoldTheirPayload()
{
    QFETCH(int, number);
    QFETCH(QJsonValue, json);
    QFETCH(QJsonObject, payload);
    const auto property = stored(number, json);
    QVERIFY(property);
    QCOMPARE(property->value(), QVariant(indented(payload)));
    QCOMPARE(Creator::valueToJson(*property, Flag::KeepPaths), QJsonValue(payload));
    const bool isValueUnit = number == 55;
    QCOMPARE(property->option("multiLine"), QVariant(!isValueUnit));
    QCOMPARE(property->option("minHeight"), isValueUnit ? QVariant() : QVariant(3));
    QCOMPARE(property->option("maxHeight"), isValueUnit ? QVariant() : QVariant(3));
    QCOMPARE(property->option("readOnlyInternalEditor"), QVariant(!isValueUnit));
    QCOMPARE(property->option("editor").value<Creator::Editor>(),
             Creator::editorForProperty(PropertyId(number)));
}

void TestPropertyValues::anObjectThatNoDocumentCouldHoldFails_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("levels");
    QTest::addColumn<bool>("isRead");
    for (const int number : {67, 171}) {
        QTest::addRow("%d fits", number) << number << 256 << true;
        QTest::addRow("%d too deep", number) << number << 257 << false;
        QTest::addRow("%d as deep as a document", number) << number << 1020 << false;
    }
}

/// A text may nest as deeply as a document, which then couldn't be read with that object in it.
void TestPropertyValues::anObjectThatNoDocumentCouldHoldFails()
{
    QFETCH(int, number);
    QFETCH(int, levels);
    QFETCH(bool, isRead);
    const QString brackets = u"\"\\\"[[[[\""_s;
    const QString text = u"{\"a\":"_s.repeated(levels) + brackets + u"}"_s.repeated(levels);
    QVERIFY(QJsonDocument::fromJson(text.toUtf8()).isObject());
    QCOMPARE(bool(stored(number, text)), isRead);
}

void TestPropertyValues::objectsWithoutAnEditorAreKept_data()
{
    QTest::addColumn<QJsonValue>("json");
    QTest::addColumn<QVariant>("held");
    QTest::addColumn<QJsonValue>("written");
    const QJsonObject object{{u"a"_s, 1}};
    QTest::newRow("object") << QJsonValue(object) << QVariant(indented(object)) << QJsonValue(object);
    QTest::newRow("its text") << QJsonValue(u"{\"a\": 1}"_s) << QVariant(indented(object))
                              << QJsonValue(object);
    QTest::newRow("empty text") << QJsonValue(u""_s) << QVariant(QString()) << QJsonValue(QJsonObject());
}

void TestPropertyValues::objectsWithoutAnEditorAreKept()
{
    QFETCH(QJsonValue, json);
    QFETCH(QVariant, held);
    QFETCH(QJsonValue, written);
    QCOMPARE(Creator::editorForProperty(PropertyId(171)), Creator::Editor::Unset);
    const auto property = stored(171, json);
    QVERIFY(property);
    QCOMPARE(property->value(), held);
    const LogCapture log; // an empty text is no JSON
    QCOMPARE(Creator::valueToJson(*property, Flag::KeepPaths), written);
}

void TestPropertyValues::referencesComeBack()
{
    const auto property = stored(60, u"filters/my filter.xml"_s);
    QVERIFY(property);
    QCOMPARE(property->value().value<ResourceReferenceSPtr>()->text(), u"filters/my filter.xml"_s);
    QCOMPARE(Creator::valueToJson(*property, Flag::KeepPaths), QJsonValue(u"filters/my filter.xml"_s));
    const auto empty = stored(60, u""_s);
    QVERIFY(empty && empty->value().isNull());
    QCOMPARE(Creator::valueToJson(*empty, Flag::AbsolutePaths), QJsonValue(QString()));
}

void TestPropertyValues::relativeReferencesBecomeAbsolute_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QUrl>("base");
    QTest::addColumn<Flag>("flag");
    QTest::addColumn<QString>("written");
    const QUrl base = QUrl::fromLocalFile(u"/data/flow/"_s);
    QTest::newRow("relative") << u"a.xml"_s << base << Flag::AbsolutePaths << u"/data/flow/a.xml"_s;
    QTest::newRow("upwards") << u"../b/./a.xml"_s << base << Flag::AbsolutePaths << u"/data/b/a.xml"_s;
    QTest::newRow("characters of URLs")
        << u"a #1 50% ?.xml"_s << base << Flag::AbsolutePaths << u"/data/flow/a #1 50% ?.xml"_s;
    QTest::newRow("kept") << u"a.xml"_s << base << Flag::KeepPaths << u"a.xml"_s;
    QTest::newRow("no base") << u"a.xml"_s << QUrl() << Flag::AbsolutePaths << u"a.xml"_s;
    QTest::newRow("absolute") << u"/x/a.xml"_s << base << Flag::AbsolutePaths << u"/x/a.xml"_s;
    QTest::newRow("absolute on another system")
        << u"C:/x/a.xml"_s << base << Flag::AbsolutePaths << u"C:/x/a.xml"_s;
    QTest::newRow("on the server") << u"talvane:/x/a.tolq"_s << base << Flag::AbsolutePaths
                                   << u"talvane:/x/a.tolq"_s;
}

void TestPropertyValues::relativeReferencesBecomeAbsolute()
{
    QFETCH(QString, text);
    QFETCH(QUrl, base);
    QFETCH(Flag, flag);
    QFETCH(QString, written);
    const auto property = stored(60, text);
    QVERIFY(property);
    property->setOption("baseUrl", base);
    QCOMPARE(Creator::valueToJson(*property, flag), QJsonValue(written));
}

void TestPropertyValues::theTextOfAReferenceCountsAsOne()
{
    KProperty property("p", u"a.xml"_s, {}, {}, PropertiesTraits::ResourceReferenceType);
    property.setOption("baseUrl", QUrl::fromLocalFile(u"/data/"_s));
    QCOMPARE(Creator::valueToJson(property, Flag::KeepPaths), QJsonValue(u"a.xml"_s));
    QCOMPARE(Creator::valueToJson(property, Flag::AbsolutePaths), QJsonValue(u"/data/a.xml"_s));
}

ORV_REGISTER_TEST(TestPropertyValues)
#include "TestPropertyValues.moc"
