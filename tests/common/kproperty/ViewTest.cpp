#include "ViewFixture.h"

#include <QAccessible>
#include <QPointer>
#include <QRegularExpression>

class ViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void groupsAndPropertiesHaveRows();
    void hiddenPropertiesHaveNoRow();
    void onlyTheCommonGroupMeansNoGroupRows();
    void alphabeticalOrderSortsWithinGroups();
    void selectionIsPreservedByName();
    void unknownSelectionSelectsNothing();
    void clickOnAGroupCollapsesIt();
    void toolTipsAreCaptionsAndDescriptions();
    void removedPropertyLosesItsRow();
    void removalOfTheEditedPropertyClosesItsEditor();
    void viewLetsGoOfAClearedSet();
    void viewLetsGoOfADeletedSet();
    void setOutlivesTheView();
    void rowHeightFollowsTheLineOptions_data();
    void rowHeightFollowsTheLineOptions();
    void viewForEditorFindsTheView();
    void screenReaderFindsNamesAndValues();
    void openEditorHasAnAccessibleName();
    void readOnlyBoolLooksReadOnly();
    void gridLineColorMayBeInvalid();
};

void ViewTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void ViewTest::groupsAndPropertiesHaveRows()
{
    const Fixture fixture;
    const QAbstractItemModel *const model = fixture.view.model();
    QCOMPARE(model->rowCount(), 2);
    QCOMPARE(model->index(0, 0).data().toString(), text("first"));
    QVERIFY(!KPropertyUtils::propertyForIndex(model->index(0, 0)));
    QCOMPARE(model->rowCount(model->index(1, 0)), 4);
    QCOMPARE(fixture.index("width").data().toString(), text("3"));
    QVERIFY(fixture.view.isExpanded(model->index(0, 0)));
    QVERIFY(!KPropertyUtils::propertyForIndex(QModelIndex()));
}

void ViewTest::hiddenPropertiesHaveNoRow()
{
    Fixture fixture;
    fixture.set["number"].setVisible(false);
    fixture.set["text"].setVisible(false);
    fixture.view.changeSet(&fixture.set);
    QVERIFY(!fixture.index("number").isValid());
    QCOMPARE(fixture.view.model()->rowCount(), 1);
}

void ViewTest::onlyTheCommonGroupMeansNoGroupRows()
{
    KPropertySet set;
    set.addProperty(new KProperty("a", 1));
    KPropertyEditorView view;
    view.changeSet(&set);
    QCOMPARE(KPropertyUtils::propertyForIndex(view.model()->index(0, 0)), &set["a"]);
    Fixture fixture;
    fixture.view.setGroupsVisible(false);
    fixture.view.changeSet(&fixture.set);
    QCOMPARE(fixture.view.model()->rowCount(), 6);
}

void ViewTest::alphabeticalOrderSortsWithinGroups()
{
    Fixture fixture;
    fixture.view.changeSet(&fixture.set, KPropertyEditorView::SetOption::AlphabeticalOrder);
    const QModelIndex second = fixture.view.model()->index(1, 0);
    QStringList names;
    for (int row = 0; row < fixture.view.model()->rowCount(second); ++row) {
        names << fixture.view.model()->index(row, 0, second).data().toString();
    }
    QCOMPARE(names, QStringList({text("Fixed"), text("Flag"), text("Last"), text("Size")}));
}

void ViewTest::selectionIsPreservedByName()
{
    Fixture fixture;
    fixture.view.changeSet(&fixture.set, "size");
    QCOMPARE(fixture.current(), QByteArray("size"));
    fixture.view.changeSet(nullptr);
    fixture.view.changeSet(&fixture.set);
    QCOMPARE(fixture.current(), QByteArray());
    fixture.view.changeSet(&fixture.set, KPropertyEditorView::SetOption::PreservePreviousSelection);
    QCOMPARE(fixture.current(), QByteArray("size"));
}

