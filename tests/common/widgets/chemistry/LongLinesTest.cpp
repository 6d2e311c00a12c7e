#include "ChemistryFixture.h"
#include "WidgetTest.h"

#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/GlycansDialog.h>
#include <orv/widgets/ModificationsDialog.h>

#include <QLabel>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTextBlock>

using namespace orv;
using namespace ChemistryFixture;

namespace {

constexpr qsizetype kMebi = 1 << 20;

QPlainTextEdit *editIn(const TextTablesDialog &dialog)
{
    return dialog.findChild<QPlainTextEdit *>(text("text"));
}

QWidget *noticeIn(const TextTablesDialog &dialog)
{
    return dialog.findChild<QWidget *>(text("textNotice"));
}

std::unique_ptr<TextTablesDialog> dialogOf(bool ofGlycans)
{
    if (ofGlycans)
        return std::make_unique<GlycansDialog>();
    return std::make_unique<ModificationsDialog>();
}

qsizetype longestLine(const QPlainTextEdit &edit)
{
    qsizetype longest = 0;
    for (QTextBlock block = edit.document()->begin(); block.isValid(); block = block.next())
        longest = std::max(longest, qsizetype(block.length()));
    return longest;
}

} // namespace

/// Lines that no text field lays out in bearable time.
class LongLinesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void longLinesAreShownShortenedAndKept_data();
    void longLinesAreShownShortenedAndKept();
    void aTextIsEditableOnceItsLongLineHasGone();
    void linesAtTheLimitAreWhole();
};

void LongLinesTest::longLinesAreShownShortenedAndKept_data()
{
    QTest::addColumn<bool>("ofGlycans");
    QTest::addColumn<QString>("line");
    const std::pair<const char *, QString> lines[] = {
        {"letters", QString(kMebi, u'A')},
        {"blanks", text("a ").repeated(kMebi / 2)},
        {"a name", QString(kMebi, u'A') + text(" / 1 @ M | fixed")},
        {"a mass", text("A / ") + text("CH").repeated(kMebi / 2) + text(" @ M | fixed")},
        {"residues", text("A / 1 @ ") + text("M,").repeated(kMebi / 2) + text("M | fixed")},
        {"a composition", text("Hex(1)").repeated(kMebi / 6) + text(" @ NGlycan | rare1")},
        {"letters of two units", QStringLiteral("\U0001F9EA").repeated(kMebi / 2)},
    };
    for (const auto &[name, line] : lines) {
        QTest::addRow("modifications: %s", name) << false << line;
        QTest::addRow("glycans: %s", name) << true << line;
    }
}

void LongLinesTest::longLinesAreShownShortenedAndKept()
{
    QFETCH(bool, ofGlycans);
    QFETCH(QString, line);
    const QString whole = text("% first\n") + line + text("\n% last");
    const std::unique_ptr<TextTablesDialog> dialog = dialogOf(ofGlycans);
    dialog->setText(whole);
    show(dialog.get());
    dialog->findChild<QTabWidget *>()->setCurrentIndex(1);
    QVERIFY(!dialog->grab().isNull());
    QPlainTextEdit *const edit = editIn(*dialog);
    QVERIFY2(longestLine(*edit) <= 20'002, qPrintable(QString::number(longestLine(*edit))));
    QCOMPARE(edit->document()->lastBlock().text(), text("% last"));
    QVERIFY(edit->isReadOnly());
    QVERIFY(noticeIn(*dialog)->isVisible());
    QTest::keyClick(edit, Qt::Key_X);
    QVERIFY(dialog->text() == whole);
}

void LongLinesTest::aTextIsEditableOnceItsLongLineHasGone()
{
    ModificationsDialog dialog;
    dialog.setText(QString(kMebi, u'A') + text(" / 1 @ M | fixed\nB / 2 @ C | fixed"));
    show(&dialog);
    auto *const table = dialog.findChild<ScientificTableWidget *>(text("modifications"));
    QVERIFY(!table->sheet()->setText(0, 0, u"A").hasError());
    QCOMPARE(dialog.text(), text("A / 1 @ M | fixed\nB / 2 @ C | fixed"));
    QVERIFY(!editIn(dialog)->isReadOnly());
    QVERIFY(!noticeIn(dialog)->isVisibleTo(editIn(dialog)->parentWidget()));
    dialog.findChild<QTabWidget *>()->setCurrentIndex(1);
    editIn(dialog)->moveCursor(QTextCursor::Start);
    QTest::keyClick(editIn(dialog), Qt::Key_X);
    QVERIFY(dialog.text().startsWith(text("xA / 1")));
}

void LongLinesTest::linesAtTheLimitAreWhole()
{
    for (const bool ofGlycans : {false, true}) {
        const std::unique_ptr<TextTablesDialog> dialog = dialogOf(ofGlycans);
        const QString whole = text("% ") + QString(19'998, u'A') + text("\n\n% b\n");
        dialog->setText(whole);
        QCOMPARE(editIn(*dialog)->toPlainText(), whole);
        QVERIFY(!editIn(*dialog)->isReadOnly());
    }
}

WIDGET_REGISTER_TEST(LongLinesTest)
#include "LongLinesTest.moc"
