#include "GridFixture.h"
#include "LogCapture.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/grid/GridItemManager.h>
#include <orv/propertyeditor/grid/IGridItemCreator.h>

#include <QLabel>

using namespace orv;
using namespace GridFixture;

namespace {

/// Writes down what it hears, and does what a test tells it.
class Listener : public GridCommunicative
{
public:
    Listener(GridCommunicationManager *manager, const QString &name, QStringList *log)
        : GridCommunicative(manager)
        , m_name(name)
        , m_log(log)
    {}

    void messageReceived(const GridMessage &message) override
    {
        m_log->append(m_name + u' ' + QString::number(int(message.type)));
        if (const auto work = std::exchange(onMessage, {}))
            work();
    }

    void send(int kind) { Q_EMIT sendMessage({this, PropertyId(kind), {}, {}}); }

    std::function<void()> onMessage;

private:
    QString m_name;
    QStringList *m_log;
};

class PlainItem : public IGridItem
{
public:
    using IGridItem::content;
    QJsonObject content() const override
    {
        QJsonObject object = storedContent();
        IGridItem::content(&object);
        return object;
    }
    QWidget *widget() override { return nullptr; }
    RowNode table(int id) const { return rowNodeForType(PropertyId(id)); }
    QHash<QString, QMetaType::Type> columnTypes() const { return customColumnTypes(); }
    void edit() { tellEdited(); }

protected:
    Error setContentInternal() override
    {
        tellEdited();
        return notInitialized();
    }
};

class PlainCreator : public IGridItemCreator
{
public:
    IGridItem *createGridItem() const override { return new PlainItem; }
};

} // namespace

class GridMessagesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void allButTheSenderHearInOrderOfRegistration();
    void whatAReceiverSendsComesFirst();
    void whoGoesAwayMeanwhileHearsNothing();
    void whoComesMeanwhileHearsTheNext();
    void aBusMayGoWhileItDelivers();
    void aMemberWithoutABusIsAlone();
    void namesAndTypesAreStamped();
    void settingContentIsNoEdit();
    void customColumnsTellTheirTypes();
    void tablesAreReadFromTheStoredCell();
    void copiesHaveListenersOfTheirOwn();
    void theManagerKnowsColumnsOfSettings_data();
    void theManagerKnowsColumnsOfSettings();
    void otherTypesBecomeSettings();
    void aSecondCreatorReplacesTheFirst();
    void aCustomManagerStandsInForTheLibrarys();
    void itemsOfTheManagerShareItsBus();
};

void GridMessagesTest::allButTheSenderHearInOrderOfRegistration()
{
    QStringList log;
    GridCommunicationManager bus;
    Listener a(&bus, text("a"), &log);
    Listener b(&bus, text("b"), &log);
    Listener c(&bus, text("c"), &log);
    b.send(265);
    QCOMPARE(log, QStringList({text("a 265"), text("c 265")}));
}

void GridMessagesTest::whatAReceiverSendsComesFirst()
{
    QStringList log;
    GridCommunicationManager bus;
    Listener a(&bus, text("a"), &log);
    Listener b(&bus, text("b"), &log);
    Listener c(&bus, text("c"), &log);
    b.onMessage = [&] { b.send(131); };
    a.send(253);
    QCOMPARE(log, QStringList({text("b 253"), text("a 131"), text("c 131"), text("c 253")}));
}

void GridMessagesTest::whoGoesAwayMeanwhileHearsNothing()
{
    QStringList log;
    GridCommunicationManager bus;
    Listener a(&bus, text("a"), &log);
    auto b = std::make_unique<Listener>(&bus, text("b"), &log);
    Listener c(&bus, text("c"), &log);
    auto d = std::make_unique<Listener>(&bus, text("d"), &log);
    b->onMessage = [&] {
        d.reset();
        b.reset();
    };
    a.send(265);
    QCOMPARE(log, QStringList({text("b 265"), text("c 265")}));
    log.clear();
    a.send(265);
    QCOMPARE(log, QStringList(text("c 265")));
}

