#include "ComparedDocuments.h"

#include "state/OwnProperties.h"
#include "state/WrittenForm.h"

#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

using Kind = ComparisonNode::Kind;

constexpr QLatin1String kOwnPrefix("workflow / ");
constexpr QChar kKeySeparator(0x1f);

/// Cells that are as they were in \a before stay what they are.
DocumentState stateOf(const QJsonObject &document, const QJsonObject &metadata, const WrittenForm &before)
{
    DocumentState state;
    for (const auto tab : document.value(TABS_KEY).toArray()) {
        DocumentState::Tab made{tab[NAME_KEY].toString(), {}, {}};
        for (const auto name : tab[COLUMNS_KEY].toArray())
            made.columns.append(name.toString());
        for (const auto cell : tab[CELLS_KEY].toArray()) {
            const QByteArray text = QJsonDocument(cell.toObject()).toJson(QJsonDocument::Compact);
            made.cells.append(before.cells.value(text, text));
        }
        state.tabs.append(made);
    }
    state.metadata = metadata;
    return state;
}

/// Differences by keys: their paths, repeated ones with a number.
class DifferenceKeys
{
public:
    QString of(const WorkflowDifference &difference)
    {
        const int count = m_counts[difference.path]++;
        return count == 0 ? difference.path : difference.path + kKeySeparator + QString::number(count);
    }

private:
    QHash<QString, int> m_counts;
};

/// Tabs and columns of a document by the labels that differences have.
class PlacesOfLabels
{
public:
    explicit PlacesOfLabels(const DocumentState &state)
        : m_state(state)
    {
        QStringList titles;
        for (const DocumentState::Tab &tab : state.tabs)
            titles.append(tab.title);
        m_tabs = numbered(titles);
        for (const DocumentState::Tab &tab : state.tabs)
            m_columns.append(numbered(tab.columns));
    }

    [[nodiscard]] int tab(const QString &label) const { return m_tabs.value(label, -1); }
    [[nodiscard]] int column(int tab, const QString &label) const
    {
        return tab < 0 ? -1 : m_columns.at(tab).value(label, -1);
    }
    [[nodiscard]] QString cellType(int tab, int column)
    {
        return cell(tab, column).value(TYPE_KEY).toString();
    }
    /// Undefined for a setting that isn't there.
    [[nodiscard]] QJsonValue settingValue(const WorkflowDifference &difference)
    {
        const int ofTab = tab(difference.tab);
        for (const auto entry :
             cell(ofTab, column(ofTab, difference.column)).value(PROPERTIES_KEY).toArray()) {
            if (entry[NAME_KEY].toString() == difference.property)
                return entry[VALUE_KEY];
        }
        return QJsonValue::Undefined;
    }

private:
    static QHash<QString, int> numbered(const QStringList &names)
    {
        QHash<QString, int> numbers;
        const QStringList labels = WorkflowDifferences::labels(names);
        for (int i = 0; i < labels.size(); ++i)
            numbers.insert(labels.at(i), i);
        return numbers;
    }

    QJsonObject cell(int tab, int column)
    {
        if (tab < 0 || column < 0 || column >= m_state.tabs.at(tab).cells.size())
            return {};
        const auto known = m_cells.constFind({tab, column});
        if (known != m_cells.cend())
            return *known;
        const QByteArray &cell = m_state.tabs.at(tab).cells.at(column);
        return *m_cells.insert({tab, column}, QJsonDocument::fromJson(cell).object());
    }

    const DocumentState &m_state;
    QHash<QString, int> m_tabs;
    QList<QHash<QString, int>> m_columns;
    QHash<std::pair<int, int>, QJsonObject> m_cells;
};

/// Differences that are taken over at once.
struct ComparedUnit
{
    WorkflowDifference first;
    QString key; ///< of the first
    int more = 0;
};

