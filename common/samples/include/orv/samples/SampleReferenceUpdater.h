#pragma once

#include <orv/core/Export.h>
#include <orv/resources/ResourceReferenceKey.h>
#include <orv/samples/SamplesInput.h>

#include <QHash>
#include <QVarLengthArray>

#include <algorithm>
#include <optional>
#include <set>
#include <tuple>

namespace orv {

/// Swaps references of many samples when files move. It is made in time linear in the count of samples and
/// their companions, and each swap takes logarithmic time; it knows of its own changes. The list must
/// outlive it and not be changed by others meanwhile.
class ORV_WORKFLOW_EXPORT SampleReferenceUpdater
{
public:
    explicit SampleReferenceUpdater(QList<SamplesInput::SampleWithCustomColumns> *samples);

    /// Gives the first sample with the MS file \a oldFile the file \a newFile. False when there is none.
    bool replaceFile(const ResourceReferenceSPtr &oldFile, const ResourceReferenceSPtr &newFile);

    /// The same for the first companion, in the order of samples and of Entry::companions. A null reference
    /// is no companion.
    bool replaceCompanion(const ResourceReferenceSPtr &oldFile, const ResourceReferenceSPtr &newFile);

    /// Moves what samples know of a file from the old text to the new one, in all samples that know it.
    void moveFileMetadata(const QString &oldText, const QString &newText);

private:
    /// Place of a sample, and of the reference among its companions.
    struct Companion
    {
        qsizetype sample;
        qsizetype companion;

        friend bool operator<(const Companion &a, const Companion &b)
        {
            return std::tie(a.sample, a.companion) < std::tie(b.sample, b.companion);
        }
    };

    /// Places of which the first is taken first. Most files are at one place, which needs no memory of its
    /// own.
    template<typename Place>
    class OrderedPlaces
    {
    public:
        [[nodiscard]] bool isEmpty() const { return m_heap.isEmpty(); }
        void insert(const Place &place)
        {
            m_heap.append(place);
            std::push_heap(m_heap.begin(), m_heap.end(), isLater);
        }
        Place takeFirst()
        {
            std::pop_heap(m_heap.begin(), m_heap.end(), isLater);
            const Place first = m_heap.last();
            m_heap.removeLast();
            return first;
        }

    private:
        static bool isLater(const Place &a, const Place &b) { return b < a; }

        QVarLengthArray<Place, 1> m_heap;
    };
    template<typename Place>
    using PlacesOfFiles = QHash<ResourceReferenceKey, OrderedPlaces<Place>>;

    template<typename Place>
    static std::optional<Place> moveFirst(PlacesOfFiles<Place> *places, const ResourceReferenceSPtr &oldFile,
                                          const ResourceReferenceSPtr &newFile);
    [[nodiscard]] ResourceReferenceSPtr &at(const Companion &place);

    QList<SamplesInput::SampleWithCustomColumns> *m_samples;
    PlacesOfFiles<qsizetype> m_files;
    PlacesOfFiles<Companion> m_companions;
    QHash<QString, std::set<qsizetype>> m_metadata;
};

} // namespace orv
