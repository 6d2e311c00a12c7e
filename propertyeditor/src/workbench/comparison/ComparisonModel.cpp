#include "ComparisonModel.h"

#include "panels/EvenRows.h"
#include "panels/ShortText.h"
#include "state/ChangeText.h"
#include "state/EntryTexts.h"

#include <orv/core/PlainTip.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/widgets/Icons.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace orv {

using namespace PropertyEditorStringConstants;
using Change = WorkflowDifference::Kind;

namespace {

/// A cell shows one line; the tool tip shows more.
constexpr qsizetype kMostInRow = 200;
constexpr qsizetype kMostInHint = 4000;

} // namespace

void ComparisonModel::show(const ComparisonTree &tree, const QString &otherName)
{
    beginResetModel();
    m_tree = tree;
    m_otherName = otherName;
    m_numbers.clear();
    m_lines.clear();
    for (int i = 0; i < m_tree.nodes.size(); ++i)
        m_numbers.insert(m_tree.nodes.at(i).key, i);
    const qsizetype before = m_checked.size();
    m_checked.removeIf([this](const QString &key) {
        const int number = m_numbers.value(key, -1);
        return number < 0 || !m_tree.nodes.at(number).children.isEmpty();
    });
    count();
    endResetModel();
    if (m_checked.size() != before)
        Q_EMIT checkedChanged();
}

/// Rows stand behind those above them.
void ComparisonModel::count()
{
    m_leaves.fill(0, m_tree.nodes.size());
    m_checkedLeaves.fill(0, m_tree.nodes.size());
    for (int i = int(m_tree.nodes.size()) - 1; i > 0; --i) {
        const ComparisonNode &node = m_tree.nodes.at(i);
        if (node.children.isEmpty()) {
            m_leaves[i] = 1;
            m_checkedLeaves[i] = m_checked.contains(node.key) ? 1 : 0;
        }
        m_leaves[node.parent] += m_leaves.at(i);
        m_checkedLeaves[node.parent] += m_checkedLeaves.at(i);
    }
}

void ComparisonModel::uncheckAll()
{
    m_checked.clear();
    count();
    tellBelow(0);
    Q_EMIT checkedChanged();
}

bool ComparisonModel::onlySettingsAreChecked() const
{
    return std::ranges::all_of(m_checked, [this](const QString &key) {
        return m_tree.nodes.at(m_numbers.value(key, 0)).kind == ComparisonNode::Kind::Setting;
    });
}

QList<QModelIndex> ComparisonModel::checkedRemovals() const
{
    QList<QModelIndex> rows;
    for (int i = 1; i < m_tree.nodes.size() && !m_checked.isEmpty(); ++i) {
        const ComparisonNode &node = m_tree.nodes.at(i);
        if (node.change == Change::Removed && node.children.isEmpty() && m_checked.contains(node.key))
            rows.append(createIndex(node.row, Name, quintptr(i)));
    }
    return rows;
}

QString ComparisonModel::placeText(const QModelIndex &index) const
{
    QStringList names;
    for (QModelIndex row = index; row.isValid(); row = row.parent())
        names.prepend(name(node(row)));
    return names.join(QStringLiteral(" › "));
}

const ComparisonNode &ComparisonModel::node(const QModelIndex &index) const
{
    return m_tree.nodes.at(index.isValid() ? qsizetype(index.internalId()) : 0);
}

QModelIndex ComparisonModel::indexOf(const QString &key) const
{
    const int number = m_numbers.value(key, 0);
    return number > 0 ? createIndex(m_tree.nodes.at(number).row, 0, quintptr(number)) : QModelIndex();
}

QByteArray ComparisonModel::settingAt(const QModelIndex &index) const
{
    for (QModelIndex row = index; row.isValid(); row = row.parent()) {
        if (node(row).kind == ComparisonNode::Kind::Setting)
            return node(row).label.toUtf8();
    }
    return {};
}

QModelIndex ComparisonModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, quintptr(node(parent).children.at(row)));
}

