#include "WidgetTest.h"
#include "WindowFixture.h"

#include <orv/propertyeditor/grid/GridCommunicative.h>
#include <orv/propertyeditor/grid/IGridItemCreator.h>
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

QJsonObject sequenceCell(const char *sequence)
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

/// A column of an application that writes down what it is told.
class Witness : public GridCommunicative, public IGridItem
{
public:
    Witness(GridCommunicationManager *bus, QStringList *told)
        : GridCommunicative(bus)
        , m_told(told)
    {}

    using IGridItem::content;
    [[nodiscard]] QJsonObject content() const override { return storedContent(); }
    [[nodiscard]] QWidget *widget() override { return m_widget; }
    void beginPresetLoading() override { m_told->append(u"begin"_s); }
    void endPresetLoading() override { m_told->append(u"end"_s); }
    void messageReceived(const GridMessage &message) override
    {
        m_told->append(QString::number(int(message.type)));
    }

protected:
    Error setContentInternal() override { return Error::NoError; }

private:
    QStringList *m_told;
    QPointer<QLabel> m_widget{new QLabel};
};

class WitnessCreator : public TalkingItemCreator
{
public:
    explicit WitnessCreator(QStringList *told)
        : m_told(told)
    {}

    [[nodiscard]] IGridItem *createGridItemOn(GridCommunicationManager *bus) const override
    {
        return new Witness(bus, m_told);
    }

private:
    QStringList *m_told;
};

/// Columns of documents for several products are witnesses while this lives.
class Witnesses
{
public:
    explicit Witnesses(QStringList *told)
    {
        registerCreators(); // of the other windows, which have none
        m_manager.registerCreators();
        m_manager.registerCreator(BaseItemType::MultiDocReport, new WitnessCreator(told));
        GridItemManager::setCustomManager(&m_manager);
    }
    ~Witnesses() { GridItemManager::setCustomManager(nullptr); }
    Q_DISABLE_COPY_MOVE(Witnesses)

private:
    GridItemManager m_manager;
};

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
    void proteinsAreToldBetweenBeginAndEnd();
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
        QCOMPARE(window.openWorkflow(documentOf({sequenceCell("GCAU"), karvonCell()}, ofType(type))),
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
    QCOMPARE(window.openWorkflow(documentOf({sequenceCell("PEXTIDE"), settingsCell("Senthia", {})})),
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
                                             {sequenceCell("PEPTIDE"), settingsCell("Senthia", {})});
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

void ProteinUpdatesTest::proteinsAreToldBetweenBeginAndEnd()
{
    const LogCapture log;
    QStringList told;
    const Witnesses witnesses(&told);
    Window window;
    const QJsonObject first = Documents::tab(u"Proteins"_s, {u"P"_s, u"W"_s},
                                             {sequenceCell("PEPTIDE"), settingsCell("MultiDocReport", {})});
    const QJsonObject second = Documents::tab(u"Search"_s, {u"S"_s}, {karvonCell()});
    QCOMPARE(window.openWorkflow(Documents::document({first, second}, metadata())), kOpened);
    told.clear();
    window.grid(1)->removeColumn(0);
    QCOMPARE(told, (QStringList{u"begin"_s, u"253"_s, u"end"_s}));
}

WIDGET_REGISTER_TEST(ProteinUpdatesTest)
#include "ProteinUpdatesTest.moc"
