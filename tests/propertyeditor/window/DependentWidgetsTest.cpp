#include "WidgetTest.h"
#include "WindowFixture.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/window/ProteinTabs.h>
#include <orv/widgets/GlycanOptionsWidget.h>
#include <orv/widgets/GlycanTableWidget.h>
#include <orv/widgets/ProteinAnnotationWidget.h>
#include <orv/widgets/ProteinInputWidgetBase.h>
#include <orv/widgets/ProteinOptionsWidget.h>
#include <orv/widgets/ProteinTableWidget.h>
#include <orv/widgets/ProteinTreeTable.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>

#include <QLabel>
#include <QSignalSpy>

using namespace orv;
using namespace WindowFixture;
using namespace Qt::StringLiterals;

namespace {

QJsonObject tableCell(const char *type)
{
    if (qstrcmp(type, "Proteins") != 0)
        return Documents::cell(text(type));
    return settingsCell(
        type, {setting(type, QJsonObject{{text("data"), QJsonArray()}, {text("children"), QJsonArray()}})});
}

template<class Widget>
Widget *shown(Window &window)
{
    for (int i = 0; i < window.tabs().count(); ++i) {
        for (IGridItem *item : window.grid(i)->items()) {
            if (auto *widget = qobject_cast<Widget *>(item->widget()))
                return widget;
        }
    }
    return nullptr;
}

QString typeOf(const PropertyEditorContent::Tabs &tabs, int cell)
{
    return Documents::parse(tabs.first().second.second.at(cell).toByteArray())[u"type"_s].toString();
}

/// What an application makes of the window that has something against imported columns.
class StrictState : public PropertyEditorWindowPrivate
{
public:
    using PropertyEditorWindowPrivate::PropertyEditorWindowPrivate;

    bool createProject() override { return false; }

    QString refusal;
    mutable int checks = 0;

protected:
    [[nodiscard]] Error verifyCustomColumns() const override
    {
        ++checks;
        return refusal.isEmpty() ? Error(Error::NoError) : Error(ErrorCode::InvalidContent, refusal);
    }
};

class StrictWindow : public PropertyEditorWindow
{
public:
    StrictWindow()
        : PropertyEditorWindow(nullptr, new StrictState((registerCreators(), this), nullptr))
    {}

    using PropertyEditorWindow::openWorkflow;

    [[nodiscard]] WorkflowAppType workflowAppType() const override { return WorkflowAppType::Mirel; }
    [[nodiscard]] PropertyGridWidget *grid() const { return dFunc()->gridWidgetForTabIndex(0); }
    void refuse(const QString &reason) { state()->refusal = reason; }
    [[nodiscard]] int checks() const { return state()->checks; }

private:
    [[nodiscard]] StrictState *state() const { return static_cast<StrictState *>(dFunc()); }
};

} // namespace

class DependentWidgetsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void averageMassesFollowTheDocuments();
    void annotationsNeedAPeptideMap();
    void intactWorkflowsShowChains();
    void withAPeptideMapProteinsStay();
    void brokenCellsStay();
    void chainsAreRenamed();
    void samplesAreForwarded();
    void removedColumnsAreForwarded();
    void theLastSamplesCount();
    void samplesAddedByHandAreHeardAfterTheNextLoad();
    void tableOfProteinsIsToldOnce();
    void documentsDontHearEachOther();
    void tabsHaveTheTitleOfTheCurrentWindow();
    void removedColumnsAreToldAgainAfterEachConnection();
    void importsAreCheckedForIntactAnalyses_data();
    void importsAreCheckedForIntactAnalyses();
    void applicationsCheckImportedColumns();
    void glycansFollowTheirOptions();
};

void DependentWidgetsTest::averageMassesFollowTheDocuments()
{
    Window window;
    window.show();
    QCOMPARE(window.openWorkflow(documentOf(
                 {tableCell("Proteins"), settingsCell("Intact", {}), settingsCell("Senthia", {})})),
             kOpened);
    auto *proteins = shown<ProteinOptionsWidget>(window);
    QVERIFY(proteins);
    QVERIFY(proteins->proteinTableWidget()->proteinTreeTable()->showsAverageMass());
    window.grid(0)->removeColumn(1);
    const LogCapture log;
    QVERIFY(!proteins->proteinTableWidget()->proteinTreeTable()->showsAverageMass());
    window.grid(0)->appendColumn(BaseItemType::Oligo, u"Oligo"_s, true);
    QVERIFY(proteins->proteinTableWidget()->proteinTreeTable()->showsAverageMass());
}

