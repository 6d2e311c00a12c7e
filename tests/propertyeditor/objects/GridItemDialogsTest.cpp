#include "ObjectsFixture.h"
#include "TestData.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/grid/GridCommunicative.h>
#include <orv/propertyeditor/grid/GridItemManager.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/DisulfideWidget.h>
#include <orv/widgets/TableView.h>

#include <QDir>
#include <QLabel>
#include <QLineEdit>

using namespace orv;
using namespace GridFixture;
using namespace ObjectsFixture;

namespace {

const QList<Editor> kNoTables = {Editor::ValueUnit,     Editor::Modifications,   Editor::Glycans,
                                 Editor::PeakFilter,    Editor::TracePlot,       Editor::DeconvolvedMassPlot,
                                 Editor::InclusionList, Editor::TheoreticalTable};

TableView *tableOf(QDialog &dialog)
{
    const QList<TableView *> views = dialog.findChildren<TableView *>();
    const auto filled = std::find_if(views.cbegin(), views.cend(), [](const TableView *view) {
        return view->isVisible() && view->model()->rowCount() > 0;
    });
    return filled == views.cend() ? nullptr : *filled;
}

/// Types over a cell in the first row of the table in a shown dialog, and leaves the cell open.
bool typeInFirstRow(QDialog &dialog, const QString &typed, const char *column = nullptr)
{
    TableView *view = tableOf(dialog);
    if (!view)
        return false;
    QModelIndex cell = view->model()->index(0, view->shownColumns().constFirst());
    for (int i = 0; column && i < view->model()->columnCount(); ++i) {
        if (view->model()->headerData(i, Qt::Horizontal).toString() == text(column))
            cell = view->model()->index(0, i);
    }
    view->scrollTo(cell);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(cell).center());
    // The first key opens an editor, which gets the others.
    for (const QChar letter : typed)
        QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
    return dialog.isVisible();
}

/// Where any text may stand; null for the first column.
const char *columnOf(Editor editor)
{
    return editor == Editor::GlycanOptions ? "Name" : nullptr;
}

class Listener : public GridCommunicative
{
public:
    using GridCommunicative::GridCommunicative;
    void messageReceived(const GridMessage &) override { ++heard; }

    int heard = 0;
};

QStringList textsOf(const QAbstractItemModel &model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column)
            texts.append(model.index(row, column).data().toString());
    }
    return texts;
}

QList<QJsonObject> cellsOf(const QJsonObject &document)
{
    QList<QJsonObject> cells;
    for (const auto tab : document.value(text("tabs")).toArray()) {
        for (const auto cell : tab[text("cells")].toArray())
            cells.append(cell.toObject());
    }
    return cells;
}

QString noteOf(const QDialog &dialog)
{
    auto *note = dialog.findChild<QLabel *>(text("note"));
    return note && !note->isHidden() ? note->text() : QString();
}

} // namespace

/// Dialogs that embed a column of a table, opened from the row of a setting.
class GridItemDialogsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theDialogOfTheKindOpens_data();
    void theDialogOfTheKindOpens();
    void theKeyboardOpensIt();
    void itOpensAboveTheMainWindow();
    void withoutMainWindowItOpensAboveItsOwn();
    void untouchedItGivesBackWhatWasSet_data() { addKinds(kNoTables); }
    void untouchedItGivesBackWhatWasSet();
    void defaultsComeBackUntouched_data() { addKinds(kNoTables); }
    void defaultsComeBackUntouched();
    void valuesOfExamplesComeBackUntouched_data();
    void valuesOfExamplesComeBackUntouched();
    void aTypedCellIsTaken_data() { addKinds(kNoTables); }
    void aTypedCellIsTaken();
    void anOpenCellIsTakenWithOk();
    void cancelLeavesTheValue_data();
    void cancelLeavesTheValue();
    void enterInTheTableDoesNotAccept();
    void enterOnAButtonPressesIt();
    void whatTheColumnDoesNotKnowStays();
    void aTableWithoutColumnsCanBeFilled();
    void whatIsNoTableIsTold();
    void aTableThatItsColumnRefusesIsTold();
    void massesHaveNoTolerance();
    void theBusIsNotHeard();
    void noTableHearsTheBus_data();
    void noTableHearsTheBus();
    void theWindowMayTakeTheDialogAlong();
};

void GridItemDialogsTest::initTestCase()
{
    startApplication();
}

