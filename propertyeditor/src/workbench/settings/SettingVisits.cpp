#include "SettingVisits.h"

#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>

#include <QApplication>

#include <algorithm>
#include <utility>

namespace orv {

namespace {

/// The caption of the group in which somebody works; empty for nobody.
QString groupAtWork(const GridPropertyEditorView &view)
{
    const QWidget *focus = QApplication::focusWidget();
    if (!focus || !view.isAncestorOf(focus))
        return {};
    QModelIndex row = view.editorView()->currentIndex();
    while (row.parent().isValid())
        row = row.parent();
    return row.data().toString();
}

} // namespace

void SettingVisits::begin(GridPropertyEditorView *view)
{
    m_visits.removeIf([](const Visit &each) { return !each.view; });
    if (std::ranges::none_of(m_visits, [view](const Visit &each) { return each.view == view; }))
        m_visits.append({view, view->folds()});
}

void SettingVisits::end(PropertyEditorWindow *window)
{
    const QList<Visit> visits = std::exchange(m_visits, {});
    const QPointer<PropertyEditorWindow> open(window);
    for (const Visit &visit : visits) {
        if (!visit.view || !open)
            continue;
        GridPropertyEditorView::Folds folds = visit.folds;
        if (const QString group = groupAtWork(*visit.view); !group.isEmpty())
            folds.insert(group, true);
        const auto mode = open->workflowTabs()->propertiesViewMode();
        if (visit.view->propertiesViewMode() != mode)
            visit.view->setPropertiesViewMode(mode);
        if (visit.view)
            visit.view->setFolds(folds);
    }
}

} // namespace orv
