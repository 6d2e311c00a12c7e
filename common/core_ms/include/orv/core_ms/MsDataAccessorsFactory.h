#pragma once

#include <orv/core/Export.h>
#include <orv/core_ms/MsReaderAccessor.h>

#include <memory>

namespace orv::msreader {

/// Makes the reader that fits a file or folder. Any thread.
class ORV_WORKFLOW_EXPORT MsDataAccessorsFactory
{
public:
    /// Never null: whatever is wrong with the path is told by open(). mzML, mzXML and MGF are read, packed by
    /// gzip or not (then also under a name such as "run.mzML.gz"), and so is an acquired sample (.tolq) with
    /// one of them inside. All other formats need a library of their vendor, which open() says.
    [[nodiscard]] static std::unique_ptr<MsReaderAccessor> createReader(const MsReaderOptions &options);
};

} // namespace orv::msreader
