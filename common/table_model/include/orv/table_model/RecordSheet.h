#pragma once

#include <orv/table_model/TableSheet.h>

#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <utility>

namespace orv {

/// How a record gives the text of a column and takes an edited one.
template<typename Record>
struct RecordField
{
    QString column; ///< its name
    /// In the kept form where it can be; what isn't allowed in the column is given as it is.
    std::function<QString(const Record &record)> text;
    /// A text that is refused leaves the record as it was; the cell keeps it, with its mark.
    std::function<void(Record *record, const QString &text)> take;
};

/// The same of a column that is made for it.
template<typename Record>
struct RecordColumn
{
    TableColumn column;
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
/// GUI thread, or the one of the sheet.
template<typename Record>
class RecordSheet
{
public:
    using Field = RecordField<Record>;
    using Columns = QList<RecordColumn<Record>>;
    /// Makes the record of a row that was added; asked again, it gives the same for one row.
    using Fresh = std::function<Record(quint32 rowId)>;

    /// With a sheet of its own.
    explicit RecordSheet(const Columns &columns, Fresh fresh = blank())
        : m_fields(fieldsOf(columns))
        , m_fresh(std::move(fresh))
        , m_own(std::make_unique<TableSheet>(tableColumns(columns)))
        , m_sheet(m_own.get())
    {
        findPlaces();
    }

    /// On a sheet that outlives this and has a column for each field; it may have others, such as derived
    /// ones.
    RecordSheet(TableSheet *sheet, QList<Field> fields, Fresh fresh = blank())
        : m_fields(std::move(fields))
        , m_fresh(std::move(fresh))
        , m_sheet(sheet)
    {
        findPlaces();
    }

    [[nodiscard]] TableSheet *sheet() { return m_sheet; }
    [[nodiscard]] const TableSheet *sheet() const { return m_sheet; }

    /// Replaces everything, and forgets the history. As TableSheet::load().
    [[nodiscard]] Error load(const QList<Record> &records)
    {
        const QList<Record> before = std::exchange(m_loaded, records);
        // Listeners to the load ask for records.
        if (Error error = m_sheet->load(int(records.size()),
                                        [&](int row, QStringList *texts) { putTexts(m_loaded[row], texts); });
            error.hasError()) {
            m_loaded = before;
            return error.ecatch();
        }
        return Error::NoError;
    }

    /// The cells of new rows for TableSheet::insertRows().
    [[nodiscard]] QStringList textsOf(const Record &record) const
    {
        QStringList texts(m_sheet->columnCount());
        putTexts(record, &texts);
        return texts;
    }

    /// The record as it was loaded, or made for a row that was added.
    [[nodiscard]] Record baseOf(quint32 rowId) const
    {
        // Ids of a load begin at 0.
        return rowId < quint32(m_loaded.size()) ? m_loaded[rowId] : m_fresh(rowId);
    }
    [[nodiscard]] Record recordOf(quint32 rowId) const
    {
        const Record base = baseOf(rowId);
        Record record = base;
        for (qsizetype i = 0; i < m_fields.size(); ++i) {
            const QStringView text = m_sheet->textOf(rowId, m_places[i]);
            if (m_fields[i].text(base) != text)
                m_fields[i].take(&record, text.toString());
        }
        return record;
    }
    [[nodiscard]] Record record(int row) const { return recordOf(m_sheet->rowId(row)); }

    /// In the order of the sheet.
    [[nodiscard]] QList<Record> records() const
    {
        QList<Record> records;
        records.reserve(m_sheet->rowCount());
        for (const quint32 id : m_sheet->rowIds())
            records.append(recordOf(id));
        return records;
    }

    /// Whether something was done since the load that hasn't been undone.
    [[nodiscard]] bool isEdited() const { return m_sheet->history()->index() > 0; }

private:
    static Fresh blank()
    {
        return [](quint32) { return Record(); };
    }

    static QList<Field> fieldsOf(const Columns &columns)
    {
        QList<Field> fields;
        for (const RecordColumn<Record> &column : columns)
            fields.append({column.column.name, column.text, column.take});
        return fields;
    }

    static QList<TableColumn> tableColumns(const Columns &columns)
    {
        QList<TableColumn> result;
        for (const RecordColumn<Record> &column : columns)
            result.append(column.column);
        return result;
    }

    void putTexts(const Record &record, QStringList *texts) const
    {
        for (qsizetype i = 0; i < m_fields.size(); ++i)
            (*texts)[m_places[i]] = m_fields[i].text(record);
    }

    void findPlaces()
    {
        for (qsizetype i = 0; i < m_fields.size(); ++i)
            m_places.append(m_own ? int(i) : m_sheet->columnOf(m_fields[i].column));
    }

    QList<Field> m_fields;
    QList<int> m_places; ///< of the fields in the sheet
    Fresh m_fresh;
    std::unique_ptr<TableSheet> m_own; ///< null on the sheet of somebody else
    TableSheet *m_sheet;
    QList<Record> m_loaded; ///< by id of their rows
};

} // namespace orv
