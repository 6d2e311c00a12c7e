#include "orv/table_model/RowNodeSheet.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

namespace orv {

namespace {

bool isNumber(const QVariant &cell)
{
    switch (cell.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

/// Lists and maps show as JSON, and so does what this version can't read.
QString textOfCell(const QVariant &cell)
{
    if (cell.typeId() == QMetaType::Double)
        return NumberText::fromDouble(cell.toDouble());
    if (cell.typeId() == QMetaType::Float)
        return QString::number(cell.toDouble(), 'g', QLocale::FloatingPointShortest);
    if (cell.canConvert<QString>())
        return cell.toString();
    const QJsonValue json = QJsonValue::fromVariant(cell);
    const QJsonDocument document =
        json.isArray() ? QJsonDocument(json.toArray()) : QJsonDocument(json.toObject());
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

/// What a person typed in place of \a before: a number stays one, and becomes one in a column of numbers.
QVariant cellOf(const QString &text, const QVariant &before, const TableColumn &column)
{
    const std::optional<double> number = NumberText::value(text);
    if (!number || !(column.isNumeric() || isNumber(before)))
        return text;
    bool isWhole = false;
    const int whole = text.toInt(&isWhole);
    return isWhole ? QVariant(whole) : QVariant(*number);
}

RecordColumn<RowNode> columnAt(int index, const TableColumn &column)
{
    return {column, [index](const RowNode &row) { return textOfCell(row.data.value(index)); },
            [index, column](RowNode *row, const QString &text) {
                if (row->data.size() <= index)
                    row->data.resize(index + 1);
                row->data[index] = cellOf(text, row->data.at(index), column);
            }};
}

} // namespace

RowNodeSheet::RowNodeSheet(QList<TableColumn> known)
    : m_known(std::move(known))
    , m_rows(std::make_shared<Rows>(columnsFor({})))
{}

std::shared_ptr<TableSheet> RowNodeSheet::sheet() const
{
    return {m_rows, m_rows->sheet()};
}

RowNodeSheet::Rows::Columns RowNodeSheet::columnsFor(const VariantItems &header) const
{
    const auto known = [this](const QString &name) {
        const auto found = std::find_if(m_known.cbegin(), m_known.cend(),
                                        [&](const TableColumn &column) { return column.name == name; });
        return found == m_known.cend() ? TableColumn{.name = name, .title = name} : *found;
    };
    Rows::Columns columns;
    QSet<QString> names;
    for (qsizetype i = 0; i < header.size(); ++i) {
        const QString name = header.at(i).toString();
        // Of two columns of one name the first is the known one.
        columns.append(
            columnAt(int(i), names.contains(name) ? TableColumn{.name = name, .title = name} : known(name)));
        names.insert(name);
    }
    for (const TableColumn &column : m_known) {
        if (!names.contains(column.name))
            columns.append(columnAt(int(columns.size()), column));
    }
    return columns;
}

Error RowNodeSheet::load(const RowNode &table)
{
    const auto next = std::make_shared<Rows>(columnsFor(table.data));
    QList<RowNode> rows;
    for (int i = 0; i < table.getChildListSize(); ++i)
        rows.append(*table.getChild(i));
    ORV_RETURN_IF_ERROR(next->load(rows));
    m_loaded = table;
    m_rows = next;
    return Error::NoError;
}

RowNode RowNodeSheet::table() const
{
    if (!isEdited())
        return m_loaded;
    RowNode table;
    table.data = m_loaded.data;
    const QList<RowNode> rows = m_rows->records();
    const QList<quint32> &ids = m_rows->sheet()->rowIds();
    qsizetype width = table.data.size();
    for (qsizetype row = 0; row < rows.size(); ++row) {
        // Cells that lay beyond the header before need no column.
        const VariantItems before = m_rows->baseOf(ids[row]).data;
        for (qsizetype i = width; i < rows[row].data.size(); ++i) {
            if (rows[row].data.at(i) != before.value(i))
                width = i + 1;
        }
    }
    for (qsizetype i = table.data.size(); i < width; ++i)
        table.data.append(m_rows->sheet()->columns()[i].name);
    for (const RowNode &row : rows) {
        RowNode *const child = table.addNewChild(row.data);
        child->deepCopy(&row);
    }
    return table;
}

} // namespace orv
