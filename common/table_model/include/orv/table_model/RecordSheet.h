#pragma once

#include <orv/table_model/TableSheet.h>

#include <QHash>
#include <QList>
#include <QString>

#include <functional>
#include <utility>

namespace orv {

/// A column of a table of records: how it looks, and how a record gives its text and takes an edited one.
template<typename Record>
struct RecordColumn
{
    TableColumn column;
    /// In the kept form where it can be; what isn't allowed in the column is given as it is.
    std::function<QString(const Record &record)> text;
    std::function<void(Record *record, const QString &text)> take;
};

/// A TableSheet whose rows are records, such as samples or masses. A record that nobody has edited comes back
/// as it was loaded, with all that the table doesn't show; an edited one takes the cells that differ.
///
/// \code
///     RecordSheet<SequenceDatabaseItem> table(columns);
///     ORV_RETURN_IF_ERROR(table.load(items));
///     TableEditor editor(table.sheet());
/// \endcode
/// GUI thread.
template<typename Record>
class RecordSheet
{
public:
    using Columns = QList<RecordColumn<Record>>;
    /// Makes the record of a row that was added; asked again, it gives the same for one row.
    using Fresh = std::function<Record(quint32 rowId)>;

    explicit RecordSheet(
        Columns columns, Fresh fresh = [](quint32) { return Record(); })
        : m_columns(std::move(columns))
        , m_fresh(std::move(fresh))
        , m_sheet(tableColumns(m_columns))
    {}

    [[nodiscard]] TableSheet *sheet() { return &m_sheet; }
    [[nodiscard]] const TableSheet *sheet() const { return &m_sheet; }

    /// Replaces everything, and forgets the history. As TableSheet::load().
    [[nodiscard]] Error load(const QList<Record> &records)
    {
        QList<QStringList> rows;
        rows.reserve(records.size());
        for (const Record &record : records)
            rows.append(textsOf(record));
        const QList<Record> before = std::exchange(m_loaded, records);
        const QHash<quint32, qsizetype> placesBefore = std::exchange(m_places, {});
        m_places.reserve(records.size());
        // Listeners to the load ask for records.
        for (qsizetype i = 0; i < records.size(); ++i)
            m_places.insert(quint32(i), i);
        if (Error error = m_sheet.load(rows); error.hasError()) {
            m_loaded = before;
            m_places = placesBefore;
            return error.ecatch();
        }
        return Error::NoError;
    }

    /// The cells of new rows for TableSheet::insertRows().
    [[nodiscard]] QStringList textsOf(const Record &record) const
    {
        QStringList texts;
        texts.reserve(m_columns.size());
        for (const RecordColumn<Record> &column : m_columns)
            texts.append(column.text(record));
        return texts;
    }

    /// The record as it was loaded, or made for a row that was added.
    [[nodiscard]] Record baseOf(quint32 rowId) const
    {
        const auto place = m_places.constFind(rowId);
        return place != m_places.cend() ? m_loaded[*place] : m_fresh(rowId);
    }
    [[nodiscard]] Record recordOf(quint32 rowId) const
    {
        const Record base = baseOf(rowId);
        Record record = base;
        for (int i = 0; i < m_columns.size(); ++i) {
            const QStringView text = m_sheet.textOf(rowId, i);
            if (m_columns[i].text(base) != text)
                m_columns[i].take(&record, text.toString());
        }
        return record;
    }
    [[nodiscard]] Record record(int row) const { return recordOf(m_sheet.rowId(row)); }

    /// In the order of the sheet.
    [[nodiscard]] QList<Record> records() const
    {
        QList<Record> records;
        records.reserve(m_sheet.rowCount());
        for (const quint32 id : m_sheet.rowIds())
            records.append(recordOf(id));
        return records;
    }

    /// Whether something was done since the load that hasn't been undone.
    [[nodiscard]] bool isEdited() const { return m_sheet.history()->index() > 0; }

private:
    static QList<TableColumn> tableColumns(const Columns &columns)
    {
        QList<TableColumn> result;
        for (const RecordColumn<Record> &column : columns)
            result.append(column.column);
        return result;
    }

    Columns m_columns;
    Fresh m_fresh;
    TableSheet m_sheet;
    QList<Record> m_loaded;
    QHash<quint32, qsizetype> m_places; ///< in the loaded ones, by row
};

} // namespace orv
