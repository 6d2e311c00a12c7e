#include "ProteinChecks.h"

namespace orv {

ProteinChecks::ProteinChecks(QList<Protein> proteins, QObject *parent)
    : QAbstractListModel(parent)
    , m_proteins(std::move(proteins))
{}

QList<ProteinChecks::Protein> ProteinChecks::checked() const
{
    QList<Protein> checked;
    for (int row = 0; row < m_proteins.size(); ++row) {
        if (m_checked.contains(row))
            checked.append(m_proteins[row]);
    }
    return checked;
}

void ProteinChecks::checkAll(bool isChecked)
{
    m_checked.clear();
    for (int row = 0; isChecked && row < m_proteins.size(); ++row)
        m_checked.insert(row);
    if (m_proteins.isEmpty())
        return;
    Q_EMIT dataChanged(index(0), index(int(m_proteins.size()) - 1));
    Q_EMIT checkedChanged();
}

int ProteinChecks::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_proteins.size());
}

QVariant ProteinChecks::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == Qt::CheckStateRole)
        return m_checked.contains(index.row()) ? Qt::Checked : Qt::Unchecked;
    const Protein &protein = m_proteins[index.row()];
    if (role == Qt::DisplayRole)
        return protein.name;
    return role == Qt::ToolTipRole ? tr("%1: %2 residues").arg(protein.name).arg(protein.sequence.size())
                                   : QVariant();
}

bool ProteinChecks::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    if (value.toInt() == Qt::Checked)
        m_checked.insert(index.row());
    else
        m_checked.remove(index.row());
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    Q_EMIT checkedChanged();
    return true;
}

Qt::ItemFlags ProteinChecks::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable
                           : Qt::NoItemFlags;
}

} // namespace orv
