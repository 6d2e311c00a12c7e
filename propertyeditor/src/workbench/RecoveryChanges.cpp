#include "RecoveryChanges.h"

#include "ChangeText.h"
#include "OwnProperties.h"

#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/workflow/WorkflowDifferences.h>

#include <QJsonArray>

namespace orv {

namespace {

using PropertyEditorStringConstants::TABS_KEY;

/// A document that is new has tabs that were added, one by one.
QJsonObject withTabs(QJsonObject document)
{
    if (!document.contains(TABS_KEY))
        document.insert(TABS_KEY, QJsonArray());
    return document;
}

} // namespace

void RecoveryChanges::append(const RecoveryChanges &more)
{
    count += more.count;
    told += more.told.mid(0, std::max<qsizetype>(0, kMostTold - told.size()));
}

RecoveryChanges changesBetween(const QJsonObject &before, const QJsonObject &after)
{
    RecoveryChanges changes;
    const QJsonObject metadataBefore = PropertyEditorContent(before).metadata();
    const QJsonObject metadataAfter = PropertyEditorContent(after).metadata();
    for (const OwnProperty &property : OwnProperties::all()) {
        const QString was = property.read(metadataBefore);
        const QString is = property.read(metadataAfter);
        if (was != is)
            changes.told.append(
                {OwnProperties::caption(property), ChangeText::ofText(was), ChangeText::ofText(is)});
    }
    const QList<WorkflowDifference> differences =
        WorkflowDifferences::between(withTabs(before), after, false);
    changes.count = changes.told.size() + differences.size();
    for (const WorkflowDifference &difference : differences) {
        if (changes.told.size() == RecoveryChanges::kMostTold)
            break;
        changes.told.append({ChangeText::ofPlace(difference.path), ChangeText::ofValue(difference.left),
                             ChangeText::ofValue(difference.right)});
    }
    return changes;
}

} // namespace orv
