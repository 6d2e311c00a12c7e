#include "ValueDifferences.h"

#include "NamedLists.h"

#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QJsonDocument>

#include <algorithm>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

using Place = DifferenceList::Place;

/// Each level compares what lies below it as a whole first; the bound keeps the sum linear in the size.
constexpr int kDeepest = 16;

constexpr QLatin1String kSampleNameMember("SampleName");

bool isTable(const QJsonValue &value)
{
    return value.isObject() && value[DATA].isArray() && value[CHILDREN].isArray();
}

template<typename Predicate>
bool allOf(const QJsonArray &array, Predicate predicate)
{
    return std::all_of(array.begin(), array.end(), predicate);
}

/// Names of the elements of a list of named objects, such as samples; none for any other list.
std::optional<QStringList> elementNames(const QJsonArray &array)
{
    QStringList names;
    for (const auto element : array) {
        const QJsonObject object = element.toObject();
        const QJsonValue name =
            object.contains(kSampleNameMember) ? object.value(kSampleNameMember) : object.value(NAME_KEY);
        if (!name.isString())
            return {};
        names.append(name.toString());
    }
    return names;
}

QStringList headerOf(const QJsonArray &data)
{
    QStringList names;
    for (const auto entry : data)
        names.append(entry.toString());
    return names;
}

QString numbered(const char *what, qsizetype number)
{
    return QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(number);
}

QJsonValue elementAt(const QJsonArray &array, std::optional<qsizetype> index)
{
    return index && *index < array.size() ? array.at(*index) : QJsonValue(QJsonValue::Undefined);
}

QJsonObject without(const QJsonValue &value, const QString &key)
{
    QJsonObject object = value.toObject();
    object.remove(key);
    return object;
}

class ValueComparison
{
public:
    explicit ValueComparison(DifferenceList *differences)
        : m_differences(differences)
    {}

    QJsonValue compare(const QJsonValue &left, const QJsonValue &right, const Place &place, int depth)
    {
        if (m_differences->isCancelled() || left == right)
            return left;
        const qsizetype before = m_differences->size();
        QJsonValue merged = left;
        if (depth < kDeepest)
            merged = compareParts(left, right, place, depth + 1);
        // Whatever the parts hide, such as the spelling of a number, a difference is never passed over.
        if (m_differences->size() == before)
            return m_differences->add(place, left, right) ? right : left;
        return merged;
    }

private:
    using Group = qsizetype;

    QJsonValue compareParts(const QJsonValue &left, const QJsonValue &right, const Place &place, int depth)
    {
        if (isTable(left) && isTable(right))
            return compareTables(left.toObject(), right.toObject(), place, depth);
        if (left.isArray() && right.isArray())
            return compareLists(left.toArray(), right.toArray(), place, depth);
        if (!left.isObject() || !right.isObject())
            return left;
        const auto find = [&] { return compareMembers(left.toObject(), right.toObject(), place, depth); };
        // Half a table is read as something else.
        return isTable(left) == isTable(right) ? find() : oneOf(left, right, find);
    }

    /// What can't be mixed.
    template<typename Find>
    QJsonValue oneOf(const QJsonValue &left, const QJsonValue &right, Find find)
    {
        return m_differences->together(find) ? right : left;
    }

    QJsonObject compareMembers(const QJsonObject &left, const QJsonObject &right, const Place &place,
                               int depth)
    {
        return mergedMembers(left, left, right,
                             [&](const QString &key, const QJsonValue &l, const QJsonValue &r) {
                                 return compare(l, r, place.below(key), depth);
                             });
    }

    QJsonValue compareLists(const QJsonArray &left, const QJsonArray &right, const Place &place, int depth)
    {
        const auto leftNames = elementNames(left);
        const auto rightNames = elementNames(right);
        if (leftNames && rightNames)
            return compareNamed(left, CountedNames(*leftNames), right, CountedNames(*rightNames), place,
                                depth);
        const auto isObject = [](const QJsonValue &element) { return element.isObject(); };
        if (!allOf(left, isObject) || !allOf(right, isObject))
            return left;
        const auto find = [&] {
            return compareNumbered(
                left, right,
                [&](const QJsonValue &l, const QJsonValue &r, qsizetype i) {
                    return compare(l, r, place.below(numbered("entry", i)), depth);
                },
                [&](qsizetype i) { return place.below(numbered("entry", i)); });
        };
        // A list whose elements got names is told by them.
        return leftNames.has_value() == rightNames.has_value() ? QJsonValue(find())
                                                               : oneOf(left, right, find);
    }

