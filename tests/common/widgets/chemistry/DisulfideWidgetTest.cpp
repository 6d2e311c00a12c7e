#include "ChemistryFixture.h"
#include "WidgetTest.h"

#include <orv/table_model/TableModel.h>
#include <orv/widgets/DisulfideWidget.h>

#include <QSignalSpy>

using namespace orv;
using namespace ChemistryFixture;

namespace {

const char *const kChainsOfBonds = R"({"data":["ProteinAccessionName","ProteinSequence"],"children":[
    {"data":["HC","ACAAACAAAC"],"children":[]},{"data":["LC","AACA"],"children":[]}]})";

RowNode bondsOf(const char *rows)
{
    return nodeOf(
        (QByteArray(R"({"data":["FirstChain","FirstPosition","SecondChain","SecondPosition"],"children":[)") +
         rows + "]}")
            .constData());
}

/// As the drawing lays it out: bars over the room right of the names, the longest chain over all of it.
QPoint placeOnMap(const QWidget *map, int chain, int position, int longest)
{
    const QFontMetrics metrics = map->fontMetrics();
    const qreal left = metrics.averageCharWidth() * 20;
    const qreal room = map->width() - left - metrics.averageCharWidth() * 2;
    return QPointF(left + room * (position - 0.5) / longest, metrics.height() * 4 * (chain + 0.7)).toPoint();
}

} // namespace

class DisulfideWidgetTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void bondsComeBackAsTheyWere();
    void bondsAreDrawnByTwoClicks();
    void bondsAreDrawnByKeyboard();
    void impossibleBondsAreMarkedAndValidated();
    void loadingOfPresetsTellsOnce();
    void aListenerMayDestroyTheBonds();
    void bondsAreSaidAndNamed();
};

void DisulfideWidgetTest::bondsComeBackAsTheyWere()
{
    QRandomGenerator random(5);
    DisulfideWidget widget;
    for (int i = 0; i < 40; ++i) {
        const RowNode bonds = randomTable(
            random, {text("FirstChain"), text("FirstPosition"), text("SecondChain"), text("SecondPosition")});
        widget.setOptionsToUI(bonds);
        widget.setProteinData(randomTable(random, {text("ProteinAccessionName"), text("ProteinSequence")}));
        QVERIFY(widget.getOptionsFromUI() == bonds);
        (void)widget.validate(nullptr);
        (void)widget.grab();
    }
}

void DisulfideWidgetTest::bondsAreDrawnByTwoClicks()
{
    DisulfideWidget widget;
    QSignalSpy changed(&widget, &DisulfideWidget::disulfideDataChanged);
    widget.setProteinData(nodeOf(kChainsOfBonds));
    show(&widget);
    QTRY_COMPARE(changed.size(), 1);
    auto *const map = widget.findChild<QWidget *>(text("disulfideMap"));
    const QImage without = map->grab().toImage();
    QTest::mouseClick(map, Qt::LeftButton, {}, placeOnMap(map, 0, 6, 10));
    QTest::mouseClick(map, Qt::LeftButton, {}, placeOnMap(map, 1, 3, 10));
    QCOMPARE(objectOf(widget.getOptionsFromUI()),
             objectOf(bondsOf(R"({"data":["HC",6,"LC",3],"children":[]})")));
    QTRY_COMPARE(changed.size(), 2);
    QVERIFY(map->grab().toImage() != without);
    // The same way back takes it away.
    QTest::mouseClick(map, Qt::LeftButton, {}, placeOnMap(map, 1, 3, 10));
    QTest::mouseClick(map, Qt::LeftButton, {}, placeOnMap(map, 0, 6, 10));
    QCOMPARE(widget.sheet()->rowCount(), 0);
    widget.sheet()->history()->undo();
    QCOMPARE(widget.sheet()->rowCount(), 1);
}

