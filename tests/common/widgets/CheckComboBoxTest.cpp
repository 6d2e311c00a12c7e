#include "WidgetTest.h"

#include <orv/widgets/QxtCheckComboBox.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardItemModel>

namespace {

QString utf8Text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QStringList texts(std::initializer_list<const char *> items)
{
    QStringList result;
    for (const char *item : items) {
        result << utf8Text(item);
    }
    return result;
}

struct Box : QxtCheckComboBox
{
    Box()
    {
        addItems(texts({"a", "b", "c"}));
        resize(200, 30);
        show();
        (void)QTest::qWaitForWindowActive(this);
    }

    void click(int row)
    {
        const QRect rect = view()->visualRect(model()->index(row, 0));
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, rect.center());
    }
};

} // namespace

class CheckComboBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingIsCheckedAtFirst();
    void checkedItemsComeInTheOrderOfTheRows();
    void unknownItemsAreLeftOut();
    void oneSignalPerChange();
    void sameItemsAgainAreSilent();
    void stateOfAMissingRowIsIgnored();
    void clicksToggleAndTheListStaysOpen();
    void releaseOnAnotherRowTogglesNothing();
    void keyboardOpensChecksAndCloses();
    void escapeClosesAndKeepsWhatIsChecked();
    void disabledRowStaysAsItIs();
    void removedRowsAreNoLongerChecked();
    void ownModelIsFollowed();
    void checkedRowsOfAModelMayComeLater();
    void screenReaderHearsTheCheckedTexts();
    void typingAndWheelChangeNothing();
    void textFollowsSeparatorAndDefault();
};

void CheckComboBoxTest::init()
{
    // Offscreen there is no window manager to raise a list and no keyboard to grab.
    QTest::failOnWarning(QRegularExpression(utf8Text("^(?!This plugin does not support)")));
}

void CheckComboBoxTest::nothingIsCheckedAtFirst()
{
    const Box box;
    QVERIFY(box.checkedItems().isEmpty());
    QCOMPARE(box.itemCheckState(0), Qt::Unchecked);
    QCOMPARE(box.itemData(0, Qt::CheckStateRole), QVariant(Qt::Unchecked));
    QCOMPARE(box.separator(), utf8Text(", "));
}

void CheckComboBoxTest::checkedItemsComeInTheOrderOfTheRows()
{
    Box box;
    box.setCheckedItems(texts({"c", "a"}));
    QCOMPARE(box.checkedItems(), texts({"a", "c"}));
    box.setCheckedItems(texts({"b"}));
    QCOMPARE(box.checkedItems(), texts({"b"}));
}

void CheckComboBoxTest::unknownItemsAreLeftOut()
{
    Box box;
    box.setCheckedItems(texts({"a", "zzz"}));
    QCOMPARE(box.checkedItems(), texts({"a"}));
}

void CheckComboBoxTest::oneSignalPerChange()
{
    Box box;
    const QSignalSpy spy(&box, &QxtCheckComboBox::checkedItemsChanged);
    box.setCheckedItems(texts({"a", "b", "c"}));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toStringList(), texts({"a", "b", "c"}));
    box.setItemCheckState(1, Qt::Unchecked);
    QCOMPARE(spy.count(), 2);
}

void CheckComboBoxTest::sameItemsAgainAreSilent()
{
    Box box;
    box.setCheckedItems(texts({"a"}));
    const QSignalSpy spy(&box, &QxtCheckComboBox::checkedItemsChanged);
    box.setCheckedItems(texts({"a", "not there"}));
    box.setItemCheckState(0, Qt::Checked);
    QCOMPARE(spy.count(), 0);
}

void CheckComboBoxTest::stateOfAMissingRowIsIgnored()
{
    Box box;
    box.setItemCheckState(17, Qt::Checked);
    box.setItemCheckState(-1, Qt::Checked);
    QVERIFY(box.checkedItems().isEmpty());
    QCOMPARE(box.itemCheckState(17), Qt::Unchecked);
}

void CheckComboBoxTest::clicksToggleAndTheListStaysOpen()
{
    Box box;
    box.showPopup();
    box.click(0);
    box.click(2);
    QVERIFY(box.view()->isVisible());
    QCOMPARE(box.checkedItems(), texts({"a", "c"}));
    box.click(0);
    QCOMPARE(box.checkedItems(), texts({"c"}));
    box.hidePopup();
    QCOMPARE(box.currentIndex(), -1);
}

void CheckComboBoxTest::releaseOnAnotherRowTogglesNothing()
{
    Box box;
    box.showPopup();
    const QAbstractItemView *const view = box.view();
    const auto center = [&](int row) { return view->visualRect(box.model()->index(row, 0)).center(); };
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, center(0));
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, center(2));
    QVERIFY(box.checkedItems().isEmpty());
}

