#include "RowNodeObject.h"

#include "CellType.h"
#include "NodeKeys.h"
#include "Writable.h"

#include <orv/table/rn.h>

#include <QJsonArray>

namespace orv::Internal {

namespace {

// These call each other as deep as the data nest; every level counts down what is left to go.

bool cellFromJson(const QJsonValue &json, int levels, QVariant *cell);

bool listFromJson(const QJsonArray &array, int levels, QVariantList *list)
{
    if (levels == 0)
        return false;
    list->reserve(array.size());
    for (const QJsonValue item : array) {
        if (!cellFromJson(item, levels - 1, &list->emplaceBack()))
            return false;
    }
    return true;
}

bool objectCell(const QJsonObject &object, int levels, QVariant *cell)
{
    if (levels == 0)
        return false;
    QVariantMap map;
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!cellFromJson(it.value(), levels - 1, &map[it.key()]))
            return false;
    }
    if (map.size() == 1 && isTypeName(map.firstKey()))
        *cell = cellOfType(map.firstKey(), map.first(), [&object] { return object.begin().value(); });
    else
        *cell = map;
    return true;
}

bool cellFromJson(const QJsonValue &json, int levels, QVariant *cell)
{
    switch (json.type()) {
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        *cell = {};
        return true;
    case QJsonValue::Bool:
        *cell = json.toBool();
        return true;
    case QJsonValue::Double: {
        const QVariant number = json.toVariant();
        *cell = number.typeId() == QMetaType::Double ? numberCell(number.toDouble())
                                                     : integerCell(number.toLongLong());
        return true;
    }
    case QJsonValue::String:
        *cell = json.toString();
        return true;
    case QJsonValue::Array: {
        QVariantList list;
        if (!listFromJson(json.toArray(), levels, &list))
            return false;
        *cell = list;
        return true;
    }
    case QJsonValue::Object:
        break;
    }
    return objectCell(json.toObject(), levels, cell);
}

bool nodeFromJson(const QJsonObject &object, int levels, RowNode *node)
{
    const QJsonValue data = object.value(kDataKey);
    const QJsonValue children = object.value(kChildrenKey);
    QVariantList cells;
    if (levels == 0 || !(data.isArray() || data.isUndefined()) ||
        !(children.isArray() || children.isUndefined()) ||
        (data.isArray() && !listFromJson(data.toArray(), levels - 1, &cells)))
        return false;
    node->data = VariantItems(std::move(cells));
    if (children.isArray() && levels < 2)
        return false;
    for (const QJsonValue child : children.toArray()) {
        RowNode *added = child.isObject() ? node->addNewChild({}) : nullptr;
        if (!added || !nodeFromJson(child.toObject(), levels - 2, added))
            return false;
    }
    return true;
}

bool cellToJson(const QVariant &cell, int levels, QJsonValue *json);

template<typename List>
bool listToJson(const List &list, int levels, QJsonArray *array)
{
    if (levels == 0)
        return false;
    for (const QVariant &item : list) {
        QJsonValue json;
        if (!cellToJson(item, levels - 1, &json))
            return false;
        array->append(json);
    }
    return true;
}

bool mapToJson(const QVariantMap &map, int levels, QJsonValue *json)
{
    QJsonObject object;
    for (auto it = map.begin(); it != map.end(); ++it) {
        QJsonValue member;
        if (levels == 0 || !cellToJson(it.value(), levels - 1, &member))
            return false;
        object.insert(it.key(), member);
    }
    *json = object;
    return levels > 0;
}

bool typedToJson(const QVariant &cell, int levels, QJsonValue *json)
{
    const CellType *type = cellTypeOf(cell);
    QJsonValue payload;
    if (!type || levels == 0 || !cellToJson(type->toPayload(cell), levels - 1, &payload))
        return false;
    *json = QJsonObject{{type->name, payload}};
    return true;
}

bool cellToJson(const QVariant &cell, int levels, QJsonValue *json)
{
    switch (cellFormOf(cell)) {
    case CellForm::Null:
        *json = QJsonValue(QJsonValue::Null);
        return true;
    case CellForm::Bool:
        *json = cell.toBool();
        return true;
    case CellForm::Integer:
        *json = cell.toLongLong();
        return true;
    case CellForm::Double:
        *json = cell.toDouble();
        return true;
    case CellForm::Text:
        *json = cell.toString();
        return true;
    case CellForm::List: {
        QJsonArray array;
        const bool ok = listToJson(cell.toList(), levels, &array);
        *json = array;
        return ok;
    }
    case CellForm::Map:
        return mapToJson(cell.toMap(), levels, json);
    case CellForm::Unread: {
        const auto *const unread = static_cast<const rn::UnreadCell *>(cell.constData());
        *json = QJsonObject{{unread->type, unread->payload}};
        return isWritable(cell, levels);
    }
    case CellForm::Typed:
        break;
    }
    return typedToJson(cell, levels, json);
}

bool nodeToJson(const RowNode &node, int levels, QJsonObject *object)
{
    QJsonArray data;
    if (levels < 2 || !listToJson(node.data, levels - 1, &data))
        return false;
    QJsonArray children;
    for (int i = 0; i < node.getChildListSize(); ++i) {
        QJsonObject child;
        if (!nodeToJson(*node.getChild(i), levels - 2, &child))
            return false;
        children.append(child);
    }
    *object = {{kDataKey, data}, {kChildrenKey, children}};
    return true;
}

} // namespace

bool nodeFromObject(const QJsonObject &object, RowNode *node)
{
    return nodeFromJson(object, rn::kMaxNesting, node);
}

bool nodeToObject(const RowNode &node, QJsonObject *object)
{
    return nodeToJson(node, rn::kMaxNesting, object);
}

} // namespace orv::Internal
