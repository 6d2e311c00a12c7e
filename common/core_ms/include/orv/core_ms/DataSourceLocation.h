#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>

#include <QString>
#include <QVariant>

#include <optional>

namespace orv {

class DocumentDatabaseHandler;

namespace msreader {

/// Where the data of a sample lie: on the disk, or inside a project database. A plain value.
struct ORV_WORKFLOW_EXPORT DataSourceLocation
{
    enum class Kind : int
    {
        LocalPath = 1,
        ProjectDatabase = 2,
    };

    /// Which of a source's samples is meant.
    struct Sample
    {
        QString sampleName;
        QString nativeSampleId;

        bool operator==(const Sample &) const = default;
    };

    [[nodiscard]] static DataSourceLocation ofPath(const QString &path);
    /// \a handler is not owned and outlives the location.
    [[nodiscard]] static DataSourceLocation ofDatabase(DocumentDatabaseHandler *handler);

    /// One line for logs.
    [[nodiscard]] QString toString() const;

    /// Fails with InvalidContent for an empty path, and for one that Windows can't open without the long-path
    /// prefix, which it lacks. Doesn't touch the disk.
    [[nodiscard]] static Error checkValidVendorFilePath(const QString &path);

    Kind kind = Kind::LocalPath;
    QString localPath;
    DocumentDatabaseHandler *dbHandler = nullptr;
    std::optional<QString> key;
    std::optional<Sample> sample;
    QVariant payload; ///< whatever the owner of the location wants to find again
};

} // namespace msreader

} // namespace orv
