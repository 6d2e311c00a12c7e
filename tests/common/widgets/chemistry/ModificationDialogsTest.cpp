#include "ChemistryFixture.h"
#include "WidgetTest.h"

#include <orv/chemistry/CommonModifications.h>
#include <orv/chemistry/GlycanText.h>
#include <orv/chemistry/ModificationText.h>
#include <orv/table_model/TableModel.h>
#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/GlycansDialog.h>
#include <orv/widgets/InsilicoTableDialog.h>
#include <orv/widgets/ModificationsDialog.h>

#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QToolTip>

using namespace orv;
using namespace ChemistryFixture;

namespace {

const char *const kModificationLines = "% of the program\n"
                                       "Carbamidomethyl / +57.021464 @ C | fixed\n"
                                       "  Oxidation/15.994915@M|common1 \n"
                                       "enable_rps = 1\n"
                                       "% Custom modification text below\n";

ScientificTableWidget *tableOf(QDialog &dialog, const char *name)
{
    return dialog.findChild<ScientificTableWidget *>(text(name));
}

QPlainTextEdit *editOf(QDialog &dialog)
{
    return dialog.findChild<QPlainTextEdit *>(text("text"));
}

QList<QStringList> peptidesOf(QDialog &dialog)
{
    QList<QStringList> rows;
    for (const QStringList &row : tableOf(dialog, "peptides")->sheet()->allTexts())
        rows.append(row.mid(0, 5));
    return rows;
}

} // namespace

class ModificationDialogsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void linesOfModificationsAreRead();
    void linesThatAreNoneSayWhy_data();
    void linesThatAreNoneSayWhy();
    void commonModificationsAgreeWithUnimod();
    void textsComeBackAsTheyWere();
    void tableAndTextFollowEachOther();
    void commonModificationsAreFoundAndAdded();
    void modificationsAreAskedOfThePerson();
    void linesOfGlycansAreReplaced();
    void glycansFollowTheirText();
    void glycansAreAskedOfThePerson();
    void peptidesAreDigestedLive();
    void aCutDigestShowsThatItGoesOn();
    void editedPeptidesStay();
    void setPeptidesComeBackAsTheyWere();
    void controlsOfDialogsAreNamed();
};

void ModificationDialogsTest::linesOfModificationsAreRead()
{
    const QList<ModificationText::Line> lines = ModificationText::lines(text(kModificationLines));
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines[0].modification, (Modification{text("Carbamidomethyl"), text("+57.021464"), text("C"),
                                                  Modification::Use::Fixed, 0}));
    QCOMPARE(lines[1].number, 3);
    QCOMPARE(lines[1].modification.toString(), text("Oxidation / 15.994915 @ M | common1"));
    QCOMPARE(Modification::fromString(text("Label:13C(6) / C-6_13C6 @ K,R | rare2")).value().limit, 2);
    QVERIFY(std::abs(*Modification::fromString(text("a/b / H2O @ NTerm,S | rare1")).value().massDa() -
                     18.0106) < 1e-4);
}

void ModificationDialogsTest::linesThatAreNoneSayWhy_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no signs") << text("Oxidation") << text("not as \"Oxidation\"");
    QTest::newRow("no name") << text(" / 1 @ M | fixed") << text("It has no name.");
    QTest::newRow("no mass") << text("a / heavy @ M | fixed") << text("\"heavy\" is neither");
    QTest::newRow("no residue") << text("a / 1 @ M,m | fixed") << text("\"m\" is no residue");
    QTest::newRow("no use") << text("a / 1 @ M | often") << text("stands \"often\"");
    QTest::newRow("counted fixed") << text("a / 1 @ M | fixed2") << text("stands \"fixed2\"");
    QTest::newRow("comment") << text("%a / 1 @ M | fixed") << text("makes it a comment");
    QTest::newRow("none") << text("a / 1 @ M | common0") << text("stands \"common0\"");
}

