#pragma once

#include <orv/core/Export.h>
#include <orv/resources/ResourceReferenceKey.h>
#include <orv/samples/SamplesInput.h>

#include <QHash>
#include <QList>
#include <QString>

namespace orv {

/// Places of samples by id, name and file, for callers that ask more than once. It is made in time linear in
/// the count of samples, answers in constant time, and tells of the list as it was. Places count from 0; -1
/// is no place. Any number of threads may ask one index.
class ORV_WORKFLOW_EXPORT SamplesIndex
{
public:
    explicit SamplesIndex(const QList<SamplesInput::Entry> &samples);
    explicit SamplesIndex(const QList<SamplesInput::SampleWithCustomColumns> &samples);

    /// The first sample of that id, or of exactly that name.
    [[nodiscard]] qsizetype placeOfId(int id) const { return m_byId.value(id, -1); }
    [[nodiscard]] qsizetype placeOfName(const QString &name) const { return m_byName.value(name, -1); }
    /// All samples whose MS file this is, in their order.
    [[nodiscard]] QList<qsizetype> placesOfFile(const ResourceReferenceSPtr &file) const;
    /// The ids of the same.
    [[nodiscard]] QList<int> idsOfFile(const ResourceReferenceSPtr &file) const;

private:
    template<typename Samples>
    void addAll(const Samples &samples);

    QList<int> m_ids;
    QHash<int, qsizetype> m_byId;
    QHash<QString, qsizetype> m_byName;
    QHash<ResourceReferenceKey, QList<qsizetype>> m_byFile;
};

} // namespace orv
