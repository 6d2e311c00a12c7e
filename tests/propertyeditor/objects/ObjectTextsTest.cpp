#include "ObjectsFixture.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/editors/InclusionEditorObject.h>
#include <orv/propertyeditor/editors/LabelScriptsGenericObject.h>
#include <orv/propertyeditor/editors/ModificationsEditorObject.h>
#include <orv/propertyeditor/editors/TheoreticalTableEditor.h>

#include <QHash>
#include <QHelpEvent>
#include <QToolTip>

using namespace orv;
using namespace GridFixture;
using namespace ObjectsFixture;

/// What structured values read as, and what typing means.
class ObjectTextsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void everyKindHasAnObject_data();
    void everyKindHasAnObject();
    void valuesReadAsTexts_data();
    void valuesReadAsTexts();
    void toolTipsShowMoreThanCells();
    void numbersReadAsPeopleWriteThem();
    void textsOfTablesAreJson_data();
    void textsOfTablesAreJson();
    void textsComeBackUnderTheirKey_data();
    void textsComeBackUnderTheirKey();
    void whatAnObjectSaysItReads_data();
    void whatAnObjectSaysItReads();
    void aRowOfBadDataIsNoTable();
    void reportsHaveARowForEachKind();
    void reportsEscapeNames();
    void reportsOfBadValuesAreEmpty();
    void modesCanBeHashed();
};

void ObjectTextsTest::initTestCase()
{
    startApplication();
}

void ObjectTextsTest::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void ObjectTextsTest::everyKindHasAnObject_data()
{
    addKinds();
}

void ObjectTextsTest::everyKindHasAnObject()
{
    QFETCH(int, editor);
    QVERIFY(objectFor(Editor(editor)));
}

