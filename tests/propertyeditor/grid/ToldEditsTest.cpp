#include "LogCapture.h"
#include "PersonActs.h"
#include "WholeWorkflow.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/editors/ORVPropertyFactory.h>
#include <orv/table_model/TableModel.h>
#include <orv/table_model/TableSheet.h>
#include <orv/widgets/TableView.h>
using namespace orv;
using namespace GridFixture;

namespace {

/// What one column holds, and whether it told of its changes.
class Watch
{
public:
    explicit Watch(IGridItem *item)
        : m_item(item)
        , m_content(item->content())
    {
        QObject::connect(item->edits(), &GridItemEdits::edited, &m_context, [this] { ++m_told; });
    }

    enum class Telling
    {
        Missing,     ///< of a change
        Superfluous, ///< without one
        Right,
    };
    /// Since the last call.
    Telling telling()
    {
        const QJsonObject now = m_item->content();
        const bool isChanged = now != std::exchange(m_content, now);
        const bool isTold = std::exchange(m_told, 0) > 0;
        return isChanged == isTold ? Telling::Right : isChanged ? Telling::Missing : Telling::Superfluous;
    }

private:
    IGridItem *m_item;
    QJsonObject m_content;
    QObject m_context;
    int m_told = 0;
};

} // namespace

class ToldEditsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void whateverAPersonDoesIsTold_data();
    void whateverAPersonDoesIsTold();
    void loadsAreNotTold_data();
    void loadsAreNotTold();
    void aRowOfSamplesIsTold();

private:
    static void addKinds();
};

void ToldEditsTest::initTestCase()
{
    ORVPropertyFactory::init();
}

void ToldEditsTest::addKinds()
{
    QTest::addColumn<BaseItemType>("kind");
    for (const BaseItemType kind : WholeWorkflow::kinds())
        QTest::newRow(qPrintable(WholeWorkflow::nameOf(kind))) << kind;
}

void ToldEditsTest::whateverAPersonDoesIsTold_data()
{
    addKinds();
}

void ToldEditsTest::whateverAPersonDoesIsTold()
{
    QFETCH(BaseItemType, kind);
    const LogCapture log;
    WholeWorkflow::Columns columns;
    QWidget *widget = columns.item(kind).widget();
    widget->resize(700, 600);
    widget->show();
    QVERIFY(QTest::qWaitForWindowActive(widget));
    QCoreApplication::processEvents();
    std::map<BaseItemType, std::unique_ptr<Watch>> watches;
    for (const BaseItemType each : WholeWorkflow::kinds())
        watches[each] = std::make_unique<Watch>(&columns.item(each));
    bool isEdited = false;
    connect(columns.item(kind).edits(), &GridItemEdits::edited, this, [&] { isEdited = true; });
    QStringList wrong;
    for (const bool accepts : {false, true}) {
        const PersonActs::Blunt answers(accepts);
        for (const PersonActs::Act &act : PersonActs::actsOf(widget)) {
            PersonActs::perform(act);
            if (watches[kind]->telling() == Watch::Telling::Missing)
                wrong.append(act.name);
        }
    }
    QVERIFY2(isEdited, "Nothing was edited");
    wrong.removeDuplicates();
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
    // What the other columns did, they did because they follow this one.
    for (const auto &[each, watch] : watches)
        QVERIFY2(each == kind || watch->telling() == Watch::Telling::Right,
                 qPrintable(WholeWorkflow::nameOf(each)));
}

void ToldEditsTest::loadsAreNotTold_data()
{
    addKinds();
}

void ToldEditsTest::loadsAreNotTold()
{
    QFETCH(BaseItemType, kind);
    const LogCapture log;
    WholeWorkflow::Columns columns;
    IGridItem &item = columns.item(kind);
    int told = 0;
    connect(item.edits(), &GridItemEdits::edited, this, [&] { ++told; });
    const QJsonObject stored = item.content();
    for (int round = 0; round < 2; ++round) {
        QVERIFY(!item.setContent(stored).hasError());
        QCoreApplication::processEvents();
    }
    item.beginPresetLoading();
    QVERIFY(!item.setContent(WholeWorkflow::defaultCell(kind)).hasError());
    item.endPresetLoading();
    QCoreApplication::processEvents();
    QCOMPARE(told, 0);
}

void ToldEditsTest::aRowOfSamplesIsTold()
{
    WholeWorkflow::Columns columns;
    IGridItem &samples = columns.item(BaseItemType::Samples);
    int told = 0;
    connect(samples.edits(), &GridItemEdits::edited, this, [&] { ++told; });
    for (const char *pane : {"samples", "traces", "presets"}) {
        const QList<TableView *> tables = samples.widget()->findChildren<TableView *>();
        TableView *table = tables.value(qstrcmp(pane, "samples") == 0  ? 0
                                        : qstrcmp(pane, "traces") == 0 ? 1
                                                                       : 2);
        QVERIFY(table);
        const QJsonObject before = samples.content();
        QVERIFY(!table->tableModel()->sheet()->insertRows(0, {QStringList()}, text("add")).hasError());
        QTRY_COMPARE(told, 1);
        told = 0;
        QVERIFY2(samples.content() != before, pane);
    }
}

WIDGET_REGISTER_TEST(ToldEditsTest)
#include "ToldEditsTest.moc"
