#pragma once

#include <orv/propertyeditor/validators/AbstractValidator.h>

namespace orv::PropertyEditor {

/// Whether the expert settings of a step hold names that no application reads any more. Tells the first step.
class ORV_WORKFLOW_EXPORT ObsoleteSettingsValidator : public AbstractValidator
{
public:
    bool validate(const Content &content, const QUrl &workflowBaseUrl, QList<QString> *warnings,
                  QList<QString> *errors) const override;
};

} // namespace orv::PropertyEditor
