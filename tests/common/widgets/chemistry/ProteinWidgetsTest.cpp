#include "ChemistryFixture.h"
#include "WidgetTest.h"

#include <orv/chemistry/SequenceFigures.h>
#include <orv/table_model/TableModel.h>
#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/ExtendedTreeView.h>
#include <orv/widgets/ProteinAnnotationWidget.h>
#include <orv/widgets/ProteinOptionsWidget.h>
#include <orv/widgets/ProteinTableWidget.h>
#include <orv/widgets/ProteinTreeTable.h>

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QComboBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace orv;
using namespace ChemistryFixture;

namespace {

const char *const kTwoProteins = R"({"data":["ProteinAccessionName","ProteinAliasName","ProteinSequence"],
    "children":[{"data":["P1","first","PEPTIDEKGASK"],"children":[]},{"data":["P2","","AXC"],"children":[]}]})";

void paste(QWidget *view, const QString &words)
{
    QGuiApplication::clipboard()->setText(words);
    view->setFocus();
    QTest::keyClick(view, Qt::Key_V, Qt::ControlModifier);
}

} // namespace

class ProteinWidgetsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void figuresOfSequencesAgreeWithTheBook();
    void digestsTellSitesAndCoverage();
    void examplesComeBackAsTheyWere();
    void randomTablesComeBackAsTheyWere();
    void massesFollowTheSequenceWhileItIsEdited();
    void theSequenceStandsInBlocksWithMarks();
    void lettersWithoutMassAreProblemsWhereMassesAreNeeded();
    void peptidesUnfoldInTheTree();
    void averageMassesComeAndGo();
    void oligonucleotidesHaveNoDigest();
    void fastaIsPastedAndFaultsAreToldByLine();
    void fastaIsDroppedAndImported();
    void annotationsComeBackAndAreChecked();
    void annotationsAreMarkedInTheSequence();
    void aListenerMayDestroyTheProteins();
    void everyProteinControlIsNamed();
};

void ProteinWidgetsTest::figuresOfSequencesAgreeWithTheBook()
{
    // C34H53N7O15, 799.36 Da: the usual example of textbooks.
    const SequenceFigures peptide = SequenceFigures::of(text("pep tide"), ChainType::Protein);
    QCOMPARE(peptide.length, 7);
    QCOMPARE(peptide.formula->toString(), text("C34H53N7O15"));
    QVERIFY(std::abs(*peptide.monoisotopicMassDa - 799.3600) < 1e-3);
    QVERIFY(std::abs(*peptide.averageMassDa - 799.83) < 2e-2);
    const SequenceFigures odd = SequenceFigures::of(text("AXCB"), ChainType::Protein);
    QCOMPARE(odd.length, 4);
    QCOMPARE(odd.unknownPlaces, QList<int>({1, 3}));
    QVERIFY(!odd.formula && !odd.problem.isEmpty());
    QCOMPARE(SequenceFigures::of(text("[Te]*[5mCe]*A*Gp"), ChainType::Dna).length, 4);
    QVERIFY(SequenceFigures::of(QString(), ChainType::Protein).problem.isEmpty());
}

void ProteinWidgetsTest::digestsTellSitesAndCoverage()
{
    const ProteinDigestionItem trypsin = ProteinDigestionItem::parse(text("Trypsin @ R,K | C-term")).value();
    DigestionLimits limits;
    limits.minimumLength = 4;
    const DigestFigures figures = DigestFigures::of(text("PEPTIDEKGRASDFGHK"), trypsin, limits);
    QCOMPARE(figures.cleavageSites, 2);
    QCOMPARE(figures.places, QList<int>({7, 9}));
    QCOMPARE(figures.peptides, 2);
    // 8 and 7 of 17 residues; the piece of two is too short to be seen.
    QVERIFY(std::abs(figures.coveragePercent - 100.0 * 15 / 17) < 1e-9);
    QVERIFY(!DigestFigures::of(text("A-C"), trypsin, limits).problem.isEmpty());
}

