#include "orv/table_model/RowNodeBinding.h"

#include <orv/table_model/NumberText.h>

#include <QJsonDocument>
#include <QLocale>

#include <algorithm>

namespace orv {

namespace {

QString textOfNumber(double number)
{
    return QLocale::c().toString(number, 'g', QLocale::FloatingPointShortest);
}

QVariant listOf(QStringView text)
{
    QVariantList numbers;
    for (const QStringView part : text.split(u',')) {
        bool isNumber = false;
        const int number = part.trimmed().toInt(&isNumber);
        if (!isNumber)
            return text.toString();
        numbers.append(number);
    }
    return numbers;
}

QVariant cellNumberOf(TableColumnKind kind, QStringView text)
{
    const std::optional<double> number = NumberText::value(text);
    if (!number)
        return text.toString();
    bool isWhole = false;
    const int whole = text.toInt(&isWhole);
    return kind == TableColumnKind::Integer && isWhole ? QVariant(whole) : QVariant(*number);
}

} // namespace

RowNodeBinding::RowNodeBinding(TableSheet *sheet, QStringList lists)
    : m_sheet(sheet)
    , m_lists(std::move(lists))
{}

QString RowNodeBinding::textOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return textOfNumber(value.toDouble());
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
        const QVariantList list = value.toList();
        if (std::all_of(list.cbegin(), list.cend(),
                        [](const QVariant &part) { return part.canConvert<QString>(); })) {
            QStringList texts;
            for (const QVariant &part : list)
                texts.append(textOf(part));
            return texts.join(QLatin1String(", "));
        }
        break;
    }
    default:
        break;
    }
    const bool isTree = !value.canConvert<QString>() || value.typeId() == QMetaType::QVariantList;
    return isTree ? QString::fromUtf8(QJsonDocument::fromVariant(value).toJson(QJsonDocument::Compact))
                  : value.toString();
}

Error RowNodeBinding::load(const RowNode &table)
{
    QList<int> places;
    for (const TableColumn &column : m_sheet->columns())
        places.append(column.derive ? -1 : int(table.data.indexOf(column.name)));
    QList<QStringList> rows;
    rows.reserve(table.getChildListSize());
    for (int row = 0; row < table.getChildListSize(); ++row) {
        QStringList texts;
        for (const int place : places)
            texts.append(place < 0 ? QString() : textOf(table.getChild(row)->data.value(place)));
        rows.append(texts);
    }
    // Who hears of the load may ask for the table already. Ids of a new load begin at 0.
    const RowNode before = std::exchange(m_original, table);
    const QHash<quint32, int> rowsBefore = std::exchange(m_rows, {});
    for (int row = 0; row < rows.size(); ++row)
        m_rows.insert(quint32(row), row);
    Error error = m_sheet->load(rows);
    if (error.hasError()) {
        m_original = before;
        m_rows = rowsBefore;
    }
    return error.ecatch();
}

QVariant RowNodeBinding::valueOf(int column, QStringView text) const
{
    const TableColumn &shown = m_sheet->columns()[column];
    if (text.isEmpty())
        return shown.isNumeric()              ? QVariant()
               : m_lists.contains(shown.name) ? QVariant(QVariantList())
                                              : QVariant(QString());
    if (m_lists.contains(shown.name))
        return listOf(text);
    return shown.isNumeric() ? cellNumberOf(shown.kind, text) : QVariant(text.toString());
}

bool RowNodeBinding::isEdited(int row, int column, const RowNode &original, int place) const
{
    return m_sheet->text(row, column) != (place < 0 ? QString() : textOf(original.data.value(place)));
}

QList<bool> RowNodeBinding::neededColumns() const
{
    // Of an empty node everything is new; of others only what was filled in.
    QList<bool> areNeeded(m_sheet->columnCount(), m_original.data.isEmpty() && m_sheet->rowCount() > 0);
    for (int column = 0; column < areNeeded.size(); ++column) {
        if (m_sheet->columns()[column].derive) {
            areNeeded[column] = false;
            continue;
        }
        for (int row = 0; row < m_sheet->rowCount() && !areNeeded[column]; ++row)
            areNeeded[column] = !m_sheet->text(row, column).isEmpty();
    }
    return areNeeded;
}

QList<int> RowNodeBinding::placesIn(RowNode *table, const QList<bool> &areNeeded) const
{
    QList<int> places;
    for (int column = 0; column < m_sheet->columnCount(); ++column) {
        const QString &name = m_sheet->columns()[column].name;
        const bool isDerived = bool(m_sheet->columns()[column].derive);
        int place = isDerived ? -1 : int(table->data.indexOf(name));
        if (place < 0 && areNeeded[column]) {
            place = int(table->data.size());
            table->data.append(name);
        }
        places.append(place);
    }
    return places;
}

RowNode RowNodeBinding::table() const
{
    RowNode result;
    result.data = m_original.data;
    const qsizetype width = result.data.size();
    const QList<int> places = placesIn(&result, neededColumns());
    for (int row = 0; row < m_sheet->rowCount(); ++row) {
        const RowNode *const original = m_original.getChild(m_rows.value(m_sheet->rowId(row), -1));
        RowNode *const child = result.addNewChild(VariantItems());
        if (original)
            *child = *original;
        else
            child->data.resize(result.data.size());
        for (int column = 0; column < places.size(); ++column) {
            const int place = places[column];
            const int placeBefore = place < width ? place : -1;
            if (place < 0 || (original && !isEdited(row, column, *original, placeBefore)))
                continue;
            if (child->data.size() <= place)
                child->data.resize(place + 1);
            child->data[place] = valueOf(column, m_sheet->text(row, column));
        }
    }
    return result;
}

QStringList RowNodeBinding::columnsNotShown() const
{
    QStringList names;
    for (int place = 0; place < m_original.data.size(); ++place) {
        const QString name = textOf(m_original.data.at(place));
        const int column = m_sheet->columnOf(name);
        if (column >= 0 && m_original.data.indexOf(name) == place)
            continue;
        for (int row = 0; row < m_original.getChildListSize(); ++row) {
            const QVariant cell = m_original.getChild(row)->data.value(place);
            if (!cell.isNull() && !textOf(cell).isEmpty()) {
                names.append(name);
                break;
            }
        }
    }
    return names;
}

int RowNodeBinding::rowsNotShown() const
{
    int count = 0;
    for (int row = 0; row < m_original.getChildListSize(); ++row)
        count += m_original.getChild(row)->getChildListSize();
    return count;
}

} // namespace orv
