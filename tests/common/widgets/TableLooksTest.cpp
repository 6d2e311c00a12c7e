#include "EditorFixture.h"
#include "WidgetTest.h"

#include <orv/widgets/MeaningColors.h>

#include <QAbstractButton>
#include <QToolBar>

#include <cmath>

using namespace orv;
using EditorFixture::Editor;
using EditorFixture::text;

namespace {

QPalette paletteOf(const QColor &base, const QColor &ink)
{
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, ink);
    return palette;
}

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

bool hasColor(const QImage &image, const QColor &color)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

} // namespace

class TableLooksTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void colorsOfMeaningStandOut_data();
    void colorsOfMeaningStandOut();
    void aWrongCellHasASignAndABackground();
    void cutRelativePathsDontReadAsWholeOnes();
    void anEmptyTableSaysWhatToDo();
    void anEmptyTableOfOneLineClipsNothing();
    void aFilterThatNothingMatchesIsTold();
    void everythingHasRoomInHalfASmallWindow();
};

void TableLooksTest::colorsOfMeaningStandOut_data()
{
    QTest::addColumn<QColor>("base");
    QTest::addColumn<QColor>("ink");
    QTest::newRow("light") << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("paper") << QColor(0xFC, 0xFC, 0xF8) << QColor(0x23, 0x26, 0x29);
    QTest::newRow("dark") << QColor(0x23, 0x26, 0x29) << QColor(0xFC, 0xFC, 0xFC);
    QTest::newRow("black") << QColor(Qt::black) << QColor(Qt::white);
}

void TableLooksTest::colorsOfMeaningStandOut()
{
    QFETCH(QColor, base);
    QFETCH(QColor, ink);
    const QPalette palette = paletteOf(base, ink);
    const QColor sign = MeaningColors::error(palette);
    const QColor behind = MeaningColors::errorBackground(palette);
    QVERIFY2(contrast(sign, base) >= 4.5, qPrintable(QString::number(contrast(sign, base))));
    QVERIFY2(contrast(sign, behind) >= 4.5, qPrintable(QString::number(contrast(sign, behind))));
    QVERIFY2(contrast(ink, behind) >= 4.5, qPrintable(QString::number(contrast(ink, behind))));
    QVERIFY(contrast(MeaningColors::warning(palette), base) >= 4.5);
    QVERIFY(contrast(MeaningColors::changed(palette), base) >= 4.5);
}

void TableLooksTest::aWrongCellHasASignAndABackground()
{
    Editor e;
    QVERIFY(!e.sheet.setText(1, 1, u"-1").hasError());
    const QPalette palette = e.view()->palette();
    const auto picture = [&](int row) {
        return e.view()->viewport()->grab(e.view()->visualRect(e.at(row, 1))).toImage();
    };
    QVERIFY(hasColor(picture(1), MeaningColors::errorBackground(palette)));
    QVERIFY(!hasColor(picture(2), MeaningColors::errorBackground(palette)));
}

void TableLooksTest::anEmptyTableSaysWhatToDo()
{
    Editor e(QList<QStringList>{});
    QVERIFY(e.view()->emptyText().contains(text("Paste cells from a spreadsheet (Ctrl+V)")));
    const QImage withText = e.view()->viewport()->grab().toImage();
    e.view()->setEmptyText(QString());
    QVERIFY(withText != e.view()->viewport()->grab().toImage());
}

void TableLooksTest::anEmptyTableOfOneLineClipsNothing()
{
    Editor e(QList<QStringList>{});
    TableView *const view = e.view();
    const QColor paper(1, 2, 3);
    view->setPalette(paletteOf(paper, Qt::white));
    const int frame = view->height() - view->viewport()->height();
    view->setFixedHeight(frame + view->fontMetrics().height() + 4);
    QCoreApplication::sendPostedEvents();
    const QImage shown = view->viewport()->grab().toImage();
    int inked = 0;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            if (shown.pixelColor(x, y) == paper)
                continue;
            ++inked;
            QVERIFY2(y > 0 && y < shown.height() - 1, "The text is cut");
        }
    }
    QVERIFY(inked > 100);
}

void TableLooksTest::aFilterThatNothingMatchesIsTold()
{
    Editor e;
    e.view()->setEmptyText(QString());
    e.editor.findChild<QLineEdit *>(text("filter"))->setText(text("zzz"));
    const QImage shown = e.view()->viewport()->grab().toImage();
    QVERIFY(hasColor(shown, e.view()->palette().color(QPalette::Text)));
}

void TableLooksTest::everythingHasRoomInHalfASmallWindow()
{
    Editor e;
    e.editor.resize(640, 400);
    QVERIFY(e.editor.minimumSizeHint().width() <= 640);
    const QList<QWidget *> children = e.editor.findChildren<QWidget *>();
    for (const QWidget *child : children) {
        const bool isControl =
            qobject_cast<const QAbstractButton *>(child) || qobject_cast<const QLineEdit *>(child);
        // A tool bar keeps what has no room in a menu at its end; a line places its signs itself.
        if (!isControl || !child->isVisible() || qobject_cast<const QToolBar *>(child->parentWidget()) ||
            qobject_cast<const QLineEdit *>(child->parentWidget()))
            continue;
        const QRect place(child->mapTo(&e.editor, QPoint()), child->size());
        QVERIFY2(e.editor.rect().contains(place), qPrintable(child->objectName()));
        QVERIFY2(child->width() >= child->minimumSizeHint().width(), qPrintable(child->objectName()));
    }
}

void TableLooksTest::cutRelativePathsDontReadAsWholeOnes()
{
    QList<QStringList> rows = EditorFixture::rows();
    rows[0][5] = text("data/mab_reference_of_the_first_lot.mzML");
    rows[1][5] = text("/mab_reference_of_the_first_lot.mzML");
    rows[2][5] = text("data/mab_reference_of_the_first_lot.mzML");
    Editor e(rows);
    e.view()->setColumnWidth(5, e.view()->fontMetrics().averageCharWidth() * 14);
    const auto picture = [&e](int row) {
        return e.view()->viewport()->grab(e.view()->visualRect(e.at(row, 5))).toImage();
    };
    QVERIFY(picture(0) != picture(1));
    QCOMPARE(picture(0), picture(2));
}

WIDGET_REGISTER_TEST(TableLooksTest)

#include "TableLooksTest.moc"
