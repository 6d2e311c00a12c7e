// Every function that edits a cell tells of it, so that who keeps cells and documents alike needs no list of
// functions.
#include "LogCapture.h"
#include "OrvTest.h"
#include "TableCells.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/IntactOptionsTableItem.h>
#include <orv/propertyeditor/content/IntactProteinsTableItem.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/OligoMassesTableItem.h>
#include <orv/propertyeditor/content/OligoProteinsTableItem.h>
#include <orv/propertyeditor/content/ProteinsTableItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/content/SequenceDatabasesTableItem.h>
#include <orv/propertyeditor/content/UnsupportedItem.h>

#include <QSignalSpy>

#include <functional>
#include <memory>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;
using namespace TableCells;

namespace {

struct Case
{
    std::shared_ptr<BaseItem> item;
    std::function<void()> edit;
};

QString nameOf(PropertyId id)
{
    return PropertiesNames::internalNameForType(id);
}

QJsonObject setting(PropertyId id, const QJsonValue &value, const QString &group)
{
    QJsonObject json = entry(nameOf(id), value);
    json.insert(u"group"_s, group);
    return json;
}

/// A row for an edit of a cell that was loaded from \a json.
template<typename Item>
void addRow(const char *name, const std::shared_ptr<Item> &item, const QJsonObject &json,
            const std::function<void(Item &)> &edit)
{
    if (item->assignFromJson(json, ValidationOption::SkipTypeValidation))
        qFatal("The test's cell is broken");
    QTest::newRow(name) << Case{item, [item, edit] { edit(*item); }};
}

void addSettingsRow(const char *name, const std::function<void(KeyValueItem &)> &edit)
{
    const QJsonObject json = cell(u"Senthia"_s, {setting(PropertyId::CreateXicCache, true, u"One"_s),
                                                 setting(PropertyId::XicMode, u"Standard"_s, u"One"_s),
                                                 setting(PropertyId::UiLayout, u"a.ini"_s, u"Two"_s)});
    addRow<KeyValueItem>(name, std::make_shared<KeyValueItem>(BaseItemType::Senthia), json, edit);
}

void addTableRow(const char *name, const std::function<void(TableItem &)> &edit)
{
    const QJsonObject json =
        cell(u"Isotope"_s, {entry(u"Isotope"_s, node({u"Name"_s, u"Mass"_s}, {{u"a"_s, 1}}))});
    addRow<TableItem>(name, std::make_shared<TableItem>(), json, edit);
}

template<typename Item>
void addEmptyRow(const char *name, const std::function<void(Item &)> &edit)
{
    auto item = std::make_shared<Item>();
    item->clear();
    QTest::newRow(name) << Case{item, [item, edit] { edit(*item); }};
}

} // namespace

class TestCellChanges : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void editsAreTold_data();
    void editsAreTold();
    void whatIsRefusedIsNoEdit();

private:
    static void addSettings();
    static void addTables();
};

void TestCellChanges::addSettings()
{
    const QString key = nameOf(PropertyId::CreateXicCache);
    addSettingsRow("insert", [](KeyValueItem &item) { item.insert(u"New"_s, u"One"_s, 1, 2); });
    addSettingsRow("replace", [key](KeyValueItem &item) { item.replace(key, u"New"_s, 1, 2); });
    addSettingsRow("remove", [key](KeyValueItem &item) { item.remove(key); });
    addSettingsRow("set a value", [key](KeyValueItem &item) { item.setValue(key, false); });
    addSettingsRow("set a value of a list",
                   [](KeyValueItem &item) { item.setValue(PropertyId::XicMode, u"Fast"_s); });
    addSettingsRow("set an option", [key](KeyValueItem &item) { item.setOption(key, "priority", 2); });
    addSettingsRow("move to a group", [key](KeyValueItem &item) { item.setGroup(key, u"Two"_s); });
    addSettingsRow("set a caption", [](KeyValueItem &item) { item.setGroupCaption(u"one"_s, u"Uno"_s); });
    addSettingsRow("remove a group", [](KeyValueItem &item) { item.removeGroup(u"two"_s); });
    addSettingsRow("move a group", [](KeyValueItem &item) { item.moveGroup(u"Two"_s, {}); });
    addSettingsRow("clear settings", [](KeyValueItem &item) { item.clear(); });
    addSettingsRow("load settings", [](KeyValueItem &item) {
        ORV_VERIFY_OK(item.assignFromJson(cell(u"Senthia"_s, {}), ValidationOption::SkipTypeValidation));
    });
}

