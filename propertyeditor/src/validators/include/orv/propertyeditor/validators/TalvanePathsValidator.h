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

    void validateSamplesPaths(const QList<SamplesInput::Entry> &samples, const QSet<BaseItemType> &itemTypes,
                              QList<QString> *errors) override;
    bool validateReference(const ResourceReferenceSPtr &reference, QList<QString> *errors) override;
    void validateDocuments(const QList<SamplesInput::Entry> &samples, QList<QString> *errors) override;
    bool isMsReference(const ResourceReferenceSPtr &reference) override;

private:
    void validateMsFile(const SamplesInput::Entry &sample, QList<QString> *errors);
    void validateTraces(const SamplesInput::Entry &sample, const QSet<BaseItemType> &itemTypes,
                        QList<QString> *errors);
    bool validateDocumentReference(const SamplesInput::Entry &document, QList<QString> *errors);

    const SamplesTableItem *m_table;
};

} // namespace orv::PropertyEditor
