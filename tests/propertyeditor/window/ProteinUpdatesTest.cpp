#include "WidgetTest.h"
#include "WindowFixture.h"

#include <orv/propertyeditor/window/DependentWidgets.h>
#include <orv/table_model/TableModel.h>
#include <orv/widgets/ProteinAnnotationWidget.h>
#include <orv/widgets/ProteinOptionsWidget.h>
#include <orv/widgets/ProteinTableWidget.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>
#include <orv/widgets/TableView.h>

#include <QLabel>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

namespace {

QJsonObject proteinsCell(const char *sequence)
{
    const QJsonObject row{{u"data"_s, QJsonArray{u"P"_s, text(sequence)}}, {u"children"_s, QJsonArray()}};
    const QJsonObject table{{u"data"_s, QJsonArray{u"ProteinAccessionName"_s, u"ProteinSequence"_s}},
                            {u"children"_s, QJsonArray{row}}};
    return settingsCell("Proteins", {setting("Proteins", table)});
}

QJsonObject ofType(const char *workflowType)
{
    QJsonObject data = metadata();
    data[u"workflowType"_s] = text(workflowType);
    return data;
}

ProteinOptionsWidget &proteinsOf(Window &window)
{
    auto *widget = qobject_cast<ProteinOptionsWidget *>(window.grid(0)->items().first()->widget());
    if (!widget)
        qFatal("There are no proteins");
    return *widget;
}

bool isColumnShown(const ProteinTableWidget &table, const char *column)
{
    return !table.view()->isColumnHidden(table.sheet()->columnOf(text(column)));
}

} // namespace

/// What proteins and samples show depends on the columns and the type of their workflow.
class ProteinUpdatesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void someColumnsAreDocuments();
    void oligonucleotidesHaveNoEnzymes();
    void masslessSequencesAreFaultsOfIntactAnalyses();
    void averageMassesGoWithTheTab();
    void samplesShowWhatTheirDocumentsNeed();
};

void ProteinUpdatesTest::someColumnsAreDocuments()
{
    const LogCapture log;
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), kOpened);
    QList<int> documents;
    for (int type = 1; type <= 25; ++type) {
        window.removeTab(0);
        QVERIFY(!window.addTabWithColumns(u"Tab"_s, {}, {}).hasError());
        window.grid(0)->appendColumn(BaseItemType(type), u"Column"_s, true);
        QCOMPARE(window.grid(0)->items().size(), 1);
        for (const BaseItemType found : DependentWidgets::documents({window.grid(0)}))
            documents.append(int(found));
    }
    QCOMPARE(documents, (QList<int>{1, 2, 3, 8, 10, 15, 17, 20, 23, 24}));
    window.grid(0)->appendColumn(BaseItemType::Karvon, u"One"_s, true);
    window.grid(0)->appendColumn(BaseItemType::Karvon, u"Two"_s, true);
    QCOMPARE(DependentWidgets::documents({window.grid(0)}).size(), 2);
}

void ProteinUpdatesTest::oligonucleotidesHaveNoEnzymes()
{
    for (const char *type : {"DigestedOligo", "PeptideMap"}) {
        const bool isOligo = text(type) == u"DigestedOligo"_s;
        Window window;
        window.show();
        QCOMPARE(window.openWorkflow(documentOf({proteinsCell("GCAU"), karvonCell()}, ofType(type))),
                 kOpened);
        const ProteinOptionsWidget &proteins = proteinsOf(window);
        QCOMPARE(isColumnShown(*proteins.proteinTableWidget(), "sites"), !isOligo);
        QStringList titles;
        for (const QLabel *label : proteins.proteinAnnotationWidget()->findChildren<QLabel *>())
            titles.append(label->text());
        QCOMPARE(titles.contains(u"Annotations of oligonucleotides"_s), isOligo);
        QCOMPARE(titles.contains(u"Annotations of proteins"_s), !isOligo);
    }
}

void ProteinUpdatesTest::masslessSequencesAreFaultsOfIntactAnalyses()
{
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({proteinsCell("PEXTIDE"), settingsCell("Senthia", {})})),
             kOpened);
    const ProteinTableWidget &table = *proteinsOf(window).proteinTableWidget();
    const auto problem = [&table] {
        const int column = table.sheet()->columnOf(u"ProteinSequence"_s);
        return table.model()->index(0, column).data(TableModel::ProblemRole).toString();
    };
    QCOMPARE(problem(), QString());
    QVERIFY(!isColumnShown(table, "average"));
    const LogCapture log;
    for (const BaseItemType type : {BaseItemType::Intact, BaseItemType::Oligo}) {
        window.grid(0)->appendColumn(type, u"Masses"_s, true);
        QVERIFY(problem().contains(u"Position 3 holds \"X\""_s));
        QVERIFY(isColumnShown(table, "average"));
        window.grid(0)->removeColumn(2);
        QCOMPARE(problem(), QString());
        QVERIFY(!isColumnShown(table, "average"));
    }
}

void ProteinUpdatesTest::averageMassesGoWithTheTab()
{
    const LogCapture log;
    Window window;
    const QJsonObject first = Documents::tab(u"Proteins"_s, {u"P"_s, u"S"_s},
                                             {proteinsCell("PEPTIDE"), settingsCell("Senthia", {})});
    const QJsonObject second = Documents::tab(u"Masses"_s, {u"I"_s}, {settingsCell("Intact", {})});
    QCOMPARE(window.openWorkflow(Documents::document({first, second}, metadata())), kOpened);
    const ProteinTableWidget &table = *proteinsOf(window).proteinTableWidget();
    QVERIFY(isColumnShown(table, "average"));
    window.removeTab(1);
    QVERIFY(!isColumnShown(table, "average"));
}

void ProteinUpdatesTest::samplesShowWhatTheirDocumentsNeed()
{
    const LogCapture log;
    Window window;
    window.show();
    QCOMPARE(window.openWorkflow(documentOf({Documents::cell(u"Samples"_s), karvonCell()})), kOpened);
    auto *samples = qobject_cast<SamplesAndTracesInputWidget *>(window.grid(0)->items().first()->widget());
    const TableView *table = nullptr;
    for (const TableView *candidate : samples->findChildren<TableView *>()) {
        if (candidate->accessibleName() == u"Samples"_s)
            table = candidate;
    }
    QVERIFY(table);
    const auto isHidden = [table] {
        return table->isColumnHidden(table->sheet()->columnOf(u"ExtraReferences"_s));
    };
    QVERIFY(!isHidden());
    window.grid(0)->removeColumn(1);
    window.grid(0)->appendColumn(BaseItemType::Intact, u"Masses"_s, true);
    QVERIFY(isHidden());
    window.grid(0)->appendColumn(BaseItemType::Karvon, u"Search"_s, true);
    QVERIFY(!isHidden());
}

WIDGET_REGISTER_TEST(ProteinUpdatesTest)
#include "ProteinUpdatesTest.moc"
