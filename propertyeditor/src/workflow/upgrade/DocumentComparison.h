#pragma once

namespace orv {

class PropertyEditorContent;

/// Whether two documents differ in more than the stamps that every write renews. Fast where they share cells.
[[nodiscard]] bool differ(const PropertyEditorContent &a, const PropertyEditorContent &b);

} // namespace orv
