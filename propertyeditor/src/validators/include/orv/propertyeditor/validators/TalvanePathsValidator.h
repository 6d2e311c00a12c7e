#pragma once

#include <orv/propertyeditor/validators/PathsValidatorBase.h>

namespace orv::PropertyEditor {

class SamplesTableItem;

/// For workflows of the server: their files must be known to it.
class ORV_WORKFLOW_EXPORT TalvanePathsValidator : public PathsValidatorBase
{
public:
    /// \a table is where findings belong; not owned, may be null.
    explicit TalvanePathsValidator(const SamplesTableItem *table = nullptr);

    void checkSamplesPaths(CheckRun &run, const QList<SamplesInput::Entry> &samples,
                           const QSet<BaseItemType> &itemTypes) override;
    bool checkReference(CheckRun &run, const ResourceReferenceSPtr &reference,
                        const FindingPlace &place) override;
    void checkDocuments(CheckRun &run, const QList<SamplesInput::Entry> &samples) override;
    bool isMsReference(const ResourceReferenceSPtr &reference) override;

private:
    static void checkMsFile(CheckRun &run, const SamplesInput::Entry &sample, const FindingPlace &place);
    void checkTraces(CheckRun &run, const SamplesInput::Entry &sample, const FindingPlace &place,
                     const QSet<BaseItemType> &itemTypes);
    bool checkDocumentReference(CheckRun &run, const SamplesInput::Entry &document,
                                const FindingPlace &place);

    const SamplesTableItem *m_table;
};

} // namespace orv::PropertyEditor
