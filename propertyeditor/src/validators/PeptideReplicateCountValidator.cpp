#include "orv/propertyeditor/validators/PeptideReplicateCountValidator.h"

#include "ValidatorHelpers.h"
#include "ValidatorText.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/validators/CheckRun.h>
#include <orv/samples/DocumentIssaReplicateModel.h>

#include <QHash>

#include <algorithm>

namespace orv::PropertyEditor {

namespace {

using Replicates = QList<DocumentIssaReplicateModel::ConditionAndReplicate>;

qsizetype smallestCondition(const Replicates &replicates)
{
    QHash<QString, qsizetype> counts;
    for (const auto &replicate : replicates) {
        if (replicate)
            ++counts[replicate->first];
    }
    return counts.isEmpty() ? 1 : *std::min_element(counts.cbegin(), counts.cend());
}

std::optional<int> countOf(const KeyValueItem &item)
{
    const QVariant value = item.value(PropertyId::PeptideReplicateCount);
    bool isInteger = false;
    const int count = value.toInt(&isInteger);
    // A fraction would be rounded.
    return isInteger && value.toDouble() == count ? std::optional(count) : std::nullopt;
}

/// Whether nothing is wrong.
bool checkItem(CheckRun &run, const KeyValueItem &item, qsizetype limit)
{
    const QString caption = PropertiesNames::displayNameForType(PropertyId::PeptideReplicateCount);
    const FindingPlace place{&item, PropertyId::PeptideReplicateCount, {}};
    const std::optional<int> count = countOf(item);
    if (!count) {
        run.error(ValidatorText::tr("The value of \"%1\" is not valid.").arg(caption), place,
                  ValidatorText::tr("Enter a whole number from 1 to %1.").arg(limit));
        return false;
    }
    if (*count > limit) {
        run.error(
            ValidatorText::tr("The value of \"%1\" cannot be greater than %2.").arg(caption).arg(limit),
            place,
            ValidatorText::tr("Enter a smaller number, or tell the conditions of more samples in the column "
                              "\"Condition\"."));
        return false;
    }
    return true;
}

} // namespace

void PeptideReplicateCountValidator::check(CheckRun &run) const
{
    const Content &content = run.content();
    QList<const KeyValueItem *> items;
    for (const BaseItem *item : content.findAllItems(BaseItemType::Trenq)) {
        if (const auto *settings = qobject_cast<const KeyValueItem *>(item))
            items.append(settings);
    }
    if (items.isEmpty())
        return;
    const SamplesTableItem *table = content.samplesTable();
    if (!table) {
        run.error(QStringLiteral("Internal error: Samples table not found."), {}, addSamplesHint());
        return;
    }
    const SamplesInput::SamplesArrayWithCustomColumns &samples = table->samplesWithCustomColumns();
    const Replicates replicates = DocumentIssaReplicateModel::getConditionAndReplicate(samples);
    if (replicates.size() != samples.samples.size()) {
        run.error(
            QStringLiteral("Internal error: extracting different number of replicate info than available "
                           "samples (%1 != %2).")
                .arg(replicates.size())
                .arg(samples.samples.size()),
            {table, PropertyId::SamplesTable, {}}, {});
        return;
    }
    const qsizetype limit = smallestCondition(replicates);
    for (const KeyValueItem *item : std::as_const(items)) {
        if (!checkItem(run, *item, limit))
            return;
    }
}

} // namespace orv::PropertyEditor
