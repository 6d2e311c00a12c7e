#pragma once

#include <orv/table/RowNode.h>

#include <QJsonObject>

namespace orv::Internal {

/// Between nodes and parsed documents; as RowNodeReader and RowNodeWriter in all that is accepted and
/// refused.
[[nodiscard]] bool nodeFromObject(const QJsonObject &object, RowNode *node);
[[nodiscard]] bool nodeToObject(const RowNode &node, QJsonObject *object);

} // namespace orv::Internal
