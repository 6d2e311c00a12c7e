#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <KPropertySet>
#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/resources/ResourceReference.h>

#include <QJsonArray>
#include <QMetaMethod>
#include <QSignalSpy>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

namespace {

QString storedName(int number)
{
    return PropertiesNames::internalNameForType(PropertyId(number));
}

QJsonObject storedEntry(int number, const QJsonValue &value)
{
    return {{u"name"_s, storedName(number)}, {u"value"_s, value}};
}

QJsonObject searchCell(const QJsonArray &entries)
{
    return {
        {u"type"_s, u"Karvon"_s}, {u"name"_s, u"Search"_s}, {u"title"_s, u"T"_s}, {u"properties"_s, entries}};
}

std::unique_ptr<KeyValueItem> loaded(const QJsonArray &entries)
{
    auto item = std::make_unique<KeyValueItem>(BaseItemType::Karvon);
    const Error error = item->assignFromJson(searchCell(entries), {});
    return error.hasError() ? nullptr : std::move(item);
}

/// Counts what an item tells.
struct Spies
{
    explicit Spies(KeyValueItem *item)
        : inserted(item, qOverload<const QString &, const QVariant &>(&KeyValueItem::inserted))
        , insertedInGroup(
              item, qOverload<const QString &, const QString &, const QVariant &>(&KeyValueItem::inserted))
        , removed(item, &KeyValueItem::removed)
        , valueChanged(item, &KeyValueItem::valueChanged)
        , countChanged(item, &KeyValueItem::countChanged)
    {}

    [[nodiscard]] QList<qsizetype> counts() const
    {
        return {inserted.count(), insertedInGroup.count(), removed.count(), valueChanged.count(),
                countChanged.count()};
    }

    QSignalSpy inserted;
    QSignalSpy insertedInGroup;
    QSignalSpy removed;
    QSignalSpy valueChanged;
    QSignalSpy countChanged;
};

const QList<qsizetype> kSilence = {0, 0, 0, 0, 0};

} // namespace

class TestKeyValueItem : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aNewItemHasNoSetAndRefusesEverything();
    void aCellWithoutAPropertyListIsRefused_data();
    void aCellWithoutAPropertyListIsRefused();
    void aFailedLoadReturnsTheSetsError();
    void typeValidationCanBeSkipped();
    void aCellComesBackAsItWas();
    void keysAndIdsReadTheSame();
    void theOldSetGoesWithTheNextLoad();
    void whatALoadDropsIsTold();
    void insertPutsAPropertyBehindAnother();
    void insertConvertsBuiltInTypesOnly();
    void insertOfAnExistingKeyIsSilent();
    void insertNeedsAKey();
    void replaceMakesAnotherPropertyWithoutASignal();
    void removeTellsKeyAndCount();
    void removeOfAListStopsAtTheFirstMissingKey();
    void setValueChangesTheTypeOfAPlainProperty();
    void setValueKeepsTypesOfTheProgram();
    void setValueOfAMissingKeyWarns();
    void setValueOnAListTakesTextsAndPositions();
    void setValueOnAListRefusesOtherTexts();
    void setValueOnAnEditableListTakesAnyText();
    void setValueOnOtherListsTakesNumbersAndKeys();
    void setValueOnAListNeedsKeysAndAKnownName();
    void optionsAreReadAndSet();
    void theBaseUrlReachesReferences();
    void glycanDatabasesBecomeAbsoluteInACopy();
    void glycanDatabasesOfADocumentBecomeAbsolute();
    void clearTellsOnlyOfWhatWasThere();
    void propertiesAreMappedById();
    void scriptsSeeTheItem();
    void theFirstSettingsOfAColumnAnswerForIt();
};