QModelIndex ComparisonModel::parent(const QModelIndex &index) const
{
    const int number = index.isValid() ? node(index).parent : -1;
    return number > 0 ? createIndex(m_tree.nodes.at(number).row, 0, quintptr(number)) : QModelIndex();
}

int ComparisonModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : int(node(parent).children.size());
}

int ComparisonModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

Qt::ItemFlags ComparisonModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return {};
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return index.column() == Name ? flags | Qt::ItemIsUserCheckable : flags;
}

QString ComparisonModel::name(const ComparisonNode &node) const
{
    QString name = node.label;
    if (node.kind == ComparisonNode::Kind::Workflow)
        name = tr("Workflow");
    else if (node.kind == ComparisonNode::Kind::OwnProperty)
        name = QCoreApplication::translate("RecoveryChanges", node.label.toUtf8().constData());
    else if (node.kind == ComparisonNode::Kind::Setting)
        name = EntryTexts::caption({{TYPE_KEY, node.cellType}}, {{NAME_KEY, node.label}});
    else if (node.kind == ComparisonNode::Kind::Part)
        name = name.isEmpty() ? tr("Value") : ChangeText::ofPartOfSetting(name);
    return node.more > 0 ? tr("%1 and what belongs to it (%2 more)").arg(name).arg(node.more) : name;
}

QString ComparisonModel::value(const ComparisonNode &node, const QJsonValue &value) const
{
    if (!node.children.isEmpty())
        return {};
    if (value.isUndefined())
        return tr("(not there)");
    if (node.kind == ComparisonNode::Kind::Setting) {
        QString shown =
            EntryTexts::value({{TYPE_KEY, node.cellType}}, {{NAME_KEY, node.label}, {VALUE_KEY, value}});
        if (!shown.isEmpty())
            return shown;
    }
    if (node.kind == ComparisonNode::Kind::Tab)
        return QVariant(value[COLUMNS_KEY].toArray().toVariantList())
            .toStringList()
            .join(QStringLiteral(", "));
    if (node.kind == ComparisonNode::Kind::Column)
        return value.isArray() ? value.toArray().first()[TYPE_KEY].toString() : ChangeText::ofValue(value);
    const QString plain = ChangeText::ofValue(value, node.columns);
    return plain.isEmpty() ? tr("(empty)") : plain;
}

QString ComparisonModel::changeText(const ComparisonNode &node) const
{
    if (!node.children.isEmpty())
        return {};
    switch (node.change) {
    case Change::Added:
        return tr("Only in %1").arg(m_otherName);
    case Change::Removed:
        return tr("Only in this workflow");
    case Change::Changed:
        break;
    }
    return {};
}

ComparisonModel::Texts ComparisonModel::texts(const ComparisonNode &node) const
{
    const QString left = value(node, node.left);
    const QString right = value(node, node.right);
    // Rows round what they show.
    const bool looksTheSame =
        node.kind == ComparisonNode::Kind::Setting && node.children.isEmpty() && left == right;
    return looksTheSame ? Texts{name(node), ChangeText::ofValue(node.left), ChangeText::ofValue(node.right)}
                        : Texts{name(node), left, right};
}

/// Views ask for them at each paint, and a value may have many megabytes.
QString ComparisonModel::line(const QModelIndex &index) const
{
    const int number = int(index.internalId());
    auto known = m_lines.find(number);
    if (known == m_lines.end()) {
        Texts lines = texts(node(index));
        for (QString &text : lines)
            text = ShortText::line(text, kMostInRow);
        known = m_lines.insert(number, lines);
    }
    return known->at(size_t(index.column()));
}

QString ComparisonModel::hint(const QModelIndex &index) const
{
    const ComparisonNode &shown = node(index);
    const QString text = texts(shown).at(size_t(index.column()));
    const QString change = changeText(shown);
    QString hint = ShortText::beginning(text, kMostInHint) + (change.isEmpty() ? QString() : u'\n' + change);
    hint = hint.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
    return QStringLiteral("<p>%1</p>").arg(hint);
}

