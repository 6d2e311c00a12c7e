#include "EditorRecoveryFixture.h"
#include "EditorWindow.h"
#include "EditorWindows.h"
#include "LogCapture.h"
#include "TestData.h"
#include "WidgetTest.h"

#include <KPropertyEditorView.h>
#include <KPropertySet.h>
#include <KPropertyUtils.h>
#include <orv/propertyeditor/grid/EditableTabBar.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/GridItemCreators.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workbench/JournalKeeper.h>
#include <orv/propertyeditor/workbench/RecoveryJournal.h>
#include <orv/propertyeditor/workbench/RecoveryPanel.h>
#include <orv/propertyeditor/workbench/RecoveryStore.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/DialogAnswerer.h>

#include <QCheckBox>
#include <QDir>
#include <QDockWidget>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTreeView>

using namespace orv;
using namespace EditorRecoveryFixture;
using namespace EditorWindows;
using namespace Qt::StringLiterals;

class EditorRecoveryTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void unsavedEditsAreOfferedAndRecovered();
    void recoveredWorkflowsTellWhatChangedSinceTheSave();
    void recoveredWorkflowsAskWhenTheyClose();
    void recoveredWorkflowsStayUntilTheyAreSaved();
    void savedWorkflowsAreNotOffered();
    void lookingAtAFileLeavesNothing();
    void changedFilesAreRecoveredAsNewWorkflows();
    void windowsThatOnlyShowedAreOpenedAgain();
    void keptForLaterIsOfferedAgain();
    void discardingAsksFirst();
    void damagedJournalsAreTold();
    void manyEditsTakeOneState();
    void whatCannotBeKeptIsToldInTheStatusLine();
    void closingWindowsTakesTheLastEdit();
    void windowsMayGoWhileTheyAreAsked_data();
    void windowsMayGoWhileTheyAreAsked();
    void everyWindowHasItsOwn();
    void whatTheLoadDroppedIsStillAskedAbout();
    void severalAreRecoveredAtOnce();
    void undoneEditsAreNotOffered();
    void upgradesThatWereTakenBackAreNotOffered();
    void recoveredWorkflowsStayWhereTheirUpgradeIsTakenBack();
    void recoveredUpgradesLeaveTheEarlierFile();
    void filesChangedSinceTheOfferAreAskedAbout();

private:
    void start();
    EditorWindow *openWindow();
    [[nodiscard]] QStringList journalsBehind(EditorWindow *window);
    /// A window whose first tab was renamed and that closed without saving; then another one that offers it.
    EditorWindow *offered(const QString &name);
    [[nodiscard]] QString journals() const { return m_folder->filePath(u"journals"_s); }
    [[nodiscard]] QStringList journalFiles() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<CoreMainWindow> m_main;
    std::shared_ptr<RecoveryStore> m_store;
    QString m_file;
    QByteArray m_bytes;
};

void EditorRecoveryTest::initTestCase()
{
    GridItemManager *manager = GridItemManager::instance();
    manager->registerCreators();
    manager->registerCreator(BaseItemType::IntactOptions, new IntactOptionsItemCreator);
}

void EditorRecoveryTest::start()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_main = std::make_unique<CoreMainWindow>();
    m_store = std::make_shared<RecoveryStore>(journals());
    m_file = m_folder->filePath(u"a.wflw"_s);
    m_bytes = TestData::read(TestData::examplePath(u"workflows/de_novo_antibody.wflw"_s));
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(m_bytes) == m_bytes.size());
}

void EditorRecoveryTest::cleanup()
{
    for (EditorWindow *window : openWindows())
        delete window;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_store.reset();
    m_main.reset();
}

EditorWindow *EditorRecoveryTest::openWindow()
{
    auto *window = new EditorWindow(m_main.get(), m_store);
    window->show();
    (void)QTest::qWaitForWindowActive(window);
    return window;
}

QStringList EditorRecoveryTest::journalFiles() const
{
    return QDir(journals()).entryList({u"*.journal"_s}, QDir::Files);
}