void TestKeyValueItem::aNewItemHasNoSetAndRefusesEverything()
{
    KeyValueItem item(BaseItemType::Karvon);
    QCOMPARE(item.propertySet(), nullptr);
    QCOMPARE(item.toJson(PropertyConversionFlag::KeepPaths), QJsonObject());
    QVERIFY(!item.insert(u"a"_s, 1, item.intType()));
    QVERIFY(!item.contains(u"a"_s));
    QVERIFY(!item.value(u"a"_s).isValid());
    QCOMPARE(item.KeyValueItem::type(u"a"_s), 0);
    QVERIFY(item.option(u"a"_s, "min").isNull());
    QCOMPARE(item.group(u"a"_s) + item.groupCaption(u"a"_s), QString());
    QVERIFY(!item.hasGroup(u"common"_s));
    item.clear();
    item.setBaseUrl(QUrl(u"file:///a/"_s));
    const LogCapture log;
    QVERIFY(!item.setValue(u"a"_s, 1));
    QVERIFY(!item.replace(u"a"_s, u"b"_s, 1, 2));
    QVERIFY(!item.remove(u"a"_s));
    QVERIFY(!item.setOption(u"a"_s, "min", 1));
    QVERIFY(!item.setGroup(u"a"_s, u"b"_s));
    QCOMPARE(log.warnings().size(), 5);
}

void TestKeyValueItem::aCellWithoutAPropertyListIsRefused_data()
{
    QTest::addColumn<QJsonObject>("json");
    QTest::newRow("none") << QJsonObject{{u"type"_s, u"Karvon"_s}};
    QTest::newRow("an object") << QJsonObject{{u"type"_s, u"Karvon"_s}, {u"properties"_s, QJsonObject()}};
}

void TestKeyValueItem::aCellWithoutAPropertyListIsRefused()
{
    QFETCH(QJsonObject, json);
    KeyValueItem item(BaseItemType::Karvon);
    const Error error = item.assignFromJson(json, {});
    QCOMPARE(int(error.code()), 1);
    QCOMPARE(error.errorMessages(),
             QStringList(u"Could not parse JSON. \"properties\" has unsupported format."_s));
}

void TestKeyValueItem::aFailedLoadReturnsTheSetsError()
{
    KeyValueItem item(BaseItemType::Karvon);
    const Error error = item.assignFromJson(searchCell({storedEntry(202, QJsonObject())}), {});
    QCOMPARE(error.errorMessages(), QStringList(u"Property \"%1\" is not supported."_s.arg(storedName(202))));
    QCOMPARE(item.count(), 0);
}

void TestKeyValueItem::typeValidationCanBeSkipped()
{
    KeyValueItem item(BaseItemType::Karvon);
    ORV_VERIFY_OK(item.assignFromJson(searchCell({storedEntry(202, QJsonObject())}),
                                      ValidationOption::SkipTypeValidation));
    QVERIFY(item.contains(PropertyId(202)));
}

void TestKeyValueItem::aCellComesBackAsItWas()
{
    const auto item = loaded({storedEntry(43, u"RK"_s), storedEntry(26, u"2,3"_s)});
    QVERIFY(item);
    QCOMPARE(item->name(), u"Search"_s);
    QCOMPARE(item->title(), u"T"_s);
    QJsonObject saved = item->toJson(PropertyConversionFlag::KeepPaths);
    QVERIFY(!saved.take(u"metadata"_s).toString().isEmpty());
    const QJsonArray entries = saved.value(u"properties"_s).toArray();
    QCOMPARE(entries.at(0).toObject(),
             (QJsonObject{{u"name"_s, storedName(43)}, {u"value"_s, u"RK"_s}, {u"priority"_s, 1}}));
    QCOMPARE(saved.value(u"type"_s), QJsonValue(u"Karvon"_s));
    QCOMPARE(saved.value(u"name"_s), QJsonValue(u"Search"_s));
    QCOMPARE(saved.value(u"title"_s), QJsonValue(u"T"_s));
    QCOMPARE(saved.size(), 4);
}

void TestKeyValueItem::keysAndIdsReadTheSame()
{
    const auto item = loaded({storedEntry(43, u"RK"_s)});
    QVERIFY(item);
    QVERIFY(item->contains(PropertyId(43)) && item->contains(storedName(43)));
    QCOMPARE(item->value(PropertyId(43)), item->value(storedName(43)));
    QCOMPARE(item->KeyValueItem::type(storedName(43)), 10);
    QVERIFY(item->setValue(PropertyId(43), u"K"_s));
    QCOMPARE(item->value(storedName(43)), QVariant(u"K"_s));
    QVERIFY(item->keys().contains(u":name"_s));
    QCOMPARE(item->keys().size(), item->count());
    QCOMPARE(item->KeyValueItem::type(u"missing"_s), 0);
}

