#include "LogCapture.h"
#include "OrvTest.h"
#include "TableCells.h"

#include <orv/propertyeditor/content/BaseTableItem.h>

#include <QSignalSpy>

using namespace orv;
using namespace orv::PropertyEditor;
using namespace Qt::StringLiterals;

/// Rows and columns of a table cell.
class TestBaseTableItem : public OrvTest
{
    Q_OBJECT

private Q_SLOTS:
    void aNewOneIsEmpty();
    void theShapeIsThatOfTheNodes();
    void scriptsSeeTheShape();
    void columnsAreFoundByName();
    void columnsBeyondTheTableHaveNoName_data();
    void columnsBeyondTheTableHaveNoName();
    void aColumnIsAddedWithEmptyTexts();
    void anExistingColumnIsNotAdded();
    void aColumnIsRemovedByName();
    void theLastColumnOfANameIsRemoved();
    void anUnknownColumnIsNotRemoved();
    void aColumnIsRemovedByIndex();
    void theIndexOfARepeatedNameRemovesTheLast();
    void aColumnBeyondTheTableIsNotRemoved_data();
    void aColumnBeyondTheTableIsNotRemoved();
    void aColumnIsRenamedInSilence();
    void aRefusedNameIsTold_data();
    void aRefusedNameIsTold();
    void aRowIsAddedWithItsValues();
    void aRowWithoutValuesStaysBlank();
    void aRowWithTheWrongNumberOfValuesStaysBlank();
    void aRowIsRemoved();
    void aRowBeyondTheTableIsNotRemoved_data();
    void aRowBeyondTheTableIsNotRemoved();
    void theValuesOfARowAreReplaced();
    void listenersMayRemoveTheRowThatChanged();
    void theValuesOfNoRowAreRefusedInSilence();
    void theWrongNumberOfValuesIsRefused();
    void cellsAreWritten();
    void cellsOfShortRowsAreWritten();
    void cellsBeyondTheTableAreRefused_data();
    void cellsBeyondTheTableAreRefused();
    void shortRowsAreFilledUp();
    void noNodeCannotBeResized();
    void scriptsChangeTheTable();
};

namespace {

/// Two columns, two rows; announces nothing while it is made.
std::unique_ptr<TableItem> table()
{
    auto item = std::make_unique<TableItem>();
    item->node().addData(QStringList{u"Name"_s, u"Mass"_s});
    item->node().addNewChild({u"water"_s, 18.0106});
    item->node().addNewChild({u"salt"_s, 57.9586});
    return item;
}

QStringList columnOf(const TableItem &item, int column)
{
    QStringList texts;
    for (int row = 0; row < item.rowCount(); ++row)
        texts.append(item.value(row, column).toString());
    return texts;
}

/// Everything that a table announces, in order.
class Announcements
{
public:
    explicit Announcements(BaseTableItem *item)
    {
        const auto add = [this](const QString &text) { m_texts.append(text); };
        using Item = BaseTableItem;
        QObject::connect(item, &Item::columnCountChanged, &m_owner,
                         [add](int n) { add(u"columnCountChanged %1"_s.arg(n)); });
        QObject::connect(item, &Item::columnAdded, &m_owner,
                         [add](int i) { add(u"columnAdded %1"_s.arg(i)); });
        QObject::connect(item, qOverload<int>(&Item::columnRemoved), &m_owner,
                         [add](int i) { add(u"columnRemoved %1"_s.arg(i)); });
        QObject::connect(item, qOverload<const QString &>(&Item::columnRemoved), &m_owner,
                         [add](const QString &name) { add(u"columnRemoved "_s + name); });
        QObject::connect(item, &Item::columnNameChanged, &m_owner,
                         [add](int i, const QString &) { add(u"columnNameChanged %1"_s.arg(i)); });
        QObject::connect(item, &Item::rowCountChanged, &m_owner,
                         [add](int n) { add(u"rowCountChanged %1"_s.arg(n)); });
        QObject::connect(item, &Item::rowAdded, &m_owner, [add](int i) { add(u"rowAdded %1"_s.arg(i)); });
        QObject::connect(item, &Item::rowChanged, &m_owner, [add](int i, const VariantItems &data) {
            add(u"rowChanged %1 %2"_s.arg(QString::number(i), data.toStringList().join(u'|')));
        });
        QObject::connect(item, &Item::rowRemoved, &m_owner, [add](int i) { add(u"rowRemoved %1"_s.arg(i)); });
        QObject::connect(item, &Item::valueChanged, &m_owner,
                         [add](int row, int column, const QVariant &value) {
                             add(u"valueChanged %1 %2 %3"_s.arg(QString::number(row), QString::number(column),
                                                                value.toString()));
                         });
        QObject::connect(item, &Item::reset, &m_owner, [add] { add(u"reset"_s); });
    }

