#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/table/RowNode.h>

#include <QJsonObject>
#include <QList>
#include <QString>

namespace orv {

/// A table in a cell, under the name of its property, or under its own where one property holds several.
struct CellTable
{
    QString name;
    RowNode table;
};

/// The tables that people see in a raw cell, in the order of the cell: of plain tables, of the chains,
/// proteins and building blocks of intact proteins and oligonucleotides, of samples and of sequence
/// databases. None for a cell without tables. Fails with the error of samples or databases that can't be
/// read. Any thread.
///
/// Samples have the columns "SamplesId", "SampleName", "SamplePath" and "Reference", those of the other
/// members that some sample uses, and the custom columns; files are texts, several of them a list.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QList<CellTable>> cellTables(const QJsonObject &cell);

} // namespace orv
