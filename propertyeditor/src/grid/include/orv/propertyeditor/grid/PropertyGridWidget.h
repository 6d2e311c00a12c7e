#pragma once

#include <orv/core/Result.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/WidgetValidationType.h>
#include <orv/table/VariantItems.h>
#include <orv/widgets/Export.h>

#include <QStringList>
#include <QUrl>
#include <QWidget>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QHBoxLayout)
QT_FORWARD_DECLARE_CLASS(QMenu)
QT_FORWARD_DECLARE_CLASS(QSplitter)

namespace orv {

class GridCommunicationManager;
class IGridItem;

/// What a tab shows: a row of columns, each a title above the widget of its grid item. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT PropertyGridWidget : public QWidget
{
    Q_OBJECT

public:
    /// The grid of a tab in the value form: as many \a cells as \a columns. Fails as appendData does. Its
    /// columns talk over \a bus, which isn't owned, or over that of all grids without one.
    [[nodiscard]] static Result<std::unique_ptr<PropertyGridWidget>>
    create(const QStringList &columns, const VariantItems &cells, QWidget *parent = nullptr,
           GridCommunicationManager *bus = nullptr);
    ~PropertyGridWidget() override;

    /// With default content a column stands there; without it only its name, for cells that are appended
    /// next.
    void appendColumn(BaseItemType type, const QString &name, bool withDefaultContent);
    /// One column for each cell, named by position. MalformedStructure for no cells or no columns, unless
    /// designers edit; InvalidContent for a cell that is no JSON, has an unknown type or can't be made, and
    /// what its item says against its content. Columns that were made before stay.
    Error appendData(const VariantItems &cells);
    /// Reserved for grids of several rows.
    void appendRow();
    /// A column of a cell before that at \a index, or behind the last. Fails as appendData, and adds nothing
    /// then.
    Error insertColumn(int index, const QString &name, const QVariant &cell);
    /// Does nothing for an index without a column.
    void moveColumn(int from, int to);
    void removeAllColumns();
    void removeColumn(int index);
    void renameColumn(int index, const QString &name);
    void copyColumn(int index);

    [[nodiscard]] QStringList columnNames() const;
    /// Indented JSON bytes for each column.
    [[nodiscard]] VariantItems cells() const;
    /// Owned by the grid; valid until columns change.
    [[nodiscard]] QList<IGridItem *> items() const;

    /// Asks every item; true if all have what \a type needs.
    bool validate(QStringList *warnings, QStringList *errors, QStringList *details,
                  WidgetValidationType type) const;

    void setPropertiesViewMode(GridPropertyEditorView::PropertiesViewMode mode);
    void setEditorMode(GridPropertyEditorView::EditorMode mode);
    /// Where relative files of the columns lie, of these and of those that come later.
    void updateBaseUrlForRelativeUrls(const QUrl &url);
    /// The row above the columns, which designers see.
    [[nodiscard]] QHBoxLayout *buttonsLayout() const;
    [[nodiscard]] QSplitter *splitter() const;
    /// The menu of a column's title; the column is its dynamic property "logicalIndex".
    [[nodiscard]] QMenu *columnMenu() const;

Q_SIGNALS:
    void itemAdded();
    void itemRemoved();
    /// A person changed the columns, or something in one of them.
    void contentEdited();

private:
    PropertyGridWidget(const QStringList &columns, const VariantItems &cells, QWidget *parent,
                       GridCommunicationManager *bus);

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
