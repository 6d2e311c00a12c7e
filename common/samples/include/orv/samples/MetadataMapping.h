#pragma once

#include <orv/resources/ResourceReference.h>

#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>

namespace orv {

/// Which table receives a value of the server's sample metadata. Stored in files, never renumber.
enum class MappingTarget
{
    None = 0,
    Samples = 1,
    IntactProteins = 2,
};

/// One attribute of a server resource and its value, such as "Column temperature" and 60.
struct TalvaneExtendedMetaDataValue
{
    QString attribute;
    QJsonValue value;
    QJsonObject unknownMembers; ///< read from a file of a newer version, written back as they stand

    bool operator==(const TalvaneExtendedMetaDataValue &) const = default;
};

/// The user's wish that values of an attribute go to a table.
struct TalvaneMetadataMappingConnection
{
    QString attribute;
    MappingTarget target = MappingTarget::None; ///< a number that this version doesn't know is kept
    QJsonObject unknownMembers;
    QString alias = {}; ///< the user's name for the attribute, empty for none

    /// The name under which tables show the attribute.
    [[nodiscard]] const QString &columnName() const { return alias.isEmpty() ? attribute : alias; }

    bool operator==(const TalvaneMetadataMappingConnection &) const = default;
};

/// A value on its way into a table: for which samples, what, and where to.
struct MetadataMapping
{
    QList<int> sampleIds;
    TalvaneExtendedMetaDataValue value;
    MappingTarget target = MappingTarget::None;

    bool operator==(const MetadataMapping &) const = default;
};

/// That a file has moved: whoever refers to the old one is to refer to the new one.
struct ReferenceMapping
{
    ResourceReferenceSPtr oldReference;
    ResourceReferenceSPtr newReference;
};

} // namespace orv
