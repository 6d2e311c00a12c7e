#pragma once

#include <QLatin1String>

/// Names in the table of samples and proteins that people import with fields of their own. They stand in
/// files, never rename.
namespace orv::CustomFieldsStringConstants {

// Columns of the header, whose rows are the columns of the table.
inline constexpr QLatin1String ATTRIBUTES_COLUMN_NAME("Name");
inline constexpr QLatin1String ATTRIBUTES_COLUMN_TYPE("Type");

/// Type of a column that tells of the sample.
inline constexpr QLatin1String SAMPLE_TYPE("Sample");

} // namespace orv::CustomFieldsStringConstants