void ObjectTextsTest::valuesReadAsTexts_data()
{
    QTest::addColumn<int>("editor");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, Editor editor, const char *value, const char *expected) {
        QTest::newRow(name) << int(editor) << QByteArray(value) << text(expected);
    };
    const auto kindRow = [&](const char *name, Editor editor, const char *expected) {
        row(name, editor, kindOf(editor).value, expected);
    };
    kindRow("two proteins", Editor::Proteins, "P1 | alpha | MKTAYIAK\nP2 |  | GGC\n");
    row("proteins in another order", Editor::Proteins,
        R"({"data":["ProteinSequence","x","ProteinAccessionName"],"children":[{"data":["GG","no","P1"]}]})",
        "P1 |  | GG\n");
    row("a protein without cells", Editor::Proteins,
        R"({"data":["ProteinSequence"],"children":[{"data":[]},5]})", " |  | \n |  | \n");
    row("accessions that are numbers", Editor::Proteins,
        R"({"data":["ProteinAccessionName","ProteinAliasName","ProteinSequence"],)"
        R"("children":[{"data":[4711,{"$double":2.5},"GG"]}]})",
        "4711 | 2.5 | GG\n");
    row("no proteins", Editor::Proteins, R"({"data":["ProteinSequence"],"children":[]})", "");
    row("children that are none", Editor::Proteins, R"({"data":["ProteinSequence"],"children":{"a":1}})", "");
    kindRow("masses", Editor::Masses, "G0F/G0F, 148055.9\nloss, -18.0106, mAb, 1 2");
    kindRow("isotopes", Editor::Isotope, "Heavy lysine, C, 13, 99.5");
    kindRow("disulfide bonds", Editor::Disulfide, "HC, 22, HC, 96");
    kindRow("intact options", Editor::IntactOptions, "Denatured, 600, 5000, 20000, 200000, 10, 100, H");
    kindRow("oligo options", Editor::OligoOptions, "Resolved, 400, 3000, 1000, 35000, 2, 20, H");
    row("a row with a break in a cell", Editor::Masses, R"({"data":["Name"],"children":[{"data":["a\nb"]}]})",
        "a b");
    row("typed cells", Editor::Masses,
        R"({"data":["Name"],"children":[{"data":[{"$double":5},{"$date":"2024-01-31"},true,null]}]})",
        "5, 2024-01-31, yes");
    row("empty rows", Editor::Masses, R"({"data":["Name"],"children":[{"data":[""]},{"data":[]}]})", "\n");
    row("no table", Editor::Masses, R"({"children":5})", R"(Error The value is no table. - {"children":5})");
    row("nothing chosen yet", Editor::Masses, R"({"data":""})", "");
    kindRow("glycans", Editor::DetachedGlycans, "1 glycans.");
    row("no glycans", Editor::DetachedGlycans, "{}", "0 glycans.");
    row("a mass that is none", Editor::DetachedGlycans,
        R"({"data":["Name","Mass"],"children":[{"data":["G0F","x"]}]})", "1 glycans.");
    row("no table of glycans", Editor::DetachedGlycans, R"({"children":5})",
        R"(Error The value is no table. - {"children":5})");
    kindRow("glycan options", Editor::GlycanOptions, "Hex;2-AB (100%);None;None");
    row("no glycan options", Editor::GlycanOptions, "{}", "None;None;None;None");
    row("unset glycan options", Editor::GlycanOptions, R"({"data":""})", "None;None;None;None");
    row("glycan options without rows", Editor::GlycanOptions,
        R"({"data":["Kind","Name","Formula","Complete"],"children":[]})", "None;None;None;None");
    row("several in a group", Editor::GlycanOptions,
        R"({"data":["Kind","Name","Formula","Complete"],"children":[{"data":["Adduct","Na","Na",true]},)"
        R"({"data":["Moiety","Hex","C6H10O5",false]},{"data":["Moiety","Fuc","C6H10O4",true]},)"
        R"({"data":["Label","2-AB","C7H8N2",false]},{"data":["Derivatization","Me","CH2",true]},)"
        R"({"data":["Adduct","H","H",true]}]})",
        "Hex, Fuc;2-AB;Na, H;Me (100%)");
    row("an unknown kind", Editor::GlycanOptions, R"({"data":["Kind"],"children":[{"data":["Sugar"]}]})",
        "Error The table of glycan options can't be read. Row 1: There is no kind \"Sugar\". - "
        R"({"children":[{"data":["Sugar"]}],"data":["Kind"]})");
    kindRow("value and unit", Editor::ValueUnit, "10.12 ppm");
    row("value as text", Editor::ValueUnit, R"({"value":"7.5","unit":"Da"})", "7.50 Da");
    row("no number", Editor::ValueUnit, R"({"unit":"Da","value":"x"})",
        R"(Error The value is no number. - {"unit":"Da","value":"x"})");
    kindRow("modifications", Editor::Modifications,
            "Oxidation / +15.994915 @ M | common1\n% Custom modification text below\n");
    kindRow("search glycans", Editor::Glycans,
            "[data/n_glycans.txt]\n% Custom glycan text below\nHexNAc(2)Hex(5) @ NGlycan | rare1\n");
    kindRow("peaks", Editor::PeakFilter, "204.0867 HexNAc\n366.14");
    row("a text that is none", Editor::PeakFilter, R"({"peakfilter":[1]})",
        R"(Error There is no text "peakfilter". - {"peakfilter":[1]})");
    kindRow("trace script", Editor::TracePlot, "return {rt};\r\n");
    kindRow("mass script", Editor::DeconvolvedMassPlot, "return {mass};");
    kindRow("inclusion list", Editor::InclusionList, "524.265,2,,,LVNELTEFAK\n740.4014");
    row("inclusion list as text", Editor::InclusionList, R"({"inclusion":"500,2\n600"})", "500,2\n600");
    row("a line that couldn't be read", Editor::InclusionList, R"({"inclusion":[{"text":"x y"},{"mz":500}]})",
        "x y\n500");
    kindRow("peptides", Editor::TheoreticalTable, "Sequence\tProtein\nLVNELTEFAK\tBSA");
    row("no peptides", Editor::TheoreticalTable, "{}", "");
    row("a bad row", Editor::TheoreticalTable,
        R"({"data":["Sequence"],"children":[{"data":["A"]},{"data":5}]})",
        "Error Row 2 contains invalid data - "
        R"({"children":[{"data":["A"]},{"data":5}],"data":["Sequence"]})");
}

void ObjectTextsTest::valuesReadAsTexts()
{
    QFETCH(int, editor);
    QFETCH(QByteArray, value);
    QFETCH(QString, expected);
    QCOMPARE(objectFor(Editor(editor))->toString(object(value)), expected);
}

void ObjectTextsTest::toolTipsShowMoreThanCells()
{
    QStringList lines;
    for (int i = 1; i <= 40; ++i)
        lines.append(text("peak %1").arg(i));
    Row row("KarvonPeakFilterSelected", QJsonObject{{text("peakfilter"), lines.join(u'\n')}});
    QCOMPARE(row.shown(), lines.mid(0, 4).join(u'\n') + text("...\n[35 more line(s)]"));
    const QModelIndex cell = LeavingWays::rowOf(row.tree(), row.name).siblingAtColumn(1);
    const QPoint place = row.tree().visualRect(cell).center();
    QHelpEvent help(QEvent::ToolTip, place, row.tree().viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(row.tree().viewport(), &help);
    const QString tip = QToolTip::text();
    QVERIFY2(tip.endsWith(text("<hr>") + lines.mid(0, 24).join(text("<br>")) + text("<br>\u2026")),
             qPrintable(tip));
}

void ObjectTextsTest::numbersReadAsPeopleWriteThem()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(objectFor(Editor::Masses)->toString(object(kindOf(Editor::Masses).value)),
             text("G0F/G0F, 148055,9\nloss, -18,0106, mAb, 1 2"));
}

