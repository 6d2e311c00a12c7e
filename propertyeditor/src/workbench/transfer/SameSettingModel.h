#pragma once

#include "settings/SettingView.h"

#include <QAbstractTableModel>
#include <QByteArray>
#include <QJsonValue>
#include <QPointer>

#include <optional>

namespace orv {

/// One setting in all columns that have it: where, with which value, and whether it shall get the value of
/// the column from which somebody looks. Choices belong to columns and outlive another setting. GUI thread.
class SameSettingModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Place, ///< can be checked
        Value,
        Remark,
        ColumnCount,
    };

    explicit SameSettingModel(QObject *parent = nullptr);

    /// The setting \a name of \a source, in \a columns; rows of the same columns stay rows.
    void show(const QList<SettingView> &columns, const GridPropertyEditorView *source,
              const QByteArray &name);
    /// Why no column can get the value; empty if columns can.
    void setRefusal(const QString &reason) { m_refusal = reason; }
    [[nodiscard]] QString refusal() const { return m_refusal; }
    void clear() { show({}, nullptr, {}); }

    [[nodiscard]] const QByteArray &name() const { return m_name; }
    [[nodiscard]] QString caption() const { return m_caption; }
    /// That all columns have; nothing where they differ, and without columns.
    [[nodiscard]] std::optional<QString> commonValue() const;
    [[nodiscard]] GridPropertyEditorView *view(int row) const { return m_rows.at(row).column.view; }
    [[nodiscard]] QString placeText(int row) const { return m_rows.at(row).column.placeText(); }
    /// -1 without a setting.
    [[nodiscard]] int sourceRow() const;
    /// Those that could get another value, which alone can be checked.
    [[nodiscard]] QList<int> differingRows() const;
    /// Those of them that are checked.
    [[nodiscard]] QList<int> chosenRows() const;
    void setAllChecked(bool isChecked);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    struct Row
    {
        SettingView column;
        QString value;
        QJsonValue stored;
        QString refusal; ///< why it can't be edited; empty if it can
        bool isSource = false;
        bool isSame = false; ///< as the source
    };

    [[nodiscard]] QList<Row> read(const QList<SettingView> &columns,
                                  const GridPropertyEditorView *source) const;
    [[nodiscard]] static bool canGet(const Row &row) { return !row.isSame && row.refusal.isEmpty(); }
    [[nodiscard]] bool isChecked(const Row &row) const { return m_checked.contains(row.column.view); }
    [[nodiscard]] QString remark(const Row &row) const;
    [[nodiscard]] QString text(const Row &row, int column) const;

    QList<Row> m_rows;
    QByteArray m_name;
    QString m_caption;
    QString m_refusal;
    QList<QPointer<GridPropertyEditorView>> m_checked;
};

} // namespace orv
