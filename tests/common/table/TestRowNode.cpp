#include "OrvTest.h"

#include <orv/table/RowNode.h>

using namespace orv;
using namespace Qt::StringLiterals;

class TestRowNode : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultOneIsEmpty();
    void clearingLeavesNothing();
    void clearingTheChildrenKeepsTheColumns();
    void childrenAreFoundByIndex();
    void whereThereIsNoChildIsNull_data();
    void whereThereIsNoChildIsNull();
    void aNewChildIsAsWideAsItsNode();
    void childrenKnowTheirPlace();
    void pointersToRowsStayWhenRowsComeAndGo();
    void deletingTakesTheChildAway();
    void entriesAreAppendedToTheNodeAlone();
    void textsAreAppended_data();
    void textsAreAppended();
    void aListMayBeAppendedToItself();
    void aColumnIsAddedToRootAndRows_data();
    void aColumnIsAddedToRootAndRows();
    void theValueOfANewColumnMayStandInTheTable();
    void aColumnIsRemovedEverywhere();
    void theLastOfTwoColumnsIsRemoved();
    void rowsTooShortForTheColumnStay();
    void anUnknownColumnIsNotRemoved();
    void cellsAreWrittenByIndex();
    void cellsAreWrittenByName();
    void whatIsNotThereReadsInvalid();
    void whatIsNotThereTakesNoValue();
    void columnsAreLookedUpAtTheRoot();
    void columnLookupsMayIgnoreCase();
    void theFirstOfTwoColumnsIsFound();
    void rowDataAreReplaced();
    void rowDataAreReadAsTexts();
};

namespace {

/// Two columns, three rows: one as wide as the header, one shorter, one longer.
RowNode table()
{
    RowNode node;
    node.addData(QStringList{u"Name"_s, u"Mass"_s});
    node.addNewChild({u"water"_s, 18.0106});
    node.addNewChild({u"short"_s});
    node.addNewChild({u"long"_s, 1.5, u"beyond"_s});
    return node;
}

VariantItems names(std::initializer_list<const char16_t *> texts)
{
    VariantItems items;
    for (const char16_t *text : texts)
        items.append(QString::fromUtf16(text));
    return items;
}

} // namespace

void TestRowNode::aDefaultOneIsEmpty()
{
    RowNode node;
    QVERIFY(node.isEmpty());
    QVERIFY(node.data.isEmpty());
    QCOMPARE(node.getChildListSize(), 0);
    QVERIFY(!node.parent());
    QCOMPARE(node.root(), &node);
    QVERIFY(node == RowNode());
}

void TestRowNode::clearingLeavesNothing()
{
    RowNode node = table();
    QVERIFY(!node.isEmpty());
    node.clear();
    QVERIFY(node.isEmpty());
    QVERIFY(node == RowNode());
    QVERIFY(node.addNewChildMatchRootDataSize());
}

void TestRowNode::clearingTheChildrenKeepsTheColumns()
{
    RowNode node = table();
    node.clearChildren();
    QCOMPARE(node.getChildListSize(), 0);
    QCOMPARE(node.data, names({u"Name", u"Mass"}));
    node.clearChildren();
    QCOMPARE(node.getChildListSize(), 0);
}

void TestRowNode::childrenAreFoundByIndex()
{
    RowNode node = table();
    QCOMPARE(node.getChildListSize(), 3);
    QCOMPARE(node.getChild(2)->getDataAt(0), QVariant(u"long"_s));
    QCOMPARE(node.getChildFirst(), node.getChild(0));
    QCOMPARE(std::as_const(node).getChildFirst(), node.getChild(0));
    QCOMPARE(std::as_const(node).getChild(1), node.getChild(1));
}

void TestRowNode::whereThereIsNoChildIsNull_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("before the first") << -1;
    QTest::newRow("behind the last") << 3;
    QTest::newRow("lowest") << std::numeric_limits<int>::min();
    QTest::newRow("highest") << std::numeric_limits<int>::max();
}

