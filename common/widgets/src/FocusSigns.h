#pragma once

/// A frame around the tool button or the tab that has the focus by the keyboard: styles hardly show it on
/// flat ones. GUI thread.
namespace orv::FocusSigns {

/// From now on in the whole application.
void install();

} // namespace orv::FocusSigns
