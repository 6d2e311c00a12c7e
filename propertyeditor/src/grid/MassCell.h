#pragma once

#include <orv/core/Error.h>
#include <orv/table/RowNode.h>

#include <QJsonObject>

namespace orv {

class MassTableWidget;

/// Shows the two tables of a cell of masses; MalformedStructure where one has no columns.
Error showMassCell(MassTableWidget *widget, const RowNode &masses, const RowNode &tolerance,
                   const QJsonObject &cell);

} // namespace orv
