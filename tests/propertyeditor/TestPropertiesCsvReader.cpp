#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/propertyeditor/PropertiesCsvReader.h>

#include <QBuffer>
#include <QFile>
#include <QMetaEnum>
#include <QSet>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

QByteArray catalogueText()
{
    QFile file(u":/orv/catalogue/properties.csv"_s);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the catalogue is no resource");
    return file.readAll();
}

PropertiesCsvReader readerOf(QByteArray text)
{
    QBuffer device(&text);
    device.open(QIODevice::ReadOnly);
    return PropertiesCsvReader(&device);
}

/// Changes the text \a before, which must be there, once.
QByteArray replaced(QByteArray text, const QByteArray &before, const QByteArray &after)
{
    const qsizetype at = text.indexOf(before);
    if (at < 0)
        qFatal("the catalogue has no \"%s\"", before.constData());
    return text.replace(at, before.size(), after);
}

QMetaEnum propertyIds()
{
    return QMetaEnum::fromType<PropertyId>();
}

} // namespace

class TestPropertiesCsvReader : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyNumberIsOneEnumerator();
    void eachPropertyHasItsTexts_data();
    void eachPropertyHasItsTexts();
    void namesBelongToOneProperty();
    void namesOfBothGenerationsAreFound_data();
    void namesOfBothGenerationsAreFound();
    void namesAreComparedExactly();
    void columnsAreNotMixedUp();
    void otherNumbersHaveNoTexts();
    void aByteOrderMarkAndOtherLineEndsAreAccepted();
    void aDamagedTableIsLoggedOnceAndEmpty_data();
    void aDamagedTableIsLoggedOnceAndEmpty();
    void aDeviceThatIsNotOpenIsLoggedOnce();
};

void TestPropertiesCsvReader::everyNumberIsOneEnumerator()
{
    QCOMPARE(propertyIds().keyCount(), kPropertyCount + 1);
    QSet<int> numbers;
    for (int i = 0; i < propertyIds().keyCount(); ++i)
        numbers.insert(propertyIds().value(i));
    for (int number = -1; number < kPropertyCount; ++number)
        QVERIFY2(numbers.contains(number), qPrintable(QString::number(number)));
    QCOMPARE(int(PropertyId::NoProperty), -1);
}

void TestPropertiesCsvReader::eachPropertyHasItsTexts_data()
{
    QTest::addColumn<int>("number");
    for (int number = 0; number < kPropertyCount; ++number)
        QTest::addRow("%d %s", number, propertyIds().valueToKey(number)) << number;
}

void TestPropertiesCsvReader::eachPropertyHasItsTexts()
{
    QFETCH(int, number);
    const auto id = PropertyId(number);
    const PropertiesCsvReader &reader = PropertiesCsvReader::instance();
    QCOMPARE(reader.internalNameV2(id), QLatin1String(propertyIds().valueToKey(number)));
    QCOMPARE(reader.findPropertyForName(reader.internalNameV2(id)), id);
    QCOMPARE(reader.findPropertyForName(reader.internalNameV1(id)), id);
    QVERIFY(!reader.displayName(id).isEmpty());
    QVERIFY(!reader.toolTip(id).isEmpty());
    static const QSet<QString> types = {
        u"QString"_s, u"multiLine"_s,         u"bool"_s,         u"int"_s, u"double"_s, u"list"_s,
        u"object"_s,  u"ResourceReference"_s, u"CheckableList"_s};
    QVERIFY(types.contains(reader.typeName(id)));
    QVERIFY(!reader.verificationFunction(id).isEmpty() || reader.verificationParameters(id).isEmpty());
}

void TestPropertiesCsvReader::namesBelongToOneProperty()
{
    const PropertiesCsvReader &reader = PropertiesCsvReader::instance();
    QHash<QString, int> owners;
    for (int number = 0; number < kPropertyCount; ++number) {
        for (const QString &name :
             {reader.internalNameV1(PropertyId(number)), reader.internalNameV2(PropertyId(number))}) {
            QVERIFY2(owners.value(name, number) == number, qPrintable(name));
            owners.insert(name, number);
        }
    }
}

void TestPropertiesCsvReader::namesOfBothGenerationsAreFound_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("number");
    const auto row = [](const char *name, int number) {
        QTest::newRow(name) << QString::fromLatin1(name) << number;
    };
    row("AdvancedConfiguration", 0);
    row("apply_charges_index", 25);
    row("KarvonApplyChargesIndex", 25);
    row("Disulfide", 131);
    row("Database", 113);
    row("Masses", 204);
    row("MassTable", 207);
    row("Modifications", 219);
    row("Samples", 266);
    row("SamplesTable", 265);
    row("SamplesProteins", 267);
    row("rare_max", 288);
    row("XicMode", 306);
}

void TestPropertiesCsvReader::namesOfBothGenerationsAreFound()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    QCOMPARE(int(PropertiesCsvReader::instance().findPropertyForName(name)), number);
}

void TestPropertiesCsvReader::namesAreComparedExactly()
{
    const PropertiesCsvReader &reader = PropertiesCsvReader::instance();
    for (const QString &name : {u""_s, QString(), u"samples"_s, u"Samples "_s, u"NoProperty"_s, u"0"_s,
                                u"id"_s, u"internalNameV2"_s})
        QCOMPARE(reader.findPropertyForName(name), PropertyId::NoProperty);
}

