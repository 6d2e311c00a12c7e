#include "GridHands.h"
#include "LogCapture.h"
#include "WidgetTest.h"

#include <orv/core/Settings.h>
#include <orv/propertyeditor/grid/GridHeaderModel.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/grid/PropertySplitterWidget.h>
#include <orv/widgets/DialogAnswerer.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QMenu>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScrollArea>
#include <QSplitter>

using namespace orv;
using namespace GridFixture;
using namespace GridHands;

using EditorMode = GridPropertyEditorView::EditorMode;
using ViewMode = GridPropertyEditorView::PropertiesViewMode;

class PropertyGridWidgetTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void cellsComeBackInOrder();
    void cellsThatCantBeLoaded_data();
    void cellsThatCantBeLoaded();
    void theFirstFailureStopsTheWalk();
    void nothingToLoad();
    void unknownTypesAreTakenWithoutVerification();
    void columnsLookAlike();
    void theHeaderModelHoldsOneRow();
    void columnsAreAppended();
    void columnsAreRemoved();
    void theFocusGoesToTheColumnBeside();
    void theMenuShowsWhatFits();
    void theMenuFoldsGroups();
    void theMenuOffersParametersByType_data();
    void theMenuOffersParametersByType();
    void columnsAreRenamed();
    void spacesAreNoName();
    void columnsOfOneName();
    void columnsAreMoved();
    void columnsAreCopied_data();
    void columnsAreCopied();
    void aNameWithoutAColumnIsNotCopied();
    void modesReachEveryColumn();
    void allItemsAreAsked();
    void whoHearsOfARemovalMayCloseTheGrid();
    void whoHearsOfAColumnMayRemoveAll();
    void randomOperationsKeepTheListsTogether();
};

void PropertyGridWidgetTest::cellsComeBackInOrder()
{
    const auto grid = gridOf(names("A,B,C"));
    QCOMPARE(grid->columnNames(), names("A,B,C"));
    QCOMPARE(headerTexts(*grid), names("A,B,C"));
    QCOMPARE(contentsOf(*grid), names("A,B,C"));
    const QByteArray cell = grid->cells().at(1).toByteArray();
    QCOMPARE(cell, QJsonDocument::fromJson(cell).toJson(QJsonDocument::Indented));
    QCOMPARE(Documents::parse(cell).value(text("name")).toString(), text("B"));
}

void PropertyGridWidgetTest::cellsThatCantBeLoaded_data()
{
    QTest::addColumn<QByteArray>("cell");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("isLogged");
    QTest::newRow("no JSON") << QByteArray("{\"type\"") << text("Json parsing error: ") << true;
    QTest::newRow("an empty object") << QByteArray("{}") << text("Json parsing error: no error occurred")
                                     << true;
    QTest::newRow("a list") << QByteArray("[1]") << text("Json parsing error: ") << true;
    QTest::newRow("an unknown type") << QByteArray("{\"type\": \"Spectra\"}")
                                     << text("Type \"Spectra\" is not supported.") << false;
    QTest::newRow("no type") << QByteArray("{\"name\": \"x\"}") << text("Type \"\" is not supported.")
                             << false;
    QTest::newRow("the unknown type")
        << QByteArray("{\"type\": \"Unknown\"}") << text("Type \"Unknown\" is not supported.") << false;
}

void PropertyGridWidgetTest::cellsThatCantBeLoaded()
{
    QFETCH(QByteArray, cell);
    QFETCH(QString, message);
    QFETCH(bool, isLogged);
    LogCapture log;
    const auto grid = PropertyGridWidget::create({text("A")}, {cell});
    QVERIFY(grid.hasError());
    QCOMPARE(grid.error().code(), ErrorCode::InvalidContent);
    QVERIFY2(grid.error().errorMessage().startsWith(message), qPrintable(grid.error().errorMessage()));
    const bool isParseError = log.warnings().value(0).startsWith(text("Json parsing error:"));
    QCOMPARE(isParseError, isLogged);
}

