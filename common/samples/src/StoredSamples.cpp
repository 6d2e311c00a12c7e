#include "orv/samples/StoredSamples.h"

#include "internal/SampleMembers.h"
#include "internal/WrittenForm.h"

#include <QJsonArray>

#include <utility>

namespace orv {

StoredSamples::StoredSamples(SamplesAndTracesContent content)
    : m_content(std::move(content))
{}

Result<StoredSamples> StoredSamples::fromJson(const QJsonObject &json)
{
    StoredSamples samples;
    if (WrittenForm::isSamplesTable(json)) {
        samples.m_json = json;
        return samples;
    }
    Result<SamplesAndTracesContent> content = SamplesAndTracesContent::fromJson(json);
    if (content.hasError())
        return content.ecatch();
    samples.m_content = std::move(content).value();
    return samples;
}

const SamplesAndTracesContent &StoredSamples::content() const
{
    if (!m_content) {
        // A table of the written form can't fail to be read.
        m_content =
            m_json ? SamplesAndTracesContent::fromJson(*m_json).valueOr({}) : SamplesAndTracesContent();
    }
    return *m_content;
}

QList<ResourceReferenceSPtr> StoredSamples::references() const
{
    if (m_content || !m_json)
        return content().references();
    QList<ResourceReferenceSPtr> references;
    const QJsonArray samples = m_json->value(QLatin1String("Samples")).toArray();
    references.reserve(samples.size());
    for (const auto sample : samples) {
        const SampleMembers members = SampleMembers::readOrNone(sample.toObject());
        // The written form holds no text that is none.
        QStringList unreadable;
        references += SampleMembers::referencesOf(
            QStringList{members.path} + members.traces + members.extraReferences, &unreadable);
    }
    return references;
}

SamplesAndTracesContent StoredSamples::take()
{
    static_cast<void>(content());
    return *std::exchange(*this, {}).m_content;
}

QJsonObject StoredSamples::toJson() const
{
    return m_json ? *m_json : content().toJson();
}

} // namespace orv
