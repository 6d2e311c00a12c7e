#include "orv/propertyeditor/workbench/SettingIndex.h"

#include <algorithm>
#include <utility>

namespace orv {

namespace {

bool passes(const SettingQuery &query, const SettingTexts &texts, const SettingPlace &place)
{
    if ((query.isChangedFromDefault && !texts.defaultValue) ||
        (query.isChangedSinceSaving && !texts.savedValue))
        return false;
    return std::ranges::all_of(query.further, [&](const auto &filter) { return !filter || filter(place); });
}

} // namespace

SettingIndex::Known SettingIndex::known(const Column &column)
{
    Known known{column, {}, {}};
    known.column.settings.clear();
    known.entries.reserve(column.settings.size());
    for (const SettingTexts &texts : column.settings) {
        const QString names = QString::fromUtf8(texts.name) + u'\n' + texts.formerName;
        known.byName.insert(texts.name, known.entries.size());
        known.entries.append({texts,
                              {SearchWords::folded(texts.caption), SearchWords::folded(names),
                               SearchWords::folded(texts.toolTip), SearchWords::folded(texts.value)}});
    }
    return known;
}

void SettingIndex::clear()
{
    m_columns.clear();
    m_lastFound.reset();
}

void SettingIndex::append(const Column &column)
{
    m_columns.append(known(column));
    m_lastFound.reset();
}

void SettingIndex::replace(const Column &column)
{
    const auto old = std::ranges::find_if(m_columns, [&column](const Known &known) {
        return known.column.tab == column.tab && known.column.column == column.column;
    });
    if (old == m_columns.end())
        return;
    *old = known(column);
    m_lastFound.reset();
}

qsizetype SettingIndex::count() const
{
    qsizetype count = 0;
    for (const Known &column : m_columns)
        count += column.entries.size();
    return count;
}

const SettingIndex::Known *SettingIndex::columnOf(const SettingPlace &place) const
{
    const auto found = std::ranges::find_if(m_columns, [&place](const Known &known) {
        return known.column.tab == place.tab && known.column.column == place.column;
    });
    return found == m_columns.end() ? nullptr : &*found;
}

const SettingTexts *SettingIndex::find(const SettingPlace &place) const
{
    const Known *column = columnOf(place);
    const qsizetype entry = column ? column->byName.value(place.name, -1) : -1;
    return entry < 0 ? nullptr : &column->entries.at(entry).texts;
}

QString SettingIndex::placeText(const SettingPlace &place) const
{
    const Known *column = columnOf(place);
    return column ? QStringLiteral("%1 › %2").arg(column->column.tabName, column->column.columnName)
                  : QString();
}

QList<SettingIndex::Candidate> SettingIndex::all() const
{
    QList<Candidate> all;
    all.reserve(count());
    for (qsizetype column = 0; column < m_columns.size(); ++column) {
        for (qsizetype entry = 0; entry < m_columns.at(column).entries.size(); ++entry)
            all.append({column, entry});
    }
    return all;
}

QList<SettingHit> SettingIndex::hits(const SettingQuery &query)
{
    const SearchWords words(query.text);
    if (words.isEmpty() && !query.hasFilter())
        return {};
    const bool goesOn = m_lastFound && words.narrow(m_lastWords);
    const QList<Candidate> candidates = goesOn ? *std::exchange(m_lastFound, {}) : all();
    QList<Candidate> found;
    std::array<QList<SettingHit>, int(SettingField::None) + 1> byField;
    for (const auto &[column, entry] : candidates) {
        const Known &known = m_columns.at(column);
        const Entry &candidate = known.entries.at(entry);
        const std::optional<int> field = words.fieldIn(candidate.folded);
        if (!field)
            continue;
        found.append({column, entry});
        const SettingPlace place{known.column.tab, known.column.column, candidate.texts.name};
        const SettingField told = words.isEmpty() ? SettingField::None : SettingField(*field);
        if (passes(query, candidate.texts, place))
            byField.at(size_t(told)).append({place, told});
    }
    m_lastWords = words;
    m_lastFound = std::move(found);
    QList<SettingHit> hits;
    for (const QList<SettingHit> &some : byField)
        hits += some;
    return hits;
}

} // namespace orv
