#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/table/CsvReader.h>
#include <orv/table_model/TableColumn.h>
#include <orv/table_model/TableRowRule.h>
#include <orv/table_model/TextFormat.h>

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QStringList>

namespace orv {

class TableSheet;

/// What a file comes into. A plain value.
struct ORV_WORKFLOW_EXPORT TableImportTarget
{
    TableImportTarget(QList<TableColumn> ofTable,
                      QList<TableRowRule> ofRows = {}) // implicit: columns will do
        : columns(std::move(ofTable))
        , rules(std::move(ofRows))
    {}

    QList<TableColumn> columns;
    QList<TableRowRule> rules;
    QHash<int, QHash<QString, int>> taken; ///< by unique column: what rows hold, and the row

    [[nodiscard]] static TableImportTarget of(const TableSheet &sheet);
};

/// Why a field of a file may not stand in its column.
struct TableImportProblem
{
    qsizetype line = 0; ///< of the file, counted from 1
    int record = 0;     ///< counted from 0, without the header
    int field = -1;     ///< -1 for the whole record
    QString column;     ///< its title; empty for the whole record
    QString value;
    QString reason;
};

/// A text file on its way into a table. Everything about it can be seen before anything is taken: what was
/// detected, where its fields go, what is wrong with them.
///
/// \code
///     TableImport import(bytes, TableImportTarget::of(sheet));
///     if (!import.fault().hasError())
///         sheet.insertRows(sheet.rowCount(), import.rows(TableImport::Faulty::LeaveOut), tr("import"));
/// \endcode
/// GUI thread or any other, one at a time.
class ORV_WORKFLOW_EXPORT TableImport
{
public:
    /// What to do with records that have a problem.
    enum class Faulty
    {
        Take, ///< their cells are marked in the table
        LeaveOut,
    };

    /// No more problems than these are listed; all are counted.
    static constexpr int kListedProblems = 1000;

    /// Detects the format and reads everything.
    TableImport(QByteArray bytes, TableImportTarget target);

    [[nodiscard]] const TableTextFormat &format() const { return m_format; }
    /// Reads everything anew and guesses the mapping.
    void setFormat(const TableTextFormat &format);

    /// Why the file can't be read to its end, with line and remedy. What stands before it was read.
    [[nodiscard]] const Error &fault() const { return m_fault; }

    [[nodiscard]] int recordCount() const { return int(m_records.size()); }
    [[nodiscard]] const CsvRow &record(int index) const { return m_records[index]; }
    /// The names of the header, or "Column 1" and so on.
    [[nodiscard]] const QStringList &fieldNames() const { return m_fieldNames; }

    /// The column of each field, -1 for one that is left out. By header, or else by order.
    [[nodiscard]] const QList<int> &mapping() const { return m_mapping; }
    /// A column that is named twice takes the last field.
    void setMapping(const QList<int> &mapping);

    [[nodiscard]] const QList<TableImportProblem> &problems() const { return m_problems; }
    [[nodiscard]] int problemCount() const { return m_problemCount; }
    [[nodiscard]] int faultyRecordCount() const { return int(m_faultyRecords.size()); }
    /// Why a field may not stand in its column, or an empty text: rules of the column and of the row, and
    /// what the table or an earlier record holds already.
    [[nodiscard]] QString problem(int record, int field) const;

    /// In the kept form, for TableSheet::insertRows().
    [[nodiscard]] QList<QStringList> rows(Faulty faulty) const;

private:
    void read();
    void readRecords(const QByteArray &utf8);
    void nameFields();
    void guessMapping();
    void findProblems();
    void findProblemsOf(int record);
    void addProblem(int record, int field, const QString &column, const QString &reason);
    void noteUniques(int record, const QStringList &texts);
    [[nodiscard]] QString fieldProblem(int record, int field) const;
    [[nodiscard]] QList<TableRowProblem> rowProblems(int record, const QStringList &texts) const;
    [[nodiscard]] QString uniqueProblem(int record, int column, const QString &text) const;
    [[nodiscard]] QStringList texts(int record) const;

    QByteArray m_bytes;
    TableImportTarget m_target;
    TableTextFormat m_format;
    Error m_fault;
    QList<CsvRow> m_records;
    QStringList m_fieldNames;
    QList<int> m_mapping;
    QList<TableImportProblem> m_problems;
    QList<int> m_faultyRecords;              ///< ascending
    QHash<int, QHash<QString, int>> m_first; ///< by unique column: texts and the first record that holds it
    int m_problemCount = 0;
};

} // namespace orv
