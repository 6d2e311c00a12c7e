#include "FindingTargets.h"

#include <orv/propertyeditor/grid/EditableTabWidget.h>
#include <orv/propertyeditor/grid/GridPropertyEditorView.h>
#include <orv/propertyeditor/grid/IGridItem.h>
#include <orv/propertyeditor/grid/PropertyGridWidget.h>
#include <orv/propertyeditor/window/WorkflowTabs.h>

#include <algorithm>

namespace orv {

using PropertyEditor::LocatedFinding;

namespace {

// Steps of a JSON pointer to a row: /tabs/0/cells/1/properties/2/value/Samples/3
constexpr qsizetype kTabStep = 2;
constexpr qsizetype kCellStep = 4;
constexpr qsizetype kRowStep = 9;

std::optional<int> numberAt(QStringView pointer, qsizetype step)
{
    for (const QStringView part : pointer.tokenize(u'/')) {
        if (step-- > 0)
            continue;
        bool isNumber = false;
        const int number = part.toInt(&isNumber);
        return isNumber && number >= 0 ? std::optional(number) : std::nullopt;
    }
    return std::nullopt;
}

bool hasText(const TableSheet &sheet, quint32 id, const QString &text)
{
    for (int column = 0; column < sheet.columnCount(); ++column) {
        if (sheet.textOf(id, column) == text)
            return true;
    }
    return false;
}

QHash<QString, quint32> rowsByText(const TableSheet &sheet)
{
    QHash<QString, quint32> rows;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        for (int column = 0; column < sheet.columnCount(); ++column) {
            const QString text = sheet.text(row, column).toString();
            if (!text.isEmpty() && !rows.contains(text))
                rows.insert(text, sheet.rowId(row));
        }
    }
    return rows;
}

} // namespace

GridPropertyEditorView *FindingTarget::settings() const
{
    return qobject_cast<GridPropertyEditorView *>(column);
}

FindingTargets::FindingTargets(const WorkflowTabs &tabs)
{
    for (int tab = 0; tab < tabs.count(); ++tab) {
        const PropertyGridWidget *grid = tabs.grid(tab);
        if (!grid)
            continue;
        Tab columns;
        const QList<IGridItem *> items = grid->items();
        for (qsizetype i = 0; i < items.size(); ++i) {
            Column column{
                tabs.widget()->tabText(tab), grid->columnNames().value(i), items.at(i)->widget(), {}};
            const bool hasTables = column.widget && !qobject_cast<GridPropertyEditorView *>(column.widget);
            const auto views = hasTables ? column.widget->findChildren<TableView *>() : QList<TableView *>();
            for (TableView *view : views)
                column.tables.append({view, view->sheet()->rowIds()});
            columns.append(column);
        }
        m_tabs.append(columns);
    }
}

const FindingTargets::Column *FindingTargets::columnOf(const LocatedFinding &finding) const
{
    const std::optional<int> tab = numberAt(finding.pointer, kTabStep);
    const std::optional<int> cell = numberAt(finding.pointer, kCellStep);
    if (tab && cell && *tab < m_tabs.size() && !m_tabs.at(*tab).isEmpty())
        return &m_tabs.at(*tab).at(*cell % m_tabs.at(*tab).size());
    for (const Tab &columns : m_tabs) {
        const auto named = std::ranges::find_if(columns, [&finding](const Column &column) {
            return column.tab == finding.tab && column.name == finding.column;
        });
        if (named != columns.cend())
            return &*named;
    }
    return nullptr;
}

/// By its number if the sample still stands there, else by the sample's name.
void FindingTargets::findRow(const Column &column, const LocatedFinding &finding,
                             QHash<const TableView *, RowsByText> *rows, FindingTarget *target)
{
    if (finding.sample.isEmpty())
        return;
    const std::optional<int> number = numberAt(finding.pointer, kRowStep);
    for (const Table &table : column.tables) {
        if (!table.view)
            continue;
        const TableSheet &sheet = *table.view->sheet();
        std::optional<quint32> id;
        if (number && *number < table.ids.size() && hasText(sheet, table.ids.at(*number), finding.sample))
            id = table.ids.at(*number);
        if (!id && !rows->contains(table.view))
            rows->insert(table.view, rowsByText(sheet));
        if (!id && (*rows)[table.view].contains(finding.sample))
            id = (*rows)[table.view].value(finding.sample);
        if (!id)
            continue;
        target->table = table.view;
        target->row = id;
        return;
    }
}

QList<FindingTarget> FindingTargets::of(const QList<LocatedFinding> &findings) const
{
    QList<FindingTarget> targets;
    targets.reserve(findings.size());
    QHash<const TableView *, RowsByText> rows;
    for (const LocatedFinding &finding : findings) {
        FindingTarget target;
        if (const Column *column = columnOf(finding)) {
            target.column = column->widget;
            if (target.settings())
                target.setting = finding.property.toUtf8();
            else
                findRow(*column, finding, &rows, &target);
        }
        targets.append(target);
    }
    return targets;
}

} // namespace orv
