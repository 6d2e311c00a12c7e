#pragma once

#include <orv/core/Export.h>
#include <orv/samples/SamplesInput.h>

#include <QList>
#include <QString>

#include <optional>
#include <utility>

namespace orv {

/// Which samples are replicates of each other, by what people enter in the custom columns "Condition" and
/// "Replicate"; case and blanks around these names don't count, and the first column of a name does. Any
/// thread.
class ORV_WORKFLOW_EXPORT DocumentIssaReplicateModel
{
public:
    /// Nothing for a sample of no condition. The replicate is empty when nobody numbered it.
    using ConditionAndReplicate = std::optional<std::pair<QString, QString>>;

    /// One for each sample, in their order. Blanks around the texts don't count.
    [[nodiscard]] static QList<ConditionAndReplicate>
    getConditionAndReplicate(const SamplesInput::SamplesArrayWithCustomColumns &samples);
};

} // namespace orv
