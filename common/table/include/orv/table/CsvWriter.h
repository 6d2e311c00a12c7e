#pragma once

#include <orv/core/Export.h>

#include <QByteArray>
#include <QStringList>

namespace orv::CsvWriter {

/// One row of comma-separated text (RFC 4180, UTF-8) with its line end CRLF. Fields that hold a comma, a
/// quote or a line break are quoted, and so is a row of one empty field, which would else be no row. Any
/// thread. Another ASCII \a separator, such as a tabulator, takes the place of the comma.
[[nodiscard]] ORV_WORKFLOW_EXPORT QByteArray row(const QStringList &fields, char separator = ',');

} // namespace orv::CsvWriter