void ProteinWidgetsTest::examplesComeBackAsTheyWere()
{
    int found = 0;
    for (const Cell &cell : cellsOf(text("Proteins"))) {
        ProteinTableWidget widget;
        widget.addFromRowNode(nodeOf(cell.value));
        QVERIFY(widget.rowNode() == nodeOf(cell.value));
        QVERIFY(widget.proteinTreeTable()->rowNode() == nodeOf(cell.value));
        found += widget.sheet()->rowCount();
    }
    QVERIFY(found >= 2);
}

void ProteinWidgetsTest::randomTablesComeBackAsTheyWere()
{
    QRandomGenerator random(3);
    ProteinTableWidget widget;
    const QAbstractItemModelTester tester(widget.proteinTreeTable(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    for (int i = 0; i < 40; ++i) {
        const RowNode table = randomTable(
            random, {text("ProteinAccessionName"), text("ProteinAliasName"), text("ProteinSequence")});
        widget.addFromRowNode(table);
        QVERIFY(widget.rowNode() == table);
        (void)widget.toPlainText();
    }
}

void ProteinWidgetsTest::massesFollowTheSequenceWhileItIsEdited()
{
    ProteinTableWidget widget;
    QSignalSpy changed(&widget, &ProteinTableWidget::proteinsChanged);
    widget.addFromRowNode(nodeOf(kTwoProteins));
    show(&widget);
    QTRY_COMPARE(changed.size(), 1);
    typeInto(&widget, 0, "ProteinSequence", "peptide");
    QCOMPARE(shown(&widget, 0, "ProteinSequence"), text("PEPTIDE"));
    QCOMPARE(shown(&widget, 0, "monoisotopic"), text("799.3600"));
    QCOMPARE(shown(&widget, 0, "length"), text("7"));
    QCOMPARE(shown(&widget, 0, "formula"), text("C34H53N7O15"));
    QCOMPARE(shown(&widget, 0, "sites"), text("0"));
    QCOMPARE(shown(&widget, 0, "coverage"), text("100.0"));
    QTRY_COMPARE(changed.size(), 2);
    widget.sheet()->history()->undo();
    QCOMPARE(shown(&widget, 0, "sites"), text("1"));
    auto *const rule = widget.findChild<QComboBox *>(text("digestRule"));
    QTest::keyClick(rule, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(rule, text("Mine @ E | C-term"));
    QCOMPARE(shown(&widget, 0, "sites"), text("2"));
}

void ProteinWidgetsTest::theSequenceStandsInBlocksWithMarks()
{
    ProteinTableWidget widget;
    widget.addFromRowNode(nodeOf(R"({"data":["ProteinSequence"],"children":[
        {"data":["ACDEFGHIKLMNPQRSTVWYACDEFGHIKLMNPQRSTVWYACDEFGHIKLMXX"],"children":[]}]})"));
    show(&widget);
    click(&widget, 0, "ProteinAccessionName");
    auto *const sequence = widget.findChild<QPlainTextEdit *>(text("sequence"));
    QCOMPARE(sequence->toPlainText(), text("     1 ACDEFGHIKL MNPQRSTVWY ACDEFGHIKL MNPQRSTVWY ACDEFGHIKL\n"
                                           "    51 MXX"));
    QStringList marked;
    for (const QTextEdit::ExtraSelection &mark : sequence->extraSelections())
        marked.append(mark.cursor.selectedText());
    // Tryptic sites, then the two letters that have no mass.
    QCOMPARE(marked,
             QStringList({text("K"), text("R"), text("K"), text("R"), text("K"), text("X"), text("X")}));
    QVERIFY(widget.findChild<QLabel *>(text("figures"))->text().contains(text("letters without mass: 2")));
}

void ProteinWidgetsTest::lettersWithoutMassAreProblemsWhereMassesAreNeeded()
{
    ProteinTableWidget widget;
    widget.addFromRowNode(nodeOf(kTwoProteins));
    const auto problem = [&] {
        return at(&widget, 1, "ProteinSequence").data(TableModel::ProblemRole).toString();
    };
    QCOMPARE(problem(), QString());
    widget.setFastaCheckerRule(true);
    QCOMPARE(problem(), text("Position 2 holds \"X\", which stands for no single amino acid."));
    widget.setFastaCheckerRule(false);
    QCOMPARE(problem(), QString());
}

void ProteinWidgetsTest::peptidesUnfoldInTheTree()
{
    ProteinTableWidget widget;
    widget.addFromRowNode(nodeOf(kTwoProteins));
    ProteinTreeTable *const tree = widget.proteinTreeTable();
    const QAbstractItemModelTester tester(tree, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(tree->rowCount(), 2);
    const QModelIndex protein = tree->index(0, 0);
    QCOMPARE(protein.data().toString(), text("P1"));
    widget.getExtendedTreeView()->expand(protein);
    QCOMPARE(tree->rowCount(protein), 2);
    QCOMPARE(tree->index(1, 0, protein).data().toString(), text("GASK"));
    QCOMPARE(tree->index(1, 1, protein).data().toString(), text("9\u201312"));
    QVERIFY(!widget.sheet()->setText(0, 2, u"PEPTIDEK").hasError());
    QCOMPARE(tree->rowCount(protein), 1);
    widget.getExtendedTreeView()->refreshDelegates();
    QVERIFY(widget.getExtendedTreeView()->toPlainText().contains(text("PEPTIDEK\t1\u20138\t8\t0\t927.4549")));
}

void ProteinWidgetsTest::averageMassesComeAndGo()
{
    ProteinTableWidget widget;
    const int average = widget.sheet()->columnOf(text("average"));
    QVERIFY(widget.view()->isColumnHidden(average));
    widget.setAverageMassVisible(true);
    widget.proteinTreeTable()->setShowAverageMass(true);
    widget.adjustHeaderSize();
    widget.updateColumnsVisibility();
    QVERIFY(!widget.view()->isColumnHidden(average));
    QCOMPARE(widget.proteinTreeTable()->columnCount(), 6);
    widget.setAverageMassVisible(false);
    widget.proteinTreeTable()->setShowAverageMass(false);
    QVERIFY(widget.view()->isColumnHidden(average));
    QCOMPARE(widget.proteinTreeTable()->columnCount(), 5);
}

void ProteinWidgetsTest::oligonucleotidesHaveNoDigest()
{
    ProteinTableWidget widget;
    widget.addFromRowNode(
        nodeOf(R"({"data":["ProteinSequence"],"children":[{"data":["GCAU"],"children":[]}]})"));
    widget.setAsDigestedOligoProject(true);
    QVERIFY(widget.view()->isColumnHidden(widget.sheet()->columnOf(text("sites"))));
    QCOMPARE(shown(&widget, 0, "length"), text("4"));
    QVERIFY(!shown(&widget, 0, "monoisotopic").isEmpty());
    widget.setAsDigestedOligoProject(false);
    QVERIFY(!widget.view()->isColumnHidden(widget.sheet()->columnOf(text("sites"))));
    // U is selenocysteine there.
    QCOMPARE(shown(&widget, 0, "coverage"), text("100.0"));
}

void ProteinWidgetsTest::fastaIsPastedAndFaultsAreToldByLine()
{
    ProteinTableWidget widget;
    show(&widget);
    paste(widget.view(), text(">sp|P1 heavy chain\npeptide\nk\n>P2\nACD*\n"));
    QCOMPARE(widget.sheet()->rowCount(), 2);
    QCOMPARE(widget.sheet()->texts(0).mid(0, 3),
             QStringList({text("sp|P1"), text("heavy chain"), text("PEPTIDEK")}));
    QCOMPARE(shown(&widget, 1, "ProteinSequence"), text("ACD"));
    paste(widget.view(), text(">P3\nAC\nD1E\n"));
    QCOMPARE(widget.sheet()->rowCount(), 2);
    const QString said = widget.findChild<QLabel *>(text("message"))->text();
    QVERIFY2(said.contains(text("line 3"), Qt::CaseInsensitive), qPrintable(said));
    widget.sheet()->history()->undo();
    QCOMPARE(widget.sheet()->rowCount(), 0);
}

void ProteinWidgetsTest::fastaIsDroppedAndImported()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(text("two.fasta")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(">P1\nPEPTIDEK\n>P2\nACD\n");
    file.close();
    ProteinTableWidget widget;
    show(&widget);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file.fileName())});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget.view()->viewport(), &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget.view()->viewport(), &drop);
    QCOMPARE(widget.sheet()->rowCount(), 2);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Append));
    file.write(">P3\nAC(D\n");
    file.close();
    ScriptedAnswerer answers;
    answers.expectBox(text("Import"), text("OK"));
    widget.editor()->importFile(file.fileName());
    QVERIFY(answers.isDone());
    QVERIFY2(answers.transcript()[0].details.contains(text("6")),
             qPrintable(answers.transcript()[0].details));
    QCOMPARE(widget.sheet()->rowCount(), 2);
}

