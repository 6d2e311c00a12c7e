#include "orv/propertyeditor/workflow/WorkflowDifferences.h"

#include "DocumentGrid.h"
#include "NamedLists.h"
#include "ValueDifferences.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <algorithm>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

using Place = DifferenceList::Place;

QJsonValue elementAt(const QJsonArray &array, std::optional<qsizetype> index)
{
    return index && *index < array.size() ? array.at(*index) : QJsonValue(QJsonValue::Undefined);
}

/// The current name of what an entry of a cell means; the name that it has if that is no property.
QStringList settingNames(const QJsonArray &entries, const QString &cellType)
{
    const BaseItemType type = PropertyEditor::BaseItem::typeNameMap().key(cellType, BaseItemType::Unknown);
    QStringList names;
    names.reserve(entries.size());
    for (const auto element : entries) {
        const QJsonObject entry = element.toObject();
        const PropertyId id = PropertyEditorJsonUtils::findPropertyBackCompat(entry, type);
        names.append(id == PropertyId::NoProperty ? entry.value(NAME_KEY).toString()
                                                  : PropertiesNames::internalNameForType(id));
    }
    return names;
}

QStringList namesOfTabs(const QJsonArray &tabs)
{
    QStringList names;
    for (const auto tab : tabs)
        names.append(tab[NAME_KEY].toString());
    return names;
}

/// Compares documents from which the stamps may have been taken away. What becomes of them is made of the
/// original of the left one.
class DocumentComparison
{
public:
    explicit DocumentComparison(const QSet<qsizetype> *chosen, const std::atomic_bool *isCancelled)
        : m_differences(chosen, isCancelled)
    {}

    [[nodiscard]] QList<WorkflowDifference> take() { return m_differences.take(); }

    QJsonObject compare(const QJsonObject &left, const QJsonObject &right, const QJsonObject &original)
    {
        if (left == right)
            return original;
        QJsonObject merged = mergedMembers(
            original, left, right, [&](const QString &key, const QJsonValue &l, const QJsonValue &r) {
                const Place place = Place().below(key);
                if (key == TABS_KEY && l.isArray() && r.isArray())
                    return QJsonValue(compareTabs(l.toArray(), r.toArray(), original.value(key).toArray()));
                if (key == META_IN_JSON_KEY)
                    return compareMetadata(l, r, place, &m_differences);
                return compareValues(l, r, place, &m_differences);
            });
        return addUnlessFound(0, {}, left, right) ? right : merged;
    }

private:
    using Group = qsizetype;

    QJsonArray compareTabs(const QJsonArray &left, const QJsonArray &right, const QJsonArray &original)
    {
        if (left == right)
            return original;
        const CountedNames leftNames(namesOfTabs(left));
        const CountedNames rightNames(namesOfTabs(right));
        return mergeNamed(
            original, leftNames, right, rightNames, m_differences.merges(), DifferenceList::kNoGroup,
            [&](const QString &label, qsizetype i, qsizetype j) {
                return compareTab(left.at(i), right.at(j), Place().inTab(label), original.at(i));
            },
            [&](const QString &label, auto i, auto j, Group *group) {
                return m_differences.add(Place().inTab(label), elementAt(left, i), elementAt(right, j),
                                         group);
            },
            [&] {
                return m_differences.addOrder({}, QStringLiteral("order of tabs"), leftNames, rightNames);
            });
    }

    QJsonValue compareTab(const QJsonValue &left, const QJsonValue &right, const Place &place,
                          const QJsonValue &original)
    {
        if (m_differences.isCancelled() || left == right)
            return original;
        const qsizetype before = m_differences.size();
        QJsonObject merged = original.toObject();
        if (hasGrid(left) && hasGrid(right)) {
            merged = mergedMembers(merged, left.toObject(), right.toObject(),
                                   [&](const QString &key, const QJsonValue &l, const QJsonValue &r) {
                                       return key == COLUMNS_KEY || key == CELLS_KEY
                                                  ? l
                                                  : compareValues(l, r, place.below(key), &m_differences);
                                   });
            compareGrids(left.toObject(), right.toObject(), place, &merged);
        }
        if (addUnlessFound(before, place, left, right))
            return right;
        return merged.isEmpty() ? original : merged;
    }

    /// Cells without a column to lie in are malformed.
    static bool hasGrid(const QJsonValue &tab)
    {
        return tab[CELLS_KEY].isArray() && !tab[COLUMNS_KEY].toArray().isEmpty();
    }

