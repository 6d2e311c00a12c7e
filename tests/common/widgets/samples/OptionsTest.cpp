#include "WidgetHands.h"
#include "WidgetTest.h"

#include <orv/chemistry/IntactOptionsUtils.h>
#include <orv/table/rn.h>
#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/InclusionDialog.h>
#include <orv/widgets/IntactOptionsWidget.h>
#include <orv/widgets/OligoOptionsWidget.h>
#include <orv/widgets/PeakFilterDialog.h>

#include <QDialogButtonBox>
#include <QPushButton>
#include <QSignalSpy>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

RowNode nodeOf(const QJsonObject &json)
{
    RowNode node;
    if (!rn::fromObject(json, &node))
        qFatal("No table");
    return node;
}

void pressIn(QDialog &dialog, QDialogButtonBox::StandardButton button)
{
    QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
}

} // namespace

class OptionsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void examplesComeBack();
    void oddTablesAreShownAndComeBack_data();
    void oddTablesAreShownAndComeBack();
    void numbersAreTypedIn();
    void aTableWithoutColumnsGetsThem();
    void problemsAreHtmlLines();
    void inclusionItemsComeBack();
    void inclusionItemsAreTypedIn();
    void wrongTimesAreNotAccepted();
    void peaksAreTypedIn();
    void oddPeakLinesStay();
    void oxoniumIonsAreAdded();
    void peaksComeFromTheUser();
};

void OptionsTest::examplesComeBack()
{
    int count = 0;
    for (const auto &type : {u"IntactOptions"_s, u"OligoOptions"_s}) {
        for (const auto &[name, value] : Hands::exampleValues(type)) {
            IntactOptionsWidget widget;
            widget.setToUI(nodeOf(value));
            QString error;
            QString warning;
            QCOMPARE(rn::toObject([&] {
                         static RowNode node;
                         node = widget.getFromUI(&error, &warning);
                         return &node;
                     }()),
                     value);
            QCOMPARE(error + warning, QString());
            ++count;
        }
    }
    QVERIFY(count > 0);
}

void OptionsTest::oddTablesAreShownAndComeBack_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("nothing") << QByteArray(R"({"data": [], "children": []})");
    QTest::newRow("ragged") << QByteArray(
        R"({"data": ["Name", "Other"], "children": [{"data": [1, 2, 3, [4]], "children": []}, {"data": [], "children": []}]})");
    QTest::newRow("nested") << QByteArray(
        R"({"data": ["Name"], "children": [{"data": ["a"], "children": [{"data": ["below"], "children": []}]}]})");
    QTest::newRow("two columns of one name") << QByteArray(
        R"({"data": ["Adduct", "Adduct", null, {"a": 1}], "children": [{"data": [true, null, {"b": [1]}, 1.5], "children": []}]})");
}

void OptionsTest::oddTablesAreShownAndComeBack()
{
    QFETCH(const QByteArray, json);
    const RowNode table = nodeOf(Hands::parsed(json));
    OligoOptionsWidget widget;
    widget.setToUI(table);
    Hands::show(widget);
    QCOMPARE(widget.getFromUI(nullptr, nullptr), table);
    TableView *const view = Hands::table(widget, "Deconvolution of oligonucleotides");
    if (view->sheet()->rowCount() == 0)
        return;
    // An edit changes its cell and nothing else.
    Hands::enter(view, 0, 0, "x");
    view->action(TableView::Command::Undo)->trigger();
    QCOMPARE(widget.getFromUI(nullptr, nullptr), table);
    view->action(TableView::Command::Redo)->trigger();
    RowNode expected = table;
    expected.getChild(0)->data[0] = u"x"_s;
    QCOMPARE(rn::serialize(&expected), [&] {
        const RowNode node = widget.getFromUI(nullptr, nullptr);
        return rn::serialize(&node);
    }());
}