QList<ComparedUnit> unitsOf(const QList<WorkflowDifference> &differences)
{
    QList<ComparedUnit> units;
    QHash<qsizetype, qsizetype> known;
    DifferenceKeys keys;
    for (const WorkflowDifference &difference : differences) {
        const QString key = keys.of(difference);
        const auto unit = known.constFind(difference.together);
        if (difference.together == WorkflowDifference::kAlone || unit == known.cend()) {
            if (difference.together != WorkflowDifference::kAlone)
                known.insert(difference.together, units.size());
            units.append({difference, key, 0});
            continue;
        }
        ComparedUnit &whole = units[*unit];
        ++whole.more;
        // What concerns several settings stands at their cell.
        if (whole.first.property != difference.property) {
            whole.first.property.clear();
            whole.first.below = whole.first.path.section(QLatin1String(" / "), -1);
        }
    }
    return units;
}

class ComparisonTreeBuilder
{
public:
    ComparisonTreeBuilder(const DocumentState &left, const DocumentState &right)
        : m_left(left)
        , m_right(right)
    {}

    void addOwnProperties(const QJsonObject &left, const QJsonObject &right)
    {
        for (const OwnProperty &property : OwnProperties::all()) {
            const QString was = property.read(left);
            const QString is = property.read(right);
            if (was == is)
                continue;
            ComparisonNode node;
            node.kind = Kind::OwnProperty;
            node.key = kOwnPrefix + QLatin1String(property.name);
            node.label = QLatin1String(property.name);
            node.left = was;
            node.right = is;
            append(group(0, Kind::Workflow, QStringLiteral("workflow"), {}), std::move(node));
            ++m_tree.count;
        }
    }

    void add(QList<ComparedUnit> units, const std::atomic_bool &isCancelled)
    {
        QHash<QString, int> ofSetting;
        for (ComparedUnit &unit : units) {
            if (isCancelled)
                return;
            tellWhole(&unit);
        }
        for (const ComparedUnit &unit : std::as_const(units))
            ++ofSetting[settingKey(unit.first)];
        for (const ComparedUnit &unit : std::as_const(units)) {
            noteSetting(unit.first);
            if (m_tree.nodes.size() >= ComparisonTree::kMostRows) {
                ++m_tree.notShown;
                continue;
            }
            ++m_tree.count;
            const bool isWhole = unit.first.below.isEmpty() && ofSetting.value(settingKey(unit.first)) == 1;
            add(unit, isWhole);
        }
    }

    [[nodiscard]] ComparisonTree take() { return std::move(m_tree); }

private:
    static QString settingKey(const WorkflowDifference &difference)
    {
        const QStringList names{difference.tab, difference.column,
                                QString::number(difference.row.value_or(-1)), difference.property};
        return names.join(kKeySeparator);
    }

    /// People read a number with its unit.
    void tellWhole(ComparedUnit *unit)
    {
        WorkflowDifference &first = unit->first;
        if (first.property.isEmpty() || first.below.isEmpty())
            return;
        const QJsonValue left = m_left.settingValue(first);
        const QJsonValue right = m_right.settingValue(first);
        const bool isMember = left.toObject().contains(first.below) || right.toObject().contains(first.below);
        if (!isMember || (left[first.below] != first.left && !first.left.isUndefined()) ||
            !WorkflowDifferences::isOneThing(left) || !WorkflowDifferences::isOneThing(right))
            return;
        first.below.clear();
        first.left = left;
        first.right = right;
        first.kind = WorkflowDifference::Kind::Changed;
        unit->more = 0;
    }

    void noteSetting(const WorkflowDifference &difference)
    {
        const int tab = m_left.tab(difference.tab);
        const int column = m_left.column(tab, difference.column);
        if (column >= 0 && !difference.property.isEmpty())
            m_tree.settings.insert({tab, column, difference.property.toUtf8()});
    }

