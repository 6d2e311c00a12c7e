#include "StateDisplay.h"

#include "settings/SettingEdit.h"
#include "settings/SettingJump.h"
#include "state/CellEntries.h"
#include "state/ShownState.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/grid/EditableTabBar.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/GridItemEdits.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/KPropertyCustomEditorView.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/grid/TreePlace.h>
#include <orv/propertyeditor/window/PropertyEditorWindow.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <memory>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

QString memberOf(const StateCell &cell, QLatin1String key)
{
    return cell.object().value(key).toString();
}

/// Columns of one name are renamed together by hand, and each to its own name here.
void nameItems(const PropertyGridWidget &grid, const DocumentState::Tab &tab)
{
    const QList<IGridItem *> items = grid.items();
    for (qsizetype i = 0; i < std::min(items.size(), tab.cells.size()); ++i)
        items.at(i)->setName(memberOf(tab.cells.at(i), NAME_KEY));
}

/// The one move that makes \a to of \a from, if there is one.
template<typename Entry>
std::optional<std::pair<int, int>> moveBetween(const QList<Entry> &from, const QList<Entry> &to)
{
    const auto head = std::mismatch(from.cbegin(), from.cend(), to.cbegin(), to.cend());
    const auto tail = std::mismatch(from.crbegin(), from.crend(), to.crbegin(), to.crend());
    const int first = int(head.first - from.cbegin());
    const int last = int(from.size() - 1 - (tail.first - from.crbegin()));
    if (from.size() != to.size() || first >= last)
        return std::nullopt;
    for (const auto &[source, target] : {std::pair(first, last), std::pair(last, first)}) {
        QList<Entry> moved = from;
        moved.move(source, target);
        if (moved == to)
            return std::pair(source, target);
    }
    return std::nullopt;
}

/// How many columns at both ends are the same.
struct SameEnds
{
    qsizetype head = 0;
    qsizetype tail = 0;
};

/// Where the columns of \a to between the ends were in \a from, by name and kind and in their order; -1 for
/// those that are new. A column that only changed keeps its widget, with folds and scroll position.
QList<qsizetype> formerPlaces(const DocumentState::Tab &from, const DocumentState::Tab &to, SameEnds same)
{
    QList<qsizetype> places;
    const qsizetype end = from.cells.size() - same.tail;
    qsizetype next = same.head;
    for (qsizetype i = same.head; i < to.cells.size() - same.tail; ++i) {
        const QString type = memberOf(to.cells.at(i), TYPE_KEY);
        qsizetype place = next;
        while (place < end && (from.columns.value(place) != to.columns.value(i) ||
                               memberOf(from.cells.at(place), TYPE_KEY) != type))
            ++place;
        places.append(place < end ? place : -1);
        if (place < end)
            next = place + 1;
    }
    return places;
}

/// Gives the properties of a view the values of \a cell; whether they are the same properties.
bool takeValues(GridPropertyEditorView &view, const QJsonObject &cell)
{
    const Result<KPropertySet *> made = PropertySetCreator::objectToPropertySet(cell, view.documentType());
    if (made.hasError())
        return false;
    const std::unique_ptr<KPropertySet> other(*made);
    const QPointer<GridPropertyEditorView> self(&view);
    const QPointer<KPropertySet> shown(view.propertySet());
    for (KPropertySetIterator property(*other); *property; ++property) {
        const QByteArray name = (*property)->name();
        if (!self || !shown)
            return false;
        // Names and other members of the cell are the item's.
        if (name.startsWith(':'))
            continue;
        if (!shown->contains(name))
            return false;
        SettingEdit::give(&shown->property(name), (*property)->value());
    }
    return self && shown;
}

/// A column that couldn't be shown left its name behind, which no step of the columns takes away.
bool hasNamesWithoutCells(const DocumentState::Tab &tab)
{
    return tab.columns.size() > tab.cells.size();
}

void keepFirst(Error *first, Error error)
{
    if (first->hasError())
        error.ecatch();
    else
        *first = error.ecatch();
}

} // namespace

StateDisplay::StateDisplay(PropertyEditorWindow *window, std::function<bool()> goesOn)
    : m_window(window)
    , m_goesOn(std::move(goesOn))
    , m_tabs(window->workflowTabs())
{}

