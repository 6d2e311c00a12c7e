#pragma once

/// A frame around what has the focus by the keyboard where styles hardly show it: flat tool buttons and tabs,
/// areas that scroll, headers, texts that can be selected,
/// and lists without a current row. GUI thread.
namespace orv::FocusSigns {

/// From now on in the whole application.
void install();

} // namespace orv::FocusSigns
