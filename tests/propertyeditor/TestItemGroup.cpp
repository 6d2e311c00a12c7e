#include "Documents.h"
#include "LogCapture.h"
#include "OrvTest.h"

#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>

#include <QSignalSpy>

using namespace orv;
using namespace orv::PropertyEditor;

class TestItemGroup : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void splitsCellsIntoColumnsAndBack();
    void unevenColumnsLoadButSaveAsAnEmptyObject();
    void aLongerColumnLosesItsLastCells();
    void theLastCellGivesAColumnItsType();
    void aColumnWithoutCellsIsOfUnknownType();
    void malformedTabsAreRefused_data();
    void malformedTabsAreRefused();
    void aRefusedTabStaysAsItWas();
    void cellsWithoutColumnsAreRefused();
    void aTabWithoutColumnsWritesEmptyCells();
    void aBadCellLeavesTheColumnsBeforeIt();
    void aBadCellIsNamedWithItsPlace();
    void announcesEveryColumnAndThenTheReset();
    void emptyNamesAreTakenFromAFile();
    void columnNamesMayRepeat();
    void addSubGroupRefusesAnEmptyName();
    void setNameRefusesAnEmptyName();
    void removesByIndexWithFourSignals();
    void removesTheFirstOfAName();
    void removesByPointer();
    void refusesToRemoveWhatIsNotThere();
    void aSubGroupOutsideTheRangeIsNull();
    void findsSubGroupsByTheirType();
    void findsSubGroupsByTypeName_data();
    void findsSubGroupsByTypeName();
    void copiesShareTheColumns();
    void clearEmitsNothing();
    void namesAndSizeAreProperties();
    void unknownMembersAreReportedAsLost();
};

namespace {

QJsonObject cell(const char *type, const char *name = "")
{
    return Documents::cell(QString::fromLatin1(type), QString::fromLatin1(name));
}

QJsonObject tab(const QStringList &columns, const QJsonArray &cells)
{
    return Documents::tab(QStringLiteral("Tab"), columns, cells);
}

const QStringList kTwoColumns = {QStringLiteral("A"), QStringLiteral("B")};

QStringList cellNames(const QJsonArray &cells)
{
    QStringList names;
    for (const QJsonValue &value : cells)
        names.append(value.toObject().value(QStringLiteral("name")).toString());
    return names;
}

} // namespace

void TestItemGroup::splitsCellsIntoColumnsAndBack()
{
    const QJsonObject json = tab(
        kTwoColumns, {cell("Karvon", "0"), cell("Karvon", "1"), cell("Karvon", "2"), cell("Karvon", "3")});
    ItemGroup group;
    ORV_VERIFY_OK(group.assignFromJson(json, {}));
    QCOMPARE(cellNames(group.subGroup(0)->toJson(PropertyConversionFlag::KeepPaths)),
             QStringList({QStringLiteral("0"), QStringLiteral("2")}));
    QCOMPARE(cellNames(group.subGroup(1)->toJson(PropertyConversionFlag::KeepPaths)),
             QStringList({QStringLiteral("1"), QStringLiteral("3")}));
    QCOMPARE(Documents::withoutStamps(group.toJson(PropertyConversionFlag::KeepPaths)), QJsonValue(json));
}

void TestItemGroup::unevenColumnsLoadButSaveAsAnEmptyObject()
{
    const LogCapture log;
    ItemGroup group;
    ORV_VERIFY_OK(
        group.assignFromJson(tab(kTwoColumns, {cell("Karvon"), cell("Karvon"), cell("Karvon")}), {}));
    QCOMPARE(group.subGroup(0)->count(), 2);
    QCOMPARE(group.subGroup(1)->count(), 1);
    QVERIFY(!group.isRectangle());
    const QJsonObject json = group.toJson(PropertyConversionFlag::KeepPaths);
    QVERIFY(json.isEmpty());
    QCOMPARE(log.warnings(), QStringList(QStringLiteral("j is out of bounds")));

    ItemGroup reloaded;
    QCOMPARE(reloaded.assignFromJson(json, {}).code(), ErrorCode::MalformedStructure);
}

void TestItemGroup::aLongerColumnLosesItsLastCells()
{
    ItemGroup group;
    ORV_VERIFY_OK(group.assignFromJson(tab(kTwoColumns, {cell("Karvon", "0"), cell("Karvon", "1")}), {}));
    QVERIFY(group.isRectangle());
    QVERIFY(group.subGroup(1)->addItem(BaseItemType::Karvon));
    QVERIFY(!group.isRectangle());
    const QJsonObject json = group.toJson(PropertyConversionFlag::KeepPaths);
    QCOMPARE(cellNames(json.value(QStringLiteral("cells")).toArray()),
             QStringList({QStringLiteral("0"), QStringLiteral("1")}));
}

