#pragma once

#include <orv/core/Export.h>
#include <orv/samples/MetadataMapping.h>
#include <orv/samples/SamplesInput.h>

#include <QList>

namespace orv {

/// Brings the server's metadata into the samples table. Columns that came from metadata before go, with their
/// values; each of \a connections then has a column named by its alias, in their order, and \a mappings
/// fill it for their samples. Of several values for one cell the last stays. Of two connections with one
/// alias the first has the column, and a user's column of that name stays as it is; both are logged as
/// warnings. Takes time linear in samples, connections and mappings.
ORV_WORKFLOW_EXPORT void rebuildMetadataInSamples(const QList<TalvaneMetadataMappingConnection> &connections,
                                                  const QList<MetadataMapping> &mappings,
                                                  SamplesInput::SamplesArrayWithCustomColumns *samples);

} // namespace orv
