#include "EditorDataModel.h"

#include "KProperty.h"
#include "KPropertyFactory.h"
#include "KPropertySet.h"

#include <QFont>
#include <QIcon>
#include <QTextDocument>

#include <algorithm>

namespace Internal {

namespace {

const char kCommonGroup[] = "common";
constexpr int kMostRemarksOfGroup = 5;

bool hasGroupRows(const KPropertySet &set, bool groupsVisible)
{
    const QList<QByteArray> groups = set.groupNames();
    return groupsVisible && !(groups.size() == 1 && groups.first() == kCommonGroup);
}

QString caption(const KProperty &property)
{
    const QString text = property.captionForDisplaying();
    return text.isEmpty() ? QString::fromLatin1(property.name()) : text;
}

QString asHtml(const QString &text)
{
    if (Qt::mightBeRichText(text)) {
        return text;
    }
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

/// Remarks quote what people type, which is never markup.
QString remarkAsHtml(const QString &remark)
{
    return remark.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

QString heading(const QString &text)
{
    return QLatin1String("<b>") + asHtml(text.trimmed()) + QLatin1String("</b><br>");
}

/// The caption, which the column may cut, above what is remarked and the description.
QString toolTip(const KProperty &property, const QString &remark)
{
    QStringList lines = {QLatin1String("<b>") + asHtml(caption(property).trimmed()) + QLatin1String("</b>")};
    if (!remark.isEmpty()) {
        lines.append(remarkAsHtml(remark));
    }
    if (const QString description = property.description(); !description.isEmpty()) {
        lines.append(asHtml(description));
    }
    return lines.join(QLatin1String("<br>"));
}

QString spokenDescription(const KProperty &property, const QString &remark)
{
    const QString description = property.description();
    return remark.isEmpty() || description.isEmpty() ? remark + description
                                                     : remark + QLatin1Char('\n') + description;
}

QString valueText(const KProperty &property)
{
    return KPropertyFactoryManager::self()->propertyValueToLocalizedString(&property);
}

QVariant iconData(const QString &name)
{
    return name.isEmpty() ? QVariant() : QVariant(QIcon::fromTheme(name));
}

} // namespace

EditorDataModel::EditorDataModel(QObject *parent)
    : QAbstractItemModel(parent)
    , m_root(std::make_unique<Node>())
{}

EditorDataModel::~EditorDataModel() = default;

void EditorDataModel::setSet(KPropertySet *set, Options options)
{
    beginResetModel();
    const QHash<QByteArray, Remark> kept = set == m_set ? remarks() : QHash<QByteArray, Remark>();
    m_set = set;
    m_nodes.clear();
    m_root = std::make_unique<Node>();
    if (m_set) {
        build(options);
    }
    for (auto it = kept.cbegin(); it != kept.cend(); ++it) {
        if (Node *const node = m_nodes.value(&m_set->property(it.key()))) {
            node->remark = it.value().text;
            node->remarkKind = it.value().kind;
        }
    }
    endResetModel();
}

QHash<QByteArray, EditorDataModel::Remark> EditorDataModel::remarks() const
{
    QHash<QByteArray, Remark> remarks;
    for (auto it = m_nodes.cbegin(); it != m_nodes.cend(); ++it) {
        // Names of children aren't unique.
        if (!it.value()->remark.isEmpty() && !it.key()->parent()) {
            remarks.insert(it.key()->name(), {it.value()->remark, it.value()->remarkKind});
        }
    }
    return remarks;
}

void EditorDataModel::setRemark(const KProperty *property, const QString &text, RemarkKind kind)
{
    Node *const node = m_nodes.value(property);
    if (!node || (node->remark == text && (text.isEmpty() || node->remarkKind == kind))) {
        return;
    }
    node->remark = text;
    node->remarkKind = kind;
    const QModelIndex name = indexOf(node, NameColumn);
    const QList<int> roles = {Qt::ToolTipRole, Qt::AccessibleDescriptionRole};
    Q_EMIT dataChanged(name, name.siblingAtColumn(ValueColumn), roles);
    if (isGroup(name.parent())) {
        Q_EMIT dataChanged(name.parent(), name.parent(), roles);
    }
}

QString EditorDataModel::remark(const KProperty *property) const
{
    const Node *const node = m_nodes.value(property);
    return node ? node->remark : QString();
}

EditorDataModel::RemarkKind EditorDataModel::remarkKind(const KProperty *property) const
{
    const Node *const node = m_nodes.value(property);
    return node && !node->remark.isEmpty() ? node->remarkKind : RemarkKind::Warning;
}

EditorDataModel::RemarkKind EditorDataModel::worstRemarkIn(const QModelIndex &group) const
{
    RemarkKind worst = RemarkKind::Hint;
    for (const std::unique_ptr<Node> &child : nodeOf(group)->children) {
        if (child && !child->remark.isEmpty()) {
            worst = std::max(worst, child->remarkKind);
        }
    }
    return worst;
}

QString EditorDataModel::remarksIn(const Node &group)
{
    QStringList lines;
    int count = 0;
    for (const std::unique_ptr<Node> &child : group.children) {
        if (!child || child->remark.isEmpty()) {
            continue;
        }
        if (++count <= kMostRemarksOfGroup) {
            lines.append(caption(*child->property) + QLatin1String(": ") + child->remark);
        }
    }
    if (count > kMostRemarksOfGroup) {
        lines.append(tr("and %n more", nullptr, count - kMostRemarksOfGroup));
    }
    return lines.join(QLatin1Char('\n'));
}

QString EditorDataModel::remarksIn(const QModelIndex &group) const
{
    return isGroup(group) ? remarksIn(*nodeOf(group)) : QString();
}

void EditorDataModel::build(Options options)
{
    const bool withGroups = hasGroupRows(*m_set, options.groupsVisible);
    QHash<QByteArray, Node *> groups;
    // Groups keep their own order; a group without a visible property has no row.
    QHash<QByteArray, std::vector<KProperty *>> members;
    KPropertySetIterator it(*m_set);
    if (options.alphabetical) {
        it.setOrder(KPropertySetIterator::Order::Alphabetical);
    }
    for (; it.current(); ++it) {
        if (it.current()->isVisible()) {
            members[withGroups ? m_set->groupNameForProperty(*it.current()) : QByteArray()].push_back(
                it.current());
        }
    }
    const QList<QByteArray> names = withGroups ? m_set->groupNames() : QList<QByteArray>{QByteArray()};
    for (const QByteArray &name : names) {
        const auto found = members.constFind(name);
        if (found == members.cend()) {
            continue;
        }
        Node *parent = m_root.get();
        if (withGroups) {
            parent = addNode(m_root.get(), nullptr);
            parent->group = name;
        }
        for (KProperty *property : *found) {
            addNode(parent, property);
        }
    }
}

EditorDataModel::Node *EditorDataModel::addNode(Node *parent, KProperty *property)
{
    auto owned = std::make_unique<Node>();
    Node *const node = owned.get();
    node->parent = parent;
    node->property = property;
    node->slot = parent->children.size();
    parent->children.push_back(std::move(owned));
    parent->rows.append();
    if (!property) {
        return node;
    }
    m_nodes.insert(property, node);
    if (!property->children()) {
        return node;
    }
    for (KProperty *child : *property->children()) {
        if (child->isVisible()) {
            addNode(node, child);
        }
    }
    return node;
}

void EditorDataModel::setToolTipsVisible(bool visible)
{
    m_toolTipsVisible = visible;
}

void EditorDataModel::forget(const Node &node)
{
    m_nodes.remove(node.property);
    for (const std::unique_ptr<Node> &child : node.children) {
        if (child) {
            forget(*child);
        }
    }
}

void EditorDataModel::removeNode(Node *node)
{
    Node *const parent = node->parent;
    const int row = parent->rows.rowOf(node->slot);
    beginRemoveRows(indexOf(parent, NameColumn), row, row);
    forget(*node);
    parent->rows.remove(node->slot);
    // The row is gone, its place stays empty.
    parent->children[node->slot].reset();
    endRemoveRows();
}

void EditorDataModel::removeProperty(const KProperty *property)
{
    Node *const node = m_nodes.value(property);
    if (!node) {
        return;
    }
    Node *const group = node->parent;
    const bool isLast = group != m_root.get() && !group->property && group->rows.size() == 1;
    removeNode(isLast ? group : node);
}

void EditorDataModel::refresh(const KProperty *property)
{
    const QModelIndex name = indexForProperty(property, NameColumn);
    if (!name.isValid()) {
        return;
    }
    // Both cells: a name is bold while its value is modified. One cell at a time, since a view updates an
    // open editor only for a change of a single cell.
    Q_EMIT dataChanged(name, name);
    Q_EMIT dataChanged(name.siblingAtColumn(ValueColumn), name.siblingAtColumn(ValueColumn));
    for (int row = 0; row < rowCount(name); ++row) {
        refresh(this->property(index(row, NameColumn, name)));
    }
}

void EditorDataModel::refreshAll()
{
    if (rowCount() > 0) {
        Q_EMIT dataChanged(index(0, NameColumn), index(rowCount() - 1, ValueColumn));
    }
}

EditorDataModel::Node *EditorDataModel::nodeOf(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<Node *>(index.internalPointer()) : m_root.get();
}

QModelIndex EditorDataModel::indexOf(const Node *node, int column) const
{
    return node == m_root.get() ? QModelIndex()
                                : createIndex(node->parent->rows.rowOf(node->slot), column, node);
}

KProperty *EditorDataModel::property(const QModelIndex &index) const
{
    return index.isValid() ? nodeOf(index)->property : nullptr;
}

bool EditorDataModel::isGroup(const QModelIndex &index) const
{
    return index.isValid() && !nodeOf(index)->property;
}

QModelIndex EditorDataModel::indexForProperty(const KProperty *property, Column column) const
{
    const Node *const node = m_nodes.value(property);
    return node ? indexOf(node, column) : QModelIndex();
}

bool EditorDataModel::isReadOnly(const KProperty &property) const
{
    if (m_set && m_set->isReadOnly()) {
        return true;
    }
    for (const KProperty *each = &property; each; each = each->parent()) {
        if (each->isReadOnly()) {
            return true;
        }
    }
    return false;
}

QModelIndex EditorDataModel::index(int row, int column, const QModelIndex &parent) const
{
    const Node *const node = nodeOf(parent);
    if (row < 0 || column < 0 || column >= ColumnCount || parent.column() > 0 || row >= node->rows.size()) {
        return QModelIndex();
    }
    return createIndex(row, column, node->children[node->rows.slotIn(row)].get());
}

QModelIndex EditorDataModel::parent(const QModelIndex &child) const
{
    return child.isValid() ? indexOf(nodeOf(child)->parent, NameColumn) : QModelIndex();
}

int EditorDataModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : nodeOf(parent)->rows.size();
}

int EditorDataModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant EditorDataModel::groupData(const Node &node, int column, int role) const
{
    if (column == ValueColumn) {
        return role == Qt::DisplayRole ? QVariant(QString()) : QVariant();
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return m_set->groupCaption(node.group);
    case Qt::AccessibleDescriptionRole: {
        const QString remarks = remarksIn(node);
        return remarks.isEmpty() ? tr("Group of properties")
                                 : tr("Group of properties") + QLatin1Char('\n') + remarks;
    }
    case Qt::ToolTipRole: {
        const QString remarks = remarksIn(node);
        return remarks.isEmpty() ? QVariant() : QVariant(remarkAsHtml(remarks));
    }
    case Qt::WhatsThisRole: {
        const QString remarks = remarksIn(node);
        const QString told = heading(m_set->groupCaption(node.group)) + tr("Group of properties");
        return remarks.isEmpty() ? told : told + QLatin1String("<br>") + remarkAsHtml(remarks);
    }
    case Qt::DecorationRole:
        return iconData(m_set->groupIconName(node.group));
    default:
        return QVariant();
    }
}

QString EditorDataModel::spokenText(const KProperty &property) const
{
    const QString value = valueText(property);
    const QString shown = value.isEmpty() ? tr("empty") : value;
    return (isReadOnly(property) ? tr("%1: %2, read only") : tr("%1: %2"))
        .arg(property.captionOrName(), shown);
}

QVariant EditorDataModel::nameData(const KProperty &property, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return caption(property);
    case Qt::AccessibleTextRole:
        // The name is the cell that is current, so that this is what one hears.
        return spokenText(property);
    case Qt::DecorationRole:
        return iconData(property.iconName());
    default:
        return QVariant();
    }
}

QVariant EditorDataModel::valueData(const KProperty &property, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return valueText(property);
    case Qt::EditRole:
        return property.value();
    default:
        return QVariant();
    }
}

QVariant EditorDataModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return QVariant();
    }
    const Node &node = *nodeOf(index);
    if (!node.property) {
        return groupData(node, index.column(), role);
    }
    if (role == Qt::ToolTipRole) {
        return m_toolTipsVisible       ? QVariant(toolTip(*node.property, node.remark))
               : node.remark.isEmpty() ? QVariant()
                                       : QVariant(remarkAsHtml(node.remark));
    }
    if (role == Qt::WhatsThisRole) {
        return toolTip(*node.property, node.remark);
    }
    if (role == Qt::AccessibleDescriptionRole) {
        const QString description = spokenDescription(*node.property, node.remark);
        return description.isEmpty() ? QVariant() : QVariant(description);
    }
    return index.column() == NameColumn ? nameData(*node.property, role) : valueData(*node.property, role);
}

bool EditorDataModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable)) {
        return false;
    }
    property(index)->setValue(value);
    return true;
}

Qt::ItemFlags EditorDataModel::flags(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const KProperty *const shown = property(index);
    if (!shown) {
        return Qt::ItemIsEnabled;
    }
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() == ValueColumn && !isReadOnly(*shown)) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

QVariant EditorDataModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    return section == NameColumn ? tr("Name") : tr("Value");
}

} // namespace Internal
