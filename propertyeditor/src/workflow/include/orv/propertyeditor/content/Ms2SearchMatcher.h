#pragma once

#include <orv/core/Export.h>
#include <orv/resources/ResourceReferenceKey.h>
#include <orv/samples/SamplesInput.h>

#include <QHash>
#include <QSet>

namespace orv::PropertyEditor {

/// Tells whether Karvon has been through an MS file already, by the results of searches. Each result is read
/// once, as many samples may share it; so a matcher is made for one walk over the samples and not kept.
/// Fetching and reading a result may block. One thread at a time.
class ORV_WORKFLOW_EXPORT Ms2SearchMatcher
{
public:
    /// Whether \a result is the result or project of a search that \a msFile was part of. What can't be read
    /// is logged as a warning and counts as no.
    [[nodiscard]] bool matches(const ResourceReferenceSPtr &result, const ResourceReferenceSPtr &msFile);

    /// Whether one of the sample's extra references is such a result for its MS file, so that no search of it
    /// is needed.
    [[nodiscard]] bool isSearched(const SamplesInput::Entry &sample);

private:
    QHash<ResourceReferenceKey, QSet<ResourceReferenceKey>> m_files; ///< MS files by result
};

/// Ms2SearchMatcher::matches for a single question.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool ms2SearchMatchesMsFile(const ResourceReferenceSPtr &result,
                                                              const ResourceReferenceSPtr &msFile);

} // namespace orv::PropertyEditor
