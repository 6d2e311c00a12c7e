#include "ContentCheck.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/validators/AbstractValidator.h>
#include <orv/propertyeditor/validators/ContentValidator.h>

namespace orv {

using PropertyEditor::AbstractValidator;
using PropertyEditor::Content;
using PropertyEditor::ContentValidator;

template<class Install>
void ContentCheck::run(const Install &install)
{
    ContentValidator validator;
    install(validator);
    if (validator.count() == 0)
        return;
    Content copy;
    if (Error error = copy.assignFromJson(m_document))
        qCWarning(propertyEditorLog).noquote() << "Only a part is checked" << error.errorMessage();
    copy.setBaseUrl(m_baseUrl);
    QList<QString> warnings;
    QList<QString> errors;
    m_isValid = validator.validate(copy, m_baseUrl, &warnings, &errors) && m_isValid;
    m_warnings += warnings;
    m_errors += errors;
    m_warnings.removeDuplicates();
    m_errors.removeDuplicates();
}

void ContentCheck::runDefaultValidators()
{
    run([](ContentValidator &validator) { validator.installDefaultValidators(); });
}

void ContentCheck::runValidators(std::vector<std::unique_ptr<AbstractValidator>> validators)
{
    run([&validators](ContentValidator &validator) {
        for (std::unique_ptr<AbstractValidator> &own : validators) {
            if (validator.installValidator(own.get()))
                (void)own.release();
        }
    });
}

} // namespace orv
