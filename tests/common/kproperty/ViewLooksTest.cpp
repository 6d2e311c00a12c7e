#include "ViewFixture.h"

#include <QComboBox>
#include <QHeaderView>
#include <QRegularExpression>
#include <QSpinBox>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

QPalette darkPalette()
{
    QPalette palette(QColor(0x2b2b2b), QColor(0x2b2b2b));
    palette.setColor(QPalette::Base, QColor(0x1e1e1e));
    palette.setColor(QPalette::Text, QColor(0xe8e8e8));
    palette.setColor(QPalette::WindowText, QColor(0xe8e8e8));
    palette.setColor(QPalette::ButtonText, QColor(0xe8e8e8));
    palette.setColor(QPalette::Highlight, QColor(0x3a6ea5));
    return palette;
}

/// Changes the palette, or the direction, of the program for one test.
template<typename Value, void (*set)(Value)>
class ForNow
{
public:
    ForNow(Value value, Value before)
        : m_before(before)
    {
        set(value);
    }
    ~ForNow() { set(m_before); }
    Q_DISABLE_COPY_MOVE(ForNow)

private:
    Value m_before;
};

void setDirection(Qt::LayoutDirection direction)
{
    QGuiApplication::setLayoutDirection(direction);
}
void setPalette(QPalette palette)
{
    QApplication::setPalette(palette);
}

using DirectionForNow = ForNow<Qt::LayoutDirection, setDirection>;
using PaletteForNow = ForNow<QPalette, setPalette>;

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red() / 255.0) + 0.7152 * linear(color.green() / 255.0) +
           0.0722 * linear(color.blue() / 255.0);
}

double contrast(const QColor &first, const QColor &second)
{
    const auto [dark, light] = std::minmax({luminance(first), luminance(second)});
    return (light + 0.05) / (dark + 0.05);
}

QImage cell(const Fixture &fixture, const QModelIndex &index)
{
    return const_cast<KPropertyEditorView &>(fixture.view)
        .viewport()
        ->grab(fixture.view.visualRect(index))
        .toImage();
}

/// The first and last column that is not as the top left corner.
std::pair<int, int> inkColumns(const QImage &image)
{
    const QRgb background = image.pixel(0, 2);
    int first = image.width();
    int last = -1;
    for (int x = 0; x < image.width() - 2; ++x) {
        for (int y = 2; y < image.height() - 2; ++y) {
            if (image.pixel(x, y) != background) {
                first = std::min(first, x);
                last = x;
            }
        }
    }
    return {first, last};
}

void wheelOver(QWidget *widget)
{
    const QPointF center = QRectF(widget->rect()).center();
    QWheelEvent event(center, widget->mapToGlobal(center), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

void drag(const Fixture &fixture, int fromX, int toX, int y)
{
    QWidget *const viewport = fixture.view.viewport();
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, QPoint(fromX, y));
    QTest::mouseMove(viewport, QPoint((fromX + toX) / 2, y));
    QTest::mouseMove(viewport, QPoint(toX, y));
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, QPoint(toX, y));
}

int nameWidth(const Fixture &fixture)
{
    return fixture.view.header()->sectionSize(0);
}

} // namespace

class ViewLooksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nameColumnKeepsItsShareOfTheWidth();
    void dividerMovesWithTheHeaderHidden();
    void movedDividerStaysAndLeavesRoomForValues();
    void dividerIsNoClickOnARow();
    void editorStaysWithinMaxHeight();
    void cutTextsEndInAnEllipsis_data();
    void cutTextsEndInAnEllipsis();
    void fiveLinesAreShownWhole();
    void groupRowsShowTheFocus_data();
    void groupRowsShowTheFocus();
    void selectionsWithoutFocusHaveInactiveColours_data();
    void selectionsWithoutFocusHaveInactiveColours();
    void emptyBoxesAreSeenInTheDark_data();
    void emptyBoxesAreSeenInTheDark();
    void theWheelChangesNothingInAnEditorThatWasNotClicked();
    void theWheelServesAnEditorThatWasClicked();
    void rightToLeftMirrorsCheckBoxes();
    void rightToLeftMirrorsArrowsAndTheRevertButton();
    void signsAreSeenOnSelectedRows_data();
    void signsAreSeenOnSelectedRows();
};

void ViewLooksTest::init()
{
    QTest::failOnWarning(QRegularExpression(text(".?")));
}

void ViewLooksTest::nameColumnKeepsItsShareOfTheWidth()
{
    Fixture fixture;
    for (const int width : {1000, 400, 250, 700}) {
        fixture.view.resize(width, 400);
        QCoreApplication::processEvents();
        QCOMPARE(nameWidth(fixture), fixture.view.viewport()->width() * 45 / 100);
    }
}

