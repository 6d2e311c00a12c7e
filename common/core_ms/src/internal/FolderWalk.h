#pragma once

#include <QString>

#include <functional>

namespace orv::msreader::internal {

/// What a walk looks at before it gives up, so that a link to the root of a file system costs seconds and no
/// hours. Instruments write some thousand entries, five levels deep.
inline constexpr int kMostEntries = 1'000'000;
inline constexpr int kMostLevels = 64;

/// Whether \a wanted holds for some entry below \a folder, given as path behind \a folder with slashes. Near
/// entries come before deep ones. Links to folders are followed, each to a place once, so that loops end.
/// Folders that can't be read have no entries. A walk that gives up answers false, with a warning.
[[nodiscard]] bool anyBelow(const QString &folder, const std::function<bool(const QString &)> &wanted);

} // namespace orv::msreader::internal
