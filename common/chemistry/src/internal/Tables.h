#pragma once

#include <orv/table/RowNode.h>

#include <QLatin1String>

#include <initializer_list>

namespace orv::Internal {

/// A table of these columns, without rows.
inline RowNode tableOf(std::initializer_list<QLatin1String> columns)
{
    RowNode table;
    for (QLatin1String column : columns)
        table.data.append(QString(column));
    return table;
}

} // namespace orv::Internal