void DependentWidgetsTest::annotationsNeedAPeptideMap()
{
    Window window;
    window.show();
    QCOMPARE(window.openWorkflow(documentOf({tableCell("Proteins"), karvonCell()})), kOpened);
    auto *proteins = shown<ProteinOptionsWidget>(window);
    QVERIFY(!proteins->proteinAnnotationWidget()->isVisibleTo(proteins));
    const LogCapture log;
    window.grid(0)->appendColumn(BaseItemType::Senthia, u"Map"_s, true);
    QVERIFY(proteins->proteinAnnotationWidget()->isVisibleTo(proteins));
    window.grid(0)->removeColumn(2);
    QVERIFY(!proteins->proteinAnnotationWidget()->isVisibleTo(proteins));
}

void DependentWidgetsTest::intactWorkflowsShowChains()
{
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({tableCell("Proteins"), settingsCell("Intact", {})})), kOpened);
    QVERIFY(shown<ProteinInputWidgetBase>(window));
    QVERIFY(!shown<ProteinOptionsWidget>(window));
    QCOMPARE(typeOf(window.content().tabsAndContent(), 0), u"IntactProteins"_s);
}

void DependentWidgetsTest::withAPeptideMapProteinsStay()
{
    Window window;
    QCOMPARE(window.openWorkflow(documentOf(
                 {tableCell("Proteins"), settingsCell("Intact", {}), settingsCell("Senthia", {})})),
             kOpened);
    QVERIFY(shown<ProteinOptionsWidget>(window));
    QCOMPARE(typeOf(window.content().tabsAndContent(), 0), u"Proteins"_s);
}

void DependentWidgetsTest::brokenCellsStay()
{
    const LogCapture log;
    PropertyEditorContent::Tabs tabs{
        {u"Tab"_s, {{u"A"_s, u"B"_s}, {QByteArray("{broken"), QByteArray("{}")}}}};
    const PropertyEditorContent::Tabs before = tabs;
    ProteinTabs::changeToIntactProteins(&tabs);
    QCOMPARE(tabs, before);
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().startsWith(u"Json parsing error: "_s));
    QVERIFY(log.warnings().first().endsWith(u"{broken"_s));
}

void DependentWidgetsTest::chainsAreRenamed()
{
    const QByteArray cell = R"({"name": "P", "properties": [{"name": "Proteins", "value": {"a": 1}},
        {"name": "Samples", "value": "*"}], "type": "Proteins"})";
    PropertyEditorContent::Tabs tabs{{u"Tab"_s, {{u"A"_s}, {cell}}}};
    ProteinTabs::changeToIntactProteins(&tabs);
    QCOMPARE(tabs.first().second.second.at(0).toByteArray(),
             QByteArray(R"({"name":"P","properties":[{"name":"IntactProteins","value":{"a":1}},)"
                        R"({"name":"Samples","value":"*"}],"type":"IntactProteins"})"));
}

void DependentWidgetsTest::samplesAreForwarded()
{
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({tableCell("Samples"), karvonCell()})), kOpened);
    const QSignalSpy told(&window.state(), &PropertyEditorWindowPrivate::samplesChanged);
    window.state().connectGridWidgets();
    SamplePathAndName sample;
    sample.name = u"one"_s;
    sample.path = u"/data/one.mzML"_s;
    shown<SamplesAndTracesInputWidget>(window)->addNewSampleFiles({sample});
    QCOMPARE(told.size(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().value<QList<SamplesInput::Entry>>().size(), 1);
}

void DependentWidgetsTest::removedColumnsAreForwarded()
{
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({tableCell("Samples")})), kOpened);
    const QSignalSpy told(&window.state(), &PropertyEditorWindowPrivate::removeCustomColumn);
    Q_EMIT shown<SamplesAndTracesInputWidget>(window)->removeCustomColumn(u"Batch"_s);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().toString(), u"Batch"_s);
}