void GridItemDialogsTest::theDialogOfTheKindOpens_data()
{
    QTest::addColumn<int>("editor");
    QTest::addColumn<QByteArray>("dialogClass");
    QTest::addColumn<QByteArray>("widgetClass");
    const auto row = [](Editor editor, const char *dialog, const char *widget) {
        QTest::newRow(dialog) << int(editor) << QByteArray("orv::") + dialog << QByteArray("orv::") + widget;
    };
    row(Editor::Proteins, "ProteinsGenericDialog", "ProteinOptionsWidget");
    row(Editor::Masses, "MassesGenericDialog", "MassTableWidget");
    row(Editor::Isotope, "IsotopeGenericDialog", "IsotopeTableWidget");
    row(Editor::Disulfide, "DisulfideGenericDialog", "DisulfideWidget");
    row(Editor::DetachedGlycans, "DetachedGlycansGenericDialog", "GlycanTableWidget");
    row(Editor::GlycanOptions, "GlycanOptionsGenericDialog", "GlycanOptionsWidget");
    row(Editor::IntactOptions, "IntactOptionsGenericDialog", "IntactOptionsWidget");
    row(Editor::OligoOptions, "OligoOptionsGenericDialog", "OligoOptionsWidget");
}

void GridItemDialogsTest::theDialogOfTheKindOpens()
{
    QFETCH(int, editor);
    QFETCH(QByteArray, dialogClass);
    QFETCH(QByteArray, widgetClass);
    Row row(kindOf(Editor(editor)));
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        const bool isShown = show(dialog);
        const QList<QWidget *> widgets =
            dialog.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        const auto isColumn = [&](const QWidget *widget) {
            return widget->metaObject()->className() == widgetClass;
        };
        const auto column = std::find_if(widgets.cbegin(), widgets.cend(), isColumn);
        const QPushButton *ok = buttonOf(dialog, text("Ok"));
        const QPushButton *cancel = buttonOf(dialog, text("Cancel"));
        const bool isBelow = column != widgets.cend() && ok && cancel && ok->y() > (*column)->y() &&
                             ok->y() == cancel->y() && ok->x() < cancel->x();
        return isShown && isBelow && dialog.metaObject()->className() == dialogClass &&
               !dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint) && noteOf(dialog).isEmpty() &&
               pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(row.told(), 0);
}

void GridItemDialogsTest::theKeyboardOpensIt()
{
    Row row(kindOf(Editor::Isotope));
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [](QDialog &dialog) {
        return show(dialog) && typeInFirstRow(dialog, text("Light")) && pressOk(dialog);
    });
    QVERIFY(LeavingWays::openByKey(row.tree(), row.name));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
    QVERIFY(answers.isDone());
    QCOMPARE(row.shown(), text("Light, C, 13, 99.5"));
    QCOMPARE(row.told(), 1);
    QVERIFY(LeavingWays::editorOf(row.tree(), row.name));
}

void GridItemDialogsTest::itOpensAboveTheMainWindow()
{
    CoreMainWindow main;
    Row row(kindOf(Editor::Masses));
    ScriptedAnswerer answers;
    QWidget *parent = nullptr;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        parent = dialog.parentWidget();
        return false;
    });
    QVERIFY(row.pressButton());
    QCOMPARE(parent, &main);
}

void GridItemDialogsTest::withoutMainWindowItOpensAboveItsOwn()
{
    Row row(kindOf(Editor::Masses));
    ScriptedAnswerer answers;
    QWidget *parent = nullptr;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        parent = dialog.parentWidget();
        return false;
    });
    QVERIFY(row.pressButton());
    QCOMPARE(parent, row.tree().window());
}

void GridItemDialogsTest::untouchedItGivesBackWhatWasSet()
{
    QFETCH(int, editor);
    Row row(kindOf(Editor(editor)));
    const QByteArray before = row.bytes();
    ScriptedAnswerer answers;
    expectUntouched(&answers, row.caption());
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(row.bytes(), before);
    QCOMPARE(row.told(), 0);
}

void GridItemDialogsTest::defaultsComeBackUntouched()
{
    QFETCH(int, editor);
    const Kind &kind = kindOf(Editor(editor));
    const PropertyId id = PropertiesNames::findPropertyForName(text(kind.property));
    const std::unique_ptr<KProperty> property(
        PropertySetCreator::createDefaultProperty(id, PropertySetCreator::Priority::High));
    const QJsonObject before = PropertyEditorJsonUtils::variantToObject(property->value());
    for (const QJsonObject &value : {before, QJsonObject(), object(R"({"data":""})")}) {
        QJsonObject edited = value;
        ScriptedAnswerer answers;
        expectUntouched(&answers, property->caption());
        QVERIFY(objectFor(Editor(editor))->handleEditObject(&edited, *property, nullptr));
        QCOMPARE(edited, value);
    }
}

