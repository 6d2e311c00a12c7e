#pragma once

#include <orv/propertyeditor/validators/AbstractValidator.h>

namespace orv::PropertyEditor {

/// Whether the digestion in silico of a step is complete, its file of peptides is readable, and the range of
/// peptide masses is in order. Fetches and reads that file, and may block.
class ORV_WORKFLOW_EXPORT InsilicoValidator : public AbstractValidator
{
public:
    bool validate(const Content &content, const QUrl &workflowBaseUrl, QList<QString> *warnings,
                  QList<QString> *errors) const override;
};

} // namespace orv::PropertyEditor
