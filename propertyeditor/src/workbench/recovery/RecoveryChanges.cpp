#include "RecoveryChanges.h"

#include "state/ChangeText.h"
#include "state/OwnProperties.h"

#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/workflow/WorkflowDifferences.h>

#include <QJsonArray>

#include <algorithm>

namespace orv {

namespace {

using namespace PropertyEditorStringConstants;

/// The value of the setting in which a difference lies; undefined where there is none.
QJsonValue settingOf(const QJsonObject &document, const WorkflowDifference &difference)
{
    QStringList tabNames;
    const QJsonArray tabs = document.value(TABS_KEY).toArray();
    for (const auto tab : tabs)
        tabNames.append(tab[NAME_KEY].toString());
    const QJsonObject tab = tabs.at(WorkflowDifferences::labels(tabNames).indexOf(difference.tab)).toObject();
    const QStringList columns = tab.value(COLUMNS_KEY).toVariant().toStringList();
    const qsizetype column = WorkflowDifferences::labels(columns).indexOf(difference.column);
    if (column < 0)
        return QJsonValue::Undefined;
    const qsizetype number = difference.row.value_or(0) * columns.size() + column;
    const QJsonArray entries = tab.value(CELLS_KEY).toArray().at(number)[PROPERTIES_KEY].toArray();
    for (const auto entry : entries) {
        if (entry[NAME_KEY].toString() == difference.property)
            return entry[VALUE_KEY];
    }
    return QJsonValue::Undefined;
}

RecoveryChange toldOf(const WorkflowDifference &difference, const QJsonObject &before,
                      const QJsonObject &after)
{
    QString below = difference.below;
    QJsonValue left = difference.left;
    QJsonValue right = difference.right;
    if (!difference.property.isEmpty() && !below.isEmpty()) {
        const QJsonValue was = settingOf(before, difference);
        const QJsonValue is = settingOf(after, difference);
        if (ChangeText::isQuantity(was) && ChangeText::isQuantity(is)) {
            below.clear();
            left = was;
            right = is;
        }
    }
    const bool isSetting = !difference.property.isEmpty() && below.isEmpty();
    // Rows round what they show.
    const bool asRow = isSetting && ChangeText::ofSetting(difference.property, left) !=
                                        ChangeText::ofSetting(difference.property, right);
    const auto text = [&](const QJsonValue &value) {
        return asRow ? ChangeText::ofSetting(difference.property, value)
                     : ChangeText::ofValue(value, difference.columns);
    };
    return {
        ChangeText::ofPlace({difference.tab, difference.column, difference.row, difference.property, below}),
        text(left), text(right)};
}

/// Number and unit of a setting are one change.
bool areOne(const WorkflowDifference &first, const WorkflowDifference &second)
{
    return first.together != WorkflowDifference::kAlone && first.together == second.together &&
           !first.property.isEmpty() && first.property == second.property && !first.below.isEmpty();
}

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
    QList<WorkflowDifference> differences = WorkflowDifferences::between(withTabs(before), after, false);
    differences.erase(std::unique(differences.begin(), differences.end(), &areOne), differences.end());
    changes.count = changes.told.size() + differences.size();
    for (const WorkflowDifference &difference : differences) {
        if (changes.told.size() == RecoveryChanges::kMostTold)
            break;
        changes.told.append(toldOf(difference, before, after));
    }
    return changes;
}

std::optional<RecoveryPlace> placeOfLastChange(const QJsonObject &before, const QJsonObject &after)
{
    const QList<WorkflowDifference> differences =
        WorkflowDifferences::between(withTabs(before), after, false);
    const auto last =
        std::find_if(differences.crbegin(), differences.crend(),
                     [](const WorkflowDifference &difference) { return !difference.tab.isEmpty(); });
    if (last == differences.crend())
        return {};
    return RecoveryPlace{last->tab, last->column, last->property};
}

} // namespace orv
