#include "orv/samples/SamplesIndex.h"

namespace orv {

SamplesIndex::SamplesIndex(const QList<SamplesInput::Entry> &samples)
{
    addAll(samples);
}

SamplesIndex::SamplesIndex(const QList<SamplesInput::SampleWithCustomColumns> &samples)
{
    addAll(samples);
}

template<typename Samples>
void SamplesIndex::addAll(const Samples &samples)
{
    m_ids.reserve(samples.size());
    m_byId.reserve(samples.size());
    m_byName.reserve(samples.size());
    for (const SamplesInput::Entry &sample : samples) {
        const qsizetype place = m_ids.size();
        m_ids.append(sample.id);
        if (!m_byId.contains(sample.id))
            m_byId.insert(sample.id, place);
        if (!m_byName.contains(sample.name))
            m_byName.insert(sample.name, place);
        if (sample.msFile)
            m_byFile[sample.msFile].append(place);
    }
}

QList<qsizetype> SamplesIndex::placesOfFile(const ResourceReferenceSPtr &file) const
{
    return file ? m_byFile.value(file) : QList<qsizetype>();
}

QList<int> SamplesIndex::idsOfFile(const ResourceReferenceSPtr &file) const
{
    QList<int> ids;
    for (qsizetype place : placesOfFile(file))
        ids.append(m_ids.at(place));
    return ids;
}

} // namespace orv
