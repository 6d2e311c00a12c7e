#include "MzmlIndex.h"

namespace orv::msreader::internal {

namespace {

constexpr qint64 kIndexTailBytes = 4096;

/// Where the elements of one kind begin.
struct Offsets
{
    qint64 first = -1;
    qint64 count = 0;
};

struct Index
{
    Offsets spectra;
    Offsets chromatograms;
};

qint64 indexOffset(QIODevice *file)
{
    constexpr QByteArrayView kTag("<indexListOffset>");
    file->seek(qMax<qint64>(0, file->size() - kIndexTailBytes));
    const QByteArray tail = file->read(kIndexTailBytes);
    const qsizetype tag = tail.lastIndexOf(kTag);
    if (tag < 0)
        return -1;
    const qsizetype begin = tag + kTag.size();
    bool isNumber = false;
    const qint64 offset = tail.mid(begin, tail.indexOf('<', begin) - begin).trimmed().toLongLong(&isNumber);
    return isNumber && offset > 0 && offset < file->size() ? offset : -1;
}

std::optional<Index> readIndex(QIODevice *file)
{
    const qint64 offset = indexOffset(file);
    if (offset < 0 || !file->seek(offset))
        return std::nullopt;
    Index index;
    Offsets *offsets = nullptr;
    XmlScanner xml(file);
    while (xml.next()) {
        if (xml.level() == 1 && xml.name() != QLatin1String("indexList"))
            return std::nullopt;
        if (xml.level() == 1 && !xml.isStart())
            return index; // text behind the list is none of ours
        if (!xml.isStart())
            continue;
        if (xml.name() == QLatin1String("index")) {
            const QString name = xml.attribute("name");
            offsets = name == MzmlReading::kSpectrum       ? &index.spectra
                      : name == MzmlReading::kChromatogram ? &index.chromatograms
                                                           : nullptr;
        } else if (xml.name() == QLatin1String("offset") && offsets && offsets->count++ == 0) {
            offsets->first = xml.textBeforeNextTag().trimmed().toLongLong();
        }
    }
    return std::nullopt;
}

bool leadsTo(QIODevice *file, const Offsets &offsets, QLatin1String name)
{
    if (offsets.count == 0)
        return true;
    const QByteArray wanted = '<' + QByteArray(name.data(), name.size()) + ' ';
    return offsets.first > 0 && file->seek(offsets.first) && file->read(wanted.size()) == wanted;
}

} // namespace

std::optional<QList<MsItem>> chromatogramsByIndex(QIODevice *file)
{
    const std::optional<Index> index = readIndex(file);
    if (!index || (index->spectra.count == 0 && index->chromatograms.count == 0) ||
        !leadsTo(file, index->spectra, MzmlReading::kSpectrum) ||
        !leadsTo(file, index->chromatograms, MzmlReading::kChromatogram))
        return std::nullopt;
    QList<MsItem> items;
    if (index->chromatograms.count == 0)
        return items;

    file->seek(0);
    MzmlReading header(file, MzmlReading::Extent::Header);
    if (header.next() || header.failure().hasError() || !file->seek(index->chromatograms.first))
        return std::nullopt;
    MzmlReading list(file, MzmlReading::Extent::Chromatograms);
    list.setGroups(header.groups());
    while (std::optional<MsItem> item = list.next())
        items.append(std::move(*item));
    if (list.failure().hasError() || items.size() != index->chromatograms.count)
        return std::nullopt;
    return items;
}

} // namespace orv::msreader::internal
