#pragma once

#include <orv/table_model/TableModel.h>

#include <QModelIndex>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QMimeData)

namespace orv {

/// What files that are dropped on a table do: on a cell for files they are named there and below; a text file
/// anywhere else is imported; other files make rows where there is a column for files.
class TableDrop
{
public:
    TableDrop(const TableSheet &sheet, const QModelIndex &under, const QMimeData *data);

    [[nodiscard]] static QStringList localFiles(const QMimeData *data);

    [[nodiscard]] bool isPossible() const { return m_column >= 0 || !m_importPath.isEmpty(); }
    /// The cell that the first file goes to, invalid for none that exists.
    [[nodiscard]] QModelIndex cell() const { return m_cell; }
    [[nodiscard]] QString importPath() const { return m_importPath; }
    [[nodiscard]] Error takeInto(TableSheet &sheet, const TableModel &model) const;

private:
    QStringList m_files;
    QModelIndex m_cell;
    QString m_importPath;
    int m_column = -1; ///< that files go to
};

} // namespace orv