void DisulfideWidgetTest::bondsAreDrawnByKeyboard()
{
    DisulfideWidget widget;
    widget.setProteinData(nodeOf(kChainsOfBonds));
    show(&widget);
    auto *const map = widget.findChild<QWidget *>(text("disulfideMap"));
    map->setFocus();
    key(Qt::Key_Right);
    QCOMPARE(map->accessibleDescription(), text("HC C2"));
    key(Qt::Key_Return);
    key(Qt::Key_Right);
    QCOMPARE(map->accessibleDescription(), text("HC C6, bond begins at HC C2"));
    key(Qt::Key_Right);
    key(Qt::Key_Return);
    QCOMPARE(objectOf(widget.getOptionsFromUI()),
             objectOf(bondsOf(R"({"data":["HC",2,"HC",10],"children":[]})")));
    QCOMPARE(shown(&widget, 0, "span"), text("8 residues"));
}

void DisulfideWidgetTest::impossibleBondsAreMarkedAndValidated()
{
    DisulfideWidget widget;
    widget.setOptionsToUI(bondsOf(R"({"data":["HC",3,"LC",3],"children":[]})"));
    QVERIFY(widget.validate(nullptr));
    widget.setProteinData(nodeOf(kChainsOfBonds));
    QStringList warnings;
    QVERIFY(!widget.validate(&warnings));
    QCOMPARE(warnings,
             QStringList({text("Disulfide bond 1: residue 3 of the chain \"HC\" is A and no cysteine.")}));
    QCOMPARE(problem(&widget, 0, "FirstPosition"),
             text("residue 3 of the chain \"HC\" is A and no cysteine."));
    QCOMPARE(problem(&widget, 0, "SecondPosition"), QString());
    show(&widget);
    typeInto(&widget, 0, "FirstPosition", "2");
    QCOMPARE(problem(&widget, 0, "FirstPosition"), QString());
    typeInto(&widget, 0, "SecondChain", "XC");
    QCOMPARE(problem(&widget, 0, "SecondChain"), text("there is no chain \"XC\"."));
    widget.setOptionsToUI(bondsOf(R"({"data":["HC","two","LC",3],"children":[]})"));
    QVERIFY(!widget.validate(&warnings));
    QVERIFY(warnings.constLast().contains(text("\"two\" is no position")));
}

void DisulfideWidgetTest::loadingOfPresetsTellsOnce()
{
    DisulfideWidget widget;
    QSignalSpy changed(&widget, &DisulfideWidget::disulfideDataChanged);
    QTRY_COMPARE(changed.size(), 1);
    widget.beginPresetLoading();
    widget.setOptionsToUI(bondsOf(R"({"data":["HC",2,"HC",6],"children":[]})"));
    QCoreApplication::sendPostedEvents();
    widget.setOptionsToUI(bondsOf(R"({"data":["HC",2,"HC",10],"children":[]})"));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(changed.size(), 1);
    widget.endPresetLoading();
    QTRY_COMPARE(changed.size(), 2);
    widget.endPresetLoading();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(changed.size(), 2);
}

void DisulfideWidgetTest::aListenerMayDestroyTheBonds()
{
    QPointer<DisulfideWidget> widget = new DisulfideWidget;
    widget->setProteinData(nodeOf(kChainsOfBonds));
    show(widget);
    connect(widget, &DisulfideWidget::disulfideDataChanged, qApp, [widget] { delete widget.data(); });
    auto *const map = widget->findChild<QWidget *>(text("disulfideMap"));
    QTest::mouseClick(map, Qt::LeftButton, {}, placeOnMap(map, 0, 6, 10));
    QTest::mouseClick(map, Qt::LeftButton, {}, placeOnMap(map, 0, 2, 10));
    QTRY_VERIFY(widget.isNull());
}

void DisulfideWidgetTest::bondsAreSaidAndNamed()
{
    DisulfideWidget widget;
    widget.setProteinData(nodeOf(kChainsOfBonds));
    widget.setOptionsToUI(bondsOf(R"({"data":["HC",2,"LC",3],"children":[]})"));
    show(&widget);
    QCOMPARE(controlsWithoutNames(&widget).join(u' '), QString());
    const QString said = widget.toPlainText();
    QVERIFY2(said.contains(text("First protein: HC; First cysteine: 2; Second protein: LC; Second cysteine: "
                                "3; Spans: between chains")),
             qPrintable(said));
    QVERIFY2(said.contains(text("Cysteines of HC: 2, 6, 10")), qPrintable(said));
}

WIDGET_REGISTER_TEST(DisulfideWidgetTest)

#include "DisulfideWidgetTest.moc"
