#include "RecoveryModels.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QTextDocument>

#include <array>

namespace orv {

namespace {

/// Tool tips take some texts for markup.
QString asPlainTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace

void RecoveryModel::setEntries(const QList<RecoveryEntry> &entries)
{
    beginResetModel();
    m_entries = entries;
    endResetModel();
}

QString RecoveryModel::nameOf(const RecoveryEntry &entry)
{
    if (!entry.file.isEmpty())
        return QFileInfo(entry.file).fileName();
    return entry.name.isEmpty() ? tr("New workflow") : entry.name;
}

int RecoveryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

int RecoveryModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString RecoveryModel::text(const RecoveryEntry &entry, int column)
{
    if (column == Workflow)
        return nameOf(entry);
    if (column == Edited)
        return QLocale().toString(entry.edited.toLocalTime(), QLocale::ShortFormat);
    return entry.hasDocument ? QLocale().toString(entry.changes.count) : tr("none, was open");
}

QVariant RecoveryModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const RecoveryEntry &entry = m_entries.at(index.row());
    if (role == Qt::DisplayRole)
        return text(entry, index.column());
    if (role == Qt::ToolTipRole && index.column() == Workflow)
        return entry.file.isEmpty() ? tr("Never saved") : asPlainTip(QDir::toNativeSeparators(entry.file));
    if (role == Qt::TextAlignmentRole && index.column() == Changes)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant RecoveryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(section == Changes ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter);
    const std::array<QString, ColumnCount> titles{tr("Workflow"), tr("Last Edited"), tr("Changes")};
    return role == Qt::DisplayRole && section >= 0 && section < ColumnCount ? titles.at(size_t(section))
                                                                            : QVariant();
}

void RecoveryChangesModel::setChanges(const QList<RecoveryChange> &changes)
{
    beginResetModel();
    m_changes = changes;
    endResetModel();
}

int RecoveryChangesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_changes.size());
}

int RecoveryChangesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant RecoveryChangesModel::data(const QModelIndex &index, int role) const
{
    const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    if (!isText || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const RecoveryChange &change = m_changes.at(index.row());
    const std::array<const QString *, ColumnCount> texts{&change.place, &change.before, &change.after};
    const QString &text = *texts.at(size_t(index.column()));
    return role == Qt::ToolTipRole ? asPlainTip(text) : text;
}

QVariant RecoveryChangesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    const std::array<QString, ColumnCount> titles{tr("Where"), tr("Before"), tr("Unsaved")};
    return role == Qt::DisplayRole && section >= 0 && section < ColumnCount ? titles.at(size_t(section))
                                                                            : QVariant();
}

} // namespace orv
