#include "HistoryFixture.h"
#include "grid/WholeWorkflow.h"

#include <orv/propertyeditor/grid/EditableTabBar.h>

#include <QJsonArray>
#include <QSignalSpy>

using namespace orv;
using namespace HistoryFixture;

class HistoryTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void columnsThatStayKeepTheirFolds();
    void nothingIsToBeUndoneAtFirst();
    void aStepTellsOldAndNewValue();
    void keysAndMenuUndoAndRedo();
    void typingOfOneFieldIsOneStep();
    void whatEndsAsItBeganIsNoStep();
    void whatIsTypedAnewTakesNoOtherStepAlong();
    void typedBackIsAStepOfItsOwn();
    void openEditorsAreTakenOverFirst();
    void columnsAreUndone();
    void columnsThatCantBeShownAreUndone();
    void tabsAreUndone();
    void propertiesOfTheWorkflowAreUndone();
    void theSavedStateIsAState();
    void savingBetweenStepsOfPropertiesStaysSaved();
    void upgradedDocumentsCountAsUnsaved();
    void stepsOutliveASave();
    void stepsLeaveAloneWhatOnlyASaveWroteOtherwise();
    void anotherDocumentBeginsAnew();
    void thePlaceIsShown();
    void foldsAndScrollStay();
    void groupsAreOneStep();
    void tabsOfOneTitleAreMovedBack();
    void anotherDocumentLoadedInAHandlerKeepsItself();
    void aColumnMayGoWhileAStepIsShown();
    void oldStepsGoFirst();
    void theWindowMayGoWhileItIsTold();
};

void HistoryTest::columnsThatStayKeepTheirFolds()
{
    Edited edited(
        WindowFixture::documentOf({searchCell(), WholeWorkflow::defaultCell(BaseItemType::Masses)}));
    const QPointer<QWidget> column = edited.window.grid(0)->items().constFirst()->widget();
    edited.tree().expandAll();
    const QModelIndex folded = edited.tree().model()->index(0, 0);
    edited.tree().collapse(folded);
    const QByteArray before = edited.shown();
    const DocumentState from = edited.history->state();
    DocumentState to = from;
    to.tabs[0].columns.removeLast();
    to.tabs[0].cells.removeLast();
    QJsonObject cell = to.tabs.at(0).cells.at(0).object();
    QJsonArray entries = cell[u"properties"_s].toArray();
    for (qsizetype i = 0; i < entries.size(); ++i) {
        QJsonObject entry = entries.at(i).toObject();
        if (entry[u"name"_s] == u"KarvonCentroidTopk"_s)
            entry[u"value"_s] = 345;
        entries[i] = entry;
    }
    cell[u"properties"_s] = entries;
    to.tabs[0].cells[0] = StateCell(cell);
    const auto isKept = [&] {
        return column && column == edited.window.grid(0)->items().constFirst()->widget() &&
               !edited.tree().isExpanded(edited.tree().model()->index(0, 0)) &&
               edited.tree().isExpanded(edited.tree().model()->index(1, 0));
    };
    QVERIFY(isKept());
    QVERIFY(edited.history->edit(from, to, u"both"_s));
    QCOMPARE(edited.window.grid(0)->items().size(), 1);
    QCOMPARE(edited.value("KarvonCentroidTopk"), u"345"_s);
    QVERIFY(isKept());
    edited.history->undo();
    QCOMPARE(edited.shown(), before);
    QVERIFY(isKept());
}

void HistoryTest::nothingIsToBeUndoneAtFirst()
{
    const Edited edited;
    QVERIFY(!edited.history->canUndo());
    QVERIFY(!edited.history->canRedo());
    QVERIFY(!edited.history->isModified());
    const QAction *undo = edited.workbench->editMenu()->actions().constFirst();
    QCOMPARE(undo->text(), u"&Undo"_s);
    QCOMPARE(undo->toolTip(), u"Nothing was edited yet."_s);
    QVERIFY(!undo->isEnabled());
}

