#pragma once

#include <orv/propertyeditor/SearchWords.h>
#include <orv/widgets/Export.h>

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <array>
#include <functional>
#include <optional>
#include <utility>

namespace orv {

/// A setting of a document by the number of its tab, that of its column in the tab, both from 0, and its
/// internal name.
struct SettingPlace
{
    int tab = 0;
    int column = 0;
    QByteArray name;

    bool operator==(const SettingPlace &) const = default;
    friend size_t qHash(const SettingPlace &place, size_t seed = 0)
    {
        return qHashMulti(seed, place.tab, place.column, place.name);
    }
};

/// What is known of a setting beside its place. Values are as people read them, with their unit.
struct SettingTexts
{
    QByteArray name;
    QString formerName; ///< may be empty
    QString caption;
    QString toolTip;
    QString value;
    std::optional<QString> defaultValue; ///< if the value is another one
    std::optional<QString> savedValue;   ///< the same
    bool isReadOnly = false;
};

/// What is looked for. A hit has all the words and passes every filter.
struct SettingQuery
{
    QString text;
    bool isChangedFromDefault = false;
    bool isChangedSinceSaving = false;
    /// Each a filter that somebody else knows, such as settings with a finding; null for none.
    std::array<std::function<bool(const SettingPlace &)>, 2> further = {};

    [[nodiscard]] bool hasFilter() const
    {
        return isChangedFromDefault || isChangedSinceSaving || further[0] || further[1];
    }
};

/// Where the words of a hit stand.
enum class SettingField
{
    Caption,
    Name,
    ToolTip,
    Value,
    None, ///< there are no words
};

struct SettingHit
{
    SettingPlace place;
    SettingField field = SettingField::None;
};

/// The settings of a document, ready to be searched: texts are folded once, and a query that says more than
/// the one before looks at the hits of that one alone. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT SettingIndex
{
public:
    /// Columns in the order of the document; names may be gone in what follows.
    struct Column
    {
        int tab = 0;
        int column = 0;
        QString tabName;
        QString columnName;
        QList<SettingTexts> settings;
    };

    void clear();
    void append(const Column &column);
    /// The settings of the column at the same place become those of \a column.
    void replace(const Column &column);

    [[nodiscard]] qsizetype count() const;
    /// Null for a place without a setting; valid until the index changes.
    [[nodiscard]] const SettingTexts *find(const SettingPlace &place) const;
    /// "Analysis › Karvon", empty for a place without a column.
    [[nodiscard]] QString placeText(const SettingPlace &place) const;

    /// Those with the words in their caption first, then name, tool tip and value, each in the order of the
    /// document; none for a query without words and filters.
    [[nodiscard]] QList<SettingHit> hits(const SettingQuery &query);

private:
    struct Entry
    {
        SettingTexts texts;
        std::array<QString, 4> folded; ///< by SettingField
    };
    struct Known
    {
        Column column; ///< without its settings
        QList<Entry> entries;
        QHash<QByteArray, qsizetype> byName;
    };
    /// A column and an entry in it.
    using Candidate = std::pair<qsizetype, qsizetype>;

    [[nodiscard]] static Known known(const Column &column);
    [[nodiscard]] const Known *columnOf(const SettingPlace &place) const;
    [[nodiscard]] QList<Candidate> all() const;

    QList<Known> m_columns;
    SearchWords m_lastWords;
    std::optional<QList<Candidate>> m_lastFound; ///< by words alone; nothing once the index has changed
};

} // namespace orv