    [[nodiscard]] QStringList texts() const { return m_texts; }

private:
    QObject m_owner;
    QStringList m_texts;
};

void addOutside()
{
    QTest::addColumn<int>("index");
    QTest::newRow("below") << -1;
    QTest::newRow("behind") << 2;
}

} // namespace

void TestBaseTableItem::aNewOneIsEmpty()
{
    const TableItem item;
    QCOMPARE(item.rowCount(), 0);
    QCOMPARE(item.columnCount(), 0);
    QVERIFY(item.isEmpty());
    QCOMPARE(item.columnNames(), QStringList());
    QVERIFY(item.customColumnsMetaData().isEmpty());
}

void TestBaseTableItem::theShapeIsThatOfTheNodes()
{
    const auto item = table();
    QCOMPARE(item->rowCount(), 2);
    QCOMPARE(item->columnCount(), 2);
    QVERIFY(!item->isEmpty());
    QCOMPARE(item->columnNames(), (QStringList{u"Name"_s, u"Mass"_s}));
    QCOMPARE(item->columnName(1), u"Mass"_s);
    QCOMPARE(item->value(1, 0), QVariant(u"salt"_s));

    item->node().clearChildren();
    QVERIFY(item->isEmpty());
    QCOMPARE(item->columnCount(), 2);
}

void TestBaseTableItem::scriptsSeeTheShape()
{
    const auto item = table();
    QCOMPARE(item->property("rowCount").toInt(), 2);
    QCOMPARE(item->property("columnCount").toInt(), 2);
    QCOMPARE(item->property("columnNames").toStringList(), (QStringList{u"Name"_s, u"Mass"_s}));
}

void TestBaseTableItem::columnsAreFoundByName()
{
    const auto item = table();
    QCOMPARE(item->columnIndex(u"Mass"_s), 1);
    QCOMPARE(item->columnIndex(u"mass"_s), -1);
    QCOMPARE(item->columnIndex(QString()), -1);
}

void TestBaseTableItem::columnsBeyondTheTableHaveNoName_data()
{
    addOutside();
}

void TestBaseTableItem::columnsBeyondTheTableHaveNoName()
{
    QFETCH(const int, index);
    const auto item = table();
    const LogCapture log;
    QCOMPARE(item->columnName(index), QString());
    QCOMPARE(log.warnings(), QStringList{u"Column %1 is out of bounds in \"Isotope\""_s.arg(index)});
}

void TestBaseTableItem::aColumnIsAddedWithEmptyTexts()
{
    const auto item = table();
    const Announcements told(item.get());
    QVERIFY(item->addColumn(u"Note"_s));
    QCOMPARE(item->columnNames(), (QStringList{u"Name"_s, u"Mass"_s, u"Note"_s}));
    QCOMPARE(item->value(0, 2).typeId(), int(QMetaType::QString));
    QCOMPARE(columnOf(*item, 2), QStringList(2, QString()));
    QCOMPARE(told.texts(), (QStringList{u"columnAdded 2"_s, u"columnCountChanged 3"_s}));
}

void TestBaseTableItem::anExistingColumnIsNotAdded()
{
    const auto item = table();
    const Announcements told(item.get());
    const LogCapture log;
    QVERIFY(!item->addColumn(u"Mass"_s));
    QCOMPARE(item->columnCount(), 2);
    QVERIFY(log.lines().isEmpty());
    QVERIFY(told.texts().isEmpty());
}

void TestBaseTableItem::aColumnIsRemovedByName()
{
    const auto item = table();
    const Announcements told(item.get());
    QVERIFY(item->removeColumn(u"Name"_s));
    QCOMPARE(item->columnNames(), QStringList{u"Mass"_s});
    QCOMPARE(columnOf(*item, 0), (QStringList{u"18.0106"_s, u"57.9586"_s}));
    QCOMPARE(told.texts(), (QStringList{u"columnRemoved 0"_s, u"columnRemoved Name"_s}));
}

