#pragma once

#include <QString>

namespace orv {

/// Texts of any length where there is room for \a most letters; an ellipsis stands for the rest.
namespace ShortText {

/// In one line.
[[nodiscard]] QString line(const QString &text, qsizetype most);
/// With its lines and blanks.
[[nodiscard]] QString beginning(const QString &text, qsizetype most);
[[nodiscard]] QString end(const QString &text, qsizetype most);

} // namespace ShortText

} // namespace orv
