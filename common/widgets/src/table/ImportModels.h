#pragma once

#include <orv/table_model/TableImport.h>

#include <QAbstractTableModel>

#include <memory>

namespace orv {

/// Views ask their models to the last, when the dialog has forgotten everything.
using SharedImport = std::shared_ptr<const TableImport>;

/// What an import would take, with the fields in columns. The first row is for the choice where each goes.
class ImportPreviewModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    ImportPreviewModel(SharedImport import, QList<TableColumn> columns, QObject *parent);

    /// After the format or the mapping has changed.
    void refresh();

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    SharedImport m_import;
    QList<TableColumn> m_columns;
};

/// What is wrong with the fields of an import.
class ImportProblemModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    ImportProblemModel(SharedImport import, QObject *parent);

    void refresh();

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    SharedImport m_import;
};

} // namespace orv
