#include "LogCapture.h"
#include "WidgetHands.h"
#include "WidgetTest.h"

#include <orv/widgets/SequenceDatabasesWidget.h>

#include <QSignalSpy>
#include <QTemporaryDir>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

QList<SequenceDatabaseItem> itemsOf(const QJsonArray &sequences)
{
    QList<SequenceDatabaseItem> items;
    for (const auto sequence : sequences)
        items.append(SequenceDatabaseItem::fromJson(sequence.toObject()).valueOr({}));
    return items;
}

QJsonArray jsonOf(const QList<SequenceDatabaseItem> &items)
{
    QJsonArray sequences;
    for (const SequenceDatabaseItem &item : items)
        sequences.append(item.toJson());
    return sequences;
}

QJsonArray someSequences()
{
    return Hands::parsed(R"({"sequences": [
        {"id": 3, "fasta": "human.fasta", "species": "Homo sapiens", "newer": {"a": 1}},
        {"id": 3, "fasta": "", "species": ""}]})")["sequences"_L1]
        .toArray();
}

} // namespace

class DatabasesWidgetTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void examplesComeBack();
    void cellsAreTypedIn();
    void filesAreDroppedAndGetIds();
    void whatIsNoReferenceIsShownAndKept();
    void filesAreMarkedInTheBackground();
    void aListenerMayDestroyTheWidget();
};

void DatabasesWidgetTest::examplesComeBack()
{
    int count = 0;
    for (const auto &[name, value] : Hands::exampleValues(u"Database"_s)) {
        SequenceDatabasesWidget widget;
        widget.setItems(itemsOf(value["sequences"_L1].toArray()));
        QCOMPARE(jsonOf(widget.items()), value["sequences"_L1].toArray());
        ++count;
    }
    QVERIFY(count > 0);
    SequenceDatabasesWidget widget;
    widget.setItems(itemsOf(someSequences()));
    QCOMPARE(jsonOf(widget.items()), someSequences());
}

void DatabasesWidgetTest::cellsAreTypedIn()
{
    SequenceDatabasesWidget widget;
    widget.setItems(itemsOf(someSequences()));
    Hands::show(widget);
    QSignalSpy changes(&widget, &SequenceDatabasesWidget::itemsChanged);
    TableView *const view = Hands::table(widget, "Sequence databases");
    Hands::enter(view, 0, 1, "Mus musculus");
    QCOMPARE(widget.items()[0].species(), u"Mus musculus"_s);
    QCOMPARE(widget.items()[0].toJson()["newer"_L1].toObject(), (QJsonObject{{u"a"_s, 1}}));
    QTRY_COMPARE(changes.size(), 1);
    QVERIFY(widget.plainText().contains(u"human.fasta\tMus musculus"_s));
    Hands::enter(view, 1, 0, "x.txt");
    QVERIFY(view->tableModel()
                ->index(1, 0)
                .data(TableModel::ProblemRole)
                .toString()
                .startsWith(u"Is not a FASTA file."_s));
}

void DatabasesWidgetTest::filesAreDroppedAndGetIds()
{
    SequenceDatabasesWidget widget;
    widget.setItems(itemsOf(someSequences()));
    Hands::show(widget);
    QVERIFY(Hands::drop(Hands::table(widget, "Sequence databases"), {u"/d/a.fasta"_s, u"/d/b.fasta"_s}));
    QCOMPARE(widget.items().size(), 4);
    QCOMPARE(widget.items()[2].fastaReference()->text(), u"/d/a.fasta"_s);
    QCOMPARE(widget.items()[2].id(), 4);
    QCOMPARE(widget.items()[3].id(), 5);
}

void DatabasesWidgetTest::whatIsNoReferenceIsShownAndKept()
{
    const LogCapture log;
    const QJsonArray odd{QJsonObject{{u"id"_s, 1}, {u"fasta"_s, u"odd://x"_s}, {u"species"_s, QString()}}};
    SequenceDatabasesWidget widget;
    widget.setItems(itemsOf(odd));
    Hands::show(widget);
    QCOMPARE(jsonOf(widget.items()), odd);
    TableView *const view = Hands::table(widget, "Sequence databases");
    QCOMPARE(view->tableModel()->index(0, 0).data().toString(), u"odd://x"_s);
    Hands::enter(view, 0, 0, "other://y");
    QCOMPARE(jsonOf(widget.items())[0]["fasta"_L1].toString(), u"other://y"_s);
    Hands::enter(view, 0, 0, "y.fasta");
    QCOMPARE(widget.items()[0].fastaReference()->text(), u"y.fasta"_s);
}

void DatabasesWidgetTest::filesAreMarkedInTheBackground()
{
    const QTemporaryDir folder;
    SequenceDatabasesWidget widget;
    widget.setItems(itemsOf(someSequences()));
    widget.setBaseUrl(QUrl::fromLocalFile(folder.path() + u'/'));
    Hands::show(widget);
    TableView *const view = Hands::table(widget, "Sequence databases");
    QTRY_COMPARE(view->tableModel()->index(0, 0).data(TableModel::NoteRole).toString(), u"not found"_s);
    QCOMPARE(view->tableModel()->index(1, 0).data(TableModel::NoteRole).toString(), QString());
}

void DatabasesWidgetTest::aListenerMayDestroyTheWidget()
{
    auto *const widget = new SequenceDatabasesWidget;
    const QPointer<SequenceDatabasesWidget> guard = widget;
    widget->setItems(itemsOf(someSequences()));
    Hands::show(*widget);
    connect(widget, &SequenceDatabasesWidget::itemsChanged, this, [widget] { delete widget; });
    Hands::enter(Hands::table(*widget, "Sequence databases"), 0, 1, "x");
    QTRY_VERIFY(!guard);
}

WIDGET_REGISTER_TEST(DatabasesWidgetTest)

#include "DatabasesWidgetTest.moc"
