#pragma once

#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/validators/AbstractValidator.h>

namespace orv::PropertyEditor {

class KeyValueItem;

/// Every setting against the rule that the catalogue has for it.
class ORV_WORKFLOW_EXPORT BuiltinValidator : public AbstractValidator
{
public:
    bool validate(const Content &content, const QUrl &workflowBaseUrl, QList<QString> *warnings,
                  QList<QString> *errors) const override;

private:
    bool checkKeyValueItem(const KeyValueItem *item, PropertyEditorContent::ContentMode mode,
                           QList<QString> *warnings, QList<QString> *errors) const;
};

} // namespace orv::PropertyEditor
