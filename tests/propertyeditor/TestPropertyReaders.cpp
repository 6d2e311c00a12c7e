#include "LogCapture.h"
#include "OrvTest.h"

#include <KProperty>
#include <orv/propertyeditor/LabelScripts.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/resources/ResourceReference.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

/// The entry of the property as files hold it.
QJsonObject entry(PropertyId id, const QJsonValue &value)
{
    return {{u"name"_s, PropertiesNames::internalNameForType(id)}, {u"value"_s, value}};
}

QVariant read(PropertyId id, const QJsonObject &object)
{
    return PropertiesNames::names()->value(id).valueFromJson(object);
}

/// The first property with that reader.
PropertyId withReader(char code)
{
    for (int number = 0; number < kPropertyCount; ++number) {
        if (PropertiesNames::readerCode(PropertyId(number)) == QLatin1Char(code))
            return PropertyId(number);
    }
    qFatal("no property has the reader %c", code);
}

QByteArray indented(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

} // namespace

class TestPropertyReaders : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyPropertyHasOneOfThirteenReaders();
    void plainValuesAreRead_data();
    void plainValuesAreRead();
    void anUnknownNameGivesTheReadersEmptyResult_data();
    void anUnknownNameGivesTheReadersEmptyResult();
    void listIndexesComeFromTextsAndNumbers();
    void listTextsComeFromTextsAndNumbers();
    void objectsAreReadByTheirEditor_data();
    void objectsAreReadByTheirEditor();
    void aStoredTableIsKeptWhole();
    void anObjectOfAnUnknownNameIsNothing();
    void referencesAreRead();
    void textsThatAreNoReferenceGiveAnEmptyPointer_data();
    void textsThatAreNoReferenceGiveAnEmptyPointer();
    void aReferenceReaderFollowsTheTypeOfTheNameItFinds();
    void storedDefaultsAreInTheUnitOfFiles_data();
    void storedDefaultsAreInTheUnitOfFiles();
    void aPropertyMadeOfItsStoredDefaultReadsAsTheDefault();
    void whatIsNoPropertyHasNoStoredDefault();
};

void TestPropertyReaders::everyPropertyHasOneOfThirteenReaders()
{
    QMap<QChar, int> counts;
    for (int number = 0; number < kPropertyCount; ++number)
        ++counts[PropertiesNames::readerCode(PropertyId(number))];
    QCOMPARE(QString::fromLatin1("ABDILNOPQRSTU"),
             QString(counts.keys().toVector().constData(), counts.size()));
}

void TestPropertyReaders::plainValuesAreRead_data()
{
    QTest::addColumn<char>("reader");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QVariant>("expected");
    const auto row = [](const char *label, char reader, const QJsonValue &value, const QVariant &expected) {
        QTest::addRow("%c %s", reader, label) << reader << value << expected;
    };
    const QJsonValue missing(QJsonValue::Undefined);
    row("text", 'S', u"a b"_s, u"a b"_s);
    row("number", 'S', 5, u""_s);
    row("true", 'B', true, true);
    row("false", 'B', false, false);
    row("the text true", 'B', u"true"_s, true);
    row("the text TRUE", 'B', u"TRUE"_s, true);
    row("the text 1", 'B', u"1"_s, false);
    row("the number 1", 'B', 1, false);
    row("missing", 'B', missing, false);
    row("a number", 'D', 3.5, 0.0);
    row("a number as text", 'D', u"3.5"_s, 3.5);
    row("other text", 'D', u"much"_s, 0.0);
    row("a number", 'P', 0.5, 0.0);
    row("a number as text", 'P', u"0.5"_s, 0.005);
    row("an integer", 'Q', 20, 20 * 0.01);
    row("text", 'Q', u"20"_s, 0.0);
    row("an integer", 'I', 7, 7);
    row("negative", 'I', -7, -7);
    row("text", 'I', u"7"_s, 0);
    row("missing", 'I', missing, 0);
    row("an integer", 'N', 7, 7);
    row("zero", 'N', 0, 0);
    row("negative", 'N', -7, QVariant());
    row("missing", 'N', missing, QVariant());
    row("text", 'N', u"7"_s, QVariant());
    row("letters between others", 'U', u"r, k"_s, u"RK"_s);
    row("letters beyond A to Z", 'U', u"äßx9"_s, u"SSX"_s);
    row("number", 'U', 5, u""_s);
    row("texts", 'A', QJsonArray{u"S"_s, u"T"_s, 5}, QStringList({u"S"_s, u"T"_s, QString()}));
    row("no list", 'A', u"S"_s, QStringList());
}

