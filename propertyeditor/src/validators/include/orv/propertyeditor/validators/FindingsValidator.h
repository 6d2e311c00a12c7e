#pragma once

#include <orv/propertyeditor/validators/AbstractValidator.h>

namespace orv::PropertyEditor {

class CheckRun;

/// A validator that also tells where and how to mend:
/// \code
///     void check(CheckRun &run) const override
///     {
///         if (const SamplesTableItem *table = run.content().samplesTable(); !table)
///             run.error(tr("There are no samples"), {}, tr("Add a table of samples."));
///     }
/// \endcode
/// The texts of validate are those that check tells, in its order. Errors fail, warnings don't.
class ORV_WORKFLOW_EXPORT FindingsValidator : public AbstractValidator
{
public:
    ~FindingsValidator() override;

    virtual void check(CheckRun &run) const = 0;

    bool validate(const Content &content, const QUrl &workflowBaseUrl, QList<QString> *warnings,
                  QList<QString> *errors) const final;
};

} // namespace orv::PropertyEditor