void TestPropertiesCsvReader::columnsAreNotMixedUp()
{
    QByteArray text = catalogueText();
    const qsizetype begin = text.indexOf("\n1,") + 1;
    text.replace(begin, text.indexOf("\n2,") - begin,
                 "1,AlignmentEnabled,OldName,The caption,\"The \"\"tip\"\", long\",bool,"
                 "min=1;suffix= a=b;,rule,[0;1]");
    const PropertiesCsvReader reader = readerOf(text);
    constexpr auto id = PropertyId::AlignmentEnabled;
    QCOMPARE(reader.internalNameV2(id), u"AlignmentEnabled"_s);
    QCOMPARE(reader.internalNameV1(id), u"OldName"_s);
    QCOMPARE(reader.displayName(id), u"The caption"_s);
    QCOMPARE(reader.toolTip(id), u"The \"tip\", long"_s);
    QCOMPARE(reader.typeName(id), u"bool"_s);
    const QMap<QByteArray, QString> options = {{"min", u"1"_s}, {"suffix", u" a=b"_s}};
    QCOMPARE(reader.typeOptions(id), options);
    QCOMPARE(reader.verificationFunction(id), u"rule"_s);
    QCOMPARE(reader.verificationParameters(id), u"[0;1]"_s);
    QCOMPARE(reader.findPropertyForName(u"OldName"_s), id);
}

void TestPropertiesCsvReader::otherNumbersHaveNoTexts()
{
    const PropertiesCsvReader &reader = PropertiesCsvReader::instance();
    for (int number : {-1, kPropertyCount, -5, 1 << 30}) {
        const auto id = PropertyId(number);
        QVERIFY(reader.internalNameV1(id).isEmpty());
        QVERIFY(reader.internalNameV2(id).isEmpty());
        QVERIFY(reader.displayName(id).isEmpty());
        QVERIFY(reader.toolTip(id).isEmpty());
        QVERIFY(reader.typeName(id).isEmpty());
        QVERIFY(reader.typeOptions(id).isEmpty());
        QVERIFY(reader.verificationFunction(id).isEmpty());
        QVERIFY(reader.verificationParameters(id).isEmpty());
    }
}

void TestPropertiesCsvReader::aByteOrderMarkAndOtherLineEndsAreAccepted()
{
    const PropertiesCsvReader reader = readerOf("\xEF\xBB\xBF" + catalogueText().replace('\n', "\r\n"));
    QCOMPARE(reader.internalNameV2(PropertyId(306)), u"XicMode"_s);
}

void TestPropertiesCsvReader::aDamagedTableIsLoggedOnceAndEmpty_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("fault");
    const QByteArray good = catalogueText();
    const qsizetype lastRow = good.lastIndexOf('\n' + QByteArray::number(kPropertyCount - 1) + ',') + 1;
    const QByteArray next = QByteArray::number(kPropertyCount);
    const QString tooMany = u"more than %1"_s.arg(kPropertyCount);
    const auto row = [](const char *name, const QByteArray &text, const QString &fault) {
        QTest::newRow(name) << text << fault;
    };
    row("nothing", {}, u"ends too early"_s);
    row("no header", good.sliced(good.indexOf('\n') + 1), u"columns"_s);
    row("cut at a row", good.first(lastRow), u"ends too early"_s);
    row("cut in a row", good.first(lastRow + 7), u"line %1"_s.arg(kPropertyCount + 1));
    row("a row too many", good + next + ",A,A,A,A,bool,,,\n", tooMany);
    row("a row twice", good + good.sliced(lastRow), tooMany);
    row("rows out of order", replaced(good, "\n7,", "\n8,"), u"\"8\" stands where 7 belongs"_s);
    row("a number with a blank", replaced(good, "\n7,", "\n 7,"), u"\" 7\""_s);
    row("a field too many", replaced(good, "\n7,", "\n7,,"), u"10 fields"_s);
    row("a property without a name", replaced(good, "\n0,AdvancedConfiguration,", "\n0,,"), u"no name"_s);
    row("a name twice", replaced(good, "\n1,AlignmentEnabled,", "\n1,AdvancedConfiguration,"),
        u"Both 0 and 1"_s);
    row("an option without a value", replaced(good, "step=", "step"), u"form name=value"_s);
    row("a stray quote", replaced(good, "\n7,", "\n7\","), u"line 9"_s);
    row("no UTF-8", replaced(good, "\n7,", "\n7\xB5,"), u"UTF-8"_s);
}

void TestPropertiesCsvReader::aDamagedTableIsLoggedOnceAndEmpty()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, fault);
    const LogCapture log;
    const PropertiesCsvReader reader = readerOf(text);
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY2(log.warnings().first().contains(fault), qPrintable(log.warnings().first()));
    for (int number = 0; number < kPropertyCount; ++number)
        QVERIFY(reader.internalNameV2(PropertyId(number)).isEmpty());
    QCOMPARE(reader.findPropertyForName(u"AdvancedConfiguration"_s), PropertyId::NoProperty);
    QCOMPARE(log.warnings().size(), 1);
}

void TestPropertiesCsvReader::aDeviceThatIsNotOpenIsLoggedOnce()
{
    QFile missing(u":/orv/catalogue/missing.csv"_s);
    const LogCapture log;
    const PropertiesCsvReader reader(&missing);
    QVERIFY(reader.typeName(PropertyId(0)).isEmpty());
    QVERIFY(log.warnings().last().contains(u"cannot be used"_s));
}

ORV_REGISTER_TEST(TestPropertiesCsvReader)
#include "TestPropertiesCsvReader.moc"
