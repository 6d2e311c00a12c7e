#pragma once

#include <orv/widgets/Export.h>

#include <QStringListModel>

namespace orv {

/// Titles of columns as the sections of a header: one column for each text.
class ORV_PROPERTY_EDITOR_EXPORT GridHeaderModel : public QStringListModel
{
    Q_OBJECT

public:
    using QStringListModel::QStringListModel;

    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
};

} // namespace orv
