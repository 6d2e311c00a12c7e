#pragma once

#include <QAbstractListModel>
#include <QSet>
#include <QString>

namespace orv {

/// Proteins with boxes to check.
class ProteinChecks : public QAbstractListModel
{
    Q_OBJECT

public:
    struct Protein
    {
        QString name;
        QString sequence;
    };

    explicit ProteinChecks(QList<Protein> proteins, QObject *parent = nullptr);

    [[nodiscard]] QList<Protein> checked() const;
    void checkAll(bool isChecked);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    void checkedChanged();

private:
    QList<Protein> m_proteins;
    QSet<int> m_checked;
};

} // namespace orv
