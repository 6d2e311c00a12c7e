#include "WidgetTest.h"
#include "WindowFixture.h"
#include "editors/LeavingWays.h"

#include <KPropertySet.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/workbench/DocumentHistory.h>
#include <orv/propertyeditor/workbench/Workbench.h>
#include <orv/widgets/ControlHelp.h>
#include <orv/widgets/TableView.h>

#include <QAbstractItemView>
#include <QDockWidget>
#include <QHelpEvent>
#include <QLabel>
#include <QMenuBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <QToolTip>
#include <QWhatsThis>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

class WorkbenchTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void menusStandBehindThoseThatAreThere();
    void panelsOpenFromTheViewMenu();
    void openedPanelsComeToTheFront();
    void keysGoFromTabToTabOutOfTablesToo();
    void aSecondFindKeyLeadsFromATableToAllSettings();
    void panelsLeaveTheWorkflowItsPlace();
    void documentsAreTold();
    void savedDocumentsAreTold();
    void titleAndStatusLineTellOfChanges();
    void whatWasToldGoesWithTheNextDeed_data();
    void whatWasToldGoesWithTheNextDeed();
    void whatIsToldOfADeedStays();
    void longMessagesEndInAnEllipsis();
    void theHelpKeyExplainsTheSetting();
};

void WorkbenchTest::menusStandBehindThoseThatAreThere()
{
    Window window;
    window.menuBar()->addMenu(u"&File"_s);
    new Workbench(&window);
    window.menuBar()->addMenu(u"&Help"_s);
    QStringList titles;
    for (const QAction *menu : window.menuBar()->actions())
        titles.append(menu->text());
    QCOMPARE(titles, QStringList({u"&File"_s, u"&Edit"_s, u"&View"_s, u"&Help"_s}));
}

void WorkbenchTest::panelsOpenFromTheViewMenu()
{
    Window window;
    auto *workbench = new Workbench(&window);
    const QDockWidget *panel =
        workbench->addPanel(new QLabel(u"Nothing was found."_s), u"findings"_s, u"Findings"_s,
                            Qt::BottomDockWidgetArea, QKeySequence(Qt::CTRL | Qt::Key_7));
    window.show();
    QVERIFY(!panel->isVisible());
    QTest::keyClick(&window, Qt::Key_7, Qt::ControlModifier);
    QVERIFY(panel->isVisible());
    QStringList entries;
    for (const QAction *entry : workbench->viewMenu()->actions())
        entries.append(entry->isSeparator() ? u"---"_s : entry->text());
    QCOMPARE(entries,
             QStringList({u"Find &Settings"_s, u"&Findings"_s, u"&Upgrade"_s, u"Setting in &Other Columns"_s,
                          u"Settings Not &Pasted"_s, u"Co&mparison"_s, u"Findings"_s, u"---"_s,
                          u"&Check Workflow"_s, u"&Next Finding"_s, u"Pre&vious Finding"_s,
                          u"Compare &with..."_s, u"---"_s, u"Next Ta&b"_s, u"Previous &Tab"_s}));
    QTest::keyClick(&window, Qt::Key_7, Qt::ControlModifier);
    QVERIFY(!panel->isVisible());
}

