#include "ValueDifferences.h"

#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QJsonDocument>

#include <algorithm>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

using Place = DifferenceList::Place;

/// Each level compares what lies below it as a whole first; the bound keeps the sum linear in the size.
constexpr int kDeepest = 16;

/// Of a name in a path: places repeat the names above them.
constexpr qsizetype kLongestName = 200;

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

class ValueComparison
{
public:
    explicit ValueComparison(DifferenceList *differences)
        : m_differences(differences)
    {}

    void compare(const QJsonValue &left, const QJsonValue &right, const Place &place, int depth)
    {
        if (left == right)
            return;
        const qsizetype before = m_differences->size();
        if (depth < kDeepest)
            compareParts(left, right, place, depth + 1);
        // Whatever the parts hide, such as the spelling of a number, a difference is never passed over.
        if (m_differences->size() == before)
            m_differences->add(place, left, right);
    }

private:
    void compareParts(const QJsonValue &left, const QJsonValue &right, const Place &place, int depth)
    {
        if (isTable(left) && isTable(right))
            compareTables(left.toObject(), right.toObject(), place, depth);
        else if (left.isObject() && right.isObject())
            compareMembers(left.toObject(), right.toObject(), place, depth);
        else if (left.isArray() && right.isArray())
            compareLists(left.toArray(), right.toArray(), place, depth);
    }

    void compareMembers(const QJsonObject &left, const QJsonObject &right, const Place &place, int depth)
    {
        forEachMember(left, right, [&](const QString &key, const QJsonValue &l, const QJsonValue &r) {
            compare(l, r, place.below(key), depth);
        });
    }

    void compareLists(const QJsonArray &left, const QJsonArray &right, const Place &place, int depth)
    {
        const auto leftNames = elementNames(left);
        const auto rightNames = elementNames(right);
        if (leftNames && rightNames) {
            const CountedNames l(*leftNames);
            const CountedNames r(*rightNames);
            matchNames(l, r, [&](const QString &label, auto i, auto j) {
                compare(elementAt(left, i), elementAt(right, j), place.below(label), depth);
            });
            m_differences->addOrder(place, QStringLiteral("order"), l, r);
            return;
        }
        const auto isObject = [](const QJsonValue &element) { return element.isObject(); };
        if (!allOf(left, isObject) || !allOf(right, isObject))
            return;
        for (qsizetype i = 0; i < std::max(left.size(), right.size()); ++i)
            compare(elementAt(left, i), elementAt(right, i), place.below(numbered("entry", i)), depth);
    }

    void compareTables(const QJsonObject &left, const QJsonObject &right, const Place &place, int depth)
    {
        forEachMember(left, right, [&](const QString &key, const QJsonValue &l, const QJsonValue &r) {
            if (key != DATA && key != CHILDREN)
                compare(l, r, place.below(key), depth);
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
        for (qsizetype i = 0; i < std::max(leftRows.size(), rightRows.size()); ++i) {
            const QJsonValue leftRow = elementAt(leftRows, i);
            const QJsonValue rightRow = elementAt(rightRows, i);
            if (leftRow == rightRow)
                continue;
            if (holdsTables) {
                const QString name = leftHeader.at(i).toString();
                compare(leftRow, rightRow, place.below(name.isEmpty() ? numbered("table", i) : name), depth);
            } else {
                compareRows(leftRow, rightRow, l, r, place.below(numbered("row", i)));
            }
        }
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

    void compareRows(const QJsonValue &left, const QJsonValue &right, const CountedNames &leftHeader,
                     const CountedNames &rightHeader, const Place &place)
    {
        const qsizetype before = m_differences->size();
        if (isTable(left) && isTable(right)) {
            const QJsonArray l = left[DATA].toArray();
            const QJsonArray r = right[DATA].toArray();
            matchNames(leftHeader, rightHeader, [&](const QString &label, auto i, auto j) {
                addUnlessEqual(elementAt(l, i), elementAt(r, j), place.below(label));
            });
            compareExcess(l, r, leftHeader.keys().size(), rightHeader.keys().size(), place);
        }
        if (m_differences->size() == before)
            m_differences->add(place, left, right);
    }

    /// A row may be longer than the header.
    void compareExcess(const QJsonArray &left, const QJsonArray &right, qsizetype leftWidth,
                       qsizetype rightWidth, const Place &place)
    {
        const qsizetype count = std::max(left.size() - leftWidth, right.size() - rightWidth);
        for (qsizetype i = 0; i < count; ++i) {
            addUnlessEqual(elementAt(left, leftWidth + i), elementAt(right, rightWidth + i),
                           place.below(numbered("entry behind the last column", i)));
        }
    }

    void addUnlessEqual(const QJsonValue &left, const QJsonValue &right, const Place &place)
    {
        if (left != right)
            m_differences->add(place, left, right);
    }

    static QJsonValue elementAt(const QJsonArray &array, std::optional<qsizetype> index)
    {
        return index && *index < array.size() ? array.at(*index) : QJsonValue(QJsonValue::Undefined);
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

Place Place::below(const QString &name) const
{
    Place place = *this;
    if (!path.isEmpty())
        place.path += QLatin1String(" / ");
    place.path += name.size() <= kLongestName ? name : name.left(kLongestName) + QLatin1String("...");
    return place;
}

void DifferenceList::add(const Place &place, const QJsonValue &left, const QJsonValue &right)
{
    const Kind kind = left.isUndefined() ? Kind::Added : right.isUndefined() ? Kind::Removed : Kind::Changed;
    m_differences.append({kind, place.path, place.tab, place.column, place.row, place.property, left, right});
}

void DifferenceList::addOrder(const Place &place, const QString &what, const CountedNames &left,
                              const CountedNames &right)
{
    const QJsonArray leftOrder = left.sharedWith(right);
    const QJsonArray rightOrder = right.sharedWith(left);
    if (leftOrder != rightOrder)
        add(place.below(what), leftOrder, rightOrder);
}

void compareValues(const QJsonValue &left, const QJsonValue &right, const Place &place,
                   DifferenceList *differences)
{
    ValueComparison(differences).compare(left, right, place, 0);
}

void compareMetadata(const QJsonValue &left, const QJsonValue &right, const Place &place,
                     DifferenceList *differences)
{
    const std::optional<QJsonObject> leftObject = parsed(left);
    const std::optional<QJsonObject> rightObject = parsed(right);
    const bool canBeTold = leftObject && rightObject && *leftObject != *rightObject;
    if (canBeTold)
        compareValues(*leftObject, *rightObject, place, differences);
    else
        compareValues(left, right, place, differences);
}

} // namespace orv
