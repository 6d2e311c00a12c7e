#include "orv/propertyeditor/grid/PropertyGridWidget.h"

#include "PropertyGridWidget_p.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/PropertySplitterWidget.h>

#include <QHBoxLayout>
#include <QJsonDocument>
#include <QSplitter>

namespace orv {

using EditorMode = GridPropertyEditorView::EditorMode;

Result<std::unique_ptr<PropertyGridWidget>> PropertyGridWidget::create(const QStringList &columns,
                                                                       const VariantItems &cells,
                                                                       QWidget *parent,
                                                                       GridCommunicationManager *bus)
{
    std::unique_ptr<PropertyGridWidget> grid(new PropertyGridWidget(columns, cells, parent, bus));
    if (grid->d->error.hasError())
        return grid->d->error.ecatch();
    return grid;
}

PropertyGridWidget::PropertyGridWidget(const QStringList &columns, const VariantItems &cells, QWidget *parent,
                                       GridCommunicationManager *bus)
    : QWidget(parent)
    , d(std::make_unique<Private>(this, columns))
{
    d->bus = bus;
    d->error = appendData(cells);
    d->layOut();
    for (int i = 0; i < d->splitter->count(); ++i)
        d->splitter->setCollapsible(i, false);
}

PropertyGridWidget::~PropertyGridWidget() = default;

void PropertyGridWidget::appendColumn(BaseItemType type, const QString &name, bool withDefaultContent)
{
    d->appendColumn(type, name, withDefaultContent);
}

Error PropertyGridWidget::appendData(const VariantItems &cells)
{
    return d->appendData(cells);
}

void PropertyGridWidget::appendRow() {}

void PropertyGridWidget::removeAllColumns()
{
    const QPointer<PropertyGridWidget> self(this);
    for (int i = d->splitter->count() - 1; i >= 0 && self; --i)
        d->removeColumn(i);
    if (self)
        d->columnNames.clear();
}

void PropertyGridWidget::removeColumn(int index)
{
    d->removeColumn(index);
}

void PropertyGridWidget::renameColumn(int index, const QString &name)
{
    d->renameColumn(index, name);
}

void PropertyGridWidget::copyColumn(int index)
{
    d->copyColumn(index);
}

Error PropertyGridWidget::insertColumn(int index, const QString &name, const QVariant &cell)
{
    return d->insertColumn(index, name, cell).ecatch();
}

void PropertyGridWidget::moveColumn(int from, int to)
{
    d->moveColumn(from, to);
}

QStringList PropertyGridWidget::columnNames() const
{
    return d->columnNames;
}

VariantItems PropertyGridWidget::cells() const
{
    VariantItems cells;
    cells.reserve(d->items.size());
    for (const IGridItem *item : std::as_const(d->items))
        cells.append(QJsonDocument(item->content()).toJson());
    return cells;
}

QList<IGridItem *> PropertyGridWidget::items() const
{
    return d->items;
}

bool PropertyGridWidget::validate(QStringList *warnings, QStringList *errors, QStringList *details,
                                  WidgetValidationType type) const
{
    bool isValid = true;
    for (const IGridItem *item : std::as_const(d->items))
        isValid = item->validate(warnings, errors, details, type) && isValid;
    return isValid;
}

void PropertyGridWidget::setPropertiesViewMode(GridPropertyEditorView::PropertiesViewMode mode)
{
    d->propertiesViewMode = mode;
    const auto views = d->views();
    for (const QPointer<GridPropertyEditorView> &view : views) {
        if (view)
            view->setPropertiesViewMode(mode);
    }
}

void PropertyGridWidget::setEditorMode(EditorMode mode)
{
    d->editorMode = mode;
    const QPointer<PropertyGridWidget> self(this);
    const auto views = d->views();
    for (const QPointer<GridPropertyEditorView> &view : views) {
        if (view)
            view->setEditorMode(mode);
    }
    for (int i = 0; self && i < d->buttonsLayout->count(); ++i) {
        if (QWidget *widget = d->buttonsLayout->itemAt(i)->widget())
            widget->setVisible(mode == EditorMode::Designer);
    }
}

void PropertyGridWidget::updateBaseUrlForRelativeUrls(const QUrl &url)
{
    d->updateBaseUrl(url);
}

QHBoxLayout *PropertyGridWidget::buttonsLayout() const
{
    return d->buttonsLayout;
}

QSplitter *PropertyGridWidget::splitter() const
{
    return d->splitter;
}

QMenu *PropertyGridWidget::columnMenu() const
{
    return d->columnMenu;
}

} // namespace orv
