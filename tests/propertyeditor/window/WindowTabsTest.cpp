#include "WidgetTest.h"
#include "WindowFixture.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/grid/EditableTabBar.h>
#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>
#include <orv/propertyeditor/window/PropertyEditorDirLocations.h>
#include <orv/propertyeditor/window/PropertyEditorWindowJsonFile.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/widgets/FileSystemSettings.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>

#include <QComboBox>
#include <QDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalSpy>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

namespace {

QStringList titles(Window &window)
{
    QStringList titles;
    for (int i = 0; i < window.tabs().count(); ++i)
        titles.append(window.tabs().tabText(i));
    return titles;
}

/// A window in designer mode with two tabs.
struct Designed
{
    Designed()
    {
        window.state().setEditorMode(GridPropertyEditorView::EditorMode::Designer);
        window.show();
        for (const char *title : {"Search", "Views"}) {
            const Error error =
                window.addTabWithColumns(text(title), {u"First"_s}, {Documents::toBytes(karvonCell())});
            if (error.hasError())
                qFatal("The fixture doesn't load: %s", qPrintable(error.errorMessage()));
        }
    }

    Window window;
    ScriptedAnswerer answers;
};

} // namespace

class WindowTabsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void tabsAreAddedByName();
    void currentTabIsRemovedOnlyIfWanted();
    void withoutTabsNothingIsAsked();
    void columnsAreAppended();
    void buttonsOfATab();
    void rowsComeByFeature();
    void presetsReplaceTheCurrentTab();
    void presetsThatCannotBeReadChangeNothing();
    void theNextTabShowsTheFocusInItsColumn();
    void presetsAreSaved();
    void presetsWithoutATab();
    void otherTabsAreNotSaved();
    void brokenCellsAddNoTab();
    void columnsThatCannotBeShownAreToldTheLog();
    void currentTabContent();
    void clearingKeepsMetadata();
    void emptyWorkflows();
    void windowsMayGoInEveryBox_data();
    void windowsMayGoInEveryBox();
    void removedTabsKeepQuiet();
    void typesOfColumnsAreOffered();
    void columnsThatCantBeShownAreTold();
    void cellsWithoutColumnsAreNotSavedAwayUnasked();
    void removingNoTabDoesNothing();
    void presetsKeepThePlaceOfTheTab();
    void columnsOfPresetsAreWhatTheirCellsAre();
    void presetsRememberTheUsualFolder();
    void onlyDesignersMoveTabs();
    void columnsKnowTheFolderOfTheWorkflow();
};

void WindowTabsTest::tabsAreAddedByName()
{
    Designed designed;
    designed.answers.expectDialog(u"Add tab"_s, [](QDialog &) { return false; });
    designed.window.click("Add tab");
    QCOMPARE(titles(designed.window), (QStringList{u"Search"_s, u"Views"_s}));
    designed.answers.expectDialog(u"Add tab"_s, [](QDialog &dialog) {
        QTest::keyClicks(dialog.findChild<QLineEdit *>(), u"Reports"_s);
        return true;
    });
    designed.window.click("Add tab");
    QCOMPARE(titles(designed.window), (QStringList{u"Search"_s, u"Views"_s, u"Reports"_s}));
    QVERIFY(designed.window.grid(2)->items().isEmpty());
}

void WindowTabsTest::currentTabIsRemovedOnlyIfWanted()
{
    Designed designed;
    designed.window.tabs().setCurrentIndex(0);
    designed.answers.expectBox(u"Removing tab"_s, u"No"_s);
    designed.window.click("Remove current tab");
    QCOMPARE(titles(designed.window), (QStringList{u"Search"_s, u"Views"_s}));
    designed.answers.expectBox(u"Removing tab"_s, u"Yes"_s);
    designed.window.click("Remove current tab");
    QCOMPARE(titles(designed.window), QStringList{u"Views"_s});
    QCOMPARE(transcriptOf(designed.answers).last(),
             u"question | Removing tab | Are you sure you want to remove current tab? | Yes [No]"_s);
    QVERIFY(designed.answers.isDone());
}

void WindowTabsTest::withoutTabsNothingIsAsked()
{
    const ScriptedAnswerer answers;
    Window window;
    window.removeCurrentTab();
    window.appendRow();
    QVERIFY(answers.transcript().isEmpty());
}