EditorWindow *EditorRecoveryTest::offered(const QString &name)
{
    start();
    EditorWindow *edited = openWindow();
    edited->openFiles({m_file});
    renameFirstTab(*edited, name);
    closeUnsaved(edited);
    m_store = std::make_shared<RecoveryStore>(journals());
    EditorWindow *window = openWindow();
    window->offerRecovery();
    return window;
}

/// What is left when nobody has the window any more.
QStringList EditorRecoveryTest::journalsBehind(EditorWindow *window)
{
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_store.reset();
    return journalFiles();
}

void EditorRecoveryTest::unsavedEditsAreOfferedAndRecovered()
{
    EditorWindow *window = offered(u"Renamed"_s);
    const auto *panel = window->findChild<QDockWidget *>(u"recovery"_s);
    QVERIFY(panel->isVisible());
    const QAbstractItemModel *entries = list(*window, u"Unsaved workflows"_s)->model();
    QCOMPARE(entries->rowCount(), 1);
    QCOMPARE(entries->index(0, 0).data().toString(), u"a.wflw"_s);
    const QAbstractItemModel *changes = list(*window, u"Changes of the unsaved workflow"_s)->model();
    QVERIFY(changes->rowCount() > 0);
    QTRY_VERIFY(panelText(*window).contains(u"Its file wasn't changed since it was opened."_s));
    recover(window);
    QCOMPARE(openWindows().size(), 1);
    QCOMPARE(firstTab(*window), u"Renamed"_s);
    QCOMPARE(window->workflowFilePath(), m_file);
    QCOMPARE(TestData::read(m_file), m_bytes);
    QVERIFY(!panel->isVisible());
    closeUnsaved(window);
}

void EditorRecoveryTest::recoveredWorkflowsTellWhatChangedSinceTheSave()
{
    start();
    const QJsonObject cell{
        {u"type"_s, u"Senthia"_s},
        {u"properties"_s,
         QJsonArray{QJsonObject{{u"name"_s, u"Samples"_s}, {u"value"_s, u"one"_s}},
                    QJsonObject{{u"name"_s, u"InSilicoPeptidesFile"_s}, {u"value"_s, u"data/a.csv"_s}}}}};
    QJsonObject document = QJsonDocument::fromJson(m_bytes).object();
    document[u"tabs"_s] = QJsonArray{
        QJsonObject{{u"name"_s, u"A"_s}, {u"columns"_s, QJsonArray{u"B"_s}}, {u"cells"_s, QJsonArray{cell}}}};
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(document).toJson()) > 0);
    file.close();
    EditorWindow *edited = openWindow();
    edited->openFiles({m_file});
    const auto settings = [](const EditorWindow &window) {
        IGridItem *column = window.workflowTabs()->grid(0)->items().constFirst();
        return static_cast<GridPropertyEditorView *>(column->widget())->propertySet();
    };
    settings(*edited)->property("Samples").setValue(u"two"_s);
    closeUnsaved(edited);
    m_store = std::make_shared<RecoveryStore>(journals());
    EditorWindow *window = openWindow();
    window->offerRecovery();
    recover(window);
    QCOMPARE(settings(*window)->property("Samples").value().toString(), u"two"_s);
    const auto *rows = qobject_cast<KPropertyEditorView *>(QApplication::focusWidget());
    QVERIFY(rows);
    QCOMPARE(KPropertyUtils::propertyForIndex(rows->currentIndex())->name(), "Samples"_ba);
    QTest::keyClick(window, Qt::Key_F, Qt::ControlModifier);
    QTest::mouseClick(window->findChild<QCheckBox *>(u"changedSinceSaving"_s), Qt::LeftButton);
    const QAbstractItemModel *hits = window->findChild<QTreeView *>(u"findHits"_s)->model();
    QTRY_COMPARE(hits->rowCount(), 1);
    QCOMPARE(hits->index(0, 0).data().toString(), u"Samples"_s);
    QCOMPARE(hits->index(0, 3).data().toString(), u"one"_s);
    closeUnsaved(window);
}

void EditorRecoveryTest::recoveredWorkflowsAskWhenTheyClose()
{
    EditorWindow *window = offered(u"Renamed"_s);
    recover(window);
    closeUnsaved(window);
}

