// Property sets against a bare hash, the tree against a bare QTreeView, and a table that shows how the time
// of each operation grows with the size of the set.

#include "RatioReporter.h"

#include <KPropertyEditorView>
#include <KPropertySet>

#include <QApplication>
#include <QElapsedTimer>
#include <QStandardItemModel>
#include <QTreeView>

#include <cstdio>
#include <functional>

namespace {

constexpr int kGroups = 40;

QByteArrayList names(int count)
{
    QByteArrayList result;
    result.reserve(count);
    for (int i = 0; i < count; ++i) {
        result.append("property" + QByteArray::number(i));
    }
    return result;
}

QByteArray groupOf(int i)
{
    return "group" + QByteArray::number(i % kGroups);
}

void fill(KPropertySet &set, const QByteArrayList &names)
{
    for (int i = 0; i < names.size(); ++i) {
        set.addProperty(new KProperty(names.at(i), i), groupOf(i));
    }
}

void add(const std::string &name, const std::function<void()> &work)
{
    benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state) {
            work();
        }
    })->Unit(benchmark::kMicrosecond);
}

void addSets()
{
    const QByteArrayList keys = names(10000);
    add("build 10,000/baseline", [keys] {
        QHash<QByteArray, QVariant> hash;
        for (int i = 0; i < keys.size(); ++i) {
            hash.insert(keys.at(i), i);
        }
        benchmark::DoNotOptimize(hash);
    });
    add("build 10,000/KPropertySet", [keys] {
        KPropertySet set;
        fill(set, keys);
        benchmark::DoNotOptimize(set.count());
    });
}

/// The same rows, as one would build them without a property set.
void fillModel(QStandardItemModel &model, const KPropertySet &set)
{
    model.setHorizontalHeaderLabels({QStringLiteral("Name"), QStringLiteral("Value")});
    for (const QByteArray &group : set.groupNames()) {
        auto *const parent = new QStandardItem(set.groupCaption(group));
        for (const QByteArray &name : set.propertyNamesForGroup(group)) {
            const KProperty &property = set.property(name);
            parent->appendRow({new QStandardItem(property.captionOrName()),
                               new QStandardItem(property.value().toString())});
        }
        model.appendRow(parent);
    }
}

void addViews()
{
    const auto set = std::make_shared<KPropertySet>();
    fill(*set, names(2000));
    const auto bare = std::make_shared<QTreeView>();
    const auto view = std::make_shared<KPropertyEditorView>();
    for (QTreeView *each : {bare.get(), static_cast<QTreeView *>(view.get())}) {
        each->resize(500, 900);
        each->show();
    }
    // To the first painted frame: what is put off until then counts, too.
    add("show 2,000 in 40 groups/baseline", [set, bare] {
        QStandardItemModel model;
        fillModel(model, *set);
        bare->setModel(&model);
        bare->expandAll();
        benchmark::DoNotOptimize(bare->grab());
        bare->setModel(nullptr);
    });
    add("show 2,000 in 40 groups/changeSet", [set, view] {
        view->changeSet(set.get());
        benchmark::DoNotOptimize(view->grab());
    });
}

struct Growth
{
    const char *operation;
    std::function<void(KPropertySet &, const QByteArrayList &)> run;
    /// Whether a view shows the set meanwhile, and has caught up with it in the end.
    bool isShown = false;
};

void changeAll(KPropertySet &set, const QByteArrayList &keys)
{
    for (const QByteArray &key : keys) {
        set.changeProperty(key, set.propertyValue(key).toInt() + 1);
    }
}

void removeForwards(KPropertySet &set, const QByteArrayList &keys)
{
    for (const QByteArray &key : keys) {
        set.removeProperty(key);
    }
}

void removeBackwards(KPropertySet &set, const QByteArrayList &keys)
{
    for (auto key = keys.crbegin(); key != keys.crend(); ++key) {
        set.removeProperty(*key);
    }
}

