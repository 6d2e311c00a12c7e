#include "LogCapture.h"
#include "PersonActs.h"
#include "WholeWorkflow.h"
#include "WidgetTest.h"

#include <orv/propertyeditor/editors/ORVPropertyFactory.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>

#include <QSplitter>
#include <QTemporaryDir>

#include <numeric>

using namespace orv;
using namespace GridFixture;

namespace {

/// A column of samples and one that follows it, in a window, on a bus; each part can go at any time.
struct Parts
{
    explicit Parts(BaseItemType follower)
    {
        IGridItem *second =
            follower == BaseItemType::Karvon   ? static_cast<IGridItem *>(new KPropertyViewItem(bus.get()))
            : follower == BaseItemType::Masses ? static_cast<IGridItem *>(new MassTableItem(bus.get()))
                                               : new IntactProteinsItem(bus.get());
        const QList<std::pair<IGridItem *, BaseItemType>> made = {
            {new SamplesViewItem(bus.get()), BaseItemType::Samples}, {second, follower}};
        for (const auto &[item, kind] : made) {
            if (auto *view = qobject_cast<GridPropertyEditorView *>(item->widget()))
                view->setDocumentType(kind);
            if (item->setContent(WholeWorkflow::defaultCell(kind)).hasError())
                qFatal("The fixture doesn't load");
            item->widget()->setParent(window.get());
            items.emplace_back(item);
        }
    }

    static constexpr int kCount = 4;

    void destroy(int part)
    {
        if (part == 0)
            bus.reset();
        else if (part == 1)
            window.reset();
        else
            items.at(size_t(part) - 2).reset();
    }

    /// What is left is asked and made to speak.
    void use()
    {
        for (const auto &item : items) {
            if (!item)
                continue;
            (void)item->content();
            if (auto *samples = qobject_cast<SamplesAndTracesInputWidget *>(item->widget()))
                samples->addNewSampleFiles({{text("/data/%1.raw").arg(++added), text("s%1").arg(added)}});
        }
        QCoreApplication::processEvents();
    }

    std::unique_ptr<GridCommunicationManager> bus = std::make_unique<GridCommunicationManager>();
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    std::vector<std::unique_ptr<IGridItem>> items;
    int added = 0;
};

/// Closes the grid as soon as another column speaks.
class Closer : public GridCommunicative
{
public:
    using GridCommunicative::GridCommunicative;
    void messageReceived(const GridMessage &) override { delete grid; }
    QPointer<PropertyGridWidget> grid;
};

enum class Victim
{
    Widget,
    Item,
    Everything,
};

} // namespace

Q_DECLARE_METATYPE(Victim)

class LifetimesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void partsGoInEveryOrder_data();
    void partsGoInEveryOrder();
    void whoHearsOfAnEditMayDestroy_data();
    void whoHearsOfAnEditMayDestroy();
    void aRemovedItemIsGoneWhenTheEditIsTold();
    void whoHearsOfAColumnBeingFilledMayCloseTheGrid();
    void whoHearsOfANewSetMayCloseTheView();
    void whoHearsOfTypedTextMayCloseTheColumn_data();
    void whoHearsOfTypedTextMayCloseTheColumn();
    void whoHearsOfTypedTextMayCloseTheGrid_data();
    void whoHearsOfTypedTextMayCloseTheGrid();
    void whoHearsOfARemovedPropertyMayCloseTheColumn_data();
    void whoHearsOfARemovedPropertyMayCloseTheColumn();
    void whoHearsOfAStampMayCloseTheColumn();
    void whoSeesButtonsComeMayCloseTheGrid();
    void whoHearsOfAnEditedGridMayCloseIt_data();
    void whoHearsOfAnEditedGridMayCloseIt();
};

void LifetimesTest::initTestCase()
{
    ORVPropertyFactory::init();
}

void LifetimesTest::partsGoInEveryOrder_data()
{
    QTest::addColumn<BaseItemType>("follower");
    for (const BaseItemType kind : {BaseItemType::Karvon, BaseItemType::Masses, BaseItemType::IntactProteins})
        QTest::newRow(qPrintable(WholeWorkflow::nameOf(kind))) << kind;
}

