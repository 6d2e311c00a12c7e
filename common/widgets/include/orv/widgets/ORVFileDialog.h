#pragma once

#include <orv/core/FileExtensionsNameFilter.h>
#include <orv/widgets/Export.h>
#include <orv/widgets/FileSystemSettings.h>

#include <QString>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

/// Dialogs for files and folders: the platform's own where it has one. Each gives an absolute path with "/",
/// or an empty text when nothing was chosen, and remembers the folder for its location. An empty start path
/// begins in the remembered folder; a name without a folder is proposed there. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT ORVFileDialog
{
public:
    enum class OverwritePrompt
    {
        On,
        Off,
    };

    enum class FolderContent
    {
        ShowDirsOnly,
        ShowFiles,
    };

    [[nodiscard]] static QString getOpenFileName(
        QWidget *parent, const QString &title, const QString &startPath = {},
        const FileExtensionsNameFilter &filter = {},
        const FileSystemSettings::DirectoryLocation &location = FileSystemSettings::DefaultLocation);

    /// As many as were chosen; none when it was cancelled.
    [[nodiscard]] static QStringList getOpenFileNames(
        QWidget *parent, const QString &title, const QString &startPath = {},
        const FileExtensionsNameFilter &filter = {},
        const FileSystemSettings::DirectoryLocation &location = FileSystemSettings::DefaultLocation);

    /// The same of what can be a sample: data formats and projects stand first in the dialog.
    [[nodiscard]] static QStringList getSampleFileNames(
        QWidget *parent, const QString &title,
        const FileSystemSettings::DirectoryLocation &location = FileSystemSettings::DefaultLocation);

    /// The name gets the filter's first suffix where it has none of the filter's.
    [[nodiscard]] static QString getSaveFileName(
        QWidget *parent, const QString &title, const QString &startPath = {},
        const FileExtensionsNameFilter &filter = {},
        const FileSystemSettings::DirectoryLocation &location = FileSystemSettings::DefaultLocation,
        OverwritePrompt prompt = OverwritePrompt::On);

    [[nodiscard]] static QString getExistingDirectory(
        QWidget *parent, const QString &title, const QString &startPath = {},
        FolderContent content = FolderContent::ShowDirsOnly,
        const FileSystemSettings::DirectoryLocation &location = FileSystemSettings::DefaultLocation);
};

} // namespace orv
