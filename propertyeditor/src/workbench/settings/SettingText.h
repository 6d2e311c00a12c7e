#pragma once

#include <orv/core/Result.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>

#include <QLocale>
#include <QString>
#include <QVariant>

class KProperty;

namespace orv {

/// Values of settings as people read and write them in their language.
namespace SettingText {

struct Value
{
    QString text; ///< a number has all its digits
    QString unit; ///< empty for none
};

/// From these texts read() makes the value that \a property has, if there are such texts at all; else they
/// say what is seen.
[[nodiscard]] Value of(const KProperty &property, const QLocale &locale);

/// The value that \a typed means for \a property. Both decimal signs are understood, but a comma that may
/// part thousands; the unit may stand with the text. Fails as PropertyText::toValue().
[[nodiscard]] Result<QVariant> read(const KProperty &property, const Value &typed,
                                    PropertyEditorContent::ContentMode mode, const QLocale &locale);

} // namespace SettingText

} // namespace orv
