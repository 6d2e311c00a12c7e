#include "EditorFixture.h"
#include "WidgetTest.h"

#include <orv/widgets/SequencePainting.h>

#include <QClipboard>
#include <QFontInfo>
#include <QPainter>
#include <QToolButton>

using namespace orv;
using EditorFixture::Editor;
using EditorFixture::text;

namespace {

/// Names that are unique and ranges of masses.
QList<TableColumn> rangeColumns()
{
    using Kind = TableColumnKind;
    TableColumn name{.name = text("name"), .title = text("Name")};
    name.isUnique = true;
    TableColumn from{.name = text("from"), .title = text("From"), .unit = text("Da"), .kind = Kind::Number};
    TableColumn to{.name = text("to"), .title = text("To"), .unit = text("Da"), .kind = Kind::Number};
    TableColumn sequence{.name = text("sequence"), .title = text("Sequence"), .kind = Kind::Sequence};
    return {name, from, to, sequence};
}

QList<QStringList> rangeRows()
{
    const auto row = [](const char *words) { return text(words).split(u' '); };
    return {row("alpha 100 200 PEPTIDEKLVNELTEFAK"), row("beta 300 400 YLYEIAR")};
}

struct RangeEditor
{
    RangeEditor()
    {
        sheet.setRowRules({TableRules::inOrder(sheet.columns(), text("from"), text("to"))});
        if (sheet.load(rangeRows()).hasError())
            qFatal("The fixture doesn't load");
        editor.resize(900, 400);
        editor.show();
        (void)QTest::qWaitForWindowActive(&editor);
        editor.view()->setFocus();
    }

    QModelIndex at(int row, int column) { return editor.view()->tableModel()->index(row, column); }
    QString problem(int row, int column) { return at(row, column).data(TableModel::ProblemRole).toString(); }
    void click(int row, int column)
    {
        QTableView *const view = editor.view();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(at(row, column)).center());
    }
    void keys(const char *words)
    {
        for (const QChar c : text(words))
            QTest::keyClick(QApplication::focusWidget(), c.toLatin1());
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    QString problemCount() { return editor.findChild<QToolButton *>(text("onlyProblems"))->text(); }

    TableSheet sheet{rangeColumns()};
    TableEditor editor{&sheet};
};

} // namespace

class TableRowRulesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatARuleForbidsIsToldWhileItIsTyped();
    void aRepeatedNameIsMarkedInBothRows();
    void theOtherCellOfARuleIsVisited();
    void theOpenEditorHearsOfOtherRows();
    void sequencesStandInBlocksWithPositions();
    void sequencesAreCopiedAndEditedPlain();
    void sequencesHaveATipWithLines();
    void longSequencesEndWithinTheirCell();
};

void TableRowRulesTest::whatARuleForbidsIsToldWhileItIsTyped()
{
    RangeEditor e;
    e.click(0, 1);
    e.keys("250");
    QCOMPARE(QApplication::focusWidget()->accessibleDescription(), text("Must not lie above \"To\"."));
    e.key(Qt::Key_Return);
    QCOMPARE(e.problem(0, 1), text("Must not lie above \"To\"."));
    QCOMPARE(e.problem(0, 2), text("Must not lie below \"From\"."));
    QTRY_COMPARE(e.problemCount(), text("Problems: 2"));
    e.click(0, 2);
    e.keys("300");
    QCOMPARE(QApplication::focusWidget()->accessibleDescription(), QString());
    e.key(Qt::Key_Return);
    QTRY_COMPARE(e.problemCount(), text("No problems"));
}