void TestKeyValueItem::theOldSetGoesWithTheNextLoad()
{
    const auto item = loaded({storedEntry(43, u"RK"_s)});
    QVERIFY(item);
    ORV_VERIFY_OK(item->assignFromJson(searchCell({storedEntry(26, u"2"_s)}), {}));
    QVERIFY(!item->contains(PropertyId(43)));
    QVERIFY(item->contains(PropertyId(26)));
}

void TestKeyValueItem::whatALoadDropsIsTold()
{
    const QJsonObject document = Documents::document({Documents::tab(
        u"Tab"_s, {u"Column"_s}, {searchCell({storedEntry(43, u"RK"_s), storedEntry(44, 99)})})});
    LossCollector losses;
    const LogCapture log;
    Content content;
    content.setLossObserver(&losses);
    ORV_VERIFY_OK(content.assignFromJson(document, {}));
    QCOMPARE(losses.losses().size(), 1);
    QCOMPARE(losses.losses().constFirst().path, u"/tabs/0/cells/0/properties/1"_s);
}

void TestKeyValueItem::insertPutsAPropertyBehindAnother()
{
    const auto item = loaded({});
    QVERIFY(item);
    QVERIFY(item->insert(u"a"_s, u"Group"_s, 1, item->intType()));
    QVERIFY(item->insert(u"b"_s, u"Group"_s, 2, item->intType()));
    const Spies spies(item.get());
    QVERIFY(item->insert(u"x"_s, u"Group"_s, u"3"_s, item->intType(), u"a"_s));
    QCOMPARE(item->properties("group"),
             (QList<QByteArray>{QByteArray("a"), QByteArray("x"), QByteArray("b")}));
    QCOMPARE(item->keys().mid(item->count() - 3), QStringList({u"a"_s, u"x"_s, u"b"_s}));
    QCOMPARE(item->value(u"x"_s), QVariant(3));
    QCOMPARE(spies.counts(), (QList<qsizetype>{1, 1, 0, 0, 1}));
    QCOMPARE(spies.insertedInGroup.constFirst(), (QVariantList{u"x"_s, u"Group"_s, u"3"_s}));
    QCOMPARE(spies.countChanged.constFirst().constFirst(), QVariant(item->count()));
    // Behind a key that isn't in the group means its front.
    QVERIFY(item->insert(u"y"_s, u"Group"_s, 4, item->intType(), u"missing"_s));
    QCOMPARE(item->properties("group").constFirst(), QByteArray("y"));
}

void TestKeyValueItem::insertConvertsBuiltInTypesOnly()
{
    const auto item = loaded({});
    QVERIFY(item);
    const LogCapture log;
    QVERIFY(item->insert(u"double"_s, u"1.5"_s, item->doubleType()));
    QCOMPARE(item->value(u"double"_s), QVariant(1.5));
    QVERIFY(!item->insert(u"int"_s, u"many"_s, item->intType()));
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().constFirst().startsWith(u"Cannot convert variant"_s));
    QVERIFY(log.warnings().constFirst().endsWith(u"to type 2"_s));
    QVERIFY(!item->contains(u"int"_s));
    QVERIFY(item->insert(u"object"_s, QByteArray("{}"), 4000));
    QCOMPARE(item->value(u"object"_s), QVariant(QByteArray("{}")));
    QCOMPARE(item->KeyValueItem::type(u"object"_s), 4000);
}

void TestKeyValueItem::insertOfAnExistingKeyIsSilent()
{
    const auto item = loaded({storedEntry(43, u"RK"_s)});
    QVERIFY(item);
    const Spies spies(item.get());
    const LogCapture log;
    QVERIFY(!item->insert(storedName(43), u"K"_s, item->stringType()));
    QCOMPARE(spies.counts(), kSilence);
    QVERIFY(log.lines().isEmpty());
    QCOMPARE(item->value(storedName(43)), QVariant(u"RK"_s));
}

