#pragma once

#include <orv/propertyeditor/workbench/RecoveryEntry.h>

#include <QAbstractTableModel>

namespace orv {

/// What can be recovered, a row for each.
class RecoveryModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Workflow,
        Edited,
        Changes,
        ColumnCount,
    };

    using QAbstractTableModel::QAbstractTableModel;

    void setEntries(const QList<RecoveryEntry> &entries);
    [[nodiscard]] const QList<RecoveryEntry> &entries() const { return m_entries; }
    /// What people call it.
    [[nodiscard]] static QString nameOf(const RecoveryEntry &entry);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] static QString text(const RecoveryEntry &entry, int column);

    QList<RecoveryEntry> m_entries;
};

/// The changes of one of them.
class RecoveryChangesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Place,
        Before,
        After,
        ColumnCount,
    };

    using QAbstractTableModel::QAbstractTableModel;

    void setChanges(const QList<RecoveryChange> &changes);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QList<RecoveryChange> m_changes;
};

} // namespace orv