void LifetimesTest::partsGoInEveryOrder()
{
    QFETCH(BaseItemType, follower);
    const LogCapture log;
    std::array<int, Parts::kCount> order{};
    std::iota(order.begin(), order.end(), 0);
    int orders = 0;
    do {
        Parts parts(follower);
        for (const int part : order) {
            parts.use();
            parts.destroy(part);
        }
        parts.use();
        ++orders;
    } while (std::next_permutation(order.begin(), order.end()));
    QCOMPARE(orders, 24);
}

void LifetimesTest::whoHearsOfAnEditMayDestroy_data()
{
    QTest::addColumn<BaseItemType>("kind");
    QTest::addColumn<Victim>("victim");
    for (const BaseItemType kind : WholeWorkflow::kinds()) {
        const QString name = WholeWorkflow::nameOf(kind);
        QTest::newRow(qPrintable(name + text(", widget"))) << kind << Victim::Widget;
        QTest::newRow(qPrintable(name + text(", item"))) << kind << Victim::Item;
        QTest::newRow(qPrintable(name + text(", everything"))) << kind << Victim::Everything;
    }
}

void LifetimesTest::whoHearsOfAnEditMayDestroy()
{
    QFETCH(BaseItemType, kind);
    QFETCH(Victim, victim);
    const LogCapture log;
    const PersonActs::Blunt answers(true);
    WholeWorkflow::Columns columns;
    QPointer<QWidget> widget = columns.item(kind).widget();
    widget->resize(700, 600);
    widget->show();
    QVERIFY(QTest::qWaitForWindowActive(widget));
    bool isTold = false;
    connect(columns.item(kind).edits(), &GridItemEdits::edited, this, [&] {
        if (std::exchange(isTold, true))
            return;
        if (victim == Victim::Widget)
            delete widget;
        else if (victim == Victim::Item)
            columns.items.at(kind).reset();
        else
            columns.items.clear();
    });
    for (int round = 0; round < 2 && !isTold && widget; ++round) {
        for (const PersonActs::Act &act : PersonActs::actsOf(widget)) {
            PersonActs::perform(act);
            if (isTold)
                break;
        }
    }
    QVERIFY2(isTold, "Nothing was edited");
    QCoreApplication::processEvents();
}

void LifetimesTest::whoHearsOfAnEditedGridMayCloseIt_data()
{
    QTest::addColumn<BaseItemType>("kind");
    for (const BaseItemType kind : WholeWorkflow::kinds())
        QTest::newRow(qPrintable(WholeWorkflow::nameOf(kind))) << kind;
}

void LifetimesTest::whoHearsOfAnEditedGridMayCloseIt()
{
    QFETCH(BaseItemType, kind);
    const LogCapture log;
    const PersonActs::Blunt answers(true);
    const WholeWorkflow::HostManager manager;
    auto made = PropertyGridWidget::create({text("A")}, {cellOf(WholeWorkflow::defaultCell(kind))});
    QVERIFY(!made.hasError());
    QPointer<PropertyGridWidget> grid = std::move(made).value().release();
    grid->resize(900, 600);
    grid->show();
    QVERIFY(QTest::qWaitForWindowActive(grid));
    connect(grid, &PropertyGridWidget::contentEdited, this, [&] { delete grid; });
    for (int round = 0; round < 2 && grid; ++round) {
        for (const PersonActs::Act &act : PersonActs::actsOf(grid)) {
            PersonActs::perform(act);
            if (!grid)
                break;
        }
    }
    QVERIFY2(!grid, "Nothing was edited");
    QCoreApplication::processEvents();
}

void LifetimesTest::aRemovedItemIsGoneWhenTheEditIsTold()
{
    const auto made = PropertyGridWidget::create({text("A"), text("B")},
                                                 {cellOf(karvonCell("A")), cellOf(karvonCell("B"))});
    QVERIFY(!made.hasError());
    PropertyGridWidget *grid = made->get();
    const QPointer<GridItemEdits> removed = grid->items().at(1)->edits();
    bool isGone = false;
    connect(grid, &PropertyGridWidget::contentEdited, this, [&] { isGone = removed.isNull(); });
    grid->removeColumn(1);
    QVERIFY(isGone);
}