Error StateDisplay::show(const DocumentState &from, const DocumentState &to)
{
    m_change = StateChange::between(from, to);
    const StateChange change = m_change;
    if (change.hasOtherMetadata())
        m_window->setWorkflowMetadata(to.metadata);
    // What can't be shown keeps nothing else from being shown.
    Error error = change.hasOtherTabs() ? exchangeTabs(change) : Error(Error::NoError);
    for (const StateChange::CellChange &cell : change.cells()) {
        const QPointer<PropertyGridWidget> grid = m_goesOn() ? m_tabs->grid(cell.tab) : nullptr;
        if (!grid)
            continue;
        const DocumentState::Tab &tab = to.tabs.at(cell.tab);
        keepFirst(&error, updateColumn(*grid, cell.column, tab.columns.value(cell.column), {},
                                       tab.cells.at(cell.column)));
    }
    if (m_goesOn() && change.hasOtherTabs())
        m_window->prepareColumns();
    return error.ecatch();
}

Error StateDisplay::exchangeTabs(const StateChange &change)
{
    const QList<DocumentState::Tab> &from = change.tabsBefore();
    const QList<DocumentState::Tab> &to = change.tabsAfter();
    const int first = change.firstTab();
    if (const auto move = moveBetween(from, to)) {
        m_tabs->widget()->editableTabBar()->moveTab(first + move->first, first + move->second);
        return Error::NoError;
    }
    if (from.size() == to.size()) {
        Error error;
        for (int i = 0; i < to.size() && m_goesOn(); ++i)
            keepFirst(&error, updateTab(first + i, from.at(i), to.at(i)));
        return error.ecatch();
    }
    // What stands at both ends of the tabs that differ may be the same.
    qsizetype same = 0;
    while (same < std::min(from.size(), to.size()) && from.at(same) == to.at(same))
        ++same;
    for (qsizetype i = same; i < from.size() && m_goesOn(); ++i)
        m_tabs->remove(first + int(same));
    Error error;
    for (qsizetype i = same; i < to.size() && m_goesOn(); ++i) {
        const int index = first + int(i);
        keepFirst(&error, m_tabs->insert(index, to.at(i).content()));
        if (const PropertyGridWidget *grid = m_goesOn() ? m_tabs->grid(index) : nullptr)
            WorkflowTabs::collapseAll(*grid);
    }
    return error.ecatch();
}

Error StateDisplay::updateTab(int index, const DocumentState::Tab &from, const DocumentState::Tab &to)
{
    m_tabs->widget()->setTabText(index, to.title);
    const QPointer<PropertyGridWidget> grid = m_tabs->grid(index);
    if (!grid || from == to)
        return Error::NoError;
    if (hasNamesWithoutCells(from) || hasNamesWithoutCells(to))
        return replaceTab(index, to);
    Error error = exchangeColumns(*grid, from, to);
    if (grid)
        nameItems(*grid, to);
    return error.ecatch();
}

Error StateDisplay::replaceTab(int index, const DocumentState::Tab &to)
{
    const bool isCurrent = m_tabs->widget()->currentIndex() == index;
    m_tabs->remove(index);
    if (!m_goesOn())
        return Error::NoError;
    Error error = m_tabs->insert(index, to.content());
    if (const PropertyGridWidget *grid = m_goesOn() ? m_tabs->grid(index) : nullptr)
        WorkflowTabs::collapseAll(*grid);
    if (isCurrent && m_goesOn())
        m_tabs->widget()->setCurrentIndex(index);
    return error.ecatch();
}