void PropertyGridWidgetTest::theFirstFailureStopsTheWalk()
{
    const auto grid = gridOf(names("A"));
    const VariantItems cells{cellOf(karvonCell()), QByteArray("{}"), cellOf(karvonCell())};
    LogCapture log;
    QVERIFY(grid->appendData(cells).hasError());
    QCOMPARE(grid->items().size(), 2);
}

void PropertyGridWidgetTest::nothingToLoad()
{
    const auto grid = PropertyGridWidget::create({}, {});
    QVERIFY(!grid.hasError());
    QVERIFY(!(*grid)->appendData({cellOf(karvonCell())}).hasError());
    QVERIFY((*grid)->items().isEmpty());
    (*grid)->setEditorMode(EditorMode::User);
    const Error noItems = (*grid)->appendData({});
    QCOMPARE(noItems.code(), ErrorCode::MalformedStructure);
    QCOMPARE(noItems.errorMessage(), text("No items to load."));
    QCOMPARE((*grid)->appendData({cellOf(karvonCell())}).errorMessage(), text("No columns added."));
    QVERIFY((*grid)->validate(nullptr, nullptr, nullptr, WidgetValidationType::ProjectCreation));
}

void PropertyGridWidgetTest::unknownTypesAreTakenWithoutVerification()
{
    const as::ScopedOverride off(as::kWorkflowVerificationEnabled, false);
    const LogCapture log;
    const auto grid = PropertyGridWidget::create(
        {text("A")}, {cellOf(settingsCell("Spectra", {setting("Samples", text("x"))}))});
    QVERIFY(!grid.hasError());
    QCOMPARE((*grid)->items().constFirst()->type(), BaseItemType::Unknown);
    QCOMPARE(contentsOf(**grid), names("x"));
}

void PropertyGridWidgetTest::columnsLookAlike()
{
    const auto grid = gridOf(names("A,B"));
    const QSplitter *splitter = grid->splitter();
    QCOMPARE(splitter->orientation(), Qt::Horizontal);
    QCOMPARE(splitter->handleWidth(), 0);
    QVERIFY(!splitter->isCollapsible(0) && !splitter->isCollapsible(1));
    const auto *area = grid->findChild<QScrollArea *>(text("propertyGridWidgetScrollArea"));
    QVERIFY(area && area->widgetResizable());
    QCOMPARE(grid->layout()->contentsMargins(), QMargins());
    QCOMPARE(PropertySplitterWidget(nullptr).size(), QSize(259, 339));
    const PropertySplitterWidget *column = columnAt(*grid, 0);
    QCOMPARE(column->objectName(), text("PropertySplitterWidget"));
    QCOMPARE(column->windowTitle(), text("Form"));
    QCOMPARE(column->layout()->spacing(), 0);
    const QHeaderView *header = column->header();
    QCOMPARE(header->height(), 50);
    QCOMPARE(header->contextMenuPolicy(), Qt::CustomContextMenu);
    QVERIFY(header->stretchLastSection());
    QCOMPARE(viewAt(*grid, 0)->minimumWidth(), 400);
    QCOMPARE(viewAt(*grid, 0)->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding));
    QCOMPARE(viewAt(*grid, 0)->documentType(), BaseItemType::Karvon);
}

void PropertyGridWidgetTest::theHeaderModelHoldsOneRow()
{
    const GridHeaderModel model(names("A,B"));
    QCOMPARE(model.columnCount(), 2);
    QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), text("B"));
    QCOMPARE(model.headerData(2, Qt::Horizontal).toString(), text("3"));
    QCOMPARE(model.headerData(0, Qt::Vertical).toInt(), 1);
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
}

