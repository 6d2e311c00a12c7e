#pragma once

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/Content.h>

#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>

namespace orv {

/// Hears of every edit of the cells that a tree has when it begins to watch. Cells are told by their numbers
/// in the order of the tree, which outlive the cells themselves.
class TreeWatch
{
public:
    explicit TreeWatch(const PropertyEditor::Content &tree);
    Q_DISABLE_COPY_MOVE(TreeWatch)

    [[nodiscard]] qsizetype count() const { return m_cells.size(); }
    /// Null once the cell is gone.
    [[nodiscard]] PropertyEditor::BaseItem *cell(qsizetype number) const { return m_cells.at(number).item; }
    [[nodiscard]] qsizetype tabOf(qsizetype number) const { return m_cells.at(number).tab; }
    /// Among the cells of its tab in the value form.
    [[nodiscard]] qsizetype indexInTab(qsizetype number) const { return m_cells.at(number).index; }

    /// Whether the cells of \a tree are those that are watched, each in its place among as many tabs and
    /// columns.
    [[nodiscard]] bool hasSameCells(const PropertyEditor::Content &tree) const;

    [[nodiscard]] const QSet<qsizetype> &edited() const { return m_edited; }
    void forgetEdits() { m_edited.clear(); }

private:
    struct Cell
    {
        QPointer<PropertyEditor::BaseItem> item;
        qsizetype tab;
        qsizetype index;

        bool operator==(const Cell &) const = default;
    };

    [[nodiscard]] static QList<Cell> cellsOf(const PropertyEditor::Content &tree);
    [[nodiscard]] static QList<int> columnCountsOf(const PropertyEditor::Content &tree);

    const QList<Cell> m_cells;
    const QList<int> m_columnCounts; ///< of each tab
    QSet<qsizetype> m_edited;
    QObject m_listener;
};

} // namespace orv
