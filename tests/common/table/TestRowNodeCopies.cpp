#include "OrvTest.h"

#include <orv/table/RowNode.h>

using namespace orv;
using namespace Qt::StringLiterals;

/// What copies, moves and assignments leave behind, also between nodes of one tree.
class TestRowNodeCopies : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void copiesShareNoRowAndNoCell();
    void aReferenceMeansTheOriginalAlone();
    void aCopyOfARowIsARoot();
    void assignedNodesKeepTheirPlace();
    void aNodeMayBeAssignedToItself();
    void aRowMayReplaceItsTable_data();
    void aRowMayReplaceItsTable();
    void aTableMayBePutIntoItsRow_data();
    void aTableMayBePutIntoItsRow();
    void aMovedTableKeepsItsRows();
    void aMovedFromNodeIsEmpty();
    void deepCopyTakesWhatIsAsked_data();
    void deepCopyTakesWhatIsAsked();
    void deepCopyOfNothingChangesNothing();
    void deepCopyWithinATree();
    void equalityLooksAtDataAndRows();
    void treesOfAnyDepthAreCopiedAndDestroyed();
};

namespace {

RowNode tableToCopy()
{
    RowNode node;
    node.addData(QStringList{u"Name"_s, u"Mass"_s});
    node.addNewChild({u"water"_s, 18.0106});
    node.addNewChild({u"salt"_s, 57.9586})->addNewChild({u"sodium"_s, 22.9898});
    return node;
}

} // namespace

void TestRowNodeCopies::copiesShareNoRowAndNoCell()
{
    const RowNode original = tableToCopy();
    RowNode copy = original;
    QVERIFY(copy == original);
    QVERIFY(copy.getChild(0) != original.getChild(0));
    QCOMPARE(copy.getChild(1)->getChild(0)->root(), &copy);
    copy.getChild(1)->getChild(0)->getDataAt(0) = u"changed"_s;
    copy.addDataToRootAndResizeChildren(u"New"_s, 1);
    copy.deleteChild(0);
    QVERIFY(original == tableToCopy());
}

void TestRowNodeCopies::aReferenceMeansTheOriginalAlone()
{
    RowNode original = tableToCopy();
    QVariant &cell = original.getChildFirst()->getDataAt(0);
    RowNode *row = original.getChildFirst();
    RowNode copy = original;
    RowNode assigned;
    assigned = original;
    cell = u"ice"_s;
    row->getDataAt(1) = 1;
    QVERIFY(copy == tableToCopy());
    QVERIFY(assigned == tableToCopy());
    QCOMPARE(original.getChildFirst()->data, VariantItems({u"ice"_s, 1}));
}

void TestRowNodeCopies::aCopyOfARowIsARoot()
{
    RowNode original = tableToCopy();
    RowNode copy = *original.getChild(1);
    QVERIFY(!copy.parent());
    QCOMPARE(copy.getChildListSize(), 1);
    QCOMPARE(copy.getColumnIndexFromName(u"Name"_s), -1);
    QCOMPARE(copy.getColumnIndexFromName(u"salt"_s), 0);
    const RowNode moved = std::move(*original.getChild(1));
    QVERIFY(!moved.parent());
    QVERIFY(original.getChild(1)->isEmpty());
    QCOMPARE(original.getChild(1)->parent(), &original);
}

void TestRowNodeCopies::assignedNodesKeepTheirPlace()
{
    RowNode node = tableToCopy();
    RowNode *row = node.getChild(0);
    *row = tableToCopy();
    QCOMPARE(row->parent(), &node);
    QCOMPARE(row->getChild(1)->root(), &node);
    QVERIFY(*row == tableToCopy());
    const RowNode other;
    *row = other;
    QCOMPARE(row->parent(), &node);
    QVERIFY(row->isEmpty());
}

void TestRowNodeCopies::aNodeMayBeAssignedToItself()
{
    RowNode node = tableToCopy();
    RowNode &alias = node;
    node = alias;
    QVERIFY(node == tableToCopy());
    node = std::move(alias);
    QVERIFY(node == tableToCopy());
    QCOMPARE(node.getChildFirst()->root(), &node);
}

void TestRowNodeCopies::aRowMayReplaceItsTable_data()
{
    QTest::addColumn<bool>("byMove");
    QTest::newRow("copied") << false;
    QTest::newRow("moved") << true;
}

void TestRowNodeCopies::aRowMayReplaceItsTable()
{
    QFETCH(bool, byMove);
    RowNode node = tableToCopy();
    const RowNode expected = *node.getChild(1);
    if (byMove)
        node = std::move(*node.getChild(1));
    else
        node = *node.getChild(1);
    QVERIFY(node == expected);
    QCOMPARE(node.getChildFirst()->root(), &node);
}

void TestRowNodeCopies::aTableMayBePutIntoItsRow_data()
{
    aRowMayReplaceItsTable_data();
}

