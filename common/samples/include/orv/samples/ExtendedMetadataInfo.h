#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/resources/ResourceReferenceKey.h>
#include <orv/samples/MetadataMapping.h>

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

namespace orv {

/// What a document remembers of the server's sample metadata: a cache of values by resource, so that the
/// document can be shown without the server, and the connections that say where the values go.
///
/// JSON form: {"metadataCache": [{"reference": text, "values": [{"attribute", "value"}]}],
/// "metadataMappingConnections": [{"attribute", "alias", "target": number}]}, no alias being the same as an
/// empty one. Cache entries are written in the order of their texts. Members that this version doesn't know
/// are kept and written back, at every level. A plain value.
class ORV_WORKFLOW_EXPORT ExtendedMetadataInfo
{
public:
    /// By what a reference names, so that any ResourceReferenceSPtr finds the values of its resource.
    using MetadataCache = QHash<ResourceReferenceKey, QList<TalvaneExtendedMetaDataValue>>;

    /// Missing members read as empty. A member of the wrong type fails with InvalidContent, naming it.
    /// Entries of one reference are joined, under the text of the first. An entry whose text is no reference
    /// can't be looked up, and is kept for toJson.
    [[nodiscard]] static Result<ExtendedMetadataInfo> fromJson(const QJsonObject &json);
    [[nodiscard]] QJsonObject toJson() const;

    [[nodiscard]] MetadataCache metadataCache() const { return m_cache; }
    /// Members of an entry that this version doesn't know stay with its reference, and go with it. Entries
    /// whose text is no reference stay.
    void setMetadataCache(const MetadataCache &cache);

    [[nodiscard]] QList<TalvaneMetadataMappingConnection> metadataMappingConnections() const
    {
        return m_connections;
    }
    void setMetadataMappingConnections(const QList<TalvaneMetadataMappingConnection> &connections)
    {
        m_connections = connections;
    }

    /// The names under which tables show the connected attributes, one for each attribute, in the order of
    /// the connections. Two attributes may have one name.
    [[nodiscard]] QStringList columnNames() const;

    bool operator==(const ExtendedMetadataInfo &) const = default;

private:
    MetadataCache m_cache;
    QList<TalvaneMetadataMappingConnection> m_connections;
    QJsonObject m_unknown;
    QHash<ResourceReferenceKey, QJsonObject> m_unknownOfCacheEntries;
    QList<QJsonObject> m_entriesWithoutReference;
};

} // namespace orv
