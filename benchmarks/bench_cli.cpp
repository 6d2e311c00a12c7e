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

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const QByteArray bytes = Lifelike::document(6, 2);
    QStringList files;
    for (int i = 0; i < 1000; ++i) {
        files.append(folder.filePath(QStringLiteral("%1.wflw").arg(i)));
        QFile file(files.constLast());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("The benchmark's files can't be written");
    }
    add("one document/baseline", "bare_gui_program", {});
    add("one document/info", "orv-workflow", {QStringLiteral("info"), files.first()});
    add("one document/info --json", "orv-workflow",
        {QStringLiteral("info"), QStringLiteral("--json"), files.first()});
    add("1,000 documents/baseline", "bare_parse_program", files);
    add("1,000 documents/info", "orv-workflow", {QStringLiteral("info"), folder.path()});
    add("1,000 documents/info --json", "orv-workflow",
        {QStringLiteral("info"), QStringLiteral("--json"), folder.path()});
    return runRatioBenchmarks(argc, argv);
}
