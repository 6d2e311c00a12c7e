#pragma once

#include "ColumnMenu.h"
#include "orv/propertyeditor/grid/GridCommunicationManager.h"
#include "orv/propertyeditor/grid/PropertyGridWidget.h"

#include <QJsonObject>
#include <QList>
#include <QPointer>

QT_FORWARD_DECLARE_CLASS(QScrollArea)

namespace orv {

class PropertySplitterWidget;

class PropertyGridWidget::Private
{
public:
    Private(PropertyGridWidget *grid, const QStringList &columns);
    ~Private();
    Q_DISABLE_COPY_MOVE(Private)

    void layOut();
    Error appendData(const VariantItems &cells);
    void appendColumn(BaseItemType type, const QString &name, bool withDefaultContent);
    void removeColumn(int index);
    void renameColumn(int index, const QString &name);
    void copyColumn(int index);
    Error insertColumn(int index, const QString &name, const QVariant &cell);
    void moveColumn(int from, int to);
    /// Of the views of now and of later.
    void updateBaseUrl(const QUrl &url);
    [[nodiscard]] QList<QPointer<GridPropertyEditorView>> views() const;

    QSplitter *splitter;
    QPointer<GridCommunicationManager> bus; ///< null for that of all grids
    QStringList columnNames;
    QList<IGridItem *> items;
    QHBoxLayout *buttonsLayout;
    ColumnMenu *columnMenu;
    QScrollArea *scrollArea = nullptr;
    QWidget *scrollContent = nullptr;
    GridPropertyEditorView::PropertiesViewMode propertiesViewMode =
        GridPropertyEditorView::PropertiesViewMode::Basic;
    GridPropertyEditorView::EditorMode editorMode = GridPropertyEditorView::EditorMode::Designer;
    QUrl baseUrl;
    Error error;

private:
    void connectMenu();
    void prepareMenu();
    void askForName(int index);
    [[nodiscard]] GridPropertyEditorView *viewAt(int index) const;
    [[nodiscard]] PropertySplitterWidget *columnAt(int index) const;
    [[nodiscard]] QString nameOfCopy(const QString &name) const;

    Result<QJsonObject> parsedCell(const QVariant &cell) const;
    Result<IGridItem *> createGridItem(const QVariant &cell);
    void prepareWidget(QWidget *widget) const;
    Error createAndAdoptGridItem(const QVariant &cell, const QString &name);

    PropertyGridWidget *q;
};

} // namespace orv
