#pragma once

#include <orv/propertyeditor/validators/AbstractValidator.h>

namespace orv::PropertyEditor {

class SamplesTableItem;

/// Whether what the tables of samples point at can be used: names, MS files, traces, companions, and the
/// documents of a report over several. On a disk many files are looked at at a time.
class ORV_WORKFLOW_EXPORT FilesValidator : public AbstractValidator
{
public:
    /// With \a checkResourceReferences the references among the settings are looked up too.
    explicit FilesValidator(bool checkResourceReferences = false);

    bool validate(const Content &content, const QUrl &workflowBaseUrl, QList<QString> *warnings,
                  QList<QString> *errors) const override;

private:
    bool m_checkResourceReferences;
};

} // namespace orv::PropertyEditor