void EditorRecoveryTest::recoveredWorkflowsStayUntilTheyAreSaved()
{
    EditorWindow *window = offered(u"Renamed"_s);
    recover(window);
    const QStringList journal = journalFiles();
    QCOMPARE(journal.size(), 1);
    closeUnsaved(window);
    m_store = std::make_shared<RecoveryStore>(journals());
    QCOMPARE(journalFiles(), journal);
    window = openWindow();
    window->offerRecovery();
    recover(window);
    QCOMPARE(firstTab(*window), u"Renamed"_s);
    ScriptedAnswerer answers;
    answers.expectPath(u"Save Workflow"_s, m_folder->filePath(u"saved.wflw"_s));
    QVERIFY(window->saveWorkflowAs());
    QCOMPARE(journalsBehind(window), QStringList());
    QVERIFY(answers.isDone());
}

void EditorRecoveryTest::savedWorkflowsAreNotOffered()
{
    start();
    EditorWindow *window = openWindow();
    window->openFiles({m_file});
    renameFirstTab(*window, u"Renamed"_s);
    ScriptedAnswerer answers;
    answers.expectPath(u"Save Workflow"_s, m_file);
    QVERIFY(window->saveWorkflowAs());
    QCOMPARE(journalsBehind(window), QStringList());
    QVERIFY(answers.isDone());
}

void EditorRecoveryTest::lookingAtAFileLeavesNothing()
{
    start();
    EditorWindow *window = openWindow();
    window->openFiles({m_file});
    const ScriptedAnswerer answers;
    QCOMPARE(journalsBehind(window), QStringList());
    QVERIFY(answers.isDone());
    QCOMPARE(TestData::read(m_file), m_bytes);
}

void EditorRecoveryTest::changedFilesAreRecoveredAsNewWorkflows()
{
    EditorWindow *window = offered(u"Renamed"_s);
    QTRY_VERIFY(!panelText(*window).contains(u"Looking whether"_s));
    m_bytes += '\n';
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(m_bytes) == m_bytes.size());
    file.close();
    window->offerRecovery();
    QTRY_VERIFY(panelText(*window).contains(u"Its file was changed since it was opened."_s));
    recover(window);
    QCOMPARE(firstTab(*window), u"Renamed"_s);
    QCOMPARE(window->workflowFilePath(), m_folder->filePath(u"a (recovered).wflw"_s));
    QCOMPARE(TestData::read(m_file), m_bytes);
    QVERIFY(!QFileInfo::exists(window->workflowFilePath()));
    closeUnsaved(window);
}

void EditorRecoveryTest::windowsThatOnlyShowedAreOpenedAgain()
{
    start();
    // As a program leaves it that is killed: nobody ends the journal.
    QVERIFY(QDir().mkpath(journals()));
    QFile journal(journals() + u"/a.journal"_s);
    QVERIFY(journal.open(QIODevice::WriteOnly));
    journal.write(QJsonDocument(QJsonObject{{u"journal"_s, u"orv-workflow-journal"_s},
                                            {u"form"_s, 1},
                                            {u"file"_s, m_file},
                                            {u"edited"_s, u"2024-05-06T07:08:09.000Z"_s},
                                            {u"documentBytes"_s, 0}})
                      .toJson(QJsonDocument::Compact) +
                  '\n');
    journal.close();
    EditorWindow *window = openWindow();
    window->offerRecovery();
    QVERIFY(panelText(*window).contains(u"They have no unsaved changes."_s));
    QVERIFY(!panelText(*window).contains(u"not saved"_s));
    recover(window);
    QCOMPARE(window->workflowFilePath(), m_file);
    const ScriptedAnswerer answers;
    QCOMPARE(journalsBehind(window), QStringList());
    QVERIFY(answers.isDone());
}

void EditorRecoveryTest::keptForLaterIsOfferedAgain()
{
    EditorWindow *window = offered(u"Renamed"_s);
    QTest::mouseClick(panelButton(*window, u"&Keep for Later"_s), Qt::LeftButton);
    const auto *panel = window->findChild<QDockWidget *>(u"recovery"_s);
    QVERIFY(!panel->isVisible());
    panel->toggleViewAction()->trigger();
    QVERIFY(panel->isVisible());
    QCOMPARE(list(*window, u"Unsaved workflows"_s)->model()->rowCount(), 1);
}

