#include "orv/propertyeditor/validators/FindingsValidator.h"

#include <orv/propertyeditor/validators/CheckRun.h>

namespace orv::PropertyEditor {

FindingsValidator::~FindingsValidator() = default;

bool FindingsValidator::validate(const Content &content, const QUrl &workflowBaseUrl,
                                 QList<QString> *warnings, QList<QString> *errors) const
{
    CheckRun run(content, workflowBaseUrl);
    check(run);
    warnings->append(run.warnings());
    errors->append(run.errors());
    return run.errors().isEmpty();
}

} // namespace orv::PropertyEditor
