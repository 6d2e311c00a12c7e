#include "orv/table_model/TableExport.h"

#include <orv/table/CsvWriter.h>
#include <orv/table_model/TableModel.h>

namespace orv::TableExport {

QByteArray text(const TableModel &model, const QList<int> &columns, Separator separator)
{
    const char sign = separator == Separator::Comma ? ',' : '\t';
    QStringList fields;
    for (const int column : columns)
        fields.append(model.sheet()->columns()[column].header());
    QByteArray bytes = CsvWriter::row(fields, sign);
    for (int row = 0; row < model.rowCount(); ++row) {
        fields.clear();
        for (const int column : columns)
            fields.append(model.sheet()->textOf(model.rowId(row), column).toString());
        bytes += CsvWriter::row(fields, sign);
    }
    return bytes;
}

} // namespace orv::TableExport
