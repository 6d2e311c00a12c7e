#pragma once

#include <orv/core/Export.h>

namespace orv {

/// How the retention times of imported in-silico peptides are aligned to a sample's. The values that members
/// start with are the defaults of the settings of the same meaning. A plain value.
struct ORV_WORKFLOW_EXPORT WorkflowNodeInsilicoAlign
{
    /// Stored in files, never renumber.
    enum class ToleranceDetermination : int
    {
        Automatic = 0, ///< from the aligned peptides
        ByHand = 1,
    };

    bool isInsilicoAlignmentEnabled = true;
    ToleranceDetermination toleranceDetermination = ToleranceDetermination::Automatic;
    double alignmentTolerance = 0.0; ///< minutes

    bool operator==(const WorkflowNodeInsilicoAlign &) const = default;
};

} // namespace orv
