#include "orv/table_model/TableImport.h"

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

} // namespace

TableImport::TableImport(QByteArray bytes, QList<TableColumn> columns)
    : m_bytes(std::move(bytes))
    , m_columns(std::move(columns))
    , m_format(TextFormat::detected(m_bytes, m_columns))
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
    for (int column = 0; column < m_columns.size(); ++column) {
        const auto named = std::find_if(m_fieldNames.cbegin(), m_fieldNames.cend(), [&](const QString &name) {
            return m_columns[column].isMeantBy(name);
        });
        if (named == m_fieldNames.cend())
            continue;
        m_mapping[named - m_fieldNames.cbegin()] = column;
        isAnyNamed = true;
    }
    for (int field = 0; !isAnyNamed && field < std::min(m_mapping.size(), m_columns.size()); ++field)
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
    m_problemCount = 0;
    for (int record = 0; record < recordCount(); ++record)
        findProblemsOf(record);
}

void TableImport::findProblemsOf(int record)
{
    const int before = m_problemCount;
    const qsizetype count = m_records[record].fields.size();
    for (int field = 0; field < m_mapping.size(); ++field) {
        if (const QString reason = problem(record, field); !reason.isEmpty())
            addProblem(record, field, reason);
    }
    for (int column = 0; column < m_columns.size(); ++column) {
        if (m_columns[column].isRequired && m_columns[column].defaultText.isEmpty() &&
            !m_mapping.contains(column))
            addProblem(record, -1,
                       TableImportTr::tr("No field goes to \"%1\".").arg(m_columns[column].title));
    }
    if (count > 1 && count < m_fieldNames.size() && m_problemCount == before && m_format.hasHeader &&
        m_mapping.mid(count).count(-1) < m_fieldNames.size() - count)
        addProblem(record, -1, TableImportTr::tr("Has %1 of %2 fields.").arg(count).arg(m_fieldNames.size()));
    if (m_problemCount > before)
        m_faultyRecords.append(record);
}

void TableImport::addProblem(int record, int field, const QString &reason)
{
    ++m_problemCount;
    if (m_problems.size() == kListedProblems)
        return;
    const bool isOfField = field >= 0;
    m_problems.append({m_records[record].line, record, field,
                       isOfField ? m_columns[m_mapping[field]].title : QString(),
                       isOfField ? m_records[record].fields.value(field) : QString(), reason});
}

QString TableImport::problem(int record, int field) const
{
    const int column = m_mapping.value(field, -1);
    if (column < 0)
        return {};
    const TableColumn &target = m_columns[column];
    const QString value = m_records[record].fields.value(field);
    if (value.isEmpty() && !target.defaultText.isEmpty())
        return {};
    return target.problem(target.kept(value, m_format.decimalSign));
}

QList<QStringList> TableImport::rows(Faulty faulty) const
{
    QList<QStringList> rows;
    for (int record = 0; record < recordCount(); ++record) {
        if (faulty == Faulty::LeaveOut &&
            std::binary_search(m_faultyRecords.cbegin(), m_faultyRecords.cend(), record))
            continue;
        QStringList texts;
        for (const TableColumn &column : m_columns)
            texts.append(column.defaultText);
        for (int field = 0; field < m_mapping.size(); ++field) {
            const QString value = m_records[record].fields.value(field);
            if (const int column = m_mapping[field]; column >= 0 && !value.isEmpty())
                texts[column] = m_columns[column].kept(value, m_format.decimalSign);
        }
        rows.append(texts);
    }
    return rows;
}

} // namespace orv