void GridItemDialogsTest::valuesOfExamplesComeBackUntouched_data()
{
    QTest::addColumn<int>("editor");
    QTest::addColumn<QJsonObject>("value");
    const QDir examples(TestData::examplePath(text("workflows")));
    const QStringList files = examples.entryList({text("*.wflw")}, QDir::Files);
    for (const QString &file : files) {
        const QList<QJsonObject> cells = cellsOf(object(TestData::read(examples.filePath(file))));
        for (qsizetype i = 0; i < cells.size(); ++i) {
            for (const Kind &kind : kinds()) {
                const QJsonValue value = valueIn(cells.at(i), kind.property);
                if (value.isObject())
                    QTest::addRow("%s, cell %lld: %s", qPrintable(file), static_cast<long long>(i),
                                  kind.property)
                        << int(kind.editor) << value.toObject();
            }
        }
    }
}

void GridItemDialogsTest::valuesOfExamplesComeBackUntouched()
{
    QFETCH(int, editor);
    QFETCH(QJsonObject, value);
    Row row(kindOf(Editor(editor)).property, value);
    const QByteArray before = row.bytes();
    AcceptingAnswerer answers;
    QVERIFY(row.pressButton());
    QCOMPARE(answers.dialogs, 1);
    QCOMPARE(row.bytes(), before);
    QCOMPARE(row.stored(), QJsonValue(value));
    QCOMPARE(row.told(), 0);
}

void GridItemDialogsTest::aTypedCellIsTaken()
{
    QFETCH(int, editor);
    Row row(kindOf(Editor(editor)));
    QJsonObject expected = row.stored().toObject();
    QJsonArray rows = expected.value(text("children")).toArray();
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        return show(dialog) && typeInFirstRow(dialog, text("Z9"), columnOf(Editor(editor))) &&
               (QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return), dialog.isVisible()) &&
               pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QVERIFY(QString::fromUtf8(row.bytes()).contains(text("\"Z9\"")));
    QCOMPARE(row.stored()[text("data")], expected.value(text("data")));
    QCOMPARE(row.stored()[text("children")].toArray().size(), rows.size());
    QCOMPARE(row.told(), 1);
}

void GridItemDialogsTest::anOpenCellIsTakenWithOk()
{
    Row row(kindOf(Editor::Isotope));
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [](QDialog &dialog) {
        if (!show(dialog) || !typeInFirstRow(dialog, text("Open")))
            return false;
        // The button's shortcut leaves the focus where it is.
        buttonOf(dialog, text("Ok"))->click();
        return dialog.result() == QDialog::Accepted;
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(row.shown(), text("Open, C, 13, 99.5"));
}

void GridItemDialogsTest::cancelLeavesTheValue_data()
{
    QTest::addColumn<int>("editor");
    QTest::addColumn<bool>("byEscape");
    for (const Kind &kind : kinds()) {
        if (kNoTables.contains(kind.editor))
            continue;
        QTest::addRow("%s by button", kind.property) << int(kind.editor) << false;
        QTest::addRow("%s by Escape", kind.property) << int(kind.editor) << true;
    }
}

void GridItemDialogsTest::cancelLeavesTheValue()
{
    QFETCH(int, editor);
    QFETCH(bool, byEscape);
    Row row(kindOf(Editor(editor)));
    const QByteArray before = row.bytes();
    bool wasTyped = false;
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        wasTyped = show(dialog) && typeInFirstRow(dialog, text("Z9"), columnOf(Editor(editor)));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        if (byEscape)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        else
            press(dialog, text("Cancel"));
        return dialog.isVisible() || dialog.result() == QDialog::Accepted;
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QVERIFY(wasTyped);
    QCOMPARE(row.bytes(), before);
    QCOMPARE(row.told(), 0);
}

void GridItemDialogsTest::enterInTheTableDoesNotAccept()
{
    Row row(kindOf(Editor::Masses));
    ScriptedAnswerer answers;
    bool staysOpen = false;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        if (!show(dialog))
            return false;
        auto *view = dialog.findChild<TableView *>();
        view->setFocus();
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        staysOpen = dialog.isVisible();
        return false;
    });
    QVERIFY(row.pressButton());
    QVERIFY(staysOpen);
}

void GridItemDialogsTest::enterOnAButtonPressesIt()
{
    Row row(kindOf(Editor::Isotope));
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        if (!show(dialog) || !typeInFirstRow(dialog, text("Keys")))
            return false;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        buttonOf(dialog, text("Ok"))->setFocus(Qt::TabFocusReason);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        return dialog.result() == QDialog::Accepted;
    });
    QVERIFY(row.pressButton());
    QCOMPARE(row.shown(), text("Keys, C, 13, 99.5"));
}