void TestPropertyReaders::plainValuesAreRead()
{
    QFETCH(char, reader);
    QFETCH(QJsonValue, value);
    QFETCH(QVariant, expected);
    const PropertyId id = withReader(reader);
    QJsonObject object = entry(id, value);
    if (value.isUndefined())
        object.remove(u"value"_s);
    const QVariant result = read(id, object);
    QCOMPARE(result.typeId(), expected.typeId());
    QCOMPARE(result, expected);
}

void TestPropertyReaders::anUnknownNameGivesTheReadersEmptyResult_data()
{
    QTest::addColumn<char>("reader");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QVariant>("expected");
    const auto row = [](char reader, const QJsonValue &value, const QVariant &expected) {
        QTest::addRow("%c", reader) << reader << value << expected;
    };
    row('S', u"a"_s, QVariant());
    row('B', true, QVariant());
    row('D', u"3.5"_s, QVariant());
    row('P', u"3.5"_s, 0.0);
    row('Q', 3, 0.0);
    row('I', 3, QVariant());
    // These go by the row that they belong to, and don't look at the name.
    row('N', 3, 3);
    row('L', 0, 0LL);
    row('U', u"r"_s, u"R"_s);
    row('A', QJsonArray{u"S"_s}, QStringList(u"S"_s));
}

void TestPropertyReaders::anUnknownNameGivesTheReadersEmptyResult()
{
    QFETCH(char, reader);
    QFETCH(QJsonValue, value);
    QFETCH(QVariant, expected);
    const QVariant result = read(withReader(reader), {{u"name"_s, u"NoSuchName"_s}, {u"value"_s, value}});
    QCOMPARE(result.typeId(), expected.typeId());
    QCOMPARE(result, expected);
}

void TestPropertyReaders::listIndexesComeFromTextsAndNumbers()
{
    const auto id = PropertyId(182);
    const QStringList texts = PropertySetCreator::listPropertiesData().value(id);
    QVERIFY(texts.size() > 2);
    QCOMPARE(read(id, entry(id, texts.at(2))), QVariant(2LL));
    QCOMPARE(read(id, entry(id, texts.at(2))).typeId(), int(QMetaType::LongLong));
    QCOMPARE(read(id, entry(id, texts.at(2).toLower() + u'x')), QVariant(-1LL));
    QCOMPARE(read(id, entry(id, 99)), QVariant(99LL));
    QCOMPARE(read(id, entry(id, true)), QVariant(0LL));
}

void TestPropertyReaders::listTextsComeFromTextsAndNumbers()
{
    const auto id = PropertyId(130);
    const QStringList texts = PropertySetCreator::listPropertiesData().value(id);
    QVERIFY(texts.size() > 2);
    QCOMPARE(read(id, entry(id, 1)), QVariant(texts.at(1)));
    QCOMPARE(read(id, entry(id, int(texts.size()))), QVariant(QString()));
    QCOMPARE(read(id, entry(id, u"MyEnzyme @ W | N-term"_s)), QVariant(u"MyEnzyme @ W | N-term"_s));
    QCOMPARE(read(id, {{u"value"_s, 1}}), QVariant(texts.at(1)));
}

