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
};

} // namespace orv::msreader
