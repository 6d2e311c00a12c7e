#include "WidgetHands.h"
#include "WidgetTest.h"

#include <orv/table/rn.h>
#include <orv/widgets/CsvSamplesProteinsController.h>
#include <orv/widgets/CsvSamplesProteinsControllerConnector.h>
#include <orv/widgets/CustomFieldsImportWidget.h>
#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/PepmapReservedColumnsVerifierGui.h>

#include <QSignalSpy>
#include <QTemporaryDir>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

QString rowsOf(const RowNode &table)
{
    QStringList rows = {table.getRowDataToStringList().join(u',')};
    for (int i = 0; i < table.getChildListSize(); ++i)
        rows.append(table.getChild(i)->getRowDataToStringList().join(u','));
    return rows.join(u'\n');
}

const QByteArray kCsv = "Sample Name;Sample Path;protein_name;Protein Sequence;Lot\n"
                        "S1;run 1.raw;mAb;evq lv;A\n"
                        "S2;/d/run2.raw;mAb;EVQLV;B\n"
                        "S1;run 1.raw;Fab;DIQ;A\n";

struct Import
{
    explicit Import(const QByteArray &csv = kCsv)
    {
        path = folder.filePath(u"samples.csv"_s);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(csv) != csv.size())
            qFatal("No file");
        CsvSamplesProteinsControllerConnector::connect(&controller, &widget);
    }

    QTemporaryDir folder;
    QString path;
    CsvSamplesProteinsController controller;
    CustomFieldsImportWidget widget;
    QSignalSpy proteins{&controller, &CsvSamplesProteinsController::newProteinsDetected};
    QSignalSpy files{&controller, &CsvSamplesProteinsController::newFilePathsDetected};
};

} // namespace

class CustomFieldsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void tablesOfAnyShapeComeBack();
    void cellsAreTypedIn();
    void aFileFillsTheTable();
    void aFileIsChosen();
    void proteinsAndFilesAreTold();
    void aFileWithoutProteinsTellsNone();
    void theCheckBeforeStopsTheImport();
    void theCheckBehindIsTold();
    void badFilesAreTold_data();
    void badFilesAreTold();
    void longRowsMakeColumns();
    void aListenerMayDestroyEverything();
    void reservedColumnsAreRefused();
};

void CustomFieldsTest::tablesOfAnyShapeComeBack()
{
    for (
        const char *json :
        {R"({"data": ["Name", "Type", "Unit"], "children": [{"data": ["Lot", "Sample", ""], "children": []}]})",
         R"({"data": [1, null, {"a": [2]}], "children": [{"data": [[1], true, 5, 6], "children": [{"data": [], "children": []}]}]})",
         R"({"data": [], "children": []})"}) {
        RowNode node;
        QVERIFY(rn::fromObject(Hands::parsed(json), &node));
        CustomFieldsImportWidget widget;
        widget.setHeaderContent(node);
        widget.setTableContent(node);
        Hands::show(widget);
        QCOMPARE(widget.headerContent(), node);
        QCOMPARE(widget.tableContent(), node);
        QVERIFY(!widget.plainText().isEmpty());
    }
}

void CustomFieldsTest::cellsAreTypedIn()
{
    Import import;
    import.widget.importCSV(import.path);
    Hands::show(import.widget);
    QSignalSpy changes(&import.widget, &CustomFieldsImportWidget::contentChanged);
    Hands::enter(Hands::table(import.widget, "Samples and proteins"), 1, 4, "C");
    QCOMPARE(import.widget.tableContent().getChild(1)->getDataAt(u"Lot"_s).toString(), u"C"_s);
    QTRY_COMPARE(changes.size(), 1);
}

void CustomFieldsTest::aFileFillsTheTable()
{
    Import import;
    import.widget.importCSV(import.path);
    QCOMPARE(rowsOf(import.widget.headerContent()),
             u"Name,Type,Unit\nSample Name,Sample,\nSample Path,Sample,\n"
             "protein_name,Protein,\nProtein Sequence,Protein,\nLot,Sample,"_s);
    QCOMPARE(rowsOf(import.widget.tableContent()),
             u"Sample Name,Sample Path,protein_name,Protein Sequence,Lot\nS1,run 1.raw,mAb,evq lv,A\n"
             "S2,/d/run2.raw,mAb,EVQLV,B\nS1,run 1.raw,Fab,DIQ,A"_s);
    QVERIFY(import.widget.plainText().startsWith(u"Fields: Sample Name (Sample); "_s));
}

void CustomFieldsTest::aFileIsChosen()
{
    Import import;
    Hands::show(import.widget);
    ScriptedAnswerer answers;
    answers.expectPath(u"Import Samples and Proteins"_s, import.path);
    Hands::press(import.widget, "importCsv");
    QCOMPARE(import.widget.tableContent().getChildListSize(), 3);
    QVERIFY(answers.isDone());
}

