#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/samples/SamplesInput.h>
#include <orv/samples/TraceImportAndProcessingOptions.h>

#include <QJsonObject>
#include <QList>

QT_FORWARD_DECLARE_CLASS(QUrl)

namespace orv {

/// What a samples cell holds: the samples, their custom columns, and the options of their traces. A plain
/// value.
///
/// One reader serves all versions of documents. The present form (docs/formats.md) is {"Samples": [...],
/// "CustomColumns": [...], "TraceImportAndProcessingOptions": {...}}. A tree of rows, as documents below
/// version 5.6.0 have it, is read too; it is written as it was until something in it is changed, and then in
/// the present form. Members that this version doesn't know are kept at every level.
class ORV_WORKFLOW_EXPORT SamplesAndTracesContent
{
public:
    SamplesInput::SamplesArrayWithCustomColumns samples;
    TraceImportAndProcessingOptions options;

    /// Absent and null members read as empty. A sample without an id gets the next one that is free. Fails
    /// with InvalidContent for a member of the wrong type; details name the sample. Takes time linear in the
    /// count of samples.
    [[nodiscard]] static Result<SamplesAndTracesContent> fromJson(const QJsonObject &json);
    [[nodiscard]] QJsonObject toJson() const;

    /// The files of all samples, each sample's MS file first and then its companions. No null ones; repeats
    /// are kept.
    [[nodiscard]] QList<ResourceReferenceSPtr> references() const;

    /// The same with relative files of samples taken from \a baseUrl, see ResourceReferenceUtils::resolved.
    [[nodiscard]] SamplesAndTracesContent resolved(const QUrl &baseUrl) const;

    /// Whether both are stored alike.
    friend bool operator==(const SamplesAndTracesContent &a, const SamplesAndTracesContent &b)
    {
        return a.toJson() == b.toJson();
    }

private:
    friend class SamplesAndTracesTables;

    [[nodiscard]] QJsonObject presentForm() const;
    /// With samples that are written already, and the custom columns that show by them.
    [[nodiscard]] QJsonObject presentForm(const QJsonArray &array,
                                          const QList<SamplesInput::CustomColumn> &impliedColumns) const;
    /// \a json, or the tree of rows that is read as the same.
    [[nodiscard]] QJsonObject asStored(const QJsonObject &json) const;

    QJsonObject m_stored;
};

} // namespace orv
