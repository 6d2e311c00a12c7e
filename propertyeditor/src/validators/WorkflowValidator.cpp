#include "orv/propertyeditor/validators/WorkflowValidator.h"

#include "ValidatorText.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/validators/CheckRun.h>

namespace orv::PropertyEditor {

void WorkflowValidator::check(CheckRun &run) const
{
    const Content &content = run.content();
    if (content.findAllDocuments().isEmpty()) {
        run.error(validatorText("The workflow doesn't have any documents"), {},
                  validatorText("Add a column with a search, an analysis or a report."));
    }
}

} // namespace orv::PropertyEditor
