#include "PropertyGridWidget_p.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/WflwAdvancedSettings.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/CellTypes.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/content/RawCell.h>
#include <orv/propertyeditor/grid/GridItemManager.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/PropertySplitterWidget.h>
#include <orv/propertyeditor/workflow/NewWorkflow.h>
#include <orv/widgets/ModalDialog.h>
#include <orv/widgets/SamplesAndTracesInputWidget.h>
#include <orv/widgets/SequenceDatabasesWidget.h>

#include <QApplication>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace orv {

using namespace PropertyEditorStringConstants;
using PropertyEditor::BaseItem;

namespace {

/// Narrower, names and values of settings are cut.
constexpr int kMinimumColumnWidth = 400;
constexpr qint64 kMostCopies = 1'000'000'000'000;

struct PropertyGridColumnsTr
{
    Q_DECLARE_TR_FUNCTIONS(PropertyGridWidget)
};

Error wasRemoved()
{
    return Error(ErrorCode::InvalidContent,
                 PropertyGridColumnsTr::tr("The column was removed while it was added."));
}

/// A column of settings begins empty, and a table with its default rows.
QJsonObject newCell(BaseItemType type)
{
    const PropertyEditor::CellType *row = PropertyEditor::CellTypes::find(type);
    QJsonObject cell;
    if (type == BaseItemType::Samples || type == BaseItemType::Database)
        cell = NewWorkflow::defaultCell(type);
    else if (row && !row->holdsSettings)
        cell = PropertyEditorJsonUtils::defaultJsonContents(type);
    cell.insert(TYPE_KEY, BaseItem::typeToString(type));
    return cell;
}

/// Lets an editor in \a column tell what was typed, while all is in its place. Whether it had the focus.
bool takeFocusFrom(const QWidget *column)
{
    QWidget *focus = QApplication::focusWidget();
    if (!focus || !column->isAncestorOf(focus))
        return false;
    focus->clearFocus();
    return true;
}

void setBaseUrl(QWidget *widget, const QUrl &url)
{
    if (auto *view = qobject_cast<GridPropertyEditorView *>(widget))
        view->setBaseUrlForRelativeUrls(url);
    else if (auto *samples = qobject_cast<SamplesAndTracesInputWidget *>(widget))
        samples->setBaseUrl(url);
    else if (auto *databases = qobject_cast<SequenceDatabasesWidget *>(widget))
        databases->setBaseUrl(url);
}

} // namespace

PropertyGridWidget::Private::Private(PropertyGridWidget *grid, const QStringList &columns)
    : splitter(new QSplitter(Qt::Horizontal, grid))
    , columnNames(columns)
    , buttonsLayout(new QHBoxLayout)
    , columnMenu(new ColumnMenu(grid))
    , q(grid)
{
    splitter->setHandleWidth(0);
    splitter->setChildrenCollapsible(false);
    connectMenu();
}

PropertyGridWidget::Private::~Private()
{
    // Each item leaves the list before it goes: others hear of it and may look.
    while (!items.isEmpty())
        delete items.takeLast();
}

void PropertyGridWidget::Private::layOut()
{
    auto *outer = new QVBoxLayout(q);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addLayout(buttonsLayout);
    scrollArea = new QScrollArea(q);
    scrollArea->setObjectName(QStringLiteral("propertyGridWidgetScrollArea"));
    scrollArea->setWidgetResizable(true);
    scrollContent = new QWidget;
    auto *inner = new QVBoxLayout(scrollContent);
    inner->setContentsMargins(0, 0, 0, 0);
    inner->setSpacing(0);
    inner->addWidget(splitter);
    scrollArea->setWidget(scrollContent);
    outer->addWidget(scrollArea);
}