void CheckComboBoxTest::keyboardOpensChecksAndCloses()
{
    Box box;
    QTest::keyClick(&box, Qt::Key_Space);
    QVERIFY(box.view()->isVisible());
    box.view()->setCurrentIndex(box.model()->index(0, 0));
    QTest::keyClick(box.view(), Qt::Key_Down);
    QTest::keyClick(box.view(), Qt::Key_Space);
    QCOMPARE(box.checkedItems(), texts({"b"}));
    QTest::keyClick(box.view(), Qt::Key_Return);
    QVERIFY(!box.view()->isVisible());
    QCOMPARE(box.checkedItems(), texts({"b"}));
}

void CheckComboBoxTest::escapeClosesAndKeepsWhatIsChecked()
{
    Box box;
    box.showPopup();
    box.click(1);
    QTest::keyClick(box.view(), Qt::Key_Escape);
    QVERIFY(!box.view()->isVisible());
    QCOMPARE(box.checkedItems(), texts({"b"}));
}

void CheckComboBoxTest::disabledRowStaysAsItIs()
{
    Box box;
    qobject_cast<QStandardItemModel *>(box.model())->item(1)->setEnabled(false);
    box.showPopup();
    box.click(1);
    QVERIFY(box.checkedItems().isEmpty());
}

void CheckComboBoxTest::removedRowsAreNoLongerChecked()
{
    Box box;
    box.setCheckedItems(texts({"a", "b"}));
    const QSignalSpy spy(&box, &QxtCheckComboBox::checkedItemsChanged);
    box.removeItem(0);
    QCOMPARE(box.checkedItems(), texts({"b"}));
    QCOMPARE(spy.count(), 1);
    box.clear();
    QVERIFY(box.checkedItems().isEmpty());
}

void CheckComboBoxTest::ownModelIsFollowed()
{
    QStandardItemModel model;
    auto *const item = new QStandardItem(utf8Text("x"));
    item->setCheckable(true);
    model.appendRow(item);
    Box box;
    box.setModel(&model);
    const QSignalSpy spy(&box, &QxtCheckComboBox::checkedItemsChanged);
    item->setCheckState(Qt::Checked);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(box.checkedItems(), texts({"x"}));
}

void CheckComboBoxTest::checkedRowsOfAModelMayComeLater()
{
    QStandardItemModel model;
    Box box;
    box.setModel(&model);
    const QSignalSpy spy(&box, &QxtCheckComboBox::checkedItemsChanged);
    auto *const item = new QStandardItem(utf8Text("x"));
    item->setCheckable(true);
    item->setCheckState(Qt::Checked);
    model.appendRow(item);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(box.checkedItems(), texts({"x"}));
}

void CheckComboBoxTest::screenReaderHearsTheCheckedTexts()
{
    Box box;
    box.setDefaultText(utf8Text("nothing checked"));
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(&box);
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::ComboBox);
    QCOMPARE(accessible->text(QAccessible::Value), utf8Text("nothing checked"));
    box.setCheckedItems(texts({"a", "c"}));
    QCOMPARE(accessible->text(QAccessible::Value), utf8Text("a, c"));
    QCOMPARE(accessible->childCount(), 1);
    QCOMPARE(accessible->indexOfChild(accessible->child(0)), 0);
    accessible->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    QVERIFY(box.view()->isVisible());
    QVERIFY(accessible->state().expanded);
    accessible->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    QVERIFY(!box.view()->isVisible());
}

void CheckComboBoxTest::typingAndWheelChangeNothing()
{
    Box box;
    box.setCheckedItems(texts({"a"}));
    box.hidePopup();
    QTest::keyClicks(&box, utf8Text("b"));
    QTest::keyClick(&box, Qt::Key_End);
    QCOMPARE(box.checkedItems(), texts({"a"}));
    QCOMPARE(box.currentIndex(), -1);
}

void CheckComboBoxTest::textFollowsSeparatorAndDefault()
{
    Box box;
    const QImage empty = box.grab().toImage();
    box.setDefaultText(utf8Text("nothing checked"));
    const QImage withDefault = box.grab().toImage();
    QVERIFY(withDefault != empty);
    box.setCheckedItems(texts({"a", "b"}));
    const QImage checked = box.grab().toImage();
    QVERIFY(checked != withDefault);
    box.setSeparator(utf8Text(" + "));
    QVERIFY(box.grab().toImage() != checked);
    QCOMPARE(box.defaultText(), utf8Text("nothing checked"));
}

WIDGET_REGISTER_TEST(CheckComboBoxTest)
#include "CheckComboBoxTest.moc"