void TestItemGroup::theLastCellGivesAColumnItsType()
{
    ItemGroup group;
    BaseItemType announced = BaseItemType::Unknown;
    connect(&group, &ItemGroup::subGroupAdded, this, [&](ItemSubGroup *added) { announced = added->type(); });
    ORV_VERIFY_OK(group.assignFromJson(tab({QStringLiteral("A")}, {cell("Samples"), cell("Masses")}), {}));
    QCOMPARE(group.subGroup(0)->type(), BaseItemType::Masses);
    QCOMPARE(announced, BaseItemType::Masses);
}

void TestItemGroup::aColumnWithoutCellsIsOfUnknownType()
{
    ItemGroup group;
    ORV_VERIFY_OK(group.assignFromJson(tab(kTwoColumns, {cell("Samples")}), {}));
    QCOMPARE(group.subGroup(1)->type(), BaseItemType::Unknown);
    QVERIFY(group.subGroup(1)->isEmpty());
}

void TestItemGroup::malformedTabsAreRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("empty") << QByteArray("{}");
    QTest::newRow("no columns") << QByteArray(R"({"name":"n","cells":[]})");
    QTest::newRow("columns no array") << QByteArray(R"({"name":"n","cells":[],"columns":{}})");
    QTest::newRow("no name") << QByteArray(R"({"cells":[],"columns":[]})");
    QTest::newRow("name no string") << QByteArray(R"({"name":1,"cells":[],"columns":[]})");
    QTest::newRow("no cells") << QByteArray(R"({"name":"n","columns":[]})");
    QTest::newRow("cells no array") << QByteArray(R"({"name":"n","columns":[],"cells":"x"})");
}

void TestItemGroup::malformedTabsAreRefused()
{
    QFETCH(QByteArray, json);
    ItemGroup group;
    const Error error = group.assignFromJson(Documents::parse(json), {});
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.errorMessage(), QStringLiteral("JSON format is incorrect: columns || name || cells"));
}

void TestItemGroup::aRefusedTabStaysAsItWas()
{
    ItemGroup group;
    ORV_VERIFY_OK(group.assignFromJson(tab({QStringLiteral("A")}, {cell("Samples")}), {}));
    QVERIFY(group.assignFromJson({}, {}).hasError());
    QCOMPARE(group.name(), QStringLiteral("Tab"));
    QCOMPARE(group.subGroup(0)->count(), 1);
}

void TestItemGroup::cellsWithoutColumnsAreRefused()
{
    ItemGroup group;
    const Error error = group.assignFromJson(tab({}, {cell("Samples")}), {});
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.errorMessage(), QStringLiteral("JSON format is incorrect: columns || name || cells"));
}

void TestItemGroup::aTabWithoutColumnsWritesEmptyCells()
{
    ItemGroup group;
    QSignalSpy reset(&group, &ItemGroup::reset);
    const QJsonObject json = tab({}, {});
    ORV_VERIFY_OK(group.assignFromJson(json, {}));
    QVERIFY(group.isEmpty());
    QCOMPARE(reset.count(), 1);
    QCOMPARE(group.toJson(PropertyConversionFlag::KeepPaths), json);
}

void TestItemGroup::aBadCellLeavesTheColumnsBeforeIt()
{
    ItemGroup group;
    QSignalSpy reset(&group, &ItemGroup::reset);
    const Error error = group.assignFromJson(tab(kTwoColumns, {cell("Samples"), QJsonObject()}), {});
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.errorMessage(), QString());
    QCOMPARE(group.subGroupNames(), QStringList(QStringLiteral("A")));
    QCOMPARE(reset.count(), 0);
}

void TestItemGroup::aBadCellIsNamedWithItsPlace()
{
    ItemGroup group;
    const Error error = group.assignFromJson(
        tab(kTwoColumns, {cell("Samples"), cell("Samples"), cell("Samples"), QJsonObject()}), {});
    QCOMPARE(error.details(), QStringList(QStringLiteral("Column 2 (\"B\"), row 2.")));
}

void TestItemGroup::announcesEveryColumnAndThenTheReset()
{
    ItemGroup group;
    QStringList events;
    connect(&group, &ItemGroup::subGroupAdded, this,
            [&](ItemSubGroup *added) { events.append(QStringLiteral("added ") + added->name()); });
    connect(&group, &ItemGroup::subGroupCountChanged, this,
            [&](int count) { events.append(QStringLiteral("count %1").arg(count)); });
    connect(&group, &ItemGroup::reset, this, [&] { events.append(QStringLiteral("reset")); });
    ORV_VERIFY_OK(group.assignFromJson(tab(kTwoColumns, {}), {}));
    QCOMPARE(events,
             QStringList({QStringLiteral("added A"), QStringLiteral("count 1"), QStringLiteral("added B"),
                          QStringLiteral("count 2"), QStringLiteral("reset")}));
}