void ViewLooksTest::dividerMovesWithTheHeaderHidden()
{
    Fixture fixture;
    fixture.view.header()->hide();
    const int before = nameWidth(fixture);
    drag(fixture, before, before + 60, fixture.center("text").y());
    QCOMPARE(nameWidth(fixture), before + 60);
    QVERIFY(!isEditing(fixture));
    drag(fixture, before + 60, 5000, fixture.center("text").y());
    QVERIFY(fixture.view.header()->sectionSize(1) >= 40);
}

void ViewLooksTest::movedDividerStaysAndLeavesRoomForValues()
{
    Fixture fixture;
    fixture.view.resize(800, 400);
    QCoreApplication::processEvents();
    fixture.view.header()->resizeSection(0, 500);
    fixture.view.resize(900, 400);
    QCoreApplication::processEvents();
    QCOMPARE(nameWidth(fixture), 500);
    fixture.view.resize(400, 400);
    QCoreApplication::processEvents();
    QVERIFY(fixture.view.header()->sectionSize(1) >= 90);
    fixture.view.resize(900, 400);
    QCoreApplication::processEvents();
    QCOMPARE(nameWidth(fixture), 500);
}

void ViewLooksTest::dividerIsNoClickOnARow()
{
    Fixture fixture;
    const int x = nameWidth(fixture);
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(x + 1, fixture.center("text").y()));
    QVERIFY(!isEditing(fixture));
    QTest::mouseMove(fixture.view.viewport(), QPoint(x, fixture.center("text").y()));
    QCOMPARE(fixture.view.viewport()->cursor().shape(), Qt::SplitHCursor);
    QTest::mouseMove(fixture.view.viewport(), QPoint(x + 40, fixture.center("text").y()));
    QCOMPARE(fixture.view.viewport()->cursor().shape(), Qt::ArrowCursor);
}

void ViewLooksTest::editorStaysWithinMaxHeight()
{
    Fixture fixture;
    fixture.set["text"].setOption("multiLine", true);
    fixture.set["text"].setOption("minHeight", 3);
    fixture.set["text"].setOption("maxHeight", 3);
    fixture.set["text"].setValue(text("1\n2\n3\n4\n5"), KProperty::ValueOption::IgnoreOld);
    fixture.view.changeSet(&fixture.set);
    const int line = fixture.view.fontMetrics().lineSpacing();
    fixture.open("text");
    QVERIFY(fixture.view.visualRect(fixture.index("text")).height() >= 5 * line);
    QVERIFY(fixture.editor()->height() < 4 * line);
    QVERIFY(fixture.editor()->height() >= 3 * line);
}

void ViewLooksTest::cutTextsEndInAnEllipsis_data()
{
    QTest::addColumn<QVariant>("cut");
    QTest::addColumn<QVariant>("whole");
    const QString longText(300, QLatin1Char('m'));
    QTest::newRow("long line") << QVariant(longText) << QVariant(text("m"));
    QTest::newRow("line below") << QVariant(text("m\nn")) << QVariant(text("m"));
}

void ViewLooksTest::cutTextsEndInAnEllipsis()
{
    QFETCH(QVariant, cut);
    QFETCH(QVariant, whole);
    Fixture fixture;
    fixture.set["text"].setValue(whole, KProperty::ValueOption::IgnoreOld);
    const QImage asItIs = cell(fixture, fixture.index("text"));
    fixture.set["text"].setValue(cut, KProperty::ValueOption::IgnoreOld);
    const QImage shortened = cell(fixture, fixture.index("text"));
    // Three dots on the base line, with nothing above them.
    const auto [first, last] = inkColumns(shortened);
    QVERIFY(last > inkColumns(asItIs).second);
    int inked = 0;
    for (int y = 2; y < shortened.height() / 2; ++y) {
        for (int x = last - 3; x <= last; ++x) {
            inked += shortened.pixel(x, y) != shortened.pixel(0, 2);
        }
    }
    QCOMPARE(inked, 0);
    QVERIFY(first < last);
}

void ViewLooksTest::fiveLinesAreShownWhole()
{
    Fixture fixture;
    fixture.set["text"].setOption("multiLine", true);
    const auto lastLineIsInked = [&fixture](const char *value) {
        fixture.set["text"].setValue(text(value), KProperty::ValueOption::IgnoreOld);
        fixture.view.changeSet(&fixture.set);
        const QImage image = cell(fixture, fixture.index("text"));
        const int line = fixture.view.fontMetrics().lineSpacing();
        int inked = 0;
        for (int y = image.height() - line; y < image.height() - 3; ++y) {
            for (int x = 2; x < image.width() - 4; ++x) {
                inked += image.pixel(x, y) != image.pixel(0, 2);
            }
        }
        return inked;
    };
    QVERIFY(lastLineIsInked("MM\nMM\nMM\nMM\n[3 more line(s)]") > 40);
    QCOMPARE(lastLineIsInked("MM\nMM\nMM\nMM\n "), 0);
}