void TestKeyValueItem::insertNeedsAKey()
{
    const auto item = loaded({});
    QVERIFY(item);
    const int before = item->count();
    const Spies spies(item.get());
    const LogCapture log;
    QVERIFY(!item->insert(QString(), u"value"_s, item->stringType()));
    QCOMPARE(log.warnings(), QStringList(u"Cannot insert a property without a key"_s));
    QCOMPARE(spies.counts(), kSilence);
    QCOMPARE(item->count(), before);
}

void TestKeyValueItem::replaceMakesAnotherPropertyWithoutASignal()
{
    const auto item = loaded({storedEntry(43, u"RK"_s), storedEntry(26, u"2"_s)});
    QVERIFY(item);
    QVERIFY(item->setOption(storedName(43), "min", 1));
    const Spies spies(item.get());
    QVERIFY(item->replace(storedName(43), u"fresh"_s, 5, item->intType()));
    QCOMPARE(spies.counts(), kSilence);
    // The set still finds it under the key that it was added with.
    QCOMPARE(item->value(storedName(43)), QVariant(5));
    QCOMPARE(item->KeyValueItem::type(storedName(43)), 2);
    QVERIFY(!item->contains(u"fresh"_s));
    QVERIFY(item->keys().contains(u"fresh"_s));
    QVERIFY(item->option(storedName(43), "min").isNull());
    QVERIFY(item->option(storedName(43), "priority").isNull());
    const LogCapture log;
    QVERIFY(!item->replace(u"missing"_s, u"b"_s, 1, 2));
    QCOMPARE(log.warnings(), QStringList(u"Cannot update the non-existing key \"missing\""_s));
}

void TestKeyValueItem::removeTellsKeyAndCount()
{
    const auto item = loaded({storedEntry(43, u"RK"_s)});
    QVERIFY(item);
    const int before = item->count();
    const Spies spies(item.get());
    QVERIFY(item->remove(storedName(43)));
    QCOMPARE(spies.counts(), (QList<qsizetype>{0, 0, 1, 0, 1}));
    QCOMPARE(spies.removed.constFirst(), QVariantList{storedName(43)});
    QCOMPARE(spies.countChanged.constFirst(), QVariantList{before - 1});
    const LogCapture log;
    QVERIFY(!item->remove(storedName(43)));
    QCOMPARE(log.warnings(), QStringList(u"Cannot remove the non-existing key \"%1\""_s.arg(storedName(43))));
}

void TestKeyValueItem::removeOfAListStopsAtTheFirstMissingKey()
{
    const auto item = loaded({storedEntry(43, u"RK"_s), storedEntry(26, u"2"_s)});
    QVERIFY(item);
    QVERIFY(item->remove(QStringList()));
    const LogCapture log;
    QVERIFY(!item->remove(QStringList({storedName(43), u"missing"_s, storedName(26)})));
    QVERIFY(!item->contains(PropertyId(43)));
    QVERIFY(item->contains(PropertyId(26)));
    QCOMPARE(log.warnings().size(), 1);
}

void TestKeyValueItem::setValueChangesTheTypeOfAPlainProperty()
{
    const auto item = loaded({storedEntry(43, u"RK"_s)});
    QVERIFY(item);
    const Spies spies(item.get());
    QVERIFY(item->setValue(storedName(43), 7));
    QCOMPARE(item->KeyValueItem::type(storedName(43)), 2);
    QCOMPARE(item->value(storedName(43)), QVariant(7));
    QCOMPARE(spies.counts(), (QList<qsizetype>{0, 0, 0, 1, 0}));
    QCOMPARE(spies.valueChanged.constFirst(), (QVariantList{storedName(43), 7, u"RK"_s}));
}

