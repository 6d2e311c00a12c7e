// Cells that stand in a file as a save writes them are kept as they are until somebody asks: nobody may see
// it.
#include "LogCapture.h"
#include "OrvTest.h"

#include <KProperty>
#include <KPropertySet>
#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QUrl>

#include <limits>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

class TestStoredForm : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void plainCellsAreInStoredForm();
    void deviationsAreNot_data();
    void deviationsAreNot();
    void numbersAreJudgedByTheirText_data();
    void numbersAreJudgedByTheirText();
    void whatIsInStoredFormIsWrittenAsItStands();
    void questionsAreAnsweredAsByTheProperties();
    void pathsAreMadeAbsoluteAsByTheProperties();
    void aBaseOutlastsALoad_data();
    void aBaseOutlastsALoad();
    void editsAreWritten_data();
    void editsAreWritten();
    void whoeverTakesThePropertiesMayChangeThem();
};

namespace {

const QString kStampText =
    u"{\"created\":\"2023-05-04T10:11:12\",\"user\":\"scientist\",\"version\":\"5.46.0\"}"_s;

QString nameOfId(int id)
{
    return PropertiesNames::internalNameForType(PropertyId(id));
}

QJsonObject plainEntry(const QString &name, const QJsonValue &value)
{
    return {{u"group"_s, u"Instrument"_s}, {u"name"_s, name}, {u"priority"_s, 1}, {u"value"_s, value}};
}

QJsonObject plainCell(const QJsonArray &entries)
{
    return {{u"metadata"_s, kStampText},
            {u"name"_s, u"Search"_s},
            {u"title"_s, u"Search 1"_s},
            {u"type"_s, u"Karvon"_s},
            {u"properties"_s, entries}};
}

QJsonObject storedCell()
{
    return plainCell({plainEntry(u"KarvonCentroidWidthVal"_s, u"0.01"_s),
                      plainEntry(u"KarvonLayout"_s, u"data/a.ini"_s),
                      plainEntry(u"KarvonGlycanText"_s, QJsonObject{{u"glycans"_s, u"[lists/n.txt]"_s}}),
                      plainEntry(u"KarvonDebugMode"_s, u"true"_s)});
}

bool isStored(const QJsonObject &cell)
{
    return PropertySetCreator::propertiesInStoredForm(cell, std::nullopt).has_value();
}

QJsonObject withoutStamp(QJsonObject cell)
{
    cell.remove(u"metadata"_s);
    return cell;
}

std::unique_ptr<KeyValueItem> loadAsStored(const QJsonObject &cell)
{
    auto item = std::make_unique<KeyValueItem>(BaseItemType::Karvon);
    if (item->assignFromJson(cell, ValidationOption::SkipTypeValidation).hasError())
        qFatal("The test's cell is broken");
    return item;
}

/// The same from properties: who was given them may have changed them.
std::unique_ptr<KeyValueItem> loadWithProperties(const QJsonObject &cell)
{
    std::unique_ptr<KeyValueItem> item = loadAsStored(cell);
    if (!item->propertySet())
        qFatal("The test's cell has no properties");
    return item;
}

QJsonValue randomValue(QRandomGenerator &random, PropertyId id)
{
    const QList<QJsonValue> values = {QJsonValue::Null,
                                      true,
                                      false,
                                      0,
                                      1,
                                      -1,
                                      2,
                                      3,
                                      7,
                                      400.6,
                                      2147483647.0,
                                      2147483648.0,
                                      -0.0,
                                      1e300,
                                      QString(),
                                      u"true"_s,
                                      u"True"_s,
                                      u"false"_s,
                                      u"1"_s,
                                      u"0.01"_s,
                                      u".5"_s,
                                      u"0.010"_s,
                                      u"1e-05"_s,
                                      u"-0"_s,
                                      u"1234567"_s,
                                      u"nan"_s,
                                      u"text"_s,
                                      u"a\nb"_s,
                                      u"./data/x.mzML"_s,
                                      u"file:///a%20b"_s,
                                      u"unifi:/x"_s,
                                      u"unifi:x"_s,
                                      u"{\"a\":1}"_s,
                                      QJsonArray(),
                                      QJsonArray{1, u"a"_s},
                                      QJsonArray{u"a"_s, u"a"_s},
                                      QJsonObject(),
                                      QJsonObject{{u"data"_s, QJsonObject{{u"mods"_s, u"x"_s}}}},
                                      QJsonObject{{u"data"_s, QString()}},
                                      QJsonObject{{u"mods"_s, u"x"_s}, {u"n"_s, 1e17}},
                                      PropertySetCreator::storedDefault(id),
                                      PropertySetCreator::storedDefault(id)};
    return values.at(random.bounded(int(values.size())));
}

QJsonObject randomEntry(QRandomGenerator &random)
{
    const auto id = PropertyId(random.bounded(kPropertyCount));
    QJsonObject entry{{u"name"_s, nameOfId(id)}, {u"value"_s, randomValue(random, id)}};
    static const QStringList groups = {u"Instrument"_s, u"instrument"_s, u"General"_s, u"general"_s,
                                       u"common"_s,     QString(),       u"Other"_s};
    if (random.bounded(8) != 0)
        entry.insert(u"priority"_s, random.bounded(12) == 0 ? -1 : 1 + random.bounded(4));
    if (random.bounded(4) != 0)
        entry.insert(u"group"_s, groups.at(random.bounded(random.bounded(3) ? 1 : int(groups.size()))));
    if (random.bounded(40) == 0)
        entry.insert(u"novelty"_s, 1);
    return entry;
}

} // namespace

