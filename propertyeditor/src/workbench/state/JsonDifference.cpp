#include "orv/propertyeditor/workbench/JsonDifference.h"

#include <QJsonDocument>

#include <algorithm>

namespace orv {

namespace {

/// Cells of tables are less deep; what lies deeper is replaced as a whole.
constexpr int kDeepest = 16;

qsizetype textBytes(const QJsonValue &value)
{
    return value.isUndefined() ? 0 : QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).size();
}

QJsonArray replaced(const QJsonArray &array, qsizetype first, qsizetype count, const QJsonArray &by)
{
    QJsonArray result;
    for (qsizetype i = 0; i < first; ++i)
        result.append(array.at(i));
    for (const auto element : by)
        result.append(element);
    for (qsizetype i = first + count; i < array.size(); ++i)
        result.append(array.at(i));
    return result;
}

QJsonArray part(const QJsonArray &array, qsizetype first, qsizetype end)
{
    QJsonArray result;
    for (qsizetype i = first; i < end; ++i)
        result.append(array.at(i));
    return result;
}

} // namespace

JsonDifference JsonDifference::between(const QJsonObject &before, const QJsonObject &after)
{
    JsonDifference difference;
    if (before != after)
        difference.m_root = std::make_shared<const Node>(ofObjects(before, after, 0));
    return difference;
}

JsonDifference::Child JsonDifference::childBetween(const QJsonValue &before, const QJsonValue &after,
                                                   int depth)
{
    const bool goesOn = depth < kDeepest && before.type() == after.type();
    if (goesOn && before.isObject())
        return std::make_shared<const Node>(ofObjects(before.toObject(), after.toObject(), depth));
    if (goesOn && before.isArray())
        return std::make_shared<const Node>(ofArrays(before.toArray(), after.toArray(), depth));
    return std::make_shared<const Node>(Node{Leaf{before, after}});
}

JsonDifference::Node JsonDifference::ofObjects(const QJsonObject &before, const QJsonObject &after, int depth)
{
    Members members;
    for (auto it = before.begin(); it != before.end(); ++it) {
        const QString key = it.key();
        if (const QJsonValue now = after.value(key); now != it.value())
            members.append({key, childBetween(it.value(), now, depth + 1)});
    }
    for (auto it = after.begin(); it != after.end(); ++it) {
        if (const QString key = it.key(); !before.contains(key))
            members.append({key, childBetween(QJsonValue::Undefined, it.value(), depth + 1)});
    }
    return {members};
}

JsonDifference::Node JsonDifference::ofArrays(const QJsonArray &before, const QJsonArray &after, int depth)
{
    if (before.size() == after.size()) {
        Elements elements;
        for (qsizetype i = 0; i < before.size(); ++i) {
            if (before.at(i) != after.at(i))
                elements.append({i, childBetween(before.at(i), after.at(i), depth + 1)});
        }
        return {elements};
    }
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype first = 0;
    while (first < shorter && before.at(first) == after.at(first))
        ++first;
    qsizetype same = 0;
    while (same < shorter - first && before.at(before.size() - 1 - same) == after.at(after.size() - 1 - same))
        ++same;
    return {
        Range{first, {part(before, first, before.size() - same), part(after, first, after.size() - same)}}};
}

QJsonValue JsonDifference::applied(const QJsonValue &value, const Node &node, End from, End to)
{
    if (const auto *leaf = std::get_if<Leaf>(&node.content))
        return leaf->*to;
    if (const auto *members = std::get_if<Members>(&node.content)) {
        QJsonObject object = value.toObject();
        for (const auto &[key, child] : *members) {
            // An undefined value takes the member away.
            object.insert(key, applied(object.value(key), *child, from, to));
        }
        return object;
    }
    QJsonArray array = value.toArray();
    if (const auto *range = std::get_if<Range>(&node.content)) {
        const qsizetype count = (range->arrays.*from).toArray().size();
        return replaced(array, range->first, count, (range->arrays.*to).toArray());
    }
    for (const auto &[index, child] : std::get<Elements>(node.content))
        array[index] = applied(array.at(index), *child, from, to);
    return array;
}

QJsonObject JsonDifference::forth(const QJsonObject &before) const
{
    return m_root ? applied(before, *m_root, &Leaf::first, &Leaf::second).toObject() : before;
}

QJsonObject JsonDifference::back(const QJsonObject &after) const
{
    return m_root ? applied(after, *m_root, &Leaf::second, &Leaf::first).toObject() : after;
}

qsizetype JsonDifference::heldBytes() const
{
    return m_root ? bytesOf(*m_root) : 0;
}

qsizetype JsonDifference::bytesOf(const Node &node)
{
    constexpr qsizetype kEach = 64;
    qsizetype bytes = kEach;
    if (const auto *leaf = std::get_if<Leaf>(&node.content))
        bytes += textBytes(leaf->first) + textBytes(leaf->second);
    else if (const auto *range = std::get_if<Range>(&node.content))
        bytes += textBytes(range->arrays.first) + textBytes(range->arrays.second);
    else if (const auto *members = std::get_if<Members>(&node.content)) {
        for (const auto &[key, child] : *members)
            bytes += key.size() * qsizetype(sizeof(QChar)) + bytesOf(*child);
    } else {
        for (const auto &[index, child] : std::get<Elements>(node.content))
            bytes += bytesOf(*child);
    }
    return bytes;
}

} // namespace orv