void GridMessagesTest::whoComesMeanwhileHearsTheNext()
{
    QStringList log;
    GridCommunicationManager bus;
    Listener a(&bus, text("a"), &log);
    Listener b(&bus, text("b"), &log);
    std::unique_ptr<Listener> late;
    b.onMessage = [&] { late = std::make_unique<Listener>(&bus, text("late"), &log); };
    a.send(265);
    QCOMPARE(log, QStringList(text("b 265")));
    a.send(267);
    QCOMPARE(log.mid(1), QStringList({text("b 267"), text("late 267")}));
}

void GridMessagesTest::aBusMayGoWhileItDelivers()
{
    QStringList log;
    auto bus = std::make_unique<GridCommunicationManager>();
    Listener a(bus.get(), text("a"), &log);
    Listener b(bus.get(), text("b"), &log);
    Listener c(bus.get(), text("c"), &log);
    b.onMessage = [&] { bus.reset(); };
    a.send(265);
    QCOMPARE(log, QStringList(text("b 265")));
    a.send(265);
    QCOMPARE(log.size(), 1);
}

void GridMessagesTest::aMemberWithoutABusIsAlone()
{
    QStringList log;
    GridCommunicationManager bus;
    Listener heard(&bus, text("heard"), &log);
    Listener alone(nullptr, text("alone"), &log);
    alone.send(265);
    heard.send(265);
    QVERIFY(log.isEmpty());
}

void GridMessagesTest::namesAndTypesAreStamped()
{
    PlainItem item;
    item.setName(text("Proteins"));
    item.setType(BaseItemType::Proteins);
    QJsonObject object{{text("kept"), 1}, {text("type"), text("Samples")}};
    item.content(&object);
    QCOMPARE(
        object,
        (QJsonObject{{text("kept"), 1}, {text("name"), text("Proteins")}, {text("type"), text("Proteins")}}));

    item.setType(BaseItemType::Unknown);
    object = {{text("type"), text("Samples")}};
    item.content(&object);
    QCOMPARE(object.value(text("type")).toString(), text("Samples"));
    item.content(nullptr);
}

void GridMessagesTest::settingContentIsNoEdit()
{
    PlainItem item;
    int edits = 0;
    connect(item.edits(), &GridItemEdits::edited, this, [&] { ++edits; });
    const Error error = item.setContent({{text("type"), text("Samples")}});
    QCOMPARE(error.code(), ErrorCode::MalformedStructure);
    QCOMPARE(error.errorMessage(), text("The object is not initialized."));
    QCOMPARE(edits, 0);
    item.edit();
    QCOMPARE(edits, 1);
}

void GridMessagesTest::customColumnsTellTheirTypes()
{
    IGridItem::ColumnDefinitions definitions;
    definitions[text("Lot")] = {{text("type"), text("text")}};
    definitions[text("Dose")] = {{text("type"), text("Number")}};
    definitions[text("Blank")] = {{text("type"), text("bool")}};
    definitions[text("Odd")] = {{text("type"), text("spectrum")}};
    definitions[text("Untyped")] = {{text("type"), QString()}};
    definitions[text("Empty")] = {};
    const QHash<QString, QMetaType::Type> expected{{text("Lot"), QMetaType::QString},
                                                   {text("Dose"), QMetaType::Double},
                                                   {text("Blank"), QMetaType::Bool},
                                                   {text("Odd"), QMetaType::QString}};
    QCOMPARE(IGridItem::customColumnTypes(definitions), expected);
}

void GridMessagesTest::tablesAreReadFromTheStoredCell()
{
    PlainItem item;
    const QJsonObject table{
        {text("data"), QJsonArray{text("Mass")}},
        {text("children"), QJsonArray{QJsonObject{{text("data"), QJsonArray{text("18.01")}}}}}};
    QVERIFY(item.setContent(settingsCell("Masses", {setting("MassTable", table)})).hasError());
    QCOMPARE(item.table(207).data.toStringList(), QStringList(text("Mass")));
    QCOMPARE(item.table(207).getChildListSize(), 1);
    QVERIFY(item.table(210).data.isEmpty());
}