void ObjectTextsTest::textsOfTablesAreJson_data()
{
    addKinds({Editor::ValueUnit, Editor::Modifications, Editor::Glycans, Editor::PeakFilter,
              Editor::TracePlot, Editor::DeconvolvedMassPlot, Editor::TheoreticalTable});
}

void ObjectTextsTest::textsOfTablesAreJson()
{
    QFETCH(int, editor);
    const QString json = text(R"({"children":[],"data":["\u00e4"]})");
    QCOMPARE(objectFor(Editor(editor))->fromString(json), object(json.toUtf8()));
    if (Editor(editor) != Editor::InclusionList) {
        QCOMPARE(objectFor(Editor(editor))->fromString(text("no json")), QJsonObject());
    }
}

void ObjectTextsTest::textsComeBackUnderTheirKey_data()
{
    QTest::addColumn<int>("editor");
    QTest::addColumn<QString>("key");
    QTest::newRow("modifications") << int(Editor::Modifications) << text("modifications");
    QTest::newRow("glycans") << int(Editor::Glycans) << text("glycans");
    QTest::newRow("peak filter") << int(Editor::PeakFilter) << text("peakfilter");
    QTest::newRow("trace plot") << int(Editor::TracePlot) << text("tracePlot");
    QTest::newRow("mass plot") << int(Editor::DeconvolvedMassPlot) << text("dmsPlot");
}

void ObjectTextsTest::textsComeBackUnderTheirKey()
{
    QFETCH(int, editor);
    QFETCH(QString, key);
    const QString typed = text("a \"b\"\n{\"c\":1}");
    const QJsonObject expected{{key, typed}};
    QCOMPARE(objectFor(Editor(editor))->fromString(typed), expected);
    QCOMPARE(objectFor(Editor(editor))->toString(expected), typed);
}

void ObjectTextsTest::whatAnObjectSaysItReads_data()
{
    QTest::addColumn<int>("editor");
    for (Editor editor : {Editor::InclusionList, Editor::TheoreticalTable})
        QTest::newRow(kindOf(editor).property) << int(editor);
}

void ObjectTextsTest::whatAnObjectSaysItReads()
{
    QFETCH(int, editor);
    const auto editorObject = objectFor(Editor(editor));
    const QString said = editorObject->toString(object(kindOf(Editor(editor)).value));
    QCOMPARE(editorObject->toString(editorObject->fromString(said)), said);
    QVERIFY(!said.isEmpty());
}

void ObjectTextsTest::aRowOfBadDataIsNoTable()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("^Row 2 contains invalid data")));
    QCOMPARE(TheoreticalTableEditor().fromString(text("Sequence\tProtein\nA\tB\nonly one")), QJsonObject());
}

void ObjectTextsTest::reportsHaveARowForEachKind()
{
    const QList<QList<QVariant>> expected = {{text("Moieties"), text("Hex<br>Fuc")},
                                             {text("Label"), text("2-AB (100%)")},
                                             {text("Adducts"), text("")},
                                             {text("Derivatization"), text("Me")}};
    QCOMPARE(
        GlycanOptionsGenericObject().toReportModuleStructure(object(
            R"({"data":["Kind","Name","Formula","Complete"],"children":[)"
            R"({"data":["Moiety","Hex","C6H10O5",true]},{"data":["Moiety","Fuc","C6H10O4",true]},)"
            R"({"data":["Derivatization","Me","CH2",false]},{"data":["Label","2-AB","C7H8N2",true]}]})")),
        expected);
}

void ObjectTextsTest::reportsEscapeNames()
{
    const auto report = GlycanOptionsGenericObject().toReportModuleStructure(
        object(R"({"data":["Kind","Name"],"children":[{"data":["Moiety","<b>&"]}]})"));
    QCOMPARE(report.value(0).value(1), QVariant(text("&lt;b&gt;&amp;")));
}

void ObjectTextsTest::reportsOfBadValuesAreEmpty()
{
    const GlycanOptionsGenericObject options;
    QVERIFY(options.toReportModuleStructure(object(R"({"data":["Kind"],"children":[{"data":["Sugar"]}]})"))
                .isEmpty());
    QVERIFY(options.toReportModuleStructure(object(R"({"children":7})")).isEmpty());
}

void ObjectTextsTest::modesCanBeHashed()
{
    using Mode = ModificationsEditorObject::Mode;
    const QHash<Mode, int> numbers = {{Mode(0), 10}, {Mode(1), 11}, {Mode(2), 12}};
    QCOMPARE(numbers.value(Mode::Modifications), 10);
    QCOMPARE(numbers.value(Mode::Glycans), 11);
    QCOMPARE(numbers.value(Mode::PeakFilter), 12);
    QCOMPARE(ModificationsEditorObject().fromString(text("x")), object(R"({"modifications":"x"})"));
    QCOMPARE(LabelScriptsGenericObject().fromString(text("x")), object(R"({"tracePlot":"x"})"));
}

WIDGET_REGISTER_TEST(ObjectTextsTest)
#include "ObjectTextsTest.moc"
