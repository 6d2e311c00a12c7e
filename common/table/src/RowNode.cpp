#include "orv/table/RowNode.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace orv {

struct RowNode::Rows
{
    RowNode *owner = nullptr;
    std::vector<std::unique_ptr<RowNode>> list;
};

namespace {

/// A list of its own. Sharing would let a reference into the original, handed out before the copy, write to
/// both.
VariantItems unshared(const VariantItems &items)
{
    VariantItems copy;
    copy.reserve(items.size());
    for (const QVariant &item : items)
        copy.append(item);
    return copy;
}

QVariant &nothing()
{
    thread_local QVariant scratch;
    scratch.clear();
    return scratch;
}

} // namespace

RowNode::RowNode() = default;

RowNode::RowNode(VariantItems items)
    : data(std::move(items))
{}

RowNode::RowNode(const RowNode &other)
    : data(unshared(other.data))
{
    deepCopy(&other, DeepCopyType::ChildrenOnly);
}

RowNode &RowNode::operator=(const RowNode &other)
{
    if (this != &other)
        deepCopy(&other, DeepCopyType::Subtree);
    return *this;
}

RowNode::RowNode(RowNode &&other) noexcept
    : data(std::exchange(other.data, {}))
    , m_rows(std::move(other.m_rows))
{
    if (m_rows)
        m_rows->owner = this;
}

// NOLINTNEXTLINE(performance-noexcept-move-constructor): it copies where the other lies above
RowNode &RowNode::operator=(RowNode &&other)
{
    if (this == &other)
        return *this;
    // Taking the rows of a node above would hang this node below itself.
    if (isBelow(other))
        return *this = std::as_const(other);
    // The other may be a row below this one, and go away with the old rows: these live until the end.
    RowNode taken(std::move(other));
    std::swap(data, taken.data);
    std::swap(m_rows, taken.m_rows);
    if (m_rows)
        m_rows->owner = this;
    if (taken.m_rows)
        taken.m_rows->owner = &taken;
    return *this;
}

RowNode::~RowNode()
{
    clearChildren();
}

void RowNode::clear()
{
    data.clear();
    clearChildren();
}

void RowNode::clearChildren()
{
    if (!m_rows)
        return;
    // Not left to the destructors, which would nest as deep as the tree.
    std::vector<std::unique_ptr<RowNode>> doomed = std::move(m_rows->list);
    m_rows.reset();
    while (!doomed.empty()) {
        const std::unique_ptr<RowNode> node = std::move(doomed.back());
        doomed.pop_back();
        if (const std::unique_ptr<Rows> rows = std::move(node->m_rows)) {
            for (std::unique_ptr<RowNode> &child : rows->list)
                doomed.push_back(std::move(child));
        }
    }
}

RowNode *RowNode::parent()
{
    return m_home ? m_home->owner : nullptr;
}

const RowNode *RowNode::parent() const
{
    return m_home ? m_home->owner : nullptr;
}

RowNode *RowNode::root()
{
    RowNode *node = this;
    while (node->m_home)
        node = node->m_home->owner;
    return node;
}

const RowNode *RowNode::root() const
{
    const RowNode *node = this;
    while (node->m_home)
        node = node->m_home->owner;
    return node;
}

bool RowNode::isBelow(const RowNode &other) const
{
    const RowNode *node = parent();
    while (node && node != &other)
        node = node->parent();
    return node;
}

int RowNode::getChildListSize() const
{
    return m_rows ? int(m_rows->list.size()) : 0;
}

RowNode *RowNode::getChild(int index)
{
    return index >= 0 && index < getChildListSize() ? m_rows->list[size_t(index)].get() : nullptr;
}

const RowNode *RowNode::getChild(int index) const
{
    return index >= 0 && index < getChildListSize() ? m_rows->list[size_t(index)].get() : nullptr;
}

RowNode *RowNode::addNewChildMatchRootDataSize()
{
    VariantItems blank;
    blank.resize(data.size());
    return addNewChild(std::move(blank));
}

RowNode *RowNode::addNewChild(VariantItems items)
{
    if (getChildListSize() == std::numeric_limits<int>::max())
        return nullptr;
    auto child = std::make_unique<RowNode>(std::move(items));
    Rows &home = rows();
    child->m_home = &home;
    return home.list.emplace_back(std::move(child)).get();
}

