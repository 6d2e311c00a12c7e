#pragma once

#include <orv/widgets/Icons.h>

#include <QIcon>

/// Icons of the grid. A host gives its own by a theme, or by a resource of the name that is told for each;
/// without either, the library draws.
namespace orv::GridIcons {

[[nodiscard]] QIcon icon(IconName drawing, const char *resource, const char *themeName = nullptr);

} // namespace orv::GridIcons
