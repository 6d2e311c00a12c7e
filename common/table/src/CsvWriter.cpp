#include "orv/table/CsvWriter.h"

#include <csv.h>

#include <cstddef>

namespace orv::CsvWriter {

namespace {

bool needsQuotes(const QByteArray &field, char separator)
{
    return field.contains(separator) || field.contains('"') || field.contains('\n') || field.contains('\r');
}

QByteArray quoted(const QByteArray &field)
{
    const auto *const source = field.constData();
    const auto size = size_t(field.size());
    QByteArray bytes(qsizetype(csv_write(nullptr, 0, source, size)), Qt::Uninitialized);
    csv_write(bytes.data(), size_t(bytes.size()), source, size);
    return bytes;
}

} // namespace

QByteArray row(const QStringList &fields, char separator)
{
    QByteArray bytes;
    const bool wouldBeNoRow = fields.size() == 1 && fields.constFirst().isEmpty();
    for (const QString &text : fields) {
        const QByteArray field = text.toUtf8();
        if (!bytes.isEmpty() || &text != &fields.constFirst())
            bytes += separator;
        bytes += needsQuotes(field, separator) || wouldBeNoRow ? quoted(field) : field;
    }
    return bytes + "\r\n";
}

} // namespace orv::CsvWriter
