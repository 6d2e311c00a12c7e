#include "WidgetTest.h"
#include "WindowFixture.h"
#include "editors/LeavingWays.h"
#include "grid/PersonActs.h"
#include "grid/WholeWorkflow.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/grid/EditableTabBar.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>
#include <orv/propertyeditor/workbench/DocumentHistory.h>
#include <orv/propertyeditor/workbench/Workbench.h>
#include <orv/table_model/TableHistory.h>
#include <orv/table_model/TableSheet.h>
#include <orv/widgets/TableView.h>

#include <QRandomGenerator>
#include <QSignalSpy>

using namespace orv;
using namespace Qt::StringLiterals;
using WindowFixture::Window;

namespace {

QJsonObject searchCell()
{
    using WindowFixture::setting;
    return WindowFixture::karvonCell(
        {setting("KarvonDigestLetters", u"RK"_s, "Digestion"), setting("KarvonCentroidTopk", 1000),
         setting("KarvonFragmentMassError", QJsonObject{{u"value"_s, 10.1234}, {u"unit"_s, u"ppm"_s}})});
}

/// A window with a workbench that shows a document.
struct Edited
{
    explicit Edited(const QJsonObject &document = WindowFixture::documentOf({searchCell()}))
        : workbench(new Workbench(&window))
        , history(workbench->history())
    {
        if (window.openWorkflow(document) != WindowFixture::kOpened)
            qFatal("The fixture doesn't load");
        window.resize(1000, 700);
        window.show();
    }

    KPropertyEditorView &tree(int tab = 0, int column = 0)
    {
        return *static_cast<GridPropertyEditorView *>(window.grid(tab)->items().at(column)->widget())
                    ->editorView();
    }
    /// Without the stamps of a save.
    QByteArray shown()
    {
        return QJsonDocument(PropertyEditorJsonUtils::withoutStamps(window.content().document())).toJson();
    }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window, code, modifiers);
    }
    QString value(const char *name) { return tree().propertySet()->property(name).value().toString(); }
    /// As a person does it, and the events behind it.
    void type(const char *setting, const char *value)
    {
        tree().expandAll();
        if (!LeavingWays::open(tree(), setting))
            qFatal("There is no editor for %s", setting);
        LeavingWays::type(QString::fromUtf8(value));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        tree().setFocus();
        history->takeIn();
    }

    Window window;
    Workbench *workbench;
    DocumentHistory *history;
    ScriptedAnswerer answers;
};

QStringList namesOf(const Edited &edited)
{
    QStringList names;
    while (edited.history->canUndo()) {
        names.prepend(edited.history->undoText());
        edited.history->undo();
    }
    return names;
}

} // namespace

class HistoryTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsToBeUndoneAtFirst();
    void aStepTellsOldAndNewValue();
    void keysAndMenuUndoAndRedo();
    void typingOfOneFieldIsOneStep();
    void whatEndsAsItBeganIsNoStep();
    void typedBackIsAStepOfItsOwn();
    void openEditorsAreTakenOverFirst();
    void columnsAreUndone();
    void tabsAreUndone();
    void propertiesOfTheWorkflowAreUndone();
    void theSavedStateIsAState();
    void stepsOutliveASave();
    void anotherDocumentBeginsAnew();
    void thePlaceIsShown();
    void foldsAndScrollStay();
    void groupsAreOneStep();
    void oldStepsGoFirst();
    void everythingIsUndone_data();
    void everythingIsUndone();
    void tablesTakeTheirOwnStepsBack();
    void randomEditsGoBackAndForth();
    void theWindowMayGoWhileItIsTold();
};

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

void HistoryTest::everythingIsUndone_data()
{
    QTest::addColumn<BaseItemType>("kind");
    for (const BaseItemType kind : WholeWorkflow::kinds())
        QTest::newRow(qPrintable(WholeWorkflow::nameOf(kind))) << kind;
}

