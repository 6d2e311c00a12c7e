#include "GridFixture.h"
#include "LeavingWays.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/editors/ORVPropertyFactory.h>

using namespace orv;
using namespace GridFixture;

class LeavingEditorsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyWayTakesWhatWasTyped_data();
    void everyWayTakesWhatWasTyped();
    void keysOpenAsClicksDo_data();
    void keysOpenAsClicksDo();
    void aSingleRowIsLeftInEveryWay_data();
    void aSingleRowIsLeftInEveryWay();
};

void LeavingEditorsTest::initTestCase()
{
    ORVPropertyFactory::init();
}

void LeavingEditorsTest::everyWayTakesWhatWasTyped_data()
{
    LeavingWays::addRows();
}

void LeavingEditorsTest::everyWayTakesWhatWasTyped()
{
    QFETCH(LeavingWays::Way, way);
    Column column;
    KPropertyCustomEditorView &tree = *column.view->editorView();
    QVERIFY(LeavingWays::open(tree, "Samples"));
    LeavingWays::type(text("three; four"));
    QVERIFY(LeavingWays::leave(tree, way));
    QVERIFY(!LeavingWays::editorOf(tree, "Samples"));
    QCOMPARE(valueIn(column.item.content(), "Samples"), QJsonValue(text("three; four")));
    QVERIFY(column.view->isActiveWindow());
}

void LeavingEditorsTest::keysOpenAsClicksDo_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("F2") << Qt::Key_F2;
    QTest::newRow("Enter") << Qt::Key_Return;
}

void LeavingEditorsTest::keysOpenAsClicksDo()
{
    QFETCH(Qt::Key, key);
    Column column;
    KPropertyCustomEditorView &tree = *column.view->editorView();
    QVERIFY(LeavingWays::openByKey(tree, "Samples", key));
    QVERIFY(LeavingWays::leave(tree, LeavingWays::Way::Tab));
    QCOMPARE(valueIn(column.item.content(), "Samples"), QJsonValue(text("one; two")));
}

void LeavingEditorsTest::aSingleRowIsLeftInEveryWay_data()
{
    LeavingWays::addRows();
}

void LeavingEditorsTest::aSingleRowIsLeftInEveryWay()
{
    QFETCH(LeavingWays::Way, way);
    Column column(settingsCell("Karvon", {setting("Samples", text("one"))}));
    KPropertyCustomEditorView &tree = *column.view->editorView();
    QVERIFY(LeavingWays::open(tree, "Samples"));
    LeavingWays::type(text("two"));
    QVERIFY(LeavingWays::leave(tree, way));
    QCOMPARE(valueIn(column.item.content(), "Samples"), QJsonValue(text("two")));
}

WIDGET_REGISTER_TEST(LeavingEditorsTest)
#include "LeavingEditorsTest.moc"
