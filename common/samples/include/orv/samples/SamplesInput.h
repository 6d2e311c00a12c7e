#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/resources/ResourceReference.h>
#include <orv/samples/CustomColumns.h>

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QVariantMap>

/// The samples table of a workflow.
namespace orv::SamplesInput {

/// What the samples are for, which decides the columns that a person sees. Known to hosts by number, never
/// renumber.
enum class Mode : int
{
    Senthia = 0,
    Trenq = 1,
    Ostrale = 2,
    Intact = 3,
    Oligo = 4,
    Dravik = 5,
    Karvon = 6,
    MultiDocReport = 7,
    Preview = 8,
};

/// One row: a sample, or in a report over several documents one document. A plain value.
///
/// JSON form in docs/formats.md. A text that is no reference reads as a null reference.
struct ORV_WORKFLOW_EXPORT Entry
{
    int id = 0; ///< by which proteins, masses and traces refer to the sample
    QString name;
    ResourceReferenceSPtr msFile;
    QList<ResourceReferenceSPtr> traces;
    QList<ResourceReferenceSPtr> extraReferences; ///< results of a search and other companions of the sample
    bool isReference = false;                     ///< others are compared with it
    QString timeUnit;
    QString digestion;
    QString sampleType;
    QJsonObject metadata; ///< of documents below version 5.6.0, whose "type" 1 tells of a UNIFI item
    /// What the home of a file tells of it, by the text of its reference.
    QHash<QString, QJsonObject> fileMetadata;

    /// The object that the entry was read from. toJson keeps what of it hasn't changed.
    QJsonObject stored;

    /// Fails with InvalidContent for a member of the wrong type, naming it.
    [[nodiscard]] static Result<Entry> fromJson(const QJsonObject &json);
    [[nodiscard]] QJsonObject toJson() const;

    /// Whether the MS file lies on an external server, so that nothing about it can be told from here.
    [[nodiscard]] bool isMsFileExternal() const;

    /// The traces and then the extra references.
    [[nodiscard]] QList<ResourceReferenceSPtr> companions() const;

    /// Moves what is known of a file to the text that it has now; nothing happens when nothing is.
    void moveFileMetadata(const QString &oldText, const QString &newText);

    /// Whether both are stored alike.
    friend bool operator==(const Entry &a, const Entry &b) { return a.toJson() == b.toJson(); }
};

/// A sample and its texts, numbers and bools in the custom columns, by column name.
struct ORV_WORKFLOW_EXPORT SampleWithCustomColumns : Entry
{
    QVariantMap customValues;

    SampleWithCustomColumns() = default;
    explicit SampleWithCustomColumns(Entry entry)
        : Entry(std::move(entry))
    {}

    friend bool operator==(const SampleWithCustomColumns &a, const SampleWithCustomColumns &b)
    {
        return a.customValues == b.customValues &&
               static_cast<const Entry &>(a) == static_cast<const Entry &>(b);
    }
};

/// The samples and the columns that they have beyond the usual ones.
struct ORV_WORKFLOW_EXPORT SamplesArrayWithCustomColumns
{
    QList<SampleWithCustomColumns> samples;
    CustomColumns columns;

    [[nodiscard]] QList<Entry> entries() const;
    [[nodiscard]] QStringList names() const;

    /// Removes the column and its values. False when there is none.
    bool removeCustomColumn(const QString &name);

    bool operator==(const SamplesArrayWithCustomColumns &) const = default;
};

/// The samples in the JSON object of a samples table, in the present form or as a tree of rows. Errors as
/// those of SamplesAndTracesContent::fromJson.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QList<Entry>> samplesFromJsonArray(const QJsonObject &samplesTable);

} // namespace orv::SamplesInput