void ViewLooksTest::groupRowsShowTheFocus_data()
{
    emptyBoxesAreSeenInTheDark_data();
}

void ViewLooksTest::groupRowsShowTheFocus()
{
    QFETCH(bool, dark);
    const QPalette before = QApplication::palette();
    const PaletteForNow palette(dark ? darkPalette() : before, before);
    Fixture fixture;
    const QModelIndex group = fixture.view.model()->index(1, 0);
    const QImage without = cell(fixture, group);
    fixture.view.setCurrentIndex(group);
    fixture.view.setFocus();
    QCOMPARE(fixture.view.currentIndex(), group);
    const QImage with = cell(fixture, group);
    QVERIFY(without != with);
    QVERIFY(contrast(with.pixelColor(1, with.height() / 2), with.pixelColor(4, 3)) >= 3.0);
    fixture.view.setCurrentIndex(fixture.index("text").siblingAtColumn(0));
    QCOMPARE(cell(fixture, group), without);
}

void ViewLooksTest::selectionsWithoutFocusHaveInactiveColours_data()
{
    QTest::addColumn<QColor>("background");
    QTest::addColumn<QColor>("text");
    QTest::newRow("light") << QColor(0xB0, 0xB4, 0xB8) << QColor(0xFF, 0xFF, 0xFF);
    QTest::newRow("dark") << QColor(0x45, 0x4A, 0x50) << QColor(0x70, 0x70, 0x70);
    QTest::newRow("legible already") << QColor(0x20, 0x20, 0x60) << QColor(0xFF, 0xF0, 0xD0);
}

void ViewLooksTest::selectionsWithoutFocusHaveInactiveColours()
{
    QFETCH(QColor, background);
    QFETCH(QColor, text);
    const QPalette before = QApplication::palette();
    QPalette inactive = before;
    inactive.setColor(QPalette::Inactive, QPalette::Highlight, background);
    inactive.setColor(QPalette::Inactive, QPalette::HighlightedText, text);
    const PaletteForNow palette(inactive, before);
    Fixture fixture;
    fixture.view.setFocus();
    const QModelIndex value = fixture.index("text");
    fixture.view.setCurrentIndex(value.siblingAtColumn(0));
    const auto at = [&](const QModelIndex &index) { return cell(fixture, index).pixelColor(1, 2); };
    // Styles shade selections a little.
    const auto areAlike = [](const QColor &first, const QColor &second) {
        return contrast(first, second) < 1.1;
    };
    QVERIFY(areAlike(at(value), inactive.color(QPalette::Active, QPalette::Highlight)));
    fixture.view.clearFocus();
    for (const QModelIndex &index : {value, value.siblingAtColumn(0)}) {
        QVERIFY2(areAlike(at(index), background), qPrintable(at(index).name()));
        const QImage image = cell(fixture, index);
        double best = 0;
        for (int y = 2; y < image.height() - 2; ++y) {
            for (int x = 2; x < image.width() - 2; ++x) {
                best = std::max(best, contrast(image.pixelColor(x, y), background));
            }
        }
        QVERIFY2(best >= 4.5, qPrintable(QString::number(best)));
    }
}

void ViewLooksTest::emptyBoxesAreSeenInTheDark_data()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void ViewLooksTest::emptyBoxesAreSeenInTheDark()
{
    QFETCH(bool, dark);
    const QPalette before = QApplication::palette();
    const PaletteForNow palette(dark ? darkPalette() : before, before);
    const Fixture fixture;
    const QImage image = cell(fixture, fixture.index("flag"));
    const int y = image.height() / 2;
    // The first ink from the left is the left side of the box.
    const QColor background = image.pixelColor(0, y);
    int x = 0;
    while (x < image.width() && image.pixelColor(x, y) == background) {
        ++x;
    }
    QVERIFY(x < 30);
    QVERIFY2(contrast(image.pixelColor(x, y), background) >= 3.0, qPrintable(image.pixelColor(x, y).name()));
    QVERIFY(contrast(image.pixelColor(x, y), image.pixelColor(x + 4, y)) >= 3.0);
}

void ViewLooksTest::signsAreSeenOnSelectedRows_data()
{
    emptyBoxesAreSeenInTheDark_data();
}

