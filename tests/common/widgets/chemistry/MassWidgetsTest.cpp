#include "ChemistryFixture.h"
#include "WidgetTest.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/chemistry/MassUtils.h>
#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/OligoMassTableWidget.h>
#include <orv/widgets/TolerancesWidget.h>

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QListView>
#include <QSignalSpy>

using namespace orv;
using namespace ChemistryFixture;

namespace {

QList<SamplesInput::Entry> twoSamples()
{
    SamplesInput::Entry first;
    first.id = 1;
    first.name = text("Lot 0423");
    SamplesInput::Entry second;
    second.id = 2;
    second.name = text("Lot 0424");
    return {first, second};
}

DeltaMass massOf(const char *name, double massDa)
{
    DeltaMass mass;
    mass.name = text(name);
    mass.massDa = massDa;
    return mass;
}

QLineEdit *line(QWidget *widget, const char *name)
{
    return widget->findChild<QLineEdit *>(text(name));
}

} // namespace

class MassWidgetsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void examplesComeBackAsTheyWere();
    void randomMassesComeBackAsTheyWere();
    void massesAreTyped();
    void samplesAreChosenByName();
    void manyRowsArePastedAndUndone();
    void textsThatAreNoMassAreMarkedAndKept();
    void theToleranceIsTypedAndFollowedByTheRows();
    void anUnreadableToleranceIsShownAndComesBack();
    void samplesAreNamedAndStrangeIdsMarked();
    void massesAreValidatedAgainstSamples();
    void headersHide();
    void tolerancesAndImpuritiesAreEdited();
    void aListenerMayDestroyTheWidget();
    void everythingIsSaidAndNamed();
};

void MassWidgetsTest::examplesComeBackAsTheyWere()
{
    int found = 0;
    for (const Cell &cell : cellsOf(text("Masses")) + cellsOf(text("OligoMasses"))) {
        MassTableWidget widget;
        if (cell.property == text("MassTable")) {
            const QList<DeltaMass> masses = MassUtils::deltaMassesFromRowNode(nodeOf(cell.value));
            widget.setMasses(masses);
            QCOMPARE(widget.masses(), masses);
            ++found;
        } else if (cell.property == text("MatchTolerance")) {
            widget.setMassTolerance(nodeOf(cell.value));
            QVERIFY(widget.massTolerance() == nodeOf(cell.value));
            ++found;
        }
    }
    QVERIFY(found >= 3);
}

void MassWidgetsTest::randomMassesComeBackAsTheyWere()
{
    QRandomGenerator random(7);
    MassTableWidget widget;
    for (int i = 0; i < 50; ++i) {
        const RowNode table = randomTable(
            random, {text("Id"), text("Name"), text("Mass"), text("Protein"), text("SamplesIds")});
        const QList<DeltaMass> masses = MassUtils::deltaMassesFromRowNode(table);
        widget.setMasses(masses);
        QCOMPARE(widget.masses(), masses);
        const RowNode tolerance = randomTable(random, {text("Value"), text("Unit")});
        widget.setMassTolerance(tolerance);
        QVERIFY(widget.massTolerance() == tolerance);
    }
}

void MassWidgetsTest::massesAreTyped()
{
    MassTableWidget widget;
    widget.setMasses({massOf("G0F/G0F", 148055.9), massOf("G0F/G1F", 148218.1)});
    show(&widget);
    QSignalSpy edited(&widget, &ScientificTableWidget::edited);
    typeInto(&widget, 1, "Mass", "148218.25");
    QTRY_VERIFY(!edited.isEmpty());
    QCOMPARE(widget.masses(), QList<DeltaMass>({massOf("G0F/G0F", 148055.9), massOf("G0F/G1F", 148218.25)}));
    widget.sheet()->history()->undo();
    QCOMPARE(widget.masses()[1].massDa, 148218.1);
}