void ProteinWidgetsTest::annotationsComeBackAndAreChecked()
{
    ProteinAnnotationEntry entry;
    entry.protein = text("P1");
    entry.name = text("CDR-H1");
    entry.begin = 2;
    entry.end = 4;
    entry.colour = text("no colour");
    entry.unknownMembers.insert(text("later"), 1);
    ProteinAnnotationEntry other = entry;
    other.protein = text("P9");
    ProteinAnnotationWidget widget;
    widget.addAnnotations({entry, other});
    QCOMPARE(widget.allAnnotations(), QList<ProteinAnnotationEntry>({entry, other}));
    widget.setSequences({{text("P1"), text("PEPTIDE")}});
    QCOMPARE(shown(&widget, 0, "residues"), text("EPT"));
    QCOMPARE(at(&widget, 1, "protein").data(TableModel::ProblemRole).toString(),
             text("There is no protein \"P9\"."));
    show(&widget);
    typeInto(&widget, 0, "end", "99");
    QCOMPARE(shown(&widget, 0, "residues"), text("(the protein ends at 7)"));
    entry.end = 99;
    QCOMPARE(widget.allAnnotations(), QList<ProteinAnnotationEntry>({entry, other}));
    typeInto(&widget, 0, "begin", "100");
    QVERIFY(!at(&widget, 0, "begin").data(TableModel::ProblemRole).toString().isEmpty());
}

