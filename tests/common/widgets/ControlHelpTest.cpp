#include "EditorFixture.h"
#include "WidgetTest.h"

#include <orv/widgets/ControlHelp.h>
#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/DialogService.h>

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWhatsThis>

using namespace orv;
using EditorFixture::Editor;
using EditorFixture::text;

namespace {

bool isHelpShown()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.cbegin(), windows.cend(), [](const QWidget *window) {
        return window->isVisible() && window->inherits("QWhatsThat");
    });
}

/// What F1 shows with the focus where it is, and that it does show it.
QString helpByKey()
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
    const bool isShown = isHelpShown();
    QWhatsThis::hideText();
    return isShown ? ControlHelp::explanation(QApplication::focusWidget()) : QString();
}

} // namespace

class ControlHelpTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void cellsTellWhatTheirColumnHolds();
    void cellsTellWhatIsWrongWithThem();
    void editorsOfCellsTellTheSame();
    void fieldsTellTheirTipUnderTheirName();
    void partsTellWhatTheWholeTells();
    void textsFromFilesAreNoMarkup();
    void descriptionsForScreenReadersAreNoMarkup();
    void whatTellsNothingLeavesTheKey();
    void dialogsAnswerTheKeyToo();
    void whatIsExplainedIsNotCovered_data();
    void whatIsExplainedIsNotCovered();
};

void ControlHelpTest::cellsTellWhatTheirColumnHolds()
{
    Editor e;
    e.click(0, 1);
    QCOMPARE(helpByKey(), text("<p><b>Mass (Da)</b></p><p>A number between 0 and 10000 Da.</p>"));
    e.click(0, 3);
    QCOMPARE(helpByKey(), text("<p><b>Mode</b></p><p>One of: Positive, Negative.</p>"));
}

void ControlHelpTest::cellsTellWhatIsWrongWithThem()
{
    Editor e;
    QVERIFY(!e.sheet.setText(0, 0, u"").hasError());
    e.click(0, 0);
    QCOMPARE(helpByKey(),
             text("<p><b>Name</b></p><p>Must not be empty.</p><p>This cell: Must not be empty.</p>"));
}

void ControlHelpTest::editorsOfCellsTellTheSame()
{
    Editor e;
    e.click(1, 1);
    e.key(Qt::Key_F2);
    QVERIFY(QApplication::focusWidget() != e.view());
    QVERIFY(helpByKey().startsWith(text("<p><b>Mass (Da)</b></p>")));
    e.key(Qt::Key_Escape);
}

void ControlHelpTest::fieldsTellTheirTipUnderTheirName()
{
    Editor e;
    auto *const filter = e.editor.findChild<QLineEdit *>(text("filter"));
    filter->setFocus();
    filter->setToolTip(text("Words that a row must hold"));
    QCOMPARE(helpByKey(), text("<p><b>Filter rows</b></p><p>Words that a row must hold</p>"));
    filter->setWhatsThis(text("More about it"));
    QCOMPARE(helpByKey(), text("<p><b>Filter rows</b></p><p>More about it</p>"));
}

void ControlHelpTest::partsTellWhatTheWholeTells()
{
    QWidget window;
    QComboBox box(&window);
    box.addItem(text("one"));
    box.setWhatsThis(text("A choice"));
    window.show();
    QVERIFY(ControlHelp::explanation(box.view()).endsWith(text("<p>A choice</p>")));
}

void ControlHelpTest::textsFromFilesAreNoMarkup()
{
    QWidget field;
    field.setAccessibleName(text("a < b"));
    field.setToolTip(text("c < d\nand more"));
    QCOMPARE(ControlHelp::explanation(&field), text("<p><b>a &lt; b</b></p><p>c &lt; d<br/>and more</p>"));
}

void ControlHelpTest::descriptionsForScreenReadersAreNoMarkup()
{
    const QString shown = text("&lt;b&gt;S1&lt;/b&gt;<br/>is gone");
    QTreeWidget list;
    list.headerItem()->setToolTip(0, text("What was found"));
    auto *item = new QTreeWidgetItem(&list);
    item->setData(0, Qt::AccessibleDescriptionRole, text("<b>S1</b>\nis gone"));
    list.setCurrentItem(item);
    QCOMPARE(ControlHelp::explanation(&list),
             text("<p><b>1</b></p><p>What was found</p><p>This cell: %1</p>").arg(shown));
    QWidget field;
    field.setAccessibleDescription(text("<b>S1</b>\nis gone"));
    QCOMPARE(ControlHelp::explanation(&field), text("<p>%1</p>").arg(shown));
}

void ControlHelpTest::whatTellsNothingLeavesTheKey()
{
    QWidget window;
    QLineEdit line(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    line.setFocus();
    QTest::keyClick(&line, Qt::Key_F1);
    QVERIFY(!isHelpShown());
    QCOMPARE(ControlHelp::explanation(nullptr), QString());
}

void ControlHelpTest::whatIsExplainedIsNotCovered_data()
{
    QTest::addColumn<int>("fromTop");
    QTest::newRow("at the top") << 2;
    QTest::newRow("in the middle") << 50;
    QTest::newRow("at the bottom") << 97;
}

void ControlHelpTest::whatIsExplainedIsNotCovered()
{
    QFETCH(int, fromTop);
    ControlHelp::install();
    QTreeWidget tree;
    tree.setWhatsThis(QStringList(12, text("A line of the explanation.")).join(u'\n'));
    for (int i = 0; i < 100; ++i)
        new QTreeWidgetItem(&tree, {text("row")});
    const QRect screen = tree.screen()->availableGeometry();
    tree.setGeometry(screen);
    tree.show();
    QVERIFY(QTest::qWaitForWindowActive(&tree));
    tree.setFocus();
    const QModelIndex row = tree.indexAt({5, tree.viewport()->height() * fromTop / 100});
    QVERIFY(row.isValid());
    tree.setCurrentIndex(row);
    QTest::keyClick(&tree, Qt::Key_F1);
    const QRect place = tree.visualRect(row);
    const QRect explained(tree.viewport()->mapToGlobal(place.topLeft()), place.size());
    int count = 0;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->inherits("QWhatsThat")) {
            ++count;
            QVERIFY(!window->geometry().intersects(explained));
            QVERIFY(screen.contains(window->geometry()));
        }
    }
    QWhatsThis::hideText();
    QCOMPARE(count, 1);
}

void ControlHelpTest::dialogsAnswerTheKeyToo()
{
    ScriptedAnswerer answers;
    answers.expectDialog(text("Tolerance"), [](QDialog &dialog) {
        dialog.show();
        (void)QTest::qWaitForWindowActive(&dialog);
        dialog.findChild<QLineEdit *>()->setFocus();
        const auto *const buttons = dialog.findChild<QDialogButtonBox *>();
        return helpByKey() == text("<p><b>Width:</b></p><p>In ppm</p>") &&
               buttons->button(QDialogButtonBox::Ok)->icon().isNull();
    });
    QDialog dialog;
    dialog.setWindowTitle(text("Tolerance"));
    auto *const layout = new QFormLayout(&dialog);
    auto *const line = new QLineEdit;
    line->setToolTip(text("In ppm"));
    layout->addRow(text("&Width:"), line);
    layout->addRow(new QDialogButtonBox(QDialogButtonBox::Ok));
    QVERIFY(DialogService::exec(dialog));
    QVERIFY(answers.isDone());
}

WIDGET_REGISTER_TEST(ControlHelpTest)

#include "ControlHelpTest.moc"
