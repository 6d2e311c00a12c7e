#pragma once

#include "ComparisonTree.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QSet>

#include <array>

namespace orv {

/// What differs between two documents as a tree with check marks for what is to be taken over. A mark belongs
/// to what it stands at, and stays there when another comparison is shown.
class ComparisonModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column
    {
        Name,
        This,
        Other,
        ColumnCount,
    };

    using QAbstractItemModel::QAbstractItemModel;

    /// \a otherName is the name of the other document.
    void show(const ComparisonTree &tree, const QString &otherName);
    void uncheckAll();

    /// Of the rows that are checked and can be taken over.
    [[nodiscard]] const QSet<QString> &checkedKeys() const { return m_checked; }
    /// Whether all of them are settings.
    [[nodiscard]] bool onlySettingsAreChecked() const;

    /// Those of them that take something away from this document, in the order of the rows.
    [[nodiscard]] QList<QModelIndex> checkedRemovals() const;

    /// "Analysis › Karvon › Peaks kept per spectrum"
    [[nodiscard]] QString placeText(const QModelIndex &index) const;
    [[nodiscard]] const ComparisonNode &node(const QModelIndex &index) const;
    /// Invalid for a key without a row.
    [[nodiscard]] QModelIndex indexOf(const QString &key) const;
    /// The name in files of the setting at or above a row, empty for none.
    [[nodiscard]] QByteArray settingAt(const QModelIndex &index) const;

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &index) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    void checkedChanged();

private:
    using Texts = std::array<QString, ColumnCount>;

    [[nodiscard]] Texts texts(const ComparisonNode &node) const;
    [[nodiscard]] QString line(const QModelIndex &index) const;
    [[nodiscard]] QString hint(const QModelIndex &index) const;
    [[nodiscard]] QString name(const ComparisonNode &node) const;
    [[nodiscard]] QString value(const ComparisonNode &node, const QJsonValue &value) const;
    [[nodiscard]] QString changeText(const ComparisonNode &node) const;
    [[nodiscard]] Qt::CheckState checkState(int number) const;
    [[nodiscard]] QVariant explanation(const ComparisonNode &node) const;
    [[nodiscard]] QVariant help(int column) const;
    int check(int number, bool isChecked);
    void count();
    void tellAround(int number);
    void tellBelow(int number);

    ComparisonTree m_tree;
    QString m_otherName;
    QSet<QString> m_checked;
    QList<int> m_leaves; ///< of each row: those at or below it, and how many of them are checked
    QList<int> m_checkedLeaves;
    QHash<QString, int> m_numbers;
    mutable QHash<int, Texts> m_lines; ///< of the rows that were seen, short
};

} // namespace orv