void DependentWidgetsTest::theLastSamplesCount()
{
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({tableCell("Samples"), tableCell("Samples")})), kOpened);
    const QSignalSpy told(&window.state(), &PropertyEditorWindowPrivate::removeCustomColumn);
    auto *first = qobject_cast<SamplesAndTracesInputWidget *>(window.grid(0)->items().at(0)->widget());
    auto *last = qobject_cast<SamplesAndTracesInputWidget *>(window.grid(0)->items().at(1)->widget());
    Q_EMIT first->removeCustomColumn(u"A"_s);
    Q_EMIT last->removeCustomColumn(u"B"_s);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().toString(), u"B"_s);
}

void DependentWidgetsTest::samplesAddedByHandAreHeardAfterTheNextLoad()
{
    const LogCapture log;
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({karvonCell()})), kOpened);
    const QSignalSpy told(&window.state(), &PropertyEditorWindowPrivate::removeCustomColumn);
    window.state().appendColumnGrid(BaseItemType::Samples, u"Files"_s);
    Q_EMIT shown<SamplesAndTracesInputWidget>(window)->removeCustomColumn(u"Batch"_s);
    QCOMPARE(told.size(), 0);
    QCOMPARE(window.openWorkflow(window.content().document()), kOpened);
    Q_EMIT shown<SamplesAndTracesInputWidget>(window)->removeCustomColumn(u"Batch"_s);
    QCOMPARE(told.size(), 1);
}

void DependentWidgetsTest::tableOfProteinsIsToldOnce()
{
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({tableCell("Proteins")})), kOpened);
    const QSignalSpy told(shown<ProteinOptionsWidget>(window)->proteinTableWidget(),
                          &ProteinTableWidget::proteinsChanged);
    const LogCapture log;
    window.grid(0)->appendColumn(BaseItemType::Karvon, u"Search"_s, true);
    QCOMPARE(told.size(), 1);
}

void DependentWidgetsTest::documentsDontHearEachOther()
{
    const QJsonObject samples = Documents::parse(R"({"Samples": [{"SampleName": "one", "SamplesId": 1}]})");
    const QJsonObject document = documentOf({settingsCell("Samples", {setting("SamplesTable", samples)}),
                                             settingsCell("Karvon", {setting("Samples", u"one"_s)})});
    Window first;
    Window second;
    QCOMPARE(first.openWorkflow(document), kOpened);
    QCOMPARE(second.openWorkflow(document), kOpened);
    auto *table = shown<SamplesAndTracesInputWidget>(first);
    QByteArray renamed = QJsonDocument(table->jsonContent()).toJson();
    renamed.replace("\"one\"", "\"two\"");
    QVERIFY(!table->setFromJsonContent(Documents::parse(renamed)).hasError());
    const auto pattern = [](Window &window) {
        auto *view = qobject_cast<GridPropertyEditorView *>(window.grid(0)->items().at(1)->widget());
        return view->propertySet()->property("Samples").value().toString();
    };
    QCOMPARE(pattern(first), u"two"_s);
    QCOMPARE(pattern(second), u"one"_s);
}

void DependentWidgetsTest::tabsHaveTheTitleOfTheCurrentWindow()
{
    const LogCapture log;
    Window first;
    QCOMPARE(first.openWorkflow(documentOf({karvonCell()}, metadata("5.47.0", "First"))), kOpened);
    QCOMPARE(first.tabs().windowTitle(), u"First - Project Creation"_s);
    QVERIFY(log.texts(QtDebugMsg).contains(u"Updating dependent widgets"_s));
    const Window second;
    first.grid(0)->appendColumn(BaseItemType::Karvon, u"Search"_s, true);
    QCOMPARE(first.tabs().windowTitle(), second.windowTitle());
}

void DependentWidgetsTest::removedColumnsAreToldAgainAfterEachConnection()
{
    Window window;
    QCOMPARE(window.openWorkflow(documentOf({tableCell("Samples")})), kOpened);
    const QSignalSpy told(&window.state(), &PropertyEditorWindowPrivate::removeCustomColumn);
    window.state().connectGridWidgets();
    Q_EMIT shown<SamplesAndTracesInputWidget>(window)->removeCustomColumn(u"Batch"_s);
    QCOMPARE(told.size(), 2);
}