void TestPropertyReaders::objectsAreReadByTheirEditor_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QJsonObject>("value");
    QTest::addColumn<QVariant>("expected");
    const auto row = [](int number, const char *label, const QJsonObject &value, const QVariant &expected) {
        QTest::addRow("%d %s", number, label) << number << value << expected;
    };
    row(67, "modifications", {{u"modifications"_s, u"m"_s}}, u"m"_s);
    row(58, "glycans", {{u"glycans"_s, u"g"_s}}, u"g"_s);
    row(78, "peak filter", {{u"peakfilter"_s, u"p"_s}}, u"p"_s);
    row(289, "trace plot", {{LabelScripts::TRACE_PLOT_KEY, u"t"_s}}, u"t"_s);
    row(119, "mass plot", {{LabelScripts::DMS_PLOT_KEY, u"d"_s}}, u"d"_s);
    row(67, "another member", {{u"glycans"_s, u"g"_s}}, u""_s);
    const QJsonObject whole{{u"unit"_s, u"Da"_s}, {u"value"_s, 0.02}};
    for (const int number : {55, 253, 202, 131, 170, 204, 129, 164, 59})
        row(number, "whole object", whole, indented(whole));
    row(225, "oligo options", whole, QVariant());
    row(271, "theoretical table", whole, QVariant());
}

void TestPropertyReaders::objectsAreReadByTheirEditor()
{
    QFETCH(int, number);
    QFETCH(QJsonObject, value);
    QFETCH(QVariant, expected);
    // The reader goes by the name that it finds, whichever row it belongs to.
    const QVariant result = read(withReader('O'), entry(PropertyId(number), value));
    QCOMPARE(result.typeId(), expected.typeId());
    QCOMPARE(result, expected);
}

void TestPropertyReaders::aStoredTableIsKeptWhole()
{
    const QJsonObject table{
        {u"data"_s, QJsonArray()}, {u"children"_s, QJsonArray()}, {u"modifications"_s, u"m"_s}};
    const auto id = PropertyId(67);
    QCOMPARE(read(id, entry(id, table)), QVariant(indented(table)));
    const auto theoretical = PropertyId(271);
    QCOMPARE(read(theoretical, entry(theoretical, table)), QVariant(indented(table)));
    const QJsonObject half{{u"data"_s, QJsonArray()}, {u"children"_s, 1}, {u"modifications"_s, u"m"_s}};
    QCOMPARE(read(id, entry(id, half)), QVariant(u"m"_s));
}

void TestPropertyReaders::anObjectOfAnUnknownNameIsNothing()
{
    QVERIFY(!read(withReader('O'), {{u"name"_s, u"NoSuchName"_s}, {u"value"_s, QJsonObject()}}).isValid());
}

void TestPropertyReaders::referencesAreRead()
{
    const PropertyId id = withReader('R');
    const QVariant value = read(id, entry(id, u"/data/proteins.fasta"_s));
    QCOMPARE(value.typeId(), qMetaTypeId<ResourceReferenceSPtr>());
    const auto reference = value.value<ResourceReferenceSPtr>();
    QVERIFY(reference);
    QCOMPARE(reference->text(), u"/data/proteins.fasta"_s);
}

void TestPropertyReaders::textsThatAreNoReferenceGiveAnEmptyPointer_data()
{
    QTest::addColumn<QJsonObject>("object");
    const QString name = PropertiesNames::internalNameForType(withReader('R'));
    QTest::newRow("no value") << QJsonObject{{u"name"_s, name}};
    QTest::newRow("empty") << QJsonObject{{u"name"_s, name}, {u"value"_s, u""_s}};
    QTest::newRow("unknown scheme") << QJsonObject{{u"name"_s, name}, {u"value"_s, u"gopher://x/y"_s}};
    QTest::newRow("unknown name") << QJsonObject{{u"name"_s, u"NoSuchName"_s},
                                                 {u"value"_s, u"/data/a.fasta"_s}};
}