void TestCellChanges::addTables()
{
    addTableRow("add a column", [](TableItem &item) { item.addColumn(u"New"_s); });
    addTableRow("remove a column", [](TableItem &item) { item.removeColumn(0); });
    addTableRow("rename a column", [](TableItem &item) { item.setColumnName(0, u"New"_s); });
    addTableRow("add a row", [](TableItem &item) { item.addRow({}); });
    addTableRow("remove a row", [](TableItem &item) { item.removeRow(0); });
    addTableRow("set a row", [](TableItem &item) { item.setRowValues(0, {u"b"_s, 2}); });
    addTableRow("set a cell", [](TableItem &item) { item.setValue(0, 0, u"b"_s); });
    addTableRow("clear a table", [](TableItem &item) { item.clear(); });
    addEmptyRow<OligoMassesTableItem>("masses", [](auto &item) { item.setDeltaMasses({}); });
    addEmptyRow<OligoMassesTableItem>("a tolerance", [](auto &item) { item.setMassTolerance(5); });
    addEmptyRow<OligoMassesTableItem>("its unit", [](auto &item) { item.setMassToleranceUnit(u"ppm"_s); });
    addEmptyRow<OligoMassesTableItem>("tolerances", [](auto &item) { item.setTolerances({}); });
    addEmptyRow<OligoMassesTableItem>("impurities", [](auto &item) { item.setImpurities({}); });
    addEmptyRow<IntactProteinsTableItem>("intact proteins", [](auto &item) { item.setRoot({}); });
    addEmptyRow<OligoProteinsTableItem>("molecules", [](auto &item) { item.setRoot({}); });
    addEmptyRow<IntactOptionsTableItem>("options", [](auto &item) { item.setRoot({}); });
    addEmptyRow<ProteinsTableItem>("proteins", [](auto &item) { item.setContent({}); });
    addEmptyRow<SamplesTableItem>("samples", [](auto &item) { item.setContent({}); });
    addEmptyRow<SamplesTableItem>("samples' metadata", [](auto &item) { item.reloadMetadata({}, {}); });
    addEmptyRow<SequenceDatabasesTableItem>("databases", [](auto &item) { item.setItems({}); });
    const auto unsupported = std::make_shared<UnsupportedItem>(BaseItemType::Disulfide);
    QTest::newRow("clear an unsupported cell") << Case{unsupported, [unsupported] { unsupported->clear(); }};
}

void TestCellChanges::editsAreTold_data()
{
    QTest::addColumn<Case>("edited");
    addSettings();
    addTables();
}

void TestCellChanges::editsAreTold()
{
    QFETCH(Case, edited);
    QSignalSpy told(edited.item.get(), &BaseItem::changed);
    edited.edit();
    QVERIFY(!told.isEmpty());
}

void TestCellChanges::whatIsRefusedIsNoEdit()
{
    const LogCapture log;
    TableItem table;
    KeyValueItem settings(BaseItemType::Senthia);
    QSignalSpy ofTable(&table, &BaseItem::changed);
    QSignalSpy ofSettings(&settings, &BaseItem::changed);
    QVERIFY(!table.setValue(3, 3, 1));
    QVERIFY(!table.removeRow(3));
    QVERIFY(!settings.setValue(u"None"_s, 1));
    QVERIFY(!settings.remove(u"None"_s));
    QVERIFY(ofTable.isEmpty() && ofSettings.isEmpty());
}

ORV_REGISTER_TEST(TestCellChanges)
#include "TestCellChanges.moc"