void TestStoredForm::plainCellsAreInStoredForm()
{
    const std::optional<PropertyIdSet> ids =
        PropertySetCreator::propertiesInStoredForm(storedCell(), BaseItemType::Karvon);
    QVERIFY(ids.has_value());
    QCOMPARE(ids->count(), size_t(4));
    for (const auto &entry : storedCell().value(u"properties"_s).toArray()) {
        const PropertyId id =
            PropertiesNames::findPropertyForName(entry.toObject().value(u"name"_s).toString());
        QVERIFY(ids->test(size_t(id)));
    }
    QVERIFY(isStored(plainCell({})));
}

void TestStoredForm::deviationsAreNot_data()
{
    QTest::addColumn<QJsonObject>("cell");
    const auto withEntry = [](const QJsonObject &entry) { return plainCell({entry}); };
    const QJsonObject entry = plainEntry(u"KarvonCentroidWidthVal"_s, u"0.01"_s);
    const auto changed = [](QJsonObject object, const QString &key, const QJsonValue &value) {
        object.insert(key, value);
        return object;
    };
    const auto without = [](QJsonObject object, const QString &key) {
        object.remove(key);
        return object;
    };
    QTest::newRow("unknown name") << withEntry(changed(entry, u"name"_s, u"Novelty"_s));
    QTest::newRow("name in another case")
        << withEntry(changed(entry, u"name"_s, u"karvoncentroidwidthval"_s));
    QTest::newRow("name that reads as another") << withEntry(plainEntry(nameOfId(113), QString()));
    QTest::newRow("number for a decimal") << withEntry(changed(entry, u"value"_s, 0.01));
    QTest::newRow("idle zero") << withEntry(changed(entry, u"value"_s, u"0.010"_s));
    QTest::newRow("no value") << withEntry(without(entry, u"value"_s));
    QTest::newRow("no priority") << withEntry(without(entry, u"priority"_s));
    QTest::newRow("priority that isn't written") << withEntry(changed(entry, u"priority"_s, -1));
    QTest::newRow("broken priority") << withEntry(changed(entry, u"priority"_s, 1.5));
    QTest::newRow("member that isn't known") << withEntry(changed(entry, u"novelty"_s, 1));
    QTest::newRow("member in place of the group")
        << withEntry(changed(without(entry, u"group"_s), u"novelty"_s, 1));
    QTest::newRow("group without a name") << withEntry(changed(entry, u"group"_s, QString()));
    QTest::newRow("general group") << withEntry(changed(entry, u"group"_s, u"General"_s));
    QTest::newRow("two captions of a group")
        << plainCell({entry, changed(plainEntry(u"KarvonLayout"_s, QString()), u"group"_s, u"INSTRUMENT"_s)});
    QTest::newRow("a name twice") << plainCell({entry, entry});
    QTest::newRow("no object") << plainCell({entry, u"text"_s});
    QTest::newRow("no stamp") << withoutStamp(storedCell());
    QTest::newRow("member of the cell that isn't known") << changed(storedCell(), u"zoom"_s, u"2"_s);
    QTest::newRow("title that is no text") << changed(storedCell(), u"title"_s, 1);
    QTest::newRow("no properties") << without(storedCell(), u"properties"_s);
    QTest::newRow("object within an object")
        << withEntry(plainEntry(u"KarvonGlycanText"_s, QJsonObject{{u"data"_s, QJsonObject{{u"a"_s, 1}}}}));
}

void TestStoredForm::deviationsAreNot()
{
    QFETCH(QJsonObject, cell);
    QVERIFY(!isStored(cell));
}

void TestStoredForm::numbersAreJudgedByTheirText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isStored");
    for (const char *text :
         {"0", "1", "-1", "10", "123456", "-0.5", "0.0001", "0.000123456", "12.3456", "1.5"})
        QTest::newRow(text) << QString::fromLatin1(text) << true;
    for (const char *text :
         {"",          "-",       ".",   "-0",    "00", "01", "1.", ".5",  "1.0", "0.010", "1234567",
          "0.1234567", "0.00001", "1e5", "1e-05", "+1", " 1", "1 ", "1,5", "nan", "inf",   "0x10"})
        QTest::newRow(qPrintable(u"\"%1\""_s.arg(QLatin1String(text)))) << QString::fromLatin1(text) << false;
}

