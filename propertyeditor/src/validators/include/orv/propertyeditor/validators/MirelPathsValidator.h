#pragma once

#include <orv/propertyeditor/validators/PathsValidatorBase.h>

namespace orv::PropertyEditor {

class SamplesTableItem;

/// For workflows of the desktop: their files must lie on a disk, or on a server outside of its reach.
class ORV_WORKFLOW_EXPORT MirelPathsValidator : public PathsValidatorBase
{
public:
    /// \a table is where findings belong; not owned, may be null.
    explicit MirelPathsValidator(const SamplesTableItem *table = nullptr);

    void checkSamplesPaths(CheckRun &run, const QList<SamplesInput::Entry> &samples,
                           const QSet<BaseItemType> &itemTypes) override;
    bool checkReference(CheckRun &run, const ResourceReferenceSPtr &reference,
                        const FindingPlace &place) override;
    void checkDocuments(CheckRun &run, const QList<SamplesInput::Entry> &samples) override;
    bool isMsReference(const ResourceReferenceSPtr &reference) override;

private:
    void checkSample(CheckRun &run, const SamplesInput::Entry &sample, const FindingPlace &place,
                     const QSet<BaseItemType> &itemTypes);

    const SamplesTableItem *m_table;
};

} // namespace orv::PropertyEditor