void ModificationDialogsTest::linesThatAreNoneSayWhy()
{
    QFETCH(QString, line);
    QFETCH(QString, reason);
    const auto read = Modification::fromString(line);
    QVERIFY(read.hasError());
    QVERIFY2(read.error().details().join(u' ').contains(reason),
             qPrintable(read.error().details().join(u' ')));
}

void ModificationDialogsTest::commonModificationsAgreeWithUnimod()
{
    // Masses as unimod.org tells them.
    const QList<std::pair<const char *, double>> expected = {{"Acetyl", 42.010565},
                                                             {"Carbamidomethyl", 57.021464},
                                                             {"Oxidation", 15.994915},
                                                             {"Phospho", 79.966331},
                                                             {"Deamidated", 0.984016}};
    const QList<CommonModification> &all = CommonModifications::all();
    QVERIFY2(all.size() > 100, qPrintable(QString::number(all.size())));
    for (const auto &[name, massDa] : expected) {
        const auto found =
            std::find_if(all.cbegin(), all.cend(),
                         [&, key = text(name)](const CommonModification &one) { return one.name == key; });
        QVERIFY2(found != all.cend(), name);
        QVERIFY2(std::abs(found->formula.monoisotopicMass() - massDa) < 1e-5, name);
    }
}

void ModificationDialogsTest::textsComeBackAsTheyWere()
{
    QRandomGenerator random(4);
    ModificationsDialog modifications;
    GlycansDialog glycans;
    QStringList texts = {QString(), text(kModificationLines), text("\n\n"), text("a\r\nb"),
                         text("[x\n] @ | / =")};
    for (int i = 0; i < 30; ++i) {
        QString one;
        for (int c = random.bounded(60); c > 0; --c)
            one += QStringLiteral("%[]/@| =\nAC1(")[random.bounded(13)];
        texts.append(one);
    }
    for (const QString &one : texts) {
        modifications.setText(one);
        QCOMPARE(modifications.text(), one);
        glycans.setText(one);
        QCOMPARE(glycans.text(), one);
        QCOMPARE(GlycanText::withDatabases(one, GlycanText::databases(one)), one);
        QCOMPARE(GlycanText::withCompositions(one, GlycanText::compositions(one)), one);
    }
}

