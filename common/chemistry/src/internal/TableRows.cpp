#include "TableRows.h"

#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace orv::Internal {

TableReader::TableReader(const RowNode &table, std::initializer_list<QLatin1String> knownColumns)
    : m_table(table)
{
    const QStringList columns = table.data.toStringList();
    for (int i = 0; i < columns.size(); ++i) {
        const bool known =
            std::find(knownColumns.begin(), knownColumns.end(), columns.at(i)) != knownColumns.end();
        QMap<QString, int> &places = known ? m_known : m_other;
        if (!places.contains(columns.at(i)))
            places.insert(columns.at(i), i);
    }
}

QVariant TableReader::cell(int row, QLatin1String column) const
{
    const RowNode *node = m_table.getChild(row);
    const int place = m_known.value(column, -1);
    return node && place >= 0 ? node->data.value(place) : QVariant();
}

OtherCells TableReader::otherCells(int row) const
{
    OtherCells cells;
    const RowNode *node = m_table.getChild(row);
    for (auto it = m_other.cbegin(); node && it != m_other.cend(); ++it) {
        if (const QVariant cell = node->data.value(it.value()); cell.isValid())
            cells.insert(it.key(), cell);
    }
    return cells;
}

void TableWriter::addRow(VariantItems cells, const OtherCells &others)
{
    cells.resize(m_table->data.size());
    for (auto it = others.cbegin(); it != others.cend(); ++it) {
        qsizetype place = m_table->data.indexOf(it.key());
        if (place < 0) {
            place = m_table->data.size();
            m_table->data.append(it.key());
            for (int i = 0; i < m_table->getChildListSize(); ++i)
                m_table->getChild(i)->data.append(QVariant());
            cells.append(QVariant());
        }
        cells[place] = it.value();
    }
    m_table->addNewChild(std::move(cells));
}

bool isEmptyCell(const QVariant &cell)
{
    if (cell.userType() == QMetaType::QVariantList)
        return cell.toList().isEmpty();
    return !cell.isValid() || (cell.userType() == QMetaType::QString && cell.toString().trimmed().isEmpty());
}

std::optional<double> numberOf(const QVariant &cell)
{
    bool ok = false;
    const double number =
        cell.userType() == QMetaType::QString ? cell.toString().trimmed().toDouble(&ok) : cell.toDouble(&ok);
    if (!ok || !std::isfinite(number))
        return std::nullopt;
    return number;
}

std::optional<int> intOf(const QVariant &cell)
{
    const std::optional<double> number = numberOf(cell);
    if (!number || *number != std::floor(*number) || *number < std::numeric_limits<int>::min() ||
        *number > std::numeric_limits<int>::max())
        return std::nullopt;
    return static_cast<int>(*number);
}

QList<int> intsOf(const QVariant &cell)
{
    QVariantList items;
    if (cell.userType() == QMetaType::QString) {
        static const QRegularExpression between(QStringLiteral("[,;\\s]+"));
        const QStringList texts = cell.toString().split(between, Qt::SkipEmptyParts);
        items = QVariantList(texts.begin(), texts.end());
    } else {
        items = cell.canConvert<QVariantList>() ? cell.toList() : QVariantList{cell};
    }
    QList<int> numbers;
    for (const QVariant &item : std::as_const(items)) {
        if (const std::optional<int> number = intOf(item))
            numbers.append(*number);
    }
    return numbers;
}

QVariant cellOf(const QList<int> &numbers)
{
    if (numbers.isEmpty())
        return {};
    return QVariantList(numbers.begin(), numbers.end());
}

QVariant cellOf(std::optional<double> number)
{
    return number ? QVariant(*number) : QVariant();
}

} // namespace orv::Internal