void OptionsTest::numbersAreTypedIn()
{
    IntactOptionsWidget widget;
    widget.setToUI(IntactOptionsUtils::defaultRowNode());
    Hands::show(widget);
    QSignalSpy changes(&widget, &OptionsWidgetBase::optionsChanged);
    TableView *const view = Hands::table(widget, "Deconvolution of intact proteins");
    Hands::enter(view, 0, view->sheet()->columnOf(u"MaximumMass"_s), "150000.5");
    Hands::enter(view, 0, view->sheet()->columnOf(u"MaximumCharge"_s), "60");
    QTRY_COMPARE(changes.size(), 1);
    const auto options = IntactOptionsUtils::optionsFromRowNode(widget.getFromUI(nullptr, nullptr));
    QCOMPARE(options->constFirst().maximumMassDa, 150000.5);
    QCOMPARE(options->constFirst().maximumCharge, 60);
    QVERIFY(widget.plainText().contains(u"150000.5"_s));
    view->action(TableView::Command::AddRow)->trigger();
    QCOMPARE(IntactOptionsUtils::optionsFromRowNode(widget.getFromUI(nullptr, nullptr))->value(1).adduct,
             u"H"_s);
}

void OptionsTest::aTableWithoutColumnsGetsThem()
{
    IntactOptionsWidget widget;
    widget.setToUI({});
    Hands::show(widget);
    TableView *const view = Hands::table(widget, "Deconvolution of intact proteins");
    view->setFocus();
    view->action(TableView::Command::AddRow)->trigger();
    QCOMPARE(
        IntactOptionsUtils::optionsFromRowNode(widget.getFromUI(nullptr, nullptr))->value(0).maximumCharge,
        100);
}

void OptionsTest::problemsAreHtmlLines()
{
    IntactOptionsWidget widget;
    RowNode table = IntactOptionsUtils::defaultRowNode();
    table.getChild(0)->getDataAt(u"Name"_s) = u"<b>"_s;
    table.getChild(0)->getDataAt(u"MinimumMz"_s) = 9000;
    table.getChild(0)->getDataAt(u"Adduct"_s) = u"no\nformula"_s;
    widget.setToUI(table);
    QString errors;
    QString warnings;
    QVERIFY(!widget.validateUiValues(&errors, &warnings));
    const QStringList lines = errors.split(u'\n');
    QCOMPARE(lines.size(), 2);
    QCOMPARE(
        lines[0],
        u"Deconvolution options &quot;&lt;b&gt;&quot; (row 1): The range of m/z (9000 to 9000) is out of order."_s);
    QCOMPARE(warnings, QString());
    QString error;
    QString warning;
    QCOMPARE(widget.getFromUI(&error, &warning), table);
    QCOMPARE(error, QString());
    QCOMPARE(warning, errors);
}

void OptionsTest::inclusionItemsComeBack()
{
    InclusionItem item;
    item.mz = 524.265;
    item.charge = 2;
    item.endMinutes = 12;
    item.unknownMembers = {{u"newer"_s, 1}};
    InclusionDialog dialog;
    dialog.setItems({item, item});
    QCOMPARE(dialog.items(), (QList<InclusionItem>{item, item}));
    QVERIFY(dialog.plainText().contains(u"524.265\t2\t\t12"_s));
}

void OptionsTest::inclusionItemsAreTypedIn()
{
    InclusionDialog dialog;
    Hands::show(dialog);
    TableView *const view = Hands::table(dialog, "Inclusion list");
    view->setFocus();
    view->action(TableView::Command::AddRow)->trigger();
    Hands::enter(view, 0, 0, "740.4014");
    Hands::click(view, 0, 4);
    Hands::type("LVNEL");
    // The text that is being typed counts, too.
    pressIn(dialog, QDialogButtonBox::Ok);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.items().constFirst().mz, 740.4014);
    QCOMPARE(dialog.items().constFirst().name, u"LVNEL"_s);
    QVERIFY(!dialog.items().constFirst().startMinutes);
}

