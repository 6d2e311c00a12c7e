#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>

#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

class KProperty;

/// Values of settings as people type them.
namespace orv::PropertyText {

/// What \a property takes, for people: "a whole number from 0 to 100", "one of: A, B". Ends without a full
/// stop.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString legalValues(PropertyId id, const KProperty &property);

/// The units in which the value of \a id may be given, those that the engine knows; empty where it has none.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList knownUnits(PropertyId id);

/// The value that \a text means for \a property, in the form that a property set holds: numbers as such, with
/// or without the unit that the property shows, values with a unit of their own as "5 ppm" or as JSON, true
/// and false in any of the words that files know, a list's text, key or position, JSON for tables and other
/// objects, texts of a checkable list separated by commas. InvalidContent, with the legal values as detail,
/// for a text that means none and for a value that breaks the property's rule. Rules that ask the disk are
/// left to the check of the whole workflow, for paths may count from the workflow's folder.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QVariant> toValue(PropertyId id, const QString &text,
                                                           const KProperty &property,
                                                           PropertyEditorContent::ContentMode mode);

/// What toValue() says against \a value, which people know as \a text; a success if nothing.
[[nodiscard]] ORV_WORKFLOW_EXPORT Error check(PropertyId id, const QVariant &value, const QString &text,
                                              const KProperty &property,
                                              PropertyEditorContent::ContentMode mode);

struct ValueText
{
    QString text;
    QString unit; ///< empty where the property shows none
};

/// The way back: from this text, a blank and the unit toValue() makes the value that \a property has, with
/// all digits and a point. Nothing for a value that no text stands for.
[[nodiscard]] ORV_WORKFLOW_EXPORT std::optional<ValueText> fromValue(PropertyId id,
                                                                     const KProperty &property);

} // namespace orv::PropertyText