void WindowTabsTest::columnsAreAppended()
{
    const LogCapture log;
    Designed designed;
    designed.window.tabs().setCurrentIndex(1);
    designed.answers.expectDialog(u"Add column"_s, [](QDialog &dialog) {
        auto *types = dialog.findChild<QComboBox *>();
        QTest::keyClicks(dialog.findChild<QLineEdit *>(), u"Files"_s);
        types->setCurrentText(u"Samples"_s);
        return types->currentText() == u"Samples"_s;
    });
    for (QToolButton *button : designed.window.grid(1)->findChildren<QToolButton *>()) {
        if (button->text() == u"Append column"_s)
            QTest::mouseClick(button, Qt::LeftButton);
    }
    QVERIFY(designed.answers.isDone());
    QCOMPARE(designed.window.grid(1)->columnNames(), (QStringList{u"First"_s, u"Files"_s}));
    QCOMPARE(designed.window.grid(1)->items().last()->type(), BaseItemType::Samples);
    QCOMPARE(designed.window.grid(0)->items().size(), 1);
}

void WindowTabsTest::buttonsOfATab()
{
    Designed designed;
    const QHBoxLayout *row = designed.window.grid(0)->buttonsLayout();
    QStringList captions;
    for (int i = 0; i < row->count(); ++i) {
        if (const auto *button = qobject_cast<QToolButton *>(row->itemAt(i)->widget())) {
            captions.append(button->text());
            QCOMPARE(button->toolTip(), button->text());
        }
    }
    QCOMPARE(captions, (QStringList{u"Append column"_s, u"Open Tab Preset..."_s, u"Save Tab Preset..."_s}));
    QVERIFY(row->itemAt(row->count() - 1)->spacerItem());
    QVERIFY(row->itemAt(0)->widget() != designed.window.grid(1)->buttonsLayout()->itemAt(0)->widget());
}

void WindowTabsTest::rowsComeByFeature()
{
    const as::ScopedOverride rows(as::kMultiRowEnabled, true);
    Designed designed;
    const auto *button =
        qobject_cast<QToolButton *>(designed.window.grid(0)->buttonsLayout()->itemAt(1)->widget());
    QCOMPARE(button->text(), u"Append row"_s);
    designed.window.appendRow();
    QCOMPARE(designed.window.grid(0)->items().size(), 1);
}

void WindowTabsTest::presetsReplaceTheCurrentTab()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.ptab"_s);
    QVERIFY(PropertyEditorWindowJsonFile(path).saveTabToJson(
        PropertyEditorContent(documentOf({previewCell(), karvonCell()}))));
    Designed designed;
    designed.window.tabs().setCurrentIndex(0);
    designed.answers.expectPath(u"Open Tab"_s, path);
    QVERIFY(designed.window.openTabPreset());
    QCOMPARE(titles(designed.window), (QStringList{u"Analysis"_s, u"Views"_s}));
    QCOMPARE(designed.window.grid(0)->columnNames(), (QStringList{u"Preview"_s, u"Karvon"_s}));
    QCOMPARE(designed.window.grid(0)->items().first()->type(), BaseItemType::Preview);
    QCOMPARE(designed.answers.transcript().last().text, u"Tab preset (*.ptab)"_s);
}

void WindowTabsTest::presetsThatCannotBeReadChangeNothing()
{
    const LogCapture log;
    const QTemporaryDir folder;
    Designed designed;
    designed.answers.expectPath(u"Open Tab"_s, {});
    QVERIFY(!designed.window.openTabPreset());
    designed.answers.expectPath(u"Open Tab"_s, folder.filePath(u"missing.ptab"_s));
    QVERIFY(!designed.window.openTabPreset());
    QCOMPARE(titles(designed.window), (QStringList{u"Search"_s, u"Views"_s}));
    QCOMPARE(designed.window.grid(0)->columnNames(), QStringList{u"First"_s});
}

void WindowTabsTest::presetsAreSaved()
{
    const QTemporaryDir folder;
    Designed designed;
    designed.window.tabs().setCurrentIndex(1);
    designed.answers.expectPath(u"Save tab to file"_s, folder.filePath(u"b.ptab"_s));
    QVERIFY(designed.window.saveTabPreset());
    const QJsonObject preset = Documents::parse(TestData::read(folder.filePath(u"b.ptab"_s)));
    QCOMPARE(preset[u"name"_s].toString(), u"Views"_s);
    QCOMPARE(preset[u"columns"_s].toArray(), QJsonArray{u"First"_s});
}