    QJsonArray compareNamed(const QJsonArray &left, const CountedNames &leftNames, const QJsonArray &right,
                            const CountedNames &rightNames, const Place &place, int depth)
    {
        return mergeNamed(
            left, leftNames, right, rightNames, m_differences->merges(), DifferenceList::kNoGroup,
            [&](const QString &label, qsizetype i, qsizetype j) {
                return compare(left.at(i), right.at(j), place.below(label), depth);
            },
            [&](const QString &label, auto i, auto j, Group *group) {
                return m_differences->add(place.below(label), elementAt(left, i), elementAt(right, j), group);
            },
            [&] { return m_differences->addOrder(place, QStringLiteral("order"), leftNames, rightNames); });
    }

    /// What one list has beyond the other can only be had together: elements are told by their numbers.
    template<typename Compare, typename PlaceOf>
    QJsonArray compareNumbered(const QJsonArray &left, const QJsonArray &right, Compare compareBoth,
                               PlaceOf placeOf)
    {
        QJsonArray merged;
        Group group = DifferenceList::kNoGroup;
        for (qsizetype i = 0; i < std::max(left.size(), right.size()); ++i) {
            const QJsonValue l = elementAt(left, i);
            const QJsonValue r = elementAt(right, i);
            const QJsonValue element = l.isUndefined() || r.isUndefined()
                                           ? (m_differences->add(placeOf(i), l, r, &group) ? r : l)
                                       : l == r ? l
                                                : compareBoth(l, r, i);
            if (m_differences->merges() && !element.isUndefined())
                merged.append(element);
        }
        return merged;
    }

    QJsonValue compareTables(const QJsonObject &left, const QJsonObject &right, const Place &place, int depth)
    {
        const QJsonArray leftRows = left.value(CHILDREN).toArray();
        const QJsonArray rightRows = right.value(CHILDREN).toArray();
        const bool isAlike =
            left.value(DATA) == right.value(DATA) && hasTables(leftRows) == hasTables(rightRows);
        const auto find = [&] { return compareTableMembers(left, right, place, depth); };
        return isAlike ? QJsonValue(find()) : oneOf(left, right, find);
    }

    QJsonObject compareTableMembers(const QJsonObject &left, const QJsonObject &right, const Place &place,
                                    int depth)
    {
        QJsonObject merged = mergedMembers(
            left, left, right, [&](const QString &key, const QJsonValue &l, const QJsonValue &r) {
                return key == DATA || key == CHILDREN ? l : compare(l, r, place.below(key), depth);
            });
        const QJsonArray leftHeader = left.value(DATA).toArray();
        const QJsonArray rightHeader = right.value(DATA).toArray();
        const CountedNames l(headerOf(leftHeader));
        const CountedNames r(headerOf(rightHeader));
        if (leftHeader != rightHeader)
            compareHeaders(l, r, place);
        const QJsonArray leftRows = left.value(CHILDREN).toArray();
        const QJsonArray rightRows = right.value(CHILDREN).toArray();
        const bool holdsTables = hasTables(leftRows) || hasTables(rightRows);
        const QStringList columns = headerOf(leftHeader == rightHeader ? leftHeader : QJsonArray());
        const auto placeOf = [&](qsizetype i) {
            const QString name = holdsTables ? leftHeader.at(i).toString() : QString();
            if (!holdsTables)
                return place.tableRow(numbered("row", i), columns);
            return place.below(name.isEmpty() ? numbered("table", i) : name);
        };
        const auto compareBoth = [&](const QJsonValue &leftRow, const QJsonValue &rightRow, qsizetype i) {
            return holdsTables ? compare(leftRow, rightRow, placeOf(i), depth)
                               : compareRows(leftRow, rightRow, l, r, placeOf(i));
        };
        const QJsonArray rows = compareNumbered(leftRows, rightRows, compareBoth, placeOf);
        if (m_differences->merges())
            merged.insert(CHILDREN, rows);
        return merged;
    }

    /// Some tables hold tables, one for each name of the header.
    static bool hasTables(const QJsonArray &rows)
    {
        return std::any_of(rows.begin(), rows.end(),
                           [](const QJsonValue &row) { return !row[CHILDREN].toArray().isEmpty(); });
    }