void TestRowNode::whereThereIsNoChildIsNull()
{
    QFETCH(int, index);
    RowNode node = table();
    QVERIFY(!node.getChild(index));
    QVERIFY(!std::as_const(node).getChild(index));
    QVERIFY(!RowNode().getChildFirst());
    QVERIFY(!std::as_const(*node.getChildFirst()).getChildFirst());
    node.deleteChild(index);
    QVERIFY(node == table());
}

void TestRowNode::aNewChildIsAsWideAsItsNode()
{
    RowNode node = table();
    RowNode *row = node.addNewChildMatchRootDataSize();
    QVERIFY(row);
    QCOMPARE(row, node.getChild(3));
    QCOMPARE(row->data, VariantItems({QVariant(), QVariant()}));
    QVERIFY(!row->getDataAt(0).isValid());
    QCOMPARE(node.getChild(2)->addNewChildMatchRootDataSize()->data.size(), 3);
    QCOMPARE(RowNode().addNewChildMatchRootDataSize()->data.size(), 0);
}

void TestRowNode::childrenKnowTheirPlace()
{
    RowNode node = table();
    RowNode *row = node.getChild(1);
    RowNode *below = row->addNewChildMatchRootDataSize();
    QCOMPARE(row->parent(), &node);
    QCOMPARE(below->parent(), row);
    QCOMPARE(below->root(), &node);
    QCOMPARE(std::as_const(*below).root(), &node);
    QCOMPARE(std::as_const(*below).parent(), row);
}

void TestRowNode::pointersToRowsStayWhenRowsComeAndGo()
{
    RowNode node = table();
    RowNode *row = node.getChild(1);
    for (int i = 0; i < 1000; ++i)
        node.addNewChildMatchRootDataSize();
    node.deleteChild(0);
    QCOMPARE(node.getChild(0), row);
    QCOMPARE(row->getDataAt(0), QVariant(u"short"_s));
    QCOMPARE(row->root(), &node);
}

void TestRowNode::deletingTakesTheChildAway()
{
    RowNode node = table();
    node.getChild(1)->addNewChildMatchRootDataSize();
    node.deleteChild(1);
    QCOMPARE(node.getChildListSize(), 2);
    QCOMPARE(node.getChild(0)->getDataAt(0), QVariant(u"water"_s));
    QCOMPARE(node.getChild(1)->getDataAt(0), QVariant(u"long"_s));
}

void TestRowNode::entriesAreAppendedToTheNodeAlone()
{
    RowNode node = table();
    node.addData(VariantItems{u"Name"_s, 3});
    QCOMPARE(node.data, VariantItems({u"Name"_s, u"Mass"_s, u"Name"_s, 3}));
    QCOMPARE(node.getChildFirst()->data.size(), 2);
}

void TestRowNode::textsAreAppended_data()
{
    QTest::addColumn<bool>("skipExisting");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("all") << false << QStringList{u"Name"_s, u"Mass"_s, u"Mass"_s, u"New"_s, u"New"_s};
    QTest::newRow("new ones") << true << QStringList{u"Name"_s, u"Mass"_s, u"New"_s};
}

void TestRowNode::textsAreAppended()
{
    QFETCH(bool, skipExisting);
    RowNode node = table();
    node.addData(QStringList{u"Mass"_s, u"New"_s, u"New"_s}, skipExisting);
    QTEST(node.getRowDataToStringList(), "expected");
    QCOMPARE(node.data.at(2).typeId(), int(QMetaType::QString));
    QCOMPARE(node.getChildFirst()->data.size(), 2);
    RowNode plain;
    plain.addData(QStringList{u"a"_s, u"a"_s});
    QCOMPARE(plain.data, names({u"a", u"a"}));
}

void TestRowNode::aListMayBeAppendedToItself()
{
    RowNode node = table();
    node.addData(node.data);
    QCOMPARE(node.data, names({u"Name", u"Mass", u"Name", u"Mass"}));
}

void TestRowNode::aColumnIsAddedToRootAndRows_data()
{
    QTest::addColumn<bool>("alignRows");
    QTest::addColumn<QStringList>("shorter");
    QTest::addColumn<QStringList>("longer");
    QTest::newRow("aligned") << true << QStringList{u"short"_s, QString(), u"x"_s}
                             << QStringList{u"long"_s, u"1.5"_s, u"x"_s, u"beyond"_s};
    QTest::newRow("as they are") << false << QStringList{u"short"_s, u"x"_s}
                                 << QStringList{u"long"_s, u"1.5"_s, u"beyond"_s, u"x"_s};
}