void CustomFieldsTest::proteinsAndFilesAreTold()
{
    Import import;
    QVERIFY(!import.controller.importCSV(import.path).hasError());
    QCOMPARE(import.proteins.size(), 1);
    const auto proteins = import.proteins[0][0].value<RowNode>();
    QCOMPARE(proteins.getChildListSize(), 2);
    QCOMPARE(proteins.getChild(0)->getDataAt(u"ProteinAccessionName"_s).toString(), u"mAb"_s);
    QCOMPARE(proteins.getChild(0)->getDataAt(u"ProteinSequence"_s).toString(), u"EVQLV"_s);
    QCOMPARE(proteins.getChild(1)->getDataAt(u"ProteinSequence"_s).toString(), u"DIQ"_s);
    QCOMPARE(import.files.size(), 1);
    const auto files = import.files[0][0].value<QList<SamplePathAndName>>();
    QCOMPARE(files, (QList<SamplePathAndName>{{import.folder.filePath(u"run 1.raw"_s), u"S1"_s},
                                              {u"/d/run2.raw"_s, u"S2"_s}}));
}

void CustomFieldsTest::aFileWithoutProteinsTellsNone()
{
    Import import("Sample,Lot\nS1,1\n");
    QVERIFY(!import.controller.importCSV(import.path).hasError());
    QCOMPARE(import.proteins.size(), 0);
    QCOMPARE(import.files.size(), 0);
    QCOMPARE(import.widget.tableContent().getChildListSize(), 1);
}

void CustomFieldsTest::theCheckBeforeStopsTheImport()
{
    Import import;
    QMap<QString, QList<QVariant>> seen;
    import.controller.setCsvImportExtraPreFlightCheck([&](const auto &columns) {
        seen = columns;
    return false;
});
QVERIFY(!import.controller.importCSV(import.path).hasError());
QCOMPARE(seen.value(u"Lot"_s), (QList<QVariant>{u"A"_s, u"B"_s, u"A"_s}));
QCOMPARE(import.proteins.size() + import.files.size(), 0);
QVERIFY(import.widget.tableContent().isEmpty());
}

void CustomFieldsTest::theCheckBehindIsTold()
{
    Import import;
    Hands::show(import.widget);
    import.controller.setCsvImportExtraPostFlightCheck([&]() -> Error {
        return {ErrorCode::MalformedStructure, import.files.size() == 1 ? u"afterwards"_s : u"too early"_s};
});
import.widget.importCSV(import.path);
QCOMPARE(Hands::notice(import.widget), u"afterwards"_s);
QCOMPARE(import.widget.tableContent().getChildListSize(), 3);
import.controller.setCsvImportExtraPostFlightCheck({});
import.widget.importCSV(import.path);
QCOMPARE(Hands::notice(import.widget), QString());
}

void CustomFieldsTest::badFilesAreTold_data()
{
    QTest::addColumn<QByteArray>("csv");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray() << u"no header"_s;
    QTest::newRow("two columns of one name")
        << QByteArray("Lot,Lot\n1,2\n") << u"Two columns are called \"Lot\""_s;
    QTest::newRow("open quote") << QByteArray("A,B\n1,\"2\n") << u"can't be imported"_s;
}

void CustomFieldsTest::badFilesAreTold()
{
    QFETCH(const QByteArray, csv);
    QFETCH(const QString, reason);
    Import import(csv);
    Hands::show(import.widget);
    import.widget.importCSV(import.path);
    QVERIFY2(Hands::notice(import.widget).contains(reason), qPrintable(Hands::notice(import.widget)));
    QVERIFY(import.widget.tableContent().isEmpty());
    import.widget.importCSV(import.folder.filePath(u"gone.csv"_s));
    QVERIFY(Hands::notice(import.widget).contains(u"gone.csv"_s));
}

void CustomFieldsTest::longRowsMakeColumns()
{
    Import import("A,B\n1,2\n1,2,3\n");
    import.widget.importCSV(import.path);
    QCOMPARE(import.widget.tableContent().data.size(), 3);
    QCOMPARE(import.widget.tableContent().getChild(1)->getDataAt(2).toString(), u"3"_s);
}

void CustomFieldsTest::aListenerMayDestroyEverything()
{
    Import import;
    auto *const controller = new CsvSamplesProteinsController;
    auto *const widget = new CustomFieldsImportWidget;
    CsvSamplesProteinsControllerConnector::connect(controller, widget);
    connect(controller, &CsvSamplesProteinsController::headerImported, this, [=] {
        delete controller;
        delete widget;
    });
    QVERIFY(!controller->importCSV(import.path).hasError());
}

void CustomFieldsTest::reservedColumnsAreRefused()
{
    using Verifier = PepmapReservedColumnsVerifierGui;
    QVERIFY(Verifier::verifyIntactPeaksTable({{u"Lot"_s, {}}, {u"Sample Name"_s, {}}}, nullptr));
    ScriptedAnswerer answers;
    answers.expectBox(u"Import"_s, u"OK"_s);
    QVERIFY(!Verifier::verifyIntactPeaksTable({{u"Lot"_s, {}}, {u"delta_mass"_s, {}}, {u"Score"_s, {}}},
                                              nullptr));
    QVERIFY(answers.transcript().constFirst().text.contains(u"Score, delta_mass"_s));
    QVERIFY(answers.isDone());
}

WIDGET_REGISTER_TEST(CustomFieldsTest)

#include "CustomFieldsTest.moc"
