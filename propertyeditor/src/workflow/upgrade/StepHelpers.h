// What the steps of the upgrade chain share.
#pragma once

#include <orv/core/Error.h>
#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/workflow/WorkingContent.h>

#include <QList>
#include <QSet>
#include <QString>
#include <QVariant>

namespace orv::PropertyEditor {
class SamplesTableItem;
}

namespace orv::UpgradeSteps {

/// Types of values that steps insert, those of KProperty.
inline constexpr int kBool = 1;
inline constexpr int kInt = 2;
inline constexpr int kDouble = 6;
inline constexpr int kText = 10;
inline constexpr int kBytes = 12;
inline constexpr int kListText = 4002;

/// Writes the document, with no edit.
Error readAndWrite(Result<WorkingContent> working);

/// A step's failure: \a text, which is one of the step's own, and \a detail on place and remedy.
Error failure(const QString &text, const QString &detail);
/// The failure that nearly all steps have when a cell can't be edited.
Error notPossible(const QString &detail);
Error noSamples();

/// A failure unless \a done: an edit of the setting \a key in \a item.
Error check(bool done, const PropertyEditor::KeyValueItem &item, const QString &key);

QString keyOf(PropertyId id);

/// Adds a setting to the end of the group with that caption, or behind the setting \a before.
Error insert(PropertyEditor::KeyValueItem *item, PropertyId id, const QString &group, const QVariant &value,
             int type, PropertyId before = PropertyId::NoProperty);
Error setValue(PropertyEditor::KeyValueItem *item, PropertyId id, const QVariant &value);
Error remove(PropertyEditor::KeyValueItem *item, const QString &key);

/// The cells of settings among those types, in tree order; cells of another class are passed over.
QList<PropertyEditor::KeyValueItem *> settingsItems(const PropertyEditor::Content &content,
                                                    const QSet<BaseItemType> &types);
/// The first item of that type, null if there is none.
PropertyEditor::BaseItem *firstItem(const PropertyEditor::Content &content, BaseItemType type);
/// The same, null also if it is no cell of settings.
PropertyEditor::KeyValueItem *firstSettings(const PropertyEditor::Content &content, BaseItemType type);

/// Lets \a edit, an `Error(KeyValueItem *)`, change each of \a items, and writes the document back; leaves
/// it alone if there are none.
template<typename Edit>
Error editEach(const QList<PropertyEditor::KeyValueItem *> &items, Edit edit, const WorkingContent &working)
{
    if (items.isEmpty())
        return Error::NoError;
    for (PropertyEditor::KeyValueItem *item : items)
        ORV_RETURN_IF_ERROR(edit(item));
    return working.writeBack();
}

} // namespace orv::UpgradeSteps
