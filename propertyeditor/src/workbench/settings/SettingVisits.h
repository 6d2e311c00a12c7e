#pragma once

#include <orv/propertyeditor/grid/GridPropertyEditorView.h>

#include <QList>
#include <QPointer>

namespace orv {

class PropertyEditorWindow;

/// Columns of settings that somebody was led into, and how they were before.
class SettingVisits
{
public:
    /// Before somebody is led into \a view; what is known of it from an earlier visit counts.
    void begin(GridPropertyEditorView *view);
    /// Folds the groups and hides the advanced settings that weren't seen before the visits, but for the
    /// group in which somebody works.
    void end(PropertyEditorWindow *window);

private:
    struct Visit
    {
        QPointer<GridPropertyEditorView> view;
        GridPropertyEditorView::Folds folds;
    };

    QList<Visit> m_visits;
};

} // namespace orv
