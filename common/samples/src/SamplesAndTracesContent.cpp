#include "orv/samples/SamplesAndTracesContent.h"

#include "internal/EntryMembers.h"
#include "internal/MemberReader.h"
#include "internal/SampleRows.h"
#include "internal/WrittenSamples.h"

#include <orv/resources/ResourceReferenceUtils.h>

#include <QSet>

#include <algorithm>

namespace orv {

namespace {

using SamplesInput::CustomColumn;
using SamplesInput::CustomColumns;
using SamplesInput::SamplesArrayWithCustomColumns;
using SamplesInput::SampleWithCustomColumns;

constexpr QLatin1String kSamples("Samples");
constexpr QLatin1String kCustomColumns("CustomColumns");
constexpr QLatin1String kOptions("TraceImportAndProcessingOptions");

Result<CustomColumns> readColumns(const QJsonObject &json, const QJsonArray &samples)
{
    if (MemberReader(json).has(kCustomColumns)) {
        Result<QJsonArray> array = JsonUtils::arrayValue(json, kCustomColumns);
        if (array.hasError())
            return array.ecatch();
        Result<CustomColumns> columns = CustomColumns::fromJson(*array);
        if (columns.hasError())
            return columns.ecatch();
        return columns;
    }
    CustomColumns columns;
    for (const CustomColumn &column : WrittenSamples::impliedColumns(samples))
        columns.addCustomColumn(column);
    return columns;
}

/// Moves the values of custom columns from the stored object to where they are used.
void takeCustomValues(SampleWithCustomColumns *sample, const CustomColumns &columns)
{
    const auto take = [sample](const QString &name, const QJsonValue &value) {
        if (WrittenSamples::columnType(value).isEmpty())
            return;
        sample->customValues.insert(name, value.toVariant());
        sample->stored.remove(name);
    };
    const QJsonObject stored = sample->stored;
    // A file may claim any number of columns.
    if (columns.columns().size() <= stored.size()) {
        for (const CustomColumn &column : columns.columns())
            take(column.name, stored.value(column.name));
        return;
    }
    for (auto it = stored.begin(); it != stored.end(); ++it) {
        if (columns.contains(it.key()))
            take(it.key(), it.value());
    }
}

/// Old documents number their samples, but a hand may have left a number out.
void numberSamplesWithoutId(QList<SampleWithCustomColumns> *samples)
{
    QSet<int> taken;
    for (const SampleWithCustomColumns &sample : std::as_const(*samples))
        taken.insert(sample.id);
    int next = 1;
    for (SampleWithCustomColumns &sample : *samples) {
        if (sample.stored.value(SamplesInput::Members::kId).isDouble())
            continue;
        while (taken.contains(next))
            ++next;
        sample.id = next++;
    }
}

Result<SamplesArrayWithCustomColumns> readSamples(const QJsonArray &array, const CustomColumns &columns)
{
    SamplesArrayWithCustomColumns result;
    result.columns = columns;
    result.samples.reserve(array.size());
    const QJsonObject holder{{kSamples, array}};
    MemberReader reader(holder);
    reader.forEachObject(kSamples, [&result](const QJsonObject &element) -> Error {
        Result<SamplesInput::Entry> entry = SamplesInput::Entry::fromJson(element);
        if (entry.hasError())
            return entry.ecatch();
        SampleWithCustomColumns sample(std::move(entry).value());
        takeCustomValues(&sample, result.columns);
        result.samples.append(sample);
        return Error::NoError;
    });
    ORV_RETURN_IF_ERROR(reader.error());
    numberSamplesWithoutId(&result.samples);
    return result;
}

Result<QJsonArray> samplesArray(const QJsonObject &json)
{
    if (SampleRows::isTree(json))
        return SampleRows::toSamples(json);
    return MemberReader(json).has(kSamples) ? JsonUtils::arrayValue(json, kSamples) : QJsonArray();
}

void resolve(ResourceReferenceSPtr *reference, const QUrl &baseUrl, SamplesInput::Entry *sample)
{
    if (!ResourceReferenceUtils::isRelative(*reference))
        return;
    const QString oldText = (*reference)->text();
    *reference = ResourceReferenceUtils::resolved(*reference, baseUrl);
    sample->moveFileMetadata(oldText, (*reference)->text());
}

} // namespace

Result<SamplesAndTracesContent> SamplesAndTracesContent::fromJson(const QJsonObject &json)
{
    Result<QJsonArray> array = samplesArray(json);
    if (array.hasError())
        return array.ecatch();
    Result<CustomColumns> columns = readColumns(json, *array);
    if (columns.hasError())
        return columns.ecatch();
    Result<SamplesArrayWithCustomColumns> samples = readSamples(*array, *columns);
    if (samples.hasError())
        return samples.ecatch();
    MemberReader reader(json);
    Result<TraceImportAndProcessingOptions> options =
        TraceImportAndProcessingOptions::fromJson(reader.object(kOptions));
    ORV_RETURN_IF_ERROR(reader.error());
    if (options.hasError())
        return options.ecatch();

    SamplesAndTracesContent content;
    content.samples = std::move(samples).value();
    content.options = std::move(options).value();
    content.m_stored = json;
    return content;
}

QJsonObject SamplesAndTracesContent::presentForm() const
{
    QJsonArray array;
    for (const SampleWithCustomColumns &sample : samples.samples)
        array.append(WrittenSamples::written(sample));
    const bool isListed = MemberReader(m_stored).has(kCustomColumns);
    return presentForm(array, isListed ? QList<CustomColumn>() : WrittenSamples::impliedColumns(array));
}

QJsonObject SamplesAndTracesContent::presentForm(const QJsonArray &array,
                                                 const QList<CustomColumn> &impliedColumns) const
{
    QJsonObject json = m_stored;
    if (SampleRows::isTree(m_stored)) {
        json.remove(QLatin1String("data"));
        json.remove(QLatin1String("children"));
    }
    json.insert(kSamples, array);
    const bool isListed = MemberReader(m_stored).has(kCustomColumns);
    if (isListed || samples.columns.columns() != impliedColumns)
        json.insert(kCustomColumns, samples.columns.toJson());
    const QJsonObject optionsJson = options.toJson();
    if (m_stored.contains(kOptions) ? m_stored.value(kOptions).toObject() != optionsJson
                                    : !optionsJson.isEmpty())
        json.insert(kOptions, optionsJson);
    return json;
}

QJsonObject SamplesAndTracesContent::toJson() const
{
    return asStored(presentForm());
}

QJsonObject SamplesAndTracesContent::asStored(const QJsonObject &json) const
{
    if (!SampleRows::isTree(m_stored))
        return json;
    const Result<SamplesAndTracesContent> before = fromJson(m_stored);
    return !before.hasError() && before->presentForm() == json ? m_stored : json;
}

SamplesAndTracesContent SamplesAndTracesContent::resolved(const QUrl &baseUrl) const
{
    SamplesAndTracesContent result = *this;
    for (SamplesInput::SampleWithCustomColumns &sample : result.samples.samples) {
        resolve(&sample.msFile, baseUrl, &sample);
        for (ResourceReferenceSPtr &trace : sample.traces)
            resolve(&trace, baseUrl, &sample);
        for (ResourceReferenceSPtr &reference : sample.extraReferences)
            resolve(&reference, baseUrl, &sample);
    }
    return result;
}

QList<ResourceReferenceSPtr> SamplesAndTracesContent::references() const
{
    QList<ResourceReferenceSPtr> references;
    references.reserve(samples.samples.size());
    for (const SampleWithCustomColumns &sample : samples.samples) {
        if (sample.msFile)
            references.append(sample.msFile);
        references += sample.companions();
    }
    references.removeAll(nullptr);
    return references;
}

} // namespace orv