const Growth kGrowths[] = {
    {"add",
     [](KPropertySet &, const QByteArrayList &keys) {
         KPropertySet other;
         fill(other, keys);
     }},
    {"look up",
     [](KPropertySet &set, const QByteArrayList &keys) {
         for (const QByteArray &key : keys) {
             benchmark::DoNotOptimize(set.contains(key));
         }
     }},
    {"change", changeAll},
    {"change, shown", changeAll, true},
    {"insert in the middle",
     [](KPropertySet &set, const QByteArrayList &keys) {
         const KProperty &middle = set.property(keys.at(keys.size() / 2));
         for (const QByteArray &key : keys) {
             set.insertProperty(new KProperty("new-" + key, 1), middle, KPropertySet::Side::Behind);
         }
     }},
    {"group of",
     [](KPropertySet &set, const QByteArrayList &keys) {
         for (const QByteArray &key : keys) {
             benchmark::DoNotOptimize(set.groupNameForProperty(key));
         }
     }},
    {"iterate",
     [](KPropertySet &set, const QByteArrayList &) {
         for (KPropertySetIterator it(set); it.current(); ++it) {
             benchmark::DoNotOptimize(it.current());
         }
     }},
    {"iterate sorted",
     [](KPropertySet &set, const QByteArrayList &) {
         KPropertySetIterator it(set);
         it.setOrder(KPropertySetIterator::Order::Alphabetical);
         benchmark::DoNotOptimize(it.current());
     }},
    {"copy",
     [](KPropertySet &set, const QByteArrayList &) { benchmark::DoNotOptimize(KPropertySet(set).count()); }},
    {"changeSet",
     [](KPropertySet &set, const QByteArrayList &) {
         KPropertyEditorView view;
         view.changeSet(&set);
     }},
    {"remove from the front", removeForwards},
    {"remove from the back", removeBackwards},
    {"remove first, shown", removeForwards, true},
    {"remove last, shown", removeBackwards, true},
};

/// Growth is measured on much; one round on little shows that it still can be.
QList<int> growthCounts()
{
    return qEnvironmentVariableIsSet("ORV_BENCHMARK_MOMENT") ? QList<int>{100, 200}
                                                             : QList<int>{1000, 10000, 100000};
}

qint64 nanoseconds(const Growth &growth, const QByteArrayList &keys)
{
    KPropertySet set;
    fill(set, keys);
    KPropertyEditorView view;
    if (growth.isShown) {
        view.changeSet(&set, keys.first());
        view.show();
        QCoreApplication::processEvents();
    }
    QElapsedTimer timer;
    timer.start();
    growth.run(set, keys);
    if (growth.isShown) {
        QCoreApplication::processEvents();
    }
    return timer.nsecsElapsed();
}

void printGrowth()
{
    std::printf("\nTime per property, in parts of that at 1,000 properties (a quadratic step would give 10 "
                "and 100;\nthe bar is 1.4 for each step)\n");
    std::printf("%-24s %10s %10s %10s\n", "operation", "1,000", "10,000", "100,000");
    for (const Growth &growth : kGrowths) {
        double first = 0.0;
        std::printf("%-24s", growth.operation);
        for (const int count : growthCounts()) {
            const QByteArrayList keys = names(count);
            // The best of several runs: all noise makes slower.
            qint64 best = std::numeric_limits<qint64>::max();
            for (int run = 0; run < (count > 10000 ? 2 : 7); ++run) {
                best = std::min(best, nanoseconds(growth, keys));
            }
            const double perProperty = static_cast<double>(best) / count;
            first = first > 0.0 ? first : perProperty;
            std::printf(" %10.2f", perProperty / first);
        }
        std::printf("\n");
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    addSets();
    addViews();
    const int result = runRatioBenchmarks(argc, argv);
    benchmark::ClearRegisteredBenchmarks();
    printGrowth();
    return result;
}