void WorkbenchTest::keysGoFromTabToTabOutOfTablesToo()
{
    Window window;
    const Workbench workbench(&window);
    const QJsonObject samples =
        settingsCell("Samples", {setting("SamplesTable", QJsonObject{{u"Samples"_s, QJsonArray()}})});
    QTest::keyClick(&window, Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(window.openWorkflow(Documents::document({Documents::tab(u"A"_s, {u"Samples"_s}, {samples}),
                                                      Documents::tab(u"B"_s, {u"One"_s}, {karvonCell()})},
                                                     metadata())),
             kOpened);
    window.show();
    window.grid(0)->findChild<TableView *>()->setFocus();
    for (const int tab : {1, 0, 1}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(window.tabs().currentIndex(), tab);
        QVERIFY(window.grid(tab)->isAncestorOf(QApplication::focusWidget()));
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(window.tabs().currentIndex(), 0);
}

void WorkbenchTest::aSecondFindKeyLeadsFromATableToAllSettings()
{
    Window window;
    const Workbench workbench(&window);
    const QJsonObject samples =
        settingsCell("Samples", {setting("SamplesTable", QJsonObject{{u"Samples"_s, QJsonArray()}})});
    QCOMPARE(window.openWorkflow(
                 Documents::document({Documents::tab(u"A"_s, {u"Samples"_s}, {samples})}, metadata())),
             kOpened);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QWidget *table = window.grid(0)->findChild<TableView *>();
    table->setFocus();
    for (const char *field : {"findText", "findField"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(field));
    }
}

void WorkbenchTest::openedPanelsComeToTheFront()
{
    Window window;
    auto *workbench = new Workbench(&window);
    QList<QLabel *> contents;
    for (const auto key : {Qt::Key_7, Qt::Key_8}) {
        contents.append(new QLabel(QString(QChar(char16_t(key)))));
        workbench->addPanel(contents.constLast(), u"panel%1"_s.arg(int(key)), u"Panel"_s,
                            Qt::BottomDockWidgetArea, QKeySequence(Qt::CTRL | key));
    }
    window.show();
    for (const int panel : {1, 0}) {
        QTest::keyClick(&window, panel == 0 ? Qt::Key_7 : Qt::Key_8, Qt::ControlModifier);
        QTRY_VERIFY(!contents.at(panel)->visibleRegion().isEmpty());
    }
}

void WorkbenchTest::panelsLeaveTheWorkflowItsPlace()
{
    QByteArray chosen;
    {
        Window window;
        new Workbench(&window);
        window.resize(1100, 900);
        window.show();
        auto *panel = window.findChild<QDockWidget *>(u"findingsPanel"_s);
        panel->toggleViewAction()->trigger();
        QTRY_COMPARE(panel->height(), 300);
        window.resizeDocks({panel}, {400}, Qt::Vertical);
        QTRY_COMPARE(panel->height(), 400);
        panel->toggleViewAction()->trigger();
        panel->toggleViewAction()->trigger();
        QTRY_COMPARE(panel->height(), 400);
        panel->toggleViewAction()->trigger();
        chosen = window.saveState();
    }
    Window window;
    auto *workbench = new Workbench(&window);
    window.resize(1100, 900);
    QVERIFY(window.restoreState(chosen));
    workbench->keepPanelSizes();
    window.show();
    auto *panel = window.findChild<QDockWidget *>(u"findingsPanel"_s);
    panel->toggleViewAction()->trigger();
    QTRY_COMPARE(panel->height(), 400);
}

void WorkbenchTest::documentsAreTold()
{
    Window window;
    const QSignalSpy shown(&window, &PropertyEditorWindow::documentShown);
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), kOpened);
    QVERIFY(!shown.isEmpty());
    const auto before = shown.size();
    window.clear();
    QCOMPARE(shown.size(), before + 1);
}

void WorkbenchTest::savedDocumentsAreTold()
{
    const QTemporaryDir folder;
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), kOpened);
    const QSignalSpy shown(&window, &PropertyEditorWindow::documentShown);
    const QSignalSpy saved(&window, &PropertyEditorWindow::documentSaved);
    QVERIFY(window.saveWorkflowToJSON(folder.filePath(u"saved.wflw"_s)));
    QCOMPARE(saved.size(), 1);
    QCOMPARE(shown.size(), 0);
    QCOMPARE(window.workflowFilePath(), folder.filePath(u"saved.wflw"_s));
}

void WorkbenchTest::titleAndStatusLineTellOfChanges()
{
    const QTemporaryDir folder;
    Window window;
    auto *workbench = new Workbench(&window);
    const auto part = [&](const QString &name) {
        const auto *label = window.findChild<QLabel *>(name);
        return label ? label->text() : window.findChild<QToolButton *>(name)->text();
    };
    QCOMPARE(part(u"statusVersion"_s), QString());
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), kOpened);
    QCOMPARE(part(u"statusVersion"_s), u"Format 5.47.0"_s);
    QCOMPARE(part(u"statusFindings"_s), u"Not checked"_s);
    QCOMPARE(part(u"statusChanges"_s), u"Not in a file yet"_s);
    QVERIFY(window.saveWorkflowToJSON(folder.filePath(u"saved.wflw"_s)));
    QCOMPARE(part(u"statusChanges"_s), u"Saved"_s);
    QVERIFY(window.windowTitle().endsWith(u"saved.wflw - Project Creation[*]"_s));
    window.grid(0)->renameColumn(0, u"Other"_s);
    workbench->history()->takeIn();
    QCOMPARE(part(u"statusChanges"_s), u"Unsaved changes"_s);
    QVERIFY(window.isWindowModified());
}