void PropertyGridWidgetTest::columnsAreAppended()
{
    const auto grid = gridOf(names("A"));
    int added = 0;
    int edits = 0;
    connect(grid.get(), &PropertyGridWidget::itemAdded, this, [&] { ++added; });
    connect(grid.get(), &PropertyGridWidget::contentEdited, this, [&] { ++edits; });
    // Columns of settings begin empty.
    const LogCapture log;
    grid->appendColumn(BaseItemType::Karvon, text("B"), true);
    QCOMPARE(grid->columnNames(), names("A,B"));
    QCOMPARE(added, 1);
    QCOMPARE(edits, 1);
    QCOMPARE(grid->items().at(1)->type(), BaseItemType::Karvon);
    QVERIFY(!grid->splitter()->childrenCollapsible());
    grid->appendColumn(BaseItemType::Karvon, text("C"), false);
    QCOMPARE(grid->columnNames(), names("A,B,C"));
    QCOMPARE(grid->items().size(), 2);
    QCOMPARE(added, 1);
}

void PropertyGridWidgetTest::columnsAreRemoved()
{
    const auto grid = gridOf(names("A,B,C"));
    int removed = 0;
    connect(grid.get(), &PropertyGridWidget::itemRemoved, this, [&] { ++removed; });
    const QPointer<QWidget> widget = grid->items().at(1)->widget();
    LogCapture log;
    grid->removeColumn(3);
    grid->removeColumn(-1);
    QCOMPARE(log.warnings(), QStringList({text("Invalid index"), text("Invalid index")}));
    grid->removeColumn(1);
    QCOMPARE(grid->columnNames(), names("A,C"));
    QCOMPARE(headerTexts(*grid), names("A,C"));
    QVERIFY(widget);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!widget);
    grid->removeAllColumns();
    QVERIFY(grid->items().isEmpty());
    QVERIFY(grid->columnNames().isEmpty());
    QCOMPARE(removed, 3);
}

void PropertyGridWidgetTest::theFocusGoesToTheColumnBeside()
{
    const auto grid = gridOf(names("A,B,C"));
    grid->show();
    QVERIFY(QTest::qWaitForWindowActive(grid.get()));
    viewAt(*grid, 1)->editorView()->setFocus();
    grid->removeColumn(1);
    QCOMPARE(QApplication::focusWidget(), columnAt(*grid, 1)->header());
    grid->removeColumn(1);
    QCOMPARE(QApplication::focusWidget(), columnAt(*grid, 0)->header());
    auto *other = new QPushButton(grid.get());
    other->show();
    other->setFocus();
    grid->removeColumn(0);
    QCOMPARE(QApplication::focusWidget(), other);
}

void PropertyGridWidgetTest::theMenuShowsWhatFits()
{
    const auto grid = gridOf(names("A,B,C"));
    grid->show();
    QStringList commands;
    for (const QAction *each : grid->columnMenu()->actions())
        commands.append(each->isSeparator() ? text("-") : each->text());
    QCOMPARE(
        commands,
        names("Expand all,-,Remove,Rename,Create copy,Move left,Move right,-,Load xenoset ...,Load prv..."));
    QVERIFY(!action(*grid, "Expand all")->isVisible());
    for (int index = 0; index < 3; ++index) {
        openMenu(*grid, index);
        QCOMPARE(action(*grid, "Move left")->isVisible(), index != 0);
        QCOMPARE(action(*grid, "Move right")->isVisible(), index != 2);
        grid->columnMenu()->close();
    }
}

void PropertyGridWidgetTest::theMenuFoldsGroups()
{
    const auto grid =
        PropertyGridWidget::create(names("A,B"), {cellOf(karvonCell()), cellOf(settingsCell("Karvon", {}))});
    QVERIFY(!grid.hasError());
    (*grid)->show();
    GridPropertyEditorView *view = viewAt(**grid, 0);
    view->collapseAll();
    chooseCommand(**grid, 0, "Expand all");
    QVERIFY(view->isExpanded());
    openMenu(**grid, 0);
    QVERIFY(action(**grid, "Collapse all")->isVisible());
    QVERIFY(!action(**grid, "Collapse all")->icon().isNull());
    (*grid)->columnMenu()->close();
    chooseCommand(**grid, 0, "Collapse all");
    QVERIFY(!view->isExpanded());
}

