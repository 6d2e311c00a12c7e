#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/resources/ResourceReference.h>

#include <QJsonObject>
#include <QList>
#include <QString>

namespace orv {

/// One row of a table of sequence databases: a FASTA file and the species it is taken from. A plain value.
///
/// JSON form: {"id", "fasta", "species"}; a text that is no reference reads as none and is kept until another
/// file is set, and members that this version doesn't know are kept.
class ORV_WORKFLOW_EXPORT SequenceDatabaseItem
{
public:
    /// The id of the first row.
    static constexpr int START_ID = 1;

    SequenceDatabaseItem() = default;
    SequenceDatabaseItem(ResourceReferenceSPtr fastaReference, int id, QString species)
        : m_fastaReference(std::move(fastaReference))
        , m_id(id)
        , m_species(std::move(species))
    {}

    /// Absent members read as START_ID and empty. Fails with InvalidContent for a member of the wrong type,
    /// naming it.
    [[nodiscard]] static Result<SequenceDatabaseItem> fromJson(const QJsonObject &json);
    [[nodiscard]] QJsonObject toJson() const;

    /// Null for an empty row.
    [[nodiscard]] const ResourceReferenceSPtr &fastaReference() const { return m_fastaReference; }
    void setFastaReference(const ResourceReferenceSPtr &reference) { m_fastaReference = reference; }
    [[nodiscard]] int id() const { return m_id; }
    void setId(int id) { m_id = id; }
    [[nodiscard]] const QString &species() const { return m_species; }
    void setSpecies(const QString &species) { m_species = species; }

    /// Whether both are stored alike.
    friend bool operator==(const SequenceDatabaseItem &a, const SequenceDatabaseItem &b)
    {
        return a.toJson() == b.toJson();
    }

private:
    ResourceReferenceSPtr m_fastaReference;
    int m_id = START_ID;
    QString m_species;
    QJsonObject m_stored;
};

/// The files of all rows that have one, in order; repeats are kept.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<ResourceReferenceSPtr>
getFastaReferences(const QList<SequenceDatabaseItem> &items);

} // namespace orv
