#include "ChemistryFixture.h"
#include "WidgetTest.h"

#include <orv/chemistry/ProteinUtils.h>
#include <orv/table_model/TableModel.h>
#include <orv/widgets/ProteinInputWidgetBase.h>

#include <QComboBox>
#include <QSignalSpy>
#include <QTabWidget>

using namespace orv;
using namespace ChemistryFixture;

namespace {

const char *const kComplex = R"({"data":["Chains","Proteins","BuildingBlocks","Later"],"children":[
  {"data":["Number","ChainId","Name","Sequence","Type","MonoisotopicMass","AverageMass","isCustom","New"],"children":[
    {"data":[1,"HC","Heavy","PEPTIDEC","Protein",1.5,2.5,1,"x"],"children":[]},
    {"data":[2,"LC","Light","CGGC","",null,null,0],"children":[]}]},
  {"data":["Name","ChainNumbers","Disulfides","SamplesIds"],"children":[
    {"data":["mAb",[1,2,2],2,[7]],"children":[]}]},
  {"data":["Symbol","Name","Type","Formula"],"children":[]},
  {"data":["what"],"children":[{"data":["ever"],"children":[]}]}]})";

} // namespace

class ProteinInputTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void examplesComeBackAsTheyWere();
    void hostileNodesComeBackAsTheyWere();
    void chainsAreEditedAndProteinsFollow();
    void onlyEditedChainsGetNewMasses();
    void buildingBlocksCountAtOnce();
    void sourcesComeAndGo();
    void plainTablesFromCsvBecomeChains();
    void samplesAndChainsAreChecked();
    void everyInputIsNamed();
};

void ProteinInputTest::examplesComeBackAsTheyWere()
{
    int found = 0;
    for (const Cell &cell : cellsOf(text("IntactProteins")) + cellsOf(text("OligoMolecules"))) {
        ProteinInputWidgetBase widget;
        const RowNode root = nodeOf(cell.value);
        widget.setProteinDataSource(ProteinInputWidgetBase::proteinDataSource(root));
        widget.addFromRowNode(root);
        QVERIFY(widget.getOptionsFromUI() == root);
        found += widget.chains()->sheet()->rowCount();
    }
    QVERIFY(found >= 3);
    QVERIFY(ProteinInputWidgetBase().getOptionsFromUI() == ProteinUtils::defaultInputRowNode());
    QVERIFY(ProteinInputWidgetBase::defaultRowNode() == ProteinUtils::defaultInputRowNode());
}

void ProteinInputTest::hostileNodesComeBackAsTheyWere()
{
    QRandomGenerator random(11);
    ProteinInputWidgetBase widget;
    for (int i = 0; i < 40; ++i) {
        RowNode root;
        for (const char *const name : {"Chains", "Proteins", "BuildingBlocks", "DataSource"}) {
            if (random.bounded(5) != 0)
                root.data.append(text(name));
        }
        for (int child = random.bounded(6); child > 0; --child)
            *root.addNewChild(VariantItems()) = randomTable(
                random, {text("Number"), text("Name"), text("Sequence"), text("ChainNumbers"), text("Type")});
        widget.addFromRowNode(root);
        QVERIFY(widget.getOptionsFromUI() == root);
        QStringList warnings;
        QStringList errors;
        (void)widget.validate(&warnings, &errors);
        (void)widget.toPlainText();
    }
}

void ProteinInputTest::chainsAreEditedAndProteinsFollow()
{
    ProteinInputWidgetBase widget;
    widget.addFromRowNode(nodeOf(kComplex));
    show(&widget);
    QSignalSpy edited(&widget, &ProteinInputWidgetBase::edited);
    QCOMPARE(shown(widget.proteins(), 0, "chains"), text("Heavy + Light + Light"));
    QCOMPARE(shown(widget.proteins(), 0, "length"), text("16"));
    // PEPTIDEC 902.3692, twice CGGC 338.0719, less four hydrogens of 1.007825.
    QCOMPARE(shown(widget.proteins(), 0, "monoisotopic"), text("1574.4816"));
    typeInto(widget.chains(), 1, "Sequence", "CC");
    QCOMPARE(shown(widget.proteins(), 0, "length"), text("12"));
    QTRY_VERIFY(!edited.isEmpty());
    const QJsonObject object = objectOf(widget.getOptionsFromUI());
    QCOMPARE(object[text("children")][0][text("children")][1][text("data")][3].toString(), text("CC"));
    QCOMPARE(object[text("children")][3], objectOf(nodeOf(kComplex))[text("children")][3]);
}

