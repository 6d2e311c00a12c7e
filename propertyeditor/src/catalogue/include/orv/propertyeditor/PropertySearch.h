#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/PropertyId.h>

#include <QList>
#include <QString>
#include <QStringList>

/// The properties that people mean by what they type. Thread safe.
namespace orv::PropertySearch {

/// The property with that number, or with that name of either generation; NoProperty for any other text.
[[nodiscard]] ORV_WORKFLOW_EXPORT PropertyId named(const QString &text);

/// The properties with that caption, case not counted, in the order of their numbers. Captions aren't unique.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<PropertyId> captioned(const QString &text);

/// The properties in whose names, caption or tool tip every word of \a text stands, case not counted, in the
/// order of their numbers; none for a text without words.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<PropertyId> matching(const QString &text);

/// Names and captions of \a ids, of all properties where that is empty: what a mistyped name is compared
/// with.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList namesAndCaptions(const QList<PropertyId> &ids = {});

} // namespace orv::PropertySearch