void PropertyGridWidgetTest::theMenuOffersParametersByType_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("takesXenoset");
    QTest::addColumn<bool>("takesPreview");
    QTest::newRow("3") << text("Karvon") << true << false;
    QTest::newRow("17") << text("Preview") << false << true;
    QTest::newRow("24") << text("TrenqPreview") << false << true;
    QTest::newRow("2") << text("Dravik") << false << false;
}

void PropertyGridWidgetTest::theMenuOffersParametersByType()
{
    QFETCH(QString, type);
    QFETCH(bool, takesXenoset);
    QFETCH(bool, takesPreview);
    const auto grid = gridOf(names("A"), qPrintable(type));
    grid->show();
    openMenu(*grid, 0);
    QCOMPARE(action(*grid, "Load xenoset ...")->isVisible(), takesXenoset);
    QCOMPARE(action(*grid, "Load prv...")->isVisible(), takesPreview);
}

void PropertyGridWidgetTest::columnsAreRenamed()
{
    const auto grid = gridOf(names("A,B"));
    grid->show();
    ScriptedAnswerer answers;
    answers.expectDialog(text("Rename column"), [](QDialog &dialog) {
        auto &input = static_cast<QInputDialog &>(dialog);
        const bool isFilled = input.labelText() == text("New column name:") &&
                              input.textValue() == text("B") &&
                              !input.windowFlags().testFlag(Qt::WindowContextHelpButtonHint);
        input.setTextValue(text("  Peptides  "));
        return isFilled;
    });
    chooseCommand(*grid, 1, "Rename");
    QVERIFY(answers.isDone());
    QCOMPARE(grid->columnNames(), names("A,Peptides"));
    QCOMPARE(headerTexts(*grid), names("A,Peptides"));
    QCOMPARE(grid->items().at(1)->name(), text("Peptides"));
    LogCapture log;
    grid->renameColumn(2, text("C"));
    QCOMPARE(log.warnings(), QStringList(text("Invalid index")));
}

void PropertyGridWidgetTest::spacesAreNoName()
{
    const auto grid = gridOf(names("A"));
    grid->show();
    ScriptedAnswerer answers;
    for (const char *typed : {"   ", ""}) {
        answers.expectDialog(text("Rename column"), [typed](QDialog &dialog) {
            static_cast<QInputDialog &>(dialog).setTextValue(text(typed));
            return true;
        });
        chooseCommand(*grid, 0, "Rename");
    }
    QCOMPARE(grid->columnNames(), names("A"));
}

void PropertyGridWidgetTest::columnsOfOneName()
{
    const auto grid = gridOf(names("A,A"));
    grid->renameColumn(0, text("B"));
    QCOMPARE(grid->columnNames(), names("B,A"));
    QCOMPARE(headerTexts(*grid), names("B,A"));
    QCOMPARE(grid->items().at(0)->name(), text("B"));
    QCOMPARE(grid->items().at(1)->name(), text("B"));
}

void PropertyGridWidgetTest::columnsAreMoved()
{
    const auto grid = gridOf(names("A,B,C"));
    grid->show();
    chooseCommand(*grid, 2, "Move left");
    QCOMPARE(grid->columnNames(), names("A,C,B"));
    QCOMPARE(headerTexts(*grid), names("A,C,B"));
    QCOMPARE(contentsOf(*grid), names("A,C,B"));
    chooseCommand(*grid, 0, "Move right");
    QCOMPARE(contentsOf(*grid), names("C,A,B"));
    grid->columnMenu()->setProperty("logicalIndex", 0);
    action(*grid, "Move left")->trigger();
    grid->columnMenu()->setProperty("logicalIndex", 2);
    action(*grid, "Move right")->trigger();
    QCOMPARE(grid->columnNames(), names("C,A,B"));
    QCOMPARE(contentsOf(*grid), names("C,A,B"));
}

