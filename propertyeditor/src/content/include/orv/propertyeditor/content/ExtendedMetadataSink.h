#pragma once

#include <orv/core/Export.h>
#include <orv/samples/MetadataMapping.h>

#include <QList>

namespace orv::PropertyEditor {

/// A table that shows the server's sample metadata. Implemented by the items that hold such a table.
class ORV_WORKFLOW_EXPORT ExtendedMetadataSink
{
public:
    ExtendedMetadataSink() = default;
    virtual ~ExtendedMetadataSink();
    Q_DISABLE_COPY_MOVE(ExtendedMetadataSink)

    [[nodiscard]] virtual MappingTarget target() const = 0;
    /// Replaces the metadata shown by the given values; empty lists clear it.
    virtual void reloadMetadata(const QList<MetadataMapping> &mappings,
                                const QList<TalvaneMetadataMappingConnection> &connections) = 0;
};

} // namespace orv::PropertyEditor
