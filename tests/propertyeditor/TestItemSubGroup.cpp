#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>

#include <QSignalSpy>

using namespace orv;
using namespace orv::PropertyEditor;

class TestItemSubGroup : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void loadsCellsInOrder();
    void takesTheNameAsItStands();
    void announcesEveryItemAndThenTheReset();
    void anUnknownTypeIsRefused();
    void aMissingTypeIsRefusedWithoutAWarning();
    void anUnknownTypeIsKeptWithoutTypeValidation();
    void anEmptyObjectStopsTheLoadWithoutAMessage_data();
    void anEmptyObjectStopsTheLoadWithoutAMessage();
    void itemsBeforeABadCellStay();
    void aLoadClearsFirst();
    void findsItemsByTheirOwnType();
    void addsItemsOfEveryType();
    void refusesTypesBeyondTheTable();
    void anItemOutsideTheRangeIsNull();
    void removesByIndex();
    void removesByPointer();
    void refusesToRemoveWhatIsNotThere();
    void theRemovedItemLivesWhileItsSignalsRun();
    void setNameRefusesAnEmptyName();
    void copiesShareTheItems();
    void clearEmitsNothing();
    void scriptsCanRemoveAndClear();
};

namespace {

QJsonArray cells(const QStringList &types)
{
    QJsonArray array;
    for (const QString &type : types)
        array.append(Documents::cell(type));
    return array;
}

} // namespace

void TestItemSubGroup::loadsCellsInOrder()
{
    ItemSubGroup column;
    const QJsonArray json = cells({QStringLiteral("Samples"), QStringLiteral("Masses")});
    ORV_VERIFY_OK(column.assignFromJson(json, QStringLiteral("c"), {}));
    QCOMPARE(column.count(), 2);
    QVERIFY(!column.isEmpty());
    QCOMPARE(column.items().at(1)->type(), BaseItemType::Masses);
    QCOMPARE(column.item(0)->type(), BaseItemType::Samples);
    QCOMPARE(column.toJson(PropertyConversionFlag::KeepPaths), json);
    QCOMPARE(column.property("count").toInt(), 2);
    QCOMPARE(column.property("size").toInt(), 2);
}

void TestItemSubGroup::takesTheNameAsItStands()
{
    ItemSubGroup column;
    ORV_VERIFY_OK(column.assignFromJson({}, QStringLiteral("name"), {}));
    QCOMPARE(column.name(), QStringLiteral("name"));
    ORV_VERIFY_OK(column.assignFromJson({}, QString(), {}));
    QCOMPARE(column.name(), QString());
}

void TestItemSubGroup::announcesEveryItemAndThenTheReset()
{
    ItemSubGroup column;
    QStringList events;
    connect(&column, &ItemSubGroup::itemAdded, this,
            [&](BaseItem *item) { events.append(QStringLiteral("added ") + item->typeString()); });
    connect(&column, &ItemSubGroup::reset, this, [&] { events.append(QStringLiteral("reset")); });
    ORV_VERIFY_OK(
        column.assignFromJson(cells({QStringLiteral("Samples"), QStringLiteral("Karvon")}), {}, {}));
    QCOMPARE(events, QStringList({QStringLiteral("added Samples"), QStringLiteral("added Karvon"),
                                  QStringLiteral("reset")}));
}

void TestItemSubGroup::anUnknownTypeIsRefused()
{
    const LogCapture log;
    ItemSubGroup column;
    const Error error = column.assignFromJson(cells({QStringLiteral("Nonsense")}), {}, {});
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QCOMPARE(error.errorMessage(), QStringLiteral("Type \"Nonsense\" is not supported."));
    QCOMPARE(log.warnings(), QStringList(QStringLiteral("Can't find type \"Nonsense\"")));
}

void TestItemSubGroup::aMissingTypeIsRefusedWithoutAWarning()
{
    const LogCapture log;
    ItemSubGroup column;
    const QJsonArray json{QJsonObject{{QStringLiteral("name"), QStringLiteral("n")}}};
    const Error error = column.assignFromJson(json, {}, {});
    QCOMPARE(error.code(), ErrorCode::InvalidContent);
    QCOMPARE(error.errorMessage(), QStringLiteral("Type \"\" is not supported."));
    QVERIFY(log.warnings().isEmpty());
}

