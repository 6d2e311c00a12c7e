#include "CellEntries.h"

#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QHash>
#include <QJsonArray>

namespace orv {

using namespace PropertyEditorStringConstants;

QList<ChangedEntry> changedEntries(const QJsonObject &before, const QJsonObject &after)
{
    const QJsonArray oldEntries = before.value(PROPERTIES_KEY).toArray();
    const QJsonArray entries = after.value(PROPERTIES_KEY).toArray();
    QHash<QString, QJsonObject> old;
    old.reserve(oldEntries.size());
    for (const auto entry : oldEntries)
        old.insert(entry[NAME_KEY].toString(), entry.toObject());
    QList<ChangedEntry> changed;
    for (const auto value : entries) {
        const QJsonObject entry = value.toObject();
        const QJsonObject was = old.take(entry.value(NAME_KEY).toString());
        if (was != entry)
            changed.append({was, entry});
    }
    for (const auto entry : oldEntries) {
        if (const QJsonObject gone = old.take(entry[NAME_KEY].toString()); !gone.isEmpty())
            changed.append({gone, {}});
    }
    return changed;
}

} // namespace orv
