#include "orv/propertyeditor/grid/GridHeaderModel.h"

namespace orv {

int GridHeaderModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(stringList().size());
}

QVariant GridHeaderModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTitle = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    if (isTitle && section >= 0 && section < columnCount())
        return stringList().at(section);
    return QAbstractItemModel::headerData(section, orientation, role);
}

} // namespace orv
