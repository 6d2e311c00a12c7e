// Whole runs of the command line against bare programs.

#include "LifelikeDocument.h"
#include "RatioReporter.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

QString programPath(const char *name)
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + QString::fromLatin1(name);
}

void add(const std::string &name, const char *program, const QStringList &arguments)
{
    const QString path = programPath(program);
    benchmark::RegisterBenchmark(name.c_str(), [path, arguments](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state) {
            QProcess process;
            process.setStandardOutputFile(QProcess::nullDevice());
            process.start(path, arguments);
            if (!process.waitForFinished(60000) || process.exitCode() != 0)
                state.SkipWithError("the program failed");
        }
    })->Unit(benchmark::kMicrosecond);
}

QString written(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("The benchmark's files can't be written");
    return path;
}

void addSet(const QTemporaryDir &folder)
{
    const QString large = written(folder.filePath(QStringLiteral("large")), Lifelike::document(13200, 2));
    const QString output = folder.filePath(QStringLiteral("changed"));
    add("change of 5 MB/baseline", "bare_write_program", {large, output});
    add("change of 5 MB/set", "orv-workflow",
        {QStringLiteral("set"), large, QStringLiteral("--tab"), QStringLiteral("Processing"),
         QStringLiteral("--column"), QStringLiteral("Step 1"), QStringLiteral("KarvonMaxPrecursors=2"),
         QStringLiteral("-o"), output});
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const QByteArray bytes = Lifelike::document(6, 2);
    QStringList files;
    for (int i = 0; i < Lifelike::sized(1000); ++i)
        files.append(written(folder.filePath(QStringLiteral("%1.wflw").arg(i)), bytes));
    add("one document/baseline", "bare_gui_program", {});
    add("one document/info", "orv-workflow", {QStringLiteral("info"), files.first()});
    add("one document/info --json", "orv-workflow",
        {QStringLiteral("info"), QStringLiteral("--json"), files.first()});
    add("1,000 documents/baseline", "bare_parse_program", files);
    add("1,000 documents/info", "orv-workflow", {QStringLiteral("info"), folder.path()});
    add("1,000 documents/info --json", "orv-workflow",
        {QStringLiteral("info"), QStringLiteral("--json"), folder.path()});
    addSet(folder);
    return runRatioBenchmarks(argc, argv);
}