void TestItemSubGroup::anUnknownTypeIsKeptWithoutTypeValidation()
{
    const LogCapture log;
    ItemSubGroup column;
    const QJsonArray json = cells({QStringLiteral("Nonsense")});
    ORV_VERIFY_OK(column.assignFromJson(json, {}, ValidationOption::SkipTypeValidation));
    QCOMPARE(column.item(0)->type(), BaseItemType::Unknown);
    QCOMPARE(Documents::withoutStamps(column.toJson(PropertyConversionFlag::KeepPaths)), QJsonValue(json));
}

void TestItemSubGroup::anEmptyObjectStopsTheLoadWithoutAMessage_data()
{
    QTest::addColumn<QJsonArray>("cells");
    QTest::newRow("empty object") << QJsonArray{QJsonObject()};
    QTest::newRow("number") << QJsonArray{1};
    QTest::newRow("null") << QJsonArray{QJsonValue()};
    QTest::newRow("array") << QJsonArray{QJsonArray{1}};
}

void TestItemSubGroup::anEmptyObjectStopsTheLoadWithoutAMessage()
{
    QFETCH(QJsonArray, cells);
    ItemSubGroup column;
    QSignalSpy reset(&column, &ItemSubGroup::reset);
    const Error error = column.assignFromJson(cells, {}, {});
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.errorMessage(), QString());
    QCOMPARE(reset.count(), 0);
}

void TestItemSubGroup::itemsBeforeABadCellStay()
{
    ItemSubGroup column;
    QJsonArray json = cells({QStringLiteral("Samples")});
    json.append(QJsonObject());
    QVERIFY(column.assignFromJson(json, {}, {}).hasError());
    QCOMPARE(column.count(), 1);
}

void TestItemSubGroup::aLoadClearsFirst()
{
    ItemSubGroup column;
    ORV_VERIFY_OK(column.assignFromJson(cells({QStringLiteral("Samples")}), {}, {}));
    ORV_VERIFY_OK(column.assignFromJson(cells({QStringLiteral("Masses")}), {}, {}));
    QCOMPARE(column.count(), 1);
    QCOMPARE(column.item(0)->type(), BaseItemType::Masses);
}

void TestItemSubGroup::findsItemsByTheirOwnType()
{
    ItemSubGroup column;
    column.setType(BaseItemType::Masses);
    QVERIFY(column.addItem(BaseItemType::Samples));
    QVERIFY(column.addItem(BaseItemType::Masses));
    QVERIFY(column.addItem(BaseItemType::Samples));
    QCOMPARE(column.findItems(BaseItemType::Samples), QList<BaseItem *>({column.item(0), column.item(2)}));
    QVERIFY(column.findItems(BaseItemType::Karvon).isEmpty());
}

void TestItemSubGroup::addsItemsOfEveryType()
{
    for (const BaseItemType type : BaseItem::typeNameMap().keys()) {
        ItemSubGroup column;
        QSignalSpy added(&column, &ItemSubGroup::itemAdded);
        QVERIFY(column.addItem(type));
        QCOMPARE(added.count(), 1);
        QCOMPARE(column.item(0)->type(), type);
    }
}

void TestItemSubGroup::refusesTypesBeyondTheTable()
{
    const LogCapture log;
    ItemSubGroup column;
    QVERIFY(!column.addItem(BaseItemType(26)));
    QVERIFY(!column.addItem(BaseItemType(-1)));
    QCOMPARE(column.count(), 0);
    QCOMPARE(log.warnings().size(), 2);
    QVERIFY(log.warnings().first().startsWith(QStringLiteral("Failed to create a new item of type")));
}

void TestItemSubGroup::anItemOutsideTheRangeIsNull()
{
    const LogCapture log;
    const ItemSubGroup column;
    QVERIFY(!column.item(0));
    QVERIFY(!column.item(-1));
    QCOMPARE(log.warnings(), QStringList({QStringLiteral("Index is out of bounds"),
                                          QStringLiteral("Index is out of bounds")}));
}