void TestItemGroup::emptyNamesAreTakenFromAFile()
{
    ItemGroup group;
    const QJsonObject json = Documents::tab({}, {QString()}, {cell("Samples")});
    ORV_VERIFY_OK(group.assignFromJson(json, {}));
    QCOMPARE(group.name(), QString());
    QCOMPARE(group.toJson(PropertyConversionFlag::KeepPaths), json);
}

void TestItemGroup::columnNamesMayRepeat()
{
    ItemGroup group;
    QVERIFY(group.addSubGroup(QStringLiteral("A"), BaseItemType::Samples));
    QVERIFY(group.addSubGroup(QStringLiteral("A"), BaseItemType::Masses));
    QCOMPARE(group.subGroupNames(), QStringList({QStringLiteral("A"), QStringLiteral("A")}));
    QCOMPARE(group.subGroup(1)->type(), BaseItemType::Masses);
}

void TestItemGroup::addSubGroupRefusesAnEmptyName()
{
    const LogCapture log;
    ItemGroup group;
    QVERIFY(!group.addSubGroup({}, BaseItemType::Samples));
    QVERIFY(group.isEmpty());
    QCOMPARE(log.warnings(), QStringList(QStringLiteral("Cannot add a new subgroup with an empty name")));
}

void TestItemGroup::setNameRefusesAnEmptyName()
{
    const LogCapture log;
    ItemGroup group;
    QVERIFY(group.setName(QStringLiteral("a")));
    QVERIFY(!group.setName({}));
    QCOMPARE(group.name(), QStringLiteral("a"));
    QCOMPARE(log.warnings(), QStringList(QStringLiteral("Cannot assign an empty group name")));
}

void TestItemGroup::removesByIndexWithFourSignals()
{
    ItemGroup group;
    QVERIFY(group.addSubGroup(QStringLiteral("A"), BaseItemType::Samples));
    QVERIFY(group.addSubGroup(QStringLiteral("B"), BaseItemType::Masses));
    QStringList events;
    connect(&group, qOverload<int>(&ItemGroup::subGroupRemoved), this,
            [&](int index) { events.append(QString::number(index)); });
    connect(&group, qOverload<const QString &>(&ItemGroup::subGroupRemoved), this,
            [&](const QString &name) { events.append(name); });
    connect(&group, qOverload<ItemSubGroup *>(&ItemGroup::subGroupRemoved), this,
            [&](ItemSubGroup *removed) { events.append(QStringLiteral("pointer ") + removed->name()); });
    connect(&group, &ItemGroup::subGroupCountChanged, this,
            [&](int count) { events.append(QStringLiteral("count %1").arg(count)); });
    QVERIFY(group.removeSubGroup(0));
    QCOMPARE(events, QStringList({QStringLiteral("0"), QStringLiteral("A"), QStringLiteral("pointer A"),
                                  QStringLiteral("count 1")}));
    QCOMPARE(group.subGroupNames(), QStringList(QStringLiteral("B")));
}

void TestItemGroup::removesTheFirstOfAName()
{
    ItemGroup group;
    QVERIFY(group.addSubGroup(QStringLiteral("A"), BaseItemType::Samples));
    QVERIFY(group.addSubGroup(QStringLiteral("A"), BaseItemType::Masses));
    QVERIFY(group.removeSubGroup(QStringLiteral("A")));
    QCOMPARE(group.subGroup(0)->type(), BaseItemType::Masses);
    QVERIFY(!group.removeSubGroup(QStringLiteral("a")));
}

void TestItemGroup::removesByPointer()
{
    ItemGroup group;
    QVERIFY(group.addSubGroup(QStringLiteral("A"), BaseItemType::Samples));
    QVERIFY(group.addSubGroup(QStringLiteral("B"), BaseItemType::Masses));
    QVERIFY(group.removeSubGroup(group.subGroup(1)));
    QCOMPARE(group.subGroupNames(), QStringList(QStringLiteral("A")));
}

void TestItemGroup::refusesToRemoveWhatIsNotThere()
{
    const LogCapture log;
    ItemGroup group;
    ItemSubGroup stranger;
    QVERIFY(!group.removeSubGroup(0));
    QVERIFY(!group.removeSubGroup(-1));
    QVERIFY(!group.removeSubGroup(QStringLiteral("A")));
    QVERIFY(!group.removeSubGroup(&stranger));
    QCOMPARE(log.warnings(), QStringList({QStringLiteral("SubGroup index is out of bounds"),
                                          QStringLiteral("SubGroup index is out of bounds")}));
}

