#include "UpgradeModel.h"

#include "state/ChangeText.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace orv {

namespace {

constexpr std::array kUpgradeTitles = {
    QT_TRANSLATE_NOOP("orv::UpgradeModel", "Place"),
    QT_TRANSLATE_NOOP("orv::UpgradeModel", "Change"),
    QT_TRANSLATE_NOOP("orv::UpgradeModel", "Before"),
    QT_TRANSLATE_NOOP("orv::UpgradeModel", "After"),
};

/// By WorkflowUpgradeChange::Kind.
constexpr std::array kUpgradeChanges = {
    QT_TRANSLATE_NOOP("orv::UpgradeModel", "added"),   QT_TRANSLATE_NOOP("orv::UpgradeModel", "removed"),
    QT_TRANSLATE_NOOP("orv::UpgradeModel", "renamed"), QT_TRANSLATE_NOOP("orv::UpgradeModel", "moved"),
    QT_TRANSLATE_NOOP("orv::UpgradeModel", "changed"),
};

/// Of rows that are steps or notes; others have the number of their step and one more.
constexpr quintptr kIsTop = 0;

} // namespace

void UpgradeModel::setUpgrade(const DocumentUpgrade &upgrade)
{
    beginResetModel();
    m_upgrade = upgrade;
    m_values.clear();
    endResetModel();
}

qsizetype UpgradeModel::changeCount() const
{
    return std::accumulate(
        m_upgrade.steps.cbegin(), m_upgrade.steps.cend(), qsizetype(0),
        [](qsizetype count, const WorkflowUpgradeStep &step) { return count + step.changes.size(); });
}

QModelIndex UpgradeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row()) + 1 : kIsTop);
}

QModelIndex UpgradeModel::parent(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == kIsTop)
        return {};
    return createIndex(int(index.internalId() - 1), 0, kIsTop);
}

int UpgradeModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return int(m_upgrade.steps.size() + m_upgrade.notes.size());
    const bool isStep =
        parent.internalId() == kIsTop && parent.column() == 0 && parent.row() < m_upgrade.steps.size();
    return isStep ? int(m_upgrade.steps.at(parent.row()).changes.size()) : 0;
}

int UpgradeModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QString UpgradeModel::headline(int row) const
{
    if (row >= m_upgrade.steps.size())
        return m_upgrade.notes.at(row - m_upgrade.steps.size());
    const WorkflowUpgradeStep &step = m_upgrade.steps.at(row);
    return tr("%1, changes: %2").arg(step.version.toString()).arg(step.changes.size());
}

/// Values may be long, and views ask for them again and again.
const UpgradeModel::Values &UpgradeModel::values(const QModelIndex &index,
                                                 const WorkflowUpgradeChange &change) const
{
    auto known = m_values.find({index.internalId(), index.row()});
    if (known == m_values.end()) {
        known = m_values.insert({index.internalId(), index.row()},
                                {ChangeText::ofValue(change.from, change.columns),
                                 ChangeText::ofValue(change.to, change.columns)});
    }
    return *known;
}

QString UpgradeModel::text(const QModelIndex &index) const
{
    if (index.internalId() == kIsTop)
        return index.column() == Place ? headline(index.row()) : QString();
    const WorkflowUpgradeChange &change =
        m_upgrade.steps.at(qsizetype(index.internalId() - 1)).changes.at(index.row());
    switch (Column(index.column())) {
    case Place:
        return ChangeText::ofPlace({change.tab, change.column, change.row, change.property, change.below});
    case Change:
        return tr(kUpgradeChanges.at(size_t(change.kind)));
    case Before:
        return values(index, change).before;
    case After:
        return values(index, change).after;
    case ColumnCount:
        break;
    }
    return {};
}

QVariant UpgradeModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == Qt::DisplayRole)
        return text(index).simplified();
    if (role == Qt::ToolTipRole)
        return QStringLiteral("<p>%1</p>").arg(text(index).toHtmlEscaped());
    return {};
}

QVariant UpgradeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTitle = orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0;
    return isTitle && section < ColumnCount ? QVariant(tr(kUpgradeTitles.at(size_t(section)))) : QVariant();
}

QString UpgradeModel::toText(const QModelIndexList &rows) const
{
    QStringList lines;
    for (const QModelIndex &row : rows) {
        QStringList cells;
        for (int column = 0; column < ColumnCount; ++column)
            cells.append(text(row.siblingAtColumn(column)).simplified());
        while (cells.size() > 1 && cells.constLast().isEmpty())
            cells.removeLast();
        lines.append(cells.join(u'\t'));
    }
    return lines.join(u'\n');
}

} // namespace orv
