#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/resources/ResourceReference.h>

namespace orv {

/// Knows the files that a document refers to.
class ORV_WORKFLOW_EXPORT FilesInfoManagerInterface
{
public:
    FilesInfoManagerInterface() = default;
    virtual ~FilesInfoManagerInterface();
    Q_DISABLE_COPY_MOVE(FilesInfoManagerInterface)

    /// A reference to the file that \a reference means: itself if there is such a file, otherwise the one
    /// that it must have meant. Fails with CannotOpenFile when there is none, with InvalidContent when \a
    /// reference is none of those that the manager knows, and with the error of a home that can't be asked.
    [[nodiscard]] virtual Result<ResourceReferenceSPtr>
    validateAndCorrectFileReference(const ResourceReferenceSPtr &reference) = 0;
};

} // namespace orv