void ViewTest::unknownSelectionSelectsNothing()
{
    Fixture fixture;
    fixture.view.changeSet(&fixture.set, "none");
    QVERIFY(!fixture.view.currentIndex().isValid());
}

void ViewTest::clickOnAGroupCollapsesIt()
{
    Fixture fixture;
    const QModelIndex group = fixture.view.model()->index(0, 0);
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, {}, fixture.view.visualRect(group).center());
    QVERIFY(!fixture.view.isExpanded(group));
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, {}, fixture.view.visualRect(group).center());
    QVERIFY(fixture.view.isExpanded(group));
}

void ViewTest::toolTipsAreCaptionsAndDescriptions()
{
    Fixture fixture;
    const auto tip = [&fixture](const char *name) {
        return fixture.index(name).data(Qt::ToolTipRole).toString();
    };
    QVERIFY(fixture.view.toolTipsVisible());
    QCOMPARE(tip("number"), text("<b>Number</b><br>A number."));
    QCOMPARE(tip("text"), text("<b>Text</b>"));
    fixture.set["text"].setCaption(text("Width < 5\nand more"));
    fixture.set["text"].setDescription(text("a < b & c\nnext"));
    QCOMPARE(tip("text"), text("<b>Width &lt; 5<br>and more</b><br>a &lt; b &amp; c<br>next"));
    QCOMPARE(fixture.index("text").siblingAtColumn(0).data(Qt::ToolTipRole).toString(), tip("text"));
    fixture.view.setToolTipsVisible(false);
    QVERIFY(!fixture.index("number").data(Qt::ToolTipRole).isValid());
}

void ViewTest::removedPropertyLosesItsRow()
{
    Fixture fixture;
    fixture.set.removeProperty("number");
    QVERIFY(!fixture.index("number").isValid());
    fixture.set.removeProperty("text");
    QCOMPARE(fixture.view.model()->rowCount(), 1);
    fixture.set.removeProperty("size");
    QVERIFY(!fixture.index("width").isValid());
}

void ViewTest::removalOfTheEditedPropertyClosesItsEditor()
{
    Fixture fixture;
    fixture.open("text");
    fixture.type("x");
    const QPointer<QWidget> editor = fixture.editor();
    fixture.set.removeProperty("text");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!editor);
    QVERIFY(!isEditing(fixture));
}

void ViewTest::viewLetsGoOfAClearedSet()
{
    Fixture fixture;
    fixture.open("text");
    int changes = 0;
    connect(&fixture.view, &KPropertyEditorView::propertySetChanged, this, [&changes] { ++changes; });
    fixture.set.clear();
    QVERIFY(!fixture.view.propertySet());
    QCOMPARE(fixture.view.model()->rowCount(), 0);
    QCOMPARE(changes, 1);
}

void ViewTest::viewLetsGoOfADeletedSet()
{
    KPropertyEditorView view;
    {
        KPropertySet set;
        set.addProperty(new KProperty("a", 1));
        view.changeSet(&set);
    }
    QVERIFY(!view.propertySet());
    QCOMPARE(view.model()->rowCount(), 0);
}

void ViewTest::setOutlivesTheView()
{
    KPropertySet set;
    set.addProperty(new KProperty("a", 1));
    {
        KPropertyEditorView view;
        view.changeSet(&set);
    }
    set.changeProperty("a", 2);
    set.removeProperty("a");
    QVERIFY(set.isEmpty());
}

void ViewTest::rowHeightFollowsTheLineOptions_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<QVariant>("maximum");
    QTest::addColumn<int>("expectedLines");
    QTest::newRow("one line") << 1 << QVariant() << QVariant() << 1;
    QTest::newRow("three lines") << 3 << QVariant() << QVariant() << 3;
    QTest::newRow("long text") << 40 << QVariant() << QVariant() << 5;
    QTest::newRow("short text, minimum") << 1 << QVariant(3) << QVariant() << 3;
    QTest::newRow("maximum, which bounds the editor alone") << 9 << QVariant() << QVariant(2) << 5;
    QTest::newRow("fixed editor, shorter text") << 1 << QVariant(3) << QVariant(3) << 3;
    QTest::newRow("fixed editor, longer text") << 9 << QVariant(3) << QVariant(3) << 5;
    QTest::newRow("editor higher than five lines") << 9 << QVariant(7) << QVariant(7) << 7;
}

