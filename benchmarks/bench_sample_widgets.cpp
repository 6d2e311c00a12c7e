// Widgets of samples against the item widgets that one would take for them otherwise.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <orv/samples/SamplesAndTracesTables.h>
#include <orv/table_model/TableSheet.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>
#include <orv/widgets/TableEditor.h>

#include <QApplication>
#include <QJsonArray>
#include <QTableWidget>

#include <functional>

using namespace orv;

namespace {

constexpr int kColumns = 10;

int sampleCount()
{
    return Lifelike::isForAMoment() ? 200 : 10000;
}

QJsonObject contentOf(int count)
{
    QJsonArray samples;
    for (int i = 0; i < count; ++i) {
        samples.append(QJsonObject{
            {QStringLiteral("SamplesId"), i + 1},
            {QStringLiteral("SampleName"), QStringLiteral("Plate %1 well %2").arg(i / 96).arg(i % 96)},
            {QStringLiteral("SamplePath"), QStringLiteral("/data/plate%1/run%2.raw").arg(i / 96).arg(i)},
            {QStringLiteral("Condition"), QStringLiteral("dose %1").arg(i % 5)},
            {QStringLiteral("Replicate"), QString::number(i % 3)}});
    }
    return {{QStringLiteral("Samples"), samples}};
}

void add(const char *name, const std::function<void()> &work)
{
    benchmark::RegisterBenchmark(name, [work](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state)
            work();
    })->Unit(benchmark::kMicrosecond);
}

/// Reads the samples, as any widget of them must, and shows their members.
void showInItems(const QJsonObject &content)
{
    const auto read = SamplesAndTracesContent::fromJson(content);
    benchmark::DoNotOptimize(read);
    const QJsonArray samples = content.value(QStringLiteral("Samples")).toArray();
    QTableWidget table(int(samples.size()), kColumns);
    for (int row = 0; row < samples.size(); ++row) {
        const QJsonObject sample = samples[row].toObject();
        int column = 0;
        for (auto it = sample.begin(); it != sample.end(); ++it)
            table.setItem(row, column++, new QTableWidgetItem(it->toVariant().toString()));
        for (; column < kColumns; ++column)
            table.setItem(row, column, new QTableWidgetItem(QString()));
    }
    table.resize(1000, 700);
    table.show();
    benchmark::DoNotOptimize(table.grab());
}

void showInWidget(const QJsonObject &content)
{
    SamplesAndTracesInputWidget widget;
    if (widget.setFromJsonContent(content).hasError())
        qFatal("The samples don't load");
    widget.resize(1000, 700);
    widget.show();
    benchmark::DoNotOptimize(widget.grab());
}

void addFirstFrame()
{
    const auto content = std::make_shared<QJsonObject>(contentOf(sampleCount()));
    add("samples, first frame/baseline", [content] { showInItems(*content); });
    add("samples, first frame/SamplesAndTracesInputWidget", [content] { showInWidget(*content); });
}

/// The widget has read the samples already; the items take the same texts.
void addShow()
{
    const auto content = std::make_shared<QJsonObject>(contentOf(sampleCount()));
    SamplesAndTracesTables tables;
    if (tables.setJsonContent(*content).hasError())
        qFatal("The samples don't load");
    const auto texts = std::make_shared<QList<QStringList>>(tables.samples()->allTexts());
    add("samples read before/baseline", [texts] {
        QTableWidget table(int(texts->size()), int(texts->constFirst().size()));
        for (int row = 0; row < texts->size(); ++row) {
            for (int column = 0; column < table.columnCount(); ++column)
                table.setItem(row, column, new QTableWidgetItem((*texts)[row][column]));
        }
        table.resize(1000, 700);
        table.show();
        benchmark::DoNotOptimize(table.grab());
    });
    benchmark::RegisterBenchmark("samples read before/SamplesAndTracesInputWidget",
                                 [content](benchmark::State &state) {
                                     for ([[maybe_unused]] auto iteration : state) {
                                         state.PauseTiming();
                                         auto widget = std::make_unique<SamplesAndTracesInputWidget>();
                                         if (widget->setFromJsonContent(*content).hasError())
                                             qFatal("The samples don't load");
                                         state.ResumeTiming();
                                         widget->resize(1000, 700);
                                         widget->show();
                                         benchmark::DoNotOptimize(widget->grab());
                                         state.PauseTiming();
                                         widget.reset();
                                         state.ResumeTiming();
                                     }
                                 })
        ->Unit(benchmark::kMicrosecond);
}

void addEditAmong(const char *name, int count, QWidget *owner)
{
    auto *const widget = new SamplesAndTracesInputWidget(owner);
    if (widget->setFromJsonContent(contentOf(count)).hasError())
        qFatal("The samples don't load");
    widget->resize(1000, 700);
    widget->show();
    QApplication::sendPostedEvents();
    auto *const view = widget->findChild<TableView *>();
    const auto run = std::make_shared<int>(0);
    const auto heard = std::make_shared<qsizetype>(0);
    QObject::connect(widget, &SamplesAndTracesInputWidget::samplesChanged, widget,
                     [heard](const QList<SamplesInput::Entry> &samples) { *heard += samples.size(); });
    add(name, [view, run, heard] {
        const qsizetype before = *heard;
        if (view->sheet()->setText(7, 0, QString::number(++*run)).hasError())
            qFatal("No room");
        QApplication::sendPostedEvents();
        benchmark::DoNotOptimize(view->viewport()->grab());
        if (*heard == before)
            qFatal("Nobody heard of the edit");
    });
}

/// An edit with its paint and a listener that looks at the samples, among many and among few. Benchmarks
/// outlive the application, which widgets may not: \a owner has them.
void addEditOfWidget(QWidget *owner)
{
    constexpr int kFew = 50;
    addEditAmong("edit of a sample/baseline", kFew, owner);
    addEditAmong("edit of a sample/among 10,000", sampleCount(), owner);
}

/// One edit and its undo with a listener that keeps the list of samples, against what the list alone costs
/// it.
void addEdit()
{
    const auto tables = std::make_shared<SamplesAndTracesTables>();
    if (tables->setJsonContent(contentOf(sampleCount())).hasError())
        qFatal("The samples don't load");
    const auto told = std::make_shared<QList<SamplesInput::Entry>>();
    QObject::connect(tables.get(), &SamplesAndTracesTables::samplesChanged, tables.get(),
                     [told, all = tables.get()] { *told = all->entries(); });
    const auto list = std::make_shared<QList<SamplesInput::Entry>>(tables->entries());
    add("samples, an edit and its undo/baseline", [list] {
        for (int i = 0; i < 2; ++i) {
            QList<SamplesInput::Entry> copy = *list;
            copy[7].name.clear();
            benchmark::DoNotOptimize(copy);
        }
    });
    const auto run = std::make_shared<int>(0);
    add("samples, an edit and its undo/of 10,000 samples", [tables, run] {
        if (tables->samples()->setText(7, 0, QString::number(++*run)).hasError())
            qFatal("No room");
        tables->samples()->history()->undo();
    });
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    addFirstFrame();
    addShow();
    addEdit();
    QWidget owner;
    addEditOfWidget(&owner);
    return runRatioBenchmarks(argc, argv, Clock::Processor);
}