Error PropertyGridWidget::Private::appendData(const VariantItems &cells)
{
    const bool isDesigner = editorMode == GridPropertyEditorView::EditorMode::Designer;
    if (cells.isEmpty()) {
        return isDesigner
                   ? Error()
                   : Error(ErrorCode::MalformedStructure, PropertyGridColumnsTr::tr("No items to load."));
    }
    if (columnNames.isEmpty()) {
        return isDesigner
                   ? Error()
                   : Error(ErrorCode::MalformedStructure, PropertyGridColumnsTr::tr("No columns added."));
    }
    const QPointer<PropertyGridWidget> self(q);
    for (qsizetype i = 0; i < cells.size() && self; ++i)
        ORV_RETURN_IF_ERROR(createAndAdoptGridItem(cells.at(i), columnNames.value(i)));
    return Error::NoError;
}

Result<QJsonObject> PropertyGridWidget::Private::parsedCell(const QVariant &cell) const
{
    Result<QJsonObject> object = RawCell::parse(cell);
    if (!object.hasError() && !object->isEmpty())
        return object;
    const QString reason = object.hasError() ? object.error().errorMessage()
                                             : QJsonParseError{0, QJsonParseError::NoError}.errorString();
    qCWarning(propertyEditorLog).noquote() << "Json parsing error:" << reason << cell.toByteArray();
    return Error(ErrorCode::InvalidContent, PropertyGridColumnsTr::tr("Json parsing error: %1").arg(reason));
}

Result<IGridItem *> PropertyGridWidget::Private::createGridItem(const QVariant &cell)
{
    Result<QJsonObject> object = parsedCell(cell);
    if (object.hasError())
        return object.ecatch();
    const QString typeText = object->value(TYPE_KEY).toString();
    const BaseItemType type = BaseItem::typeFromString(typeText);
    if (type == BaseItemType::Unknown && WflwAdvancedSettings::isWorkflowVerificationEnabled())
        return Error(ErrorCode::InvalidContent,
                     PropertyGridColumnsTr::tr("Type \"%1\" is not supported.").arg(typeText));
    const QPointer<PropertyGridWidget> self(q);
    std::unique_ptr<IGridItem> item(GridItemManager::instance()->createItem(type, bus));
    if (!item)
        return Error(ErrorCode::InvalidContent,
                     PropertyGridColumnsTr::tr("Can't create item for \"%1\" type.").arg(typeText));
    if (auto *view = qobject_cast<GridPropertyEditorView *>(item->widget()))
        view->setDocumentType(type);
    // Other columns hear of the new one, and may close the grid.
    ORV_RETURN_IF_ERROR(item->setContent(*object));
    if (!self)
        return wasRemoved();
    IGridItem *adopted = item.release();
    items.append(adopted);
    prepareWidget(adopted->widget());
    QObject::connect(adopted->edits(), &GridItemEdits::edited, q, &PropertyGridWidget::contentEdited);
    Q_EMIT q->itemAdded();
    if (!self || !items.contains(adopted))
        return wasRemoved();
    return adopted;
}

void PropertyGridWidget::Private::prepareWidget(QWidget *widget) const
{
    if (!widget)
        return;
    widget->setMinimumWidth(kMinimumColumnWidth);
    widget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    if (auto *view = qobject_cast<GridPropertyEditorView *>(widget))
        view->setPropertiesViewMode(propertiesViewMode);
    if (!baseUrl.isEmpty())
        setBaseUrl(widget, baseUrl);
}

void PropertyGridWidget::Private::updateBaseUrl(const QUrl &url)
{
    baseUrl = url;
    QList<QPointer<QWidget>> widgets;
    for (IGridItem *item : std::as_const(items))
        widgets.append(item->widget());
    for (const QPointer<QWidget> &widget : std::as_const(widgets))
        setBaseUrl(widget, url);
}

Error PropertyGridWidget::Private::createAndAdoptGridItem(const QVariant &cell, const QString &name)
{
    Result<IGridItem *> item = createGridItem(cell);
    if (item.hasError())
        return item.ecatch();
    (*item)->setName(name);
    auto *column = new PropertySplitterWidget((*item)->widget(), q);
    column->setHeaderText(name);
    QObject::connect(column, &PropertySplitterWidget::headerContextMenuRequested, q,
                     [this](QWidget *widget, const QPoint &position) {
                         columnMenu->setIndex(splitter->indexOf(widget));
                         columnMenu->popup(position);
                     });
    splitter->addWidget(column);
    return Error::NoError;
}

