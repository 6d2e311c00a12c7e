#include "SameSettingModel.h"

#include "panels/ShortText.h"
#include "settings/SettingEdit.h"
#include "settings/SettingReader.h"

#include <KProperty.h>
#include <KPropertySet.h>
#include <orv/widgets/Icons.h>

#include <algorithm>
#include <array>

namespace orv {

namespace {

constexpr qsizetype kMostOfSame = 200;
constexpr qsizetype kMostOfSameInTip = 2000;

struct SameSettingColumn
{
    const char *title;
    const char *help;
};

// clang-format off
constexpr std::array<SameSettingColumn, SameSettingModel::ColumnCount> kSameSettingColumns = {{
    {QT_TRANSLATE_NOOP("orv::SameSettingModel", "Where"), QT_TRANSLATE_NOOP("orv::SameSettingModel", "Tab and column. Checked ones get the value when it is applied.")},
    {QT_TRANSLATE_NOOP("orv::SameSettingModel", "Value"), QT_TRANSLATE_NOOP("orv::SameSettingModel", "The value with its unit")},
    {QT_TRANSLATE_NOOP("orv::SameSettingModel", "Remark"), QT_TRANSLATE_NOOP("orv::SameSettingModel", "How the value relates to the one that is applied, and what is against it")},
}};
// clang-format on

} // namespace

SameSettingModel::SameSettingModel(QObject *parent)
    : QAbstractTableModel(parent)
{}

QList<SameSettingModel::Row> SameSettingModel::read(const QList<SettingView> &columns,
                                                    const GridPropertyEditorView *source) const
{
    QList<Row> rows;
    for (const SettingView &column : columns) {
        const KPropertySet *set = column.view ? column.view->propertySet() : nullptr;
        if (!set || !set->contains(m_name))
            continue;
        const KProperty &property = set->property(m_name);
        rows.append({column, SettingReader::valueText(property), SettingReader::stored(property),
                     m_refusal.isEmpty() ? SettingEdit::refusal(set, m_name) : m_refusal,
                     column.view == source});
    }
    const auto applied = std::ranges::find(rows, true, &Row::isSource);
    for (Row &row : rows)
        row.isSame = applied != rows.end() && SettingReader::areSame(row.stored, applied->stored);
    return rows;
}

void SameSettingModel::show(const QList<SettingView> &columns, const GridPropertyEditorView *source,
                            const QByteArray &name)
{
    m_name = name;
    m_checked.removeIf([](const auto &view) { return !view; });
    const KPropertySet *set = source ? source->propertySet() : nullptr;
    m_caption = set && set->contains(name) ? set->property(name).captionOrName() : QString();
    const QList<Row> rows = m_caption.isEmpty() ? QList<Row>() : read(columns, source);
    const bool areSame = std::ranges::equal(
        rows, m_rows, {}, [](const Row &row) { return row.column.view; },
        [](const Row &row) { return row.column.view; });
    if (!areSame)
        beginResetModel();
    m_rows = rows;
    if (!areSame)
        endResetModel();
    else if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(int(m_rows.size()) - 1, ColumnCount - 1));
}

std::optional<QString> SameSettingModel::commonValue() const
{
    if (m_rows.isEmpty() || !std::ranges::all_of(m_rows, &Row::isSame))
        return {};
    return m_rows.at(sourceRow()).value;
}

int SameSettingModel::sourceRow() const
{
    const auto source = std::ranges::find(m_rows, true, &Row::isSource);
    return source == m_rows.cend() ? -1 : int(source - m_rows.cbegin());
}

QList<int> SameSettingModel::differingRows() const
{
    QList<int> rows;
    for (int row = 0; row < rowCount(); ++row) {
        if (canGet(m_rows.at(row)))
            rows.append(row);
    }
    return rows;
}

QList<int> SameSettingModel::chosenRows() const
{
    QList<int> rows = differingRows();
    rows.removeIf([this](int row) { return !isChecked(m_rows.at(row)); });
    return rows;
}

void SameSettingModel::setAllChecked(bool isChecked)
{
    for (int row = 0; row < rowCount(); ++row)
        setData(index(row, Place), isChecked ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
}

int SameSettingModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int SameSettingModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

Qt::ItemFlags SameSettingModel::flags(const QModelIndex &index) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return Qt::NoItemFlags;
    const Qt::ItemFlags plain = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return index.column() == Place && canGet(m_rows.at(index.row())) ? plain | Qt::ItemIsUserCheckable
                                                                     : plain;
}

QString SameSettingModel::remark(const Row &row) const
{
    if (row.isSource)
        return tr("This value is applied");
    if (!row.refusal.isEmpty())
        return row.refusal;
    return row.isSame ? tr("Has this value") : QString();
}

QString SameSettingModel::text(const Row &row, int column) const
{
    switch (Column(column)) {
    case Place:
        return row.column.placeText();
    case Value:
        return row.value.isEmpty() ? tr("(empty)") : row.value;
    case Remark:
        return remark(row);
    case ColumnCount:
        break;
    }
    return {};
}

QVariant SameSettingModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return ShortText::line(text(row, index.column()), kMostOfSame);
    case Qt::CheckStateRole:
        return index.column() == Place && canGet(row) ? QVariant(isChecked(row) ? Qt::Checked : Qt::Unchecked)
                                                      : QVariant();
    case Qt::DecorationRole:
        return index.column() != Place || canGet(row)
                   ? QVariant()
                   : QVariant(Icons::icon(row.isSource ? IconName::Copy : IconName::Information));
    case Qt::AccessibleTextRole: {
        // The first cell is the current one, so that this is what one hears.
        QStringList spoken{ShortText::beginning(text(row, index.column()), kMostOfSameInTip)};
        if (index.column() == Place)
            spoken += {ShortText::beginning(text(row, Value), kMostOfSameInTip), remark(row)};
        spoken.removeAll(QString());
        return spoken.join(QStringLiteral(", "));
    }
    case Qt::ToolTipRole:
        return QStringLiteral("<p>%1</p>")
            .arg(ShortText::beginning(text(row, index.column()), kMostOfSameInTip).toHtmlEscaped());
    default:
        return {};
    }
}

bool SameSettingModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable))
        return false;
    const QPointer<GridPropertyEditorView> view = m_rows.at(index.row()).column.view;
    m_checked.removeAll(view);
    if (value.toInt() == Qt::Checked)
        m_checked.append(view);
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    return true;
}

QVariant SameSettingModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    const SameSettingColumn &column = kSameSettingColumns.at(size_t(section));
    if (role == Qt::DisplayRole)
        return tr(column.title);
    return role == Qt::ToolTipRole || role == Qt::WhatsThisRole ? QVariant(tr(column.help)) : QVariant();
}

} // namespace orv
