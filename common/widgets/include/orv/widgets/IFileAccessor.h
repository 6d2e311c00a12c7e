#pragma once

#include <orv/core/FileExtensionsNameFilter.h>
#include <orv/core/Result.h>
#include <orv/resources/ResourceReference.h>
#include <orv/widgets/Export.h>
#include <orv/widgets/FileSystemSettings.h>

#include <functional>
#include <memory>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

/// Where a person wants a file to be saved: on a disk or on a server. A plain value.
class ORV_PROPERTY_EDITOR_EXPORT DestinationFileLocation
{
public:
    /// Nothing was chosen.
    DestinationFileLocation() = default;
    explicit DestinationFileLocation(ResourceReferenceSPtr reference)
        : m_reference(std::move(reference))
    {}

    [[nodiscard]] bool isCanceled() const { return m_reference.isNull() || m_reference->isEmpty(); }
    /// Null when nothing was chosen.
    [[nodiscard]] const ResourceReferenceSPtr &reference() const { return m_reference; }

private:
    ResourceReferenceSPtr m_reference;
};

/// Files where this application keeps them. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT IFileAccessor
{
public:
    IFileAccessor() = default;
    virtual ~IFileAccessor();
    Q_DISABLE_COPY_MOVE(IFileAccessor)

    /// A local path that can be read; empty when nothing was chosen.
    [[nodiscard]] virtual QString getOpenFileName(QWidget *parent, const QString &title,
                                                  const QString &startPath,
                                                  const FileExtensionsNameFilter &filter,
                                                  const FileSystemSettings::DirectoryLocation &location) = 0;

    [[nodiscard]] virtual DestinationFileLocation
    getSaveFileName(QWidget *parent, const QString &title, const QString &startPath,
                    const FileExtensionsNameFilter &filter,
                    const FileSystemSettings::DirectoryLocation &location) = 0;

    /// Calls \a write once with a local path, and takes the file from there to \a destination. Fails as
    /// \a write does, and where the destination can't be reached.
    [[nodiscard]] virtual Error saveFile(const DestinationFileLocation &destination,
                                         const std::function<Error(const QString &localPath)> &write) = 0;
};

} // namespace orv
