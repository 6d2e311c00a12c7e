#pragma once

#include <orv/chemistry/ProteinAnnotationEntry.h>
#include <orv/table/RowNode.h>

#include <QList>

namespace orv::PropertyEditor {

/// What a cell of proteins holds. A plain value.
struct ProteinsContent
{
    RowNode root; ///< the table; docs/formats.md lists the columns
    QList<ProteinAnnotationEntry> annotations;
};

} // namespace orv::PropertyEditor
