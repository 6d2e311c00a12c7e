#include "orv/table_model/RowNodeBinding.h"

#include <orv/table_model/NumberText.h>

#include <QCoreApplication>
#include <QHash>
#include <QJsonDocument>

#include <algorithm>

namespace orv {

namespace {

struct RowNodeBindingTr
{
    Q_DECLARE_TR_FUNCTIONS(RowNodeBinding)
};

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

bool isListVariant(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList;
}

bool isNumberVariant(const QVariant &value)
{
    switch (value.typeId()) {
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

QVariant numberOf(QStringView text)
{
    const std::optional<double> number = NumberText::value(text);
    if (!number)
        return text.toString();
    bool isWhole = false;
    const int whole = text.toInt(&isWhole);
    return isWhole ? QVariant(whole) : QVariant(*number);
}

/// The place of each column in a header: of two columns of one name the first stands at the first.
QList<int> placesOfColumns(const QList<TableColumn> &columns, const VariantItems &header)
{
    QHash<QString, QList<int>> byName;
    for (qsizetype place = header.size() - 1; place >= 0; --place)
        byName[header.at(place).toString()].append(int(place));
    QList<int> places;
    for (const TableColumn &column : columns) {
        QList<int> &left = byName[column.name];
        places.append(column.derive || left.isEmpty() ? -1 : left.takeLast());
    }
    return places;
}

} // namespace

RowNodeBinding::RowNodeBinding(TableSheet *sheet, QStringList lists)
    : m_sheet(sheet)
    , m_lists(std::move(lists))
{}

QString RowNodeBinding::textOf(const QVariant &value)
{
    if (value.isNull())
        return {};
    if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float)
        return NumberText::fromDouble(value.toDouble());
    if (isListVariant(value)) {
        const QVariantList list = value.toList();
        if (std::all_of(list.cbegin(), list.cend(),
                        [](const QVariant &part) { return part.canConvert<QString>(); })) {
            QStringList texts;
            for (const QVariant &part : list)
                texts.append(textOf(part));
            return texts.join(QLatin1String(", "));
        }
    }
    const bool isTree = !value.canConvert<QString>() || value.typeId() == QMetaType::QVariantList;
    return isTree ? QString::fromUtf8(QJsonDocument::fromVariant(value).toJson(QJsonDocument::Compact))
                  : value.toString();
}

Error RowNodeBinding::load(const RowNode &table)
{
    const QList<int> places = placesOfColumns(m_sheet->columns(), table.data);
    // Who hears of the load may ask for the table already.
    RowNode before = std::exchange(m_original, table);
    const QList<int> placesBefore = std::exchange(m_places, places);
    Error error = m_sheet->load(m_original.getChildListSize(), [this](int row, QStringList *texts) {
        for (int column = 0; column < m_places.size(); ++column) {
            if (m_places[column] >= 0)
                (*texts)[column] = textOf(m_original.getChild(row)->data.value(m_places[column]));
        }
    });
    if (error.hasError()) {
        m_original = std::move(before);
        m_places = placesBefore;
    }
    return error.ecatch();
}

QVariant RowNodeBinding::valueOf(int column, QStringView text, const QVariant &before) const
{
    const TableColumn &shown = m_sheet->columns()[column];
    const bool isList = m_lists.contains(shown.name) || isListVariant(before);
    if (text.isEmpty())
        return isList ? QVariant(QVariantList()) : shown.isNumeric() ? QVariant() : QVariant(QString());
    if (isList)
        return listOf(text);
    return shown.isNumeric() || isNumberVariant(before) ? numberOf(text) : QVariant(text.toString());
}

/// Of an empty table everything is new; of others only what holds a text.
bool RowNodeBinding::isFilledIn(int column) const
{
    if (m_sheet->columns()[column].derive || m_sheet->rowCount() == 0)
        return false;
    bool isFilled = m_original.data.isEmpty();
    for (int row = 0; row < m_sheet->rowCount() && !isFilled; ++row)
        isFilled = !m_sheet->text(row, column).isEmpty();
    return isFilled;
}

QList<int> RowNodeBinding::placesIn(RowNode *table) const
{
    QList<int> places = m_places.isEmpty() ? QList<int>(m_sheet->columnCount(), -1) : m_places;
    for (int column = 0; column < m_sheet->columnCount(); ++column) {
        if (places[column] >= 0 || !isFilledIn(column))
            continue;
        places[column] = int(table->data.size());
        table->data.append(m_sheet->columns()[column].name);
    }
    return places;
}

RowNode RowNodeBinding::table() const
{
    if (!isEdited())
        return m_original;
    RowNode result;
    result.data = m_original.data;
    const qsizetype width = result.data.size();
    const QList<int> places = placesIn(&result);
    for (const quint32 id : m_sheet->rowIds()) {
        // Ids of a load begin at 0.
        const RowNode *const original =
            id < quint32(m_original.getChildListSize()) ? m_original.getChild(int(id)) : nullptr;
        RowNode *const child = result.addNewChild(VariantItems());
        if (original)
            *child = *original;
        else
            child->data.resize(result.data.size());
        // What lies beyond the header stays beyond it.
        for (qsizetype place = width; original && place < result.data.size(); ++place) {
            if (original->data.size() > width)
                child->data.insert(place, QVariant());
        }
        for (int column = 0; column < places.size(); ++column) {
            const int place = places[column];
            if (place < 0)
                continue;
            const QVariant before = original && place < width ? original->data.value(place) : QVariant();
            const QStringView text = m_sheet->textOf(id, column);
            if (original && text == textOf(before))
                continue;
            if (child->data.size() <= place)
                child->data.resize(place + 1);
            child->data[place] = valueOf(column, text, before);
        }
    }
    return result;
}

QStringList RowNodeBinding::columnsNotShown() const
{
    QStringList names;
    for (int place = 0; place < m_original.data.size(); ++place) {
        if (m_places.contains(place))
            continue;
        for (int row = 0; row < m_original.getChildListSize(); ++row) {
            const QVariant cell = m_original.getChild(row)->data.value(place);
            if (!cell.isNull() && !textOf(cell).isEmpty()) {
                names.append(textOf(m_original.data.at(place)));
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

int RowNodeBinding::cellsBeyondHeader() const
{
    int count = 0;
    for (int row = 0; row < m_original.getChildListSize(); ++row) {
        const VariantItems &cells = m_original.getChild(row)->data;
        for (qsizetype place = m_original.data.size(); place < cells.size(); ++place)
            count += textOf(cells.at(place)).isEmpty() ? 0 : 1;
    }
    return count;
}

QString RowNodeBinding::noteOnUnshown(const QStringList &expected) const
{
    QStringList columns = columnsNotShown();
    columns.removeIf([&](const QString &name) { return expected.contains(name); });
    QStringList notes;
    if (!columns.isEmpty())
        notes.append(RowNodeBindingTr::tr("These columns are kept but not shown: %1.")
                         .arg(columns.join(QLatin1String(", "))));
    if (const int rows = rowsNotShown(); rows > 0)
        notes.append(RowNodeBindingTr::tr("Rows below other rows are kept but not shown: %1.").arg(rows));
    if (const int cells = cellsBeyondHeader(); cells > 0)
        notes.append(RowNodeBindingTr::tr("Cells without a column are kept but not shown: %1.").arg(cells));
    return notes.join(u' ');
}

} // namespace orv
