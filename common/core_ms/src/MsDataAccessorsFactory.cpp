#include "orv/core_ms/MsDataAccessorsFactory.h"

#include "internal/PackedFile.h"
#include "internal/Readers.h"

#include <orv/core_ms/MsDataFileUtils.h>

#include <QMap>
#include <QReadWriteLock>

#include <algorithm>

namespace orv::msreader {

namespace {

struct ReaderRow
{
    VendorDataFormat format;
    std::unique_ptr<MsReaderAccessor> (*create)(const MsReaderOptions &options);
};

constexpr ReaderRow kReaderRows[] = {
    {VendorDataFormat::Mzml, internal::createMzmlReader},
    {VendorDataFormat::Mzxml, internal::createMzxmlReader},
    {VendorDataFormat::Mgf, internal::createMgfReader},
    {VendorDataFormat::Tolq, internal::createTolqReader},
};

struct Registry
{
    QReadWriteLock lock;
    QMap<VendorDataFormat, MsDataAccessorsFactory::ReaderFactory> factories;
};

Registry &registry()
{
    static Registry instance;
    return instance;
}

MsDataAccessorsFactory::ReaderFactory factoryOf(VendorDataFormat format)
{
    Registry &all = registry();
    const QReadLocker locker(&all.lock);
    return all.factories.value(format);
}

/// Several formats may lie in one folder; the one with the lowest number stands for them. An acquired sample
/// is read as what it is, whatever lies inside.
VendorDataFormat formatOf(const QString &path)
{
    QSet<VendorDataFormat> formats = MsDataFileUtils::detectPossibleVendorFormats(path);
    // Only open formats are packed by themselves; detectors don't know the packed names.
    if (formats.isEmpty() && internal::hasPackedName(path))
        formats = MsDataFileUtils::detectPossibleVendorFormats(internal::unpackedName(path));
    if (formats.contains(VendorDataFormat::Tolq))
        return VendorDataFormat::Tolq;
    const auto lowest = std::min_element(formats.begin(), formats.end());
    return lowest == formats.end() ? VendorDataFormat::Unknown : *lowest;
}

} // namespace

std::unique_ptr<MsReaderAccessor> MsDataAccessorsFactory::createReader(const MsReaderOptions &options)
{
    const VendorDataFormat format = formatOf(options.path);
    if (const ReaderFactory factory = factoryOf(format))
        return factory(options);
    for (const ReaderRow &row : kReaderRows) {
        if (row.format == format)
            return row.create(options);
    }
    return internal::createClosedReader(options, format);
}

void MsDataAccessorsFactory::setReaderFactory(VendorDataFormat format, const ReaderFactory &factory)
{
    Registry &all = registry();
    const QWriteLocker locker(&all.lock);
    if (factory)
        all.factories.insert(format, factory);
    else
        all.factories.remove(format);
}

} // namespace orv::msreader