void GridItemDialogsTest::whatTheColumnDoesNotKnowStays()
{
    QJsonObject value = object(kindOf(Editor::Isotope).value);
    value.insert(text("fromANewerVersion"), 5);
    Row row("Isotope", value);
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [](QDialog &dialog) {
        return show(dialog) && typeInFirstRow(dialog, text("Z9")) && pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QCOMPARE(row.stored()[text("fromANewerVersion")], QJsonValue(5));
    QCOMPARE(row.shown(), text("Z9, C, 13, 99.5"));
}

void GridItemDialogsTest::aTableWithoutColumnsCanBeFilled()
{
    Row row("MassList", object(R"({"children":[],"data":[]})"));
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [](QDialog &dialog) {
        if (!show(dialog) || !noteOf(dialog).isEmpty())
            return false;
        auto *view = dialog.findChild<TableView *>();
        view->setFocus();
        view->action(TableView::Command::AddRow)->trigger();
        return typeInFirstRow(dialog, text("mAb")) && pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(row.shown(), text("mAb"));
}

void GridItemDialogsTest::whatIsNoTableIsTold()
{
    Row row("Isotope", object(R"({"children":"x"})"));
    ScriptedAnswerer answers;
    QString note;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        note = show(dialog) ? noteOf(dialog) : QString();
        return pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QCOMPARE(note, text("The value can't be shown: The value is no table. It stays as it is unless you enter "
                        "another one."));
    QCOMPARE(row.stored(), QJsonValue(object(R"({"children":"x"})")));
    QCOMPARE(row.told(), 0);
}

void GridItemDialogsTest::aTableThatItsColumnRefusesIsTold()
{
    const QJsonObject value = object(R"({"data":["Kind","Name"],"children":[{"data":["Sugar","Hex"]}]})");
    Row row("GlycanOptions", value);
    ScriptedAnswerer answers;
    QString note;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        note = show(dialog) ? noteOf(dialog) : QString();
        return pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QVERIFY(note.contains(text("There is no kind \"Sugar\".")));
    QCOMPARE(row.stored(), QJsonValue(value));
}

void GridItemDialogsTest::massesHaveNoTolerance()
{
    Row row(kindOf(Editor::Masses));
    ScriptedAnswerer answers;
    bool isShown = true;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        const QList<QLabel *> labels = show(dialog) ? dialog.findChildren<QLabel *>() : QList<QLabel *>();
        isShown = std::any_of(labels.cbegin(), labels.cend(), [](const QLabel *label) {
            return label->isVisible() && label->text().remove(u'&').startsWith(text("Match tolerance"));
        });
        return false;
    });
    QVERIFY(row.pressButton());
    QVERIFY(!isShown);
}

void GridItemDialogsTest::theBusIsNotHeard()
{
    Listener listener(GridItemManager::instance()->communicationManager());
    Row row(kindOf(Editor::Disulfide));
    ScriptedAnswerer answers;
    QString before;
    QString after;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        const auto *bonds = dialog.findChild<DisulfideWidget *>();
        before = bonds->toPlainText();
        const QJsonObject proteins = object(kindOf(Editor::Proteins).value);
        Q_EMIT listener.sendMessage({&listener, PropertyId::Proteins, proteins, {}});
        after = bonds->toPlainText();
        return show(dialog) && typeInFirstRow(dialog, text("LC")) && pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QCOMPARE(after, before);
    QCOMPARE(row.shown(), text("LC, 22, HC, 96"));
    QCOMPARE(listener.heard, 0);
}

void GridItemDialogsTest::noTableHearsTheBus_data()
{
    QTest::addColumn<int>("editor");
    for (Editor editor : {Editor::Proteins, Editor::Masses, Editor::DetachedGlycans})
        QTest::newRow(kindOf(editor).property) << int(editor);
}

void GridItemDialogsTest::noTableHearsTheBus()
{
    QFETCH(int, editor);
    Listener listener(GridItemManager::instance()->communicationManager());
    Row row(kindOf(Editor(editor)));
    ScriptedAnswerer answers;
    QStringList before;
    QStringList after;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        if (!show(dialog) || !tableOf(dialog))
            return false;
        before = textsOf(*tableOf(dialog)->model());
        const QJsonObject proteins = object(
            R"({"data":["ProteinAccessionName","ProteinSequence"],"children":[{"data":["X9","GG"]}]})");
        for (const PropertyId id : {PropertyId::Proteins, PropertyId::Disulfide, PropertyId::Samples})
            Q_EMIT listener.sendMessage({&listener, id, proteins, {}});
        after = textsOf(*tableOf(dialog)->model());
        return typeInFirstRow(dialog, text("Z9")) && pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QVERIFY(!before.isEmpty());
    QCOMPARE(after, before);
    QCOMPARE(row.told(), 1);
    QCOMPARE(listener.heard, 0);
}

void GridItemDialogsTest::theWindowMayTakeTheDialogAlong()
{
    auto main = std::make_unique<CoreMainWindow>();
    Row row(kindOf(Editor::Isotope));
    const QByteArray before = row.bytes();
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [&](QDialog &) {
        main.reset();
        return true;
    });
    QVERIFY(row.pressButton());
    QCOMPARE(row.bytes(), before);
}

WIDGET_REGISTER_TEST(GridItemDialogsTest)
#include "GridItemDialogsTest.moc"
