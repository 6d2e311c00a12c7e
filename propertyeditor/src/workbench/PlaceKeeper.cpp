#include "PlaceKeeper.h"

#include "settings/CurrentSetting.h"
#include "settings/SettingView.h"

#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>

#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>

#include <algorithm>

namespace orv {

namespace {

QScrollArea *areaAround(const PropertyGridWidget &grid)
{
    return grid.findChild<QScrollArea *>(QStringLiteral("propertyGridWidgetScrollArea"));
}

} // namespace

PlaceKeeper::PlaceKeeper(PropertyEditorWindow *window, CurrentSetting *current, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_current(current)
{
    connect(window, &PropertyEditorWindow::aboutToReload, this, &PlaceKeeper::keep);
    connect(window, &PropertyEditorWindow::documentSaved, this, &PlaceKeeper::comeBack);
    connect(window, &PropertyEditorWindow::documentShown, this, &PlaceKeeper::forget);
    connect(window->workflowTabs()->widget(), &QTabWidget::currentChanged, this,
            &PlaceKeeper::restoreScrollOfCurrentTab);
}

PlaceKeeper::~PlaceKeeper() = default;

void PlaceKeeper::keep()
{
    m_kept.clear();
    m_setting = placeOfCurrentSetting();
    const WorkflowTabs *tabs = m_window->workflowTabs();
    for (int tab = 0; tab < tabs->widget()->count(); ++tab) {
        PropertyGridWidget *grid = tabs->grid(tab);
        const auto waiting =
            std::ranges::find_if(m_waiting, [grid](const TabPlace &each) { return each.grid == grid; });
        // What nobody has looked at since an earlier save is scrolled as it was before that one.
        m_kept.append(!grid ? TabPlace() : waiting != m_waiting.cend() ? *waiting : placeIn(grid));
    }
    m_waiting.clear();
}

PlaceKeeper::TabPlace PlaceKeeper::placeIn(PropertyGridWidget *grid) const
{
    TabPlace place{grid, grid->columnNames(), grid->splitter()->saveState(), {}, {}};
    if (const QScrollArea *area = areaAround(*grid))
        place.scroll = {area->horizontalScrollBar()->value(), area->verticalScrollBar()->value()};
    for (int column = 0; column < grid->splitter()->count(); ++column)
        place.columns.append(ColumnPlace(*grid->splitter()->widget(column), m_window->focusWidget()));
    return place;
}

/// A panel that tells of a setting goes on telling of it.
std::optional<PlaceKeeper::Place> PlaceKeeper::placeOfCurrentSetting() const
{
    const auto column = SettingView::of(m_window, m_current ? m_current->view() : nullptr);
    return column ? std::optional(Place(column->tab, column->column)) : std::nullopt;
}

void PlaceKeeper::comeBack()
{
    QList<TabPlace> kept = std::exchange(m_kept, {});
    const QPointer<PlaceKeeper> self(this);
    for (int tab = 0; tab < kept.size() && self && m_window; ++tab)
        restore(tab, &kept[tab]);
    if (!self || !m_window)
        return;
    for (const SettingView &each : SettingView::all(m_window)) {
        if (self && m_current && m_setting == Place(each.tab, each.column))
            m_current->setView(each.view);
    }
    m_waiting = kept;
    for (const TabPlace &place : std::as_const(kept)) {
        if (self)
            restoreFocus(place);
    }
    if (self)
        restoreScrollOfCurrentTab();
}

void PlaceKeeper::forget()
{
    m_kept.clear();
    m_waiting.clear();
    m_setting.reset();
}

void PlaceKeeper::restore(int tab, TabPlace *place)
{
    const QPointer<PropertyGridWidget> grid = m_window->workflowTabs()->grid(tab);
    place->grid = grid;
    if (!grid || grid->columnNames() != place->columnNames)
        return;
    grid->splitter()->restoreState(place->widths);
    for (int column = 0; column < place->columns.size() && grid; ++column) {
        if (QWidget *shown = grid->splitter()->widget(column))
            place->columns.at(column).restore(shown);
    }
}

void PlaceKeeper::restoreFocus(const TabPlace &place)
{
    for (int column = 0; column < place.columns.size(); ++column) {
        QWidget *shown = place.grid ? place.grid->splitter()->widget(column) : nullptr;
        if (shown && place.columns.at(column).hasFocus())
            place.columns.at(column).restoreFocus(shown);
    }
}

void PlaceKeeper::restoreScrollOfCurrentTab()
{
    const PropertyGridWidget *grid = m_window ? m_window->workflowTabs()->currentGrid() : nullptr;
    const auto waiting =
        std::ranges::find_if(m_waiting, [grid](const TabPlace &each) { return each.grid == grid; });
    if (!grid || waiting == m_waiting.end())
        return;
    const TabPlace place = *waiting;
    m_waiting.erase(waiting);
    if (grid->columnNames() != place.columnNames)
        return;
    if (const QScrollArea *area = areaAround(*grid)) {
        area->horizontalScrollBar()->setValue(place.scroll.x());
        area->verticalScrollBar()->setValue(place.scroll.y());
    }
    for (int column = 0; column < place.columns.size(); ++column) {
        if (QWidget *shown = grid->splitter()->widget(column))
            place.columns.at(column).restoreScroll(shown);
    }
}

} // namespace orv
