#include "LogCapture.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/window/NameDialog.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

QPushButton *nameButton(const QDialog &dialog, const QString &caption)
{
    for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
        if (button->text() == caption)
            return button;
    }
    return nullptr;
}

QStringList labels(const QDialog &dialog)
{
    QStringList texts;
    for (const QLabel *label : dialog.findChildren<QLabel *>())
        texts.append(label->text());
    return texts;
}

} // namespace

class NameDialogTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void modesAskForTheirParts_data();
    void modesAskForTheirParts();
    void okFollowsTheLine();
    void withoutALineOkCanBePressedAtOnce();
    void choicesAreReplaced();
    void noComboTakesNoChoices();
    void buttonsStandAtTheRight();
};

void NameDialogTest::modesAskForTheirParts_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<bool>("hasCombo");
    QTest::addColumn<bool>("hasLine");

    QTest::newRow("add tab") << 0 << u"Add tab"_s << QStringList{u"New tab name:"_s} << false << true;
    QTest::newRow("add column") << 1 << u"Add column"_s << QStringList{u"Column:"_s, u"Column name:"_s}
                                << true << true;
    QTest::newRow("remove column") << 2 << u"Remove column"_s << QStringList{u"Column to remove:"_s} << true
                                   << false;
    QTest::newRow("rename column") << 3 << u"Rename column"_s << QStringList{u"New name:"_s} << true << true;
    QTest::newRow("no mode") << 9 << u"Add tab"_s << QStringList{u"New tab name:"_s} << false << true;
}

void NameDialogTest::modesAskForTheirParts()
{
    QFETCH(const int, mode);
    const NameDialog dialog(mode);
    QTEST(dialog.windowTitle(), "title");
    QTEST(labels(dialog), "texts");
    QTEST(dialog.findChild<QComboBox *>() != nullptr, "hasCombo");
    QTEST(dialog.findChild<QLineEdit *>() != nullptr, "hasLine");
    QVERIFY(nameButton(dialog, u"&Ok"_s));
    QVERIFY(nameButton(dialog, u"&Cancel"_s));
    QCOMPARE(dialog.size(), dialog.sizeHint());
}

void NameDialogTest::okFollowsTheLine()
{
    NameDialog dialog(NameDialog::AddTab);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *line = dialog.findChild<QLineEdit *>();
    const QPushButton *ok = nameButton(dialog, u"&Ok"_s);
    QVERIFY(line->hasFocus());
    QVERIFY(!ok->isEnabled());
    QTest::keyClicks(line, u"Search"_s);
    QVERIFY(ok->isEnabled());
    QTest::keySequence(line, QKeySequence::SelectAll);
    QTest::keyClick(line, Qt::Key_Delete);
    QVERIFY(!ok->isEnabled());
    QTest::keyClick(line, Qt::Key_Return);
    QVERIFY(dialog.isVisible());
    QTest::keyClicks(line, u" "_s);
    QTest::keyClick(line, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.name(), u" "_s);
    QCOMPARE(dialog.comboText(), QString());
}

void NameDialogTest::withoutALineOkCanBePressedAtOnce()
{
    NameDialog dialog(NameDialog::RemoveColumn);
    QVERIFY(nameButton(dialog, u"&Ok"_s)->isEnabled());
    dialog.setComboStrings({u"Search"_s, u"Report"_s});
    QCOMPARE(dialog.comboText(), u"Search"_s);
    QCOMPARE(dialog.name(), QString());
    QTest::mouseClick(nameButton(dialog, u"&Ok"_s), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void NameDialogTest::choicesAreReplaced()
{
    NameDialog dialog(NameDialog::AddColumn);
    dialog.setComboStrings({u"Karvon"_s, u"Samples"_s});
    dialog.setComboStrings({u"Dravik"_s});
    const auto *combo = dialog.findChild<QComboBox *>();
    QCOMPARE(combo->count(), 1);
    QCOMPARE(dialog.comboText(), u"Dravik"_s);
    const int narrow = dialog.width();
    dialog.setComboStrings({u"A column with a name that needs more room than the title"_s});
    QCOMPARE(dialog.size(), dialog.sizeHint());
    QVERIFY(dialog.width() > narrow);
}

void NameDialogTest::noComboTakesNoChoices()
{
    const LogCapture log;
    NameDialog dialog(NameDialog::AddTab);
    dialog.setComboStrings({u"Karvon"_s});
    QCOMPARE(log.warnings(), QStringList{u"Cannot update an uninitialized (nullptr) combobox"_s});
}

void NameDialogTest::buttonsStandAtTheRight()
{
    NameDialog dialog(NameDialog::AddTab);
    dialog.resize(600, 120);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const QPushButton *ok = nameButton(dialog, u"&Ok"_s);
    const QPushButton *cancel = nameButton(dialog, u"&Cancel"_s);
    const QLineEdit *line = dialog.findChild<QLineEdit *>();
    QCOMPARE(cancel->geometry().right(), line->geometry().right());
    QVERIFY(ok->geometry().left() > 300);
    QVERIFY(ok->geometry().top() > line->geometry().bottom());
}

WIDGET_REGISTER_TEST(NameDialogTest)
#include "NameDialogTest.moc"
