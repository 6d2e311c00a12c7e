// The columns of a tab against the bare trees that one would take for them otherwise, and how the work of
// columns that follow each other grows.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/editors/ORVPropertyFactory.h>
#include <orv/propertyeditor/grid/GridCommunicationManager.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/KPropertyViewItem.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/samples/SamplesInput.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScrollArea>
#include <QStandardItemModel>
#include <QTreeView>

#include <algorithm>
#include <functional>

using namespace orv;

namespace {

using ViewMode = GridPropertyEditorView::PropertiesViewMode;

constexpr int kColumns = 12;
constexpr int kSettings = 79;
constexpr int kGroups = 6;

/// A cell with as many settings as a large search has, every fourth an advanced one.
QJsonObject cell(const QString &samples = QStringLiteral("*"))
{
    QList<PropertyId> ids = allowedProperties(BaseItemType::Karvon).values();
    std::ranges::sort(ids);
    // What the measures need is there whatever the number of settings.
    for (const PropertyId id : {PropertyId::Samples, PropertyId::KarvonDebugMode}) {
        ids.removeOne(id);
        ids.prepend(id);
    }
    QJsonArray settings;
    for (const PropertyId id : std::as_const(ids)) {
        QJsonValue value = PropertySetCreator::storedDefault(id);
        if (value.isUndefined() || settings.size() == kSettings)
            continue;
        if (id == PropertyId::Samples)
            value = samples;
        settings.append(
            QJsonObject{{QStringLiteral("group"), QStringLiteral("Group %1").arg(settings.size() % kGroups)},
                        {QStringLiteral("name"), PropertiesNames::internalNameForType(id)},
                        {QStringLiteral("priority"), settings.size() % 4 == 0 ? 3 : 1},
                        {QStringLiteral("value"), value}});
    }
    return {{QStringLiteral("type"), QStringLiteral("Karvon")}, {QStringLiteral("properties"), settings}};
}

std::unique_ptr<PropertyGridWidget> grid()
{
    const QByteArray bytes = QJsonDocument(cell()).toJson();
    QStringList names;
    VariantItems cells;
    for (int i = 0; i < kColumns; ++i) {
        names.append(QStringLiteral("Column %1").arg(i));
        cells.append(bytes);
    }
    auto made = PropertyGridWidget::create(names, cells);
    if (made.hasError())
        qFatal("%s", qPrintable(made.error().errorMessage()));
    (*made)->setPropertiesViewMode(ViewMode::Advanced);
    (*made)->resize(1280, 800);
    return std::move(made).value();
}

/// The rows of a column as texts.
std::unique_ptr<QStandardItemModel> plainRows(const GridPropertyEditorView &view)
{
    auto rows = std::make_unique<QStandardItemModel>();
    std::map<QByteArray, QStandardItem *> groups;
    for (KPropertySetIterator it(*view.propertySet()); *it; ++it) {
        if (!(*it)->isVisible())
            continue;
        const QByteArray group = view.propertySet()->groupNameForProperty(**it);
        QStandardItem *&parent = groups[group];
        if (!parent) {
            parent = new QStandardItem(QString::fromUtf8(group));
            rows->appendRow({parent, new QStandardItem});
        }
        parent->appendRow(
            {new QStandardItem((*it)->caption()), new QStandardItem((*it)->value().toString())});
    }
    return rows;
}

struct BareTrees
{
    explicit BareTrees(const PropertyGridWidget &shown)
    {
        auto *content = new QWidget;
        auto *layout = new QHBoxLayout(content);
        for (const IGridItem *item : shown.items()) {
            const auto *view = static_cast<GridPropertyEditorView *>(const_cast<IGridItem *>(item)->widget());
            rows.push_back(plainRows(*view));
            auto *tree = new QTreeView;
            tree->setMinimumWidth(400);
            tree->setModel(rows.back().get());
            tree->expandAll();
            layout->addWidget(tree);
            trees.push_back(tree);
        }
        area.setWidgetResizable(true);
        area.setWidget(content);
        area.resize(1280, 800);
    }

    void rebuild()
    {
        for (QTreeView *tree : trees) {
            QAbstractItemModel *model = tree->model();
            tree->setModel(nullptr);
            tree->setModel(model);
            tree->expandAll();
        }
    }