void PropertyGridWidget::Private::appendColumn(BaseItemType type, const QString &name,
                                               bool withDefaultContent)
{
    columnNames.append(name);
    if (!withDefaultContent)
        return;
    const QPointer<PropertyGridWidget> self(q);
    if (Error failure = createAndAdoptGridItem(RawCell(newCell(type)).toVariant(), name)) {
        qCCritical(propertyEditorLog).noquote()
            << "Can't append the column" << name << ":" << failure.errorMessage();
        static_cast<void>(failure.ecatch());
        return;
    }
    if (self)
        Q_EMIT q->contentEdited();
}

void PropertyGridWidget::Private::removeColumn(int index)
{
    if (index < 0 || index >= splitter->count()) {
        qCWarning(propertyEditorLog) << "Invalid index";
        return;
    }
    const QPointer<PropertyGridWidget> self(q);
    const QPointer<QWidget> column = splitter->widget(index);
    const bool hadFocus = takeFocusFrom(column);
    index = self && column ? splitter->indexOf(column) : -1;
    if (index < 0)
        return;
    std::unique_ptr<IGridItem> item(index < items.size() ? items.takeAt(index) : nullptr);
    Q_EMIT q->itemRemoved();
    const int place = self && column ? splitter->indexOf(column) : -1;
    if (place < 0)
        return;
    column->setParent(nullptr);
    column->deleteLater();
    item.reset();
    if (!self)
        return;
    if (place < columnNames.size())
        columnNames.removeAt(place);
    if (hadFocus && splitter->count() > 0)
        columnAt(std::min(place, splitter->count() - 1))->header()->setFocus();
    Q_EMIT q->contentEdited();
}

void PropertyGridWidget::Private::renameColumn(int index, const QString &name)
{
    PropertySplitterWidget *column = columnAt(index);
    if (!column || index >= columnNames.size()) {
        qCWarning(propertyEditorLog) << "Invalid index";
        return;
    }
    const QString oldName = std::exchange(columnNames[index], name);
    column->setHeaderText(name);
    for (IGridItem *item : std::as_const(items)) {
        if (item->name() == oldName)
            item->setName(name);
    }
    if (oldName != name)
        Q_EMIT q->contentEdited();
}

QString PropertyGridWidget::Private::nameOfCopy(const QString &name) const
{
    // A part of the document, so the same in every language.
    QString copy = name + QLatin1String(" - copy");
    if (!columnNames.contains(copy))
        return copy;
    const QRegularExpression numbered(QRegularExpression::escape(copy) + QStringLiteral(" (\\d+)$"));
    qint64 last = 0;
    for (const QString &existing : columnNames) {
        const qint64 number = numbered.match(existing).captured(1).toLongLong();
        // Nobody made as many copies: such a number is part of the name.
        last = number < kMostCopies ? std::max(last, number) : last;
    }
    return copy + QStringLiteral(" %1").arg(last + 1);
}

void PropertyGridWidget::Private::copyColumn(int index)
{
    if (index < 0 || index >= columnNames.size()) {
        qCWarning(propertyEditorLog) << "Invalid index";
        return;
    }
    // A name whose cell couldn't be loaded stays without an item.
    if (index >= items.size()) {
        qCWarning(propertyEditorLog) << "Failed to create a copy of column" << columnNames.at(index);
        return;
    }
    const QString name = nameOfCopy(columnNames.at(index));
    columnNames.append(name);
    const QPointer<PropertyGridWidget> self(q);
    if (Error failure = createAndAdoptGridItem(RawCell(items.at(index)->content()).toVariant(), name)) {
        static_cast<void>(failure.ecatch());
        return;
    }
    if (!self)
        return;
    if (GridPropertyEditorView *view = viewAt(int(items.size()) - 1)) {
        view->collapseAll();
        view->setEditorMode(editorMode);
    }
    Q_EMIT q->contentEdited();
}