void WindowTabsTest::presetsWithoutATab()
{
    const LogCapture log;
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    Window window;
    answers.expectPath(u"Open Tab"_s, folder.filePath(u"a.ptab"_s));
    QVERIFY(!window.openTabPreset());
    answers.expectPath(u"Save tab to file"_s, folder.filePath(u"a.ptab"_s));
    QVERIFY(!window.saveTabPreset());
    QCOMPARE(log.warnings(), QStringList{u"There is no content"_s});
}

void WindowTabsTest::otherTabsAreNotSaved()
{
    Designed designed;
    designed.window.tabs().insertTab(1, new QWidget, u"Help"_s);
    const PropertyEditorContent::Tabs tabs = designed.window.content().tabsAndContent();
    QCOMPARE(tabs.size(), 2);
    QCOMPARE(tabs.at(1).first, u"Views"_s);
    designed.window.tabs().setCurrentIndex(1);
    QVERIFY(designed.window.currentTabContent().tabsAndContent().isEmpty());
    QVERIFY(!designed.window.state().currentTabHasWidget());
    designed.window.state().setEditorMode(GridPropertyEditorView::EditorMode::User);
}

void WindowTabsTest::brokenCellsAddNoTab()
{
    const LogCapture log;
    Window window;
    const Error error = window.addTabWithColumns(u"Search"_s, {u"First"_s}, {QByteArray("{")});
    QVERIFY(error.hasError());
    QCOMPARE(window.tabs().count(), 0);
}

void WindowTabsTest::currentTabContent()
{
    Designed designed;
    designed.window.tabs().setCurrentIndex(1);
    const PropertyEditorContent content = designed.window.currentTabContent();
    QCOMPARE(content.tabsAndContent().size(), 1);
    QCOMPARE(content.tabsAndContent().first().first, u"Views"_s);
    QCOMPARE(content.metadata(), QJsonObject());
    designed.window.clear();
    QVERIFY(designed.window.currentTabContent().tabsAndContent().isEmpty());
}

void WindowTabsTest::clearingKeepsMetadata()
{
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), kOpened);
    const QJsonObject saved = window.state().getLastSavedWorkflow();
    QVERIFY(!saved.isEmpty());
    window.clear();
    QCOMPARE(window.tabs().count(), 0);
    QCOMPARE(window.windowTitle(), u"Project Creation"_s);
    QCOMPARE(window.state().workflowFilePath(), QString());
    QVERIFY(window.state().workflowBaseUrl().isEmpty());
    QCOMPARE(window.state().workflowMetadata(), metadata());
    QCOMPARE(window.state().getLastSavedWorkflow(), saved);
}

void WindowTabsTest::emptyWorkflows()
{
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), kOpened);
    window.createEmptyWorkflow();
    QCOMPARE(window.tabs().count(), 0);
    QCOMPARE(window.state().workflowMetadata(), QJsonObject());
    QCOMPARE(window.windowTitle(), u"Project Creation"_s);
    QVERIFY(!window.state().workflowFilePath().isNull());
}

void WindowTabsTest::windowsMayGoInEveryBox_data()
{
    using Act = std::function<void(Window &)>;
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("button");
    QTest::addColumn<Act>("act");
    const auto row = [](const char *title, const char *button, const Act &act) {
        QTest::newRow(title) << text(title) << text(button) << act;
    };
    row("Removing tab", "Yes", [](Window &window) { window.removeCurrentTab(); });
    row("Add tab", "OK", [](Window &window) { window.addTab(); });
    row("Add column", "OK", [](Window &window) { window.appendColumn(); });
    row("Open Tab", "OK", [](Window &window) { window.openTabPreset(); });
    row("Save tab to file", "OK", [](Window &window) { window.saveTabPreset(); });
    row("Workflow Properties", "OK", [](Window &window) { window.openWorkflowProperties(); });
    row("Save Workflow", "OK", [](Window &window) { window.saveWorkflowAs(); });
    row("Unsaved changes", "Yes", [](Window &window) {
        window.tabs().setTabText(0, u"Other"_s);
        window.close();
    });
    row("Select workflows directory", "OK", [](Window &window) { window.updateSystemWorkflowsButton(); });
    row("Save As Portable Workflow", "OK",
        [](Window &window) { window.toolButton("Save As Portable Workflow...")->click(); });
    row("Project creation", "OK", [](Window &window) { window.createProjectClicked(); });
    row("Launch Workflow", "OK", [](Window &window) { window.selectAndOpenWorkflow(); });
}

