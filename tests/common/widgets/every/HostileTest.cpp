#include "EveryWidget.h"
#include "WidgetTest.h"

#include <orv/chemistry/MassUtils.h>
#include <orv/table/rn.h>

#include <QJsonDocument>
#include <QLabel>

#include <cmath>
#include <limits>

using namespace orv;
using EveryWidget::text;

namespace {

/// A widget with how it takes and gives a table.
struct TableHolder
{
    const char *name;
    std::function<std::unique_ptr<QWidget>(const RowNode &table)> make;
    std::function<RowNode(const QWidget &widget)> table;
};

template<class Widget>
const Widget &as(const QWidget &widget)
{
    return static_cast<const Widget &>(widget);
}

template<class Widget>
TableHolder holder(const char *name, void (Widget::*set)(const RowNode &), RowNode (Widget::*get)() const)
{
    return {name,
            [set](const RowNode &table) {
                auto widget = std::make_unique<Widget>();
                (widget.get()->*set)(table);
                return widget;
            },
            [get](const QWidget &widget) { return (as<Widget>(widget).*get)(); }};
}

template<class Widget>
TableHolder optionsHolder(const char *name)
{
    return {name,
            [](const RowNode &table) {
                auto widget = std::make_unique<Widget>();
                widget->setToUI(table);
                return widget;
            },
            [](const QWidget &widget) { return as<Widget>(widget).getFromUI(nullptr, nullptr); }};
}

const QList<TableHolder> &holders()
{
    static const QList<TableHolder> all = {
        holder("proteins", &ProteinTableWidget::addFromRowNode, &ProteinTableWidget::rowNode),
        holder("chains", &ProteinInputWidgetBase::addFromRowNode, &ProteinInputWidgetBase::getOptionsFromUI),
        holder("bonds", &DisulfideWidget::setOptionsToUI, &DisulfideWidget::getOptionsFromUI),
        holder("isotopes", &IsotopeTableWidget::setIsotopeList, &IsotopeTableWidget::isotopeList),
        holder("custom fields", &CustomFieldsImportWidget::setTableContent,
               &CustomFieldsImportWidget::tableContent),
        holder("header of custom fields", &CustomFieldsImportWidget::setHeaderContent,
               &CustomFieldsImportWidget::headerContent),
        holder("match tolerance", &MassTableWidget::setMassTolerance, &MassTableWidget::massTolerance),
        optionsHolder<IntactOptionsWidget>("intact options"),
        optionsHolder<OligoOptionsWidget>("options of oligonucleotides"),
        {"peptides",
         [](const RowNode &table) {
             auto dialog = std::make_unique<InsilicoTableDialog>(table, table);
             dialog->setInsilicoPeptides(table);
             return dialog;
         },
         [](const QWidget &widget) { return as<InsilicoTableDialog>(widget).insilicoPeptides(); }},
    };
    return all;
}

QString deep()
{
    constexpr int kLevels = 400;
    return QString(text(R"({"data":["Name"],"children":[)")).repeated(kLevels) +
           QString(text("]}")).repeated(kLevels);
}

QString wide()
{
    QStringList names;
    QStringList cells;
    for (int i = 0; i < 300; ++i) {
        names.append(QStringLiteral("\"Column %1\"").arg(i));
        cells.append(QString::number(i * 1.5));
    }
    return text(R"({"data":[%1],"children":[{"data":[%2],"children":[]}]})")
        .arg(names.join(u','), cells.join(u','));
}

QString longText()
{
    return text(
               R"({"data":["Name","Sequence","ProteinSequence"],"children":[{"data":["%1","%2","%2"],"children":[]}]})")
        .arg(QString(300'000, u'x'), QString(100'000, u'K'));
}

QList<std::pair<const char *, QString>> hostileTables()
{
    return {
        {"nothing", text(R"({"data":[],"children":[]})")},
        {"rows without a header", text(R"({"data":[],"children":[{"data":[1,[2]],"children":[]}]})")},
        {"header of everything",
         text(
             R"({"data":[1,null,true,[1],{"a":{}},"","\u0000"],"children":[{"data":[[],{},null,"",1,2,3,4],"children":[]}]})")},
        {"known names twice",
         text(
             R"({"data":["Name","Name","Mass","Mass","Sequence","Sequence","FirstChain","Element"],"children":[{"data":["a",2,"x",1e308,[1],{},true,null],"children":[]}]})")},
        {"huge numbers",
         text(
             R"({"data":["Name","Mass","MassNumber","FirstPosition","MinimumMz","Value"],"children":[{"data":[1e308,-1e308,9007199254740993,2147483648,5e-324,-0.0],"children":[]}]})")},
        {"halves of letters",
         text(
             R"({"data":["Name","\ud800"],"children":[{"data":["\udfff\ud800x","\uffff\u202e\u2028"],"children":[]}]})")},
        {"markup", text(R"({"data":["<b>Name"],"children":[{"data":["<img src=x>&amp;"],"children":[]}]})")},
        {"tables in tables",
         text(
             R"({"data":["Chains","Proteins"],"children":[{"data":["Sequence"],"children":[{"data":[{"x":1}],"children":[]}]},{"data":5,"children":[]}]})")},
        {"deep", deep()},
        {"wide", wide()},
        {"long texts", longText()},
    };
}

} // namespace

class HostileTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void anyTableIsShownAndComesBack_data();
    void anyTableIsShownAndComesBack();
    void numbersThatAreNoneAreShown_data();
    void numbersThatAreNoneAreShown();
    void samplesOfAnyShapeComeBack_data();
    void samplesOfAnyShapeComeBack();
};

void HostileTest::anyTableIsShownAndComesBack_data()
{
    QTest::addColumn<int>("holder");
    QTest::addColumn<QString>("json");
    for (int i = 0; i < holders().size(); ++i) {
        for (const auto &[name, json] : hostileTables())
            QTest::addRow("%s: %s", holders()[i].name, name) << i << json;
    }
}

void HostileTest::anyTableIsShownAndComesBack()
{
    QFETCH(const int, holder);
    QFETCH(const QString, json);
    RowNode table;
    if (!rn::fromObject(QJsonDocument::fromJson(json.toUtf8()).object(), &table))
        return; // no widget ever gets it
    const std::unique_ptr<QWidget> widget = holders()[holder].make(table);
    EveryWidget::show(*widget);
    QVERIFY(!widget->grab().isNull());
    QVERIFY(holders()[holder].table(*widget) == table);
    // Labels lay out all that they hold.
    for (const QLabel *const label : widget->findChildren<QLabel *>())
        QVERIFY2(label->text().size() < 3000, qPrintable(label->objectName()));
    TableView *const view = EveryWidget::shownTable(*widget);
    if (!view || view->sheet()->rowCount() == 0 || EveryWidget::typedColumn(*view) < 0)
        return;
    EveryWidget::typeInto(view);
    while (view->sheet()->history()->canUndo())
        view->sheet()->history()->undo();
    QVERIFY(holders()[holder].table(*widget) == table);
}

void HostileTest::numbersThatAreNoneAreShown_data()
{
    QTest::addColumn<int>("holder");
    for (int i = 0; i < holders().size(); ++i)
        QTest::newRow(holders()[i].name) << i;
}

void HostileTest::numbersThatAreNoneAreShown()
{
    QFETCH(const int, holder);
    RowNode table;
    table.addData(
        QStringList{text("Name"), text("Mass"), text("MassNumber"), text("Value"), text("MinimumMz")});
    const double none = std::numeric_limits<double>::quiet_NaN();
    const double endless = std::numeric_limits<double>::infinity();
    table.addNewChild({none, endless, -endless, none, endless});
    const std::unique_ptr<QWidget> widget = holders()[holder].make(table);
    EveryWidget::show(*widget);
    QVERIFY(!widget->grab().isNull());
    const RowNode back = holders()[holder].table(*widget);
    QVERIFY(std::isnan(back.getChild(0)->getDataAt(0).toDouble()));
    QCOMPARE(back.getChild(0)->getDataAt(1).toDouble(), endless);
}

void HostileTest::samplesOfAnyShapeComeBack_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("nothing") << QByteArray("{}");
    QTest::newRow("no list") << QByteArray(R"({"Samples": {"a": 1}})");
    QTest::newRow("no objects") << QByteArray(R"({"Samples": [1, null, [], "x"]})");
    QTest::newRow("wrong types") << QByteArray(R"({"Samples": [{"SamplesId": "one", "SampleName": [1]}]})");
    QTest::newRow("one id twice") << QByteArray(
        R"({"Samples": [{"SamplesId": 1, "SampleName": "a"}, {"SamplesId": 1, "SampleName": "b"}]})");
    QTest::newRow("huge ids") << QByteArray(
        R"({"Samples": [{"SamplesId": 2147483647, "SampleName": "a"}, {"SamplesId": -2147483648, "SampleName": "\ud800"}]})");
    QTest::newRow("columns of all kinds") << QByteArray(
        R"({"Samples": [{"SamplesId": 1, "Lot": 1e308}], "CustomColumns": [{"name": "Lot", "type": "number"}, {"name": "", "type": 5}, 7]})");
    QTest::newRow("unknown members") << QByteArray(R"({"Later": [{"x": [[[[1]]]]}], "Samples": []})");
}

void HostileTest::samplesOfAnyShapeComeBack()
{
    QFETCH(const QByteArray, json);
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    SamplesAndTracesInputWidget widget;
    const Error error = widget.setFromJsonContent(object);
    EveryWidget::show(widget);
    QVERIFY(!widget.grab().isNull());
    QCOMPARE(widget.jsonContent(), object);
    QVERIFY(!widget.plainText().isEmpty());
    if (error.hasError())
        QVERIFY2(!error.errorMessage().isEmpty(), "An error without words");
}

WIDGET_REGISTER_TEST(HostileTest)

#include "HostileTest.moc"
