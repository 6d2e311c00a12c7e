#include "orv/samples/SampleReferenceUpdater.h"

namespace orv {

/// Takes the first place of \a oldFile and puts it to those of \a newFile; nothing when there is none.
template<typename Place>
std::optional<Place> SampleReferenceUpdater::moveFirst(PlacesOfFiles<Place> *places,
                                                       const ResourceReferenceSPtr &oldFile,
                                                       const ResourceReferenceSPtr &newFile)
{
    const auto found = places->find(oldFile);
    if (found == places->end())
        return std::nullopt;
    const Place place = found->takeFirst();
    if (found->isEmpty())
        places->erase(found);
    (*places)[newFile].insert(place);
    return place;
}

SampleReferenceUpdater::SampleReferenceUpdater(QList<SamplesInput::SampleWithCustomColumns> *samples)
    : m_samples(samples)
{
    m_files.reserve(samples->size());
    for (qsizetype i = 0; i < samples->size(); ++i) {
        const SamplesInput::Entry &sample = samples->at(i);
        m_files[sample.msFile].insert(i);
        const QList<ResourceReferenceSPtr> companions = sample.companions();
        for (qsizetype n = 0; n < companions.size(); ++n)
            m_companions[companions.at(n)].insert({i, n});
        for (auto it = sample.fileMetadata.begin(); it != sample.fileMetadata.end(); ++it)
            m_metadata[it.key()].insert(i);
    }
}

ResourceReferenceSPtr &SampleReferenceUpdater::at(const Companion &place)
{
    SamplesInput::Entry &sample = (*m_samples)[place.sample];
    const qsizetype behindTraces = place.companion - sample.traces.size();
    return behindTraces < 0 ? sample.traces[place.companion] : sample.extraReferences[behindTraces];
}

bool SampleReferenceUpdater::replaceFile(const ResourceReferenceSPtr &oldFile,
                                         const ResourceReferenceSPtr &newFile)
{
    const auto place = moveFirst(&m_files, oldFile, newFile);
    if (place)
        (*m_samples)[*place].msFile = newFile;
    return place.has_value();
}

bool SampleReferenceUpdater::replaceCompanion(const ResourceReferenceSPtr &oldFile,
                                              const ResourceReferenceSPtr &newFile)
{
    if (!oldFile || !newFile)
        return false;
    const auto place = moveFirst(&m_companions, oldFile, newFile);
    if (place)
        at(*place) = newFile;
    return place.has_value();
}

void SampleReferenceUpdater::moveFileMetadata(const QString &oldText, const QString &newText)
{
    if (oldText == newText)
        return;
    const std::set<qsizetype> places = m_metadata.take(oldText);
    for (qsizetype place : places)
        (*m_samples)[place].moveFileMetadata(oldText, newText);
    if (!places.empty())
        m_metadata[newText].insert(places.begin(), places.end());
}

} // namespace orv
