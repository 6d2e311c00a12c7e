#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/PropertyId.h>

#include <QList>
#include <QMap>
#include <QPair>
#include <QStringList>
#include <QVariant>

#include <functional>

namespace orv {

/// The lists of the catalogue, and what stands in files and goes to engines for what the user sees. The lists
/// are read on the first call; if they can't be, that is logged and there are none. All functions are static
/// and safe on any thread. A property without a list of the kind asked for has an empty answer.
class ORV_WORKFLOW_EXPORT UserVisibleListConverter
{
public:
    /// Lists in which a text is known by its position: the property holds the text, files the position.
    [[nodiscard]] static const QMap<PropertyId, QStringList> &listItemsMap();

    /// Lists of numbers with their texts: the property holds the number as text, files the number.
    [[nodiscard]] static const QMap<PropertyId, QList<QPair<int, QString>>> &associativeListItemsMap();

    /// Lists of keys with their texts: the property and files hold the key.
    [[nodiscard]] static const QMap<PropertyId, QList<QPair<QString, QString>>> &
    associativeStringListItemsMap();

    /// For properties that were switches once: gives the number for a bool, or the text of one, and any
    /// other value back as it is.
    [[nodiscard]] static const QMap<PropertyId, std::function<QVariant(const QVariant &)>> &
    associativeListWithBoolBackwardsCompatibility();

    /// What a property with a list of the first three kinds may hold, and the texts that users see for it,
    /// both in the order of the combo box. Without such a list both are cleared and the answer is false.
    static bool keysAndValuesForList(PropertyId id, QStringList *keys, QStringList *values);

    /// The texts out of which the property holds any number.
    [[nodiscard]] static QStringList valuesForCheckableList(PropertyId id);

    /// Whether the user may give a text that the list doesn't hold.
    [[nodiscard]] static bool isEditableList(PropertyId id);

    /// Whether files hold the text or key, and not the position or number.
    [[nodiscard]] static bool isStringSerializableList(PropertyId id);

    /// What an engine needs for \a value, which is what the property holds or the text that users see: the
    /// position, number, key or text that files hold. A value that the list doesn't know, and any value of a
    /// property without such a list, comes back unchanged.
    [[nodiscard]] static QVariant realListValue(PropertyId id, const QVariant &value);
};

} // namespace orv
