#include "orv/samples/SequenceDatabaseItem.h"

#include "internal/MemberReader.h"

#include <orv/resources/ResourceReferenceUtils.h>

namespace orv {

namespace {

constexpr QLatin1String kId("id");
constexpr QLatin1String kFasta("fasta");
constexpr QLatin1String kSpecies("species");

} // namespace

Result<SequenceDatabaseItem> SequenceDatabaseItem::fromJson(const QJsonObject &json)
{
    MemberReader reader(json);
    const QString fasta = reader.text(kFasta);
    SequenceDatabaseItem item(nullptr, reader.integer(kId, START_ID), reader.text(kSpecies));
    ORV_RETURN_IF_ERROR(reader.error());
    item.m_fastaReference = ResourceReferenceUtils::fromString(fasta);
    item.m_stored = json;
    return item;
}

QJsonObject SequenceDatabaseItem::toJson() const
{
    QJsonObject json = m_stored;
    json.insert(kId, m_id);
    json.insert(kSpecies, m_species);
    const QString before = m_stored.value(kFasta).toString();
    const bool wasReference = !before.isEmpty() && !ResourceReference::fromString(before).hasError();
    // A text that is no reference gives way to a reference alone.
    if (m_fastaReference || wasReference || before.isEmpty())
        json.insert(kFasta, ResourceReferenceUtils::toString(m_fastaReference));
    return json;
}

QList<ResourceReferenceSPtr> getFastaReferences(const QList<SequenceDatabaseItem> &items)
{
    QList<ResourceReferenceSPtr> references;
    for (const SequenceDatabaseItem &item : items) {
        if (item.fastaReference())
            references.append(item.fastaReference());
    }
    return references;
}

} // namespace orv