void HistoryTest::aStepTellsOldAndNewValue()
{
    Edited edited;
    edited.type("KarvonDigestLetters", "K&R");
    QCOMPARE(edited.history->undoText(), u"Search cleavage residues RK to K&R"_s);
    QCOMPARE(edited.workbench->editMenu()->actions().constFirst()->text(),
             u"&Undo: Search cleavage residues RK to K&&R"_s);
    edited.type("KarvonFragmentMassError", "0.5 Da");
    QCOMPARE(edited.history->undoText(), u"Fragment mass tolerance 10.12 ppm to 0.50 Da"_s);
    edited.type("Samples", "");
    QCOMPARE(edited.history->undoText(), u"Samples * to (empty)"_s);
}

void HistoryTest::keysAndMenuUndoAndRedo()
{
    Edited edited;
    const QByteArray loaded = edited.shown();
    edited.type("KarvonDigestLetters", "KRE");
    const QByteArray changed = edited.shown();
    QVERIFY(edited.history->isModified());
    QVERIFY(edited.window.isWindowModified());
    edited.key(Qt::Key_Z);
    QCOMPARE(edited.value("KarvonDigestLetters"), u"RK"_s);
    QCOMPARE(edited.shown(), loaded);
    QVERIFY(!edited.history->isModified());
    QVERIFY(!edited.window.isWindowModified());
    QCOMPARE(edited.history->redoText(), u"Search cleavage residues RK to KRE"_s);
    edited.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(edited.shown(), changed);
    edited.workbench->editMenu()->actions().at(0)->trigger();
    QCOMPARE(edited.shown(), loaded);
}

void HistoryTest::typingOfOneFieldIsOneStep()
{
    Edited edited;
    edited.tree().expandAll();
    QVERIFY(LeavingWays::open(edited.tree(), "KarvonDigestLetters"));
    for (const char *part : {"E", "D", "K"}) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(part));
        QCoreApplication::processEvents();
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    edited.tree().setFocus();
    edited.history->takeIn();
    QVERIFY(edited.value("KarvonDigestLetters").endsWith(u"EDK"_s));
    QCOMPARE(edited.history->count(), 1);
    edited.type("KarvonDigestLetters", "EE");
    QCOMPARE(edited.history->count(), 2);
}

void HistoryTest::whatEndsAsItBeganIsNoStep()
{
    Edited edited;
    edited.tree().expandAll();
    QVERIFY(LeavingWays::open(edited.tree(), "KarvonDigestLetters"));
    QTest::keyClicks(QApplication::focusWidget(), u"F"_s);
    QCoreApplication::processEvents();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QCoreApplication::processEvents();
    edited.history->takeIn();
    QCOMPARE(edited.value("KarvonDigestLetters"), u"RK"_s);
    QCOMPARE(edited.history->count(), 0);
}

void HistoryTest::whatIsTypedAnewTakesNoOtherStepAlong()
{
    Edited edited;
    edited.type("KarvonCentroidTopk", "500");
    QVERIFY(LeavingWays::open(edited.tree(), "KarvonDigestLetters"));
    for (const Qt::Key code : {Qt::Key_End, Qt::Key_F, Qt::Key_Backspace, Qt::Key_G}) {
        QTest::keyClick(QApplication::focusWidget(), code);
        QCoreApplication::processEvents();
    }
    edited.tree().setFocus();
    QCoreApplication::processEvents();
    QCOMPARE(edited.history->count(), 2);
    edited.history->undo();
    QCOMPARE(edited.value("KarvonDigestLetters"), u"RK"_s);
    QCOMPARE(edited.value("KarvonCentroidTopk"), u"500"_s);
}

void HistoryTest::typedBackIsAStepOfItsOwn()
{
    Edited edited;
    edited.type("KarvonDigestLetters", "KRE");
    edited.type("KarvonDigestLetters", "RK");
    QCOMPARE(edited.history->count(), 2);
    QVERIFY(!edited.history->isModified());
    edited.history->undo();
    QCOMPARE(edited.value("KarvonDigestLetters"), u"KRE"_s);
}