void TableRowRulesTest::aRepeatedNameIsMarkedInBothRows()
{
    RangeEditor e;
    e.click(1, 0);
    e.keys("alpha");
    QCOMPARE(QApplication::focusWidget()->accessibleDescription(),
             text("Must not repeat; row 1 holds the same."));
    e.key(Qt::Key_Return);
    QCOMPARE(e.problem(0, 0), text("Must not repeat; row 2 holds the same."));
    QTRY_COMPARE(e.problemCount(), text("Problems: 2"));
    e.key(Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(e.problemCount(), text("No problems"));
}

void TableRowRulesTest::theOtherCellOfARuleIsVisited()
{
    RangeEditor e;
    e.click(1, 1);
    e.keys("900");
    e.key(Qt::Key_Return);
    e.click(0, 0);
    e.key(Qt::Key_F8);
    QCOMPARE(e.editor.view()->currentIndex(), e.at(1, 1));
    e.key(Qt::Key_F8);
    QCOMPARE(e.editor.view()->currentIndex(), e.at(1, 2));
    e.click(0, 0);
    e.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(e.editor.view()->currentIndex(), e.at(1, 1));
}

void TableRowRulesTest::theOpenEditorHearsOfOtherRows()
{
    RangeEditor e;
    e.click(0, 0);
    e.key(Qt::Key_F2);
    const QWidget *const line = QApplication::focusWidget();
    QVERIFY(!e.sheet.setText(1, 0, u"alpha").hasError());
    QCOMPARE(line->accessibleDescription(), text("Must not repeat; row 2 holds the same."));
}

void TableRowRulesTest::sequencesStandInBlocksWithPositions()
{
    const QFont font = SequencePainting::fontLike(QFont());
    QVERIFY(QFontInfo(font).fixedPitch());
    const int letters = QFontMetrics(font).horizontalAdvance(QString(20, u'A'));
    QVERIFY(SequencePainting::width(QString(20, u'A'), font) > letters);
    QVERIFY(SequencePainting::width(QString(30, u'A'), font) >
            SequencePainting::width(QString(20, u'A'), font));
    RangeEditor e;
    QTableView *const view = e.editor.view();
    QVERIFY(view->columnWidth(3) > SequencePainting::width(text("PEPTIDEKLVNELTEFAK"), font));
    const QImage blocked = view->viewport()->grab(view->visualRect(e.at(0, 3))).toImage();
    QVERIFY(!e.sheet.setText(0, 3, u"PEPTIDEKLVNELTEFA").hasError());
    QVERIFY(blocked != view->viewport()->grab(view->visualRect(e.at(0, 3))).toImage());
}

void TableRowRulesTest::sequencesAreCopiedAndEditedPlain()
{
    RangeEditor e;
    e.click(0, 3);
    e.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), text("PEPTIDEKLVNELTEFAK"));
    e.key(Qt::Key_F2);
    e.key(Qt::Key_End);
    e.keys(" aa");
    e.key(Qt::Key_Return);
    QCOMPARE(e.sheet.text(0, 3), u"PEPTIDEKLVNELTEFAKAA");
    QGuiApplication::clipboard()->setText(text("  1 peptidekpe lvneltefak\n 21 yly"));
    e.click(1, 3);
    e.key(Qt::Key_F2);
    e.key(Qt::Key_A, Qt::ControlModifier);
    e.key(Qt::Key_V, Qt::ControlModifier);
    e.key(Qt::Key_Return);
    QCOMPARE(e.sheet.text(1, 3), u"PEPTIDEKPELVNELTEFAKYLY");
}

void TableRowRulesTest::sequencesHaveATipWithLines()
{
    RangeEditor e;
    QVERIFY(e.at(0, 3).data(Qt::ToolTipRole).toString().contains(text("1 PEPTIDEKLV NELTEFAK")));
    QVERIFY(!e.sheet.setText(0, 3, u"PEP<TIDE").hasError());
    QVERIFY(e.at(0, 3).data(Qt::ToolTipRole).toString().contains(text("PEP&lt;TIDE")));
    QVERIFY(e.at(0, 3).data(Qt::ToolTipRole).toString().contains(text("Position 4 holds")));
}

void TableRowRulesTest::longSequencesEndWithinTheirCell()
{
    QImage image(300, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    const QFont font = SequencePainting::fontLike(QFont());
    for (const QString &sequence : {QString(3000000, u'A'), QString(3000000, u'('), text("AAAAAAAAAAA")})
        SequencePainting::paint(painter, QRect(20, 0, 60, 40), sequence, font, Qt::black);
    painter.end();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool isInside = x >= 20 && x < 80;
            QVERIFY(isInside || image.pixelColor(x, y) == QColor(Qt::white));
        }
    }
}

WIDGET_REGISTER_TEST(TableRowRulesTest)

#include "TableRowRulesTest.moc"