void HistoryTest::everythingIsUndone()
{
    QFETCH(BaseItemType, kind);
    const LogCapture log;
    Edited edited(WindowFixture::documentOf(
        {kind == BaseItemType::Karvon ? searchCell() : WholeWorkflow::defaultCell(kind)}));
    const QByteArray loaded = edited.shown();
    const PersonActs::Blunt answers(true);
    QWidget *widget = edited.window.grid(0)->items().constFirst()->widget();
    if (auto *view = qobject_cast<GridPropertyEditorView *>(widget))
        view->expandAll();
    // Each is tried where edits are told; here some of every kind do.
    const QList<PersonActs::Act> acts = PersonActs::actsOf(widget);
    const qsizetype stride = std::max<qsizetype>(1, acts.size() / 60);
    for (qsizetype i = 0; i < acts.size(); i += stride) {
        PersonActs::perform(acts.at(i));
        edited.history->takeIn();
    }
    QVERIFY2(edited.history->count() > 0, "Nothing was edited");
    const QByteArray last = edited.shown();
    for (int round = 0; round < 2; ++round) {
        int steps = edited.history->index();
        while (edited.history->canUndo()) {
            edited.history->undo();
            QCoreApplication::processEvents();
            --steps;
            QCOMPARE(edited.history->index(), steps);
        }
        QCOMPARE(edited.shown(), loaded);
        while (edited.history->canRedo()) {
            edited.history->redo();
            QCoreApplication::processEvents();
        }
        QCOMPARE(edited.shown(), last);
    }
}

void HistoryTest::tablesTakeTheirOwnStepsBack()
{
    Edited edited(WindowFixture::documentOf({WholeWorkflow::defaultCell(BaseItemType::Samples)}));
    auto *table = edited.window.grid(0)->items().constFirst()->widget()->findChild<TableView *>();
    QVERIFY(table);
    table->action(TableView::Command::AddRow)->trigger();
    QCoreApplication::processEvents();
    edited.history->takeIn();
    QCOMPARE(edited.history->count(), 1);
    QVERIFY(!edited.history->undoText().isEmpty());
    table->action(TableView::Command::Undo)->trigger();
    QCoreApplication::processEvents();
    edited.history->takeIn();
    QCOMPARE(edited.history->count(), 1);
    QVERIFY(edited.history->canRedo());
    QVERIFY(!edited.history->canUndo());
    edited.history->redo();
    QCOMPARE(table->sheet()->history()->index(), 1);
}

void HistoryTest::randomEditsGoBackAndForth()
{
    constexpr quint32 kSeed = 20261122;
    QRandomGenerator random(kSeed);
    Edited edited(WindowFixture::documentOf(
        {searchCell(), WindowFixture::previewCell(), WholeWorkflow::defaultCell(BaseItemType::Samples)}));
    const auto seed = qScopeGuard([] { qInfo("seed %u", kSeed); });
    QList<QByteArray> states{edited.shown()};
    const std::array<std::function<void(PropertyGridWidget &, int)>, 6> acts{
        [](PropertyGridWidget &grid, int column) { grid.copyColumn(column); },
        [](PropertyGridWidget &grid, int column) { grid.removeColumn(column); },
        [&](PropertyGridWidget &grid, int column) {
            grid.renameColumn(column, QString::number(random.bounded(9)));
        },
        [&](PropertyGridWidget &grid, int column) { grid.moveColumn(column, random.bounded(4)); },
        [](PropertyGridWidget &grid, int) { grid.appendColumn(BaseItemType::Karvon, u"New"_s, true); },
        [&](PropertyGridWidget &grid, int column) {
            auto *view = qobject_cast<GridPropertyEditorView *>(grid.items().at(column)->widget());
            if (view && view->propertySet()->contains("Samples"))
                view->propertySet()->property("Samples").setValue(QString::number(random.bounded(5)));
        }};
    for (int i = 0; i < 200; ++i) {
        const int roll = random.bounded(10);
        if (roll < 2 && edited.history->canUndo()) {
            edited.history->undo();
        } else if (roll == 2 && edited.history->canRedo()) {
            edited.history->redo();
        } else {
            PropertyGridWidget &grid = *edited.window.grid(0);
            const int columns = int(grid.items().size());
            const int before = edited.history->index();
            const size_t act = columns == 0 ? 4 : columns > 5 ? 1 : size_t(random.bounded(6));
            acts.at(act)(grid, columns == 0 ? 0 : random.bounded(columns));
            edited.history->takeIn();
            if (edited.history->index() > before) {
                states.resize(edited.history->index());
                states.append(edited.shown());
            }
        }
        QCOMPARE(edited.shown(), states.at(edited.history->index()));
    }
    while (edited.history->canUndo()) {
        edited.history->undo();
        QCOMPARE(edited.shown(), states.at(edited.history->index()));
    }
    while (edited.history->canRedo())
        edited.history->redo();
    QCOMPARE(edited.shown(), states.at(edited.history->index()));
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
