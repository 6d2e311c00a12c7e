#pragma once

#include <QFlags>

namespace orv::PropertyEditor {

/// How strictly a document is loaded.
enum class ValidationOption
{
    /// Cells of unknown types are accepted, and key-value cells are not checked against an expected type.
    SkipTypeValidation = 1,
};
Q_DECLARE_FLAGS(ValidationOptions, ValidationOption)
Q_DECLARE_OPERATORS_FOR_FLAGS(ValidationOptions)

/// How file references are written.
enum class PropertyConversionFlag
{
    KeepPaths = 0,     ///< as stored
    AbsolutePaths = 1, ///< relative ones are made absolute against the base URL of the item
};

} // namespace orv::PropertyEditor
