#include "ColumnChoice.h"

#include <orv/propertyeditor/content/CellPlace.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>

namespace orv::cli {

using PropertyEditor::BaseItem;
using PropertyEditor::ItemGroup;
using PropertyEditor::ItemSubGroup;
using PropertyEditor::KeyValueItem;

namespace {

QString namesOf(const QSet<BaseItemType> &types)
{
    QStringList names;
    for (const BaseItemType type : types)
        names.append(baseItemTypeToString(type));
    names.sort();
    return names.join(QLatin1String(" or "));
}

QList<ChosenCell> allCells(const LoadedWorkflow &workflow, const QSet<BaseItemType> &types)
{
    QList<ChosenCell> cells;
    for (const ItemGroup *tab : workflow.content->groups()) {
        for (const ItemSubGroup *column : tab->subGroups()) {
            for (const BaseItem *item : column->items()) {
                const auto *settings = qobject_cast<const KeyValueItem *>(item);
                if (settings && types.contains(settings->type()))
                    cells.append({column->name(), settings});
            }
        }
    }
    return cells;
}

} // namespace

void ColumnChoice::declare(Arguments &arguments)
{
    arguments.option("--tab", &m_tab, "Name or number of the tab, counted from 0 (default: all)",
                     {.needs = {QStringLiteral("--column")}});
    arguments.option("--column", &m_column, "Name or number of the column, counted from 0 (default: all)",
                     {.needs = {QStringLiteral("--tab")}});
    arguments.option("--row", &m_row, "Number of the row, counted from 0 (default: 0)",
                     {.needs = {QStringLiteral("--tab")}});
}

Outcome<QList<ChosenCell>> ColumnChoice::cells(const LoadedWorkflow &workflow,
                                               const QSet<BaseItemType> &types) const
{
    if (m_tab.isEmpty()) {
        const QList<ChosenCell> cells = allCells(workflow, types);
        if (!cells.isEmpty())
            return cells;
        return Failure{Negative, 0,
                       QStringLiteral("The workflow has no cell of type %1; orv-workflow info shows which "
                                      "cells there are.")
                           .arg(namesOf(types))};
    }
    const Result<CellPlace> place = CellPlace::find(workflow.document, m_tab, m_column, m_row);
    if (place.hasError())
        return failureFrom(place.error(), WrongUsage);
    const ItemSubGroup *column = workflow.content->group(int(place->tab))->subGroup(int(place->column));
    const auto *settings = qobject_cast<const KeyValueItem *>(column->item(int(place->row)));
    if (settings && types.contains(settings->type()))
        return QList<ChosenCell>{{column->name(), settings}};
    return Failure{Negative, 0,
                   QStringLiteral("The cell is of type %1, and %2 is needed.")
                       .arg(column->item(int(place->row))->typeString(), namesOf(types))};
}

} // namespace orv::cli