void ModificationDialogsTest::tableAndTextFollowEachOther()
{
    ModificationsDialog dialog;
    dialog.setText(text(kModificationLines));
    show(&dialog);
    ScientificTableWidget *const table = tableOf(dialog, "modifications");
    typeInto(table, 0, "residues", "C,K");
    QCOMPARE(dialog.text(), text("% of the program\n"
                                 "Carbamidomethyl / +57.021464 @ C,K | fixed\n"
                                 "  Oxidation/15.994915@M|common1 \n"
                                 "enable_rps = 1\n"
                                 "% Custom modification text below\n"));
    QCOMPARE(editOf(dialog)->toPlainText(), dialog.text());
    table->sheet()->insertRows(2, 1);
    QCOMPARE(dialog.text().count(u'\n'), 5);
    typeInto(table, 2, "name", "Water");
    typeInto(table, 2, "mass", "H2O");
    QCOMPARE(shown(table, 2, "monoisotopic"), text("18.0106"));
    QVERIFY(!problem(table, 2, "residues").isEmpty());
    typeInto(table, 2, "residues", "S,m");
    QVERIFY(problem(table, 2, "residues").contains(text("\"m\" is no residue")));
    typeInto(table, 2, "residues", "S");
    QCOMPARE(problem(table, 2, "residues"), QString());
    typeInto(table, 2, "name", "%Water");
    QVERIFY(problem(table, 2, "name").contains(text("makes it a comment")));
    QVERIFY(dialog.text().contains(text("\nWater / H2O @ S | common1\n")));
    typeInto(table, 2, "name", "Water");
    QVERIFY(dialog.text().contains(text("common1 \nWater / H2O @ S | common1\nenable_rps")));
    dialog.findChild<QTabWidget *>()->setCurrentIndex(1);
    editOf(dialog)->setFocus();
    QTest::keyClick(editOf(dialog), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(editOf(dialog), text("Odd / x @ M | fixed"));
    QCOMPARE(table->sheet()->rowCount(), 4);
    QCOMPARE(dialog.findChild<QLabel *>(text("problem"))->text(),
             text("Line 7: \"x\" is neither a mass in Da nor a formula."));
}

void ModificationDialogsTest::commonModificationsAreFoundAndAdded()
{
    ModificationsDialog dialog;
    dialog.setText(text("% Custom modification text below\n"));
    show(&dialog);
    ScientificTableWidget *const common = tableOf(dialog, "common");
    common->findChild<QLineEdit *>(text("filter"))->setFocus();
    type("carbamidomethyl C2H3");
    QVERIFY(common->model()->rowCount() >= 1);
    click(common, 0, "name");
    QCOMPARE(shown(common, 0, "name"), text("Carbamidomethyl"));
    QTest::mouseClick(dialog.findChild<QPushButton *>(text("addCommon")), Qt::LeftButton);
    QVERIFY2(dialog.text().startsWith(text("Carbamidomethyl / +57.021464 @ C")), qPrintable(dialog.text()));
    QVERIFY(dialog.text().endsWith(text(" | common1\n% Custom modification text below\n")));
}

void ModificationDialogsTest::modificationsAreAskedOfThePerson()
{
    ScriptedAnswerer answers;
    answers.expectDialog(text("Modifications"), [](QDialog &dialog) {
        editOf(dialog)->setPlainText(text("a / 1 @ M | fixed\n"));
        return true;
    });
    bool ok = false;
    QCOMPARE(ModificationsDialog::getModificationsFromUser(text("x"), nullptr, &ok),
             text("a / 1 @ M | fixed\n"));
    QVERIFY(ok);
    answers.expectDialog(text("Modifications"), [](QDialog &dialog) {
        editOf(dialog)->setPlainText(text("lost"));
        return false;
    });
    QCOMPARE(ModificationsDialog::getModificationsFromUser(text("x"), nullptr, &ok), text("x"));
    QVERIFY(!ok && answers.isDone());
}

void ModificationDialogsTest::linesOfGlycansAreReplaced()
{
    const QString before =
        text("% Glycan databases\n[a.txt]\n% Custom glycan text below\nHex(5) @ NGlycan | rare1\n");
    QCOMPARE(GlycanText::databases(before), QStringList({text("a.txt")}));
    QCOMPARE(GlycanText::compositions(before), QStringList({text("Hex(5) @ NGlycan | rare1")}));
    QCOMPARE(
        GlycanText::withDatabases(before, {text("a.txt"), text("b.txt")}),
        text("% Glycan databases\n[a.txt]\n[b.txt]\n% Custom glycan text below\nHex(5) @ NGlycan | rare1\n"));
    QCOMPARE(GlycanText::withCompositions(before, {}),
             text("% Glycan databases\n[a.txt]\n% Custom glycan text below\n"));
    QCOMPARE(GlycanText::withCompositions(text("% Custom glycan text below\n"), {text("Hex(1)")}),
             text("% Custom glycan text below\nHex(1)\n"));
    QCOMPARE(GlycanText::withDatabases(text("% Custom glycan text below\n"), {text("a")}),
             text("[a]\n% Custom glycan text below\n"));
}

void ModificationDialogsTest::glycansFollowTheirText()
{
    GlycansDialog dialog;
    dialog.setText(text("% Glycan databases\n[data/n_glycans.txt]\n% Custom glycan text "
                        "below\nHexNAc(4)Hex(3)Fuc(1) @ NGlycan | rare1\n"));
    show(&dialog);
    ScientificTableWidget *const compositions = tableOf(dialog, "compositions");
    QCOMPARE(shown(compositions, 0, "mass"), text("1462.5444"));
    QCOMPARE(shown(tableOf(dialog, "databases"), 0, "path"), text("data/n_glycans.txt"));
    typeInto(compositions, 0, "composition", "Hex(5)");
    typeInto(tableOf(dialog, "databases"), 0, "path", "mine.txt");
    QCOMPARE(dialog.text(),
             text("% Glycan databases\n[mine.txt]\n% Custom glycan text below\nHex(5) @ NGlycan | rare1\n"));
    dialog.findChild<QTabWidget *>()->setCurrentIndex(1);
    editOf(dialog)->setFocus();
    QTest::keyClick(editOf(dialog), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(editOf(dialog), text("Hex("));
    QCOMPARE(compositions->sheet()->rowCount(), 2);
    QVERIFY(dialog.findChild<QLabel *>(text("problem"))->text().startsWith(text("\"Hex(\":")));
}

void ModificationDialogsTest::glycansAreAskedOfThePerson()
{
    ScriptedAnswerer answers;
    answers.expectDialog(text("Glycans"), [](QDialog &dialog) {
        editOf(dialog)->setPlainText(text("Hex(1)"));
        return true;
    });
    bool ok = false;
    QCOMPARE(GlycansDialog::getGlycansFromUser(text("[a]"), nullptr, &ok), text("Hex(1)"));
    QVERIFY(ok);
    answers.expectDialog(text("Glycans"), [](QDialog &) { return false; });
    QCOMPARE(GlycansDialog::getGlycansFromUser(text("[a]"), nullptr, nullptr), text("[a]"));
}

void ModificationDialogsTest::peptidesAreDigestedLive()
{
    InsilicoTableDialog dialog(
        nodeOf(R"({"data":["ProteinAccessionName","ProteinSequence"],"children":[
            {"data":["HC","PEPTCDEKGASCR"],"children":[]},{"data":["LC","AAAK"],"children":[]}]})"),
        nodeOf(R"({"data":["FirstChain","FirstPosition","SecondChain","SecondPosition"],"children":[
            {"data":["HC",5,"HC",12],"children":[]}]})"));
    show(&dialog);
    auto *const proteins = dialog.findChild<QListView *>(text("proteins"));
    proteins->setFocus();
    proteins->setCurrentIndex(proteins->model()->index(0, 0));
    QTest::keyClick(proteins, Qt::Key_Space);
    const QStringList first = {text("PEPTCDEK"), text("HC"), text("1"), QString(), text("C5-C12")};
    const QStringList second = {text("GASCR"), text("HC"), text("9"), QString(), text("C5-C12")};
    QCOMPARE(peptidesOf(dialog), QList<QStringList>({first, second}));
    QCOMPARE(shown(tableOf(dialog, "peptides"), 1, "length"), text("5"));
    QTest::mouseClick(dialog.findChild<QPushButton *>(text("allProteins")), Qt::LeftButton);
    QCOMPARE(peptidesOf(dialog).size(), 3);
    auto *const shortest = dialog.findChild<QLineEdit *>(text("shortestPeptide"));
    QTest::keyClick(shortest, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(shortest, text("6"));
    QCOMPARE(peptidesOf(dialog), QList<QStringList>({first}));
    auto *const rule = dialog.findChild<QComboBox *>(text("digestRule"));
    QTest::keyClick(rule, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(rule, text("no rule"));
    QCOMPARE(peptidesOf(dialog), QList<QStringList>({first}));
    QVERIFY(!dialog.findChild<QLabel *>(text("digestProblem"))->text().isEmpty());
}

void ModificationDialogsTest::aCutDigestShowsThatItGoesOn()
{
    InsilicoTableDialog dialog{RowNode(), RowNode()};
    QVERIFY(dialog.width() <= dialog.screen()->availableSize().width());
    show(&dialog);
    auto *const rule = dialog.findChild<QComboBox *>(text("digestRule"));
    const QString cut = text("Chymotrypsin with a long name @ F,L,W,Y | C-term");
    const auto tipAt = [rule] {
        QToolTip::hideText();
        QHelpEvent asked(QEvent::ToolTip, {5, 5}, rule->lineEdit()->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(rule->lineEdit(), &asked);
        return QToolTip::text();
    };
    rule->setEditText(cut);
    rule->lineEdit()->clearFocus();
    dialog.resize(640, 600);
    QTRY_COMPARE(dialog.width(), 640);
    QVERIFY(rule->lineEdit()->width() < rule->fontMetrics().horizontalAdvance(cut));
    QVERIFY(tipAt().contains(cut.toHtmlEscaped()));
    const QImage elided = rule->lineEdit()->grab().toImage();
    rule->setEditText(text("Chymotrypsin with a long name @ F,L,W,Y | N-term"));
    QCOMPARE(rule->lineEdit()->grab().toImage(), elided);
    rule->setEditText(text("K @ K | C"));
    QVERIFY(!tipAt().contains(text("K @ K")));
}

void ModificationDialogsTest::editedPeptidesStay()
{
    InsilicoTableDialog dialog(nodeOf(R"({"data":["ProteinAccessionName","ProteinSequence"],"children":[
            {"data":["HC","PEPTIDEKGASR"],"children":[]}]})"),
                               RowNode());
    dialog.setInsilicoPeptides(
        nodeOf(R"({"data":["Sequence","Note"],"children":[{"data":["MINE","x"],"children":[]}]})"));
    show(&dialog);
    QTest::mouseClick(dialog.findChild<QPushButton *>(text("allProteins")), Qt::LeftButton);
    QCOMPARE(peptidesOf(dialog).size(), 3);
    typeInto(tableOf(dialog, "peptides"), 1, "Charge", "2");
    auto *const shortest = dialog.findChild<QLineEdit *>(text("shortestPeptide"));
    QTest::keyClick(shortest, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(shortest, text("9"));
    QCOMPARE(objectOf(dialog.insilicoPeptides())[text("children")][0],
             objectOf(nodeOf(R"({"data":["MINE","x"],"children":[]})")));
    QCOMPARE(peptidesOf(dialog).size(), 2);
    QCOMPARE(peptidesOf(dialog)[1][0], text("PEPTIDEK"));
}

void ModificationDialogsTest::setPeptidesComeBackAsTheyWere()
{
    QRandomGenerator random(6);
    for (int i = 0; i < 20; ++i) {
        const RowNode peptides =
            randomTable(random, {text("Sequence"), text("Protein"), text("Charge"), text("Mass")});
        InsilicoTableDialog dialog(randomTable(random, {text("ProteinSequence")}),
                                   randomTable(random, {text("FirstChain")}));
        dialog.setInsilicoPeptides(peptides);
        QVERIFY(dialog.insilicoPeptides() == peptides);
        (void)dialog.toPlainText();
    }
}

void ModificationDialogsTest::controlsOfDialogsAreNamed()
{
    ModificationsDialog modifications;
    GlycansDialog glycans;
    InsilicoTableDialog peptides{RowNode(), RowNode()};
    for (QDialog *const dialog : {static_cast<QDialog *>(&modifications), static_cast<QDialog *>(&glycans),
                                  static_cast<QDialog *>(&peptides)}) {
        show(dialog);
        QCOMPARE(controlsWithoutNames(dialog).join(u' '), QString());
    }
    modifications.setText(text("Oxidation / +15.994915 @ M | common1"));
    QVERIFY(modifications.toPlainText().contains(
        text("Name: Oxidation; Mass (Da) or formula: +15.994915; Residues: M; Kind: common; At most: 1")));
}

WIDGET_REGISTER_TEST(ModificationDialogsTest)

#include "ModificationDialogsTest.moc"
