#include "orv/resources/FileTypeUtils.h"

#include <orv/resources/ResourceReferenceUtils.h>

#include <algorithm>
#include <array>

namespace orv::FileTypeUtils {

namespace {

struct Row
{
    FileType type;
    ApplicationType application;
};

constexpr std::array kRows = {
    Row{FileType::SenthiaProject, ApplicationType::Senthia},
    Row{FileType::DravikProject, ApplicationType::Dravik},
    Row{FileType::KarvonProject, ApplicationType::Karvon},
    Row{FileType::IntactProject, ApplicationType::Intact},
    Row{FileType::OligoProject, ApplicationType::Oligo},
    Row{FileType::OstraleProject, ApplicationType::Ostrale},
    Row{FileType::TrenqProject, ApplicationType::Trenq},
    Row{FileType::MultiDocReport, ApplicationType::MultiDocReport},
    Row{FileType::IcIef, ApplicationType::IcIef},
};

} // namespace

ApplicationType appType(FileType type)
{
    const auto *const row =
        std::find_if(kRows.begin(), kRows.end(), [type](const Row &r) { return r.type == type; });
    return row == kRows.end() ? ApplicationType::None : row->application;
}

ApplicationType appType(const ResourceReferenceSPtr &reference)
{
    return appType(ResourceReferenceUtils::type(reference));
}

} // namespace orv::FileTypeUtils
