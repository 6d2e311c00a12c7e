#pragma once

#include <orv/core/Error.h>

#include <QByteArray>

#include <functional>

namespace orv {

class GridPropertyEditorView;
class PropertyGridWidget;

/// Ways to a column and to one of its settings.
namespace SettingPlace {

/// Scrolls the tab to a column.
void showColumn(const PropertyGridWidget &grid, int column);

/// Selects a setting and scrolls to it: unfolds its group, and shows the advanced ones where it is one. Does
/// nothing for one that the column lacks.
void goTo(GridPropertyEditorView &view, const QByteArray &setting);

/// Calls \a load, which builds the tree anew, and goes back to the fold, the row and the scroll position.
Error keep(GridPropertyEditorView &view, const std::function<Error()> &load);

} // namespace SettingPlace

} // namespace orv
