#include "orv/propertyeditor/validators/WorkflowValidator.h"

#include "ValidatorText.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/validators/CheckRun.h>

namespace orv::PropertyEditor {

void WorkflowValidator::check(CheckRun &run) const
{
    const Content &content = run.content();
    if (content.findAllDocuments().isEmpty()) {
        run.error(ValidatorText::tr("The workflow doesn't have any documents"), {},
                  ValidatorText::tr("Add a column with a search, an analysis or a report."));
    }
}

} // namespace orv::PropertyEditor
