#pragma once

#include <orv/core/Error.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/grid/GridCommunicationManager.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/WidgetValidationType.h>
#include <orv/widgets/Export.h>

#include <QList>
#include <QObject>
#include <QPointer>
#include <QUrl>

#include <functional>

namespace orv {

class EditableTabWidget;
class IGridItem;
class PropertyGridWidget;

/// The tabs of a document on the screen: made from the value form and read back. A tab that shows something
/// else than a PropertyGridWidget is passed over by every function but remove(). Columns talk to those of the
/// same document alone. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT WorkflowTabs : public QObject
{
    Q_OBJECT

public:
    using EditorMode = GridPropertyEditorView::EditorMode;
    using PropertiesViewMode = GridPropertyEditorView::PropertiesViewMode;
    using Prepare = std::function<void(PropertyGridWidget &grid)>;

    /// \a tabs shows them, and outlives this.
    explicit WorkflowTabs(EditableTabWidget *tabs, QObject *parent = nullptr);

    /// What shows them.
    [[nodiscard]] EditableTabWidget *widget() const { return m_tabs; }

    /// Is called with each grid before its tab is there.
    void setPrepare(const Prepare &prepare) { m_prepare = prepare; }

    /// Another tab behind the others. Fails as PropertyGridWidget::create, and adds nothing then.
    Error add(const QString &name, const QStringList &columns, const VariantItems &cells);
    /// The same before the tab at \a index.
    Error insert(int index, const PropertyEditorContent::Tab &tab);
    /// Does nothing for an index without a tab.
    void remove(int index);
    /// The current tab gets another title and other columns; fails as PropertyGridWidget::appendData, with
    /// the columns before the one that can't be shown.
    Error replaceCurrent(const PropertyEditorContent::Tab &tab);

    [[nodiscard]] PropertyEditorContent::Tabs tabs() const;
    /// One, or none.
    [[nodiscard]] PropertyEditorContent::Tabs currentTab() const;
    /// Whether each column of the current tab has its cells; otherwise no file can hold the tab.
    [[nodiscard]] bool isCurrentEven() const;

    [[nodiscard]] int count() const;
    /// Null for a tab without one.
    [[nodiscard]] PropertyGridWidget *grid(int index) const;
    [[nodiscard]] PropertyGridWidget *currentGrid() const;
    [[nodiscard]] QList<QPointer<PropertyGridWidget>> grids() const;
    /// Of all tabs, in their order.
    [[nodiscard]] QList<IGridItem *> items() const;

    /// Asks the items of all tabs; true if all have what \a type needs.
    bool validate(QStringList *warnings, QStringList *errors, QStringList *details,
                  WidgetValidationType type) const;

    // Of the tabs that are there, and of those to come.
    void setEditorMode(EditorMode mode);
    [[nodiscard]] EditorMode editorMode() const { return m_editorMode; }
    void setPropertiesViewMode(PropertiesViewMode mode);
    [[nodiscard]] PropertiesViewMode propertiesViewMode() const { return m_propertiesViewMode; }

    // Of the tabs that are there.
    void setBaseUrl(const QUrl &url);
    static void setBaseUrl(PropertyGridWidget &grid, const QUrl &url);
    void collapseAll();
    static void collapseAll(const PropertyGridWidget &grid);

Q_SIGNALS:
    /// The set of columns is another one.
    void columnsChanged();
    /// A person changed something in a tab, or its title or place.
    void edited();

private:
    void focusColumn();
    [[nodiscard]] PropertyEditorContent::Tab read(int index) const;
    void silence(QWidget &tab);

    EditableTabWidget *m_tabs;
    GridCommunicationManager m_bus; ///< of this document alone
    Prepare m_prepare;
    EditorMode m_editorMode = EditorMode::User;
    PropertiesViewMode m_propertiesViewMode = PropertiesViewMode::Basic;
};

} // namespace orv