void EditorRecoveryTest::discardingAsksFirst()
{
    EditorWindow *window = offered(u"Renamed"_s);
    ScriptedAnswerer answers;
    answers.expectBox(u"Discard Unsaved Changes"_s, u"Cancel"_s);
    answers.expectBox(u"Discard Unsaved Changes"_s, u"Discard"_s);
    QPushButton *discard = panelButton(*window, u"&Discard..."_s);
    QTest::mouseClick(discard, Qt::LeftButton);
    QCOMPARE(journalFiles().size(), 1);
    QTest::mouseClick(discard, Qt::LeftButton);
    QVERIFY(answers.isDone());
    QVERIFY(answers.transcript().first().text.contains(u"a.wflw"_s));
    QCOMPARE(answers.transcript().first().defaultButton, u"Cancel"_s);
    QCOMPARE(journalFiles(), QStringList());
    QVERIFY(!window->findChild<QDockWidget *>(u"recovery"_s)->isVisible());
}

void EditorRecoveryTest::damagedJournalsAreTold()
{
    EditorWindow *window = offered(u"Renamed"_s);
    QFile journal(journals() + u'/' + journalFiles().first());
    QVERIFY(journal.resize(journal.size() - 1));
    const LogCapture log;
    recover(window);
    QVERIFY2(panelText(*window).contains(u"damaged and can't be recovered"_s),
             qPrintable(panelText(*window)));
    QVERIFY(QFileInfo::exists(journal.fileName() + u".damaged"_s));
    QCOMPARE(openWindows().size(), 1);
}

void EditorRecoveryTest::manyEditsTakeOneState()
{
    start();
    EditorWindow *window = openWindow();
    window->openFiles({m_file});
    int states = 0;
    JournalKeeper keeper(window, std::make_shared<RecoveryStore>(m_folder->filePath(u"other"_s)),
                         {[&states, window] {
                              ++states;
                              return window->content();
                          },
                          [] { return QJsonObject(); }});
    keeper.setInterval(150);
    for (int i = 0; i < 20; ++i)
        Q_EMIT window->workflowTabs()->edited();
    QCOMPARE(states, 0);
    QTRY_COMPARE(states, 1);
    QTest::qWait(400);
    QCOMPARE(states, 1);
}

void EditorRecoveryTest::whatCannotBeKeptIsToldInTheStatusLine()
{
    start();
    QFile blocked(journals());
    QVERIFY(blocked.open(QIODevice::WriteOnly));
    blocked.close();
    const LogCapture log;
    EditorWindow *window = openWindow();
    window->openFiles({m_file});
    QTRY_VERIFY(
        window->statusBar()->currentMessage().startsWith(u"Unsaved changes can't be kept for recovery: "_s));
}

void EditorRecoveryTest::closingWindowsTakesTheLastEdit()
{
    start();
    EditorWindow *window = openWindow();
    window->openFiles({m_file});
    window->findChild<JournalKeeper *>()->setInterval(3600000);
    renameFirstTab(*window, u"Last"_s);
    closeUnsaved(window);
    m_store = std::make_shared<RecoveryStore>(journals());
    QList<RecoveryEntry> entries;
    QTRY_COMPARE((entries = m_store->entries()).size(), 1);
    QCOMPARE(PropertyEditorContent(m_store->take(entries.first())->document).tabsAndContent().first().first,
             u"Last"_s);
}

void EditorRecoveryTest::windowsMayGoWhileTheyAreAsked_data()
{
    QTest::addColumn<QString>("button");
    for (const QString &button : {u"&Recover"_s, u"&Keep for Later"_s, u"&Discard..."_s})
        QTest::newRow(qPrintable(button)) << button;
}

