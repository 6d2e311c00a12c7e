#pragma once

#include <orv/core/Result.h>
#include <orv/table_model/TableSheet.h>

#include <QHash>
#include <QList>
#include <QString>

#include <functional>
#include <utility>

namespace orv {

/// Shows a list of plain values in a sheet, one in a row, and gives it back with what was edited there.
/// Members that no field shows come back as they were; a text that a field refuses leaves the member as it
/// was, and the cell keeps its mark.
///
///     RecordBinding<DeltaMass> masses(&sheet, fields);
///     ORV_RETURN_IF_ERROR(masses.load(list));
///     ...
///     const QList<DeltaMass> edited = masses.records();
///
/// GUI thread, or the one of the sheet.
template<class Record>
class RecordBinding
{
public:
    /// What a column of the sheet shows of a record.
    struct Field
    {
        QString column;
        std::function<QString(const Record &record)> text;
        std::function<void(Record *record, QStringView text)> set;
    };

    /// The sheet outlives this and has a column for each field. New rows begin as \a blank.
    RecordBinding(TableSheet *sheet, QList<Field> fields, Record blank = {})
        : m_sheet(sheet)
        , m_fields(std::move(fields))
        , m_blank(std::move(blank))
    {
        for (const Field &field : m_fields)
            m_columns.append(sheet->columnOf(field.column));
    }

    /// Replaces all rows and forgets the history.
    [[nodiscard]] Error load(const QList<Record> &records)
    {
        QList<QStringList> rows;
        rows.reserve(records.size());
        for (const Record &record : records) {
            QStringList texts(m_sheet->columnCount());
            for (qsizetype i = 0; i < m_fields.size(); ++i)
                texts[m_columns[i]] = m_fields[i].text(record);
            rows.append(texts);
        }
        const QHash<quint32, Record> before = std::exchange(m_records, {});
        // Ids of a new load begin at 0.
        for (qsizetype i = 0; i < records.size(); ++i)
            m_records.insert(quint32(i), records[i]);
        Error error = m_sheet->load(rows);
        if (error.hasError())
            m_records = before;
        return error.ecatch();
    }

    [[nodiscard]] Record record(int row) const
    {
        const auto original = m_records.constFind(m_sheet->rowId(row));
        Record record = original == m_records.cend() ? m_blank : *original;
        for (qsizetype i = 0; i < m_fields.size(); ++i) {
            const QStringView text = m_sheet->text(row, m_columns[i]);
            if (original == m_records.cend() || text != m_fields[i].text(*original))
                m_fields[i].set(&record, text);
        }
        return record;
    }

    [[nodiscard]] QList<Record> records() const
    {
        QList<Record> records;
        records.reserve(m_sheet->rowCount());
        for (int row = 0; row < m_sheet->rowCount(); ++row)
            records.append(record(row));
        return records;
    }

private:
    TableSheet *m_sheet;
    QList<Field> m_fields;
    Record m_blank;
    QList<int> m_columns;
    QHash<quint32, Record> m_records; ///< as they were loaded, by id of their row
};

} // namespace orv