void ProteinWidgetsTest::annotationsAreMarkedInTheSequence()
{
    ProteinOptionsWidget widget;
    widget.proteinTableWidget()->addFromRowNode(nodeOf(kTwoProteins));
    ProteinAnnotationEntry entry;
    entry.protein = text("P1");
    entry.begin = 2;
    entry.end = 4;
    widget.proteinAnnotationWidget()->addAnnotations({entry});
    show(&widget);
    click(widget.proteinTableWidget(), 0, "ProteinAccessionName");
    auto *const sequence = widget.findChild<QPlainTextEdit *>(text("sequence"));
    QTRY_VERIFY(!sequence->extraSelections().isEmpty());
    QTRY_COMPARE(sequence->extraSelections()[0].cursor.selectedText(), text("EPT"));
    widget.setProteinAnnotationWidgetVisible(false);
    QVERIFY(!widget.proteinAnnotationWidget()->isVisible());
    QCOMPARE(widget.proteinAnnotationWidget()->allAnnotations().size(), 1);
}

void ProteinWidgetsTest::aListenerMayDestroyTheProteins()
{
    QPointer<ProteinOptionsWidget> widget = new ProteinOptionsWidget;
    widget->proteinTableWidget()->addFromRowNode(nodeOf(kTwoProteins));
    show(widget);
    connect(widget->proteinTableWidget(), &ProteinTableWidget::proteinsChanged, qApp,
            [widget] { delete widget.data(); });
    typeInto(widget->proteinTableWidget(), 0, "ProteinSequence", "AC");
    QTRY_VERIFY(widget.isNull());
}

void ProteinWidgetsTest::everyProteinControlIsNamed()
{
    ProteinOptionsWidget widget;
    widget.proteinTableWidget()->addFromRowNode(nodeOf(kTwoProteins));
    show(&widget);
    QCOMPARE(controlsWithoutNames(&widget).join(u' '), QString());
    QVERIFY(widget.toPlainText().contains(
        text("Row 1. Accession: P1; Name: first; Sequence: PEPTIDEKGASK; Length: 12")));
}

WIDGET_REGISTER_TEST(ProteinWidgetsTest)

#include "ProteinWidgetsTest.moc"