void OptionsTest::wrongTimesAreNotAccepted()
{
    InclusionItem item;
    item.mz = 500;
    item.startMinutes = 5;
    InclusionDialog dialog;
    dialog.setItems({item});
    Hands::show(dialog);
    TableView *const view = Hands::table(dialog, "Inclusion list");
    Hands::enter(view, 0, 3, "4");
    pressIn(dialog, QDialogButtonBox::Ok);
    QVERIFY(dialog.isVisible());
    QCOMPARE(view->currentIndex().column(), 2);
    QVERIFY(!dialog.findChild<QLabel *>(u"message"_s)->text().isEmpty());
    Hands::enter(view, 0, 3, "6");
    Hands::enter(view, 0, 0, "0");
    pressIn(dialog, QDialogButtonBox::Ok);
    QVERIFY(dialog.isVisible());
    QCOMPARE(view->currentIndex().column(), 0);
    pressIn(dialog, QDialogButtonBox::Cancel);
    QVERIFY(!dialog.isVisible());
}

void OptionsTest::peaksAreTypedIn()
{
    PeakFilterDialog dialog(u"204.0867 HexNAc\n366.140"_s);
    Hands::show(dialog);
    QCOMPARE(dialog.peakFilter(), u"204.0867 HexNAc\n366.140"_s);
    TableView *const view = Hands::table(dialog, "Diagnostic peaks");
    Hands::enter(view, 1, 1, "HexHexNAc");
    QCOMPARE(dialog.peakFilter(), u"204.0867 HexNAc\n366.140 HexHexNAc"_s);
}

void OptionsTest::oddPeakLinesStay()
{
    const QString odd = u"  204.09\r\n\n366:1 what\n"_s;
    PeakFilterDialog dialog(odd);
    Hands::show(dialog);
    QCOMPARE(dialog.peakFilter(), odd);
    TableView *const view = Hands::table(dialog, "Diagnostic peaks");
    QCOMPARE(view->tableModel()->index(1, 0).data().toString(), u"366:1 what"_s);
    Hands::enter(view, 0, 0, "205");
    QCOMPARE(dialog.peakFilter(), u"205\n366:1 what"_s);
    pressIn(dialog, QDialogButtonBox::Ok);
    QVERIFY(dialog.isVisible());
}

void OptionsTest::oxoniumIonsAreAdded()
{
    PeakFilterDialog dialog(u"204.09 mine"_s);
    Hands::show(dialog);
    Hands::press(dialog, "addOxoniumIons");
    const QStringList lines = dialog.peakFilter().split(u'\n');
    QCOMPARE(lines.size(), 11);
    QCOMPARE(lines[0], u"204.09 mine"_s);
    // Known to four digits in the literature.
    for (const char *mz : {"126.0550", "138.0550", "163.0601", "168.0655", "186.0761", "274.0921", "292.1027",
                           "366.1395", "657.2349"})
        QVERIFY2(dialog.peakFilter().contains(QLatin1String(mz)), mz);
    Hands::press(dialog, "addOxoniumIons");
    QCOMPARE(dialog.peakFilter().split(u'\n').size(), 11);
}

void OptionsTest::peaksComeFromTheUser()
{
    ScriptedAnswerer answers;
    answers.expectDialog(u"Diagnostic Peaks"_s, [](QDialog &dialog) {
        Hands::show(dialog);
        Hands::enter(Hands::table(dialog, "Diagnostic peaks"), 0, 0, "300");
        return true;
    });
    answers.expectDialog(u"Diagnostic Peaks"_s, [](QDialog &) { return false; });
    bool isOk = false;
    QCOMPARE(PeakFilterDialog::getPeakFilterFromUser(u"204.09"_s, nullptr, &isOk), u"300"_s);
    QVERIFY(isOk);
    QCOMPARE(PeakFilterDialog::getPeakFilterFromUser(u"204.09"_s, nullptr, &isOk), u"204.09"_s);
    QVERIFY(!isOk);
}

WIDGET_REGISTER_TEST(OptionsTest)

#include "OptionsTest.moc"