void LifetimesTest::whoHearsOfAColumnBeingFilledMayCloseTheGrid()
{
    const WholeWorkflow::HostManager manager;
    auto made = PropertyGridWidget::create({}, {});
    QVERIFY(!made.hasError());
    QPointer<PropertyGridWidget> grid = std::move(made).value().release();
    Closer closer(manager.communicationManager());
    closer.grid = grid;
    const LogCapture log;
    grid->appendColumn(BaseItemType::Samples, text("New"), true);
    QVERIFY(!grid);
    QVERIFY(log.texts(QtCriticalMsg).value(0).contains(text("The column was removed while it was added.")));
}

void LifetimesTest::whoHearsOfANewSetMayCloseTheView()
{
    QPointer<GridPropertyEditorView> view = new GridPropertyEditorView;
    view->setDocumentType(BaseItemType::Karvon);
    connect(view, &GridPropertyEditorView::propertySetChanged, this, [view] { delete view; });
    QVERIFY(!view->setPropertiesFromSerializedJson(bytes(karvonCell())).hasError());
    QVERIFY(!view);
}

namespace {

/// A fragment tolerance that is typed and not yet taken.
void typeTolerance(KPropertyEditorView &tree)
{
    QVERIFY(LeavingWays::open(tree, "KarvonFragmentMassError"));
    LeavingWays::type(text("0.43 Da"));
}

using ColumnAct = void (*)(GridPropertyEditorView &);
using GridAct = void (*)(PropertyGridWidget &);

/// Does something as soon as a widget is shown or hidden.
class ShowWatch : public QObject
{
public:
    explicit ShowWatch(std::function<void()> act)
        : m_act(std::move(act))
    {}
    bool eventFilter(QObject *, QEvent *event) override
    {
        if ((event->type() == QEvent::Show || event->type() == QEvent::Hide) && m_act)
            std::exchange(m_act, {})();
        return false;
    }

private:
    std::function<void()> m_act;
};

} // namespace

Q_DECLARE_METATYPE(ColumnAct)
Q_DECLARE_METATYPE(GridAct)

void LifetimesTest::whoHearsOfTypedTextMayCloseTheColumn_data()
{
    QTest::addColumn<ColumnAct>("act");
    using Mode = GridPropertyEditorView::PropertiesViewMode;
    const std::pair<const char *, ColumnAct> acts[] = {
        {"another mode", [](GridPropertyEditorView &view) { view.setPropertiesViewMode(Mode::Advanced); }},
        {"another set",
         [](GridPropertyEditorView &view) {
             QVERIFY(!view.setPropertiesFromSerializedJson(bytes(karvonCell())).hasError());
         }},
        {"Enter",
         [](GridPropertyEditorView &) {
             QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
             QCoreApplication::processEvents();
         }},
        {"Tab", [](GridPropertyEditorView &) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); }},
        {"acceptInput", [](GridPropertyEditorView &view) { view.editorView()->acceptInput(); }},
    };
    for (const auto &[name, act] : acts)
        QTest::newRow(name) << act;
}

void LifetimesTest::whoHearsOfTypedTextMayCloseTheColumn()
{
    QFETCH(ColumnAct, act);
    const LogCapture log;
    auto column = std::make_unique<Column>();
    QPointer<GridPropertyEditorView> view = column->view;
    typeTolerance(*view->editorView());
    QVariant typed;
    connect(view, &GridPropertyEditorView::propertyChanged, this, [&](KPropertySet &, KProperty &property) {
        if (typed.isValid())
            return;
        typed = property.value();
        delete view;
    });
    act(*view);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!view);
    QCOMPARE(Documents::parse(typed.toByteArray()).value(text("value")).toDouble(), 0.43);
}

void LifetimesTest::whoHearsOfTypedTextMayCloseTheGrid_data()
{
    QTest::addColumn<GridAct>("act");
    QTest::addColumn<bool>("closesAll");
    using Mode = GridPropertyEditorView::PropertiesViewMode;
    const std::pair<const char *, GridAct> acts[] = {
        {"another mode", [](PropertyGridWidget &grid) { grid.setPropertiesViewMode(Mode::Advanced); }},
        {"a removed column", [](PropertyGridWidget &grid) { grid.removeColumn(0); }},
        {"all columns removed", [](PropertyGridWidget &grid) { grid.removeAllColumns(); }},
    };
    for (const auto &[name, act] : acts) {
        QTest::addRow("%s, the grid goes", name) << act << true;
        QTest::addRow("%s, other columns go", name) << act << false;
    }
}

