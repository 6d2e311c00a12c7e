#pragma once

#include <orv/widgets/Export.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QList>

#include <memory>
#include <utility>
#include <variant>

namespace orv {

/// What leads from one JSON object to another, and back: the members and elements that differ, with all that
/// is the same left out. A plain value, safe to use from several threads as any Qt value.
class ORV_PROPERTY_EDITOR_EXPORT JsonDifference
{
public:
    /// None.
    JsonDifference() = default;
    [[nodiscard]] static JsonDifference between(const QJsonObject &before, const QJsonObject &after);

    /// \a before of between() gives its \a after, where nothing differs elsewhere.
    [[nodiscard]] QJsonObject forth(const QJsonObject &before) const;
    [[nodiscard]] QJsonObject back(const QJsonObject &after) const;

    /// About what it holds, in bytes.
    [[nodiscard]] qsizetype heldBytes() const;

private:
    struct Node;
    using Child = std::shared_ptr<const Node>;
    using End = QJsonValue std::pair<QJsonValue, QJsonValue>::*;

    /// Values that have nothing in common; an undefined one isn't there.
    using Leaf = std::pair<QJsonValue, QJsonValue>;
    using Members = QList<std::pair<QString, Child>>;
    using Elements = QList<std::pair<qsizetype, Child>>;
    /// Elements of an array that others take the place of, in another number.
    struct Range
    {
        qsizetype first = 0;
        std::pair<QJsonValue, QJsonValue> arrays;
    };

    struct Node
    {
        std::variant<Leaf, Members, Elements, Range> content;
    };

    [[nodiscard]] static Child childBetween(const QJsonValue &before, const QJsonValue &after, int depth);
    [[nodiscard]] static Node ofObjects(const QJsonObject &before, const QJsonObject &after, int depth);
    [[nodiscard]] static Node ofArrays(const QJsonArray &before, const QJsonArray &after, int depth);
    [[nodiscard]] static QJsonValue applied(const QJsonValue &value, const Node &node, End from, End to);
    [[nodiscard]] static qsizetype bytesOf(const Node &node);

    Child m_root;
};

} // namespace orv
