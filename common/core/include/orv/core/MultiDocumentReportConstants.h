#pragma once

#include <orv/core/ApplicationType.h>

/// What a report over several documents is made of.
namespace orv::MultiDocumentReportConstants {

/// The applications whose projects it takes; MirelFileTypes::MULTIDOCALLOWEDFILES are their files.
inline constexpr ApplicationType SUPPORTED_APPLICATIONS[] = {
    ApplicationType::Senthia, ApplicationType::Dravik,  ApplicationType::Karvon, ApplicationType::Intact,
    ApplicationType::Oligo,   ApplicationType::Ostrale, ApplicationType::Trenq};

} // namespace orv::MultiDocumentReportConstants
