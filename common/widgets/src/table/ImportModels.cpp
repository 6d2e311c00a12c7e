#include "ImportModels.h"

#include <orv/core/PlainTip.h>
#include <orv/table_model/TableModel.h>

namespace orv {

ImportPreviewModel::ImportPreviewModel(SharedImport import, QList<TableColumn> columns, QObject *parent)
    : QAbstractTableModel(parent)
    , m_import(std::move(import))
    , m_columns(std::move(columns))
{}

void ImportPreviewModel::refresh()
{
    beginResetModel();
    endResetModel();
}

int ImportPreviewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_import->recordCount() + 1;
}

int ImportPreviewModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_import->fieldNames().size());
}

QVariant ImportPreviewModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() == 0)
        return {};
    const int record = index.row() - 1;
    const int column = m_import->mapping().value(index.column(), -1);
    switch (role) {
    case Qt::DisplayRole:
        return m_import->record(record).fields.value(index.column());
    case Qt::ToolTipRole:
        return PlainTip::of(m_import->problem(record, index.column()));
    case TableModel::ProblemRole:
    case Qt::AccessibleDescriptionRole:
        return m_import->problem(record, index.column());
    case TableModel::KindRole:
        return int(column < 0 ? TableColumnKind::Text : m_columns.at(column).kind);
    case Qt::TextAlignmentRole: {
        const bool isNumeric = column >= 0 && m_columns.at(column).isNumeric();
        return QVariant::fromValue((isNumeric ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    default:
        return {};
    }
}

QVariant ImportPreviewModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Horizontal)
        return m_import->fieldNames().value(section);
    return section == 0 ? QVariant(tr("Goes to")) : QVariant(m_import->record(section - 1).line);
}

ImportProblemModel::ImportProblemModel(SharedImport import, QObject *parent)
    : QAbstractTableModel(parent)
    , m_import(std::move(import))
{}

void ImportProblemModel::refresh()
{
    beginResetModel();
    endResetModel();
}

int ImportProblemModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_import->problems().size());
}

int ImportProblemModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 4;
}

QVariant ImportProblemModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::ToolTipRole)
        return PlainTip::of(data(index, Qt::DisplayRole).toString());
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    const TableImportProblem &problem = m_import->problems()[index.row()];
    switch (index.column()) {
    case 0:
        return problem.line;
    case 1:
        return problem.column;
    case 2:
        return problem.value;
    default:
        return problem.reason;
    }
}

QVariant ImportProblemModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    return QStringList({tr("Line"), tr("Column"), tr("Value"), tr("Problem")}).value(section);
}

} // namespace orv
