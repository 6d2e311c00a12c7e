#include "orv/propertyeditor/window/WorkflowTabs.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/RawCell.h>
#include <orv/propertyeditor/grid/EditableTabBar.h>
#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/GridCommunicative.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>

#include <QAbstractItemView>
#include <QApplication>

#include <algorithm>

namespace orv {

using PropertyEditor::BaseItem;

WorkflowTabs::WorkflowTabs(EditableTabWidget *tabs, QObject *parent)
    : QObject(parent)
    , m_tabs(tabs)
{
    connect(tabs->editableTabBar(), &EditableTabBar::titleEdited, this, &WorkflowTabs::edited);
    connect(tabs->editableTabBar(), &QTabBar::tabMoved, this, &WorkflowTabs::edited);
    connect(tabs, &QTabWidget::currentChanged, this, &WorkflowTabs::focusColumn);
}

/// A tab gives the focus to the first of its controls, which may be one that shows nothing of it.
void WorkflowTabs::focusColumn()
{
    const PropertyGridWidget *shown = currentGrid();
    const QWidget *focus = QApplication::focusWidget();
    if (!shown || !focus || (focus != shown && !shown->isAncestorOf(focus)))
        return;
    const QList<IGridItem *> items = shown->items();
    const auto hasFocus = [focus](IGridItem *item) { return item->widget()->isAncestorOf(focus); };
    if (std::ranges::any_of(items, hasFocus))
        return;
    for (IGridItem *item : items) {
        const QList<QAbstractItemView *> views = item->widget()->findChildren<QAbstractItemView *>();
        const auto view = std::ranges::find_if(views, [](const QAbstractItemView *each) {
            return each->isVisible() && each->isEnabled() && (each->focusPolicy() & Qt::TabFocus) != 0;
        });
        if (view != views.cend())
            return (*view)->setFocus(Qt::TabFocusReason);
    }
}

Error WorkflowTabs::add(const QString &name, const QStringList &columns, const VariantItems &cells)
{
    Result<std::unique_ptr<PropertyGridWidget>> created =
        PropertyGridWidget::create(columns, cells, nullptr, &m_bus);
    if (created.hasError())
        return created.ecatch();
    const QPointer<PropertyGridWidget> grid = created->release();
    if (m_prepare)
        m_prepare(*grid);
    const QPointer<WorkflowTabs> self(this);
    m_tabs->addTab(grid, name);
    if (!self || !grid)
        return Error(ErrorCode::InvalidContent, tr("The tab was removed while it was added."));
    grid->setPropertiesViewMode(m_propertiesViewMode);
    grid->setEditorMode(m_editorMode);
    connect(grid, &PropertyGridWidget::itemAdded, this, &WorkflowTabs::columnsChanged);
    connect(grid, &PropertyGridWidget::itemRemoved, this, &WorkflowTabs::columnsChanged);
    connect(grid, &PropertyGridWidget::contentEdited, this, &WorkflowTabs::edited);
    Q_EMIT columnsChanged();
    return Error::NoError;
}

Error WorkflowTabs::insert(int index, const PropertyEditorContent::Tab &tab)
{
    const QPointer<WorkflowTabs> self(this);
    const auto &[columns, cells] = tab.second;
    ORV_RETURN_IF_ERROR(add(tab.first, columns, cells));
    if (self)
        m_tabs->editableTabBar()->moveTab(count() - 1, index);
    return Error::NoError;
}

void WorkflowTabs::remove(int index)
{
    QWidget *widget = m_tabs->widget(index);
    if (!widget)
        return;
    const QPointer<WorkflowTabs> self(this);
    const QPointer<QWidget> gone(widget);
    m_tabs->removeTab(index);
    if (!self)
        return;
    if (gone) {
        widget->disconnect(this);
        silence(*widget);
        widget->deleteLater();
    }
    Q_EMIT columnsChanged();
}

/// A tab lives until the events are handled; the next document must not hear of it.
void WorkflowTabs::silence(QWidget &tab)
{
    const auto *shown = qobject_cast<PropertyGridWidget *>(&tab);
    const QList<IGridItem *> items = shown ? shown->items() : QList<IGridItem *>();
    for (IGridItem *item : items) {
        if (auto *member = dynamic_cast<GridCommunicative *>(item))
            m_bus.unregisterCommunicative(member);
        if (QWidget *widget = item->widget(); widget && parent())
            QObject::disconnect(widget, nullptr, parent(), nullptr);
    }
}

Error WorkflowTabs::replaceCurrent(const PropertyEditorContent::Tab &tab)
{
    m_tabs->setTabText(m_tabs->currentIndex(), tab.first);
    const QPointer<PropertyGridWidget> grid = currentGrid();
    if (!grid)
        return Error::NoError;
    const QPointer<WorkflowTabs> self(this);
    const auto &[columns, cells] = tab.second;
    grid->removeAllColumns();
    for (const QString &column : columns) {
        if (grid)
            grid->appendColumn(BaseItem::typeFromString(column), column, false);
    }
    Error error = grid ? grid->appendData(cells) : Error(Error::NoError);
    if (grid)
        collapseAll(*grid);
    if (self)
        Q_EMIT columnsChanged();
    return error.hasError() ? error.ecatch() : error;
}

PropertyEditorContent::Tab WorkflowTabs::read(int index) const
{
    const PropertyGridWidget *shown = grid(index);
    const QList<IGridItem *> items = shown->items();
    VariantItems cells;
    cells.reserve(items.size());
    // Whoever reads a whole document wants its members, and no texts of thousands of samples.
    for (const IGridItem *item : items)
        cells.append(RawCell(item->content()).toVariant());
    return {m_tabs->tabText(index), {shown->columnNames(), cells}};
}

bool WorkflowTabs::isCurrentEven() const
{
    const PropertyGridWidget *shown = currentGrid();
    if (!shown)
        return true;
    const qsizetype columns = shown->columnNames().size();
    const qsizetype cells = shown->items().size();
    return columns == 0 || cells == 0 ? columns == cells : cells % columns == 0;
}

PropertyEditorContent::Tabs WorkflowTabs::tabs() const
{
    PropertyEditorContent::Tabs tabs;
    for (int i = 0; i < m_tabs->count(); ++i) {
        if (grid(i))
            tabs.append(read(i));
    }
    return tabs;
}

PropertyEditorContent::Tabs WorkflowTabs::currentTab() const
{
    return currentGrid() ? PropertyEditorContent::Tabs{read(m_tabs->currentIndex())}
                         : PropertyEditorContent::Tabs();
}

int WorkflowTabs::count() const
{
    return m_tabs->count();
}

PropertyGridWidget *WorkflowTabs::grid(int index) const
{
    return qobject_cast<PropertyGridWidget *>(m_tabs->widget(index));
}

PropertyGridWidget *WorkflowTabs::currentGrid() const
{
    return grid(m_tabs->currentIndex());
}

QList<QPointer<PropertyGridWidget>> WorkflowTabs::grids() const
{
    QList<QPointer<PropertyGridWidget>> grids;
    for (int i = 0; i < m_tabs->count(); ++i) {
        if (PropertyGridWidget *shown = grid(i))
            grids.append(shown);
    }
    return grids;
}

QList<IGridItem *> WorkflowTabs::items() const
{
    QList<IGridItem *> items;
    for (const PropertyGridWidget *shown : grids())
        items += shown->items();
    return items;
}

bool WorkflowTabs::validate(QStringList *warnings, QStringList *errors, QStringList *details,
                            WidgetValidationType type) const
{
    bool isValid = true;
    for (const QPointer<PropertyGridWidget> &shown : grids())
        isValid = (!shown || shown->validate(warnings, errors, details, type)) && isValid;
    return isValid;
}

void WorkflowTabs::setEditorMode(EditorMode mode)
{
    m_editorMode = mode;
    m_tabs->editableTabBar()->setEditorMode(mode);
    for (const QPointer<PropertyGridWidget> &shown : grids()) {
        if (shown)
            shown->setEditorMode(mode);
    }
}

void WorkflowTabs::setPropertiesViewMode(PropertiesViewMode mode)
{
    m_propertiesViewMode = mode;
    for (const QPointer<PropertyGridWidget> &shown : grids()) {
        if (shown)
            shown->setPropertiesViewMode(mode);
    }
}

void WorkflowTabs::setBaseUrl(const QUrl &url)
{
    for (const QPointer<PropertyGridWidget> &shown : grids()) {
        if (shown)
            setBaseUrl(*shown, url);
    }
}

void WorkflowTabs::setBaseUrl(PropertyGridWidget &grid, const QUrl &url)
{
    grid.updateBaseUrlForRelativeUrls(url);
}

void WorkflowTabs::collapseAll()
{
    for (const QPointer<PropertyGridWidget> &shown : grids()) {
        if (shown)
            collapseAll(*shown);
    }
}

void WorkflowTabs::collapseAll(const PropertyGridWidget &grid)
{
    for (IGridItem *item : grid.items()) {
        if (auto *view = qobject_cast<GridPropertyEditorView *>(item->widget()))
            view->collapseAll();
    }
}

} // namespace orv
