#pragma once

#include <QString>

#include <optional>

/// Local paths of both systems, by their text alone.
namespace orv::LocalPath {

/// The path of a file URL, "file:///a%20b" or "file://server/share": percent codes are decoded where they are
/// complete, and "#" and "?" belong to the name. Nothing when the codes are no UTF-8.
[[nodiscard]] std::optional<QString> fromFileUrl(const QString &url);

/// Whether a backslash separates names in \a path: everywhere but in absolute paths that begin with "/".
[[nodiscard]] bool hasBackslashSeparators(const QString &path);

/// Without the long-path prefix, and with slashes where its backslashes separate names.
[[nodiscard]] QString withSlashes(const QString &path);

[[nodiscard]] QString lastName(const QString &path);

/// Equal for two texts that name the same file; see ResourceReference::key.
[[nodiscard]] QString key(const QString &path);

/// Whether \a path is absolute on the system that it comes from.
[[nodiscard]] bool isAbsolute(const QString &path);

} // namespace orv::LocalPath