void MassWidgetsTest::samplesAreChosenByName()
{
    QList<SamplesInput::Entry> samples(3);
    for (int i = 0; i < samples.size(); ++i) {
        samples[i].id = 10 + i;
        samples[i].name = text("plate %1").arg(i);
    }
    DeltaMass mass = massOf("G0F", 148055.9);
    mass.samplesIds = {12, 99};
    MassTableWidget widget;
    widget.setMasses({mass});
    widget.updateSamplesIds(samples);
    show(&widget);
    ScriptedAnswerer answers;
    answers.expectDialog(text("Choose: Sample ids"), [](QDialog &dialog) {
        auto *const list = dialog.findChild<QListView *>(text("codes"));
        QStringList lines;
        for (int row = 0; row < list->model()->rowCount(); ++row)
            lines.append(list->model()->index(row, 0).data().toString());
        [&] {
            QCOMPARE(lines, QStringList({text("plate 0 (10)"), text("plate 1 (11)"), text("plate 2 (12)"),
                                         text("unknown (99)")}));
        }();
        QTest::keyClick(list, Qt::Key_Space);
        auto *const filter = dialog.findChild<QLineEdit *>(text("codesFilter"));
        QTest::keyClicks(filter, text("unknown"));
        list->setCurrentIndex(list->model()->index(0, 0));
        QTest::keyClick(list, Qt::Key_Space);
        return true;
    });
    click(&widget, 0, "SamplesIds");
    key(Qt::Key_F2);
    key(Qt::Key_F4);
    key(Qt::Key_Return);
    QVERIFY(answers.isDone());
    QCOMPARE(widget.masses()[0].samplesIds, QList<int>({10, 12}));
    QCOMPARE(shown(&widget, 0, "samples"), text("plate 0, plate 2"));
}