void TestRowNode::aColumnIsAddedToRootAndRows()
{
    QFETCH(bool, alignRows);
    RowNode node = table();
    node.addDataToRootAndResizeChildren(u"New"_s, u"x"_s, alignRows);
    QCOMPARE(node.data, names({u"Name", u"Mass", u"New"}));
    QCOMPARE(node.getChild(0)->data, VariantItems({u"water"_s, 18.0106, u"x"_s}));
    QTEST(node.getChild(1)->getRowDataToStringList(), "shorter");
    QTEST(node.getChild(2)->getRowDataToStringList(), "longer");
    RowNode byDefault = table();
    byDefault.addDataToRootAndResizeChildren(u"New"_s, u"x"_s);
    QCOMPARE(byDefault == node, alignRows);
}

void TestRowNode::theValueOfANewColumnMayStandInTheTable()
{
    RowNode node = table();
    node.addDataToRootAndResizeChildren(u"Copy"_s, node.getChild(1)->getDataAt(0));
    for (int row = 0; row < 3; ++row)
        QCOMPARE(node.getChild(row)->getDataAt(2), QVariant(u"short"_s));
    RowNode ofARow = table();
    ofARow.getChildFirst()->addDataToRootAndResizeChildren(u"New"_s, 1);
    QCOMPARE(ofARow.data.size(), 3);
    QCOMPARE(ofARow.getChild(2)->getDataAt(2), QVariant(1));
}

void TestRowNode::aColumnIsRemovedEverywhere()
{
    RowNode node = table();
    QVERIFY(node.removeColumn(u"Name"_s));
    QCOMPARE(node.data, names({u"Mass"}));
    QCOMPARE(node.getChild(0)->data, VariantItems({18.0106}));
    QVERIFY(node.getChild(1)->data.isEmpty());
    QCOMPARE(node.getChild(2)->data, VariantItems({1.5, u"beyond"_s}));
}

void TestRowNode::theLastOfTwoColumnsIsRemoved()
{
    RowNode node;
    node.addData(QStringList{u"a"_s, u"b"_s, u"a"_s, u"c"_s});
    node.addNewChild({1, 2, 3, 4});
    QVERIFY(node.removeColumn(u"a"_s));
    QCOMPARE(node.data, names({u"a", u"b", u"c"}));
    QCOMPARE(node.getChildFirst()->data, VariantItems({1, 2, 4}));
}

void TestRowNode::rowsTooShortForTheColumnStay()
{
    RowNode node = table();
    QVERIFY(node.removeColumn(u"Mass"_s));
    QCOMPARE(node.getChild(1)->data, names({u"short"}));
    QCOMPARE(node.getChild(2)->data, names({u"long", u"beyond"}));
}

void TestRowNode::anUnknownColumnIsNotRemoved()
{
    RowNode node = table();
    QVERIFY(!node.removeColumn(u"name"_s));
    QVERIFY(!node.removeColumn(QString()));
    QVERIFY(!RowNode().removeColumn(u"Name"_s));
    QVERIFY(node == table());
}

void TestRowNode::cellsAreWrittenByIndex()
{
    RowNode node = table();
    node.getChild(1)->getDataAt(0) = 7;
    QCOMPARE(std::as_const(node).getChild(1)->getDataAt(0), QVariant(7));
    node.getDataAt(1) = u"Weight"_s;
    QCOMPARE(node.getNameFromColumnIndex(1), u"Weight"_s);
}

void TestRowNode::cellsAreWrittenByName()
{
    RowNode node = table();
    RowNode *row = node.getChildFirst();
    row->getDataAt(u"Mass"_s) = 2.5;
    QCOMPARE(std::as_const(*row).getDataAt(u"Mass"_s), QVariant(2.5));
    QCOMPARE(row->getDataAt(1), QVariant(2.5));
    row->getDataAt(u"MASS"_s, true) = 3.5;
    QCOMPARE(std::as_const(*row).getDataAt(u"mass"_s, true), QVariant(3.5));
    QCOMPARE(node.getDataAt(u"Mass"_s), QVariant(u"Mass"_s));
    RowNode *below = row->addNewChildMatchRootDataSize();
    below->getDataAt(u"Mass"_s) = 4.5;
    QCOMPARE(below->getDataAt(1), QVariant(4.5));
}

