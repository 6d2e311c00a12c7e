#include "internal/PackedFile.h"
#include "internal/Readers.h"

#include <orv/core_ms/MsDataAccessorsFactory.h>
#include <orv/core_ms/MsDataFileUtils.h>

#include <algorithm>

namespace orv::msreader {

namespace {

struct Row
{
    VendorDataFormat format;
    std::unique_ptr<MsReaderAccessor> (*create)(const MsReaderOptions &options);
};

constexpr Row kRows[] = {
    {VendorDataFormat::Mzml, internal::createMzmlReader},
    {VendorDataFormat::Mzxml, internal::createMzxmlReader},
    {VendorDataFormat::Mgf, internal::createMgfReader},
    {VendorDataFormat::Tolq, internal::createTolqReader},
};

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
    for (const Row &row : kRows) {
        if (row.format == format)
            return row.create(options);
    }
    return internal::createClosedReader(options, format);
}

} // namespace orv::msreader