void HistoryTest::openEditorsAreTakenOverFirst()
{
    Edited edited;
    edited.tree().expandAll();
    QVERIFY(LeavingWays::open(edited.tree(), "KarvonDigestLetters"));
    LeavingWays::type(u"D"_s);
    edited.history->undo();
    QCOMPARE(edited.value("KarvonDigestLetters"), u"RK"_s);
    QCOMPARE(edited.history->redoText(), u"Search cleavage residues RK to D"_s);
}

void HistoryTest::columnsAreUndone()
{
    Edited edited(WindowFixture::documentOf({searchCell(), WindowFixture::previewCell()}));
    const QByteArray loaded = edited.shown();
    PropertyGridWidget &grid = *edited.window.grid(0);
    grid.appendColumn(BaseItemType::Samples, u"More"_s, true);
    edited.history->takeIn();
    grid.copyColumn(0);
    edited.history->takeIn();
    grid.renameColumn(0, u"First"_s);
    edited.history->takeIn();
    grid.moveColumn(0, 2);
    edited.history->takeIn();
    grid.removeColumn(1);
    edited.history->takeIn();
    const QByteArray last = edited.shown();
    QCOMPARE(namesOf(edited), QStringList({u"Column \"More\" added"_s, u"Column \"Karvon - copy\" added"_s,
                                           u"Column \"Karvon\" renamed to \"First\""_s,
                                           u"Column \"Preview\" moved"_s, u"Column \"More\" removed"_s}));
    QCOMPARE(edited.shown(), loaded);
    while (edited.history->canRedo())
        edited.history->redo();
    QCOMPARE(edited.shown(), last);
}

void HistoryTest::columnsThatCantBeShownAreUndone()
{
    const LogCapture log;
    Edited edited;
    const QByteArray loaded = edited.shown();
    edited.window.grid(0)->appendColumn(BaseItemType::Unknown, u"Odd"_s, true);
    Q_EMIT edited.window.workflowTabs()->edited();
    edited.history->takeIn();
    const QByteArray odd = edited.shown();
    QVERIFY(odd != loaded);
    QCOMPARE(edited.history->undoText(), u"Column \"Odd\" added"_s);
    edited.history->undo();
    QCOMPARE(edited.shown(), loaded);
    QCOMPARE(edited.window.grid(0)->columnNames().size(), edited.window.grid(0)->items().size());
    edited.history->redo();
    QCOMPARE(edited.shown(), odd);
}

void HistoryTest::tabsAreUndone()
{
    Edited edited;
    edited.window.state().setEditorMode(GridPropertyEditorView::EditorMode::Designer);
    const QByteArray loaded = edited.shown();
    edited.answers.expectDialog(u"Add tab"_s, [](QDialog &dialog) {
        QTest::keyClicks(dialog.findChild<QLineEdit *>(), u"Views"_s);
        return true;
    });
    edited.window.click("Add tab");
    edited.history->takeIn();
    edited.window.tabs().editableTabBar()->moveTab(1, 0);
    edited.history->takeIn();
    edited.window.tabs().setTabText(0, u"Looks"_s);
    Q_EMIT edited.window.tabs().editableTabBar()->titleEdited(0);
    edited.history->takeIn();
    edited.window.tabs().setCurrentIndex(1);
    edited.answers.expectBox(u"Removing tab"_s, u"Yes"_s);
    edited.window.click("Remove current tab");
    edited.history->takeIn();
    const QByteArray last = edited.shown();
    QCOMPARE(namesOf(edited),
             QStringList({u"Tab \"Views\" added"_s, u"Tab \"Views\" moved"_s,
                          u"Tab \"Views\" renamed to \"Looks\""_s, u"Tab \"Analysis\" removed"_s}));
    QCOMPARE(edited.shown(), loaded);
    while (edited.history->canRedo())
        edited.history->redo();
    QCOMPARE(edited.shown(), last);
}

