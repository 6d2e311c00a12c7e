#include "orv/core_ms/SampleFileFinder.h"

#include <orv/core/FileTypes.h>
#include <orv/core_ms/MsDataFileUtils.h>
#include <orv/samples/SampleUtils.h>

#include <QCollator>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace orv::SampleFileFinder {

namespace {

SamplePathAndName sampleOf(const QString &path)
{
    return {path, SampleUtils::sampleNameWithoutMsExtensionSuffix(QFileInfo(path).fileName())};
}

/// What a folder holds, "run 2" before "run 10".
QStringList entriesOf(const QString &folder)
{
    QStringList names = QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::NoSort);
    QCollator collator{QLocale(QLocale::English)};
    collator.setNumericMode(true);
    std::sort(names.begin(), names.end(), collator);
    return names;
}

void search(const QString &folder, int depth, Found *found)
{
    for (const QString &name : entriesOf(folder)) {
        const QString path = QDir(folder).filePath(name);
        if (found->samples.size() == kMaximumSamples) {
            found->isCut = true;
            return;
        }
        const QFileInfo info(path);
        if (isSample(path))
            found->samples.append(sampleOf(path));
        else if (!info.isDir() || info.isSymLink())
            continue;
        else if (depth < kMaximumDepth)
            search(path, depth + 1, found);
        else
            found->isCut = true;
    }
}

} // namespace

bool isSample(const QString &path)
{
    const auto isProject = [&path](FileType type) { return FileTypes::isType(path, type); };
    return MsDataFileUtils::hasMsExtension(path) || isProject(FileTypes::TOLQ) ||
           std::any_of(std::begin(MirelFileTypes::MULTIDOCALLOWEDFILES),
                       std::end(MirelFileTypes::MULTIDOCALLOWEDFILES), isProject);
}

Found find(const QStringList &paths)
{
    Found found;
    for (const QString &path : paths) {
        const qsizetype before = found.samples.size();
        if (isSample(path))
            found.samples.append(sampleOf(QDir::cleanPath(path)));
        else if (QFileInfo(path).isDir())
            search(QDir::cleanPath(path), 1, &found);
        if (found.samples.size() == before)
            found.leftOut.append(path);
    }
    return found;
}

} // namespace orv::SampleFileFinder
