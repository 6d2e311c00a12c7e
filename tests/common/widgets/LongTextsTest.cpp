#include "EditorFixture.h"
#include "TextRoom.h"
#include "WidgetTest.h"

#include <orv/widgets/ProgressOutputUtils.h>
#include <orv/widgets/TableImportDialog.h>
#include <orv/widgets/TargetProjectPathChooserDialog.h>

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QToolBar>

using namespace orv;
using EditorFixture::Editor;
using EditorFixture::text;
using TextRoom::clipped;
using TextRoom::LongTexts;

namespace {

bool isData(const QString &words)
{
    const bool hasLetters = std::any_of(words.cbegin(), words.cend(), [](QChar c) { return c.isLetter(); });
    const QList<TableColumn> columns = EditorFixture::columns();
    return !hasLetters || std::any_of(columns.cbegin(), columns.cend(),
                                      [&](const TableColumn &column) { return words == column.header(); });
}

/// What a window says that no translator was asked for.
QStringList untranslated(const QWidget &window)
{
    QStringList texts;
    const QList<QWidget *> children = window.findChildren<QWidget *>();
    for (const QWidget *child : children) {
        texts << child->toolTip() << child->accessibleName();
        if (const auto *const label = qobject_cast<const QLabel *>(child))
            texts.append(label->text());
        if (const auto *const button = qobject_cast<const QAbstractButton *>(child))
            texts.append(button->text());
        if (const auto *const line = qobject_cast<const QLineEdit *>(child))
            texts.append(line->placeholderText());
        for (const QAction *action : child->actions())
            texts << action->text() << action->toolTip();
    }
    texts.removeIf([](const QString &words) { return isData(words) || words.contains(u'~'); });
    texts.removeDuplicates();
    return texts;
}

} // namespace

class LongTextsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void tablesHaveRoom();
    void theSearchHasRoom();
    void theImportHasRoom();
    void dialogsHaveRoom();
    void dialogsFitHalfASmallScreen();
    void progressCountsInPlurals();
};

void LongTextsTest::tablesHaveRoom()
{
    const LongTexts longTexts;
    Editor e;
    QVERIFY(!e.sheet.setText(0, 0, u"").hasError());
    QTRY_VERIFY(e.sheet.areProblemsCounted());
    e.editor.resize(640, 400);
    QVERIFY(e.editor.minimumSizeHint().width() <= 640);
    QTRY_COMPARE(clipped(e.editor).join(u'\n'), QString());
    QCOMPARE(untranslated(e.editor), QStringList(text("Samples")));
}

void LongTextsTest::theSearchHasRoom()
{
    const LongTexts longTexts;
    Editor e;
    e.editor.resize(640, 400);
    e.key(Qt::Key_H, Qt::ControlModifier);
    e.type("alpha");
    QVERIFY2(e.editor.minimumSizeHint().width() <= 640,
             qPrintable(QString::number(e.editor.minimumSizeHint().width())));
    QTRY_COMPARE(clipped(e.editor).join(u'\n'), QString());
    QCOMPARE(untranslated(e.editor), QStringList(text("Samples")));
}

void LongTextsTest::theImportHasRoom()
{
    const LongTexts longTexts;
    TableImportDialog dialog(text("a.csv"), "Name,Mass\na,1\nb,x\n", EditorFixture::columns());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QVERIFY2(dialog.minimumSizeHint().width() <= 1280,
             qPrintable(QString::number(dialog.minimumSizeHint().width())));
    QTRY_COMPARE(clipped(dialog).join(u'\n'), QString());
    QCOMPARE(untranslated(dialog), QStringList());
}

void LongTextsTest::dialogsHaveRoom()
{
    const LongTexts longTexts;
    TargetProjectPathChooserDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QVERIFY(dialog.minimumSizeHint().width() <= 1280);
    QTRY_COMPARE(clipped(dialog).join(u'\n'), QString());
    QCOMPARE(untranslated(dialog), QStringList());
}

void LongTextsTest::dialogsFitHalfASmallScreen()
{
    constexpr int kHalf = 640;
    TableImportDialog import(text("a.csv"), "Name,Mass\na,1\nb,x\n", EditorFixture::columns());
    TargetProjectPathChooserDialog target;
    for (QDialog *dialog : {static_cast<QDialog *>(&import), static_cast<QDialog *>(&target)}) {
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        QVERIFY2(dialog->minimumSizeHint().width() <= kHalf,
                 qPrintable(QString::number(dialog->minimumSizeHint().width())));
        dialog->resize(kHalf, dialog->height());
        QCOMPARE(dialog->width(), kHalf);
        QTRY_COMPARE(clipped(*dialog).join(u'\n'), QString());
    }
}

void LongTextsTest::progressCountsInPlurals()
{
    const LongTexts longTexts;
    qint64 now = 0;
    ProgressOutput progress(text("Checking...~"), nullptr, true, [&now] { return now; });
    progress.reporter().setCount(2);
    QStringList details;
    (void)progress.runInSlices([&](ProgressReporter &reporter) {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (const QWidget *window : windows) {
            if (now > 0 && window->objectName() == text("ProgressOutput")) {
                details.append(window->findChild<QLabel *>(text("detail"))->text());
                details += untranslated(*window);
            }
        }
        now += 3000;
        reporter.setDone(1);
        return now < 6000;
    });
    QCOMPARE(details, QStringList(text("1 of 2~~~, about 3 s left~~~~~~~~~")));
}

WIDGET_REGISTER_TEST(LongTextsTest)

#include "LongTextsTest.moc"
