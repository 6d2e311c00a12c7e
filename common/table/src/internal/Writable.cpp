#include "Writable.h"

#include "CellType.h"

#include <QJsonArray>

#include <algorithm>

namespace orv::Internal {

namespace {

// These call each other as deep as the data nest; every level counts down what is left to go.

bool fits(const QJsonValue &json, int levels)
{
    if (json.isArray()) {
        const QJsonArray array = json.toArray();
        return levels > 0 && std::ranges::all_of(
                                 array, [levels](const QJsonValue &item) { return fits(item, levels - 1); });
    }
    const QJsonObject object = json.toObject();
    return !json.isObject() || (levels > 0 && std::ranges::all_of(object, [levels](const QJsonValue &member) {
                                    return fits(member, levels - 1);
                                }));
}

template<typename List>
bool areWritable(const List &list, int levels)
{
    return levels > 0 &&
           std::ranges::all_of(list, [levels](const QVariant &item) { return isWritable(item, levels - 1); });
}

} // namespace

bool isWritable(const QVariant &cell, int levels)
{
    const void *const data = cell.constData();
    switch (cellFormOf(cell)) {
    case CellForm::List:
        return areWritable(*static_cast<const QVariantList *>(data), levels);
    case CellForm::Map:
        return areWritable(*static_cast<const QVariantMap *>(data), levels);
    case CellForm::Unread:
        return levels > 0 && fits(static_cast<const rn::UnreadCell *>(data)->payload, levels - 1);
    case CellForm::Typed: {
        const CellType *type = cellTypeOf(cell);
        return type && levels > 0 && isWritable(type->toPayload(cell), levels - 1);
    }
    default:
        return true;
    }
}

bool isWritable(const RowNode &node, int levels)
{
    if (levels < 2 || !areWritable(node.data, levels - 1))
        return false;
    for (int i = 0; i < node.getChildListSize(); ++i) {
        if (!isWritable(*node.getChild(i), levels - 2))
            return false;
    }
    return true;
}

} // namespace orv::Internal
