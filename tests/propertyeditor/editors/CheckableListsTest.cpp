#include "GridFixture.h"
#include "LeavingWays.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/editors/CheckableListWidget.h>
#include <orv/propertyeditor/editors/ORVPropertyFactory.h>

#include <QAbstractItemView>

using namespace orv;
using namespace GridFixture;

namespace {

constexpr char kLetters[] = "KarvonNglycanMotifLetters";

struct ListColumn : Column
{
    explicit ListColumn(const QStringList &letters)
        : Column(settingsCell("Karvon", {setting(kLetters, QJsonArray::fromStringList(letters)),
                                         setting("Samples", text("one"))}))
    {}

    KPropertyCustomEditorView &tree() { return *view->editorView(); }
    [[nodiscard]] QJsonValue stored() const { return valueIn(item.content(), kLetters); }
    QString shown() { return LeavingWays::rowOf(tree(), kLetters).siblingAtColumn(1).data().toString(); }
    auto *open() { return qobject_cast<CheckableListWidget *>(LeavingWays::open(tree(), kLetters)); }
};

QJsonValue letters(const QStringList &texts)
{
    return QJsonArray::fromStringList(texts);
}

void clickEntry(CheckableListWidget &box, const char *entry)
{
    const QModelIndex row = box.model()->index(box.findText(text(entry)), 0);
    box.view()->scrollTo(row);
    QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, {}, box.view()->visualRect(row).center());
}

} // namespace

class CheckableListsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theCellShowsTheTexts();
    void entriesAreCheckedByMouse_data();
    void entriesAreCheckedByMouse();
    void entriesAreCheckedByKeys();
    void escapeTakesChecksBack();
    void textsThatAreNoEntryAreNotShown();
    void aLookLeavesTheList_data();
    void aLookLeavesTheList();
    void valuesOfAnyKindShow();
};

void CheckableListsTest::initTestCase()
{
    ORVPropertyFactory::init();
}

void CheckableListsTest::theCellShowsTheTexts()
{
    ListColumn c({text("T"), text("S")});
    c.property(kLetters).setOption("displaySeparator", text(" / "));
    QCOMPARE(c.shown(), text("T / S"));
    CheckableListWidget *box = c.open();
    QVERIFY(box);
    QCOMPARE(box->separator(), text(" / "));
    QCOMPARE(box->checkedItems(), (QStringList{text("S"), text("T")}));
}

void CheckableListsTest::entriesAreCheckedByMouse_data()
{
    LeavingWays::addRows();
}

void CheckableListsTest::entriesAreCheckedByMouse()
{
    QFETCH(LeavingWays::Way, way);
    ListColumn c({text("S"), text("T")});
    CheckableListWidget *box = c.open();
    QVERIFY(box);
    box->showPopup();
    clickEntry(*box, "C");
    clickEntry(*box, "S");
    box->hidePopup();
    QVERIFY(LeavingWays::leave(c.tree(), way));
    QCOMPARE(c.stored(), letters({text("T"), text("C")}));
}

void CheckableListsTest::entriesAreCheckedByKeys()
{
    ListColumn c({text("S"), text("T")});
    QVERIFY(LeavingWays::openByKey(c.tree(), kLetters));
    auto *box = qobject_cast<CheckableListWidget *>(QApplication::focusWidget());
    QVERIFY(box);
    QTest::keyClick(box, Qt::Key_Space);
    QTest::keyClick(box->view(), Qt::Key_Home);
    QTest::keyClick(box->view(), Qt::Key_Space);
    QTest::keyClick(box->view(), Qt::Key_Return);
    QVERIFY(LeavingWays::leave(c.tree(), LeavingWays::Way::Enter));
    QCOMPARE(c.stored(), letters({text("T")}));
}

void CheckableListsTest::escapeTakesChecksBack()
{
    ListColumn c({text("S")});
    CheckableListWidget *box = c.open();
    box->showPopup();
    clickEntry(*box, "T");
    box->hidePopup();
    QTest::keyClick(box, Qt::Key_Escape);
    QCOMPARE(c.stored(), letters({text("S")}));
}

void CheckableListsTest::textsThatAreNoEntryAreNotShown()
{
    ListColumn c({text("S"), text("Q")});
    CheckableListWidget *box = c.open();
    QCOMPARE(box->checkedItems(), QStringList{text("S")});
    box->showPopup();
    clickEntry(*box, "T");
    clickEntry(*box, "C");
    box->hidePopup();
    QVERIFY(LeavingWays::leave(c.tree(), LeavingWays::Way::Tab));
    QCOMPARE(c.stored(), letters({text("S"), text("T"), text("C")}));
    QCOMPARE(c.tree().remark(c.property(kLetters)),
             text("Left out, since it is no entry of the list: Q. Undo brings it back."));
    c.select(kLetters);
    QTest::keySequence(&c.tree(), QKeySequence::Undo);
    QCOMPARE(c.stored(), letters({text("S"), text("Q")}));
    QCOMPARE(c.tree().remark(c.property(kLetters)), QString());
}

void CheckableListsTest::aLookLeavesTheList_data()
{
    LeavingWays::addRows();
}

void CheckableListsTest::aLookLeavesTheList()
{
    QFETCH(LeavingWays::Way, way);
    for (const QStringList &stored :
         {QStringList(), QStringList{text("T"), text("S")}, QStringList{text("Q"), text("S"), text("S")}}) {
        ListColumn c(stored);
        int edits = 0;
        connect(c.item.edits(), &GridItemEdits::edited, this, [&] { ++edits; });
        const QByteArray before = bytes(c.item.content());
        QVERIFY(c.open());
        QVERIFY(LeavingWays::leave(c.tree(), way));
        QCOMPARE(bytes(c.item.content()), before);
        QCOMPARE(c.stored(), letters(stored));
        QCOMPARE(edits, 0);
    }
}

void CheckableListsTest::valuesOfAnyKindShow()
{
    ListColumn c({text("S")});
    for (const QVariant &value : {QVariant(), QVariant(7), QVariant(text("T"))}) {
        c.property(kLetters).setValue(value);
        QVERIFY(c.open());
        QVERIFY(LeavingWays::leave(c.tree(), LeavingWays::Way::Tab));
        QCOMPARE(c.property(kLetters).value(), value);
    }
}

WIDGET_REGISTER_TEST(CheckableListsTest)
#include "CheckableListsTest.moc"
