#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace orv {

/// What tells that a file was written since, without reading it.
struct FileStamp
{
    qint64 size = 0; ///< in bytes
    QDateTime time;  ///< of the last change

    bool operator==(const FileStamp &) const = default;

    /// None for what isn't there.
    [[nodiscard]] static std::optional<FileStamp> of(const QString &path);
};

} // namespace orv
