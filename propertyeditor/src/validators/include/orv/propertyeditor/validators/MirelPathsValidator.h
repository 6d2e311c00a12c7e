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

    void validateSamplesPaths(const QList<SamplesInput::Entry> &samples, const QSet<BaseItemType> &itemTypes,
                              QList<QString> *errors) override;
    bool validateReference(const ResourceReferenceSPtr &reference, QList<QString> *errors) override;
    void validateDocuments(const QList<SamplesInput::Entry> &samples, QList<QString> *errors) override;
    bool isMsReference(const ResourceReferenceSPtr &reference) override;

private:
    void validateSample(const SamplesInput::Entry &sample, const QSet<BaseItemType> &itemTypes,
                        QList<QString> *errors);
    void validateTraces(const SamplesInput::Entry &sample, QList<QString> *errors) const;

    const SamplesTableItem *m_table;
};

} // namespace orv::PropertyEditor
