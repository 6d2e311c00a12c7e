#pragma once

#include <orv/table/RowNode.h>

#include <QList>
#include <QMap>
#include <QVariant>

#include <optional>

/// Reading and writing of tables whose rows become values and come back. Cells of columns that the value
/// doesn't know are kept by it, so that they survive.
namespace orv::Internal {

/// Cells that a value doesn't know, by column.
using OtherCells = QMap<QString, QVariant>;

/// One table, which may be the child of another: its columns are its own data, not those of the topmost node.
/// The node outlives the reader.
class TableReader
{
public:
    TableReader(const RowNode &table, std::initializer_list<QLatin1String> knownColumns);

    [[nodiscard]] int rowCount() const { return m_table.getChildListSize(); }
    [[nodiscard]] bool hasColumn(QLatin1String column) const { return m_known.contains(column); }
    /// Invalid where the table or the row has no such cell.
    [[nodiscard]] QVariant cell(int row, QLatin1String column) const;
    [[nodiscard]] QString text(int row, QLatin1String column) const { return cell(row, column).toString(); }
    /// The valid cells below all other columns.
    [[nodiscard]] OtherCells otherCells(int row) const;

private:
    const RowNode &m_table;
    QMap<QString, int> m_known;
    QMap<QString, int> m_other;
};

/// Fills a table row by row.
class TableWriter
{
public:
    /// The table starts with these columns.
    explicit TableWriter(RowNode *table)
        : m_table(table)
    {}

    /// Cells in the order of the columns that the table started with, and others, which add a column where
    /// there is none of that name.
    void addRow(VariantItems cells, const OtherCells &others);

private:
    RowNode *m_table;
};

/// How a value gives and takes the cell of a column that it knows.
template<typename Value>
struct ValueCell
{
    QLatin1String column;
    void (*read)(Value *value, const QVariant &cell);
    QVariant (*written)(const Value &value);
};

/// Reads the cells of a row; what the value would write otherwise stays in its cellsAsRead.
template<typename Value, typename Cells>
void readCells(const TableReader &rows, int row, const Cells &cells, Value *value)
{
    for (const ValueCell<Value> &one : cells) {
        const QVariant cell = rows.cell(row, one.column);
        one.read(value, cell);
        if (cell.isValid() && (one.written(*value) != cell || one.written(*value).typeId() != cell.typeId()))
            value->cellsAsRead.insert(one.column, cell);
    }
}

/// The cells of a value, as they were read where that means what the value holds now.
template<typename Value, typename Cells>
[[nodiscard]] VariantItems writtenCells(const Value &value, const Cells &cells)
{
    VariantItems items;
    for (const ValueCell<Value> &one : cells) {
        QVariant cell = one.written(value);
        if (const auto asRead = value.cellsAsRead.constFind(one.column); asRead != value.cellsAsRead.cend()) {
            Value again;
            one.read(&again, *asRead);
            if (one.written(again) == cell)
                cell = *asRead;
        }
        items.append(cell);
    }
    return items;
}

/// Whether a cell holds nothing: no value, or blank text.
[[nodiscard]] bool isEmptyCell(const QVariant &cell);

/// The number in a cell, which may be a text in the C locale; nothing for anything else, also for "nan" and
/// "inf".
[[nodiscard]] std::optional<double> numberOf(const QVariant &cell);

/// The whole number in a cell, as before.
[[nodiscard]] std::optional<int> intOf(const QVariant &cell);

/// The whole numbers of a cell: a list, or a text with commas, semicolons or blanks between. Whatever is no
/// whole number is left out.
[[nodiscard]] QList<int> intsOf(const QVariant &cell);

/// A cell with these numbers, without value when there are none.
[[nodiscard]] QVariant cellOf(const QList<int> &numbers);
[[nodiscard]] QVariant cellOf(std::optional<double> number);

} // namespace orv::Internal
