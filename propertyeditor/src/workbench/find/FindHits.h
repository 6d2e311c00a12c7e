#pragma once

#include "settings/SettingColumns.h"

#include <QAbstractTableModel>
#include <QCoreApplication>
#include <QList>

namespace orv {

/// The hits of a search as rows: where a setting is, why it was found, and what it can be set back to. A row
/// stays where it is until the next search, though its setting may have ceased to be a hit.
class FindHits : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Setting,
        Value,
        Default, ///< a click sets back to it
        Saved,   ///< the same
        Place,
        Reason,
        ColumnCount,
    };

    explicit FindHits(SettingColumns *columns, QObject *parent = nullptr);

    /// \a hits of the index as it is now.
    void show(const SettingQuery &query, const QList<SettingHit> &hits);
    /// Values of settings are others than they were.
    void tellValues();

    [[nodiscard]] const SettingPlace &placeOf(int row) const { return m_hits.at(row).place; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    [[nodiscard]] QString text(const SettingTexts &texts, const SettingHit &hit, int column) const;
    [[nodiscard]] QString reason(const SettingHit &hit) const;
    [[nodiscard]] QVariant decoration(const SettingTexts &texts, int column) const;
    [[nodiscard]] QString spoken(const SettingTexts &texts, const SettingHit &hit, int column) const;

    SettingColumns *m_columns; ///< outlives this
    QString m_filterText;
    QList<SettingHit> m_hits;
};

} // namespace orv