void TestStoredForm::numbersAreJudgedByTheirText()
{
    QFETCH(QString, text);
    QFETCH(bool, isStored);
    QCOMPARE(::isStored(plainCell({plainEntry(u"KarvonCentroidWidthVal"_s, text)})), isStored);
    if (isStored)
        QCOMPARE(QString::number(text.toDouble(), 'g', 6), text);
}

void TestStoredForm::whatIsInStoredFormIsWrittenAsItStands()
{
    constexpr quint32 kSeed = 20261122;
    QRandomGenerator random(kSeed);
    int stored = 0;
    for (int i = 0; i < 6000; ++i) {
        QJsonArray entries;
        for (int count = random.bounded(4); count >= 0; --count)
            entries.append(randomEntry(random));
        // As numbers are after a parse.
        const QJsonObject cell = QJsonDocument::fromJson(QJsonDocument(plainCell(entries)).toJson()).object();
        const LogCapture log;
        if (!isStored(cell))
            continue;
        ++stored;
        LossCollector losses;
        const auto text = QJsonDocument(cell).toJson();
        const Result<KPropertySet *> set =
            PropertySetCreator::objectToPropertySet(cell, std::nullopt, LoadContext(&losses));
        QVERIFY2(!set.hasError(), text.constData());
        const std::unique_ptr<KPropertySet> owned(*set);
        const auto written =
            PropertySetCreator::propertySetToObject(*owned, PropertyConversionFlag::KeepPaths);
        QVERIFY2(written.has_value(), text.constData());
        QCOMPARE(QJsonDocument(withoutStamp(*written)).toJson(), QJsonDocument(withoutStamp(cell)).toJson());
        QVERIFY2(losses.losses().isEmpty() && log.warnings().isEmpty(), text.constData());
    }
    QVERIFY2(stored > 150, QByteArray::number(stored).constData());
}

void TestStoredForm::questionsAreAnsweredAsByTheProperties()
{
    const std::unique_ptr<KeyValueItem> unread = loadAsStored(storedCell());
    const std::unique_ptr<KeyValueItem> read = loadWithProperties(storedCell());
    const QStringList keys = {u":metadata"_s,
                              u":name"_s,
                              u":title"_s,
                              u":type"_s,
                              u"KarvonCentroidWidthVal"_s,
                              u"KarvonLayout"_s,
                              u"KarvonGlycanText"_s,
                              u"KarvonDebugMode"_s};
    QCOMPARE(read->keys(), keys);
    QCOMPARE(unread->keys(), keys);
    QCOMPARE(unread->count(), 8);
    QVERIFY(!unread->contains(u"MassWindow"_s));
    QVERIFY(!unread->value(u"MassWindow"_s).isValid());
    QCOMPARE(unread->value(u"KarvonCentroidWidthVal"_s), QVariant(0.01));
    QCOMPARE(unread->value(u"KarvonDebugMode"_s), QVariant(true));
    for (const PropertyId id : {PropertyId::KarvonCentroidWidthVal, PropertyId::KarvonGlycanText}) {
        QVERIFY(unread->contains(id));
        QCOMPARE(unread->value(id), read->value(id));
    }
    QVERIFY(unread->contains(u"karvonlayout"_s));
    QCOMPARE(ResourceReferenceUtils::fromVariant(unread->value(u"karvonlayout"_s))->text(), u"data/a.ini"_s);
    QCOMPARE(unread->value(PropertyId::KarvonLayout).typeId(),
             read->value(PropertyId::KarvonLayout).typeId());
    QCOMPARE(unread->value(u":title"_s), QVariant(u"Search 1"_s));
    QCOMPARE(unread->group(u"KarvonLayout"_s), u"instrument"_s);
    QCOMPARE(withoutStamp(unread->toJson(PropertyConversionFlag::KeepPaths)), withoutStamp(storedCell()));
}

void TestStoredForm::pathsAreMadeAbsoluteAsByTheProperties()
{
    const std::unique_ptr<KeyValueItem> unread = loadAsStored(storedCell());
    const std::unique_ptr<KeyValueItem> read = loadWithProperties(storedCell());
    for (KeyValueItem *item : {unread.get(), read.get()})
        item->setBaseUrl(QUrl::fromLocalFile(u"/lab/study/"_s));
    const QJsonObject absolute = unread->toJson(PropertyConversionFlag::AbsolutePaths);
    QCOMPARE(withoutStamp(absolute), withoutStamp(read->toJson(PropertyConversionFlag::AbsolutePaths)));
    const QJsonArray entries = absolute.value(u"properties"_s).toArray();
    QVERIFY(QJsonDocument(entries.at(2).toObject()).toJson().contains("/lab/study/lists/n.txt"));
    QCOMPARE(withoutStamp(unread->toJson(PropertyConversionFlag::KeepPaths)), withoutStamp(storedCell()));
}