void TestKeyValueItem::setValueKeepsTypesOfTheProgram()
{
    const auto item = loaded({storedEntry(67, QJsonObject{{u"modifications"_s, u"m"_s}})});
    QVERIFY(item);
    QVERIFY(item->setValue(PropertyId(67), QByteArray("{}")));
    QCOMPARE(item->KeyValueItem::type(storedName(67)), 4000);
    // A value of a type beyond the built-in ones changes no type.
    QVERIFY(item->insert(u"text"_s, u"t"_s, item->stringType()));
    QVERIFY(item->replace(u"text"_s, u"text"_s, {}, item->stringType()));
    QVERIFY(item->setValue(u"text"_s, QVariant::fromValue(ResourceReferenceSPtr())));
    QCOMPARE(item->KeyValueItem::type(u"text"_s), 10);
}

void TestKeyValueItem::setValueOfAMissingKeyWarns()
{
    const auto item = loaded({});
    QVERIFY(item);
    const LogCapture log;
    QVERIFY(!item->setValue(u"missing"_s, 1));
    QCOMPARE(log.warnings(), QStringList(u"Cannot update the non-existing key \"missing\""_s));
}

void TestKeyValueItem::setValueOnAListTakesTextsAndPositions()
{
    const QStringList texts = PropertySetCreator::listPropertiesData().value(PropertyId(44));
    const auto item = loaded({storedEntry(44, 0)});
    QVERIFY(item);
    const Spies spies(item.get());
    QVERIFY(item->setValue(PropertyId(44), texts.at(2)));
    QCOMPARE(item->value(PropertyId(44)), QVariant(texts.at(2)));
    QVERIFY(item->setValue(PropertyId(44), 1));
    QCOMPARE(item->value(PropertyId(44)), QVariant(texts.at(1)));
    QCOMPARE(item->KeyValueItem::type(storedName(44)), 1000);
    QCOMPARE(spies.valueChanged.count(), 2);
    QCOMPARE(spies.valueChanged.at(1), (QVariantList{storedName(44), texts.at(1), texts.at(2)}));
}

void TestKeyValueItem::setValueOnAListRefusesOtherTexts()
{
    const auto item = loaded({storedEntry(44, 0)});
    QVERIFY(item);
    const QVariant before = item->value(PropertyId(44));
    const Spies spies(item.get());
    const LogCapture log;
    QVERIFY(!item->setValue(PropertyId(44), u"Cauldron"_s));
    QVERIFY(!item->setValue(PropertyId(44), 99));
    QVERIFY(log.warnings().contains(u"Can't find correct value for \"%1\""_s.arg(storedName(44))));
    QCOMPARE(item->value(PropertyId(44)), before);
    QCOMPARE(spies.counts(), kSilence);
}

void TestKeyValueItem::setValueOnAnEditableListTakesAnyText()
{
    KeyValueItem item(BaseItemType::Unknown);
    ORV_VERIFY_OK(
        item.assignFromJson(searchCell({storedEntry(130, 0)}), ValidationOption::SkipTypeValidation));
    QVERIFY(item.setValue(PropertyId(130), u"Mine @ W | N-term"_s));
    QCOMPARE(item.value(PropertyId(130)), QVariant(u"Mine @ W | N-term"_s));
}

void TestKeyValueItem::setValueOnOtherListsTakesNumbersAndKeys()
{
    KeyValueItem item(BaseItemType::Unknown);
    ORV_VERIFY_OK(item.assignFromJson(searchCell({storedEntry(220, 1), storedEntry(306, u"Fast"_s)}),
                                      ValidationOption::SkipTypeValidation));
    QVERIFY(item.setValue(PropertyId(220), 2));
    QCOMPARE(item.value(PropertyId(220)), QVariant(u"2"_s));
    QVERIFY(item.setValue(PropertyId(306), u"Standard"_s));
    QCOMPARE(item.value(PropertyId(306)), QVariant(u"Standard"_s));
}

