#include "CatalogueRows.h"

#include "TestData.h"

#include <orv/table/CsvReader.h>

#include <QBuffer>

namespace CatalogueRows {

QList<Row> read()
{
    QByteArray text = TestData::read(QStringLiteral(ORV_DEFAULTS_FILE));
    QBuffer device(&text);
    device.open(QIODevice::ReadOnly);
    orv::CsvReader reader(&device);
    QList<Row> rows;
    for (bool isHeading = true;; isHeading = false) {
        const auto record = reader.next();
        if (record.hasError() || (record->has_value() && (*record)->fields.size() != 4))
            qFatal("defaults.csv is damaged behind row %d", int(rows.size()));
        if (!record->has_value())
            return rows;
        const QStringList &fields = (*record)->fields;
        if (!isHeading)
            rows.append({fields[0], fields[1], fields[2], fields[3]});
    }
}

} // namespace CatalogueRows