void GridMessagesTest::copiesHaveListenersOfTheirOwn()
{
    PlainItem item;
    item.setName(text("first"));
    item.setType(BaseItemType::Masses);
    PlainItem copy(item);
    QCOMPARE(copy.name(), text("first"));
    QCOMPARE(copy.type(), BaseItemType::Masses);
    int edits = 0;
    connect(item.edits(), &GridItemEdits::edited, this, [&] { ++edits; });
    copy.edit();
    QCOMPARE(edits, 0);
    PlainItem other;
    other = item;
    QCOMPARE(other.name(), text("first"));
    QVERIFY(other.edits() != item.edits());
}

void GridMessagesTest::theManagerKnowsColumnsOfSettings_data()
{
    QTest::addColumn<int>("number");
    for (int number : {0, 1, 2, 3, 17, 24, 8, 10, 20, 15, 23, 25})
        QTest::addRow("%d", number) << number;
}

void GridMessagesTest::theManagerKnowsColumnsOfSettings()
{
    QFETCH(int, number);
    const GridItemManager manager;
    LogCapture log;
    const std::unique_ptr<IGridItem> item(manager.createItem(BaseItemType(number)));
    QVERIFY(dynamic_cast<KPropertyViewItem *>(item.get()));
    QCOMPARE(int(item->type()), number);
    QVERIFY(log.texts(QtDebugMsg).isEmpty());
}

void GridMessagesTest::otherTypesBecomeSettings()
{
    const GridItemManager manager;
    LogCapture log;
    const std::unique_ptr<IGridItem> item(manager.createItem(BaseItemType::SamplesProteins));
    QVERIFY(dynamic_cast<KPropertyViewItem *>(item.get()));
    QCOMPARE(item->type(), BaseItemType::Unknown);
    QVERIFY(log.texts(QtDebugMsg).contains(text("Creator not registered for type  22")));
    QVERIFY(!item->setContent({{text("type"), text("SamplesProteins")}, {text("properties"), QJsonArray()}})
                 .hasError());
    QCOMPARE(item->content().value(text("type")).toString(), text("SamplesProteins"));
}

void GridMessagesTest::aSecondCreatorReplacesTheFirst()
{
    GridItemManager manager;
    manager.registerCreator(BaseItemType::Karvon, new PlainCreator);
    const std::unique_ptr<IGridItem> item(manager.createItem(BaseItemType::Karvon));
    QVERIFY(dynamic_cast<PlainItem *>(item.get()));
    QCOMPARE(item->type(), BaseItemType::Karvon);
}

void GridMessagesTest::aCustomManagerStandsInForTheLibrarys()
{
    class Custom : public GridItemManager
    {
    public:
        void registerCreators() override { registerCreator(BaseItemType::SamplesProteins, new PlainCreator); }
    };
    GridItemManager *own = GridItemManager::instance();
    {
        Custom custom;
        GridItemManager::setCustomManager(&custom);
        GridItemManager::instance()->registerCreators();
        QCOMPARE(GridItemManager::instance(), &custom);
        const std::unique_ptr<IGridItem> item(
            GridItemManager::instance()->createItem(BaseItemType::SamplesProteins));
        QVERIFY(dynamic_cast<PlainItem *>(item.get()));
        GridItemManager::setCustomManager(nullptr);
    }
    QCOMPARE(GridItemManager::instance(), own);
}

void GridMessagesTest::itemsOfTheManagerShareItsBus()
{
    QStringList log;
    Listener listener(GridItemManager::instance()->communicationManager(), text("listener"), &log);
    const std::unique_ptr<IGridItem> item(GridItemManager::instance()->createItem(BaseItemType::Karvon));
    auto *member = dynamic_cast<GridCommunicative *>(item.get());
    QVERIFY(member);
    Q_EMIT member->sendMessage({member, PropertyId(131), {}, {}});
    QCOMPARE(log, QStringList(text("listener 131")));
}

WIDGET_REGISTER_TEST(GridMessagesTest)
#include "GridMessagesTest.moc"