void HistoryTest::propertiesOfTheWorkflowAreUndone()
{
    Edited edited;
    edited.window.setWorkflowMetadata(WindowFixture::metadata("5.47.0", "Another"));
    Q_EMIT edited.window.metadataEdited();
    edited.history->takeIn();
    QCOMPARE(edited.history->undoText(), u"Workflow properties"_s);
    edited.history->undo();
    QCOMPARE(edited.window.workflowMetadata().value(u"name"_s).toString(), u"Mixture"_s);
    edited.history->redo();
    QCOMPARE(edited.window.workflowMetadata().value(u"name"_s).toString(), u"Another"_s);
}

void HistoryTest::theSavedStateIsAState()
{
    const QTemporaryDir folder;
    Edited edited;
    edited.type("KarvonCentroidTopk", "500");
    QVERIFY(edited.window.saveWorkflowToJSON(folder.filePath(u"saved.wflw"_s)));
    QVERIFY(!edited.history->isModified());
    edited.history->undo();
    QVERIFY(edited.history->isModified());
    edited.history->redo();
    QVERIFY(!edited.history->isModified());
    edited.history->undo();
    edited.type("KarvonCentroidTopk", "500");
    QVERIFY(!edited.history->isModified());
}

void HistoryTest::savingBetweenStepsOfPropertiesStaysSaved()
{
    const QTemporaryDir folder;
    Edited edited;
    QJsonObject metadata = edited.window.workflowMetadata();
    metadata.insert(u"description"_s, u"Reduced digest"_s);
    edited.window.setWorkflowMetadata(metadata);
    Q_EMIT edited.window.metadataEdited();
    edited.history->takeIn();
    QVERIFY(edited.window.saveWorkflowToJSON(folder.filePath(u"saved.wflw"_s)));
    const QJsonObject written = edited.window.workflowMetadata();
    edited.history->undo();
    QVERIFY(edited.history->isModified());
    QVERIFY(!edited.window.workflowMetadata().contains(u"description"_s));
    edited.history->redo();
    QVERIFY(!edited.history->isModified());
    QCOMPARE(edited.window.workflowMetadata(), written);
}

void HistoryTest::upgradedDocumentsCountAsUnsaved()
{
    Edited edited;
    edited.answers.expectBox(u"Workflow upgrade"_s, u"Apply"_s);
    QCOMPARE(edited.window.openWorkflow(
                 WindowFixture::documentOf({searchCell()}, WindowFixture::metadata("5.46.0"))),
             WindowFixture::kOpened);
    QVERIFY(edited.history->isModified());
    QCOMPARE(edited.history->count(), 1);
}

void HistoryTest::stepsOutliveASave()
{
    const QTemporaryDir folder;
    Edited edited;
    edited.type("KarvonFragmentMassError", "0.5 Da");
    QVERIFY(edited.window.saveWorkflowToJSON(folder.filePath(u"saved.wflw"_s)));
    QCOMPARE(edited.history->count(), 1);
    const QByteArray saved = edited.shown();
    edited.history->undo();
    QVERIFY(edited.shown().contains("10.1234"));
    edited.history->redo();
    QCOMPARE(edited.shown(), saved);
}

