#pragma once

#include <orv/core_ms/MsReaderAccessor.h>

#include <memory>

namespace orv::msreader::internal {

/// Readers of the open formats. Questions read the file anew.
[[nodiscard]] std::unique_ptr<MsReaderAccessor> createMzmlReader(const MsReaderOptions &options);
[[nodiscard]] std::unique_ptr<MsReaderAccessor> createMzxmlReader(const MsReaderOptions &options);
[[nodiscard]] std::unique_ptr<MsReaderAccessor> createMgfReader(const MsReaderOptions &options);
/// Reads the sample inside.
[[nodiscard]] std::unique_ptr<MsReaderAccessor> createTolqReader(const MsReaderOptions &options);
/// Can't be opened, and says why: the format is Unknown, or one that needs its vendor's library.
[[nodiscard]] std::unique_ptr<MsReaderAccessor> createClosedReader(const MsReaderOptions &options,
                                                                   VendorDataFormat format);

} // namespace orv::msreader::internal
