#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/validators/Finding.h>

#include <QList>
#include <QString>
#include <QUrl>

#include <memory>

namespace orv::PropertyEditor {

class AbstractValidator;
class Content;

/// Runs validators over a document, one after the other:
/// \code
///     ContentValidator validator;
///     validator.installDefaultValidators();
///     QList<QString> warnings;
///     QList<QString> errors;
///     const bool usable = validator.validate(content, baseUrl, &warnings, &errors);
/// \endcode
/// Lives for one check, on the thread of the content.
class ORV_WORKFLOW_EXPORT ContentValidator
{
public:
    /// What the log lines that repeat warnings and errors begin with.
    static constexpr QLatin1String kLogPrefix{"Workflow validation:"};

    ContentValidator();
    ~ContentValidator();
    Q_DISABLE_COPY_MOVE(ContentValidator)

    /// Takes over \a validator. False, and the caller keeps it, if it is installed already.
    bool installValidator(AbstractValidator *validator);
    /// Those that every workflow goes through, in their order.
    void installDefaultValidators();
    [[nodiscard]] qsizetype count() const;
    /// Whether the log repeats what is found, as it does at first; a check that is run again and again would
    /// fill it.
    void setRepeatsInLog(bool repeats);
    /// Deletes all validators.
    void clear();

    /// Whether no validator failed. Fills both lists, each text once; a failure comes with an error at least.
    /// Without validators nothing changes and everything is valid.
    bool validate(const Content &content, const QUrl &workflowBaseUrl, QList<QString> *warnings,
                  QList<QString> *errors) const;
    /// The same, and the same facts with rule, place and hint in \a findings, which may be null: a finding
    /// for each place of a text.
    bool validate(const Content &content, const QUrl &workflowBaseUrl, QList<QString> *warnings,
                  QList<QString> *errors, QList<Finding> *findings) const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace orv::PropertyEditor