    /// \a merged is the original of the left tab.
    void compareGrids(const QJsonObject &left, const QJsonObject &right, const Place &place,
                      QJsonObject *merged)
    {
        const auto find = [&] {
            return compareColumns(DocumentGrid(left), DocumentGrid(right), place, DocumentGrid(*merged));
        };
        if (DocumentGrid::canBeMixed(left, right)) {
            const QJsonArray columns = find();
            if (m_differences.merges())
                putColumns(columns, merged);
        } else if (m_differences.together(find)) {
            merged->insert(COLUMNS_KEY, right.value(COLUMNS_KEY));
            merged->insert(CELLS_KEY, right.value(CELLS_KEY));
        }
    }

    /// Each column is an array: its name, and its cells.
    static void putColumns(const QJsonArray &columns, QJsonObject *tab)
    {
        QJsonArray names;
        QJsonArray cells;
        for (const auto column : columns)
            names.append(column.toArray().first());
        const qsizetype height = columns.isEmpty() ? 1 : columns.first().toArray().size();
        for (qsizetype row = 1; row < height; ++row) {
            for (const auto column : columns)
                cells.append(column.toArray().at(row));
        }
        tab->insert(COLUMNS_KEY, names);
        tab->insert(CELLS_KEY, cells);
    }

    static QJsonArray named(const DocumentGrid &grid)
    {
        QJsonArray columns;
        for (qsizetype i = 0; i < grid.columns.size(); ++i) {
            QJsonArray column = grid.column(i);
            column.prepend(grid.columns.at(i));
            columns.append(column);
        }
        return columns;
    }

    QJsonArray compareColumns(const DocumentGrid &left, const DocumentGrid &right, const Place &place,
                              const DocumentGrid &original)
    {
        const CountedNames leftNames(left.columns);
        const CountedNames rightNames(right.columns);
        const auto columnOf = [](const DocumentGrid &grid, auto index) {
            return index ? QJsonValue(grid.column(index)) : QJsonValue(QJsonValue::Undefined);
        };
        return mergeNamed(
            named(original), leftNames, named(right), rightNames, m_differences.merges(),
            DifferenceList::kNoGroup,
            [&](const QString &label, qsizetype i, qsizetype j) {
                QJsonArray column =
                    compareColumn(left.column(i), right.column(j), place.inColumn(label), original.column(i));
                column.prepend(left.columns.at(i));
                return column;
            },
            [&](const QString &label, auto i, auto j, Group *group) {
                return m_differences.add(place.inColumn(label), columnOf(left, i), columnOf(right, j), group);
            },
            [&] {
                return m_differences.addOrder(place, QStringLiteral("order of columns"), leftNames,
                                              rightNames);
            });
    }

    QJsonArray compareColumn(const QJsonArray &left, const QJsonArray &right, const Place &place,
                             const QJsonArray &original)
    {
        QJsonArray merged;
        for (qsizetype row = 0; row < std::max(left.size(), right.size()); ++row) {
            const QJsonValue cell = compareCell(elementAt(left, row), elementAt(right, row), place.inRow(row),
                                                elementAt(original, row));
            if (!cell.isUndefined())
                merged.append(cell);
        }
        return merged;
    }

    QJsonValue compareCell(const QJsonValue &left, const QJsonValue &right, const Place &place,
                           const QJsonValue &original)
    {
        if (m_differences.isCancelled() || left == right)
            return original;
        if (!left.isObject() || !right.isObject())
            return m_differences.add(place, left, right) ? right : original;
        const qsizetype before = m_differences.size();
        const auto find = [&] {
            return compareMembers(left.toObject(), right.toObject(), place, original.toObject());
        };
        QJsonValue merged = original;
        // Settings of one type of cell mean nothing to another.
        if (left[TYPE_KEY].toString() == right[TYPE_KEY].toString())
            merged = find();
        else if (m_differences.together(find))
            merged = right;
        return addUnlessFound(before, place, left, right) ? right : merged;
    }

    QJsonObject compareMembers(const QJsonObject &left, const QJsonObject &right, const Place &place,
                               const QJsonObject &original)
    {
        const QString leftType = left.value(TYPE_KEY).toString();
        const QString rightType = right.value(TYPE_KEY).toString();
        return mergedMembers(
            original, left, right, [&](const QString &key, const QJsonValue &l, const QJsonValue &r) {
                if (key == PROPERTIES_KEY && l.isArray() && r.isArray())
                    return QJsonValue(compareSettings(l.toArray(), leftType, r.toArray(), rightType, place));
                if (key == META_IN_JSON_KEY)
                    return compareMetadata(l, r, place.below(key), &m_differences);
                return compareValues(l, r, place.below(key), &m_differences);
            });
    }