void WindowTabsTest::windowsMayGoInEveryBox()
{
    QFETCH(const QString, title);
    QFETCH(const QString, button);
    using Act = std::function<void(Window &)>;
    QFETCH(const Act, act);
    const LogCapture log;
    auto *window = new Window;
    const QPointer<Window> guard(window);
    QCOMPARE(window->openWorkflow(documentOf({previewCell()})), kOpened);
    const Destroyer destroyer(window, title, button);
    act(*window);
    QVERIFY(!guard);
}

void WindowTabsTest::columnsThatCannotBeShownAreToldTheLog()
{
    Designed designed;
    const LogCapture log;
    const VariantItems cells{Documents::toBytes(previewCell()), QByteArray("{broken")};
    designed.window.setCurrentTabContent(
        PropertyEditorContent({{u"Replaced"_s, {{u"Preview"_s, u"Karvon"_s}, cells}}}));
    QCOMPARE(titles(designed.window).at(designed.window.tabs().currentIndex()), u"Replaced"_s);
    const QString told = log.warnings().constLast();
    QVERIFY2(told.startsWith(u"Not all columns can be shown "_s) && told.size() > 30, qPrintable(told));
    QVERIFY(designed.answers.transcript().isEmpty());
    QVERIFY(designed.window.content().toJson().contains("\"Preview\""));
}

void WindowTabsTest::removedTabsKeepQuiet()
{
    const QJsonObject samples = Documents::parse(R"({"Samples": [{"SampleName": "one", "SamplesId": 1}]})");
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({settingsCell("Samples", {setting("SamplesTable", samples)})})),
             kOpened);
    QPointer<SamplesAndTracesInputWidget> earlier =
        qobject_cast<SamplesAndTracesInputWidget *>(window.grid(0)->items().first()->widget());
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), kOpened);
    const QSignalSpy told(&window.state(), &PropertyEditorWindowPrivate::samplesChanged);
    const QSignalSpy removed(&window.state(), &PropertyEditorWindowPrivate::removeCustomColumn);
    QVERIFY(earlier);
    Q_EMIT earlier->removeCustomColumn(u"Batch"_s);
    Q_EMIT earlier->samplesChanged({});
    QCoreApplication::processEvents();
    QVERIFY(told.isEmpty() && removed.isEmpty());
}

void WindowTabsTest::typesOfColumnsAreOffered()
{
    Designed designed;
    QStringList offered;
    designed.answers.expectDialog(u"Add column"_s, [&offered](QDialog &dialog) {
        const auto *types = dialog.findChild<QComboBox *>();
        for (int i = 0; i < types->count(); ++i)
            offered.append(types->itemText(i));
        return false;
    });
    designed.window.appendColumn();
    QCOMPARE(offered, PropertyEditor::BaseItem::typeNames());
    QVERIFY(offered.contains(u"Karvon"_s) && offered.contains(u"CaldrinDIA"_s));
    QCOMPARE(designed.window.grid(1)->columnNames(), QStringList{u"First"_s});
}

void WindowTabsTest::columnsThatCantBeShownAreTold()
{
    const LogCapture log;
    Designed designed;
    const QSignalSpy edited(designed.window.workflowTabs(), &WorkflowTabs::edited);
    designed.answers.expectDialog(u"Add column"_s, [](QDialog &dialog) {
        dialog.findChild<QComboBox *>()->setCurrentText(u"Unknown"_s);
        dialog.findChild<QLineEdit *>()->setText(u"Odd"_s);
        return true;
    });
    designed.answers.expectBox(u"Append column"_s, u"OK"_s);
    designed.window.appendColumn();
    QVERIFY(designed.answers.isDone());
    const QString told =
        u"This application can't show every column of the tab. As it is, the workflow can't be "
        "saved: undo this, or remove the tab."_s;
    QCOMPARE(designed.answers.transcript().last().text, told);
    QCOMPARE(edited.size(), 1);

    const QTemporaryDir folder;
    QJsonObject foreign = karvonCell();
    foreign[u"type"_s] = u"Foreign"_s;
    const QJsonObject tab = Documents::tab(u"Search"_s, {u"A"_s, u"B"_s}, {karvonCell(), foreign});
    const QString preset = write(folder, "a.ptab", tab);
    designed.answers.expectPath(u"Open Tab"_s, preset);
    designed.answers.expectBox(u"Open Tab"_s, u"OK"_s);
    QVERIFY(designed.window.openTabPreset());
    QVERIFY(designed.answers.isDone());
    QCOMPARE(designed.answers.transcript().last().text, told);
}

