#pragma once

#include <orv/propertyeditor/validators/AbstractValidator.h>

namespace orv::PropertyEditor {

/// Whether every search that works on samples exports mzIdentML. Not in the default set: applications whose
/// later steps read that format install it.
class ORV_WORKFLOW_EXPORT MzIdentValidator : public AbstractValidator
{
public:
    bool validate(const Content &content, const QUrl &workflowBaseUrl, QList<QString> *warnings,
                  QList<QString> *errors) const override;
};

} // namespace orv::PropertyEditor
