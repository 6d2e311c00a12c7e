#pragma once

#include <QString>

namespace orv::cli {

/// What two names of one file have in common: the file itself where there is one, links of both kinds
/// followed, else the identity of its folder and its name.
[[nodiscard]] QString fileIdentity(const QString &path);

/// Whether the two name one regular file. Standard input and output, pipes and devices are none.
[[nodiscard]] bool isSameFile(const QString &first, const QString &second);

} // namespace orv::cli
