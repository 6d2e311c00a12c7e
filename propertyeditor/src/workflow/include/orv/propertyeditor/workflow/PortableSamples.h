#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>
#include <orv/propertyeditor/workflow/WflwUtils.h>

#include <QString>
#include <QStringList>
#include <QUrl>

namespace orv {

/// Carries the files of samples, which a portable save leaves where they are, into its folder.
namespace PortableSamples {

/// What became of the files that a portable workflow still names outside of its folder.
struct ORV_WORKFLOW_EXPORT Report
{
    QStringList carried; ///< texts of references whose files lie in the folder now
    QStringList missing; ///< texts of local references whose files aren't there
    Error error;         ///< of the copy that failed; the document then names what it named before
};

/// Copies what the references in the document of \a folder name into folders "samples", "samples (2)", ...
/// of it, one for each folder that they come from, and lets the document name the copies by relative paths.
/// A file takes those with it whose names begin with its own and a dot (run.wiff and run.wiff.scan); a folder
/// is copied whole, links left out. References to servers stay. \a baseUrl is the folder from which relative
/// paths counted in the original, with a slash at its end. \a observer hears of each copy and may be null.
[[nodiscard]] ORV_WORKFLOW_EXPORT Report carry(const QString &folder, const QUrl &baseUrl,
                                               PortableSaveObserver *observer);

} // namespace PortableSamples

} // namespace orv