void DependentWidgetsTest::importsAreCheckedForIntactAnalyses_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("isChecked");
    QTest::newRow("intact") << QByteArray("Intact") << true;
    QTest::newRow("oligonucleotides") << QByteArray("Oligo") << true;
    QTest::newRow("search") << QByteArray("Karvon") << false;
}

void DependentWidgetsTest::importsAreCheckedForIntactAnalyses()
{
    QFETCH(const QByteArray, document);
    QFETCH(const bool, isChecked);
    const QTemporaryDir folder;
    const QString csv = write(folder, "a.csv", QByteArray("Sample,Mass\none,18.0\n"));
    ScriptedAnswerer answers;
    Window window;
    const QJsonObject table{{u"data"_s, QJsonArray()}, {u"children"_s, QJsonArray()}};
    const QJsonObject value{{u"header"_s, table}, {u"table"_s, table}};
    QCOMPARE(
        window.openWorkflow(documentOf({settingsCell("SamplesProteins", {setting("SamplesProteins", value)}),
                                        settingsCell(document.constData(), {})})),
        kOpened);
    auto *item = dynamic_cast<SamplesProteinsTableItem *>(window.grid(0)->items().first());
    if (isChecked)
        answers.expectBox(u"Import"_s, u"OK"_s);
    item->importCSV(csv);
    QVERIFY(answers.isDone());
    const QJsonArray rows = window.content()
                                .document()[u"tabs"_s][0][u"cells"_s][0][u"properties"_s][0][u"value"_s]
                                           [u"table"_s][u"children"_s]
                                .toArray();
    QCOMPARE(rows.isEmpty(), isChecked);
}

void DependentWidgetsTest::applicationsCheckImportedColumns()
{
    const LogCapture log;
    const QTemporaryDir folder;
    const QString csv =
        write(folder, "a.csv", "Sample,File,Protein,Sequence\none,/data/one.mzML,mAb,EVQLVESGGGLVQPGGSLR\n");
    const ScriptedAnswerer answers;
    StrictWindow window;
    const QJsonObject table{{u"data"_s, QJsonArray()}, {u"children"_s, QJsonArray()}};
    const QJsonObject value{{u"header"_s, table}, {u"table"_s, table}};
    QCOMPARE(
        window.openWorkflow(documentOf({settingsCell("SamplesProteins", {setting("SamplesProteins", value)}),
                                        settingsCell("Intact", {})})),
        kOpened);
    auto *item = dynamic_cast<SamplesProteinsTableItem *>(window.grid()->items().first());
    QVERIFY(item);
    item->importCSV(csv);
    QCOMPARE(window.checks(), 1);
    window.refuse(u"The column \"Batch\" is reserved"_s);
    item->importCSV(csv);
    QCOMPARE(window.checks(), 2);
    QStringList told;
    for (const QLabel *label : item->widget()->findChildren<QLabel *>())
        told.append(label->text());
    QVERIFY2(told.contains(u"The column \"Batch\" is reserved"_s), qPrintable(told.join(u'\n')));
    QVERIFY(answers.transcript().isEmpty());
}

void DependentWidgetsTest::glycansFollowTheirOptions()
{
    const QString path = TestData::examplePath(u"workflows/released_glycans.wflw"_s);
    const LogCapture log;
    ScriptedAnswerer answers;
    answers.expectBox(u"Workflow upgrade"_s, u"Apply"_s);
    Window window;
    QCOMPARE(window.openWorkflow(path), kOpened);
    auto *options = shown<GlycanOptionsWidget>(window);
    auto *glycans = shown<GlycanTableWidget>(window);
    QVERIFY(options && glycans);
    const QString before = glycans->toPlainText();
    options->setOptions(GlycanOptions());
    QCoreApplication::processEvents();
    QVERIFY(glycans->toPlainText() != before);
}

WIDGET_REGISTER_TEST(DependentWidgetsTest)
#include "DependentWidgetsTest.moc"