void TestStoredForm::aBaseOutlastsALoad_data()
{
    QTest::addColumn<QJsonObject>("cell");
    QTest::newRow("as a save writes it") << storedCell();
    QJsonObject other = storedCell();
    other.insert(u"zoom"_s, u"2"_s);
    QTest::newRow("with another member") << other;
}

void TestStoredForm::aBaseOutlastsALoad()
{
    QFETCH(QJsonObject, cell);
    KeyValueItem item(BaseItemType::Karvon);
    item.setBaseUrl(QUrl::fromLocalFile(u"/lab/study/"_s));
    ORV_VERIFY_OK(item.assignFromJson(cell, {}));
    const QJsonArray entries =
        item.toJson(PropertyConversionFlag::AbsolutePaths).value(u"properties"_s).toArray();
    QCOMPARE(entries.at(1).toObject().value(u"value"_s), QJsonValue(u"/lab/study/data/a.ini"_s));
}

void TestStoredForm::editsAreWritten_data()
{
    QTest::addColumn<std::function<void(KeyValueItem *)>>("edit");
    using Edit = std::function<void(KeyValueItem *)>;
    QTest::newRow("value") << Edit(
        [](KeyValueItem *item) { (void)item->setValue(u"KarvonCentroidWidthVal"_s, 0.02); });
    QTest::newRow("insertion") << Edit([](KeyValueItem *item) {
        (void)item->insert(u"Novelty"_s, u"Instrument"_s, u"x"_s, QMetaType::QString);
    });
    QTest::newRow("removal") << Edit([](KeyValueItem *item) { (void)item->remove(u"KarvonLayout"_s); });
    QTest::newRow("replacement") << Edit([](KeyValueItem *item) {
        (void)item->replace(u"KarvonLayout"_s, u"Other"_s, u"b"_s, QMetaType::QString);
    });
    QTest::newRow("option") << Edit(
        [](KeyValueItem *item) { (void)item->setOption(u"KarvonLayout"_s, "priority", 3); });
    QTest::newRow("group") << Edit(
        [](KeyValueItem *item) { (void)item->setGroup(u"KarvonLayout"_s, u"New"_s); });
    QTest::newRow("caption of a group")
        << Edit([](KeyValueItem *item) { (void)item->setGroupCaption(u"instrument"_s, u"Machine"_s); });
    QTest::newRow("order of groups") << Edit([](KeyValueItem *item) {
        (void)item->setGroup(u"KarvonLayout"_s, u"New"_s);
        item->moveGroup(u"New"_s, u"common"_s);
    });
    QTest::newRow("removal of a group")
        << Edit([](KeyValueItem *item) { (void)item->removeGroup(u"instrument"_s); });
    QTest::newRow("all gone") << Edit([](KeyValueItem *item) { item->clear(); });
}

void TestStoredForm::editsAreWritten()
{
    using Edit = std::function<void(KeyValueItem *)>;
    QFETCH(Edit, edit);
    const std::unique_ptr<KeyValueItem> unread = loadAsStored(storedCell());
    const std::unique_ptr<KeyValueItem> read = loadWithProperties(storedCell());
    edit(unread.get());
    edit(read.get());
    const QJsonObject written = withoutStamp(unread->toJson(PropertyConversionFlag::KeepPaths));
    QVERIFY(written != withoutStamp(storedCell()));
    QCOMPARE(written, withoutStamp(read->toJson(PropertyConversionFlag::KeepPaths)));
    QCOMPARE(unread->keys(), read->keys());
}

void TestStoredForm::whoeverTakesThePropertiesMayChangeThem()
{
    const std::unique_ptr<KeyValueItem> item = loadAsStored(storedCell());
    QCOMPARE(item->value(u"karvonlayout"_s).isValid(), true);
    QCOMPARE(withoutStamp(item->toJson(PropertyConversionFlag::KeepPaths)), withoutStamp(storedCell()));
    item->propertySet()->property("KarvonCentroidWidthVal").setValue(0.5);
    const QJsonArray entries =
        item->toJson(PropertyConversionFlag::KeepPaths).value(u"properties"_s).toArray();
    QCOMPARE(entries.at(0).toObject().value(u"value"_s), QJsonValue(u"0.5"_s));
    QCOMPARE(item->value(PropertyId::KarvonCentroidWidthVal), QVariant(0.5));
}

ORV_REGISTER_TEST(TestStoredForm)
#include "TestStoredForm.moc"