void TestPropertyReaders::textsThatAreNoReferenceGiveAnEmptyPointer()
{
    QFETCH(QJsonObject, object);
    const QVariant value = read(withReader('R'), object);
    QCOMPARE(value.typeId(), qMetaTypeId<ResourceReferenceSPtr>());
    QVERIFY(!value.value<ResourceReferenceSPtr>());
}

void TestPropertyReaders::aReferenceReaderFollowsTheTypeOfTheNameItFinds()
{
    const auto textOf = [](int number, const QJsonValue &value) {
        const auto reference =
            read(withReader('R'), entry(PropertyId(number), value)).value<ResourceReferenceSPtr>();
        return reference ? reference->text() : u"none"_s;
    };
    QCOMPARE(textOf(0, u"/a/b"_s), u"/a/b"_s);                                 // text of several lines
    QCOMPARE(textOf(1, true), u"true"_s);                                      // bool
    QCOMPARE(textOf(7, 12), u"12"_s);                                          // int
    QCOMPARE(textOf(2, u"1.5"_s), u"1.5"_s);                                   // double
    QCOMPARE(textOf(67, QJsonObject{{u"modifications"_s, u"/m"_s}}), u"/m"_s); // object
    QCOMPARE(textOf(182, 0), PropertySetCreator::listPropertiesData().value(PropertyId(182)).at(0)); // list
}

void TestPropertyReaders::storedDefaultsAreInTheUnitOfFiles_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QJsonValue>("expected");
    QTest::newRow("percent") << 12 << QJsonValue(u"0.5"_s);
    QTest::newRow("little percent") << 302 << QJsonValue(u"0.005"_s);
    QTest::newRow("whole percent") << 175 << QJsonValue(10);
    QTest::newRow("percent that nobody divides") << 84 << QJsonValue(u"95"_s);
    QTest::newRow("text for a number") << 108 << QJsonValue(u"0.2"_s);
    QTest::newRow("number for a text") << 133 << QJsonValue(u"300"_s);
    QTest::newRow("switch") << 1 << QJsonValue(u"true"_s);
    QTest::newRow("position") << 8 << QJsonValue(1);
}

void TestPropertyReaders::storedDefaultsAreInTheUnitOfFiles()
{
    QFETCH(int, number);
    QFETCH(QJsonValue, expected);
    QCOMPARE(PropertySetCreator::storedDefault(PropertyId(number)), expected);
}

void TestPropertyReaders::aPropertyMadeOfItsStoredDefaultReadsAsTheDefault()
{
    int percents = 0;
    for (int number = 0; number < kPropertyCount; ++number) {
        const auto id = PropertyId(number);
        const QChar reader = PropertiesNames::readerCode(id);
        if (reader != u'P' && reader != u'Q' && reader != u'D' && reader != u'I')
            continue;
        percents += reader == u'P' || reader == u'Q' ? 1 : 0;
        KProperty property;
        QStringList errors;
        QVERIFY(PropertySetCreator::modifyKProperty(id, PropertySetCreator::Priority::High,
                                                    PropertySetCreator::storedDefault(id), &property,
                                                    &errors));
        const QJsonValue saved =
            PropertySetCreator::valueToJson(property, PropertyEditor::PropertyConversionFlag::KeepPaths);
        const double value = read(id, entry(id, saved)).toDouble();
        const double expected = PropertiesNames::defaultValueForType(id).toDouble();
        QVERIFY2(qAbs(value - expected) <= 1e-12, property.name().constData());
    }
    QCOMPARE(percents, 11);
}

void TestPropertyReaders::whatIsNoPropertyHasNoStoredDefault()
{
    const LogCapture log;
    QVERIFY(PropertiesNames::defaultValueInFileUnit(PropertyId(kPropertyCount)).isNull());
    QVERIFY(PropertySetCreator::storedDefault(PropertyId(kPropertyCount)).isUndefined());
}

ORV_REGISTER_TEST(TestPropertyReaders)
#include "TestPropertyReaders.moc"