void PropertyGridWidgetTest::columnsAreCopied_data()
{
    QTest::addColumn<QString>("columns");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("copy");
    QTest::newRow("first") << text("A") << 0 << text("A - copy");
    QTest::newRow("second") << text("A,A - copy") << 0 << text("A - copy 1");
    QTest::newRow("third") << text("A,A - copy,A - copy 1") << 0 << text("A - copy 2");
    QTest::newRow("behind the largest") << text("A,A - copy,A - copy 7") << 0 << text("A - copy 8");
    QTest::newRow("behind the largest int")
        << text("A,A - copy,A - copy 2147483647") << 0 << text("A - copy 2147483648");
    QTest::newRow("a number beyond all copies")
        << text("A,A - copy,A - copy 9223372036854775807") << 0 << text("A - copy 1");
    QTest::newRow("of a copy") << text("A,A - copy") << 1 << text("A - copy - copy");
    QTest::newRow("of another case") << text("A,a - copy") << 0 << text("A - copy");
    QTest::newRow("with signs of patterns") << text("A (1)+,A (1)+ - copy") << 0 << text("A (1)+ - copy 1");
}

void PropertyGridWidgetTest::columnsAreCopied()
{
    QFETCH(QString, columns);
    QFETCH(int, index);
    QFETCH(QString, copy);
    const auto grid = gridOf(columns.split(u','));
    grid->show();
    grid->setEditorMode(EditorMode::Designer);
    chooseCommand(*grid, index, "Create copy");
    QCOMPARE(grid->columnNames().constLast(), copy);
    QCOMPARE(headerTexts(*grid).constLast(), copy);
    QCOMPARE(contentsOf(*grid).constLast(), contentsOf(*grid).at(index));
    const GridPropertyEditorView *view = viewAt(*grid, int(grid->items().size()) - 1);
    QCOMPARE(view->editorMode(), EditorMode::Designer);
    QVERIFY(!view->isExpanded());
}

void PropertyGridWidgetTest::aNameWithoutAColumnIsNotCopied()
{
    const LogCapture log;
    const auto grid = gridOf(names("A"));
    grid->appendColumn(BaseItemType::Karvon, text("Missing"), false);
    int edits = 0;
    connect(grid.get(), &PropertyGridWidget::contentEdited, this, [&] { ++edits; });
    grid->copyColumn(1);
    grid->copyColumn(2);
    QCOMPARE(log.warnings(),
             QStringList({text("Failed to create a copy of column \"Missing\""), text("Invalid index")}));
    QCOMPARE(grid->columnNames(), names("A,Missing"));
    QCOMPARE(edits, 0);
}

void PropertyGridWidgetTest::modesReachEveryColumn()
{
    const auto grid = gridOf(names("A,B"));
    auto *button = new QPushButton;
    grid->buttonsLayout()->addWidget(button);
    grid->show();
    grid->setEditorMode(EditorMode::User);
    QVERIFY(!button->isVisible());
    grid->setEditorMode(EditorMode::Designer);
    QVERIFY(button->isVisible());
    grid->setPropertiesViewMode(ViewMode::Advanced);
    grid->updateBaseUrlForRelativeUrls(QUrl(text("file:///data/")));
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(viewAt(*grid, i)->editorMode(), EditorMode::Designer);
        QCOMPARE(viewAt(*grid, i)->propertiesViewMode(), ViewMode::Advanced);
    }
    const LogCapture log;
    grid->appendColumn(BaseItemType::Karvon, text("C"), true);
    QCOMPARE(viewAt(*grid, 2)->propertiesViewMode(), ViewMode::Advanced);
    QCOMPARE(viewAt(*grid, 2)->editorMode(), EditorMode::User);
}

