#include "ValidatorText.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/validators/Finding.h>
#include <orv/propertyeditor/validators/WorkflowValidator.h>

namespace orv::PropertyEditor {

bool WorkflowValidator::validate(const Content &content, const QUrl & /*workflowBaseUrl*/,
                                 QList<QString> * /*warnings*/, QList<QString> *errors) const
{
    if (!content.findAllDocuments().isEmpty())
        return true;
    const QString message = validatorText("The workflow doesn't have any documents");
    Findings::note(message, {}, validatorText("Add a column with a search, an analysis or a report."));
    errors->append(message);
    return false;
}

} // namespace orv::PropertyEditor
