#pragma once

#include <QString>

namespace orv::cli {

/// What two names of one file have in common: the file itself where there is one, links of both kinds
/// followed, else the identity of its folder and its name.
[[nodiscard]] QString fileIdentity(const QString &path);

/// Whether two outputs would be one file, whether it is there yet or not. Standard output, pipes and devices
/// take several.
[[nodiscard]] bool isSameOutput(const QString &first, const QString &second);

/// Whether the two name one regular file. Standard input and output, pipes and devices are none.
[[nodiscard]] bool isSameFile(const QString &first, const QString &second);

} // namespace orv::cli
