#include "ValidatorHelpers.h"
#include "ValidatorText.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/validators/PeptideReplicateCountValidator.h>
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

bool checkItem(const KeyValueItem &item, qsizetype limit, QList<QString> *errors)
{
    const QString caption = PropertiesNames::displayNameForType(PropertyId::PeptideReplicateCount);
    const FindingPlace place{&item, PropertyId::PeptideReplicateCount, {}};
    const std::optional<int> count = countOf(item);
    if (!count) {
        report(errors, validatorText("The value of \"%1\" is not valid.").arg(caption), place,
               validatorText("Enter a whole number from 1 to %1.").arg(limit));
        return false;
    }
    if (*count > limit) {
        report(errors,
               validatorText("The value of \"%1\" cannot be greater than %2.").arg(caption).arg(limit), place,
               validatorText("Enter a smaller number, or tell the conditions of more samples in the column "
                             "\"Condition\"."));
        return false;
    }
    return true;
}

} // namespace

bool PeptideReplicateCountValidator::validate(const Content &content, const QUrl & /*workflowBaseUrl*/,
                                              QList<QString> * /*warnings*/, QList<QString> *errors) const
{
    QList<const KeyValueItem *> items;
    for (const BaseItem *item : content.findAllItems(BaseItemType::Trenq)) {
        if (const auto *settings = qobject_cast<const KeyValueItem *>(item))
            items.append(settings);
    }
    if (items.isEmpty())
        return true;
    const SamplesTableItem *table = content.samplesTable();
    if (!table) {
        report(errors, QStringLiteral("Internal error: Samples table not found."), {}, addSamplesHint());
        return false;
    }
    const SamplesInput::SamplesArrayWithCustomColumns &samples = table->samplesWithCustomColumns();
    const Replicates replicates = DocumentIssaReplicateModel::getConditionAndReplicate(samples);
    if (replicates.size() != samples.samples.size()) {
        report(errors,
               QStringLiteral("Internal error: extracting different number of replicate info than available "
                              "samples (%1 != %2).")
                   .arg(replicates.size())
                   .arg(samples.samples.size()),
               {table, PropertyId::SamplesTable, {}}, {});
        return false;
    }
    const qsizetype limit = smallestCondition(replicates);
    return std::all_of(items.begin(), items.end(),
                       [&](const KeyValueItem *item) { return checkItem(*item, limit, errors); });
}

} // namespace orv::PropertyEditor
