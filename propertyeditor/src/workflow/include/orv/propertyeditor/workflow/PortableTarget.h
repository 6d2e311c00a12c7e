#pragma once

#include <orv/core/Error.h>
#include <orv/core/Export.h>

#include <QString>

#include <memory>

class QTemporaryDir;

namespace orv {

/// A portable folder that is made beside its place, so that what stands there is replaced by a whole one or
/// stays as it was:
/// \code
///     ORV_RETURN_IF_ERROR(PortableTarget::checkReplaceable(folder));
///     PortableTarget target(folder);
///     ORV_RETURN_IF_ERROR(target.prepare());
///     if (WflwUtils::saveAsPortableWorkflow(content, target.stagedFolder(), baseUrl, &text))
///         return target.commit();
/// \endcode
/// Belongs to one thread.
class ORV_WORKFLOW_EXPORT PortableTarget
{
public:
    /// \a folder is where the portable folder is to be in the end.
    explicit PortableTarget(const QString &folder);
    /// Removes what wasn't brought into its place.
    ~PortableTarget();
    Q_DISABLE_COPY_MOVE(PortableTarget)

    /// Whether what stands at \a folder may go: nothing, a link, an empty folder, or a portable folder of
    /// this version or an older one with the files that its document names. InvalidContent, with the reason,
    /// for a folder that holds other files, some of which are named, a document that can't be read or a newer
    /// one.
    [[nodiscard]] static Error checkReplaceable(const QString &folder);

    /// Makes room beside the place, in a folder that is made if it isn't there. CannotOpenFile where that
    /// fails.
    [[nodiscard]] Error prepare();

    /// Where to save before commit(); it has the name of the folder, and doesn't exist yet. Empty before
    /// prepare().
    [[nodiscard]] QString stagedFolder() const;

    /// \a text with the place instead of the staged folder, for texts of a save that people read.
    [[nodiscard]] QString asInPlace(QString text) const;

    /// Puts what was saved in its place. CannotOpenFile where that fails; what stood there is there then.
    [[nodiscard]] Error commit();

private:
    const QString m_folder;
    std::unique_ptr<QTemporaryDir> m_room;
};

} // namespace orv
