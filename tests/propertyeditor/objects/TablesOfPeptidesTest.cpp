#include "ObjectsFixture.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/editors/TheoreticalTableEditor.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/InclusionDialog.h>
#include <orv/widgets/InsilicoTableDialog.h>
#include <orv/widgets/TableView.h>

#include <QLabel>
#include <QListView>

using namespace orv;
using namespace GridFixture;
using namespace ObjectsFixture;

namespace {

/// Types over a cell of the table in a shown dialog.
bool typeInCell(QDialog &dialog, int row, int column, const QString &typed)
{
    auto *view = dialog.findChild<TableView *>();
    if (!view || !dialog.isVisible())
        return false;
    const QModelIndex cell = view->model()->index(row, column);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(cell).center());
    for (const QChar letter : typed)
        QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    return dialog.isVisible();
}

} // namespace

/// The inclusion list and the theoretical peptides of a search.
class TablesOfPeptidesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startApplication(); }
    void anInclusionListIsEdited();
    void aListThatCannotBeReadOpensEmpty();
    void cancelLeavesTheList();
    void peptidesAreEdited();
    void cancelLeavesThePeptides();
    void proteinsAndBondsComeFromOptions();
    void bondsShowAtTheirPeptides();
    void otherOptionsAreNoProteins_data();
    void otherOptionsAreNoProteins();
    void aRowOfBadDataIsTold();
    void theWindowMayTakeDialogsAlong_data();
    void theWindowMayTakeDialogsAlong();
};

void TablesOfPeptidesTest::anInclusionListIsEdited()
{
    Row row(kindOf(Editor::InclusionList));
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [](QDialog &dialog) {
        return qobject_cast<InclusionDialog *>(&dialog) && show(dialog) &&
               typeInCell(dialog, 1, 0, text("741.5")) && pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(row.stored(), QJsonValue(object(R"({"inclusion":[{"charge":2,"intensity":1e6,"mz":524.265,)"
                                             R"("name":"LVNELTEFAK"},{"mz":741.5}]})")));
    QCOMPARE(row.told(), 1);
}

void TablesOfPeptidesTest::aListThatCannotBeReadOpensEmpty()
{
    const QJsonObject value = object(R"({"inclusion":[{"mz":500},{"mz":-1}]})");
    Row row("KarvonInclusionFilter", value);
    ScriptedAnswerer answers;
    int rows = -1;
    answers.expectBox(text("Warning"), text("OK"));
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        rows = int(qobject_cast<InclusionDialog *>(&dialog)->items().size());
        return show(dialog) && pressOk(dialog);
    });
    QVERIFY2(row.shown().startsWith(text("Error The member \"mz\" must not be negative.")),
             qPrintable(row.shown()));
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QVERIFY(
        answers.transcript().constFirst().text.startsWith(text("The member \"mz\" must not be negative.")));
    QCOMPARE(rows, 0);
    QCOMPARE(row.stored(), QJsonValue(value));
}

void TablesOfPeptidesTest::cancelLeavesTheList()
{
    Row row(kindOf(Editor::InclusionList));
    const QByteArray before = row.bytes();
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [](QDialog &dialog) {
        const bool isTyped = show(dialog) && typeInCell(dialog, 0, 0, text("9"));
        return press(dialog, text("Cancel")) || !isTyped;
    });
    QVERIFY(row.pressButton());
    QCOMPARE(row.bytes(), before);
    QCOMPARE(row.told(), 0);
}

void TablesOfPeptidesTest::peptidesAreEdited()
{
    Row row(kindOf(Editor::TheoreticalTable));
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [](QDialog &dialog) {
        return qobject_cast<InsilicoTableDialog *>(&dialog) && show(dialog) &&
               typeInCell(dialog, 0, 0, text("AAK")) && pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(row.shown(), text("Sequence\tProtein\nAAK\tBSA"));
    QCOMPARE(row.told(), 1);
}

void TablesOfPeptidesTest::cancelLeavesThePeptides()
{
    Row row(kindOf(Editor::TheoreticalTable));
    const QByteArray before = row.bytes();
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [](QDialog &dialog) {
        const bool isTyped = show(dialog) && typeInCell(dialog, 0, 0, text("AAK"));
        return press(dialog, text("Cancel")) || !isTyped;
    });
    QVERIFY(row.pressButton());
    QCOMPARE(row.bytes(), before);
    QCOMPARE(row.told(), 0);
}

