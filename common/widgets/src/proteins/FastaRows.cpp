#include "FastaRows.h"

#include <orv/chemistry/Fasta.h>

#include <QBuffer>

namespace orv {

namespace {

bool isFasta(const QByteArray &text)
{
    const QByteArray start = text.left(1 << 16).trimmed();
    return start.startsWith('>') ||
           ((start.startsWith(';') || start.startsWith('#')) && start.contains("\n>"));
}

} // namespace

std::optional<Result<QList<QStringList>>> readFastaRows(const QByteArray &text, const FastaColumns &columns)
{
    if (!isFasta(text))
        return std::nullopt;
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    FastaReader reader(&buffer);
    QList<QStringList> rows;
    for (;;) {
        Result<std::optional<FastaEntry>> entry = reader.next();
        if (entry.hasError())
            return Result<QList<QStringList>>(entry.ecatch());
        if (!entry->has_value())
            return Result<QList<QStringList>>(std::move(rows));
        QStringList row(columns.width);
        row[columns.name] = (*entry)->name;
        if (columns.description >= 0)
            row[columns.description] = (*entry)->description;
        row[columns.sequence] = (*entry)->sequence;
        rows.append(row);
    }
}

} // namespace orv
