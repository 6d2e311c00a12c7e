#pragma once

#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/TreePlace.h>

#include <QByteArray>
#include <QList>
#include <QPoint>
#include <QString>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QAbstractScrollArea)

namespace orv {

/// Where a person stands in a column: in its tree of settings, in its tables, how far they are scrolled, and
/// which field has the focus. Taken before the column is made anew of the same cell. GUI thread.
class ColumnPlace
{
public:
    /// \a focus is the focus widget of the window; it counts if it is in \a column.
    ColumnPlace(const QWidget &column, const QWidget *focus);

    [[nodiscard]] bool hasFocus() const { return m_focus.has_value(); }

    /// Folds, current rows and cells. What isn't there any more is passed over.
    void restore(QWidget *column) const;
    /// Once the column has its size.
    void restoreScroll(QWidget *column) const;
    void restoreFocus(QWidget *column) const;

private:
    /// Finds a widget again among those of a column that was made anew.
    struct Name
    {
        QByteArray type;
        QString objectName;
        int number = 0; ///< among those of the same type and object name

        bool operator==(const Name &) const = default;
    };
    struct Named
    {
        Name name;
        QWidget *widget = nullptr;
    };
    struct Area
    {
        Name name;
        QPoint scroll;
        QPoint cell{-1, -1}; ///< of a table: column and row as they are stored
    };

    [[nodiscard]] static QList<Named> widgetsOf(const QWidget &column);
    [[nodiscard]] static QWidget *find(const QWidget &column, const Name &name);
    [[nodiscard]] static Area areaOf(const Name &name, const QAbstractScrollArea &widget);

    std::optional<TreePlace> m_tree;
    GridPropertyEditorView::PropertiesViewMode m_mode = GridPropertyEditorView::PropertiesViewMode::Basic;
    QList<Area> m_areas;
    std::optional<Name> m_focus;
};

} // namespace orv