namespace {

/// Gives a setting another value by keys, from the window as it is.
void typeLetters(Window &window)
{
    auto &view = *static_cast<GridPropertyEditorView *>(window.grid(0)->items().constFirst()->widget());
    view.editorView()->expandAll();
    if (!LeavingWays::openByKey(*view.editorView(), "KarvonDigestLetters"))
        qFatal("The setting can't be edited");
    LeavingWays::type(u"K"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

} // namespace

void WorkbenchTest::whatWasToldGoesWithTheNextDeed_data()
{
    QTest::addColumn<WindowAct>("deed");
    QTest::addColumn<bool>("isDeed");
    QTest::addRow("an edit") << WindowAct(&typeLetters) << true;
    QTest::addRow("a check") << WindowAct([](Window &window) { QTest::keyClick(&window, Qt::Key_F9); })
                             << true;
    QTest::addRow("a look around") << WindowAct([](Window &window) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QTest::keyClick(&window, Qt::Key_PageDown, Qt::ControlModifier);
        QTest::mouseClick(window.grid(0), Qt::LeftButton);
    }) << false;
}

void WorkbenchTest::whatWasToldGoesWithTheNextDeed()
{
    QFETCH(WindowAct, deed);
    QFETCH(bool, isDeed);
    Window window;
    auto *workbench = new Workbench(&window);
    QCOMPARE(window.openWorkflow(documentOf({karvonCell({setting("KarvonDigestLetters", u"RK"_s)})})),
             kOpened);
    window.show();
    workbench->tell(u"It was done."_s);
    QCOMPARE(window.statusBar()->currentMessage(), u"It was done."_s);
    deed(window);
    workbench->history()->takeIn();
    QCOMPARE(window.statusBar()->currentMessage(), isDeed ? QString() : u"It was done."_s);
}

void WorkbenchTest::whatIsToldOfADeedStays()
{
    const QTemporaryDir folder;
    Window window;
    auto *workbench = new Workbench(&window);
    QCOMPARE(window.openWorkflow(documentOf({karvonCell({setting("KarvonDigestLetters", u"RK"_s)})})),
             kOpened);
    window.show();
    workbench->tell(u"It was done."_s);
    typeLetters(window);
    // The same again is news, and the step that is noticed later is no other deed.
    workbench->tell(u"It was done."_s);
    workbench->history()->takeIn();
    QVERIFY(workbench->history()->canUndo());
    QCOMPARE(window.statusBar()->currentMessage(), u"It was done."_s);
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(window.statusBar()->currentMessage(), QString());
    workbench->tell(u"It was done."_s);
    QTest::keyClick(&window, Qt::Key_Down);
    QVERIFY(window.saveWorkflowToJSON(folder.filePath(u"saved.wflw"_s)));
    QCOMPARE(window.statusBar()->currentMessage(), QString());
}

void WorkbenchTest::longMessagesEndInAnEllipsis()
{
    Window window;
    auto *workbench = new Workbench(&window);
    window.resize(640, 400);
    window.show();
    QStatusBar &bar = *window.statusBar();
    const auto pictureOf = [&](const QString &text) {
        workbench->tell(text);
        return bar.grab().toImage();
    };
    const QString beginning = u"Upgraded from 5.10.0 to 5.47.0. What that changed stands in the panel "_s;
    QVERIFY(bar.fontMetrics().horizontalAdvance(beginning) > bar.findChild<QLabel *>()->x());
    const QImage cut = pictureOf(beginning);
    // Of both so much is seen that they look alike; told in full by the tip.
    QCOMPARE(pictureOf(beginning + u"Upgrade."_s), cut);
    const auto *first = window.findChild<QLabel *>(u"statusChanges"_s);
    QVERIFY(!first->geometry().isEmpty());
    QHelpEvent help(QEvent::ToolTip, {5, 5}, bar.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&bar, &help);
    QCOMPARE(QToolTip::text(), beginning + u"Upgrade."_s);
    QToolTip::hideText();
    // The dots stand where the text would have been cut in two.
    const QRect before(first->x() - 5, 0, 3, bar.height());
    QCOMPARE(cut.copy(before), pictureOf(QString()).copy(before));
}

void WorkbenchTest::theHelpKeyExplainsTheSetting()
{
    Window window;
    new Workbench(&window);
    QCOMPARE(window.openWorkflow(documentOf({karvonCell({setting("KarvonDigestLetters", u"RK"_s)})})),
             kOpened);
    window.show();
    auto &view = *static_cast<GridPropertyEditorView *>(window.grid(0)->items().constFirst()->widget());
    KPropertyCustomEditorView &tree = *view.editorView();
    tree.expandAll();
    const KProperty &property = view.propertySet()->property("KarvonDigestLetters");
    const QString wanted = u"<p><b>%1</b><br>%2</p>"_s.arg(property.caption(), property.description());
    const auto helpByKey = [] {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
        const QWidgetList windows = QApplication::topLevelWidgets();
        const bool isShown = std::ranges::any_of(
            windows, [](const QWidget *each) { return each->isVisible() && each->inherits("QWhatsThat"); });
        QWhatsThis::hideText();
        return isShown ? ControlHelp::explanation(QApplication::focusWidget()) : QString();
    };
    tree.setFocus();
    tree.setCurrentIndex(LeavingWays::rowOf(tree, "KarvonDigestLetters"));
    QVERIFY(!property.description().isEmpty());
    QCOMPARE(helpByKey(), wanted);
    QVERIFY(LeavingWays::openByKey(tree, "KarvonDigestLetters"));
    QVERIFY(QApplication::focusWidget() != &tree);
    QCOMPARE(helpByKey(), wanted);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    tree.setCurrentIndex(tree.currentIndex().parent());
    QCOMPARE(helpByKey(), u"<p><b>Search</b><br>Group of properties</p>"_s);
}

WIDGET_REGISTER_TEST(WorkbenchTest)
#include "WorkbenchTest.moc"
