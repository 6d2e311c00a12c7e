#include "OrvTest.h"
#include "TableCells.h"

#include <orv/propertyeditor/content/DetachedGlycanTableItem.h>
#include <orv/propertyeditor/content/GlycanOptionsItem.h>
#include <orv/propertyeditor/content/IntactOptionsTableItem.h>
#include <orv/propertyeditor/content/IsotopeTableItem.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/OligoOptionsTableItem.h>
#include <orv/propertyeditor/content/OligoProteinsTableItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

using TableCells::cell;
using TableCells::entry;
using TableCells::node;

using MakeItem = std::function<std::unique_ptr<BaseTableItem>()>;

/// The table cells that add little more than their property.
class TestPlainTableItems : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aNewItemHasItsTypeAndProperty_data();
    void aNewItemHasItsTypeAndProperty();
    void aColumnMakesTheClassOfItsType_data();
    void aColumnMakesTheClassOfItsType();
    void aDefaultCellIsReadAndWritten_data();
    void aDefaultCellIsReadAndWritten();
    void theTableIsGivenAndTakenWhole();
    void glycanOptionsStayAsTheyAreWithoutAGlycanText();
};

namespace {

template<typename Item>
MakeItem make()
{
    return [] { return std::make_unique<Item>(); };
}

template<typename Item>
void checkRoot(const QString &type)
{
    Item item;
    RowNode table;
    table.addData(QStringList{u"Name"_s});
    table.addNewChild({u"a"_s});
    item.setRoot(table);
    QVERIFY(item.root() == table);
    QCOMPARE(item.toJson(PropertyConversionFlag::KeepPaths),
             cell(type, {entry(type, node({u"Name"_s}, {{u"a"_s}}))}));
}

} // namespace

void TestPlainTableItems::aNewItemHasItsTypeAndProperty_data()
{
    QTest::addColumn<MakeItem>("make");
    QTest::addColumn<QString>("name"); // of the type and of the property alike
    QTest::newRow("released glycans") << make<DetachedGlycanTableItem>() << u"DetachedGlycans"_s;
    QTest::newRow("glycan options") << make<GlycanOptionsItem>() << u"GlycanOptions"_s;
    QTest::newRow("intact options") << make<IntactOptionsTableItem>() << u"IntactOptions"_s;
    QTest::newRow("isotopes") << make<IsotopeTableItem>() << u"Isotope"_s;
    QTest::newRow("oligo options") << make<OligoOptionsTableItem>() << u"OligoOptions"_s;
    QTest::newRow("oligo molecules") << make<OligoProteinsTableItem>() << u"OligoMolecules"_s;
}

void TestPlainTableItems::aNewItemHasItsTypeAndProperty()
{
    QFETCH(const MakeItem, make);
    QFETCH(const QString, name);
    const auto item = make();
    QCOMPARE(item->typeString(), name);
    QCOMPARE(item->toJson(PropertyConversionFlag::KeepPaths), cell(name, {entry(name, node({}))}));
}

void TestPlainTableItems::aColumnMakesTheClassOfItsType_data()
{
    aNewItemHasItsTypeAndProperty_data();
}

void TestPlainTableItems::aColumnMakesTheClassOfItsType()
{
    QFETCH(const MakeItem, make);
    QFETCH(const QString, name);
    ItemSubGroup column;
    QVERIFY(column.addItem(BaseItem::typeFromString(name)));
    QCOMPARE(column.item(0)->metaObject(), make()->metaObject());
    QCOMPARE(column.item(0)->typeString(), name);
}

void TestPlainTableItems::aDefaultCellIsReadAndWritten_data()
{
    aNewItemHasItsTypeAndProperty_data();
}

void TestPlainTableItems::aDefaultCellIsReadAndWritten()
{
    QFETCH(const MakeItem, make);
    QFETCH(const QString, name);
    const auto item = make();
    const QJsonObject json = PropertyEditorJsonUtils::defaultJsonContents(item->type());
    ORV_VERIFY_OK(item->assignFromJson(json, {}));
    QVERIFY(item->columnCount() > 0);
    item->setBaseUrl(QUrl(u"file:///lab/"_s));
    QCOMPARE(item->toJson(PropertyConversionFlag::KeepPaths), json);
    QCOMPARE(item->toJson(PropertyConversionFlag::AbsolutePaths), json);
}

void TestPlainTableItems::theTableIsGivenAndTakenWhole()
{
    checkRoot<IntactOptionsTableItem>(u"IntactOptions"_s);
    checkRoot<OligoProteinsTableItem>(u"OligoMolecules"_s);
}

void TestPlainTableItems::glycanOptionsStayAsTheyAreWithoutAGlycanText()
{
    // Paths are looked for in the cell itself, not in its table.
    const QJsonObject json =
        cell(u"GlycanOptions"_s, {entry(u"GlycanOptions"_s, node({u"Library"_s}, {{u"[glycans.txt]"_s}}))});
    GlycanOptionsItem item;
    ORV_VERIFY_OK(item.assignFromJson(json, {}));
    item.setBaseUrl(QUrl(u"file:///lab/"_s));
    QCOMPARE(item.toJson(PropertyConversionFlag::AbsolutePaths), json);
}

ORV_REGISTER_TEST(TestPlainTableItems)
#include "TestPlainTableItems.moc"