void ProteinInputTest::onlyEditedChainsGetNewMasses()
{
    ProteinInputWidgetBase widget;
    widget.addFromRowNode(nodeOf(kComplex));
    TableSheet *const chains = widget.chains()->sheet();
    const auto mass = [&] {
        return objectOf(widget.getOptionsFromUI())[text("children")][0][text("children")][0][text("data")][5];
    };
    QVERIFY(!chains->setText(1, chains->columnOf(text("Name")), u"light").hasError());
    QCOMPARE(mass().toDouble(), 1.5);
    QVERIFY(!chains->setText(0, chains->columnOf(text("Sequence")), u"PEPTIDE").hasError());
    QVERIFY(std::abs(mass().toDouble() - 799.36) < 1e-2);
}

void ProteinInputTest::buildingBlocksCountAtOnce()
{
    ProteinInputWidgetBase widget;
    widget.addFromRowNode(nodeOf(R"({"data":["Chains"],"children":[{"data":["Sequence","Type"],"children":[
        {"data":["A[Zr]","RNA"],"children":[]}]}]})"));
    QVERIFY(!problem(widget.chains(), 0, "Sequence").isEmpty());
    TableSheet *const blocks = widget.buildingBlocks()->sheet();
    QVERIFY(!blocks->insertRows(0, {{text("Z"), text("new base"), text("Base"), text("C5H4N5")}}, text("add"))
                 .hasError());
    QCOMPARE(problem(widget.chains(), 0, "Sequence"), QString());
    QVERIFY(!shown(widget.chains(), 0, "monoisotopic").isEmpty());
}

void ProteinInputTest::sourcesComeAndGo()
{
    ProteinInputWidgetBase widget;
    widget.addFromRowNode(nodeOf(kComplex));
    QCOMPARE(ProteinInputWidgetBase::proteinDataSource(nodeOf(kComplex)), 0);
    auto *const box = widget.findChild<QComboBox *>(text("proteinDataSource"));
    show(&widget);
    QTest::keyClick(box, Qt::Key_Down);
    const RowNode edited = widget.getOptionsFromUI();
    QCOMPARE(ProteinInputWidgetBase::proteinDataSource(edited), 1);
    ProteinInputWidgetBase other;
    other.setProteinDataSource(ProteinInputWidgetBase::proteinDataSource(edited));
    other.addFromRowNode(edited);
    QVERIFY(other.getOptionsFromUI() == edited);
    QTest::keyClick(box, Qt::Key_Up);
    QVERIFY(widget.getOptionsFromUI() == nodeOf(kComplex));
}

void ProteinInputTest::plainTablesFromCsvBecomeChains()
{
    ProteinInputWidgetBase widget;
    widget.setProteinDataSource(ProteinInputWidgetBase::Csv);
    widget.loadFromCsv(
        nodeOf(R"({"data":["Name","Sequence"],"children":[{"data":["LC","CGGC"],"children":[]}]})"));
    QCOMPARE(widget.proteinDataSource(), 1);
    QCOMPARE(shown(widget.chains(), 0, "Sequence"), text("CGGC"));
    QCOMPARE(shown(widget.proteins(), 0, "chains"), text("LC"));
    const RowNode root = widget.getOptionsFromUI();
    QVERIFY(root.data.contains(text("Chains")));
    QCOMPARE(ProteinInputWidgetBase::proteinDataSource(root), 1);
}

void ProteinInputTest::samplesAndChainsAreChecked()
{
    ProteinInputWidgetBase widget;
    widget.addFromRowNode(nodeOf(kComplex));
    QStringList warnings;
    QStringList errors;
    QVERIFY2(widget.validate(&warnings, &errors), qPrintable(errors.join(u' ')));
    SamplesInput::Entry entry;
    entry.id = 1;
    widget.updateSamplesIds({entry});
    QVERIFY(!widget.validate(&warnings, &errors));
    QCOMPARE(errors, QStringList({text("The protein \"mAb\" is for the samples 7, which don't exist.")}));
    TableSheet *const proteins = widget.proteins()->sheet();
    QVERIFY(!proteins->setText(0, proteins->columnOf(text("ChainNumbers")), u"1, 5").hasError());
    QCOMPARE(at(widget.proteins(), 0, "ChainNumbers").data(TableModel::ProblemRole).toString(),
             text("There is no chain 5."));
    QVERIFY(!widget.validate(nullptr, nullptr));
}

void ProteinInputTest::everyInputIsNamed()
{
    ProteinInputWidgetBase widget;
    widget.addFromRowNode(nodeOf(kComplex));
    show(&widget);
    QCOMPARE(controlsWithoutNames(&widget).join(u' '), QString());
    QVERIFY(widget.toPlainText().contains(text("Name: mAb; Chain numbers: 1, 2, 2; Disulfide bonds: 2")));
}

WIDGET_REGISTER_TEST(ProteinInputTest)

#include "ProteinInputTest.moc"