void TestBaseTableItem::theLastColumnOfANameIsRemoved()
{
    const auto item = table();
    item->node().addDataToRootAndResizeChildren(u"Name"_s, u"second"_s);
    const Announcements told(item.get());
    QVERIFY(item->removeColumn(u"Name"_s));
    QCOMPARE(columnOf(*item, 0), (QStringList{u"water"_s, u"salt"_s}));
    QCOMPARE(told.texts(), (QStringList{u"columnRemoved 2"_s, u"columnRemoved Name"_s}));
}

void TestBaseTableItem::anUnknownColumnIsNotRemoved()
{
    const auto item = table();
    const Announcements told(item.get());
    const LogCapture log;
    QVERIFY(!item->removeColumn(u"Charge"_s));
    QCOMPARE(log.warnings(), QStringList{u"Column \"Charge\" is not found in \"Isotope\""_s});
    QVERIFY(told.texts().isEmpty());
}

void TestBaseTableItem::aColumnIsRemovedByIndex()
{
    const auto item = table();
    const Announcements told(item.get());
    QVERIFY(item->removeColumn(0));
    QCOMPARE(item->columnNames(), QStringList{u"Mass"_s});
    QCOMPARE(told.texts(), (QStringList{u"columnRemoved 0"_s, u"columnRemoved Name"_s}));
}

void TestBaseTableItem::theIndexOfARepeatedNameRemovesTheLast()
{
    const auto item = table();
    item->node().addDataToRootAndResizeChildren(u"Name"_s, u"second"_s);
    QVERIFY(item->removeColumn(0));
    QCOMPARE(columnOf(*item, 0), (QStringList{u"water"_s, u"salt"_s}));
}

void TestBaseTableItem::aColumnBeyondTheTableIsNotRemoved_data()
{
    addOutside();
}

void TestBaseTableItem::aColumnBeyondTheTableIsNotRemoved()
{
    QFETCH(const int, index);
    const auto item = table();
    const LogCapture log;
    QVERIFY(!item->removeColumn(index));
    QVERIFY(log.warnings().isEmpty());
    QCOMPARE(log.texts(QtDebugMsg), QStringList{u"Column %1 is out of bounds in \"Isotope\""_s.arg(index)});
    QCOMPARE(item->columnCount(), 2);
}

void TestBaseTableItem::aColumnIsRenamedInSilence()
{
    const auto item = table();
    const Announcements told(item.get());
    const LogCapture log;
    QVERIFY(item->setColumnName(1, u"Average mass"_s));
    QCOMPARE(item->columnNames(), (QStringList{u"Name"_s, u"Average mass"_s}));
    QCOMPARE(columnOf(*item, 1), (QStringList{u"18.0106"_s, u"57.9586"_s}));
    QVERIFY(told.texts().isEmpty());
    QVERIFY(log.lines().isEmpty());
}

void TestBaseTableItem::aRefusedNameIsTold_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("warning");
    QTest::newRow("below") << -1 << u"x"_s << u"Column -1 is out of bounds in \"Isotope\""_s;
    QTest::newRow("behind") << 2 << u"x"_s << u"Column 2 is out of bounds in \"Isotope\""_s;
    QTest::newRow("empty") << 1 << QString() << u"Column name is empty for column 1 in \"Isotope\""_s;
    QTest::newRow("empty, behind") << 2 << QString() << u"Column 2 is out of bounds in \"Isotope\""_s;
}

void TestBaseTableItem::aRefusedNameIsTold()
{
    QFETCH(const int, index);
    QFETCH(const QString, name);
    QFETCH(const QString, warning);
    const auto item = table();
    const LogCapture log;
    QVERIFY(!item->setColumnName(index, name));
    QCOMPARE(log.warnings(), QStringList{warning});
    QCOMPARE(item->columnNames(), (QStringList{u"Name"_s, u"Mass"_s}));
}

void TestBaseTableItem::aRowIsAddedWithItsValues()
{
    const auto item = table();
    const Announcements told(item.get());
    QVERIFY(item->addRow({u"sugar"_s, 180.0634}));
    QCOMPARE(item->rowCount(), 3);
    QCOMPARE(item->value(2, 1), QVariant(180.0634));
    QCOMPARE(told.texts(),
             (QStringList{u"rowChanged 2 sugar|180.0634"_s, u"rowAdded 2"_s, u"rowCountChanged 3"_s}));
}