void TestItemGroup::aSubGroupOutsideTheRangeIsNull()
{
    const LogCapture log;
    const ItemGroup group;
    QVERIFY(!group.subGroup(0));
    QVERIFY(!group.subGroup(-1));
    QCOMPARE(log.warnings().size(), 2);
    QCOMPARE(log.warnings().first(), QStringLiteral("SubGroup index is out of bounds"));
}

void TestItemGroup::findsSubGroupsByTheirType()
{
    ItemGroup group;
    QVERIFY(group.addSubGroup(QStringLiteral("A"), BaseItemType::Samples));
    QVERIFY(group.addSubGroup(QStringLiteral("B"), BaseItemType::Masses));
    QVERIFY(group.addSubGroup(QStringLiteral("C"), BaseItemType::Samples));
    // A column goes by its own type, whatever its cells are.
    QVERIFY(group.subGroup(0)->addItem(BaseItemType::Masses));
    QCOMPARE(group.subGroups(BaseItemType::Samples),
             QList<ItemSubGroup *>({group.subGroup(0), group.subGroup(2)}));
    QCOMPARE(group.subGroups().size(), 3);
}

void TestItemGroup::findsSubGroupsByTypeName_data()
{
    QTest::addColumn<QString>("typeName");
    QTest::addColumn<int>("count");
    QTest::newRow("known") << QStringLiteral("Samples") << 1;
    QTest::newRow("known, none there") << QStringLiteral("Karvon") << 0;
    QTest::newRow("unknown") << QStringLiteral("Nonsense") << 0;
    QTest::newRow("empty") << QString() << 0;
}

void TestItemGroup::findsSubGroupsByTypeName()
{
    QFETCH(QString, typeName);
    QFETCH(int, count);
    ItemGroup group;
    QVERIFY(group.addSubGroup(QStringLiteral("A"), BaseItemType::Samples));
    const QVariantList found = group.findSubGroups(typeName);
    QCOMPARE(found.size(), count);
    if (count > 0)
        QCOMPARE(found.first().value<ItemSubGroup *>(), group.subGroup(0));
}

void TestItemGroup::copiesShareTheColumns()
{
    ItemGroup group;
    const ItemGroup copy(group);
    ItemGroup assigned;
    assigned = group;
    QVERIFY(group.addSubGroup(QStringLiteral("A"), BaseItemType::Samples));
    QCOMPARE(copy.subGroup(0), group.subGroup(0));
    QCOMPARE(assigned.count(), 1);
}

void TestItemGroup::clearEmitsNothing()
{
    ItemGroup group;
    QVERIFY(group.addSubGroup(QStringLiteral("A"), BaseItemType::Samples));
    QSignalSpy removed(&group, qOverload<int>(&ItemGroup::subGroupRemoved));
    QSignalSpy count(&group, &ItemGroup::subGroupCountChanged);
    QSignalSpy reset(&group, &ItemGroup::reset);
    group.clear();
    QVERIFY(group.isEmpty());
    QCOMPARE(removed.count() + count.count() + reset.count(), 0);
}

void TestItemGroup::namesAndSizeAreProperties()
{
    ItemGroup group;
    ORV_VERIFY_OK(group.assignFromJson(tab(kTwoColumns, {}), {}));
    QCOMPARE(group.property("name").toString(), QStringLiteral("Tab"));
    QCOMPARE(group.property("subGroupNames").toStringList(), kTwoColumns);
    QCOMPARE(group.property("size").toInt(), 2);
    QVERIFY(group.contains(QStringLiteral("B")));
    QVERIFY(!group.contains(QStringLiteral("b")));
}

void TestItemGroup::unknownMembersAreReportedAsLost()
{
    QJsonObject json = tab({}, {});
    json.insert(QStringLiteral("colour"), QStringLiteral("red"));
    json.insert(QStringLiteral("columns"), QJsonArray{1, QStringLiteral("B")});
    LossCollector lost;
    ItemGroup group;
    ORV_VERIFY_OK(group.assignFromJson(json, {}, LoadContext(&lost, QStringLiteral("/tabs/3"))));
    QCOMPARE(lost.losses().size(), 2);
    QCOMPARE(lost.losses().at(0).path, QStringLiteral("/tabs/3/colour"));
    QCOMPARE(lost.losses().at(1).path, QStringLiteral("/tabs/3/columns/0"));
    QCOMPARE(group.subGroupNames(), QStringList({QString(), QStringLiteral("B")}));
}

ORV_REGISTER_TEST(TestItemGroup)

#include "TestItemGroup.moc"