void MassWidgetsTest::manyRowsArePastedAndUndone()
{
    MassTableWidget widget;
    widget.setMasses({massOf("first", 1)});
    show(&widget);
    QString rows;
    constexpr int kRows = 100'000;
    for (int i = 0; i < kRows; ++i)
        rows += text("mass %1\t%2\n").arg(i).arg(1000 + i);
    QGuiApplication::clipboard()->setText(rows);
    click(&widget, 0, "Name");
    QTest::keySequence(QApplication::focusWidget(), QKeySequence::Paste);
    QCOMPARE(widget.sheet()->rowCount(), kRows);
    QCOMPARE(widget.masses().constLast().massDa, 100'999.0);
    const qsizetype held = widget.sheet()->heldBytes();
    QTest::keySequence(QApplication::focusWidget(), QKeySequence::Undo);
    QCOMPARE(widget.masses(), QList<DeltaMass>({massOf("first", 1)}));
    QTest::keySequence(QApplication::focusWidget(), QKeySequence::Redo);
    QCOMPARE(widget.sheet()->heldBytes(), held);
}

void MassWidgetsTest::textsThatAreNoMassAreMarkedAndKept()
{
    DeltaMass odd = massOf("odd", 0);
    odd.massDa = std::nullopt;
    odd.unreadableMass = text("about 5000");
    MassTableWidget widget;
    widget.setMasses({odd});
    QCOMPARE(shown(&widget, 0, "Mass"), text("about 5000"));
    QCOMPARE(at(&widget, 0, "Mass").data(TableModel::ProblemRole).toString(), text("Is not a number."));
    QCOMPARE(widget.masses(), QList<DeltaMass>({odd}));
}

void MassWidgetsTest::theToleranceIsTypedAndFollowedByTheRows()
{
    MassTableWidget widget;
    widget.setMasses({massOf("a", 100000.0)});
    widget.setMassTolerance(
        nodeOf(R"({"data":["Value","Unit"],"children":[{"data":[30.0,"ppm"],"children":[]}]})"));
    QCOMPARE(shown(&widget, 0, "window"), text("3"));
    show(&widget);
    QLineEdit *const field = line(&widget, "massTolerance");
    QTest::mouseDClick(field, Qt::LeftButton, {}, field->rect().center());
    type("12.50");
    QCOMPARE(shown(&widget, 0, "window"), text("1.25"));
    auto *const unit = widget.findChild<QComboBox *>(text("massToleranceUnit"));
    QTest::keyClick(unit, Qt::Key_Home);
    QCOMPARE(unit->currentText(), QString(kDalton));
    QCOMPARE(shown(&widget, 0, "window"), text("12.5"));
    QCOMPARE(
        objectOf(widget.massTolerance()),
        objectOf(nodeOf(R"({"data":["Value","Unit"],"children":[{"data":[12.5,"Dalton"],"children":[]}]})")));
}

void MassWidgetsTest::anUnreadableToleranceIsShownAndComesBack()
{
    const RowNode odd =
        nodeOf(R"({"data":["Unit","Value"],"children":[{"data":["miles","wide"],"children":[]}]})");
    MassTableWidget widget;
    widget.setMassTolerance(odd);
    QCOMPARE(line(&widget, "massTolerance")->text(), text("wide"));
    QCOMPARE(widget.findChild<QComboBox *>(text("massToleranceUnit"))->currentText(), text("miles"));
    QVERIFY(widget.massTolerance() == odd);
}

void MassWidgetsTest::samplesAreNamedAndStrangeIdsMarked()
{
    DeltaMass mass = massOf("a", 1);
    mass.samplesIds = {2, 5};
    MassTableWidget widget;
    widget.setMasses({massOf("all", 2), mass});
    widget.updateSamplesIds(twoSamples());
    QCOMPARE(shown(&widget, 0, "samples"), text("all samples"));
    QCOMPARE(shown(&widget, 1, "samples"), text("Lot 0424, 5"));
    QCOMPARE(at(&widget, 1, "SamplesIds").data(TableModel::ProblemRole).toString(),
             text("There is no sample with the id 5."));
    show(&widget);
    typeInto(&widget, 1, "SamplesIds", "1,2");
    QCOMPARE(shown(&widget, 1, "samples"), text("Lot 0423, Lot 0424"));
    QCOMPARE(widget.masses()[1].samplesIds, QList<int>({1, 2}));
}

void MassWidgetsTest::massesAreValidatedAgainstSamples()
{
    DeltaMass gone = massOf("a", 1);
    gone.samplesIds = {9};
    QStringList errors;
    QStringList warnings;
    QVERIFY(!MassTableWidget::validate({gone}, twoSamples(), &errors, &warnings));
    QCOMPARE(errors.size(), 1);
    QVERIFY(errors[0].contains(text("which don't exist")));
    QVERIFY(MassTableWidget::validate({massOf("b", 2)}, twoSamples(), nullptr, nullptr));
}

void MassWidgetsTest::headersHide()
{
    MassTableWidget widget;
    show(&widget);
    QVERIFY(widget.findChild<QLabel *>(text("header"))->isVisible());
    widget.hideHeader();
    QVERIFY(!widget.findChild<QLabel *>(text("header"))->isVisible());
}

void MassWidgetsTest::tolerancesAndImpuritiesAreEdited()
{
    OligoMassTableWidget widget;
    MassTolerances tolerances;
    tolerances.impurities.value = 33.25;
    tolerances.unknownMembers.insert(text("later"), 1);
    OligoImpurities impurities;
    impurities.additions = 7;
    impurities.unknownMembers.insert(text("later"), 2);
    widget.tolerancesWidget()->setData(tolerances);
    widget.setOligoImpurities(impurities);
    QCOMPARE(widget.tolerancesWidget()->data(), tolerances);
    QCOMPARE(widget.oligoImpurities(), impurities);

    show(&widget);
    QTest::mouseDClick(line(&widget, "productTolerance"), Qt::LeftButton);
    type("5.5");
    tolerances.fullLengthProduct.value = 5.5;
    QTest::mouseDClick(line(&widget, "baseLosses"), Qt::LeftButton);
    type("1001");
    QCOMPARE(widget.oligoImpurities(), impurities);
    QTest::keyClick(line(&widget, "baseLosses"), Qt::Key_Backspace);
    impurities.baseLosses = 100;
    auto *const sulfurLoss = widget.findChild<QCheckBox *>(text("sulfurLoss"));
    QTest::keyClick(sulfurLoss, Qt::Key_Space);
    impurities.sulfurLoss = false;
    QCOMPARE(widget.tolerancesWidget()->data(), tolerances);
    QCOMPARE(widget.oligoImpurities(), impurities);
}

void MassWidgetsTest::aListenerMayDestroyTheWidget()
{
    auto *const widget = new MassTableWidget;
    widget->setMasses({massOf("a", 1)});
    show(widget);
    const QPointer<MassTableWidget> guard(widget);
    connect(widget, &ScientificTableWidget::edited, qApp, [guard] { delete guard.data(); });
    typeInto(widget, 0, "Name", "b");
    QTRY_VERIFY(guard.isNull());
}

void MassWidgetsTest::everythingIsSaidAndNamed()
{
    OligoMassTableWidget widget;
    widget.setMasses({massOf("PO for PS", -15.977)});
    show(&widget);
    QCOMPARE(controlsWithoutNames(&widget).join(u' '), QString());
    const QString said = widget.toPlainText();
    QVERIFY2(said.contains(text("Row 1. Name: PO for PS; Mass (Da): -15.977; Samples: all samples")),
             qPrintable(said));
    QVERIFY2(said.contains(text("Full length product: 10 ppm")), qPrintable(said));
    QVERIFY2(said.contains(text("Sulfur loss: yes")), qPrintable(said));
}

WIDGET_REGISTER_TEST(MassWidgetsTest)

#include "MassWidgetsTest.moc"