void ViewTest::rowHeightFollowsTheLineOptions()
{
    QFETCH(int, lines);
    QFETCH(QVariant, minimum);
    QFETCH(QVariant, maximum);
    QFETCH(int, expectedLines);
    Fixture fixture;
    KProperty &property = fixture.set["text"];
    property.setValue(QStringList(lines, text("line")).join(QLatin1Char('\n')));
    const int single = fixture.view.visualRect(fixture.index("number")).height();
    property.setOption("multiLine", true);
    property.setOption("minHeight", minimum);
    property.setOption("maxHeight", maximum);
    fixture.view.changeSet(&fixture.set);
    const int spacing = fixture.view.fontMetrics().lineSpacing();
    QCOMPARE(fixture.view.visualRect(fixture.index("text")).height(), single + (expectedLines - 1) * spacing);
}

void ViewTest::viewForEditorFindsTheView()
{
    Fixture fixture;
    fixture.set["text"].setOption("multiLine", true);
    fixture.open("text");
    QCOMPARE(KPropertyUtils::viewForEditor(fixture.editor()), &fixture.view);
    QCOMPARE(KPropertyUtils::viewForEditor(QApplication::focusWidget()), &fixture.view);
    const QWidget stranger;
    QVERIFY(!KPropertyUtils::viewForEditor(&stranger));
    QVERIFY(!KPropertyUtils::viewForEditor(nullptr));
}

void ViewTest::screenReaderFindsNamesAndValues()
{
    Fixture fixture;
    fixture.set.addProperty(new KProperty("empty", text(""), text("Empty")), "first");
    fixture.view.changeSet(&fixture.set);
    QAccessibleInterface *const tree = QAccessible::queryAccessibleInterface(&fixture.view);
    QVERIFY(tree && tree->tableInterface());
    QStringList names;
    for (int i = 0; i < tree->childCount(); ++i) {
        names << tree->child(i)->text(QAccessible::Name);
    }
    for (const char *expected : {"first", "Number: 5", "5", "Text: abc", "abc", "Fixed: fixed, read only",
                                 "Size: 3x4", "3x4", "Empty: empty"}) {
        QVERIFY2(names.contains(text(expected)), expected);
    }
    const QModelIndex number = fixture.index("number");
    QCOMPARE(number.data(Qt::AccessibleDescriptionRole).toString(), text("A number."));
}

void ViewTest::openEditorHasAnAccessibleName()
{
    Fixture fixture;
    fixture.open("number");
    QAccessibleInterface *const editor = QAccessible::queryAccessibleInterface(fixture.editor());
    QVERIFY(editor);
    QCOMPARE(editor->text(QAccessible::Name), text("Number"));
    QCOMPARE(fixture.editor()->accessibleDescription(), text("A number."));
}

void ViewTest::readOnlyBoolLooksReadOnly()
{
    Fixture fixture;
    const QRect cell = fixture.view.visualRect(fixture.index("flag"));
    const QImage writable = fixture.view.viewport()->grab(cell).toImage();
    fixture.set["flag"].setReadOnly(true);
    QVERIFY(fixture.view.viewport()->grab(cell).toImage() != writable);
}

void ViewTest::gridLineColorMayBeInvalid()
{
    Fixture fixture;
    QCOMPARE(fixture.view.gridLineColor(), KPropertyEditorView::defaultGridLineColor());
    const QImage with = fixture.view.viewport()->grab().toImage();
    fixture.view.setGridLineColor(QColor());
    QVERIFY(!fixture.view.gridLineColor().isValid());
    QVERIFY(fixture.view.viewport()->grab().toImage() != with);
}

QTEST_MAIN(ViewTest)
#include "ViewTest.moc"
