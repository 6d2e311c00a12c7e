#include "orv/propertyeditor/validators/ContentValidator.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/validators/AbstractValidator.h>
#include <orv/propertyeditor/validators/CheckRun.h>
#include <orv/propertyeditor/validators/FindingsValidator.h>
#include <orv/propertyeditor/validators/Validators.h>

#include <QCoreApplication>

#include <vector>

namespace orv::PropertyEditor {

namespace {

/// Whether \a validator has nothing against the document.
bool isPassed(const AbstractValidator &validator, CheckRun &run)
{
    if (const auto *teller = dynamic_cast<const FindingsValidator *>(&validator)) {
        const qsizetype errorsBefore = run.errors().size();
        teller->check(run);
        return run.errors().size() == errorsBefore;
    }
    QList<QString> warnings = run.warnings();
    QList<QString> errors = run.errors();
    const qsizetype warningsBefore = warnings.size();
    const qsizetype errorsBefore = errors.size();
    const bool isGood = validator.validate(run.content(), run.workflowBaseUrl(), &warnings, &errors);
    for (const QString &error : errors.mid(errorsBefore))
        run.error(error);
    for (const QString &warning : warnings.mid(warningsBefore))
        run.warning(warning);
    return isGood;
}

} // namespace

class ContentValidator::Private
{
public:
    void log(const QList<QString> &warnings, const QList<QString> &errors) const;

    std::vector<std::unique_ptr<AbstractValidator>> validators;
    bool repeatsInLog = true;
};

void ContentValidator::Private::log(const QList<QString> &warnings, const QList<QString> &errors) const
{
    if (!repeatsInLog)
        return;
    for (const QString &warning : warnings)
        qCWarning(propertyEditorLog).noquote() << kLogPrefix << warning;
    for (const QString &error : errors)
        qCCritical(propertyEditorLog).noquote() << kLogPrefix << error;
}

ContentValidator::ContentValidator()
    : d(std::make_unique<Private>())
{}

ContentValidator::~ContentValidator()
{
    clear();
}

bool ContentValidator::installValidator(AbstractValidator *validator)
{
    const auto isSame = [validator](const auto &installed) { return installed.get() == validator; };
    if (!validator || std::any_of(d->validators.begin(), d->validators.end(), isSame))
        return false;
    d->validators.emplace_back(validator);
    return true;
}

void ContentValidator::installDefaultValidators()
{
    for (AbstractValidator *validator : Validators::createDefaultSet()) {
        if (!installValidator(validator))
            delete validator;
    }
}

qsizetype ContentValidator::count() const
{
    return qsizetype(d->validators.size());
}

void ContentValidator::setRepeatsInLog(bool repeats)
{
    d->repeatsInLog = repeats;
}

void ContentValidator::clear()
{
    d->validators.clear();
}

bool ContentValidator::validate(const Content &content, const QUrl &workflowBaseUrl, QList<QString> *warnings,
                                QList<QString> *errors) const
{
    return validate(content, workflowBaseUrl, warnings, errors, nullptr);
}

bool ContentValidator::validate(const Content &content, const QUrl &workflowBaseUrl, QList<QString> *warnings,
                                QList<QString> *errors, QList<Finding> *findings) const
{
    if (d->validators.empty()) {
        qCWarning(propertyEditorLog) << "No validators installed. The content considered to be valid";
        return true;
    }
    qCDebug(propertyEditorLog) << "Validating workflow content";
    CheckRun run(content, workflowBaseUrl);
    run.setRepeatsInLog(d->repeatsInLog);
    int failures = 0;
    for (const auto &validator : d->validators) {
        run.beginValidator(Validators::nameOf(*validator));
        if (!isPassed(*validator, run))
            ++failures;
    }
    if (failures > 0 && run.errors().isEmpty()) {
        run.beginValidator(QStringLiteral("Unknown"));
        run.error(QCoreApplication::translate("ContentValidator", "Unknown error"));
    }
    *warnings = run.warnings();
    *errors = run.errors();
    warnings->removeDuplicates();
    errors->removeDuplicates();
    d->log(*warnings, *errors);
    if (findings)
        *findings = run.findings();
    return failures == 0;
}

} // namespace orv::PropertyEditor
