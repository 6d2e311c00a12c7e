#pragma once

#include <orv/core/Export.h>

#include <QList>
#include <QString>
#include <QUrl>

namespace orv::PropertyEditor {

class Content;

/// A check of a whole workflow in one respect. Validators have no state between calls, and run on the thread
/// of the content.
class ORV_WORKFLOW_EXPORT AbstractValidator
{
public:
    AbstractValidator() = default;
    virtual ~AbstractValidator();
    Q_DISABLE_COPY_MOVE(AbstractValidator)

    /// True if nothing was found wrong; otherwise texts were appended to \a errors. Warnings don't fail. Both
    /// lists must be there. \a workflowBaseUrl is the folder of the workflow, with a slash at its end. Where
    /// and how to mend tell those that are a FindingsValidator.
    virtual bool validate(const Content &content, const QUrl &workflowBaseUrl, QList<QString> *warnings,
                          QList<QString> *errors) const = 0;
};

} // namespace orv::PropertyEditor
