#include "HistoryFixture.h"
#include "grid/PersonActs.h"
#include "grid/WholeWorkflow.h"

#include <orv/propertyeditor/grid/EditableTabBar.h>
#include <orv/table_model/TableHistory.h>
#include <orv/table_model/TableSheet.h>
#include <orv/widgets/TableView.h>

#include <QMouseEvent>
#include <QRandomGenerator>

using namespace orv;
using namespace HistoryFixture;

namespace {

/// What follows a step is told with the events behind it, and theirs.
void letOthersFollow()
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

} // namespace

class HistoryEditsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void columnsThatFollowKeepTheRedoneStep();
    void everythingIsUndone_data();
    void everythingIsUndone();
    void tablesTakeTheirOwnStepsBack();
    void stepsOfTablesCountAndAreForgotten();
    void stepsOfTablesWithoutAStepOfTheDocumentAreForgotten();
    void aTabIsDraggedInOneStep();
    void randomEditsGoBackAndForth();
    void theLoadedValueIsNoModification_data();
    void theLoadedValueIsNoModification();
};

void HistoryEditsTest::columnsThatFollowKeepTheRedoneStep()
{
    Edited edited(
        WindowFixture::documentOf({searchCell(), WholeWorkflow::defaultCell(BaseItemType::Samples)}));
    auto *table = edited.window.grid(0)->items().at(1)->widget()->findChild<TableView *>();
    const auto name = [&](const QString &text) {
        table->setFocus();
        table->setCurrentIndex(table->model()->index(0, 0));
        QTest::keyClick(table, Qt::Key_F2);
        LeavingWays::type(text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::processEvents();
        edited.history->takeIn();
    };
    table->action(TableView::Command::AddRow)->trigger();
    name(u"Blank"_s);
    edited.type("Samples", "Blank");
    name(u"Renamed"_s);
    const QByteArray last = edited.shown();
    const int steps = edited.history->count();
    QCOMPARE(edited.value("Samples"), u"Renamed"_s);
    for (int round = 0; round < 2; ++round) {
        edited.history->undo();
        QCoreApplication::processEvents();
        QCOMPARE(edited.value("Samples"), u"Blank"_s);
        QVERIFY(edited.history->canRedo());
        edited.history->redo();
        QCoreApplication::processEvents();
        QCOMPARE(edited.shown(), last);
        QCOMPARE(edited.history->count(), steps);
    }
}

void HistoryEditsTest::everythingIsUndone_data()
{
    QTest::addColumn<BaseItemType>("kind");
    for (const BaseItemType kind : WholeWorkflow::kinds())
        QTest::newRow(qPrintable(WholeWorkflow::nameOf(kind))) << kind;
}

void HistoryEditsTest::everythingIsUndone()
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

void HistoryEditsTest::tablesTakeTheirOwnStepsBack()
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

void HistoryEditsTest::stepsOfTablesCountAndAreForgotten()
{
    Edited edited(WindowFixture::documentOf({WholeWorkflow::defaultCell(BaseItemType::Samples)}));
    auto *table = edited.window.grid(0)->items().constFirst()->widget()->findChild<TableView *>();
    const TableHistory *steps = table->sheet()->history();
    table->action(TableView::Command::AddRow)->trigger();
    letOthersFollow();
    const int begun = edited.history->count();
    for (int i = 1; i <= 20; ++i) {
        QVERIFY(!table->sheet()->setText(0, 0, u"S%1"_s.arg(i)).hasError());
        letOthersFollow();
    }
    QCOMPARE(edited.history->count(), begun + 20);
    QCOMPARE(steps->count(), 21);
    QVERIFY(steps->heldBytes() > 0);
    edited.history->setLimit(edited.history->heldBytes() / 4);
    QVERIFY(edited.history->heldBytes() <= edited.history->limit());
    const int left = edited.history->count();
    QVERIFY2(left >= 3 && left <= 6, qPrintable(QString::number(left)));
    QCOMPARE(steps->count(), left);
    // What is left goes back and forth in the table as before.
    const QByteArray last = edited.shown();
    while (edited.history->canUndo())
        edited.history->undo();
    QCOMPARE(table->sheet()->text(0, 0), u"S%1"_s.arg(20 - left));
    QCOMPARE(steps->index(), 0);
    while (edited.history->canRedo())
        edited.history->redo();
    QCOMPARE(edited.shown(), last);
    QCOMPARE(steps->index(), left);
}

void HistoryEditsTest::stepsOfTablesWithoutAStepOfTheDocumentAreForgotten()
{
    Edited edited(WindowFixture::documentOf({WholeWorkflow::defaultCell(BaseItemType::Samples)}));
    auto *table = edited.window.grid(0)->items().constFirst()->widget()->findChild<TableView *>();
    const TableHistory *steps = table->sheet()->history();
    table->action(TableView::Command::AddRow)->trigger();
    letOthersFollow();
    // There and back within one event: the document is what it was.
    for (int i = 0; i < 50; ++i) {
        QVERIFY(!table->sheet()->setText(0, 0, QString(1000, u'x')).hasError());
        QVERIFY(!table->sheet()->setText(0, 0, QString()).hasError());
        letOthersFollow();
    }
    const int count = edited.history->count();
    QVERIFY2(count <= 2, qPrintable(QString::number(count)));
    QVERIFY(steps->count() > 50);
    const qsizetype held = edited.history->heldBytes();
    edited.history->setLimit(held / 4);
    QVERIFY2(edited.history->heldBytes() <= held / 4,
             qPrintable(u"%1 of %2"_s.arg(edited.history->heldBytes()).arg(held)));
    const QByteArray last = edited.shown();
    while (edited.history->canUndo())
        edited.history->undo();
    while (edited.history->canRedo())
        edited.history->redo();
    QCOMPARE(edited.shown(), last);
}

void HistoryEditsTest::aTabIsDraggedInOneStep()
{
    QJsonArray tabs;
    for (const QString &title : {u"A"_s, u"B"_s, u"C"_s, u"D"_s})
        tabs.append(Documents::tab(title, {u"View"_s}, {WindowFixture::previewCell()}));
    Edited edited(Documents::document(tabs, WindowFixture::metadata()));
    edited.window.state().setEditorMode(GridPropertyEditorView::EditorMode::Designer);
    QTabBar *bar = edited.window.tabs().editableTabBar();
    const auto titles = [bar] {
        QString all;
        for (int i = 0; i < bar->count(); ++i)
            all += bar->tabText(i);
        return all;
    };
    const auto drag = [bar](QEvent::Type type, const QPoint &place) {
        const bool isMove = type == QEvent::MouseMove;
        QMouseEvent event(type, place, bar->mapToGlobal(place), isMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(bar, &event);
        letOthersFollow();
    };
    const auto dragOver = [&](int from, int to) {
        const QPoint start = bar->tabRect(from).center();
        const QPoint end = bar->tabRect(to).center();
        drag(QEvent::MouseButtonPress, start);
        constexpr int kMoves = 40;
        for (int i = 1; i <= kMoves; ++i)
            drag(QEvent::MouseMove, start + (end - start) * i / kMoves);
        drag(QEvent::MouseButtonRelease, end);
    };
    dragOver(0, 3);
    QCOMPARE(titles(), u"BCDA"_s);
    QCOMPARE(edited.history->count(), 1);
    dragOver(0, 2);
    QCOMPARE(titles(), u"CDBA"_s);
    QCOMPARE(edited.history->count(), 2);
    edited.history->undo();
    QCOMPARE(titles(), u"BCDA"_s);
    edited.history->undo();
    QCOMPARE(titles(), u"ABCD"_s);
    QVERIFY(!edited.history->canUndo());
}

void HistoryEditsTest::randomEditsGoBackAndForth()
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
            letOthersFollow();
        } else if (roll == 2 && edited.history->canRedo()) {
            edited.history->redo();
            letOthersFollow();
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

void HistoryEditsTest::theLoadedValueIsNoModification_data()
{
    QTest::addColumn<QByteArray>("setting");
    QTest::addColumn<QByteArray>("typed");
    QTest::newRow("a number") << "KarvonCentroidTopk"_ba
                              << "345"_ba;
    QTest::newRow("a number with a unit") << "KarvonFragmentMassError"_ba
                                          << "20"_ba;
    QTest::newRow("a text") << "KarvonDigestLetters"_ba
                            << "K"_ba;
}

void HistoryEditsTest::theLoadedValueIsNoModification()
{
    QFETCH(QByteArray, setting);
    QFETCH(QByteArray, typed);
    Edited edited;
    const KProperty &property = edited.tree().propertySet()->property(setting);
    const QByteArray loaded = edited.shown();
    edited.type(setting.constData(), typed.constData());
    edited.type("Samples", "other");
    const QByteArray last = edited.shown();
    QVERIFY(property.isModified());
    edited.history->undo();
    QVERIFY(property.isModified());
    edited.history->undo();
    letOthersFollow();
    QVERIFY(!property.isModified());
    QVERIFY(!edited.tree().propertySet()->property("Samples").isModified());
    QCOMPARE(edited.shown(), loaded);
    QVERIFY(!edited.history->canUndo());
    edited.history->redo();
    QVERIFY(property.isModified());
    edited.history->redo();
    letOthersFollow();
    QCOMPARE(edited.shown(), last);
    QVERIFY(!edited.history->canRedo());
    edited.history->undo();
    edited.history->undo();
    letOthersFollow();
    QVERIFY(!property.isModified());
    QCOMPARE(edited.shown(), loaded);
}

WIDGET_REGISTER_TEST(HistoryEditsTest)
#include "HistoryEditsTest.moc"
