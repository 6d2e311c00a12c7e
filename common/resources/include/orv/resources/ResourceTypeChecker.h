#pragma once

#include <orv/core/Export.h>
#include <orv/core/FileTypes.h>
#include <orv/resources/ResourceReference.h>

/// What a reference holds, told by the suffix of its last name, ignoring case. A null reference holds
/// nothing. None touches the disk or a server. Any thread.
namespace orv::ResourceTypeChecker {

[[nodiscard]] ORV_WORKFLOW_EXPORT bool matches(const ResourceReferenceSPtr &reference, FileType type);

/// Mass spectra of any vendor that the system recognises, in a file or folder.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isMSFileType(const ResourceReferenceSPtr &reference);
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isTolqFileType(const ResourceReferenceSPtr &reference);
/// A table in comma-separated or plain text: csv, txt or tsv.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isCSVOrTextFileType(const ResourceReferenceSPtr &reference);
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isElectropherogramFileType(const ResourceReferenceSPtr &reference);
/// What a Karvon search leaves behind: a result file or a Karvon project.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isKarvonResultFileType(const ResourceReferenceSPtr &reference);
/// What a Caldrin search leaves behind.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isCaldrinResultFileType(const ResourceReferenceSPtr &reference);

} // namespace orv::ResourceTypeChecker