QVariant ComparisonModel::explanation(const ComparisonNode &node) const
{
    if (node.kind != ComparisonNode::Kind::Setting)
        return {};
    const QString told = PropertiesNames::tooltipForType(PropertiesNames::findPropertyForName(node.label));
    return told.isEmpty()
               ? QVariant()
               : QVariant(
                     QStringLiteral("<b>%1</b><br>%2").arg(name(node).toHtmlEscaped(), told.toHtmlEscaped()));
}

Qt::CheckState ComparisonModel::checkState(int number) const
{
    if (m_checkedLeaves.at(number) == 0)
        return Qt::Unchecked;
    return m_checkedLeaves.at(number) == m_leaves.at(number) ? Qt::Checked : Qt::PartiallyChecked;
}

QVariant ComparisonModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ComparisonNode &shown = node(index);
    switch (role) {
    case Qt::DisplayRole:
        return line(index);
    case Qt::ToolTipRole:
        return hint(index);
    case Qt::WhatsThisRole:
        return explanation(shown);
    case Qt::AccessibleTextRole: {
        const QString said = line(index);
        const QString change = changeText(shown);
        return index.column() == Name && !change.isEmpty() ? tr("%1, %2").arg(said, change) : said;
    }
    case Qt::CheckStateRole:
        return index.column() == Name ? QVariant(checkState(int(index.internalId()))) : QVariant();
    case Qt::DecorationRole:
        if (index.column() != Name)
            return {};
        if (!shown.children.isEmpty())
            return shown.kind == ComparisonNode::Kind::Setting ? QVariant(EvenRows::indent()) : QVariant();
        return Icons::icon(shown.change == Change::Added     ? IconName::Add
                           : shown.change == Change::Removed ? IconName::Remove
                                                             : IconName::Changed);
    default:
        return {};
    }
}

/// How many more are checked then.
int ComparisonModel::check(int number, bool isChecked)
{
    const ComparisonNode &node = m_tree.nodes.at(number);
    int more = 0;
    if (node.children.isEmpty()) {
        const bool wasChecked = m_checked.contains(node.key);
        if (isChecked)
            m_checked.insert(node.key);
        else
            m_checked.remove(node.key);
        more = int(isChecked) - int(wasChecked);
    }
    // No deeper than a setting's parts.
    for (const int child : node.children)
        more += check(child, isChecked);
    m_checkedLeaves[number] += more;
    return more;
}

bool ComparisonModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    const int number = int(index.internalId());
    const int more = check(number, value.toInt() == Qt::Checked);
    for (int above = m_tree.nodes.at(number).parent; above >= 0; above = m_tree.nodes.at(above).parent)
        m_checkedLeaves[above] += more;
    tellAround(number);
    tellBelow(number);
    Q_EMIT checkedChanged();
    return true;
}

void ComparisonModel::tellAround(int number)
{
    for (int above = number; above > 0; above = m_tree.nodes.at(above).parent) {
        const QModelIndex row = createIndex(m_tree.nodes.at(above).row, Name, quintptr(above));
        Q_EMIT dataChanged(row, row, {Qt::CheckStateRole});
    }
}

void ComparisonModel::tellBelow(int number)
{
    const QList<int> children = m_tree.nodes.at(number).children;
    if (children.isEmpty())
        return;
    const QModelIndex first = createIndex(0, Name, quintptr(children.constFirst()));
    const QModelIndex last = createIndex(int(children.size()) - 1, Name, quintptr(children.constLast()));
    Q_EMIT dataChanged(first, last, {Qt::CheckStateRole});
    for (const int child : children)
        tellBelow(child);
}

QVariant ComparisonModel::help(int column) const
{
    switch (column) {
    case Name:
        return tr("What differs, and where. Space checks what is to be taken over, Enter goes there.");
    case This:
        return tr("What this workflow has");
    case Other:
        return PlainTip::of(
            tr("What %1 has, and what this workflow gets from it when it is taken over").arg(m_otherName));
    default:
        return {};
    }
}

QVariant ComparisonModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::ToolTipRole || role == Qt::WhatsThisRole)
        return help(section);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Name:
        return tr("Difference");
    case This:
        return tr("This workflow");
    case Other:
        return m_otherName;
    default:
        return {};
    }
}

} // namespace orv