void TestRowNode::whatIsNotThereReadsInvalid()
{
    RowNode node = table();
    RowNode *row = node.getChild(1);
    const RowNode &constRow = *row;
    QVERIFY(!row->getDataAt(-1).isValid() && !constRow.getDataAt(-1).isValid());
    QVERIFY(!row->getDataAt(1).isValid() && !constRow.getDataAt(1).isValid());
    QVERIFY(!row->getDataAt(u"Mass"_s).isValid() && !constRow.getDataAt(u"Mass"_s).isValid());
    QVERIFY(!row->getDataAt(u"none"_s).isValid() && !constRow.getDataAt(u"none"_s).isValid());
    QVERIFY(!RowNode().getDataAt(u"none"_s).isValid());
}

void TestRowNode::whatIsNotThereTakesNoValue()
{
    RowNode node = table();
    node.getChild(1)->getDataAt(u"Mass"_s) = 1;
    node.getDataAt(99) = 2;
    QVERIFY(!node.getDataAt(99).isValid());
    QVERIFY(!node.getChild(1)->getDataAt(1).isValid());
    QVERIFY(node == table());
}

void TestRowNode::columnsAreLookedUpAtTheRoot()
{
    RowNode node = table();
    for (const RowNode *at : {std::as_const(node).root(), std::as_const(node).getChild(1)}) {
        QCOMPARE(at->getNameFromColumnIndex(0), u"Name"_s);
        QCOMPARE(at->getNameFromColumnIndex(-1), QString());
        QCOMPARE(at->getNameFromColumnIndex(2), QString());
        QVERIFY(at->rootHasData(u"Mass"_s));
        QVERIFY(!at->rootHasData(u"water"_s) && !at->rootHasData(u"mass"_s));
        QCOMPARE(at->getColumnIndexFromName(u"Mass"_s), 1);
        QCOMPARE(at->getColumnIndexFromName(u"none"_s), -1);
        QCOMPARE(at->getRootDataAsStringList(), QStringList({u"Name"_s, u"Mass"_s}));
    }
}

void TestRowNode::columnLookupsMayIgnoreCase()
{
    const RowNode node = table();
    QCOMPARE(node.getColumnIndexFromName(u"mASS"_s, false), -1);
    QCOMPARE(node.getColumnIndexFromName(u"mASS"_s, true), 1);
    QCOMPARE(node.getColumnIndexFromName(u"mASSe"_s, true), -1);
}

void TestRowNode::theFirstOfTwoColumnsIsFound()
{
    RowNode node;
    node.addData(QStringList{u"a"_s, u"b"_s, u"a"_s});
    node.addNewChild({1, 2, 3});
    QCOMPARE(node.getColumnIndexFromName(u"a"_s), 0);
    QCOMPARE(node.getColumnIndexFromName(u"A"_s, true), 0);
    QCOMPARE(node.getChildFirst()->getDataAt(u"a"_s), QVariant(1));
}

void TestRowNode::rowDataAreReplaced()
{
    RowNode node = table();
    node.getChild(1)->setRowData({1, 2, 3});
    QCOMPARE(node.getChild(1)->getRowData(), VariantItems({1, 2, 3}));
    QCOMPARE(node.getChild(1)->data, VariantItems({1, 2, 3}));
    node.getChild(1)->setRowData({});
    QVERIFY(node.getChild(1)->data.isEmpty());
}

void TestRowNode::rowDataAreReadAsTexts()
{
    const RowNode node = table();
    QCOMPARE(node.getChild(0)->getRowDataToStringList(), QStringList({u"water"_s, u"18.0106"_s}));
    QVERIFY(RowNode().getRowDataToStringList().isEmpty());
    QVERIFY(RowNode().getRootDataAsStringList().isEmpty());
}

ORV_REGISTER_TEST(TestRowNode)

#include "TestRowNode.moc"