void TablesOfPeptidesTest::proteinsAndBondsComeFromOptions()
{
    Row row("TheoreticalPeptides", QJsonObject());
    row.property().setOption("Proteins", object(R"({"data":["ProteinAccessionName","ProteinSequence"],)"
                                                R"("children":[{"data":["P1","AACKAACK"]}]})"));
    row.property().setOption("Disulfide", object(R"({"data":["Chain1","Position1","Chain2","Position2"],)"
                                                 R"("children":[]})"));
    ScriptedAnswerer answers;
    QStringList proteins;
    answers.expectDialog(row.caption(), [&](QDialog &dialog) {
        const QAbstractItemModel *model = dialog.findChild<QListView *>(text("proteins"))->model();
        for (int i = 0; i < model->rowCount(); ++i)
            proteins.append(model->index(i, 0).data().toString());
        if (!show(dialog))
            return false;
        QTest::mouseClick(dialog.findChild<QPushButton *>(text("allProteins")), Qt::LeftButton);
        return pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(proteins, QStringList(text("P1")));
    QVERIFY2(row.shown().contains(text("AACK\tP1")), qPrintable(row.shown()));
}

void TablesOfPeptidesTest::bondsShowAtTheirPeptides()
{
    Row row("TheoreticalPeptides", QJsonObject());
    row.property().setOption("Proteins", object(R"({"data":["ProteinAccessionName","ProteinSequence"],)"
                                                R"("children":[{"data":["P1","AACKAACK"]}]})"));
    row.property().setOption("Disulfide",
                             object(R"({"data":["FirstChain","FirstPosition","SecondChain",)"
                                    R"("SecondPosition"],"children":[{"data":["P1",3,"P1",7]}]})"));
    ScriptedAnswerer answers;
    answers.expectDialog(row.caption(), [](QDialog &dialog) {
        if (!show(dialog))
            return false;
        QTest::mouseClick(dialog.findChild<QPushButton *>(text("allProteins")), Qt::LeftButton);
        return pressOk(dialog);
    });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QVERIFY2(row.shown().contains(text("C3-C7")), qPrintable(row.shown()));
}

void TablesOfPeptidesTest::otherOptionsAreNoProteins_data()
{
    QTest::addColumn<QVariant>("option");
    QTest::newRow("none") << QVariant();
    QTest::newRow("number") << QVariant(5);
    QTest::newRow("bytes") << QVariant(QByteArray(R"({"data":[],"children":[]})"));
    QTest::newRow("object") << QVariant(object(R"({"children":{"x":1}})"));
}

void TablesOfPeptidesTest::otherOptionsAreNoProteins()
{
    QFETCH(QVariant, option);
    Row row("TheoreticalPeptides", QJsonObject());
    row.property().setOption("Proteins", option);
    row.property().setOption("Disulfide", option);
    if (option.typeId() == QMetaType::Int)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("JSON")));
    if (option.typeId() == QMetaType::Int)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("JSON")));
    AcceptingAnswerer answers;
    QVERIFY(row.pressButton());
    QCOMPARE(answers.dialogs, 1);
    QCOMPARE(row.told(), 0);
}

void TablesOfPeptidesTest::aRowOfBadDataIsTold()
{
    const QJsonObject value = object(R"({"data":["Sequence"],"children":[{"data":["A"]},{"data":5}]})");
    Row row("TheoreticalPeptides", value);
    ScriptedAnswerer answers;
    answers.expectBox(text("Warning"), text("OK"));
    answers.expectDialog(row.caption(), [](QDialog &dialog) { return show(dialog) && pressOk(dialog); });
    QVERIFY(row.pressButton());
    QVERIFY(answers.isDone());
    QCOMPARE(answers.transcript().constFirst().text, text("Row 2 contains invalid data"));
    QCOMPARE(row.stored(), QJsonValue(value));
}

void TablesOfPeptidesTest::theWindowMayTakeDialogsAlong_data()
{
    addKinds();
}

void TablesOfPeptidesTest::theWindowMayTakeDialogsAlong()
{
    QFETCH(int, editor);
    auto main = std::make_unique<CoreMainWindow>();
    auto row = std::make_unique<Row>(kindOf(Editor(editor)));
    row->property().setOption("selectButton", true);
    WorstAnswerer answers([&] {
        main.reset();
        row.reset();
    });
    QVERIFY(row->pressButton());
    QCOMPARE(answers.dialogs, 1);
    QVERIFY(!row);
}

WIDGET_REGISTER_TEST(TablesOfPeptidesTest)
#include "TablesOfPeptidesTest.moc"