    void compareHeaders(const CountedNames &left, const CountedNames &right, const Place &place)
    {
        const Place header = place.below(QStringLiteral("columns"));
        matchNames(left, right, [&](const QString &label, auto i, auto j) {
            if (i && !j)
                m_differences->add(header.below(label), label, QJsonValue::Undefined);
            else if (j && !i)
                m_differences->add(header.below(label), QJsonValue::Undefined, label);
        });
        m_differences->addOrder(place, QStringLiteral("order of columns"), left, right);
    }

    QJsonValue compareRows(const QJsonValue &left, const QJsonValue &right, const CountedNames &leftHeader,
                           const CountedNames &rightHeader, const Place &place)
    {
        if (m_differences->isCancelled())
            return left;
        if (!isTable(left) || !isTable(right))
            return m_differences->add(place, left, right) ? right : left;
        const qsizetype before = m_differences->size();
        const bool isAlike = left[DATA].toArray().size() == right[DATA].toArray().size() &&
                             without(left, DATA) == without(right, DATA);
        const auto find = [&] { return compareEntries(left, right, leftHeader, rightHeader, place); };
        QJsonValue merged = isAlike ? QJsonValue(find()) : oneOf(left, right, find);
        if (m_differences->size() == before)
            return m_differences->add(place, left, right) ? right : left;
        return merged;
    }

    QJsonObject compareEntries(const QJsonValue &left, const QJsonValue &right,
                               const CountedNames &leftHeader, const CountedNames &rightHeader,
                               const Place &place)
    {
        const QJsonArray l = left[DATA].toArray();
        const QJsonArray r = right[DATA].toArray();
        QJsonArray merged = l;
        matchNames(leftHeader, rightHeader, [&](const QString &label, auto i, auto j) {
            if (addUnlessEqual(elementAt(l, i), elementAt(r, j), place.below(label)) && i && j)
                merged.replace(*i, r.at(*j));
        });
        compareExcess(l, r, leftHeader.keys().size(), rightHeader.keys().size(), place, &merged);
        QJsonObject row = left.toObject();
        row.insert(DATA, merged);
        return row;
    }

    /// A row may be longer than the header.
    void compareExcess(const QJsonArray &left, const QJsonArray &right, qsizetype leftWidth,
                       qsizetype rightWidth, const Place &place, QJsonArray *merged)
    {
        const qsizetype count = std::max(left.size() - leftWidth, right.size() - rightWidth);
        for (qsizetype i = 0; i < count; ++i) {
            const bool isChosen =
                addUnlessEqual(elementAt(left, leftWidth + i), elementAt(right, rightWidth + i),
                               place.below(numbered("entry behind the last column", i)));
            if (isChosen)
                merged->replace(leftWidth + i, right.at(rightWidth + i));
        }
    }

    bool addUnlessEqual(const QJsonValue &left, const QJsonValue &right, const Place &place)
    {
        return left != right && m_differences->add(place, left, right);
    }

    DifferenceList *m_differences;
};

/// The object that a metadata text stands for.
std::optional<QJsonObject> parsed(const QJsonValue &value)
{
    const QJsonDocument document = QJsonDocument::fromJson(value.toString().toUtf8());
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

} // namespace

QJsonValue compareValues(const QJsonValue &left, const QJsonValue &right, const DifferenceList::Place &place,
                         DifferenceList *differences)
{
    return ValueComparison(differences).compare(left, right, place, 0);
}

QJsonValue compareMetadata(const QJsonValue &left, const QJsonValue &right,
                           const DifferenceList::Place &place, DifferenceList *differences)
{
    const std::optional<QJsonObject> leftObject = parsed(left);
    const std::optional<QJsonObject> rightObject = parsed(right);
    const bool canBeTold = leftObject && rightObject && *leftObject != *rightObject;
    if (!canBeTold)
        return compareValues(left, right, place, differences);
    const QJsonObject merged = compareValues(*leftObject, *rightObject, place, differences).toObject();
    if (!differences->merges() || merged == *leftObject)
        return left;
    // The text of either side, spelt as it is there, where it says the same.
    return merged == *rightObject ? right
                                  : QString::fromUtf8(QJsonDocument(merged).toJson(QJsonDocument::Compact));
}

} // namespace orv
