#include "FindHits.h"

#include "panels/EvenRows.h"
#include "panels/ShortText.h"

#include <orv/widgets/Icons.h>

#include <array>

namespace orv {

namespace {

/// What a cell shows of a value.
constexpr qsizetype kMostShown = 200;
constexpr qsizetype kMostInToolTip = 2000;

struct HitColumn
{
    const char *title;
    const char *help;
};

// clang-format off
constexpr std::array<HitColumn, FindHits::ColumnCount> kColumns = {{
    {QT_TRANSLATE_NOOP("orv::FindHits", "Setting"), QT_TRANSLATE_NOOP("orv::FindHits", "The caption of the setting. A sign stands at those that were changed.")},
    {QT_TRANSLATE_NOOP("orv::FindHits", "Value"), QT_TRANSLATE_NOOP("orv::FindHits", "The value with its unit")},
    {QT_TRANSLATE_NOOP("orv::FindHits", "Default"), QT_TRANSLATE_NOOP("orv::FindHits", "The default, where the value is another one. A click sets the setting back to it.")},
    {QT_TRANSLATE_NOOP("orv::FindHits", "Saved"), QT_TRANSLATE_NOOP("orv::FindHits", "What was saved, where the value is another one now. A click sets the setting back to it.")},
    {QT_TRANSLATE_NOOP("orv::FindHits", "Where"), QT_TRANSLATE_NOOP("orv::FindHits", "Tab and column")},
    {QT_TRANSLATE_NOOP("orv::FindHits", "Found in"), QT_TRANSLATE_NOOP("orv::FindHits", "Why the setting is in this list")},
}};

constexpr std::array kFields = {
    QT_TRANSLATE_NOOP("orv::FindHits", "Caption"),
    QT_TRANSLATE_NOOP("orv::FindHits", "Name: %1"),
    QT_TRANSLATE_NOOP("orv::FindHits", "Explanation"),
    QT_TRANSLATE_NOOP("orv::FindHits", "Value"),
};
// clang-format on

} // namespace

FindHits::FindHits(SettingColumns *columns, QObject *parent)
    : QAbstractTableModel(parent)
    , m_columns(columns)
{}

void FindHits::show(const SettingQuery &query, const QList<SettingHit> &hits)
{
    QStringList filters;
    if (query.isChangedFromDefault)
        filters.append(tr("Changed from the default"));
    if (query.isChangedSinceSaving)
        filters.append(tr("Changed since the last save"));
    if (query.further[0])
        filters.append(tr("Has a finding"));
    if (query.further[1])
        filters.append(tr("Differs from the second document"));
    beginResetModel();
    m_filterText = filters.join(QStringLiteral(", "));
    m_hits = hits;
    endResetModel();
}

void FindHits::tellValues()
{
    if (!m_hits.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(int(m_hits.size()) - 1, ColumnCount - 1));
}

int FindHits::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_hits.size());
}

int FindHits::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString FindHits::reason(const SettingHit &hit) const
{
    if (hit.field == SettingField::None)
        return m_filterText;
    const QString field = tr(kFields.at(size_t(hit.field)));
    return hit.field == SettingField::Name ? field.arg(QString::fromUtf8(hit.place.name)) : field;
}

QString FindHits::text(const SettingTexts &texts, const SettingHit &hit, int column) const
{
    const auto former = [](const std::optional<QString> &value) {
        return !value ? QString() : value->isEmpty() ? tr("(empty)") : *value;
    };
    switch (Column(column)) {
    case Setting:
        return texts.caption;
    case Value:
        return texts.value;
    case Place:
        return m_columns->index().placeText(hit.place);
    case Reason:
        return reason(hit);
    case Default:
        return former(texts.defaultValue);
    case Saved:
        return former(texts.savedValue);
    case ColumnCount:
        break;
    }
    return {};
}

QVariant FindHits::decoration(const SettingTexts &texts, int column) const
{
    const bool isChanged = texts.defaultValue || texts.savedValue;
    if (column == Setting)
        return isChanged ? QVariant(Icons::icon(IconName::Changed)) : QVariant(EvenRows::indent());
    const bool goesBack = (column == Default && texts.defaultValue) || (column == Saved && texts.savedValue);
    return goesBack && !texts.isReadOnly ? QVariant(Icons::icon(IconName::Undo)) : QVariant();
}

QString FindHits::spoken(const SettingTexts &texts, const SettingHit &hit, int column) const
{
    QString shown = ShortText::beginning(text(texts, hit, column), kMostInToolTip);
    if (column == Default && texts.defaultValue) {
        return texts.isReadOnly
                   ? tr("%1, the default, can't be set back to: the setting can only be read").arg(shown)
                   : tr("Set back to the default: %1").arg(shown);
    }
    if (column == Saved && texts.savedValue) {
        return texts.isReadOnly
                   ? tr("%1, which was saved, can't be set back to: the setting can only be read").arg(shown)
                   : tr("Set back to what was saved: %1").arg(shown);
    }
    if (column != Setting || (!texts.defaultValue && !texts.savedValue))
        return shown;
    return texts.savedValue ? tr("%1, changed since the last save").arg(shown)
                            : tr("%1, changed from the default").arg(shown);
}

QVariant FindHits::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const SettingHit &hit = m_hits.at(index.row());
    const SettingTexts *texts = m_columns->index().find(hit.place);
    if (!texts)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return ShortText::line(text(*texts, hit, index.column()), kMostShown);
    case Qt::DecorationRole:
        return decoration(*texts, index.column());
    case Qt::AccessibleTextRole:
        return spoken(*texts, hit, index.column());
    case Qt::WhatsThisRole:
        return texts->toolTip.isEmpty()
                   ? QVariant()
                   : QVariant(QStringLiteral("<b>%1</b><br>%2")
                                  .arg(texts->caption.toHtmlEscaped(), texts->toolTip.toHtmlEscaped()));
    case Qt::ToolTipRole: {
        const QString tip = spoken(*texts, hit, index.column()).toHtmlEscaped();
        const QString more = index.column() == Setting ? texts->toolTip.toHtmlEscaped() : QString();
        return more.isEmpty() ? tip : QStringLiteral("<b>%1</b><br>%2").arg(tip, more);
    }
    default:
        return {};
    }
}

QVariant FindHits::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    if (role == Qt::DisplayRole)
        return tr(kColumns.at(size_t(section)).title);
    return role == Qt::ToolTipRole || role == Qt::WhatsThisRole
               ? QVariant(tr(kColumns.at(size_t(section)).help))
               : QVariant();
}

} // namespace orv