void TestRowNodeCopies::aTableMayBePutIntoItsRow()
{
    QFETCH(bool, byMove);
    RowNode node = tableToCopy();
    RowNode *row = node.getChild(1)->getChild(0);
    if (byMove)
        *row = std::move(node);
    else
        *row = node;
    QVERIFY(*row == tableToCopy());
    QCOMPARE(row->root(), &node);
    QCOMPARE(row->getChild(1)->getChild(0)->root(), &node);
    *row = RowNode({u"sodium"_s, 22.9898});
    QVERIFY(node == tableToCopy());
}

void TestRowNodeCopies::aMovedTableKeepsItsRows()
{
    RowNode original = tableToCopy();
    const RowNode *row = original.getChild(1);
    RowNode moved = std::move(original);
    QCOMPARE(moved.getChild(1), row);
    QCOMPARE(row->root(), &moved);
    RowNode assigned = tableToCopy();
    assigned = std::move(moved);
    QCOMPARE(assigned.getChild(1), row);
    QCOMPARE(row->root(), &assigned);
    QVERIFY(assigned == tableToCopy());
}

void TestRowNodeCopies::aMovedFromNodeIsEmpty()
{
    RowNode original = tableToCopy();
    const RowNode moved = std::move(original);
    QVERIFY(original.isEmpty()); // NOLINT(bugprone-use-after-move): that is the point
    original = moved;
    QVERIFY(original == tableToCopy());
    RowNode other;
    other = std::move(original);
    QVERIFY(original.isEmpty()); // NOLINT(bugprone-use-after-move): that is the point
    QVERIFY(original.addNewChildMatchRootDataSize());
}

void TestRowNodeCopies::deepCopyTakesWhatIsAsked_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("rows");
    QTest::newRow("all") << int(RowNode::DeepCopyType::Subtree) << 2 << 2;
    QTest::newRow("data") << int(RowNode::DeepCopyType::DataOnly) << 2 << 1;
    QTest::newRow("rows") << int(RowNode::DeepCopyType::ChildrenOnly) << 3 << 2;
}

void TestRowNodeCopies::deepCopyTakesWhatIsAsked()
{
    QFETCH(int, type);
    const RowNode source = tableToCopy();
    RowNode target({1, 2, 3});
    target.addNewChild({4});
    QVERIFY(target.deepCopy(&source, RowNode::DeepCopyType(type)));
    QTEST(int(target.data.size()), "width");
    QTEST(target.getChildListSize(), "rows");
    QVERIFY(source == tableToCopy());
    RowNode byDefault;
    QVERIFY(byDefault.deepCopy(&source));
    QVERIFY(byDefault == source);
}

void TestRowNodeCopies::deepCopyOfNothingChangesNothing()
{
    RowNode node = tableToCopy();
    QVERIFY(!node.deepCopy(nullptr));
    QVERIFY(!node.deepCopy(nullptr, RowNode::DeepCopyType::DataOnly));
    QVERIFY(node == tableToCopy());
}

void TestRowNodeCopies::deepCopyWithinATree()
{
    RowNode node = tableToCopy();
    QVERIFY(node.deepCopy(&node));
    QVERIFY(node == tableToCopy());
    RowNode *row = node.getChild(1);
    QVERIFY(row->deepCopy(&node, RowNode::DeepCopyType::ChildrenOnly));
    QCOMPARE(row->data, VariantItems({u"salt"_s, 57.9586}));
    QCOMPARE(row->getChildListSize(), 2);
    QVERIFY(*row->getChild(1) == *tableToCopy().getChild(1));
    QVERIFY(node.deepCopy(row, RowNode::DeepCopyType::DataOnly));
    QCOMPARE(node.data, VariantItems({u"salt"_s, 57.9586}));
    QCOMPARE(node.getChild(1), row);
}

void TestRowNodeCopies::equalityLooksAtDataAndRows()
{
    RowNode node = tableToCopy();
    node.getChild(1)->getChild(0)->getDataAt(1) = 23;
    QVERIFY(!(node == tableToCopy()));
    node = tableToCopy();
    node.addNewChild({});
    QVERIFY(!(node == tableToCopy()));
    node = tableToCopy();
    node.addData(QStringList{u"New"_s});
    QVERIFY(!(node == tableToCopy()));
}

void TestRowNodeCopies::treesOfAnyDepthAreCopiedAndDestroyed()
{
    RowNode node;
    RowNode *deepest = &node;
    for (int i = 0; i < 200000; ++i)
        deepest = deepest->addNewChild({i});
    QCOMPARE(deepest->root(), &node);
    RowNode copy = node;
    QVERIFY(copy == node);
    copy = std::move(*copy.getChildFirst());
    QVERIFY(!(copy == node));
    copy.clear();
    QVERIFY(copy.isEmpty());
}

ORV_REGISTER_TEST(TestRowNodeCopies)

#include "TestRowNodeCopies.moc"
