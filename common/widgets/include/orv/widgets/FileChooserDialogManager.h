#pragma once

#include <orv/core/FileExtensionsNameFilter.h>
#include <orv/resources/ResourceReference.h>
#include <orv/widgets/Export.h>
#include <orv/widgets/FileSystemSettings.h>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

/// Which files and server objects may be chosen. A plain value.
struct ResourceReferenceFilter
{
    FileExtensionsNameFilter types; ///< all where it is empty
};

/// How a chooser begins. A plain value.
struct FileChooserDialogOptions
{
    QString title; ///< a general one where it is empty
    ResourceReferenceFilter filter;
    ResourceReferenceSPtr start; ///< null for the remembered folder
};

/// The chooser for references to files and server objects. GUI thread.
namespace FileChooserDialogManager {

/// Shows it and waits; null when nothing was chosen. \a page is the number of the page to begin with, for
/// choosers of hosts that have several.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT ResourceReferenceSPtr
showFileChooser(const FileChooserDialogOptions &options, QWidget *parent, int page = 0,
                const FileSystemSettings::DirectoryLocation &location = FileSystemSettings::DefaultLocation);

/// A chooser of the host, which knows its servers; an empty function brings back the own one, which knows the
/// disks of this computer.
using Chooser =
    std::function<ResourceReferenceSPtr(const FileChooserDialogOptions &options, QWidget *parent, int page,
                                        const FileSystemSettings::DirectoryLocation &location)>;
ORV_PROPERTY_EDITOR_EXPORT void setChooser(Chooser chooser);

} // namespace FileChooserDialogManager

} // namespace orv