    /// The rows above a difference, and its own.
    void add(const ComparedUnit &unit, bool isWhole)
    {
        const WorkflowDifference &difference = unit.first;
        ComparisonNode node;
        node.key = unit.key;
        node.more = unit.more;
        node.change = difference.kind;
        node.left = difference.left;
        node.right = difference.right;
        node.columns = difference.columns;
        int above = 0;
        Kind kind = Kind::Part;
        QString key = difference.tab;
        node.label = difference.below;
        const auto descend = [&](const QString &label, Kind level, bool isLast) {
            if (label.isEmpty())
                return;
            if (isLast && isWhole) {
                kind = level;
                node.label = label;
            } else {
                above = group(above, level, key, label, difference);
            }
        };
        descend(difference.tab, Kind::Tab, difference.column.isEmpty());
        key += kKeySeparator + difference.column;
        // A cell of a column alone is the column.
        descend(difference.column, Kind::Column, difference.property.isEmpty());
        key += kKeySeparator + difference.property;
        descend(difference.property, Kind::Setting, true);
        node.kind = kind;
        place(difference, &node);
        append(above, std::move(node));
    }

    void place(const WorkflowDifference &difference, ComparisonNode *node)
    {
        node->tab = m_left.tab(difference.tab);
        node->column = m_left.column(node->tab, difference.column);
        const int otherTab = m_right.tab(difference.tab);
        node->cellType = node->column >= 0
                             ? m_left.cellType(node->tab, node->column)
                             : m_right.cellType(otherTab, m_right.column(otherTab, difference.column));
    }

    int group(int above, Kind kind, const QString &key, const QString &label,
              const WorkflowDifference &difference = {})
    {
        const QString unique = QString::number(int(kind)) + kKeySeparator + key;
        if (const auto known = m_groups.constFind(unique); known != m_groups.cend())
            return *known;
        ComparisonNode node;
        node.kind = kind;
        node.key = unique;
        node.label = label;
        place(difference, &node);
        if (kind == Kind::Tab)
            node.column = -1;
        return *m_groups.insert(unique, append(above, std::move(node)));
    }

    int append(int above, ComparisonNode &&node)
    {
        const int number = int(m_tree.nodes.size());
        node.parent = above;
        node.row = int(m_tree.nodes.at(above).children.size());
        m_tree.nodes[above].children.append(number);
        m_tree.nodes.append(std::move(node));
        return number;
    }

    ComparisonTree m_tree;
    PlacesOfLabels m_left;
    PlacesOfLabels m_right;
    QHash<QString, int> m_groups;
};

} // namespace

ComparisonTree ComparedDocuments::compared(const DocumentState &left, const DocumentState &right,
                                           const std::atomic_bool &isCancelled)
{
    ComparisonTreeBuilder builder(left, right);
    builder.addOwnProperties(left.metadata, right.metadata);
    const QJsonObject before = WrittenForm(left).document;
    const QJsonObject other = isCancelled ? QJsonObject() : WrittenForm(right).document;
    if (!isCancelled)
        builder.add(unitsOf(WorkflowDifferences::between(before, other, false, &isCancelled)), isCancelled);
    return builder.take();
}

DocumentState ComparedDocuments::takenOver(const DocumentState &left, const DocumentState &right,
                                           const QSet<QString> &keys, const std::atomic_bool &isCancelled)
{
    const WrittenForm before(left);
    const QJsonObject other = WrittenForm(right).document;
    const QList<WorkflowDifference> differences =
        WorkflowDifferences::between(before.document, other, false, &isCancelled);
    QSet<qsizetype> chosen;
    DifferenceKeys differenceKeys;
    for (qsizetype i = 0; i < differences.size(); ++i) {
        if (keys.contains(differenceKeys.of(differences.at(i))))
            chosen.insert(i);
    }
    QJsonObject metadata = left.metadata;
    for (const OwnProperty &property : OwnProperties::all()) {
        if (keys.contains(kOwnPrefix + QLatin1String(property.name)))
            property.take(&metadata, right.metadata);
    }
    return stateOf(WorkflowDifferences::takenOver(before.document, other, chosen, false, &isCancelled),
                   metadata, before);
}

} // namespace orv
