#pragma once

#include <orv/core/Export.h>

#include <QByteArray>
#include <QList>

namespace orv {

class TableModel;

/// Tables as text files. GUI thread.
namespace TableExport {

enum class Separator
{
    Comma,
    Tabulator,
};

/// The rows that the model shows, below a header with titles and units, as UTF-8 (RFC 4180 with a comma).
/// Numbers have a point and the digits that they carry, whatever the locale, so that a program reads them.
[[nodiscard]] ORV_WORKFLOW_EXPORT QByteArray text(const TableModel &model, const QList<int> &columns,
                                                  Separator separator);

} // namespace TableExport

} // namespace orv
