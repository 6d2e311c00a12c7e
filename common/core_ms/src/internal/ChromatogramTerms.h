#pragma once

#include <orv/core_ms/ChromatogramInfo.h>

#include <QStringList>

namespace orv::msreader::internal {

/// The type that the terms of a chromatogram tell, by accession number ("MS:1000235"). Terms that are newer
/// than the vocabulary of this program tell nothing.
[[nodiscard]] ChromatogramType chromatogramTypeOf(const QStringList &terms);

} // namespace orv::msreader::internal
