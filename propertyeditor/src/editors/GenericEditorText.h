#pragma once

#include <QJsonObject>
#include <QString>
#include <QVariant>

class KProperty;

namespace orv {

/// How structured values read.
namespace GenericEditorText {

enum class Place
{
    Whole,
    Cell, ///< at most four lines and how many more there are
};

[[nodiscard]] QString textOf(const KProperty &property, Place place);

/// The object in JSON bytes or text; empty for what is none.
[[nodiscard]] QJsonObject objectOf(const QVariant &value);

/// The value for an object.
[[nodiscard]] QVariant valueOf(const QJsonObject &object);

} // namespace GenericEditorText

} // namespace orv
