// What all properties of one number share: texts, type, options, list and editor.
#pragma once

#include <orv/propertyeditor/PropertySetCreator.h>

#include <QStringList>

#include <memory>

class KProperty;

namespace orv {

/// Name, caption and description.
void setTexts(PropertyId id, KProperty *property);

/// The list, the texts to check or the editor that go with the type which \a property has.
void applyListOrEditor(PropertyId id, KProperty *property);

/// A property of that kind without a value, kept to the end; null for what is no property. Safe on any
/// thread.
[[nodiscard]] const KProperty *
modelOf(PropertyId id, PropertySetCreator::Priority priority = PropertySetCreator::Priority::Unset);

/// All of it; reasons for false are appended to \a errors.
bool makeOfKind(PropertyId id, PropertySetCreator::Priority priority, KProperty *property,
                QStringList *errors);

/// Gives a property of that kind a stored value; a reason for false is appended to \a errors.
bool readInto(PropertyId id, const QJsonValue &value, KProperty *property, QStringList *errors);

/// A new property with a stored value, quicker than by makeOfKind, for it copies one that is kept for each
/// kind. Null, with reasons in \a errors. May be called on any thread.
[[nodiscard]] std::unique_ptr<KProperty> newProperty(PropertyId id, PropertySetCreator::Priority priority,
                                                     const QJsonValue &value, QStringList *errors);

} // namespace orv