void HistoryTest::stepsLeaveAloneWhatOnlyASaveWroteOtherwise()
{
    const LogCapture log;
    const QTemporaryDir folder;
    QJsonObject samples = Documents::cell(u"Samples"_s);
    const QJsonArray rows{QJsonObject{{u"SampleName"_s, u"A"_s}, {u"SamplePath"_s, u"data/a.mzML"_s}}};
    samples[u"properties"_s] = QJsonArray{
        QJsonObject{{u"name"_s, u"SamplesTable"_s}, {u"value"_s, QJsonObject{{u"Samples"_s, rows}}}}};
    const QJsonObject document =
        Documents::document({Documents::tab(u"Search"_s, {u"Search"_s}, {searchCell()}),
                             Documents::tab(u"Samples"_s, {u"Samples"_s}, {samples})},
                            WindowFixture::metadata());
    const QString path = WindowFixture::write(folder, "a.wflw", document);
    Edited edited;
    QCOMPARE(edited.window.openWorkflow(path), WindowFixture::kOpened);
    edited.type("KarvonCentroidTopk", "500");
    edited.type("KarvonDigestLetters", "K");
    edited.history->undo();
    QVERIFY(edited.window.saveWorkflowToJSON(path));
    const QByteArray whole = QByteArray("\"") + folder.path().toUtf8() + "/data/a.mzML\"";
    QVERIFY2(edited.shown().contains(whole), edited.shown().constData());
    edited.window.tabs().setCurrentIndex(1);
    edited.history->undo();
    QCOMPARE(edited.value("KarvonCentroidTopk"), u"1000"_s);
    QCOMPARE(edited.window.tabs().currentIndex(), 0);
    QVERIFY(edited.shown().contains(whole));
    edited.history->redo();
    edited.history->redo();
    QCOMPARE(edited.value("KarvonCentroidTopk"), u"500"_s);
    QCOMPARE(edited.value("KarvonDigestLetters"), u"K"_s);
    QVERIFY(edited.shown().contains(whole));
    edited.history->undo();
    QVERIFY(!edited.history->isModified());
}

void HistoryTest::anotherDocumentBeginsAnew()
{
    Edited edited;
    edited.type("KarvonDigestLetters", "KRE");
    QCOMPARE(edited.window.openWorkflow(WindowFixture::documentOf({WindowFixture::previewCell()})),
             WindowFixture::kOpened);
    QVERIFY(!edited.history->canUndo());
    QVERIFY(!edited.history->isModified());
}

void HistoryTest::thePlaceIsShown()
{
    QJsonObject document =
        Documents::document({Documents::tab(u"Analysis"_s, {u"Search"_s}, {searchCell()}),
                             Documents::tab(u"Views"_s, {u"View"_s}, {WindowFixture::previewCell()})},
                            WindowFixture::metadata());
    Edited edited(document);
    edited.tree().expandAll();
    edited.type("KarvonDigestLetters", "KRE");
    edited.tree().collapseAll();
    edited.window.tabs().setCurrentIndex(1);
    edited.history->undo();
    QCOMPARE(edited.window.tabs().currentIndex(), 0);
    const QModelIndex row = GridFixture::indexOf(edited.tree(), "KarvonDigestLetters");
    QVERIFY(edited.tree().isExpanded(row.parent()));
    QCOMPARE(edited.tree().currentIndex().siblingAtColumn(0), row.siblingAtColumn(0));
}

void HistoryTest::foldsAndScrollStay()
{
    Edited edited;
    edited.tree().expandAll();
    edited.type("KarvonDigestLetters", "KRE");
    const QModelIndex other = GridFixture::indexOf(edited.tree(), "Samples").parent();
    edited.tree().collapse(other);
    const QPersistentModelIndex kept = other;
    edited.history->undo();
    QVERIFY(kept.isValid());
    QVERIFY(!edited.tree().isExpanded(kept));
}

void HistoryTest::groupsAreOneStep()
{
    Edited edited;
    const QByteArray loaded = edited.shown();
    {
        const DocumentHistory::Group group(edited.history, u"Taken over from \"Other\""_s);
        edited.tree().propertySet()->property("KarvonDigestLetters").setValue(u"A"_s);
        edited.history->takeIn();
        edited.tree().propertySet()->property("Samples").setValue(u"three"_s);
    }
    QCOMPARE(edited.history->count(), 1);
    QCOMPARE(edited.history->undoText(), u"Taken over from \"Other\""_s);
    edited.type("KarvonDigestLetters", "B");
    QCOMPARE(edited.history->count(), 2);
    edited.history->undo();
    edited.history->undo();
    QCOMPARE(edited.shown(), loaded);
}

