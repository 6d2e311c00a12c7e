#include "orv/propertyeditor/workflow/WorkflowDifferences.h"

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

/// The cells of a tab by column and row.
struct Grid
{
    QStringList columns;
    QJsonArray cells;

    explicit Grid(const QJsonObject &tab)
        : columns(PropertyEditorJsonUtils::jsonArrayToStringList(tab.value(COLUMNS_KEY).toArray()))
        , cells(tab.value(CELLS_KEY).toArray())
    {}

    [[nodiscard]] QJsonArray column(std::optional<qsizetype> index) const
    {
        QJsonArray column;
        for (qsizetype i = index.value_or(cells.size()); i < cells.size(); i += columns.size())
            column.append(cells.at(i));
        return column;
    }
};

class DocumentComparison
{
public:
    QList<WorkflowDifference> compare(const QJsonObject &left, const QJsonObject &right)
    {
        if (left == right)
            return {};
        forEachMember(left, right, [this](const QString &key, const QJsonValue &l, const QJsonValue &r) {
            const Place place = Place().below(key);
            if (key == TABS_KEY && l.isArray() && r.isArray())
                compareTabs(l.toArray(), r.toArray());
            else if (key == META_IN_JSON_KEY)
                compareMetadata(l, r, place, &m_differences);
            else
                compareValues(l, r, place, &m_differences);
        });
        addUnlessFound(0, {}, left, right);
        return m_differences.take();
    }

private:
    void compareTabs(const QJsonArray &left, const QJsonArray &right)
    {
        if (left == right)
            return;
        const qsizetype before = m_differences.size();
        const CountedNames leftNames(namesOf(left));
        const CountedNames rightNames(namesOf(right));
        matchNames(leftNames, rightNames, [&](const QString &label, auto i, auto j) {
            Place place;
            place.tab = label;
            compareTab(elementAt(left, i), elementAt(right, j), place.below(label));
        });
        m_differences.addOrder({}, QStringLiteral("order of tabs"), leftNames, rightNames);
        addUnlessFound(before, Place().below(TABS_KEY), left, right);
    }

    static QStringList namesOf(const QJsonArray &tabs)
    {
        QStringList names;
        for (const auto tab : tabs)
            names.append(tab[NAME_KEY].toString());
        return names;
    }

    void compareTab(const QJsonValue &left, const QJsonValue &right, const Place &place)
    {
        if (left == right)
            return;
        const qsizetype before = m_differences.size();
        if (hasGrid(left) && hasGrid(right)) {
            forEachMember(left.toObject(), right.toObject(),
                          [&](const QString &key, const QJsonValue &l, const QJsonValue &r) {
                              if (key != COLUMNS_KEY && key != CELLS_KEY)
                                  compareValues(l, r, place.below(key), &m_differences);
                          });
            compareGrids(Grid(left.toObject()), Grid(right.toObject()), place);
        }
        addUnlessFound(before, place, left, right);
    }

    /// Cells without a column to lie in are malformed.
    static bool hasGrid(const QJsonValue &tab)
    {
        return tab[CELLS_KEY].isArray() && !tab[COLUMNS_KEY].toArray().isEmpty();
    }

    void compareGrids(const Grid &left, const Grid &right, const Place &place)
    {
        const CountedNames leftNames(left.columns);
        const CountedNames rightNames(right.columns);
        matchNames(leftNames, rightNames, [&](const QString &label, auto i, auto j) {
            Place columnPlace = place.below(label);
            columnPlace.column = label;
            const QJsonArray l = left.column(i);
            const QJsonArray r = right.column(j);
            if (!j)
                m_differences.add(columnPlace, l, QJsonValue::Undefined);
            else if (!i)
                m_differences.add(columnPlace, QJsonValue::Undefined, r);
            else
                compareColumn(l, r, columnPlace);
        });
        m_differences.addOrder(place, QStringLiteral("order of columns"), leftNames, rightNames);
    }

    void compareColumn(const QJsonArray &left, const QJsonArray &right, const Place &place)
    {
        for (qsizetype row = 0; row < std::max(left.size(), right.size()); ++row) {
            Place cellPlace = place.below(QStringLiteral("row %1").arg(row));
            cellPlace.row = row;
            compareCell(elementAt(left, row), elementAt(right, row), cellPlace);
        }
    }

    void compareCell(const QJsonValue &left, const QJsonValue &right, const Place &place)
    {
        if (left == right)
            return;
        if (!left.isObject() || !right.isObject()) {
            m_differences.add(place, left, right);
            return;
        }
        const qsizetype before = m_differences.size();
        const QString leftType = left[TYPE_KEY].toString();
        const QString rightType = right[TYPE_KEY].toString();
        forEachMember(left.toObject(), right.toObject(),
                      [&](const QString &key, const QJsonValue &l, const QJsonValue &r) {
                          if (key == PROPERTIES_KEY && l.isArray() && r.isArray())
                              compareSettings(l.toArray(), leftType, r.toArray(), rightType, place);
                          else if (key == META_IN_JSON_KEY)
                              compareMetadata(l, r, place.below(key), &m_differences);
                          else
                              compareValues(l, r, place.below(key), &m_differences);
                      });
        addUnlessFound(before, place, left, right);
    }

    void compareSettings(const QJsonArray &left, const QString &leftType, const QJsonArray &right,
                         const QString &rightType, const Place &place)
    {
        if (left == right)
            return;
        const CountedNames leftNames(settingNames(left, leftType));
        const CountedNames rightNames(settingNames(right, rightType));
        matchNames(leftNames, rightNames, [&](const QString &label, auto i, auto j) {
            Place settingPlace = place.below(label);
            settingPlace.property = label;
            compareSetting(elementAt(left, i), elementAt(right, j), settingPlace);
        });
        m_differences.addOrder(place, QStringLiteral("order of settings"), leftNames, rightNames);
    }

    void compareSetting(const QJsonValue &left, const QJsonValue &right, const Place &place)
    {
        if (left == right)
            return;
        if (!left.isObject() || !right.isObject()) {
            m_differences.add(place, valueOrEntry(left), valueOrEntry(right));
            return;
        }
        forEachMember(left.toObject(), right.toObject(),
                      [&](const QString &key, const QJsonValue &l, const QJsonValue &r) {
                          compareValues(l, r, key == VALUE_KEY ? place : place.below(key), &m_differences);
                      });
    }

    /// Of a setting that one side lacks the value tells enough.
    static QJsonValue valueOrEntry(const QJsonValue &entry)
    {
        const QJsonValue value = entry[VALUE_KEY];
        return value.isUndefined() ? entry : value;
    }

    /// Documents that are told apart have a difference in the list, whatever their parts hide.
    void addUnlessFound(qsizetype before, const Place &place, const QJsonValue &left, const QJsonValue &right)
    {
        if (m_differences.size() == before)
            m_differences.add(place, left, right);
    }

    DifferenceList m_differences;
};

} // namespace

QList<WorkflowDifference> WorkflowDifferences::between(const QJsonObject &left, const QJsonObject &right,
                                                       bool strict)
{
    if (strict)
        return DocumentComparison().compare(left, right);
    return DocumentComparison().compare(PropertyEditorJsonUtils::withoutStamps(left),
                                        PropertyEditorJsonUtils::withoutStamps(right));
}

} // namespace orv