void TestBaseTableItem::aRowWithoutValuesStaysBlank()
{
    const auto item = table();
    const Announcements told(item.get());
    const LogCapture log;
    QVERIFY(item->addRow({}));
    QVERIFY(log.lines().isEmpty());
    QCOMPARE(item->node().getChild(2)->data, VariantItems({QVariant(), QVariant()}));
    QCOMPARE(told.texts(), (QStringList{u"rowAdded 2"_s, u"rowCountChanged 3"_s}));
}

void TestBaseTableItem::aRowWithTheWrongNumberOfValuesStaysBlank()
{
    const auto item = table();
    const Announcements told(item.get());
    const LogCapture log;
    QVERIFY(item->addRow({u"sugar"_s}));
    QCOMPARE(log.warnings(), (QStringList{u"Record columns count mismatch in \"Isotope\""_s,
                                          u"Failed to set row values in \"Isotope\" (not fatal)"_s}));
    QCOMPARE(item->node().getChild(2)->data, VariantItems({QVariant(), QVariant()}));
    QCOMPARE(told.texts(), (QStringList{u"rowAdded 2"_s, u"rowCountChanged 3"_s}));
}

void TestBaseTableItem::aRowIsRemoved()
{
    const auto item = table();
    const Announcements told(item.get());
    QVERIFY(item->removeRow(0));
    QCOMPARE(columnOf(*item, 0), QStringList{u"salt"_s});
    QCOMPARE(told.texts(), (QStringList{u"rowRemoved 0"_s, u"rowCountChanged 1"_s}));
}

void TestBaseTableItem::aRowBeyondTheTableIsNotRemoved_data()
{
    addOutside();
}

void TestBaseTableItem::aRowBeyondTheTableIsNotRemoved()
{
    QFETCH(const int, index);
    const auto item = table();
    const Announcements told(item.get());
    const LogCapture log;
    QVERIFY(!item->removeRow(index));
    QVERIFY(log.warnings().isEmpty());
    QCOMPARE(log.texts(QtDebugMsg), QStringList{u"Row %1 is out of bounds in \"Isotope\""_s.arg(index)});
    QVERIFY(told.texts().isEmpty());
}

void TestBaseTableItem::theValuesOfARowAreReplaced()
{
    const auto item = table();
    const Announcements told(item.get());
    QVERIFY(item->setRowValues(1, {u"sugar"_s, 180.0634}));
    QCOMPARE(columnOf(*item, 0), (QStringList{u"water"_s, u"sugar"_s}));
    QCOMPARE(told.texts(), QStringList{u"rowChanged 1 sugar|180.0634"_s});
}

void TestBaseTableItem::listenersMayRemoveTheRowThatChanged()
{
    const auto item = table();
    connect(item.get(), &BaseTableItem::rowChanged, item.get(), [&item](int row) { item->removeRow(row); });
    QStringList heard;
    connect(item.get(), &BaseTableItem::rowChanged, item.get(),
            [&heard](int, const VariantItems &data) { heard = data.toStringList(); });
    QVERIFY(item->setRowValues(0, {u"sugar"_s, u"180.0634"_s}));
    QCOMPARE(heard, QStringList({u"sugar"_s, u"180.0634"_s}));
    QCOMPARE(item->rowCount(), 1);
}

void TestBaseTableItem::theValuesOfNoRowAreRefusedInSilence()
{
    const auto item = table();
    const LogCapture log;
    QVERIFY(!item->setRowValues(2, {u"sugar"_s, 180.0634}));
    QVERIFY(!item->setRowValues(-1, {}));
    QVERIFY(log.lines().isEmpty());
}

void TestBaseTableItem::theWrongNumberOfValuesIsRefused()
{
    const auto item = table();
    const Announcements told(item.get());
    const LogCapture log;
    QVERIFY(!item->setRowValues(0, {1, 2, 3}));
    QVERIFY(!item->setRowValues(0, {}));
    QCOMPARE(log.warnings(), QStringList(2, u"Record columns count mismatch in \"Isotope\""_s));
    QCOMPARE(item->value(0, 0), QVariant(u"water"_s));
    QVERIFY(told.texts().isEmpty());
}

void TestBaseTableItem::cellsAreWritten()
{
    const auto item = table();
    const Announcements told(item.get());
    QVERIFY(item->setValue(1, 1, 58.5));
    QCOMPARE(item->value(1, 1), QVariant(58.5));
    QCOMPARE(told.texts(), QStringList{u"valueChanged 1 1 58.5"_s});
}

