#pragma once

#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/LoadContext.h>

#include <QJsonObject>
#include <QList>
#include <QStringList>

namespace orv::PropertyEditor {

/// What a table cell writes back of what it reads.
struct TableContent
{
    PropertyId table;
    QList<PropertyId> furtherTables;
    QList<PropertyId> objects;
    QStringList valueArrays;        ///< members of the table's value beside those of a node, arrays
    QList<PropertyId> anyForm = {}; ///< entries whose reader takes or refuses their values itself
};

/// Tells the observer what of the cell \a json, which stands at \a context, isn't kept: members, entries that
/// aren't read, values that are no table, and members of rows.
void reportTableLosses(const LoadContext &context, const QJsonObject &json, const TableContent &content);

} // namespace orv::PropertyEditor
