#pragma once

#include <orv/core/Export.h>
#include <orv/samples/SamplePathAndName.h>

#include <QList>
#include <QStringList>

/// The samples among files and folders that somebody chose or dropped.
namespace orv::SampleFileFinder {

struct Found
{
    QList<SamplePathAndName> samples; ///< in natural order within a folder
    QStringList leftOut;              ///< paths that hold no sample
    bool isCut = false;               ///< there were more than kMaximumSamples, or deeper folders
};

inline constexpr int kMaximumSamples = 20'000;
inline constexpr int kMaximumDepth = 6;

/// A file or folder with the suffix of mass spectra or of a project is one sample, and a vendor's folder is
/// never looked into; any other folder is searched for samples. Other files inside a folder are passed over
/// silently, named ones are left out. Reads folders, so it may block; any thread.
[[nodiscard]] ORV_WORKFLOW_EXPORT Found find(const QStringList &paths);

/// Whether the name of \a path is that of a sample; doesn't touch the disk.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isSample(const QString &path);

} // namespace orv::SampleFileFinder