Error StateDisplay::exchangeColumns(PropertyGridWidget &grid, const DocumentState::Tab &from,
                                    const DocumentState::Tab &to)
{
    const QPointer<PropertyGridWidget> shown(&grid);
    if (from.cells.size() == to.cells.size()) {
        if (const auto move = moveBetween(from.columns, to.columns)) {
            grid.moveColumn(move->first, move->second);
            DocumentState::Tab moved = from;
            moved.columns.move(move->first, move->second);
            moved.cells.move(move->first, move->second);
            return shown ? exchangeColumns(grid, moved, to) : Error(Error::NoError);
        }
        Error error;
        for (int i = 0; i < to.cells.size() && shown && m_goesOn(); ++i) {
            if (from.columns.value(i) != to.columns.value(i) || !(from.cells.at(i) == to.cells.at(i)))
                keepFirst(&error,
                          updateColumn(grid, i, to.columns.value(i), from.cells.at(i), to.cells.at(i)));
        }
        return error.ecatch();
    }
    const qsizetype shorter = std::min(from.cells.size(), to.cells.size());
    qsizetype head = 0;
    while (head < shorter && from.cells.at(head) == to.cells.at(head))
        ++head;
    qsizetype tail = 0;
    while (tail < shorter - head &&
           from.cells.at(from.cells.size() - 1 - tail) == to.cells.at(to.cells.size() - 1 - tail))
        ++tail;
    const QList<qsizetype> former = formerPlaces(from, to, {head, tail});
    for (qsizetype i = from.cells.size() - tail - 1; i >= head && shown && m_goesOn(); --i) {
        if (!former.contains(i))
            grid.removeColumn(int(i));
    }
    Error error;
    for (qsizetype i = head; i < to.cells.size() - tail && shown && m_goesOn(); ++i) {
        const qsizetype place = former.at(i - head);
        keepFirst(&error, place < 0
                              ? grid.insertColumn(int(i), to.columns.value(i), to.cells.at(i).toVariant())
                              : updateColumn(grid, int(i), to.columns.value(i), from.cells.at(place),
                                             to.cells.at(i)));
    }
    return error.ecatch();
}

Error StateDisplay::updateColumn(PropertyGridWidget &grid, int column, const QString &name,
                                 const StateCell &from, const StateCell &to)
{
    const QPointer<PropertyGridWidget> shown(&grid);
    if (grid.columnNames().value(column) != name)
        grid.renameColumn(column, name);
    IGridItem *item = shown ? grid.items().value(column) : nullptr;
    if (!item)
        return Error::NoError;
    if (cellOf(*item) == to)
        return Error::NoError;
    item->setName(memberOf(to, NAME_KEY));
    if (!from.isNull() && memberOf(from, TYPE_KEY) != memberOf(to, TYPE_KEY)) {
        ORV_RETURN_IF_ERROR(grid.insertColumn(column, name, to.toVariant()));
        if (shown && m_goesOn())
            grid.removeColumn(column + 1);
        return Error::NoError;
    }
    const QJsonObject cell = to.object();
    // Lives as long as the item, which goes at once when a listener removes its column.
    const QPointer<GridItemEdits> isThere(item->edits());
    if (const QPointer view = qobject_cast<GridPropertyEditorView *>(item->widget())) {
        const bool areSame = takeValues(*view, cell);
        if (!isThere || !view || (areSame && cellOf(*item) == to))
            return Error::NoError;
        const TreePlace place(*view->editorView());
        Error error = item->setContent(cell);
        if (view)
            place.restore(view->editorView());
        return error.ecatch();
    }
    return item->setContent(cell).ecatch();
}

void StateDisplay::goTo(const DocumentState &from, const DocumentState &to)
{
    if (!m_window)
        return;
    const StateChange &change = m_change;
    if (change.hasOtherTabs()) {
        const int count = m_tabs->widget()->count();
        m_tabs->widget()->setCurrentIndex(std::min(change.firstTab(), count - 1));
        return;
    }
    if (change.cells().isEmpty())
        return;
    const StateChange::CellChange &cell = change.cells().constFirst();
    m_tabs->widget()->setCurrentIndex(cell.tab);
    const PropertyGridWidget *grid = m_tabs->grid(cell.tab);
    IGridItem *item = grid ? grid->items().value(cell.column) : nullptr;
    QWidget *widget = item ? item->widget() : nullptr;
    if (!widget)
        return;
    const QPointer view = qobject_cast<GridPropertyEditorView *>(widget);
    const QList<ChangedEntry> changed =
        view ? changedEntries(from.tabs.at(cell.tab).cells.at(cell.column).object(),
                              to.tabs.at(cell.tab).cells.at(cell.column).object())
             : QList<ChangedEntry>();
    SettingJump::show(m_window, widget);
    if (view && !changed.isEmpty())
        view->goTo(changed.constFirst().after.value(NAME_KEY).toString().toUtf8());
}

} // namespace orv
