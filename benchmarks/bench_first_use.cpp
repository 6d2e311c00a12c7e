// What a process pays for its first use of the catalogue, against a bare read and split of the same table.
// Each run is a process of its own, forked off before anything is read.

#include "RatioReporter.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>

#include <QFile>
#include <QLoggingCategory>

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>

using namespace orv;
using namespace Qt::StringLiterals;

namespace {

using Work = void (*)();

/// Fields with a comma come apart here: no more than a lower bound of what reading the table costs.
void readAndSplit()
{
    QFile file(u":/orv/catalogue/properties.csv"_s);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The catalogue is missing");
    QList<QStringList> rows;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n'))
        rows.append(line.split(u','));
    benchmark::DoNotOptimize(rows);
}

void buildCatalogue()
{
    benchmark::DoNotOptimize(PropertiesNames::names());
}

void buildCatalogueAndLists()
{
    buildCatalogue();
    benchmark::DoNotOptimize(&UserVisibleListConverter::listItemsMap());
}

double secondsOf(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Negative where the child gave no answer.
double secondsInFreshProcess(Work work)
{
    int ends[2];
    if (pipe(ends) != 0)
        return -1.0;
    const pid_t child = fork();
    if (child == 0) {
        const double seconds = secondsOf(work);
        _exit(write(ends[1], &seconds, sizeof seconds) == ssize_t(sizeof seconds) ? 0 : 1);
    }
    close(ends[1]);
    double seconds = -1.0;
    if (child < 0 || read(ends[0], &seconds, sizeof seconds) != ssize_t(sizeof seconds))
        seconds = -1.0;
    close(ends[0]);
    if (child > 0)
        waitpid(child, nullptr, 0);
    return seconds;
}

void add(const char *name, Work work)
{
    benchmark::RegisterBenchmark(name,
                                 [work](benchmark::State &state) {
                                     for ([[maybe_unused]] auto iteration : state) {
                                         const double seconds = secondsInFreshProcess(work);
                                         if (seconds < 0.0)
                                             state.SkipWithError("the process failed");
                                         else
                                             state.SetIterationTime(seconds);
                                     }
                                 })
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond);
}

} // namespace

int main(int argc, char *argv[])
{
    QLoggingCategory::setFilterRules(u"orv.*.debug=false"_s);
    add("first use of the catalogue/baseline", readAndSplit);
    add("first use of the catalogue/names", buildCatalogue);
    add("first use of the catalogue/names and lists", buildCatalogueAndLists);
    return runRatioBenchmarks(argc, argv);
}
