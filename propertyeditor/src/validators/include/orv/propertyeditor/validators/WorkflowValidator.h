#pragma once

#include <orv/propertyeditor/validators/AbstractValidator.h>

namespace orv::PropertyEditor {

/// Whether a workflow has a document at all. Data-independent searches alone are none.
class ORV_WORKFLOW_EXPORT WorkflowValidator : public AbstractValidator
{
public:
    bool validate(const Content &content, const QUrl &workflowBaseUrl, QList<QString> *warnings,
                  QList<QString> *errors) const override;
};

} // namespace orv::PropertyEditor
