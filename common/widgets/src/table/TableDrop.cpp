#include "TableDrop.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace orv {

namespace {

struct TableDropTr
{
    Q_DECLARE_TR_FUNCTIONS(TableDrop)
};

bool takesFiles(const TableColumn &column)
{
    return column.kind == TableColumnKind::File && column.isEditable();
}

bool isTextTable(const QString &path, const QList<TableColumn> &columns)
{
    static const QStringList tables = {QStringLiteral("csv"), QStringLiteral("tsv"), QStringLiteral("txt")};
    static const QStringList sequences = {QStringLiteral("fasta"), QStringLiteral("fa"),
                                          QStringLiteral("faa"), QStringLiteral("fas")};
    const QString suffix = QFileInfo(path).suffix().toLower();
    const bool hasSequences = std::any_of(columns.cbegin(), columns.cend(), [](const TableColumn &column) {
        return column.kind == TableColumnKind::Sequence;
    });
    return tables.contains(suffix) || (hasSequences && sequences.contains(suffix));
}

} // namespace

TableDrop::TableDrop(const TableSheet &sheet, const QModelIndex &under, const QMimeData *data)
    : m_files(localFiles(data))
{
    if (m_files.isEmpty())
        return;
    const QList<TableColumn> &columns = sheet.columns();
    if (under.isValid() && takesFiles(columns[under.column()])) {
        m_column = under.column();
        m_cell = under;
    } else if (m_files.size() == 1 && isTextTable(m_files.constFirst(), columns)) {
        m_importPath = m_files.constFirst();
    } else {
        const auto found = std::find_if(columns.cbegin(), columns.cend(), takesFiles);
        m_column = found == columns.cend() ? -1 : int(found - columns.cbegin());
    }
}

QStringList TableDrop::localFiles(const QMimeData *data)
{
    QStringList files;
    for (const QUrl &url : data->urls()) {
        if (url.isLocalFile())
            files.append(url.toLocalFile());
    }
    return files;
}

Error TableDrop::takeInto(TableSheet &sheet, const TableModel &model) const
{
    QList<TableCellText> cells;
    for (qsizetype i = 0; i < m_files.size(); ++i) {
        const int shown = m_cell.isValid() ? m_cell.row() + int(i) : model.rowCount() + int(i);
        const int beyond = shown - model.rowCount();
        cells.append({beyond < 0 ? model.sheetRow(shown) : sheet.rowCount() + beyond, m_column, m_files[i]});
    }
    return sheet.setCells(cells, TableDropTr::tr("drop files"));
}

} // namespace orv
