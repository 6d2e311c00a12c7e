#include "FindingNotes.h"
#include "SampleFiles.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/validators/AbstractValidator.h>
#include <orv/propertyeditor/validators/ContentValidator.h>
#include <orv/propertyeditor/validators/Validators.h>

#include <QCoreApplication>
#include <QSet>

#include <vector>

namespace orv::PropertyEditor {

namespace {

constexpr QLatin1String kPrefix("Workflow validation:");

using Level = Finding::Level;

/// Findings of the texts that one validator appended.
void appendFindings(const QString &validator, Level level, const QList<QString> &texts,
                    const FindingNotes &notes, QList<Finding> *findings)
{
    QSet<QString> seen;
    for (const QString &text : texts) {
        if (seen.contains(text))
            continue;
        seen.insert(text);
        for (const FindingNotes::Note &note : notes.notesOf(text)) {
            const QString rule = note.rule.isEmpty() ? validator : validator + QLatin1Char('/') + note.rule;
            findings->append({level, rule, text, note.place, note.hint});
        }
    }
}

/// The same fact is told once, by the validator that found it first.
void removeRepeated(QList<Finding> *findings)
{
    QList<Finding> unique;
    QMultiHash<QString, qsizetype> placesOfMessage;
    for (const Finding &finding : *findings) {
        const QList<qsizetype> before = placesOfMessage.values(finding.message);
        const bool isKnown = std::any_of(before.begin(), before.end(), [&](qsizetype i) {
            return unique.at(i).level == finding.level && unique.at(i).place == finding.place;
        });
        if (isKnown)
            continue;
        placesOfMessage.insert(finding.message, unique.size());
        unique.append(finding);
    }
    *findings = unique;
}

} // namespace

class ContentValidator::Private
{
public:
    std::vector<std::unique_ptr<AbstractValidator>> validators;
};

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
    warnings->clear();
    errors->clear();
    const SampleFiles files;
    QList<Finding> found;
    int failures = 0;
    for (const auto &validator : d->validators) {
        FindingNotes notes;
        const qsizetype warningsBefore = warnings->size();
        const qsizetype errorsBefore = errors->size();
        if (!validator->validate(content, workflowBaseUrl, warnings, errors))
            ++failures;
        const QString name = Validators::nameOf(*validator);
        appendFindings(name, Level::Error, errors->mid(errorsBefore), notes, &found);
        appendFindings(name, Level::Warning, warnings->mid(warningsBefore), notes, &found);
    }
    warnings->removeDuplicates();
    errors->removeDuplicates();
    if (failures > 0 && errors->isEmpty()) {
        errors->append(QCoreApplication::translate("ContentValidator", "Unknown error"));
        found.append({Level::Error, QStringLiteral("Unknown"), errors->constLast(), {}, {}});
    }
    for (const QString &warning : std::as_const(*warnings))
        qCWarning(propertyEditorLog).noquote() << kPrefix << warning;
    for (const QString &error : std::as_const(*errors))
        qCCritical(propertyEditorLog).noquote() << kPrefix << error;
    if (findings) {
        removeRepeated(&found);
        *findings = found;
    }
    return failures == 0;
}

} // namespace orv::PropertyEditor
