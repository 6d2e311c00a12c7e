#pragma once

#include <orv/propertyeditor/window/DocumentUpgrade.h>

#include <QAbstractItemModel>
#include <QHash>

#include <utility>

namespace orv {

/// The steps of an upgrade with what each changed, and notes behind them.
class UpgradeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column
    {
        Place,
        Change,
        Before,
        After,
        ColumnCount,
    };

    using QAbstractItemModel::QAbstractItemModel;

    void setUpgrade(const DocumentUpgrade &upgrade);
    /// Of all steps.
    [[nodiscard]] qsizetype changeCount() const;
    /// Lines of cells between tabs, those of steps and of notes alone.
    [[nodiscard]] QString toText(const QModelIndexList &rows) const;

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &index) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Values
    {
        QString before;
        QString after;
    };

    [[nodiscard]] const Values &values(const QModelIndex &index, const WorkflowUpgradeChange &change) const;
    [[nodiscard]] QString text(const QModelIndex &index) const;
    [[nodiscard]] QString headline(int row) const;

    DocumentUpgrade m_upgrade;
    mutable QHash<std::pair<quintptr, int>, Values> m_values; ///< of the changes that were seen
};

} // namespace orv
