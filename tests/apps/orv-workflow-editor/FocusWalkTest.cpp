#include "EditorApplication.h"
#include "EditorWindow.h"
#include "EditorWindows.h"
#include "TestData.h"
#include "WidgetTest.h"

#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/DialogService.h>

#include <QCheckBox>
#include <QDir>
#include <QDockWidget>
#include <QMenuBar>
#include <QStyleFactory>

using namespace orv;
using namespace EditorWindows;
using namespace Qt::StringLiterals;

namespace {

QPalette darkFusion()
{
    const QColor window(0x2D, 0x2D, 0x2D);
    const QColor base(0x1E, 0x1E, 0x1E);
    QPalette dark(window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(role, Qt::white);
    dark.setColor(QPalette::Base, base);
    dark.setColor(QPalette::AlternateBase, window);
    dark.setColor(QPalette::Highlight, QColor(0x2A, 0x82, 0xDA));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    return dark;
}

/// A style and a palette while it lives.
class Look
{
public:
    explicit Look(const QPalette &palette)
        : m_style(QApplication::style()->objectName())
        , m_palette(QApplication::palette())
    {
        QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
        QApplication::setPalette(palette);
    }
    ~Look()
    {
        QApplication::setStyle(QStyleFactory::create(m_style));
        QApplication::setPalette(m_palette);
    }
    Q_DISABLE_COPY_MOVE(Look)

private:
    QString m_style;
    QPalette m_palette;
};

/// Goes on, whatever is asked.
class GoingOn : public DialogAnswerer
{
public:
    GoingOn()
        : m_earlier(DialogService::install(this))
    {}
    ~GoingOn() override { DialogService::install(m_earlier); }
    Q_DISABLE_COPY_MOVE(GoingOn)

    std::optional<DialogAnswer> answer(const DialogRequest &request) override
    {
        for (const QString &button : {u"Apply"_s, u"Yes"_s}) {
            if (request.buttons.contains(button))
                return DialogAnswer{button, {}};
        }
        return DialogAnswer{request.buttons.value(0), {}};
    }

private:
    DialogAnswerer *m_earlier;
};

QString described(const QWidget &widget)
{
    const QString parent = widget.parentWidget() ? widget.parentWidget()->objectName() : QString();
    return u"%1 %2 \"%3\" in %4"_s.arg(QLatin1String(widget.metaObject()->className()), widget.objectName(),
                                       widget.accessibleName(), parent);
}

QImage pictureOf(QWidget &window, const QWidget &widget)
{
    QCoreApplication::sendPostedEvents();
    return window.grab(QRect(widget.mapTo(&window, QPoint()), widget.size())).toImage();
}

/// The stops of the Tab key that look the same with and without the keys, from the one that has them now.
QStringList stopsWithoutSign(QWidget &window)
{
    constexpr int kMost = 300;
    QStringList alike;
    QSet<const QWidget *> seen;
    for (int i = 0; i < kMost; ++i) {
        QPointer<QWidget> stop = QApplication::focusWidget();
        if (!stop || !window.isAncestorOf(stop) || seen.contains(stop))
            break;
        seen.insert(stop);
        const QImage with = pictureOf(window, *stop);
        QTest::keyClick(stop, Qt::Key_Tab);
        if (stop && stop != QApplication::focusWidget() && with == pictureOf(window, *stop))
            alike.append(described(*stop));
    }
    return alike;
}

} // namespace

class FocusWalkTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyStopShowsThatItHasTheKeys_data();
    void everyStopShowsThatItHasTheKeys();
    void emptyBoxesAreSeenInTheDark();
};

void FocusWalkTest::everyStopShowsThatItHasTheKeys_data()
{
    QTest::addColumn<QString>("example");
    QTest::addColumn<QPalette>("palette");
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(u"Fusion"_s));
    const QPalette light = fusion->standardPalette();
    const QDir folder(TestData::examplePath(u"workflows"_s));
    for (const QString &example : folder.entryList({u"*.wflw"_s})) {
        QTest::addRow("%s, light", qPrintable(example)) << folder.filePath(example) << light;
        QTest::addRow("%s, dark", qPrintable(example)) << folder.filePath(example) << darkFusion();
    }
}

void FocusWalkTest::everyStopShowsThatItHasTheKeys()
{
    QFETCH(QString, example);
    QFETCH(QPalette, palette);
    const Look look(palette);
    const GoingOn goingOn;
    EditorApplication::registerCreators();
    CoreMainWindow main;
    EditorWindow window(&main);
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.resize(1280, 800);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QCOMPARE(window.openWorkflow(example), kOpened);
    // Panels that were open behind each other leave their tabs somewhere.
    for (const bool isShown : {true, false}) {
        for (QDockWidget *panel : window.findChildren<QDockWidget *>())
            panel->setVisible(isShown);
        QCoreApplication::processEvents();
    }
    QStringList alike;
    QTabWidget *tabs = window.workflowTabs()->widget();
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        tabs->tabBar()->setFocus(Qt::TabFocusReason);
        alike += stopsWithoutSign(window);
    }
    for (QDockWidget *panel : window.findChildren<QDockWidget *>()) {
        panel->show();
        panel->raise();
        QCoreApplication::processEvents();
        panel->widget()->setFocus(Qt::TabFocusReason);
        alike += stopsWithoutSign(*panel);
        panel->hide();
    }
    alike.removeDuplicates();
    QVERIFY2(alike.isEmpty(), qPrintable(alike.join(u'\n')));
}

void FocusWalkTest::emptyBoxesAreSeenInTheDark()
{
    const Look look(darkFusion());
    const CoreMainWindow main;
    QCheckBox box(u"Box"_s);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const QImage image = box.grab().toImage();
    const int y = image.height() / 2;
    const int ground = image.pixelColor(0, 0).lightness();
    int x = 0;
    while (x < image.width() && image.pixelColor(x, y) == image.pixelColor(0, 0))
        ++x;
    // The first ink from the left is the frame. Black on the dark ground has a difference of 45.
    QVERIFY2(image.pixelColor(x, y).lightness() - ground >= 80, qPrintable(image.pixelColor(x, y).name()));
}

WIDGET_REGISTER_TEST(FocusWalkTest)
#include "FocusWalkTest.moc"
