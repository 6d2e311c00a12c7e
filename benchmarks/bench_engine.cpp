// Parameter files of the search engine: one of them against the bare concatenation of its lines, and those of
// 1,000 samples by the command line against a plain loop that writes the same bytes.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/engine/KarvonPresetCreator.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QProcess>
#include <QTemporaryDir>

#include <functional>
#include <memory>

using namespace orv;
using PropertyEditor::Content;
using PropertyEditor::KeyValueItem;

namespace {

constexpr int kSamples = 1000;

void keep(auto &&value)
{
    benchmark::DoNotOptimize(value);
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("The benchmark's files can't be written");
}

/// A workflow of 1,000 samples with one search; the samples' files are in \a folder if they are there at all.
QByteArray document(const QString &folder)
{
    return Lifelike::document(Lifelike::sized(kSamples), 1).replace("/data/2023/antibody", folder.toUtf8());
}

void add(const std::string &name, const std::function<void()> &work)
{
    benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state)
            work();
    })->Unit(benchmark::kMicrosecond);
}

/// Each run starts with an empty folder, whose removal doesn't count.
void addInFolder(const std::string &name, const std::function<bool(const QString &)> &work)
{
    benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state) {
            state.PauseTiming();
            auto folder = std::make_unique<QTemporaryDir>();
            state.ResumeTiming();
            if (!work(folder->path()))
                state.SkipWithError("the files can't be written");
            state.PauseTiming();
            folder.reset();
            state.ResumeTiming();
        }
    })->Unit(benchmark::kMicrosecond);
}

void addOneFile(const QString &folder)
{
    const auto content = std::make_shared<Content>();
    if (content->assignFromJson(QJsonDocument::fromJson(document(folder)).object()).hasError())
        qFatal("The benchmark's workflow can't be loaded");
    const auto *item = qobject_cast<KeyValueItem *>(content->findAllItems(BaseItemType::Karvon).first());
    const auto creator = std::make_shared<KarvonPresetCreator>(*content, *item);
    const QString sample = content->sampleNames().last();
    const QString database = folder + QStringLiteral("/human.fasta");
    const QByteArray file = creator->presetForSample(sample, database);
    if (!file.contains(".mzML"))
        qFatal("The benchmark's sample has no file");

    QList<QByteArray> lines;
    for (const QByteArray &line : file.split('\n')) {
        if (!line.startsWith('#') && !line.isEmpty())
            lines.append(line + '\n');
    }
    add("one file/baseline", [lines] {
        QByteArray text;
        for (const QByteArray &line : lines)
            text += line;
        keep(text);
    });
    add("one file/presetForSample", [=] { keep(creator->presetForSample(sample, database)); });
    add("one file/the first, with its creator",
        [=] { keep(KarvonPresetCreator(*content, *item).presetForSample(sample, database)); });
    add("one file/a sample without a file",
        [=] { keep(creator->presetForSample(QStringLiteral("nobody"), database)); });
}

void addAllFiles(const std::string &group, const QString &workflow)
{
    const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/orv-workflow");
    const auto run = [=](const QString &folder, const QStringList &options) {
        QProcess process;
        process.setStandardOutputFile(QProcess::nullDevice());
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(program, QStringList{QStringLiteral("xenoset"), workflow, QStringLiteral("--all"),
                                           QStringLiteral("-o"), folder} +
                                   options);
        return process.waitForFinished(60000) && process.exitCode() == 0;
    };
    const QTemporaryDir once;
    if (!run(once.path(), {}))
        qFatal("The benchmark's files can't be made");
    QList<QPair<QString, QByteArray>> files;
    for (const QString &name : QDir(once.path()).entryList(QDir::Files)) {
        QFile file(once.filePath(name));
        (void)file.open(QIODevice::ReadOnly);
        files.append({name, file.readAll()});
    }
    if (files.size() != Lifelike::sized(kSamples))
        qFatal("A sample of the benchmark has no file");
    addInFolder(group + "/baseline", [files](const QString &folder) {
        for (const auto &[name, bytes] : files)
            write(folder + QLatin1Char('/') + name, bytes);
        return true;
    });
    addInFolder(group + "/xenoset --all", [=](const QString &folder) { return run(folder, {}); });
    addInFolder(group + "/xenoset --all, one thread", [=](const QString &folder) {
        return run(folder, {QStringLiteral("--jobs"), QStringLiteral("1")});
    });
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("orv.*.debug=false\norv.*.info=false"));
    const QTemporaryDir folder;
    for (int i = 0; i < Lifelike::sized(kSamples); ++i)
        write(folder.filePath(QStringLiteral("antibody_digest_%1.mzML").arg(i, 5, 10, QLatin1Char('0'))), {});
    const QString workflow = folder.filePath(QStringLiteral("study.wflw"));
    write(workflow, document(folder.path()));
    const QString elsewhere = folder.filePath(QStringLiteral("elsewhere.wflw"));
    write(elsewhere, document(folder.filePath(QStringLiteral("missing"))));

    addOneFile(folder.path());
    addAllFiles("1,000 files", workflow);
    addAllFiles("1,000 files, spectra elsewhere", elsewhere);
    return runRatioBenchmarks(argc, argv);
}
