#pragma once

#include <orv/chemistry/ProteinDigestionItem.h>
#include <orv/table/RowNode.h>
#include <orv/widgets/Export.h>

#include <QAbstractItemModel>

#include <memory>

namespace orv {

class ProteinTableWidget;

/// The proteins of a table with the peptides of their digest below them, which are made when a protein is
/// first unfolded. Nobody edits it: it follows the table. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT ProteinTreeTable : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// \a table outlives the model.
    explicit ProteinTreeTable(ProteinTableWidget *table);
    ~ProteinTreeTable() override;

    /// The proteins as a node with the columns of ProteinUtils::defaultRowNode(); unedited, the one that was
    /// set.
    [[nodiscard]] RowNode rowNode() const;

    /// Whether a column tells the average mass beside the monoisotopic one. It doesn't at first.
    void setShowAverageMass(bool isShown);
    [[nodiscard]] bool showsAverageMass() const;

    /// More peptides of one protein aren't shown.
    static constexpr int kShownPeptides = 20'000;

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] bool hasChildren(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    void renew();
    void renewRows(const QList<quint32> &ids);
    void digestAnew(int row);
    [[nodiscard]] QString textOf(const QModelIndex &index) const;

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