void PropertyGridWidget::Private::moveColumn(int from, int to)
{
    const qsizetype count = std::min({qsizetype(splitter->count()), items.size(), columnNames.size()});
    if (from < 0 || from >= count || to < 0 || to >= count || from == to)
        return;
    splitter->insertWidget(to, splitter->widget(from));
    columnNames.move(from, to);
    items.move(from, to);
    Q_EMIT q->contentEdited();
}

Error PropertyGridWidget::Private::insertColumn(int index, const QString &name, const QVariant &cell)
{
    const QPointer<PropertyGridWidget> self(q);
    columnNames.append(name);
    Error failure = createAndAdoptGridItem(cell, name);
    if (!self)
        return failure.ecatch();
    if (failure.hasError()) {
        columnNames.removeLast();
        return failure.ecatch();
    }
    const int last = int(columnNames.size()) - 1;
    if (GridPropertyEditorView *view = viewAt(last)) {
        view->collapseAll();
        view->setEditorMode(editorMode);
    }
    moveColumn(last, std::clamp(index, 0, last));
    return Error::NoError;
}

void PropertyGridWidget::Private::askForName(int index)
{
    const PropertySplitterWidget *column = columnAt(index);
    if (!column)
        return;
    const QPointer<PropertyGridWidget> self(q);
    ModalDialog dialog(new QInputDialog(q));
    dialog->setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    dialog->setWindowTitle(PropertyGridColumnsTr::tr("Rename column"));
    dialog->setLabelText(PropertyGridColumnsTr::tr("New column name:"));
    dialog->setTextValue(column->headerText());
    if (!dialog.exec() || !self)
        return;
    const QString name = dialog->textValue().trimmed();
    if (!name.isEmpty())
        renameColumn(index, name);
}

void PropertyGridWidget::Private::connectMenu()
{
    QObject::connect(columnMenu, &QMenu::aboutToShow, q, [this] { prepareMenu(); });
    QObject::connect(columnMenu, &ColumnMenu::foldRequested, q, [this](int index) {
        if (GridPropertyEditorView *view = viewAt(index))
            view->isExpanded() ? view->collapseAll() : view->expandAll();
    });
    QObject::connect(columnMenu, &ColumnMenu::removeRequested, q, [this](int index) { removeColumn(index); });
    QObject::connect(columnMenu, &ColumnMenu::renameRequested, q, [this](int index) { askForName(index); });
    QObject::connect(columnMenu, &ColumnMenu::copyRequested, q, [this](int index) { copyColumn(index); });
    QObject::connect(columnMenu, &ColumnMenu::moveRequested, q,
                     [this](int index, int by) { moveColumn(index, index + by); });
    QObject::connect(columnMenu, &ColumnMenu::karvonRequested, q, [this](int index) {
        if (GridPropertyEditorView *view = viewAt(index))
            view->loadKarvonParameters(q);
    });
    QObject::connect(columnMenu, &ColumnMenu::previewRequested, q, [this](int index) {
        if (GridPropertyEditorView *view = viewAt(index))
            view->loadPreviewParameters(q);
    });
}

void PropertyGridWidget::Private::prepareMenu()
{
    if (!items.isEmpty())
        columnMenu->prepare(splitter->count(), viewAt(columnMenu->index()));
}

GridPropertyEditorView *PropertyGridWidget::Private::viewAt(int index) const
{
    return index < 0 || index >= items.size()
               ? nullptr
               : qobject_cast<GridPropertyEditorView *>(items.at(index)->widget());
}

PropertySplitterWidget *PropertyGridWidget::Private::columnAt(int index) const
{
    return index < 0 ? nullptr : qobject_cast<PropertySplitterWidget *>(splitter->widget(index));
}

QList<QPointer<GridPropertyEditorView>> PropertyGridWidget::Private::views() const
{
    QList<QPointer<GridPropertyEditorView>> views;
    for (IGridItem *item : items) {
        if (auto *view = qobject_cast<GridPropertyEditorView *>(item->widget()))
            views.append(view);
    }
    return views;
}

} // namespace orv
