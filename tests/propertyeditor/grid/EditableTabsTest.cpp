#include "GridFixture.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/grid/EditableTabBar.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>

#include <QSignalSpy>

using namespace orv;
using namespace GridFixture;

using EditorMode = GridPropertyEditorView::EditorMode;

namespace {

struct Tabs
{
    explicit Tabs(EditorMode mode = EditorMode::Designer)
        : bar(*widget.editableTabBar())
    {
        for (const char *title : {"Samples", "Search"})
            widget.addTab(new QWidget, text(title));
        bar.setEditorMode(mode);
        widget.resize(400, 300);
        widget.show();
        (void)QTest::qWaitForWindowActive(&widget);
    }

    QLineEdit *doubleClick(int index)
    {
        const QPoint place = bar.tabRect(index).center();
        QTest::mouseClick(&bar, Qt::LeftButton, {}, place);
        QTest::mouseDClick(&bar, Qt::LeftButton, {}, place);
        return bar.findChild<QLineEdit *>();
    }

    static void settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    EditableTabWidget widget;
    EditableTabBar &bar;
};

} // namespace

class EditableTabsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void titlesAreEditedInPlace();
    void emptyTitlesAreNone();
    void anotherTabDropsTheEdit();
    void escapeDropsTheEdit();
    void usersEditNothing();
    void aClickBesideTheTabsDoesNothing();
};

void EditableTabsTest::titlesAreEditedInPlace()
{
    Tabs tabs;
    QVERIFY(tabs.bar.isMovable());
    const QSignalSpy edited(&tabs.bar, &EditableTabBar::titleEdited);
    QLineEdit *editor = tabs.doubleClick(1);
    QVERIFY(editor && editor->isVisible());
    QCOMPARE(editor->geometry(), tabs.bar.tabRect(1));
    QCOMPARE(editor->selectedText(), text("Search"));
    QVERIFY(editor->hasFocus());
    QTest::keyClicks(editor, text("Peptide map"));
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(tabs.bar.tabText(1), text("Peptide map"));
    QCOMPARE(edited.size(), 1);
    Tabs::settle();
    QVERIFY(!tabs.bar.findChild<QLineEdit *>());
}

void EditableTabsTest::emptyTitlesAreNone()
{
    Tabs tabs;
    QLineEdit *editor = tabs.doubleClick(0);
    QTest::keyClick(editor, Qt::Key_Delete);
    QTest::keyClick(editor, Qt::Key_Return);
    QCOMPARE(tabs.bar.tabText(0), text("Samples"));
}

void EditableTabsTest::anotherTabDropsTheEdit()
{
    Tabs tabs;
    QLineEdit *editor = tabs.doubleClick(0);
    QTest::keyClicks(editor, text("Typed"));
    QTest::mouseClick(&tabs.bar, Qt::LeftButton, {}, tabs.bar.tabRect(1).center());
    Tabs::settle();
    QVERIFY(!tabs.bar.findChild<QLineEdit *>());
    QCOMPARE(tabs.bar.tabText(0), text("Samples"));
}

void EditableTabsTest::escapeDropsTheEdit()
{
    Tabs tabs;
    QLineEdit *editor = tabs.doubleClick(0);
    QTest::keyClicks(editor, text("Typed"));
    QTest::keyClick(editor, Qt::Key_Escape);
    Tabs::settle();
    QVERIFY(!tabs.bar.findChild<QLineEdit *>());
    QCOMPARE(tabs.bar.tabText(0), text("Samples"));
}

void EditableTabsTest::usersEditNothing()
{
    Tabs tabs(EditorMode::User);
    QVERIFY(!tabs.bar.isMovable());
    QVERIFY(!tabs.doubleClick(0));
    const EditableTabWidget fresh;
    QVERIFY(!fresh.editableTabBar()->isMovable());
}

void EditableTabsTest::aClickBesideTheTabsDoesNothing()
{
    Tabs tabs;
    tabs.bar.onTabBarDoubleClicked(-1);
    tabs.bar.onTabBarDoubleClicked(2);
    QVERIFY(!tabs.bar.findChild<QLineEdit *>());
}

WIDGET_REGISTER_TEST(EditableTabsTest)
#include "EditableTabsTest.moc"