void ViewLooksTest::signsAreSeenOnSelectedRows()
{
    QFETCH(bool, dark);
    const QPalette before = QApplication::palette();
    const PaletteForNow palette(dark ? darkPalette() : before, before);
    Fixture fixture;
    fixture.set["text"].setValue(text("changed"));
    fixture.view.selectionModel()->select(fixture.index("text"),
                                          QItemSelectionModel::Select | QItemSelectionModel::Rows);
    const QImage image = cell(fixture, fixture.index("text"));
    const QColor background = image.pixelColor(image.width() - 2, 2);
    double best = 0;
    for (int y = 2; y < image.height() - 2; ++y) {
        for (int x = image.width() - image.height(); x < image.width() - 2; ++x)
            best = std::max(best, contrast(image.pixelColor(x, y), background));
    }
    QVERIFY2(best >= 3.0, qPrintable(QString::number(best)));
}

void ViewLooksTest::theWheelChangesNothingInAnEditorThatWasNotClicked()
{
    Fixture fixture;
    fixture.set["text"].setListData({text("abc"), text("def")}, {text("ABC"), text("DEF")});
    fixture.set["text"].setType(KProperty::ValueFromList);
    fixture.view.changeSet(&fixture.set);
    for (const char *name : {"number", "text"}) {
        fixture.open(name);
        QVERIFY(isEditing(fixture));
        const QList<QWidget *> parts =
            fixture.editor()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        wheelOver(fixture.editor());
        for (QWidget *part : parts) {
            if (part->isVisible()) {
                wheelOver(part);
            }
        }
        QVERIFY(!fixture.set[name].isModified());
        fixture.press(Qt::Key_Escape);
    }
}

void ViewLooksTest::theWheelServesAnEditorThatWasClicked()
{
    Fixture fixture;
    fixture.open("number");
    auto *const box = qobject_cast<QSpinBox *>(fixture.editor());
    QVERIFY(box);
    QTest::mouseClick(box->findChild<QWidget *>(), Qt::LeftButton);
    wheelOver(box);
    QCOMPARE(fixture.set.propertyValue("number"), QVariant(4));
}

void ViewLooksTest::rightToLeftMirrorsCheckBoxes()
{
    const DirectionForNow direction(Qt::RightToLeft, Qt::LeftToRight);
    Fixture fixture;
    QImage image = cell(fixture, fixture.index("flag"));
    const auto [first, last] = inkColumns(image);
    QVERIFY2(last > image.width() - 10, qPrintable(QString::number(last)));
    QVERIFY(first > image.width() / 2);
    // One click on the box, which is at the right.
    const QRect rect = fixture.view.visualRect(fixture.index("flag"));
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(rect.right() - 9, rect.center().y()));
    QCOMPARE(fixture.set.propertyValue("flag"), QVariant(true));
}

void ViewLooksTest::rightToLeftMirrorsArrowsAndTheRevertButton()
{
    const DirectionForNow direction(Qt::RightToLeft, Qt::LeftToRight);
    Fixture fixture;
    const QModelIndex group = fixture.view.model()->index(1, 0);
    fixture.view.setExpanded(group, false);
    const QRect row(0, fixture.view.visualRect(group).top(), fixture.view.viewport()->width(),
                    fixture.view.visualRect(group).height());
    const QImage image = fixture.view.viewport()->grab(row).toImage();
    const QImage arrow = image.copy(image.width() - 20, 2, 16, image.height() - 5);
    // The point of the arrow is the one column with little ink, at the left.
    const auto inkIn = [&arrow](int x) {
        int inked = 0;
        for (int y = 0; y < arrow.height(); ++y) {
            inked += arrow.pixel(x, y) != arrow.pixel(0, 0);
        }
        return inked;
    };
    const auto [first, last] = inkColumns(arrow);
    QVERIFY(first < last);
    int topmost = arrow.height();
    int topmostColumn = 0;
    for (int x = first; x <= last; ++x) {
        for (int y = 0; y < topmost; ++y) {
            if (arrow.pixel(x, y) != arrow.pixel(0, 0)) {
                topmost = y;
                topmostColumn = x;
            }
        }
    }
    QVERIFY(inkIn(first) > 0);
    QVERIFY2(topmostColumn > (first + last) / 2, "the arrow points to the left");

    fixture.set["text"].setValue(text("changed"));
    const QRect cellRect = fixture.view.visualRect(fixture.index("text"));
    QTest::mouseClick(fixture.view.viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(cellRect.left() + 8, cellRect.center().y()));
    QCOMPARE(fixture.set.propertyValue("text"), QVariant(text("abc")));
}

QTEST_MAIN(ViewLooksTest)
#include "ViewLooksTest.moc"
