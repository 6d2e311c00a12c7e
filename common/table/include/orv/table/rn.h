#pragma once

#include <orv/core/Export.h>
#include <orv/table/RowNode.h>

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QMetaType>
#include <QString>
#include <QVariant>

/// Tables as JSON. A node is an object with "data", the array of its entries, and "children", the array of
/// its child nodes:
///
///     {"data": ["Name", "Mass"], "children": [{"data": ["water", 18.0106], "children": []}]}
///
/// Both members may be absent when read and are always written; others are passed over.
///
/// An entry is plain JSON where that tells its value: texts, bools, numbers, lists (arrays), maps (objects),
/// and null for an invalid value. A plain number reads as int when it is integral and fits, else as 64-bit
/// integer when it is integral and fits, else as double; 5, 5.0 and 5e0 are the same number. Any other value
/// is an object with one member whose key is the type behind a dollar sign: {"$double": 5}, {"$double":
/// "nan"},
/// {"$int64": 5}, {"$strings": ["a", "b"]}, {"$date": "2024-01-31"}. A map that looks like that is written
/// by {"$map": [[KEY, VALUE], ...]}, so that none is ever taken for another. docs/formats.md lists all types.
///
/// An object of that form whose type or value isn't known, as a later version may write it, is kept as an
/// UnreadCell and written back as it stood.
namespace orv::rn {

/// How deep objects and arrays may nest, the node's own included; it leaves room for the document around.
inline constexpr int kMaxNesting = 256;

/// An entry that this version can't read. As a text it is the JSON that stands in the document.
struct ORV_WORKFLOW_EXPORT UnreadCell
{
    QString type; ///< with its dollar sign
    QJsonValue payload;

    bool operator==(const UnreadCell &) const = default;
};

/// Reads UTF-8 JSON text. False for text that is not JSON of the form above, too deep, or with the same key
/// twice where one would be lost; \a node is then as it was. False for a null node. A node that is a row
/// keeps its place, as when assigned to.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool parse(const QByteArray &bytes, RowNode *node);

/// Compact text, which parse reads back as an equal node with entries of the same types. When \a node is
/// null, nests too deep or holds a type that has no form here: empty text, and false in \a ok if given.
[[nodiscard]] ORV_WORKFLOW_EXPORT QByteArray serialize(const RowNode *node, bool *ok = nullptr);

/// Whether an entry may be written: neither it nor what it holds is of a type that has no form here.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool canSerialize(const QVariant &entry);
[[nodiscard]] ORV_WORKFLOW_EXPORT bool canSerialize(const RowNode &node);

/// As parse and serialize, for callers that hold a parsed document: nothing is parsed twice. A key that stood
/// twice in the text can't be seen any more.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool fromObject(const QJsonObject &object, RowNode *node);
[[nodiscard]] ORV_WORKFLOW_EXPORT QJsonObject toObject(const RowNode *node, bool *ok = nullptr);

} // namespace orv::rn

Q_DECLARE_METATYPE(orv::rn::UnreadCell)