void TestBaseTableItem::cellsOfShortRowsAreWritten()
{
    const auto item = table();
    item->node().addNewChild({u"short"_s});
    QVERIFY(!item->value(2, 1).isValid());
    QVERIFY(item->setValue(2, 1, 1.5));
    QCOMPARE(item->value(2, 1), QVariant(1.5));
    QCOMPARE(item->value(2, 0), QVariant(u"short"_s));
}

void TestBaseTableItem::cellsBeyondTheTableAreRefused_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("warning");
    QTest::newRow("row below") << -1 << 0 << u"Row -1 is out of bounds in \"Isotope\""_s;
    QTest::newRow("row behind") << 2 << 0 << u"Row 2 is out of bounds in \"Isotope\""_s;
    QTest::newRow("column below") << 0 << -1 << u"Column -1 is out of bounds in \"Isotope\""_s;
    QTest::newRow("column behind") << 0 << 2 << u"Column 2 is out of bounds in \"Isotope\""_s;
    QTest::newRow("both") << 5 << 7 << u"Row 5 is out of bounds in \"Isotope\""_s;
}

void TestBaseTableItem::cellsBeyondTheTableAreRefused()
{
    QFETCH(const int, row);
    QFETCH(const int, column);
    QFETCH(const QString, warning);
    const auto item = table();
    const RowNode before = item->node();
    const Announcements told(item.get());
    const LogCapture log;
    QVERIFY(!item->setValue(row, column, 1));
    const QVariant value = item->value(row, column);
    QVERIFY(!value.isValid());
    QCOMPARE(log.warnings(), QStringList(2, warning));
    QVERIFY(item->node() == before);
    QVERIFY(told.texts().isEmpty());
}

void TestBaseTableItem::shortRowsAreFilledUp()
{
    RowNode node;
    node.addData(QStringList{u"a"_s, u"b"_s});
    node.addNewChild({1});
    node.addNewChild({1, 2, 3});
    TableItem::resizeChildrenToMatchRoot(&node);
    QCOMPARE(node.getChild(0)->data, VariantItems({1, QVariant()}));
    QCOMPARE(node.getChild(1)->data, VariantItems({1, 2, 3}));
}

void TestBaseTableItem::noNodeCannotBeResized()
{
    const LogCapture log;
    TableItem::resizeChildrenToMatchRoot(nullptr);
    QCOMPARE(log.warnings(), QStringList{u"Cannot resize a null RowNode"_s});
}

void TestBaseTableItem::scriptsChangeTheTable()
{
    const auto item = table();
    bool done = false;
    int index = 0;
    const auto call = [&item, &done](const char *method, auto... arguments) {
        done = false;
        return QMetaObject::invokeMethod(item.get(), method, Q_RETURN_ARG(bool, done), arguments...) && done;
    };
    QVERIFY(call("addColumn", Q_ARG(QString, u"Note"_s)));
    QVERIFY(call("addRow", Q_ARG(QVariantList, (QVariantList{u"a"_s, 1, u"b"_s}))));
    QVERIFY(call("setRowValues", Q_ARG(int, 0), Q_ARG(QVariantList, (QVariantList{u"c"_s, 2, u"d"_s}))));
    QVERIFY(call("setValue", Q_ARG(int, 0), Q_ARG(int, 2), Q_ARG(QVariant, u"e"_s)));
    QVERIFY(call("setColumnName", Q_ARG(int, 2), Q_ARG(QString, u"Remark"_s)));
    QVERIFY(call("removeRow", Q_ARG(int, 1)));
    QVERIFY(call("removeColumn", Q_ARG(QString, u"Name"_s)));
    QVERIFY(call("removeColumn", Q_ARG(int, 0)));
    QVERIFY(QMetaObject::invokeMethod(item.get(), "columnIndex", Q_RETURN_ARG(int, index),
                                      Q_ARG(QString, u"none"_s)));
    QCOMPARE(index, -1);
    QCOMPARE(item->columnNames(), QStringList{u"Remark"_s});
    QCOMPARE(columnOf(*item, 0), (QStringList{u"e"_s, u"b"_s}));
}

ORV_REGISTER_TEST(TestBaseTableItem)
#include "TestBaseTableItem.moc"
