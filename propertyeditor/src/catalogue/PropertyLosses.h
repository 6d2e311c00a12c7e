#pragma once

#include <orv/propertyeditor/content/LoadContext.h>

#include <QJsonObject>

class KProperty;

namespace orv {

/// Tells the observer of \a context what \a property, which was read from \a entry, doesn't hold of it:
/// members that the format doesn't have, and values that read as others than are stored.
void reportEntryLosses(const PropertyEditor::LoadContext &context, const QJsonObject &entry,
                       const KProperty &property);

} // namespace orv
