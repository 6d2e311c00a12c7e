#include "ChemistryFixture.h"
#include "WidgetTest.h"

#include <orv/chemistry/DetachedGlycanUtils.h>
#include <orv/chemistry/IsotopeUtils.h>
#include <orv/table_model/TableModel.h>
#include <orv/widgets/GlycanOptionsWidget.h>
#include <orv/widgets/GlycanTableWidget.h>
#include <orv/widgets/IsotopeTableWidget.h>

#include <QSignalSpy>

using namespace orv;
using namespace ChemistryFixture;

class GlycanWidgetsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void exampleGlycansComeBackAsTheyWere();
    void compositionsHaveMassesAtOnce();
    void aCellThatIsNoneIsMarkedAndKept();
    void cellsOfAnyTypeComeBack();
    void settingATableResetsItsModel();
    void exampleOptionsComeBackAsTheyWere();
    void optionsAreEdited();
    void optionsThatCouldNotBeReadAreLeftOut();
    void isotopesComeBackAsTheyWere();
    void isotopesAreCheckedAgainstNature();
    void glycanControlsAreNamed();
};

void GlycanWidgetsTest::exampleGlycansComeBackAsTheyWere()
{
    int found = 0;
    for (const Cell &cell : cellsOf(text("DetachedGlycans"))) {
        const GlycanTable table = GlycanTable::fromRowNode(nodeOf(cell.value)).value();
        GlycanTableWidget widget;
        widget.setTable(table);
        QVERIFY(widget.table() == table);
        found += int(table.glycans().size());
    }
    QCOMPARE(found, 3);
    Glycan odd;
    odd.composition = text("no composition");
    odd.otherCells = {{text("Later"), QVariantList{1}}};
    GlycanTableWidget widget;
    widget.setTable(GlycanTable({odd, Glycan()}));
    QVERIFY(widget.table() == GlycanTable({odd, Glycan()}));
}

void GlycanWidgetsTest::compositionsHaveMassesAtOnce()
{
    GlycanTableWidget widget;
    widget.setTable(GlycanTable({Glycan()}));
    show(&widget);
    typeInto(&widget, 0, "Composition", "HexNAc(4)Hex(3)Fuc(1)");
    QCOMPARE(shown(&widget, 0, "calculated"), text("1462.5444"));
    QCOMPARE(shown(&widget, 0, "formula"), text("C56H94N4O40"));
    QCOMPARE(widget.table().glycans()[0].composition, text("HexNAc(4)Hex(3)Fuc(1)"));
    typeInto(&widget, 0, "RetentionTime", "12.5");
    QCOMPARE(widget.table().glycans()[0].retentionTimeMinutes, 12.5);
    typeInto(&widget, 0, "Composition", "Xyl(1)");
    QCOMPARE(shown(&widget, 0, "calculated"), QString());
    GlycanOption xylose;
    xylose.name = text("Xyl");
    xylose.formula = ChemicalFormula::parse(text("C5H8O4")).value();
    widget.setGlycanOptions(GlycanOptions({xylose}));
    QCOMPARE(shown(&widget, 0, "calculated"), text("150.0528"));
}

void GlycanWidgetsTest::aCellThatIsNoneIsMarkedAndKept()
{
    Glycan glycan;
    glycan.composition = text("Hex(5)");
    GlycanTableWidget widget;
    widget.setTable(GlycanTable({glycan}));
    QVERIFY(!widget.sheet()->setText(0, 1, u"Hex(").hasError());
    QVERIFY(!at(&widget, 0, "Composition").data(TableModel::ProblemRole).toString().isEmpty());
    QCOMPARE(widget.table().glycans()[0].composition, text("Hex("));
    QVERIFY(!widget.sheet()->setText(0, 2, u"heavy").hasError());
    QVERIFY(!at(&widget, 0, "Mass").data(TableModel::ProblemRole).toString().isEmpty());
    const GlycanTable saved = GlycanTable::fromRowNode(widget.table().toRowNode()).value();
    GlycanTableWidget again;
    again.setTable(saved);
    QCOMPARE(shown(&again, 0, "Composition"), text("Hex("));
    QCOMPARE(shown(&again, 0, "Mass"), text("heavy"));
    QVERIFY(!again.sheet()->setText(0, 2, u"1235.5").hasError());
    QCOMPARE(again.table().glycans()[0].massDa, 1235.5);
    again.sheet()->history()->undo();
    QVERIFY(again.table() == saved);
}

void GlycanWidgetsTest::cellsOfAnyTypeComeBack()
{
    QRandomGenerator random(11);
    for (int i = 0; i < 300; ++i) {
        RowNode node = randomTable(random, {});
        node.data = {};
        for (const char *const column : {"Name", "Composition", "Mass", "Label", "RetentionTime"})
            node.data.append(text(column));
        GlycanTableWidget widget;
        widget.setTable(GlycanTable::fromRowNode(node).value());
        const RowNode back = widget.table().toRowNode();
        for (int row = 0; row < node.getChildListSize(); ++row) {
            for (int column = 0; column < node.data.size(); ++column) {
                const QVariant before = node.getChild(row)->getDataAt(column);
                if (before.isValid())
                    QCOMPARE(back.getChild(row)->getDataAt(column), before);
            }
        }
    }
}

