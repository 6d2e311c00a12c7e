#pragma once

#include <orv/propertyeditor/PropertyId.h>

#include <QList>
#include <QVariant>

#include <span>
#include <string_view>

namespace orv {

class KarvonFeatures;

/// The two keys whose values differ from file to file, and come from nowhere else.
inline constexpr std::string_view kDatabaseFilesKey = "DatabaseFiles";
inline constexpr std::string_view kSpectraFilesKey = "SpectraFiles";

/// A key of the parameter file and where its value comes from.
struct KarvonKey
{
    std::string_view key;
    PropertyId id; ///< NoProperty for what isn't a setting
    QVariant (*valueOf)(const KarvonFeatures &features, PropertyId id);
};

/// The 90 keys in the order of the file, which is that of their characters.
[[nodiscard]] std::span<const KarvonKey> karvonKeys();

} // namespace orv
