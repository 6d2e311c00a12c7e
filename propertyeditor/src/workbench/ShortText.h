#pragma once

#include <QString>

namespace orv {

/// \a text in one line of at most \a most letters; an ellipsis stands for the rest.
[[nodiscard]] QString shortened(const QString &text, qsizetype most);

} // namespace orv
