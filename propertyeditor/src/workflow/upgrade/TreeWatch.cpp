#include "TreeWatch.h"

#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>

namespace orv {

using namespace PropertyEditor;

TreeWatch::TreeWatch(const Content &tree)
    : m_cells(cellsOf(tree))
    , m_columnCounts(columnCountsOf(tree))
{
    for (qsizetype i = 0; i < m_cells.size(); ++i)
        QObject::connect(m_cells.at(i).item, &BaseItem::changed, &m_listener,
                         [this, i] { m_edited.insert(i); });
}

QList<TreeWatch::Cell> TreeWatch::cellsOf(const Content &tree)
{
    QList<Cell> cells;
    const QList<ItemGroup *> tabs = tree.groups();
    for (qsizetype t = 0; t < tabs.size(); ++t) {
        const QList<ItemSubGroup *> columns = tabs.at(t)->subGroups();
        for (qsizetype c = 0; c < columns.size(); ++c) {
            const QList<BaseItem *> items = columns.at(c)->items();
            for (qsizetype r = 0; r < items.size(); ++r)
                cells.append({items.at(r), t, r * columns.size() + c});
        }
    }
    return cells;
}

QList<int> TreeWatch::columnCountsOf(const Content &tree)
{
    QList<int> counts;
    for (const ItemGroup *tab : tree.groups())
        counts.append(tab->count());
    return counts;
}

bool TreeWatch::hasSameCells(const Content &tree) const
{
    return columnCountsOf(tree) == m_columnCounts && cellsOf(tree) == m_cells;
}

} // namespace orv
