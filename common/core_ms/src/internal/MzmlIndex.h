#pragma once

#include "MsXmlReading.h"

namespace orv::msreader::internal {

/// The chromatograms of an mzML file, found by the index at its end, so that nobody reads the spectra in
/// front of them. Nothing if there is no index, or if it doesn't lead to what it promises: then the file has
/// to be read from the front. \a file can be moved about in.
[[nodiscard]] std::optional<QList<MsItem>> chromatogramsByIndex(QIODevice *file);

} // namespace orv::msreader::internal
