#include "orv/chemistry/Fasta.h"

#include <orv/core/FileUtils.h>

#include <QBuffer>
#include <QCoreApplication>

namespace orv::Fasta {

namespace {

constexpr qsizetype kLineLetters = 60;

struct FastaTr
{
    Q_DECLARE_TR_FUNCTIONS(Fasta)
};

} // namespace

Result<QList<FastaEntry>> readFile(const QString &path)
{
    Result<QByteArray> bytes = FileUtils::readFile(path, kMaxFileSize);
    if (bytes.hasError())
        return bytes.ecatch();
    QBuffer device(&*bytes);
    device.open(QIODevice::ReadOnly);
    FastaReader reader(&device);
    QList<FastaEntry> entries;
    Warnings warnings;
    for (;;) {
        Result<std::optional<FastaEntry>> entry = reader.next();
        warnings.append(entry.warnings());
        if (entry.hasError())
            return {entry.ecatch().addDetail(FastaTr::tr("The file is %1.").arg(path)), warnings};
        if (!entry->has_value())
            break;
        entries.append(*std::move(entry).value());
    }
    if (entries.isEmpty()) {
        return {Error(ErrorCode::InvalidContent, FastaTr::tr("The FASTA file has no sequence."))
                    .addDetail(FastaTr::tr("The file is %1.").arg(path)),
                warnings};
    }
    return {entries, warnings};
}

QByteArray toText(const QList<FastaEntry> &entries)
{
    QByteArray text;
    for (const FastaEntry &entry : entries) {
        const QString header = (entry.name + QLatin1Char(' ') + entry.description).simplified();
        text += '>' + header.toUtf8() + '\n';
        const QByteArray sequence = entry.sequence.toUtf8();
        for (qsizetype at = 0; at < sequence.size();) {
            // A name in brackets stays in its line.
            qsizetype end = std::min(at + kLineLetters, sequence.size());
            const qsizetype open = sequence.lastIndexOf('[', end - 1);
            const qsizetype close = open >= at ? sequence.indexOf(']', open) : -1;
            if (close >= end)
                end = close + 1;
            text += sequence.mid(at, end - at) + '\n';
            at = end;
        }
    }
    return text;
}

Error writeFile(const QString &path, const QList<FastaEntry> &entries)
{
    QString reason;
    if (FileUtils::writeToFile(path, toText(entries), &reason) == QFileDevice::NoError)
        return Error::NoError;
    return Error(ErrorCode::CannotOpenFile, FastaTr::tr("Could not write the file: %1").arg(path))
        .addDetail(reason);
}

} // namespace orv::Fasta
