#pragma once

#include <orv/core/Export.h>
#include <orv/core_ms/MsReaderAccessor.h>

#include <functional>
#include <memory>

namespace orv::msreader {

/// Makes the reader that fits a file or folder. Any thread.
class ORV_WORKFLOW_EXPORT MsDataAccessorsFactory
{
public:
    /// Never null: whatever is wrong with the path is told by open(). mzML, mzXML and MGF are read, packed by
    /// gzip or not (then also under a name such as "run.mzML.gz"), and so is an acquired sample (.tolq) with
    /// one of them inside. All other formats need a library of their vendor: unless a host has registered a
    /// reader, open() says so.
    [[nodiscard]] static std::unique_ptr<MsReaderAccessor> createReader(const MsReaderOptions &options);

    /// Makes the reader of one format, never null.
    using ReaderFactory = std::function<std::unique_ptr<MsReaderAccessor>(const MsReaderOptions &options)>;

    /// Puts \a factory in charge of \a format, in place of an earlier one or of the reader of this library;
    /// an empty one gives up the format. Readers that were made before stay as they are.
    static void setReaderFactory(VendorDataFormat format, const ReaderFactory &factory);
};

} // namespace orv::msreader