void GlycanWidgetsTest::settingATableResetsItsModel()
{
    GlycanTableWidget widget;
    const QSignalSpy reset(widget.model(), &QAbstractItemModel::modelReset);
    widget.setTable(GlycanTable({Glycan()}));
    QCOMPARE(reset.size(), 1);
}

void GlycanWidgetsTest::exampleOptionsComeBackAsTheyWere()
{
    QList<RowNode> nodes = {DetachedGlycanUtils::defaultOptionsRowNode()};
    for (const Cell &cell : cellsOf(text("GlycanOptions")))
        nodes.append(nodeOf(cell.value));
    QCOMPARE(nodes.size(), 2);
    for (const RowNode &node : nodes) {
        const GlycanOptions options = GlycanOptions::fromRowNode(node).value();
        GlycanOptionsWidget widget;
        widget.setOptions(options);
        QVERIFY(widget.options() == options);
    }
}

void GlycanWidgetsTest::optionsAreEdited()
{
    GlycanOption hexose;
    hexose.name = text("Hex");
    hexose.formula = ChemicalFormula::parse(text("C6H10O5")).value();
    GlycanOptionsWidget widget;
    widget.setOptions(GlycanOptions({hexose}));
    QCOMPARE(shown(&widget, 0, "monoisotopic"), text("162.0528"));
    show(&widget);
    typeInto(&widget, 0, "Formula", "C5H8O4");
    QCOMPARE(shown(&widget, 0, "monoisotopic"), text("132.0423"));
    click(&widget, 0, "Complete");
    key(Qt::Key_F2);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    const GlycanOption edited = widget.options().options().value(0);
    QCOMPARE(edited.formula.toString(), text("C5H8O4"));
    QCOMPARE(edited.complete, false);
    QVERIFY(!widget.sheet()->setText(0, 2, u"C5H?").hasError());
    QCOMPARE(widget.options().options().value(0).formula.toString(), text("C6H10O5"));
}

void GlycanWidgetsTest::optionsThatCouldNotBeReadAreLeftOut()
{
    GlycanOptionsWidget widget;
    widget.setOptions(GlycanOptions::fromRowNode(DetachedGlycanUtils::defaultOptionsRowNode()).value());
    const int before = widget.sheet()->rowCount();
    widget.sheet()->insertRows(before, 1);
    QCOMPARE(widget.options().options().size(), before);
    QVERIFY(!GlycanOptions::fromRowNode(widget.options().toRowNode()).hasError());
    QTRY_COMPARE(widget.note(), text("Rows without name, or with one that stands twice, aren't saved: 1."));
}

void GlycanWidgetsTest::isotopesComeBackAsTheyWere()
{
    IsotopeTableWidget widget;
    QVERIFY(widget.isotopeList() == IsotopeUtils::defaultRowNode());
    int found = 0;
    for (const Cell &cell : cellsOf(text("Isotope"))) {
        widget.setIsotopeList(nodeOf(cell.value));
        QVERIFY(widget.isotopeList() == nodeOf(cell.value));
        found += widget.sheet()->rowCount();
    }
    QVERIFY(found >= 3);
    QRandomGenerator random(9);
    for (int i = 0; i < 40; ++i) {
        const RowNode table =
            randomTable(random, {text("Name"), text("Element"), text("MassNumber"), text("Enrichment")});
        widget.setIsotopeList(table);
        QVERIFY(widget.isotopeList() == table);
    }
}

void GlycanWidgetsTest::isotopesAreCheckedAgainstNature()
{
    IsotopeTableWidget widget;
    QCOMPARE(shown(&widget, 0, "natural"), text("1.0700"));
    show(&widget);
    typeInto(&widget, 0, "MassNumber", "15");
    QCOMPARE(problem(&widget, 0, "MassNumber"), text("There is no natural isotope \"15\" of \"C\"."));
    typeInto(&widget, 0, "Element", "N");
    QCOMPARE(problem(&widget, 0, "MassNumber"), QString());
    typeInto(&widget, 0, "Enrichment", "101");
    QVERIFY(!at(&widget, 0, "Enrichment").data(TableModel::ProblemRole).toString().isEmpty());
    typeInto(&widget, 0, "Enrichment", "99.5");
    const QList<IsotopeLabel> isotopes = IsotopeUtils::isotopesFromRowNode(widget.isotopeList()).value();
    QCOMPARE(isotopes[0].element, text("N"));
    QCOMPARE(isotopes[0].massNumber, 15);
    QCOMPARE(isotopes[0].enrichmentPercent, 99.5);
}

void GlycanWidgetsTest::glycanControlsAreNamed()
{
    GlycanTableWidget glycans;
    GlycanOptionsWidget options;
    IsotopeTableWidget isotopes;
    for (ScientificTableWidget *const widget :
         {static_cast<ScientificTableWidget *>(&glycans), static_cast<ScientificTableWidget *>(&options),
          static_cast<ScientificTableWidget *>(&isotopes)}) {
        show(widget);
        QCOMPARE(controlsWithoutNames(widget).join(u' '), QString());
    }
    QVERIFY(isotopes.toPlainText().contains(
        text("Name: Natural abundance; Element: C; Mass number: 13; Natural abundance (%): 1.0700")));
}

WIDGET_REGISTER_TEST(GlycanWidgetsTest)

#include "GlycanWidgetsTest.moc"