void TestItemSubGroup::removesByIndex()
{
    ItemSubGroup column;
    QVERIFY(column.addItem(BaseItemType::Samples));
    QVERIFY(column.addItem(BaseItemType::Masses));
    QStringList events;
    connect(&column, qOverload<int>(&ItemSubGroup::itemRemoved), this,
            [&](int index) { events.append(QStringLiteral("index %1").arg(index)); });
    connect(&column, qOverload<BaseItem *>(&ItemSubGroup::itemRemoved), this,
            [&](BaseItem *item) { events.append(item->typeString()); });
    QVERIFY(column.removeItem(1));
    QCOMPARE(events, QStringList({QStringLiteral("index 1"), QStringLiteral("Masses")}));
    QCOMPARE(column.count(), 1);
    QCOMPARE(column.item(0)->type(), BaseItemType::Samples);
}

void TestItemSubGroup::removesByPointer()
{
    ItemSubGroup column;
    QVERIFY(column.addItem(BaseItemType::Samples));
    QVERIFY(column.addItem(BaseItemType::Masses));
    QVERIFY(column.removeItem(column.item(0)));
    QCOMPARE(column.item(0)->type(), BaseItemType::Masses);
}

void TestItemSubGroup::refusesToRemoveWhatIsNotThere()
{
    const LogCapture log;
    ItemSubGroup column;
    ItemSubGroup other;
    QVERIFY(other.addItem(BaseItemType::Samples));
    QVERIFY(!column.removeItem(0));
    QVERIFY(!column.removeItem(-1));
    QVERIFY(!column.removeItem(other.item(0)));
    QVERIFY(!column.removeItem(nullptr));
    QCOMPARE(log.warnings(), QStringList({QStringLiteral("Index is out of bounds"),
                                          QStringLiteral("Index is out of bounds")}));
}

void TestItemSubGroup::theRemovedItemLivesWhileItsSignalsRun()
{
    ItemSubGroup column;
    QVERIFY(column.addItem(BaseItemType::Samples));
    QPointer<BaseItem> item = column.item(0);
    bool alive = false;
    int countWhileSignalled = -1;
    connect(&column, qOverload<BaseItem *>(&ItemSubGroup::itemRemoved), this, [&](BaseItem *removed) {
        alive = item && item == removed;
        countWhileSignalled = column.count();
    });
    QVERIFY(column.removeItem(0));
    QVERIFY(alive);
    QCOMPARE(countWhileSignalled, 0);
    QVERIFY(!item);
}

void TestItemSubGroup::setNameRefusesAnEmptyName()
{
    const LogCapture log;
    ItemSubGroup column;
    QVERIFY(column.setName(QStringLiteral("a")));
    QVERIFY(!column.setName({}));
    QCOMPARE(column.name(), QStringLiteral("a"));
    QCOMPARE(log.warnings(), QStringList(QStringLiteral("Cannot assign an empty group name")));
}

void TestItemSubGroup::copiesShareTheItems()
{
    ItemSubGroup column;
    const ItemSubGroup copy(column);
    ItemSubGroup assigned;
    assigned = column;
    QVERIFY(column.addItem(BaseItemType::Samples));
    QCOMPARE(copy.count(), 1);
    QCOMPARE(assigned.item(0), column.item(0));
}

void TestItemSubGroup::clearEmitsNothing()
{
    ItemSubGroup column;
    QVERIFY(column.addItem(BaseItemType::Samples));
    QSignalSpy removed(&column, qOverload<int>(&ItemSubGroup::itemRemoved));
    QSignalSpy reset(&column, &ItemSubGroup::reset);
    column.clear();
    QVERIFY(column.isEmpty());
    QCOMPARE(removed.count() + reset.count(), 0);
}

void TestItemSubGroup::scriptsCanRemoveAndClear()
{
    ItemSubGroup column;
    QVERIFY(column.addItem(BaseItemType::Samples));
    QVERIFY(column.addItem(BaseItemType::Samples));
    bool removed = false;
    QVERIFY(QMetaObject::invokeMethod(&column, "removeItem", Q_RETURN_ARG(bool, removed), Q_ARG(int, 0)));
    QVERIFY(removed);
    QVERIFY(QMetaObject::invokeMethod(&column, "clear"));
    QCOMPARE(column.count(), 0);
}

ORV_REGISTER_TEST(TestItemSubGroup)

#include "TestItemSubGroup.moc"
