#pragma once

#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>

#include <QList>
#include <QString>
#include <QVariant>

#include <functional>

namespace orv {

/// A rule over the value of a property, as a property set holds it. True if the value passes; otherwise a
/// text was appended to the errors, but for digestion rules, which say nothing. Warnings alone don't fail.
/// Both lists are required. Rules that name files ask the disk. Safe on any thread.
using VerificationFunction =
    std::function<bool(PropertyId id, const QVariant &value, PropertyEditorContent::ContentMode mode,
                       QList<QString> *errors, QList<QString> *warnings)>;

} // namespace orv