void TestKeyValueItem::setValueOnAListNeedsKeysAndAKnownName()
{
    const auto item = loaded({storedEntry(44, 0)});
    QVERIFY(item);
    QVERIFY(item->replace(storedName(44), storedName(44), 0, 1000));
    const LogCapture log;
    QVERIFY(!item->setValue(PropertyId(44), 1));
    QCOMPARE(log.warnings(),
             QStringList(u"Cannot change an empty list with the key \"%1\""_s.arg(storedName(44))));

    auto *set = const_cast<KPropertySet *>(item->propertySet());
    auto *unknown = new KProperty("mine", u"a"_s, {}, {}, KProperty::ValueFromList);
    unknown->setListData({u"a"_s}, {u"a"_s});
    set->addProperty(unknown);
    QVERIFY(!item->setValue(u"mine"_s, u"a"_s));
    QCOMPARE(log.warnings().constLast(), u"Unknown property  \"mine\""_s);
}

void TestKeyValueItem::optionsAreReadAndSet()
{
    const auto item = loaded({storedEntry(43, u"RK"_s)});
    QVERIFY(item);
    QVERIFY(item->setOption(storedName(43), "priority", 3));
    QCOMPARE(item->option(storedName(43), "priority"), QVariant(3));
    const LogCapture log;
    QVERIFY(!item->setOption(u"missing"_s, "priority", 3));
    QCOMPARE(log.warnings(), QStringList(u"Cannot update the non-existing key \"missing\""_s));
}

void TestKeyValueItem::theBaseUrlReachesReferences()
{
    const QUrl base = QUrl::fromLocalFile(u"/data/flow/"_s);
    const auto item = loaded({storedEntry(60, u"a.xml"_s), storedEntry(43, u"RK"_s)});
    QVERIFY(item);
    item->setBaseUrl(base);
    QCOMPARE(item->option(storedName(60), "baseUrl"), QVariant(base));
    QVERIFY(item->option(storedName(43), "baseUrl").isNull());
    const auto valueOf = [&item](PropertyConversionFlag flag) {
        return item->toJson(flag).value(u"properties"_s).toArray().at(0).toObject().value(u"value"_s);
    };
    QCOMPARE(valueOf(PropertyConversionFlag::KeepPaths), QJsonValue(u"a.xml"_s));
    QCOMPARE(valueOf(PropertyConversionFlag::AbsolutePaths), QJsonValue(u"/data/flow/a.xml"_s));
}

namespace {

QString glycansIn(const QJsonObject &savedCell)
{
    for (const auto value : savedCell.value(u"properties"_s).toArray()) {
        if (value.toObject().value(u"name"_s) == storedName(58))
            return value.toObject().value(u"value"_s).toObject().value(u"glycans"_s).toString();
    }
    return u"no glycans"_s;
}

} // namespace

void TestKeyValueItem::glycanDatabasesBecomeAbsoluteInACopy()
{
    const QJsonObject glycans{{u"glycans"_s, u"[human.txt] @ NGlycan"_s}};
    const auto item = loaded({storedEntry(58, glycans)});
    QVERIFY(item);
    item->setBaseUrl(QUrl::fromLocalFile(u"/data/flow/"_s));
    const QVariant before = item->value(PropertyId(58));
    QCOMPARE(glycansIn(item->toJson(PropertyConversionFlag::AbsolutePaths)),
             u"[file:///data/flow/human.txt] @ NGlycan"_s);
    QCOMPARE(item->value(PropertyId(58)), before);
    QCOMPARE(glycansIn(item->toJson(PropertyConversionFlag::KeepPaths)), u"[human.txt] @ NGlycan"_s);
}

void TestKeyValueItem::glycanDatabasesOfADocumentBecomeAbsolute()
{
    PropertyEditorUtils::updateGlycanDatabasesToAbsolute(static_cast<Content *>(nullptr), {});
    PropertyEditorUtils::updateGlycanDatabasesToAbsolute(static_cast<KeyValueItem *>(nullptr), {});
    const QJsonObject glycans{{u"glycans"_s, u"[human.txt] @ NGlycan"_s}};
    const QJsonObject document = Documents::document(
        {Documents::tab(u"Tab"_s, {u"Column"_s, u"Other"_s},
                        {searchCell({storedEntry(58, glycans)}), searchCell({storedEntry(43, u"K"_s)})})});
    Content content;
    ORV_VERIFY_OK(content.assignFromJson(document, {}));
    PropertyEditorUtils::updateGlycanDatabasesToAbsolute(&content, QUrl::fromLocalFile(u"/data/flow/"_s));
    const QJsonArray cells = Documents::parse(content.toJson(PropertyConversionFlag::KeepPaths))
                                 .value(u"tabs"_s)
                                 .toArray()
                                 .at(0)
                                 .toObject()
                                 .value(u"cells"_s)
                                 .toArray();
    QCOMPARE(glycansIn(cells.at(0).toObject()), u"[file:///data/flow/human.txt] @ NGlycan"_s);
}