    std::vector<std::unique_ptr<QStandardItemModel>> rows;
    std::vector<QTreeView *> trees;
    QScrollArea area;
};

void add(const std::string &name, const std::function<void()> &work, const std::function<void()> &before = {})
{
    benchmark::RegisterBenchmark(name.c_str(), [work, before](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state) {
            if (before) {
                state.PauseTiming();
                before();
                state.ResumeTiming();
            }
            work();
        }
    })->Unit(benchmark::kMicrosecond);
}

void addTab()
{
    const std::shared_ptr<PropertyGridWidget> shown = grid();
    const auto trees = std::make_shared<BareTrees>(*shown);
    const auto frame = [](QWidget *widget) { benchmark::DoNotOptimize(widget->grab()); };
    (void)shown->grab();
    (void)trees->area.grab();
    add("tab of 12 columns, frame/baseline", [=] { frame(&trees->area); });
    add("tab of 12 columns, frame/grid", [=] { frame(shown.get()); });
    add("tab of 12 columns, made and shown/baseline", [=] {
        BareTrees fresh(*shown);
        frame(&fresh.area);
    });
    const auto made = std::make_shared<std::unique_ptr<PropertyGridWidget>>();
    add("tab of 12 columns, made and shown/grid", [=] {
        *made = grid();
        frame(made->get());
    });
    add("basic and advanced/baseline", [=] {
        trees->rebuild();
        frame(&trees->area);
    });
    const auto isBasic = std::make_shared<bool>(false);
    add("basic and advanced/grid", [=] {
        *isBasic = !*isBasic;
        shown->setPropertiesViewMode(*isBasic ? ViewMode::Basic : ViewMode::Advanced);
        frame(shown.get());
    });
}

QVariant samples(int count, const char *prefix)
{
    QList<SamplesInput::Entry> entries;
    for (int i = 0; i < count; ++i) {
        SamplesInput::Entry entry;
        entry.name = QString::fromUtf8(prefix) + QString::number(i);
        entry.msFile = *ResourceReference::fromString(QStringLiteral("/data/%1.raw").arg(i));
        entries.append(entry);
    }
    return QVariant::fromValue(entries);
}

/// Columns that follow the samples of a workflow.
struct Followers
{
    explicit Followers(int sampleCount, int columns = 1)
        : before(samples(sampleCount, "s"))
        , after(samples(sampleCount, "t"))
    {
        QStringList names;
        for (int i = 0; i < sampleCount; ++i)
            names.append(QStringLiteral("s%1").arg(i));
        for (int i = 0; i < columns; ++i) {
            items.push_back(std::make_unique<KPropertyViewItem>(&bus));
            view(i)->setDocumentType(BaseItemType::Karvon);
            if (items.back()->setContent(cell(names.join(QStringLiteral("; ")))).hasError())
                qFatal("The column doesn't load");
            if (!view(i)->propertySet()->contains("Samples") ||
                !view(i)->propertySet()->contains("KarvonDebugMode"))
                qFatal("The column lacks what is measured");
        }
    }

    [[nodiscard]] GridPropertyEditorView *view(int i) const
    {
        return static_cast<GridPropertyEditorView *>(items.at(size_t(i))->widget());
    }

    /// Every sample is renamed at once.
    void storm()
    {
        items.front()->messageReceived({nullptr, PropertyId::SamplesTable, after, before});
        std::swap(before, after);
    }

    void editOneValue()
    {
        isOn = !isOn;
        view(0)->propertySet()->property("KarvonDebugMode").setValue(isOn);
    }

    GridCommunicationManager bus;
    std::vector<std::unique_ptr<KPropertyViewItem>> items;
    QVariant before;
    QVariant after;
    bool isOn = false;
};

void addGrowth()
{
    const int many = Lifelike::isForAMoment() ? 100 : 10000;
    const auto tenth = std::make_shared<Followers>(many / 10);
    const auto all = std::make_shared<Followers>(many);
    // Linear work gives 1.
    add("renaming 10,000 samples/baseline", [=] {
        for (int i = 0; i < 10; ++i)
            tenth->storm();
    });
    add("renaming 10,000 samples/at once", [=] { all->storm(); });
    const auto small = std::make_shared<Followers>(10, 20);
    const auto large = std::make_shared<Followers>(many, 20);
    add("one value among 20 columns/baseline", [=] { small->editOneValue(); });
    add("one value among 20 columns/with 10,000 samples", [=] { large->editOneValue(); });
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    ORVPropertyFactory::init();
    addTab();
    addGrowth();
    const int result = runRatioBenchmarks(argc, argv);
    // They hold widgets, which go before the application.
    benchmark::ClearRegisteredBenchmarks();
    return result;
}