void HistoryTest::tabsOfOneTitleAreMovedBack()
{
    Edited edited(Documents::document({Documents::tab(u"A"_s, {u"Search"_s}, {searchCell()}),
                                       Documents::tab(u"A"_s, {u"View"_s}, {WindowFixture::previewCell()})},
                                      WindowFixture::metadata()));
    const QByteArray loaded = edited.shown();
    edited.window.tabs().editableTabBar()->moveTab(1, 0);
    edited.history->takeIn();
    const QAction *undo = edited.workbench->editMenu()->actions().constFirst();
    QVERIFY(undo->isEnabled());
    QVERIFY(!edited.history->undoText().isEmpty());
    edited.history->undo();
    QCOMPARE(edited.shown(), loaded);
}

void HistoryTest::anotherDocumentLoadedInAHandlerKeepsItself()
{
    Edited edited;
    edited.type("KarvonDigestLetters", "KRE");
    auto *view = static_cast<GridPropertyEditorView *>(edited.window.grid(0)->items().constFirst()->widget());
    connect(
        view, &GridPropertyEditorView::contentEdited, this,
        [&] {
            QCOMPARE(edited.window.openWorkflow(WindowFixture::documentOf({WindowFixture::previewCell()})),
                     WindowFixture::kOpened);
        },
        Qt::SingleShotConnection);
    edited.history->undo();
    QCoreApplication::processEvents();
    QCOMPARE(edited.window.grid(0)->columnNames(), QStringList(u"Preview"_s));
    QVERIFY(!edited.history->canUndo());
    QVERIFY(!edited.history->canRedo());
    QVERIFY(!edited.history->isModified());
}

void HistoryTest::aColumnMayGoWhileAStepIsShown()
{
    Edited edited(WindowFixture::documentOf({searchCell(), WindowFixture::previewCell()}));
    edited.type("KarvonDigestLetters", "KRE");
    PropertyGridWidget *grid = edited.window.grid(0);
    auto *view = static_cast<GridPropertyEditorView *>(grid->items().constFirst()->widget());
    connect(
        view, &GridPropertyEditorView::propertyChanged, this, [grid] { grid->removeColumn(0); },
        Qt::SingleShotConnection);
    edited.history->undo();
    QCOMPARE(grid->columnNames(), QStringList(u"Preview"_s));
    QCOMPARE(edited.history->state().tabs.constFirst().columns, QStringList(u"Preview"_s));
}

void HistoryTest::oldStepsGoFirst()
{
    Edited edited;
    for (int i = 0; i < 20; ++i)
        edited.type("KarvonDigestLetters", qPrintable(u"K%1"_s.arg(i)));
    QCOMPARE(edited.history->count(), 20);
    const qsizetype each = edited.history->heldBytes() / 20;
    edited.history->setLimit(each * 5);
    QVERIFY(edited.history->count() >= 4 && edited.history->count() <= 6);
    QVERIFY(edited.history->heldBytes() <= each * 5);
    QCOMPARE(edited.history->undoText(), u"Search cleavage residues K18 to K19"_s);
    while (edited.history->canUndo())
        edited.history->undo();
    QVERIFY(edited.value("KarvonDigestLetters").startsWith(u"K1"_s));
    QVERIFY(edited.history->isModified());
}

void HistoryTest::theWindowMayGoWhileItIsTold()
{
    for (const bool isUndo : {true, false}) {
        auto *window = new Window;
        auto *workbench = new Workbench(window);
        QCOMPARE(window->openWorkflow(WindowFixture::documentOf({searchCell()})), WindowFixture::kOpened);
        window->show();
        KPropertySet *set =
            static_cast<GridPropertyEditorView *>(window->grid(0)->items().constFirst()->widget())
                ->propertySet();
        set->property("Samples").setValue(u"three"_s);
        if (isUndo)
            workbench->history()->takeIn();
        const QPointer<Window> guard(window);
        connect(workbench->history(), &DocumentHistory::changed, this, [guard] { delete guard.data(); });
        isUndo ? workbench->history()->undo() : workbench->history()->takeIn();
        QVERIFY(!guard);
    }
}

WIDGET_REGISTER_TEST(HistoryTest)
#include "HistoryTest.moc"
