#pragma once

#include <QStringList>

/// The workflows that were opened last, the latest first, remembered from one run to the next.
namespace orv::RecentFiles {

inline constexpr int kMost = 10;

/// Whether they are still there isn't asked: a network drive may take its time.
[[nodiscard]] QStringList all();
void add(const QString &path);
void remove(const QString &path);
void clear();

} // namespace orv::RecentFiles