void EditorRecoveryTest::windowsMayGoWhileTheyAreAsked()
{
    QFETCH(const QString, button);
    const QPointer<EditorWindow> window = offered(u"Renamed"_s);
    auto *panel = window->findChild<RecoveryPanel *>();
    ScriptedAnswerer answers;
    if (button == u"&Discard..."_s)
        answers.expectBox(u"Discard Unsaved Changes"_s, u"Discard"_s);
    const auto leave = [window] { delete window.data(); };
    panel->disconnect(window);
    connect(panel, &RecoveryPanel::recoverRequested, this, leave);
    connect(panel, &RecoveryPanel::keptForLater, this, leave);
    connect(panel, &RecoveryPanel::emptied, this, leave);
    // A button that is clicked outlives its click, as Qt itself has it.
    QTest::mouseClick(panelButton(*window, button), Qt::LeftButton);
    QVERIFY(!window);
}

void EditorRecoveryTest::everyWindowHasItsOwn()
{
    start();
    EditorWindow *first = openWindow();
    first->openFiles({m_file});
    const QString other = m_folder->filePath(u"b.wflw"_s);
    QVERIFY(QFile::copy(m_file, other));
    first->openFiles({other});
    QCOMPARE(openWindows().size(), 2);
    for (EditorWindow *window : openWindows()) {
        renameFirstTab(*window, QFileInfo(window->workflowFilePath()).baseName());
        closeUnsaved(window);
    }
    m_store = std::make_shared<RecoveryStore>(journals());
    QSet<QString> names;
    for (const RecoveryEntry &entry : m_store->entries()) {
        const QString tab =
            PropertyEditorContent(m_store->take(entry)->document).tabsAndContent().first().first;
        QCOMPARE(QFileInfo(entry.file).baseName(), tab);
        names.insert(tab);
    }
    QCOMPARE(names, QSet<QString>({u"a"_s, u"b"_s}));
}

void EditorRecoveryTest::whatTheLoadDroppedIsStillAskedAbout()
{
    start();
    m_bytes.insert(m_bytes.indexOf('{') + 1, R"("ofAnotherApplication": 1,)");
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(m_bytes) == m_bytes.size());
    file.close();
    const LogCapture log;
    EditorWindow *window = openWindow();
    window->openFiles({m_file});
    renameFirstTab(*window, u"Renamed"_s);
    closeUnsaved(window);
    m_store = std::make_shared<RecoveryStore>(journals());
    window = openWindow();
    window->offerRecovery();
    recover(window);
    QCOMPARE(firstTab(*window), u"Renamed"_s);
    ScriptedAnswerer answers;
    answers.expectPath(u"Save Workflow"_s, m_folder->filePath(u"b.wflw"_s));
    answers.expectBox(u"Save Workflow"_s, u"Cancel"_s);
    QVERIFY(!window->saveWorkflowAs());
    QVERIFY(answers.isDone());
    QVERIFY(answers.transcript().last().details.contains(u"ofAnotherApplication"_s));
}

void EditorRecoveryTest::severalAreRecoveredAtOnce()
{
    start();
    const QString other = m_folder->filePath(u"b.wflw"_s);
    QVERIFY(QFile::copy(m_file, other));
    for (const QString &path : {m_file, other}) {
        EditorWindow *window = openWindow();
        window->openFiles({path});
        renameFirstTab(*window, u"Renamed"_s);
        closeUnsaved(window);
    }
    m_store = std::make_shared<RecoveryStore>(journals());
    EditorWindow *window = openWindow();
    window->offerRecovery();
    QTreeView *entries = list(*window, u"Unsaved workflows"_s);
    QCOMPARE(entries->model()->rowCount(), 2);
    QTRY_VERIFY(!panelText(*window).contains(u"Looking whether"_s));
    QTest::keyClick(entries, Qt::Key_Down, Qt::ShiftModifier);
    QTest::mouseClick(panelButton(*window, u"&Recover"_s), Qt::LeftButton);
    QCOMPARE(openWindows().size(), 2);
    for (const EditorWindow *shown : openWindows())
        QCOMPARE(firstTab(*shown), u"Renamed"_s);
    QVERIFY(!window->findChild<QDockWidget *>(u"recovery"_s)->isVisible());
}