void TestKeyValueItem::clearTellsOnlyOfWhatWasThere()
{
    const auto item = loaded({storedEntry(43, u"RK"_s)});
    QVERIFY(item);
    QSignalSpy counts(item.get(), &KeyValueItem::countChanged);
    item->clear();
    item->clear();
    QCOMPARE(counts.count(), 1);
    QCOMPARE(counts.constFirst(), QVariantList{0});
    QCOMPARE(item->count(), 0);
}

void TestKeyValueItem::propertiesAreMappedById()
{
    const auto item = loaded({storedEntry(43, u"RK"_s)});
    QVERIFY(item);
    QVERIFY(item->insert(u"mine"_s, 5, item->intType()));
    const QMultiMap<PropertyId, QVariant> map = item->propertiesMap();
    QCOMPARE(map.size(), item->count());
    QCOMPARE(map.value(PropertyId(43)), QVariant(u"RK"_s));
    const QVariantList others = map.values(PropertyId::NoProperty);
    QCOMPARE(others.size(), item->count() - 1);
    QVERIFY(std::ranges::all_of(others, [](const QVariant &value) { return !value.isValid(); }));
}

void TestKeyValueItem::scriptsSeeTheItem()
{
    const auto item = loaded({storedEntry(43, u"RK"_s)});
    QVERIFY(item);
    QCOMPARE(item->property("keys").toStringList(), item->keys());
    QCOMPARE(item->property("size").toInt(), item->count());
    QCOMPARE(item->stringType(), 10);
    QCOMPARE(item->intType(), 2);
    QCOMPARE(item->doubleType(), 6);
    const QMetaObject *meta = item->metaObject();
    for (const char *signature :
         {"insert(QString,QString,QVariant,int,QString)", "insert(QString,QVariant,int)", "remove(QString)",
          "contains(QString)", "setValue(QString,QVariant)", "setGroup(QString,QString)", "stringType()",
          "intType()", "doubleType()"})
        QVERIFY2(meta->indexOfMethod(signature) >= 0, signature);
    bool done = false;
    QVERIFY(QMetaObject::invokeMethod(item.get(), "setValue", Q_RETURN_ARG(bool, done),
                                      Q_ARG(QString, storedName(43)), Q_ARG(QVariant, u"K"_s)));
    QVERIFY(done);
    QCOMPARE(item->value(PropertyId(43)), QVariant(u"K"_s));
}

void TestKeyValueItem::theFirstSettingsOfAColumnAnswerForIt()
{
    const auto columnOf = [](const QJsonArray &cells, Content *content) {
        const Error error = content->assignFromJson(
            Documents::document({Documents::tab(u"Tab"_s, {u"Column"_s}, cells)}), {});
        return error.hasError() ? nullptr : content->groups().constFirst()->subGroup(0);
    };
    Content settings;
    const ItemSubGroup *column =
        columnOf({searchCell({storedEntry(43, u"RK"_s)}), searchCell({storedEntry(26, u"2"_s)})}, &settings);
    QVERIFY(column);
    QCOMPARE(column->firstValueOf(storedName(43)), QVariant(u"RK"_s));
    QVERIFY(!column->firstValueOf(storedName(26)).isValid());
    Content others;
    const ItemSubGroup *retired = columnOf({QJsonObject{{u"type"_s, u"SamplesProteins"_s}}}, &others);
    QVERIFY(retired);
    QVERIFY(!retired->firstValueOf(storedName(43)).isValid());
}

ORV_REGISTER_TEST(TestKeyValueItem)
#include "TestKeyValueItem.moc"