void PropertyGridWidgetTest::allItemsAreAsked()
{
    const auto grid = gridOf(names("A,B"));
    QStringList warnings;
    QVERIFY(grid->validate(&warnings, nullptr, nullptr, WidgetValidationType::SaveWorkflow));
    QVERIFY(warnings.isEmpty());
}

void PropertyGridWidgetTest::whoHearsOfARemovalMayCloseTheGrid()
{
    QPointer<PropertyGridWidget> grid = gridOf(names("A,B")).release();
    connect(grid, &PropertyGridWidget::itemRemoved, this, [&] { delete grid; });
    grid->removeAllColumns();
    QVERIFY(!grid);
}

void PropertyGridWidgetTest::whoHearsOfAColumnMayRemoveAll()
{
    const LogCapture log;
    const auto grid = gridOf(names("A"));
    connect(grid.get(), &PropertyGridWidget::itemAdded, grid.get(), [&] { grid->removeAllColumns(); });
    grid->appendColumn(BaseItemType::Karvon, text("B"), true);
    QCOMPARE(grid->splitter()->count(), int(grid->items().size()));
    QPointer<PropertyGridWidget> closed = gridOf(names("A")).release();
    connect(closed, &PropertyGridWidget::itemAdded, this, [&] { delete closed; });
    closed->appendColumn(BaseItemType::Karvon, text("B"), true);
    QVERIFY(!closed);
}

void PropertyGridWidgetTest::randomOperationsKeepTheListsTogether()
{
    const quint32 seed = 20261122;
    QRandomGenerator random(seed);
    const auto grid = gridOf(names("A,B"));
    grid->show();
    QStringList plainNames = names("A,B");
    QStringList plainContents = plainNames;
    for (int step = 0; step < 120; ++step) {
        const int count = int(plainNames.size());
        const int index = count ? random.bounded(count) : 0;
        switch (count == 0 ? 0 : count > 6 ? 1 : random.bounded(6)) {
        case 0:
            plainNames.append(text("N%1").arg(step));
            plainContents.append(text("c%1").arg(step));
            grid->appendColumn(BaseItemType::Karvon, plainNames.constLast(), false);
            // The cells of the new name alone: those of the others stand there already.
            grid->removeAllColumns();
            for (int i = 0; i < plainNames.size(); ++i)
                grid->appendColumn(BaseItemType::Karvon, plainNames.at(i), false);
            {
                VariantItems cells;
                for (const QString &content : plainContents)
                    cells.append(cellOf(settingsCell("Karvon", {setting("Samples", content)})));
                QVERIFY(!grid->appendData(cells).hasError());
            }
            break;
        case 1:
            grid->removeColumn(index);
            plainNames.removeAt(index);
            plainContents.removeAt(index);
            break;
        case 2: {
            const QString copy = plainNames.at(index) + text(" - copy");
            if (plainNames.contains(copy))
                break;
            grid->copyColumn(index);
            plainNames.append(copy);
            plainContents.append(plainContents.at(index));
            break;
        }
        case 3:
            plainNames[index] = text("R%1").arg(step);
            grid->renameColumn(index, plainNames.at(index));
            break;
        case 4: {
            const int by = random.bounded(2) ? 1 : -1;
            grid->columnMenu()->setProperty("logicalIndex", index);
            action(*grid, by > 0 ? "Move right" : "Move left")->trigger();
            if (index + by >= 0 && index + by < count) {
                plainNames.move(index, index + by);
                plainContents.move(index, index + by);
            }
            break;
        }
        default:
            plainContents[index] = text("e%1").arg(step);
            viewAt(*grid, index)->propertySet()->property("Samples").setValue(plainContents.at(index));
            break;
        }
        QVERIFY2(grid->columnNames() == plainNames && headerTexts(*grid) == plainNames &&
                     contentsOf(*grid) == plainContents,
                 qPrintable(text("seed %1, step %2").arg(seed).arg(step)));
    }
}

WIDGET_REGISTER_TEST(PropertyGridWidgetTest)
#include "PropertyGridWidgetTest.moc"