RowNode::Rows &RowNode::rows()
{
    if (!m_rows)
        m_rows = std::make_unique<Rows>(Rows{this, {}});
    return *m_rows;
}

void RowNode::deleteChild(int index)
{
    if (getChild(index))
        m_rows->list.erase(m_rows->list.begin() + index);
}

void RowNode::addData(const VariantItems &items)
{
    data.append(items);
}

void RowNode::addData(const QStringList &texts, bool skipExisting)
{
    for (const QString &text : texts) {
        if (!skipExisting || !data.contains(text))
            data.append(text);
    }
}

void RowNode::addDataToRootAndResizeChildren(const QString &name, const QVariant &value, bool alignRows)
{
    // The value may stand in a row that is about to grow.
    const QVariant entry = value; // NOLINT(performance-unnecessary-copy-initialization): see above
    RowNode *top = root();
    const qsizetype column = top->data.size();
    top->data.append(name);
    for (int i = 0; i < top->getChildListSize(); ++i) {
        VariantItems &cells = top->getChild(i)->data;
        if (alignRows && cells.size() < column)
            cells.resize(column);
        cells.insert(alignRows ? column : cells.size(), entry);
    }
}

bool RowNode::removeColumn(const QString &name)
{
    RowNode *top = root();
    const qsizetype column = top->data.lastIndexOf(name);
    if (column < 0)
        return false;
    top->data.removeAt(column);
    for (int i = 0; i < top->getChildListSize(); ++i) {
        VariantItems &cells = top->getChild(i)->data;
        if (column < cells.size())
            cells.removeAt(column);
    }
    return true;
}

QVariant &RowNode::getDataAt(int index)
{
    return index >= 0 && index < data.size() ? data[index] : nothing();
}

QVariant &RowNode::getDataAt(const QString &columnName, bool ignoreCase)
{
    return getDataAt(getColumnIndexFromName(columnName, ignoreCase));
}

QVariant RowNode::getDataAt(const QString &columnName, bool ignoreCase) const
{
    return getDataAt(getColumnIndexFromName(columnName, ignoreCase));
}

QString RowNode::getNameFromColumnIndex(int index) const
{
    return root()->data.value(index).toString();
}

int RowNode::getColumnIndexFromName(const QString &name, bool ignoreCase) const
{
    const VariantItems &columns = root()->data;
    if (!ignoreCase)
        return int(columns.indexOf(name));
    const auto it = std::find_if(columns.begin(), columns.end(), [&name](const QVariant &column) {
        return column.toString().compare(name, Qt::CaseInsensitive) == 0;
    });
    return it == columns.end() ? -1 : int(it - columns.begin());
}

bool RowNode::deepCopy(const RowNode *source, DeepCopyType type)
{
    if (!source)
        return false;
    if (type == DeepCopyType::DataOnly) {
        data = unshared(source->data);
        return true;
    }
    // Built aside, since the source may be part of this tree or this node part of the source; and without
    // recursion, which would go as deep as the tree.
    RowNode copy;
    std::vector<std::pair<const RowNode *, RowNode *>> open{{source, &copy}};
    while (!open.empty()) {
        const auto [from, to] = open.back();
        open.pop_back();
        if (!from->m_rows || from->m_rows->list.empty())
            continue;
        to->rows().list.reserve(from->m_rows->list.size());
        for (const std::unique_ptr<RowNode> &child : from->m_rows->list) {
            RowNode *added = to->addNewChild(unshared(child->data));
            if (child->m_rows)
                open.emplace_back(child.get(), added);
        }
    }
    copy.data = type == DeepCopyType::ChildrenOnly ? std::move(data) : unshared(source->data);
    *this = std::move(copy);
    return true;
}

bool RowNode::equals(const RowNode &other) const
{
    std::vector<std::pair<const RowNode *, const RowNode *>> open{{this, &other}};
    while (!open.empty()) {
        const auto [left, right] = open.back();
        open.pop_back();
        if (left->getChildListSize() != right->getChildListSize() || !(left->data == right->data))
            return false;
        for (int i = 0; i < left->getChildListSize(); ++i)
            open.emplace_back(left->getChild(i), right->getChild(i));
    }
    return true;
}

} // namespace orv
