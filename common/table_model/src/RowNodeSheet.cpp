#include "orv/table_model/RowNodeSheet.h"

#include <QSet>

#include <algorithm>

namespace orv {

struct RowNodeSheet::Rows
{
    explicit Rows(QList<TableColumn> columns)
        : sheet(std::move(columns))
    {}

    TableSheet sheet;
    RowNodeBinding binding = RowNodeBinding(&sheet);
};

RowNodeSheet::RowNodeSheet(QList<TableColumn> known)
    : m_known(std::move(known))
    , m_rows(rowsFor({}))
{}

std::shared_ptr<TableSheet> RowNodeSheet::sheet() const
{
    return {m_rows, &m_rows->sheet};
}

std::shared_ptr<RowNodeSheet::Rows> RowNodeSheet::rowsFor(const VariantItems &header) const
{
    QList<TableColumn> columns;
    QSet<QString> names;
    for (const QVariant &cell : header) {
        const QString name = cell.toString();
        const auto known = std::find_if(m_known.cbegin(), m_known.cend(),
                                        [&](const TableColumn &column) { return column.name == name; });
        // Of two columns of one name the first is the known one.
        const bool isKnown = known != m_known.cend() && !names.contains(name);
        columns.append(isKnown ? *known : TableColumn{.name = name, .title = name});
        names.insert(name);
    }
    for (const TableColumn &column : m_known) {
        if (!names.contains(column.name))
            columns.append(column);
    }
    return std::make_shared<Rows>(std::move(columns));
}

Error RowNodeSheet::load(const RowNode &table)
{
    const std::shared_ptr<Rows> next = rowsFor(table.data);
    ORV_RETURN_IF_ERROR(next->binding.load(table));
    m_rows = next;
    return Error::NoError;
}

RowNode RowNodeSheet::table() const
{
    return m_rows->binding.table();
}

QString RowNodeSheet::noteOnUnshown() const
{
    return m_rows->binding.noteOnUnshown();
}

} // namespace orv
