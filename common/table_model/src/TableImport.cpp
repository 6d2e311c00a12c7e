#include "orv/table_model/TableImport.h"

#include <orv/table_model/TableSheet.h>

#include <QBuffer>
#include <QCoreApplication>

#include <algorithm>

namespace orv {

namespace {

struct TableImportTr
{
    Q_DECLARE_TR_FUNCTIONS(TableImport)
};

/// Lines that hold separators alone are what spreadsheets leave behind.
bool isBlankRecord(const CsvRow &row)
{
    return std::all_of(row.fields.cbegin(), row.fields.cend(),
                       [](const QString &field) { return field.trimmed().isEmpty(); });
}

/// Numbers are the same when their values are.
QString comparable(const TableColumn &column, const QString &kept)
{
    const std::optional<double> number = column.isNumeric() ? NumberText::value(kept) : std::nullopt;
    return number ? QString::number(*number == 0 ? 0 : *number, 'g', QLocale::FloatingPointShortest) : kept;
}

} // namespace

TableImportTarget TableImportTarget::of(const TableSheet &sheet)
{
    TableImportTarget target(sheet.columns(), sheet.rowRules());
    for (int column = 0; column < sheet.columnCount(); ++column) {
        if (!sheet.columns()[column].isUnique)
            continue;
        QHash<QString, int> &taken = target.taken[column];
        taken.reserve(sheet.rowCount());
        for (int row = sheet.rowCount(); row-- > 0;)
            taken.insert(comparable(sheet.columns()[column], sheet.text(row, column).toString()), row);
    }
    return target;
}

TableImport::TableImport(QByteArray bytes, TableImportTarget target)
    : m_bytes(std::move(bytes))
    , m_target(std::move(target))
    , m_format(TextFormat::detected(m_bytes, m_target.columns))
{
    read();
}

void TableImport::setFormat(const TableTextFormat &format)
{
    m_format = format;
    read();
}

void TableImport::read()
{
    m_fault = Error();
    m_records.clear();
    const std::optional<QString> text = TextFormat::decoded(m_bytes, m_format.encoding);
    if (text) {
        readRecords(text->toUtf8());
    } else {
        m_fault = Error(ErrorCode::InvalidContent, TableImportTr::tr("The file has another encoding."));
        m_fault.addDetail(TableImportTr::tr("Choose another encoding, or save the file as UTF-8."));
    }
    nameFields();
    guessMapping();
    findProblems();
}

void TableImport::readRecords(const QByteArray &utf8)
{
    QBuffer device;
    device.setData(utf8);
    device.open(QIODevice::ReadOnly);
    CsvReader reader(&device, {}, {m_format.separator, m_format.quote});
    for (;;) {
        Result<std::optional<CsvRow>> row = reader.next();
        if (row.hasError()) {
            m_fault = row.ecatch();
            return;
        }
        if (!row->has_value())
            return;
        if (!isBlankRecord(**row))
            m_records.append(std::move(**row));
    }
}

void TableImport::nameFields()
{
    m_fieldNames.clear();
    qsizetype widest = 0;
    for (const CsvRow &record : m_records)
        widest = std::max(widest, record.fields.size());
    QStringList header;
    if (m_format.hasHeader && !m_records.isEmpty())
        header = m_records.takeFirst().fields;
    for (qsizetype field = 0; field < widest; ++field) {
        const QString name = header.value(field).trimmed();
        m_fieldNames.append(name.isEmpty() ? TableImportTr::tr("Column %1").arg(field + 1) : name);
    }
}

void TableImport::guessMapping()
{
    m_mapping.fill(-1, m_fieldNames.size());
    bool isAnyNamed = false;
    for (int column = 0; column < m_target.columns.size(); ++column) {
        const auto named = std::find_if(m_fieldNames.cbegin(), m_fieldNames.cend(), [&](const QString &name) {
            return m_target.columns[column].isMeantBy(name);
        });
        if (named == m_fieldNames.cend())
            continue;
        m_mapping[named - m_fieldNames.cbegin()] = column;
        isAnyNamed = true;
    }
    for (int field = 0; !isAnyNamed && field < std::min(m_mapping.size(), m_target.columns.size()); ++field)
        m_mapping[field] = field;
}

void TableImport::setMapping(const QList<int> &mapping)
{
    m_mapping = mapping;
    m_mapping.resize(m_fieldNames.size(), -1);
    for (qsizetype field = 0; field < m_mapping.size(); ++field) {
        if (m_mapping.lastIndexOf(m_mapping[field]) != field)
            m_mapping[field] = -1;
    }
    findProblems();
}

void TableImport::findProblems()
{
    m_problems.clear();
    m_faultyRecords.clear();
    m_first.clear();
    m_problemCount = 0;
    for (int record = 0; record < recordCount(); ++record)
        findProblemsOf(record);
}

void TableImport::findProblemsOf(int record)
{
    const QList<TableColumn> &columns = m_target.columns;
    const int before = m_problemCount;
    const qsizetype count = m_records[record].fields.size();
    for (int field = 0; field < m_mapping.size(); ++field) {
        if (const QString reason = fieldProblem(record, field); !reason.isEmpty())
            addProblem(record, field, columns[m_mapping[field]].title, reason);
    }
    for (int column = 0; column < columns.size(); ++column) {
        if (columns[column].isRequired && columns[column].defaultText.isEmpty() &&
            !m_mapping.contains(column))
            addProblem(record, -1, {},
                       TableImportTr::tr("No field goes to \"%1\".").arg(columns[column].title));
    }
    if (count > 1 && count < m_fieldNames.size() && m_problemCount == before && m_format.hasHeader &&
        m_mapping.mid(count).count(-1) < m_fieldNames.size() - count)
        addProblem(record, -1, {},
                   TableImportTr::tr("Has %1 of %2 fields.").arg(count).arg(m_fieldNames.size()));
    const QStringList row = texts(record);
    noteUniques(record, row);
    for (const TableRowProblem &problem : rowProblems(record, row)) {
        const auto field = int(m_mapping.indexOf(problem.column));
        if (field < 0 || fieldProblem(record, field).isEmpty())
            addProblem(record, field, columns[problem.column].title, problem.reason);
    }
    if (m_problemCount > before)
        m_faultyRecords.append(record);
}

void TableImport::addProblem(int record, int field, const QString &column, const QString &reason)
{
    ++m_problemCount;
    if (m_problems.size() == kListedProblems)
        return;
    const QString value = field >= 0 ? m_records[record].fields.value(field) : QString();
    m_problems.append({m_records[record].line, record, field, column, value, reason});
}

void TableImport::noteUniques(int record, const QStringList &texts)
{
    for (int column = 0; column < texts.size(); ++column) {
        if (!m_target.columns[column].isUnique || texts[column].isEmpty())
            continue;
        const QString text = comparable(m_target.columns[column], texts[column]);
        QHash<QString, int> &first = m_first[column];
        if (!first.contains(text))
            first.insert(text, record);
    }
}

QString TableImport::fieldProblem(int record, int field) const
{
    const int column = m_mapping.value(field, -1);
    if (column < 0)
        return {};
    const TableColumn &target = m_target.columns[column];
    const QString value = m_records[record].fields.value(field);
    if (value.isEmpty() && !target.defaultText.isEmpty())
        return {};
    return target.problem(target.kept(value, m_format.decimalSign));
}

QString TableImport::uniqueProblem(int record, int column, const QString &text) const
{
    if (!m_target.columns[column].isUnique || text.isEmpty())
        return {};
    const QString wanted = comparable(m_target.columns[column], text);
    if (const int row = m_target.taken.value(column).value(wanted, -1); row >= 0)
        return TableImportTr::tr("Must not repeat; row %1 of the table holds the same.").arg(row + 1);
    const int first = m_first.value(column).value(wanted, record);
    return first == record
               ? QString()
               : TableImportTr::tr("Must not repeat; line %1 holds the same.").arg(m_records[first].line);
}

/// At most one for each column.
QList<TableRowProblem> TableImport::rowProblems(int record, const QStringList &texts) const
{
    QList<TableRowProblem> problems;
    const auto add = [&](int column, const QString &reason) {
        const bool isToldOf = std::any_of(problems.cbegin(), problems.cend(),
                                          [column](const auto &known) { return known.column == column; });
        if (!reason.isEmpty() && !isToldOf && column >= 0 && column < m_target.columns.size())
            problems.append({column, reason});
    };
    const QList<QStringView> views(texts.cbegin(), texts.cend());
    for (const TableRowRule &rule : m_target.rules) {
        for (const TableRowProblem &problem : rule(views))
            add(problem.column, problem.reason);
    }
    for (int column = 0; column < texts.size(); ++column)
        add(column, uniqueProblem(record, column, texts[column]));
    return problems;
}

QString TableImport::problem(int record, int field) const
{
    const int column = m_mapping.value(field, -1);
    QString ofField = fieldProblem(record, field);
    if (column < 0 || !ofField.isEmpty())
        return ofField;
    for (const TableRowProblem &problem : rowProblems(record, texts(record))) {
        if (problem.column == column)
            return problem.reason;
    }
    return {};
}

QStringList TableImport::texts(int record) const
{
    QStringList texts;
    for (const TableColumn &column : m_target.columns)
        texts.append(column.defaultText);
    for (int field = 0; field < m_mapping.size(); ++field) {
        const QString value = m_records[record].fields.value(field);
        if (const int column = m_mapping[field]; column >= 0 && !value.isEmpty())
            texts[column] = m_target.columns[column].kept(value, m_format.decimalSign);
    }
    return texts;
}

QList<QStringList> TableImport::rows(Faulty faulty) const
{
    QList<QStringList> rows;
    for (int record = 0; record < recordCount(); ++record) {
        if (faulty == Faulty::Take ||
            !std::binary_search(m_faultyRecords.cbegin(), m_faultyRecords.cend(), record))
            rows.append(texts(record));
    }
    return rows;
}

} // namespace orv
