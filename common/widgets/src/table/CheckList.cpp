#include "CheckList.h"

#include <orv/core/PlainTip.h>

#include <algorithm>
#include <numeric>

namespace orv {

CheckList::CheckList(QList<Line> lines, QObject *parent)
    : QAbstractListModel(parent)
    , m_lines(std::move(lines))
{}

QList<int> CheckList::checkedRows() const
{
    QList<int> rows(m_checked.cbegin(), m_checked.cend());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void CheckList::setCheckedRows(const QList<int> &rows)
{
    const QSet<int> checked(rows.cbegin(), rows.cend());
    if (checked == m_checked)
        return;
    m_checked = checked;
    if (!m_lines.isEmpty())
        Q_EMIT dataChanged(index(0), index(int(m_lines.size()) - 1), {Qt::CheckStateRole});
    Q_EMIT checkedChanged();
}

void CheckList::checkAll()
{
    QList<int> rows(m_lines.size());
    std::iota(rows.begin(), rows.end(), 0);
    setCheckedRows(rows);
}

int CheckList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_lines.size());
}

QVariant CheckList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::CheckStateRole:
        return m_checked.contains(index.row()) ? Qt::Checked : Qt::Unchecked;
    case Qt::DisplayRole:
        return m_lines[index.row()].text;
    case Qt::ToolTipRole:
        return PlainTip::of(m_lines[index.row()].tip);
    default:
        return {};
    }
}

bool CheckList::setData(const QModelIndex &index, const QVariant &value, int role)
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

Qt::ItemFlags CheckList::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable
                           : Qt::NoItemFlags;
}

} // namespace orv
