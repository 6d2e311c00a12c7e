#pragma once

#include <orv/core/Export.h>
#include <orv/core_ms/MsReaderAccessor.h>
#include <orv/samples/TraceItem.h>

#include <QStringList>

#include <memory>

/// What workflows ask of the MS files of their samples. Any thread.
namespace orv::MsUtils {

/// How workflows call a chromatogram of that type.
[[nodiscard]] ORV_WORKFLOW_EXPORT TraceType traceTypeFromChromatogramType(msreader::ChromatogramType type);

/// The traces of an open file: first TIC and base peak, which are made from the spectra of level 1 where the
/// file has such spectra but no such chromatogram, then its further chromatograms in its order. Errors as of
/// MsReaderAccessor.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QList<TraceItem>>
extractTraces(const msreader::MsReaderAccessor &accessor);

/// A file and its reader, which is open unless \a error tells why it couldn't be opened.
struct AccessorForMsFile
{
    std::shared_ptr<msreader::MsReaderAccessor> accessor; ///< never null
    Error error;
};

/// A reader for each path, in their order. One that fails doesn't keep the others from being opened.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<AccessorForMsFile> accessorsForMsFiles(const QStringList &paths);

} // namespace orv::MsUtils
