#pragma once

#include <QString>

namespace orv::msreader {

/// What a reader is to read.
struct MsReaderOptions
{
    explicit MsReaderOptions(const QString &localPath)
        : path(localPath)
    {}

    QString path; ///< of a local file or folder
    /// Whether the index at the end of an mzML file is followed. Without it files are read from front to
    /// back.
    bool usesIndex = true;
};

} // namespace orv::msreader