void WindowTabsTest::cellsWithoutColumnsAreNotSavedAwayUnasked()
{
    const LogCapture log;
    const QTemporaryDir folder;
    Designed designed;
    const QJsonObject document = Documents::document({Documents::tab(u"Search"_s, {u"A"_s}, {karvonCell()}),
                                                      Documents::tab(u"Bare"_s, {}, {karvonCell()})},
                                                     WindowFixture::metadata());
    const QString path = write(folder, "a.wflw", document);
    const QByteArray before = TestData::read(path);
    QCOMPARE(designed.window.openWorkflow(path), kOpened);
    designed.answers.expectBox(u"Save Workflow"_s, u"Cancel"_s);
    QVERIFY(!designed.window.saveWorkflowToJSON(path));
    QVERIFY(designed.answers.isDone());
    QCOMPARE(designed.answers.transcript().last().details,
             u"The tab \"Bare\" has cells, but no columns that show them."_s);
    QCOMPARE(TestData::read(path), before);
}

void WindowTabsTest::removingNoTabDoesNothing()
{
    Designed designed;
    const LogCapture log;
    for (const int index : {-1, 2, 100})
        designed.window.removeTab(index);
    QCOMPARE(titles(designed.window), (QStringList{u"Search"_s, u"Views"_s}));
    QVERIFY(!log.texts(QtDebugMsg).contains(u"Updating dependent widgets"_s));
    const QPointer<PropertyGridWidget> removed = designed.window.grid(0);
    designed.window.removeTab(0);
    QCOMPARE(titles(designed.window), QStringList{u"Views"_s});
    QCOMPARE(log.texts(QtDebugMsg).count(u"Updating dependent widgets"_s), 1);
    QVERIFY(removed);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!removed);
}

void WindowTabsTest::presetsKeepThePlaceOfTheTab()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.ptab"_s);
    QVERIFY(
        PropertyEditorWindowJsonFile(path).saveTabToJson(PropertyEditorContent(documentOf({previewCell()}))));
    Designed designed;
    designed.window.tabs().setCurrentIndex(1);
    const LogCapture log;
    designed.answers.expectPath(u"Open Tab"_s, path);
    for (QToolButton *button : designed.window.grid(1)->findChildren<QToolButton *>()) {
        if (button->text() == u"Open Tab Preset..."_s)
            QTest::mouseClick(button, Qt::LeftButton);
    }
    QVERIFY(designed.answers.isDone());
    QCOMPARE(titles(designed.window), (QStringList{u"Search"_s, u"Analysis"_s}));
    QCOMPARE(designed.window.tabs().currentIndex(), 1);
    auto *view = qobject_cast<GridPropertyEditorView *>(designed.window.grid(1)->items().first()->widget());
    QVERIFY(!view->isExpanded());
    QVERIFY(log.texts(QtDebugMsg).contains(u"Updating dependent widgets"_s));
}

void WindowTabsTest::theNextTabShowsTheFocusInItsColumn()
{
    const QJsonObject samples{
        {u"type"_s, u"Samples"_s},
        {u"properties"_s, QJsonArray{QJsonObject{{u"name"_s, u"SamplesTable"_s},
                                                 {u"value"_s, QJsonObject{{u"Samples"_s, QJsonArray()}}}}}}};
    Window window;
    QCOMPARE(window.openWorkflow(Documents::document({Documents::tab(u"A"_s, {u"One"_s}, {karvonCell()}),
                                                      Documents::tab(u"B"_s, {u"Two"_s}, {karvonCell()}),
                                                      Documents::tab(u"C"_s, {u"Samples"_s}, {samples})},
                                                     metadata())),
             kOpened);
    window.show();
    const auto rowsOf = [&](int tab) {
        return qobject_cast<GridPropertyEditorView *>(window.grid(tab)->items().constFirst()->widget())
            ->editorView();
    };
    rowsOf(0)->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(window.tabs().currentIndex(), 1);
    QCOMPARE(QApplication::focusWidget(), rowsOf(1));
    QVERIFY(rowsOf(1)->currentIndex().isValid());
    const QImage with = rowsOf(1)->grab().toImage();
    rowsOf(1)->clearFocus();
    QVERIFY(rowsOf(1)->grab().toImage() != with);
    rowsOf(1)->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(window.tabs().currentIndex(), 2);
    QVERIFY(qobject_cast<QAbstractItemView *>(QApplication::focusWidget()));
    QVERIFY(window.grid(2)->items().constFirst()->widget()->isAncestorOf(QApplication::focusWidget()));
}

