#include "orv/samples/DocumentIssaReplicateModel.h"

namespace orv {

namespace {

constexpr QLatin1String kCondition("Condition");
constexpr QLatin1String kReplicate("Replicate");

/// The name of the column as the samples have it; empty for none, which no column is called.
QString columnCalled(QLatin1String name, const SamplesInput::CustomColumns &columns)
{
    for (const QString &column : columns.customColumnNames()) {
        if (column.trimmed().compare(name, Qt::CaseInsensitive) == 0)
            return column;
    }
    return {};
}

} // namespace

QList<DocumentIssaReplicateModel::ConditionAndReplicate> DocumentIssaReplicateModel::getConditionAndReplicate(
    const SamplesInput::SamplesArrayWithCustomColumns &samples)
{
    const QString conditionColumn = columnCalled(kCondition, samples.columns);
    const QString replicateColumn = columnCalled(kReplicate, samples.columns);
    QList<ConditionAndReplicate> found;
    found.reserve(samples.samples.size());
    for (const SamplesInput::SampleWithCustomColumns &sample : samples.samples) {
        const QString condition = sample.customValues.value(conditionColumn).toString().trimmed();
        const QString replicate = sample.customValues.value(replicateColumn).toString().trimmed();
        found.append(condition.isEmpty() ? ConditionAndReplicate()
                                         : ConditionAndReplicate(std::pair(condition, replicate)));
    }
    return found;
}

} // namespace orv
