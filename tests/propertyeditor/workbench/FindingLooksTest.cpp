#include "FindingsFixture.h"
#include "WidgetTest.h"

#include <orv/widgets/Icons.h>

#include <QScrollBar>
#include <QToolButton>

using namespace orv;
using namespace FindingsFixture;
using namespace Qt::StringLiterals;

/// How findings stand in their panel, at rows and tabs.
class FindingLooksTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aSeverityHasOneSign();
    void passedChecksHaveASignOfTheirOwn();
    void aFewFindingsAreReadWhole();
    void allColumnsAreInSight_data();
    void allColumnsAreInSight();
};

void FindingLooksTest::aSeverityHasOneSign()
{
    Checked c;
    QVERIFY(c.check());
    const auto picture = [](const QIcon &icon) { return icon.pixmap(32).toImage(); };
    const QImage error = picture(Icons::icon(IconName::Error));
    const QModelIndex severity = c.list().model()->index(0, kSeverity);
    QCOMPARE(picture(severity.data(Qt::DecorationRole).value<QIcon>()), error);
    QCOMPARE(picture(c.window->tabs().tabIcon(1)), error);
    QCOMPARE(picture(c.child<QToolButton>("statusFindings")->icon()), error);
    const GridPropertyEditorView *column = c.view(1, 1);
    const KPropertyEditorView &rows = *column->editorView();
    const KProperty &property = column->propertySet()->property("InSilicoPeptidesFile");
    QCOMPARE(rows.remarkKind(property), KPropertyEditorView::RemarkKind::Error);
    QCOMPARE(picture(rows.remarkIcon(KPropertyEditorView::RemarkKind::Error)), error);
    QCOMPARE(picture(rows.remarkIcon(KPropertyEditorView::RemarkKind::Warning)),
             picture(Icons::icon(IconName::Warning)));
    const TableModel *model = c.table().tableModel();
    QCOMPARE(model->headerData(1, Qt::Vertical, TableModel::IsErrorRole), QVariant(true));
}

void FindingLooksTest::passedChecksHaveASignOfTheirOwn()
{
    const QTemporaryDir folder;
    Checked c(faultless(folder));
    const auto *told = c.child<QToolButton>("statusFindings");
    const auto picture = [](const QIcon &icon) { return icon.pixmap(32).toImage(); };
    QCOMPARE(picture(told->icon()), picture(Icons::icon(IconName::Question)));
    QVERIFY(c.check());
    QCOMPARE(told->text(), u"No findings"_s);
    QCOMPARE(picture(told->icon()), picture(Icons::icon(IconName::Passed)));
}

void FindingLooksTest::aFewFindingsAreReadWhole()
{
    Checked c;
    QVERIFY(c.check());
    for (const int width : {1280, 640}) {
        c.window->resize(width, 760);
        QTRY_COMPARE(c.window->width(), width);
        for (int row = 0; row < c.list().model()->rowCount(); ++row) {
            const QModelIndex message = c.list().model()->index(row, kMessage);
            const QRect cell = c.list().visualRect(message);
            const QRect needed = c.list().fontMetrics().boundingRect(
                QRect(0, 0, cell.width(), QWIDGETSIZE_MAX), Qt::TextWordWrap, message.data().toString());
            QVERIFY2(cell.height() >= needed.height(), qPrintable(message.data().toString()));
        }
    }
}

void FindingLooksTest::allColumnsAreInSight_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("a screen") << 1280;
    QTest::newRow("half of one") << 640;
}

void FindingLooksTest::allColumnsAreInSight()
{
    QFETCH(int, width);
    Checked c;
    QVERIFY(c.check());
    c.window->resize(width, 760);
    QTRY_COMPARE(c.window->width(), width);
    QTRY_VERIFY(!c.list().horizontalScrollBar()->isVisible());
    const auto widthOf = [&c](int column) {
        return c.list().visualRect(c.list().model()->index(0, column)).width();
    };
    QVERIFY(widthOf(kRule) < widthOf(kPlace));
    QVERIFY(widthOf(kSeverity) >= c.list().sizeHintForColumn(kSeverity));
    QVERIFY(widthOf(kMessage) > widthOf(kPlace));
}

WIDGET_REGISTER_TEST(FindingLooksTest)
#include "FindingLooksTest.moc"