void WindowTabsTest::columnsOfPresetsAreWhatTheirCellsAre()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.ptab"_s);
    const PropertyEditorContent::Tabs tabs{
        {u"Mine"_s,
         {{u"Karvon"_s, u"By hand"_s},
          {Documents::toBytes(previewCell()), Documents::toBytes(karvonCell())}}}};
    QVERIFY(PropertyEditorWindowJsonFile(path).saveTabToJson(PropertyEditorContent(tabs)));
    Designed designed;
    designed.answers.expectPath(u"Open Tab"_s, path);
    QVERIFY(designed.window.openTabPreset());
    const PropertyGridWidget *grid = designed.window.grid(designed.window.tabs().currentIndex());
    QCOMPARE(grid->columnNames(), (QStringList{u"Karvon"_s, u"By hand"_s}));
    QCOMPARE(grid->items().at(0)->type(), BaseItemType::Preview);
    QCOMPARE(grid->items().at(1)->type(), BaseItemType::Karvon);
}

void WindowTabsTest::presetsRememberTheUsualFolder()
{
    const QTemporaryDir saved;
    const QTemporaryDir opened;
    const QTemporaryDir launched;
    FileSystemSettings::rememberChosen(PropertyEditorDirLocations::OpenWorkflowLocation,
                                       launched.filePath(u"a.wflw"_s));
    const QString path = opened.filePath(u"a.ptab"_s);
    QVERIFY(
        PropertyEditorWindowJsonFile(path).saveTabToJson(PropertyEditorContent(documentOf({previewCell()}))));
    Designed designed;
    designed.answers.expectPath(u"Open Tab"_s, path);
    QVERIFY(designed.window.openTabPreset());
    QCOMPARE(FileSystemSettings::folder(FileSystemSettings::DefaultLocation), opened.path());
    designed.answers.expectPath(u"Save tab to file"_s, saved.filePath(u"b.ptab"_s));
    QVERIFY(designed.window.saveTabPreset());
    QCOMPARE(FileSystemSettings::folder(FileSystemSettings::DefaultLocation), saved.path());
    QCOMPARE(FileSystemSettings::folder(PropertyEditorDirLocations::OpenWorkflowLocation), launched.path());
}

void WindowTabsTest::onlyDesignersMoveTabs()
{
    Designed designed;
    QVERIFY(designed.window.tabs().editableTabBar()->isMovable());
    const QWidget *button = designed.window.grid(0)->buttonsLayout()->itemAt(0)->widget();
    QVERIFY(button->isVisibleTo(designed.window.grid(0)));
    designed.window.state().setEditorMode(GridPropertyEditorView::EditorMode::User);
    QVERIFY(!designed.window.tabs().editableTabBar()->isMovable());
    QVERIFY(!button->isVisibleTo(designed.window.grid(0)));
}

void WindowTabsTest::columnsKnowTheFolderOfTheWorkflow()
{
    LogCapture log;
    const QTemporaryDir folder;
    Window window;
    window.show();
    const QJsonObject cell = karvonCell({setting("KarvonLayout", u"layout.ini"_s)});
    QCOMPARE(window.openWorkflow(write(folder, "a.wflw", documentOf({cell}))), kOpened);
    const QUrl url = QUrl::fromLocalFile(folder.path() + u'/');
    auto *first = qobject_cast<GridPropertyEditorView *>(window.grid(0)->items().first()->widget());
    QCOMPARE(first->propertySet()->property("KarvonLayout").option("baseUrl").toUrl(), url);
    log.clear();
    window.state().appendColumnGrid(BaseItemType::Karvon, u"Added"_s);
    QCOMPARE(window.grid(0)->items().size(), 2);
    const QStringList told = log.texts(QtDebugMsg).filter(u"Setting base URL"_s).filter(url.toString());
    QVERIFY2(told.size() >= 2, qPrintable(log.texts(QtDebugMsg).join(u'\n')));
    auto *added = qobject_cast<GridPropertyEditorView *>(window.grid(0)->items().last()->widget());
    QVERIFY(!added->isExpanded());
}

WIDGET_REGISTER_TEST(WindowTabsTest)
#include "WindowTabsTest.moc"
