#include "EditorFixture.h"
#include "WidgetTest.h"

#include <orv/widgets/Icons.h>
#include <orv/widgets/MeaningColors.h>

#include <QAccessible>
#include <QAction>
#include <QDirIterator>
#include <QIcon>
#include <QToolBar>
#include <QToolButton>

#include <set>

using namespace orv;
using EditorFixture::Editor;
using EditorFixture::text;

namespace {

/// How strongly each pixel is painted, and in which colour.
QColor strongestColor(const QPixmap &picture)
{
    const QImage image = picture.toImage();
    QColor strongest = Qt::transparent;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > strongest.alpha())
                strongest = image.pixelColor(x, y);
        }
    }
    return strongest;
}

int painted(const QPixmap &picture)
{
    const QImage image = picture.toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y).alpha() > 60 ? 1 : 0;
    }
    return count;
}

/// The application in other colours for a while.
struct OtherPalette
{
    explicit OtherPalette(const QColor &window) { QApplication::setPalette(QPalette(window, window)); }
    ~OtherPalette() { QApplication::setPalette(earlier); }
    Q_DISABLE_COPY_MOVE(OtherPalette)

    QPalette earlier = QApplication::palette();
};

} // namespace

class IconsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyNameHasADrawingOfItsOwn();
    void everyDrawingHasAName();
    void drawingsFollowThePalette_data();
    void drawingsFollowThePalette();
    void whatCantBeUsedIsDrawnInItsColour();
    void drawingsAreAsSharpAsTheScreen();
    void commandsOfTablesHaveIconsAndTips();
    void toolButtonsHaveNamesForScreenReaders();
    void tipsFollowTheHistory();
};

void IconsTest::everyNameHasADrawingOfItsOwn()
{
    const QList<IconName> names = Icons::all();
    QCOMPARE(std::set<IconName>(names.cbegin(), names.cend()).size(), size_t(names.size()));
    QCOMPARE(int(names.size()), int(IconName::Passed) + 1);
    QList<QImage> pictures;
    for (const IconName name : names) {
        const QPixmap picture = Icons::icon(name).pixmap(QSize(32, 32), 1.0);
        QVERIFY2(painted(picture) > 20, qPrintable(QString::number(int(name))));
        QVERIFY2(painted(picture) < 32 * 32 / 2, qPrintable(QString::number(int(name))));
        QVERIFY2(!pictures.contains(picture.toImage()), qPrintable(QString::number(int(name))));
        pictures.append(picture.toImage());
    }
}

void IconsTest::everyDrawingHasAName()
{
    int files = 0;
    for (QDirIterator drawing(text(":/orv/icons")); drawing.hasNext(); drawing.next())
        ++files;
    QCOMPARE(files, int(Icons::all().size()));
}

void IconsTest::drawingsFollowThePalette_data()
{
    QTest::addColumn<QColor>("window");
    QTest::newRow("light") << QColor(0xEF, 0xEF, 0xEF);
    QTest::newRow("dark") << QColor(0x31, 0x36, 0x3B);
}

void IconsTest::drawingsFollowThePalette()
{
    QFETCH(QColor, window);
    const OtherPalette other(window);
    const QPalette palette = QApplication::palette();
    for (const auto &[name, color] : {std::pair(IconName::Add, palette.color(QPalette::WindowText)),
                                      std::pair(IconName::Error, MeaningColors::error(palette)),
                                      std::pair(IconName::Warning, MeaningColors::warning(palette)),
                                      std::pair(IconName::Changed, MeaningColors::changed(palette))}) {
        QCOMPARE(strongestColor(Icons::icon(name).pixmap(QSize(48, 48), 1.0)).rgb(), color.rgb());
        QCOMPARE(Icons::colorOf(name, palette), color);
    }
}

void IconsTest::whatCantBeUsedIsDrawnInItsColour()
{
    const QPixmap picture = Icons::icon(IconName::Error).pixmap(QSize(48, 48), 1.0, QIcon::Disabled);
    QCOMPARE(strongestColor(picture).rgb(),
             QApplication::palette().color(QPalette::Disabled, QPalette::WindowText).rgb());
}

void IconsTest::drawingsAreAsSharpAsTheScreen()
{
    const QPixmap picture = Icons::icon(IconName::Find).pixmap(QSize(16, 16), 3.0);
    QCOMPARE(picture.size(), QSize(48, 48));
    QCOMPARE(picture.devicePixelRatio(), 3.0);
}

void IconsTest::commandsOfTablesHaveIconsAndTips()
{
    Editor e;
    const QList<QAction *> actions = e.view()->actions();
    QVERIFY(actions.size() > 20);
    for (const QAction *action : actions) {
        QVERIFY2(!action->icon().isNull(), qPrintable(action->objectName()));
        QVERIFY2(!action->toolTip().contains(u'&'), qPrintable(action->toolTip()));
        if (!action->shortcut().isEmpty())
            QVERIFY2(action->toolTip().contains(action->shortcut().toString(QKeySequence::NativeText)),
                     qPrintable(action->toolTip()));
    }
    QCOMPARE(e.view()->action(TableView::Command::AddRow)->toolTip(), text("Add Row (Ins)\nAdd a row below"));
}

void IconsTest::toolButtonsHaveNamesForScreenReaders()
{
    Editor e;
    const QList<QToolButton *> buttons = e.editor.findChild<QToolBar *>()->findChildren<QToolButton *>();
    QStringList names;
    for (QToolButton *button : buttons) {
        if (button->defaultAction())
            names.append(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name));
    }
    QCOMPARE(names, QStringList({text("Add Row"), text("Duplicate Rows"), text("Remove Rows"),
                                 text("Move Up"), text("Move Down"), text("Undo"), text("Redo"), text("Find"),
                                 text("Import"), text("Export")}));
}

void IconsTest::tipsFollowTheHistory()
{
    Editor e;
    e.click(0, 0);
    e.type("x");
    e.key(Qt::Key_Return);
    QCOMPARE(e.view()->action(TableView::Command::Undo)->toolTip(), text("Undo: change Name (Ctrl+Z)"));
}

WIDGET_REGISTER_TEST(IconsTest)

#include "IconsTest.moc"
