#pragma once

#include "orv/propertyeditor/workbench/DocumentState.h"

#include <orv/core/Error.h>

#include <QPointer>

#include <functional>

namespace orv {

class IGridItem;
class PropertyEditorWindow;
class PropertyGridWidget;
class WorkflowTabs;

/// Brings what a window shows from one state of its document to another. What is the same in both stays as it
/// is, with its folds, its scroll position and its focus.
class StateDisplay
{
public:
    /// \a goesOn is asked behind whatever others hear of: false once the window has gone, or shows another
    /// document.
    StateDisplay(PropertyEditorWindow *window, std::function<bool()> goesOn);

    /// Fails where a column can't be shown, with what the first of them says, and shows the others.
    [[nodiscard]] Error show(const DocumentState &from, const DocumentState &to);

    /// Where somebody looks to see what was shown by that; behind show() with the same states.
    void goTo(const DocumentState &from, const DocumentState &to);

private:
    [[nodiscard]] Error exchangeTabs(const StateChange &change);
    [[nodiscard]] Error updateTab(int index, const DocumentState::Tab &from, const DocumentState::Tab &to);
    [[nodiscard]] Error replaceTab(int index, const DocumentState::Tab &to);
    [[nodiscard]] Error exchangeColumns(PropertyGridWidget &grid, const DocumentState::Tab &from,
                                        const DocumentState::Tab &to);
    [[nodiscard]] Error updateColumn(PropertyGridWidget &grid, int column, const QString &name,
                                     const StateCell &from, const StateCell &to);

    QPointer<PropertyEditorWindow> m_window;
    std::function<bool()> m_goesOn;
    WorkflowTabs *m_tabs;
    StateChange m_change; ///< that is shown
};

} // namespace orv
