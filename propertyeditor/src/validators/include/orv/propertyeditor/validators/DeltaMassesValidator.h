#pragma once

#include <orv/propertyeditor/validators/AbstractValidator.h>

namespace orv::PropertyEditor {

/// Whether the first table of masses can be matched in the samples.
class ORV_WORKFLOW_EXPORT DeltaMassesValidator : public AbstractValidator
{
public:
    bool validate(const Content &content, const QUrl &workflowBaseUrl, QList<QString> *warnings,
                  QList<QString> *errors) const override;
};

} // namespace orv::PropertyEditor