    QJsonArray compareSettings(const QJsonArray &left, const QString &leftType, const QJsonArray &right,
                               const QString &rightType, const Place &place)
    {
        if (left == right)
            return left;
        const CountedNames leftNames(settingNames(left, leftType));
        const CountedNames rightNames(settingNames(right, rightType));
        return mergeNamed(
            left, leftNames, right, rightNames, m_differences.merges(), DifferenceList::kNoGroup,
            [&](const QString &label, qsizetype i, qsizetype j) {
                return compareSetting(left.at(i), right.at(j), place.inSetting(label));
            },
            [&](const QString &label, auto i, auto j, Group *group) {
                return m_differences.add(place.inSetting(label), valueOrEntry(elementAt(left, i)),
                                         valueOrEntry(elementAt(right, j)), group);
            },
            [&] {
                return m_differences.addOrder(place, QStringLiteral("order of settings"), leftNames,
                                              rightNames);
            });
    }

    QJsonValue compareSetting(const QJsonValue &left, const QJsonValue &right, const Place &place)
    {
        if (m_differences.isCancelled() || left == right)
            return left;
        if (!left.isObject() || !right.isObject())
            return m_differences.add(place, valueOrEntry(left), valueOrEntry(right)) ? right : left;
        const auto find = [&] {
            return mergedMembers(left.toObject(), left.toObject(), right.toObject(),
                                 [&](const QString &key, const QJsonValue &l, const QJsonValue &r) {
                                     return key == VALUE_KEY
                                                ? compareValueOfSetting(l, r, place)
                                                : compareValues(l, r, place.below(key), &m_differences);
                                 });
        };
        // A former name goes with a former form of the value.
        if (left[NAME_KEY] == right[NAME_KEY])
            return find();
        return m_differences.together(find) ? right : left;
    }

    QJsonValue compareValueOfSetting(const QJsonValue &left, const QJsonValue &right, const Place &place)
    {
        const auto find = [&] { return compareValues(left, right, place, &m_differences); };
        using WorkflowDifferences::isOneThing;
        if (!isOneThing(left) || !isOneThing(right))
            return find();
        return m_differences.together(find) ? right : left;
    }

    /// Of a setting that one side lacks the value tells enough.
    static QJsonValue valueOrEntry(const QJsonValue &entry)
    {
        const QJsonValue value = entry[VALUE_KEY];
        return value.isUndefined() ? entry : value;
    }

    /// Documents that are told apart have a difference in the list, whatever their parts hide. Whether the
    /// right side is wanted then.
    bool addUnlessFound(qsizetype before, const Place &place, const QJsonValue &left, const QJsonValue &right)
    {
        return m_differences.size() == before && m_differences.add(place, left, right);
    }

    DifferenceList m_differences;
};

QJsonObject withoutUncompared(const QJsonObject &document, bool strict)
{
    return strict ? document : PropertyEditorJsonUtils::withoutStamps(document);
}

/// What belongs together with what was chosen is wanted, too.
QSet<qsizetype> closed(const QSet<qsizetype> &chosen, const QList<WorkflowDifference> &differences)
{
    QSet<qsizetype> groups;
    for (const qsizetype number : chosen)
        groups.insert(number < 0 || number >= differences.size() ? WorkflowDifference::kAlone
                                                                 : differences.at(number).together);
    groups.remove(WorkflowDifference::kAlone);
    QSet<qsizetype> wanted = chosen;
    for (qsizetype i = 0; i < differences.size(); ++i) {
        if (groups.contains(differences.at(i).together))
            wanted.insert(i);
    }
    return wanted;
}

} // namespace

QList<WorkflowDifference> WorkflowDifferences::between(const QJsonObject &left, const QJsonObject &right,
                                                       bool strict, const std::atomic_bool *isCancelled)
{
    DocumentComparison comparison(nullptr, isCancelled);
    (void)comparison.compare(withoutUncompared(left, strict), withoutUncompared(right, strict), left);
    return comparison.take();
}

QJsonObject WorkflowDifferences::takenOver(const QJsonObject &left, const QJsonObject &right,
                                           const QSet<qsizetype> &chosen, bool strict,
                                           const std::atomic_bool *isCancelled)
{
    if (chosen.isEmpty())
        return left;
    const QSet<qsizetype> wanted = closed(chosen, between(left, right, strict, isCancelled));
    DocumentComparison comparison(&wanted, isCancelled);
    return comparison.compare(withoutUncompared(left, strict), withoutUncompared(right, strict), left);
}

bool WorkflowDifferences::isOneThing(const QJsonValue &value)
{
    const QJsonObject members = value.toObject();
    return value.isObject() && std::none_of(members.begin(), members.end(), [](const QJsonValue &member) {
               return member.isObject() || member.isArray();
           });
}

QStringList WorkflowDifferences::labels(const QStringList &names)
{
    const CountedNames counted(names);
    QStringList labels;
    for (const CountedNames::Key &key : counted.keys())
        labels.append(CountedNames::label(key));
    return labels;
}

} // namespace orv
