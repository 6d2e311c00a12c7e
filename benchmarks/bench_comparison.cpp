// What differs between two documents in which every setting differs, and taking all of it over, against the
// bare parse of one of them.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <orv/propertyeditor/workflow/WorkflowDifferences.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <functional>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

void add(const char *name, const std::function<void()> &work)
{
    benchmark::RegisterBenchmark(name, [work](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state)
            work();
    })->Unit(benchmark::kMicrosecond);
}

} // namespace

int main(int argc, char *argv[])
{
    const QByteArray text = Lifelike::document(Lifelike::sized(10'000), 20);
    const QJsonObject left = QJsonDocument::fromJson(text).object();
    const QJsonObject right = QJsonDocument::fromJson(Lifelike::allWrong(text)).object();
    // The same bytes, but nothing of them shared.
    const QJsonObject same = QJsonDocument::fromJson(text).object();
    QSet<qsizetype> all;
    const qsizetype count = WorkflowDifferences::between(left, right, false).size();
    for (qsizetype i = 0; i < count; ++i)
        all.insert(i);
    if (all.isEmpty())
        qFatal("The benchmark's documents are equal");
    add("comparison/baseline", [text] { benchmark::DoNotOptimize(QJsonDocument::fromJson(text)); });
    add("comparison/equal documents",
        [left, same] { benchmark::DoNotOptimize(WorkflowDifferences::between(left, same, false)); });
    add("comparison/everything differs",
        [left, right] { benchmark::DoNotOptimize(WorkflowDifferences::between(left, right, false)); });
    add("comparison/everything is taken over", [left, right, all] {
        benchmark::DoNotOptimize(WorkflowDifferences::takenOver(left, right, all, false));
    });
    return runRatioBenchmarks(argc, argv);
}
