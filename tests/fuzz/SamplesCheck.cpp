#include "FormChecks.h"

#include <orv/resources/ResourceReferenceUtils.h>
#include <orv/samples/SampleUtils.h>
#include <orv/samples/SamplesAndTracesContent.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace orv;
using namespace Qt::StringLiterals;

namespace FormChecks {

namespace {

/// What a load may add: the list itself, and the number and name of a sample.
bool addsNothingElse(const QJsonObject &before, QJsonObject after)
{
    if (after == before)
        return true;
    QJsonArray samples = after.value(u"Samples"_s).toArray();
    const QJsonArray samplesBefore = before.value(u"Samples"_s).toArray();
    if (samples.size() != samplesBefore.size())
        return false;
    for (qsizetype i = 0; i < samples.size(); ++i) {
        QJsonObject sample = samples.at(i).toObject();
        for (const QString &key : {u"SamplesId"_s, u"SampleName"_s}) {
            const QJsonValue value = samplesBefore.at(i).toObject().value(key);
            if (value.isUndefined())
                sample.remove(key);
            else if (value.isNull())
                sample.insert(key, value);
        }
        samples[i] = sample;
    }
    if (before.value(u"Samples"_s).isArray())
        after.insert(u"Samples"_s, samples);
    else if (before.contains(u"Samples"_s))
        after.insert(u"Samples"_s, before.value(u"Samples"_s));
    else
        after.remove(u"Samples"_s);
    return after == before;
}

} // namespace

QString checkSamples(const QByteArray &bytes)
{
    // QJsonDocument keeps a byte order mark that begins a text and its QString lacks it, so a copy of such a
    // value is not equal to the value.
    QByteArray unmarked = bytes;
    const QJsonObject object = QJsonDocument::fromJson(unmarked.replace("\xEF\xBB\xBF", "")).object();
    Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(object);
    if (content.hasError())
        return content.error().errorMessage().isEmpty() ? u"refused without a word"_s : QString();
    // Presets and traces are written with all their members.
    if (!object.contains(u"TraceImportAndProcessingOptions"_s) && !object.contains(u"CustomColumns"_s) &&
        !addsNothingElse(object, content->toJson()))
        return u"samples that nobody changed are written in another way"_s;
    if (!content->samples.samples.isEmpty())
        content->samples.samples[0].name += u"!"_s;
    const QJsonObject written = content->toJson();
    const Result<SamplesAndTracesContent> again = SamplesAndTracesContent::fromJson(written);
    if (again.hasError())
        return u"what is written is refused: "_s + again.error().errorMessage();
    if (again->toJson() != written)
        return u"what is written reads back as something else"_s;
    return again->samples.names() == content->samples.names() ? QString() : u"names differ"_s;
}

QString checkReference(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    const QStringList names = splitSamples(text);
    if (splitSamples(joinSamples(names)) != names)
        return u"names don't survive their list"_s;
    const Result<ResourceReferenceSPtr> read = ResourceReference::fromString(text);
    if (read.hasError())
        return read.error().details().isEmpty() ? u"refused without a reason"_s : QString();
    const ResourceReference &reference = **read;
    const Result<ResourceReferenceSPtr> again = ResourceReference::fromString(reference.text());
    if (again.hasError() || (*again)->text() != reference.text() || (*again)->scheme() != reference.scheme())
        return u"its text reads as another reference"_s;
    if (!ResourceReferenceUtils::compare(*again, *read) || !((*again)->parts() == reference.parts()))
        return u"its text names something else"_s;
    const ResourceReferenceSPtr resolved =
        ResourceReferenceUtils::resolved(*read, QUrl::fromLocalFile(u"/lab/"_s));
    if (!resolved || resolved->scheme() != reference.scheme())
        return u"resolving changes the scheme"_s;
    const bool hasName = !reference.isScheme(ResourceReference::Scheme::LocalFile);
    return hasName && reference.name().isEmpty() ? u"it has no name"_s : QString();
}

} // namespace FormChecks