void LifetimesTest::whoHearsOfTypedTextMayCloseTheGrid()
{
    QFETCH(GridAct, act);
    QFETCH(bool, closesAll);
    const LogCapture log;
    auto made = PropertyGridWidget::create(
        {text("A"), text("B"), text("C")},
        {cellOf(karvonCell("A")), cellOf(karvonCell("B")), cellOf(karvonCell("C"))});
    QVERIFY(!made.hasError());
    QPointer<PropertyGridWidget> grid = std::move(made).value().release();
    const QPointer<PropertyGridWidget> guard = grid;
    grid->resize(1300, 600);
    grid->show();
    QVERIFY(QTest::qWaitForWindowActive(grid));
    auto *first = static_cast<GridPropertyEditorView *>(grid->items().constFirst()->widget());
    typeTolerance(*first->editorView());
    bool isTold = false;
    connect(first, &GridPropertyEditorView::propertyChanged, this, [&] {
        if (std::exchange(isTold, true))
            return;
        if (closesAll)
            delete grid;
        else
            while (grid->splitter()->count() > 1)
                grid->removeColumn(1);
    });
    act(*grid);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(isTold);
    QCOMPARE(grid.isNull(), closesAll);
    delete grid;
}

void LifetimesTest::whoHearsOfARemovedPropertyMayCloseTheColumn_data()
{
    QTest::addColumn<bool>("modifies");
    QTest::newRow("removed") << false;
    QTest::newRow("modified") << true;
}

void LifetimesTest::whoHearsOfARemovedPropertyMayCloseTheColumn()
{
    QFETCH(bool, modifies);
    const LogCapture log;
    const PersonActs::Blunt answers(true);
    Column column;
    column.view->setEditorMode(GridPropertyEditorView::EditorMode::Designer);
    column.select("KarvonLayout");
    const QPointer<GridPropertyEditorView> view = column.view;
    connect(&column.set(), &KPropertySet::aboutToDeleteProperty, this, [view] { delete view; });
    for (QAbstractButton *button : view->findChildren<QAbstractButton *>()) {
        if (button->toolTip() == (modifies ? text("Modify property") : text("Remove property"))) {
            QTest::mouseClick(button, Qt::LeftButton);
            break;
        }
    }
    QVERIFY(!view);
}

void LifetimesTest::whoHearsOfAStampMayCloseTheColumn()
{
    const LogCapture log;
    const QTemporaryDir folder;
    ScriptedAnswerer answers;
    answers.expectPath(text("Save preset to file"), folder.filePath(text("search.ptcell")));
    Column column;
    column.view->setEditorMode(GridPropertyEditorView::EditorMode::Designer);
    const QPointer<GridPropertyEditorView> view = column.view;
    for (KPropertySetIterator property(column.set()); *property; ++property) {
        if ((*property)->name().endsWith("metadata"))
            (*property)->setValue(QByteArray("{\"version\":\"5.0.0\"}"));
    }
    connect(view, &GridPropertyEditorView::propertyChanged, this, [view] { delete view; });
    for (QAbstractButton *button : view->findChildren<QAbstractButton *>()) {
        if (button->toolTip() == text("Save preset to file")) {
            QTest::mouseClick(button, Qt::LeftButton);
            break;
        }
    }
    QVERIFY(answers.isDone());
    QVERIFY(!view);
}

void LifetimesTest::whoSeesButtonsComeMayCloseTheGrid()
{
    const LogCapture log;
    for (const bool closesAll : {true, false}) {
        auto made = PropertyGridWidget::create({text("A"), text("B")},
                                               {cellOf(karvonCell("A")), cellOf(karvonCell("B"))});
        QVERIFY(!made.hasError());
        QPointer<PropertyGridWidget> grid = std::move(made).value().release();
        grid->show();
        ShowWatch watch([&] {
            if (closesAll)
                grid->deleteLater();
            else
                grid->removeColumn(1);
        });
        QWidget *first = grid->items().constFirst()->widget();
        for (QAbstractButton *button : first->findChildren<QAbstractButton *>())
            button->installEventFilter(&watch);
        grid->setEditorMode(GridPropertyEditorView::EditorMode::Designer);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(grid.isNull(), closesAll);
        if (grid)
            QCOMPARE(grid->items().size(), 1);
        delete grid;
    }
}

WIDGET_REGISTER_TEST(LifetimesTest)
#include "LifetimesTest.moc"
