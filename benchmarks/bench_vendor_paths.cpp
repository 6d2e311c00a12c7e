// Which format a path holds, by name and on the disk, against the bare question whether it is there.

#include "RatioReporter.h"

#include <orv/core_ms/MsFileInfo.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

#include <functional>

using namespace orv::msreader;
using namespace Qt::StringLiterals;

namespace {

constexpr int kPaths = 10000;

/// What a study's folder holds, one of each kind after the other.
struct Kind
{
    const char *name;   ///< behind the number of the run
    const char *inside; ///< what makes a folder of it, null for a file
};

constexpr Kind kKinds[] = {
    {".raw", nullptr},  {".raw", "_FUNC001.DAT"}, {".d", "AcqData/MSScan.bin"}, {".d", "analysis.tdf"},
    {".mzML", nullptr}, {".wiff.scan", nullptr},  {".d", "0_A1/1/1SLin/fid"},   {".txt", nullptr},
};

void addFile(const QString &path)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly))
        qFatal("Can't write %s", qPrintable(path));
}

QStringList makeRuns(const QString &folder)
{
    QStringList paths;
    for (int i = 0; i < kPaths; ++i) {
        const Kind &kind = kKinds[i % std::size(kKinds)];
        const QString path = u"%1/run_%2%3"_s.arg(folder).arg(i).arg(QLatin1StringView(kind.name));
        addFile(kind.inside ? path + u'/' + QLatin1StringView(kind.inside) : path);
        paths.append(path);
    }
    return paths;
}

void add(const char *name, const QStringList &paths, const std::function<bool(const QString &)> &work)
{
    benchmark::RegisterBenchmark(name, [=](benchmark::State &state) {
        for ([[maybe_unused]] auto iteration : state) {
            int found = 0;
            for (const QString &path : paths)
                found += work(path) ? 1 : 0;
            benchmark::DoNotOptimize(found);
        }
    });
}

bool isThere(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const QStringList paths = makeRuns(folder.path());
    add("10000 paths/baseline", paths, isThere);
    add("10000 paths/all formats by name", paths, [](const QString &path) {
        return !MsFileInfo::detectFormatByName(DataSourceLocation::ofPath(path)).isEmpty();
    });
    add("10000 paths/first format by name", paths,
        [](const QString &path) { return MsFileInfo::isRecognised(DataSourceLocation::ofPath(path), true); });
    add("10000 paths/all formats on the disk", paths, [](const QString &path) {
        return !MsFileInfo::detectFormat(DataSourceLocation::ofPath(path)).isEmpty();
    });
    add("10000 paths/first format on the disk", paths, [](const QString &path) {
        return MsFileInfo::isRecognised(DataSourceLocation::ofPath(path), false);
    });
    return runRatioBenchmarks(argc, argv);
}
