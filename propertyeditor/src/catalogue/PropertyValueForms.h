// What reading and writing of property values share.
#pragma once

#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QLatin1String>
#include <QString>
#include <QVariant>

namespace orv {

inline constexpr const char *kThreeStateOption = "3State";
inline constexpr const char *kExtraValueOption = "extraValueAllowed";
inline constexpr const char *kPriorityOption = PropertyEditorStringConstants::PRIORITY_KEY.data();

inline constexpr QLatin1String kFontFamily("family");
inline constexpr QLatin1String kFontBold("bold");
inline constexpr QLatin1String kFontItalic("italic");
inline constexpr QLatin1String kFontStrikeOut("strikeout");
inline constexpr QLatin1String kFontUnderline("underline");
inline constexpr QLatin1String kFontSize("size");
inline constexpr QLatin1String kPixelSuffix("px");
inline constexpr QLatin1String kPointSuffix("pt");

/// Options of the property that make the grid show that editor.
void applyEditor(PropertySetCreator::Editor editor, KProperty *property);

/// Keys and texts of the list of \a id, and whether others may be typed.
void fillListData(PropertyId id, KProperty *property);

/// Reads a stored value by the type that \a property has; false, with the property as it was, if it doesn't
/// fit.
bool setStoredValue(PropertyId id, const QJsonValue &value, KProperty *property);

/// What a property with a list holds for \a value, which may be a text, a position or a number.
[[nodiscard]] QString listText(PropertyId id, const QVariant &value, bool *ok);

/// Whether an object with that JSON text leaves too few levels for the document that holds it: what is saved
/// has to be readable again.
[[nodiscard]] bool nestsTooDeeply(const QByteArray &json);

} // namespace orv