void EditorRecoveryTest::undoneEditsAreNotOffered()
{
    start();
    EditorWindow *window = openWindow();
    window->openFiles({m_file});
    window->findChild<JournalKeeper *>()->setInterval(10);
    renameFirstTab(*window, u"Renamed"_s);
    const auto size = [this] { return QFileInfo(journals() + u'/' + journalFiles().value(0)).size(); };
    QTRY_VERIFY(size() > m_bytes.size() / 4);
    undoByKey(*window);
    QVERIFY(firstTab(*window) != u"Renamed"_s);
    const ScriptedAnswerer answers;
    QCOMPARE(journalsBehind(window), QStringList());
    QVERIFY(answers.isDone());
}

void EditorRecoveryTest::upgradesThatWereTakenBackAreNotOffered()
{
    start();
    EditorWindow *window = openWindow();
    ScriptedAnswerer answers;
    answers.expectBox(u"Workflow upgrade"_s, u"Apply"_s);
    window->openFiles({TestData::examplePath(u"workflows/outdated/antibody_search_2018.wflw"_s)});
    renameFirstTab(*window, u"Renamed"_s);
    undoByKey(*window);
    undoByKey(*window);
    QCOMPARE(window->content().tabsAndContent().size(), 0);
    QCOMPARE(journalsBehind(window), QStringList());
    QVERIFY(answers.isDone());
}

void EditorRecoveryTest::recoveredWorkflowsStayWhereTheirUpgradeIsTakenBack()
{
    start();
    {
        const auto journal = m_store->newJournal();
        QSignalSpy written(journal.get(), &RecoveryJournal::written);
        journal->begin({}, {});
        const QString old = TestData::examplePath(u"workflows/outdated/intact_mass_2022.wflw"_s);
        journal->write(PropertyEditorContent(TestData::read(old)));
        QVERIFY(written.wait());
    }
    EditorWindow *window = openWindow();
    for (int round = 0; round < 2; ++round) {
        window->offerRecovery();
        ScriptedAnswerer answers;
        answers.expectBox(u"Workflow upgrade"_s, u"Apply"_s);
        recover(window);
        QVERIFY(answers.isDone());
        QVERIFY(window->workflowTabs()->count() > 0);
        undoByKey(*window);
        QCOMPARE(window->workflowTabs()->count(), 0);
        QCOMPARE(journalsBehind(window).size(), 1);
        m_store = std::make_shared<RecoveryStore>(journals());
        window = openWindow();
    }
}

void EditorRecoveryTest::recoveredUpgradesLeaveTheEarlierFile()
{
    start();
    m_bytes = TestData::read(TestData::examplePath(u"workflows/outdated/intact_mass_2022.wflw"_s));
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(m_bytes) == m_bytes.size());
    file.close();
    EditorWindow *window = openWindow();
    ScriptedAnswerer answers;
    answers.expectBox(u"Workflow upgrade"_s, u"Apply"_s);
    window->openFiles({m_file});
    renameFirstTab(*window, u"Renamed"_s);
    closeUnsaved(window);
    m_store = std::make_shared<RecoveryStore>(journals());
    window = openWindow();
    window->offerRecovery();
    recover(window);
    QCOMPARE(window->workflowFilePath(), m_file);
    answers.expectPath(u"Save Workflow"_s, QString());
    window->save();
    QVERIFY(answers.isDone());
    QCOMPARE(TestData::read(m_file), m_bytes);
}

void EditorRecoveryTest::filesChangedSinceTheOfferAreAskedAbout()
{
    EditorWindow *window = offered(u"Renamed"_s);
    QTRY_VERIFY(panelText(*window).contains(u"Its file wasn't changed"_s));
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::Append) && file.write("\n") == 1);
    file.close();
    recover(window);
    ScriptedAnswerer answers;
    answers.expectBox(u"Save"_s, u"Cancel"_s);
    window->save();
    QVERIFY(answers.isDone());
    QCOMPARE(TestData::read(m_file), m_bytes + '\n');
}

WIDGET_REGISTER_TEST(EditorRecoveryTest)
#include "EditorRecoveryTest.moc"
