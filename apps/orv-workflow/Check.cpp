#include "Check.h"

#include "FindingPlaces.h"
#include "LoadedWorkflow.h"

#include <orv/core/JsonScanner.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/validators/ContentValidator.h>
#include <orv/propertyeditor/validators/SampleTypesValidator.h>
#include <orv/propertyeditor/validators/Validators.h>

#include <QSet>

namespace orv::cli {

namespace {

using namespace PropertyEditor;

/// What a check needs of its input.
struct Checked
{
    FileText text;
    Content content; ///< with absolute paths
    QList<Loss> lost;
};

Outcome<Content> absoluteCopy(Content &content, const QUrl &baseUrl)
{
    content.setBaseUrl(baseUrl);
    const QJsonObject json = content.toJsonObject(PropertyConversionFlag::AbsolutePaths);
    Content copy;
    if (const Error error = copy.assignFromJson(json, ValidationOption::SkipTypeValidation))
        return failureFrom(error, BadInput);
    copy.setBaseUrl(baseUrl);
    return copy;
}

Outcome<Checked> read(const QString &file, const QUrl &baseUrl)
{
    Outcome<FileText> text = readText(file);
    if (text.hasFailed())
        return text.failure();
    const Outcome<LoadedWorkflow> workflow = loadWorkflow(text->document);
    if (workflow.hasFailed())
        return workflow.failure();
    if (const std::optional<QString> tab = unevenTab(*workflow->content)) {
        return Failure{BadInput, int(ErrorCode::MalformedStructure),
                       QStringLiteral("The columns of the tab \"%1\" differ in height, and a tab is a "
                                      "rectangle. Add the missing cells or remove the others.")
                           .arg(*tab)};
    }
    const Outcome<Content> copy = absoluteCopy(*workflow->content, baseUrl);
    if (copy.hasFailed())
        return copy.failure();
    return Checked{*std::move(text), *copy, workflow->lost};
}

QList<LocatedFinding> located(const QList<Finding> &findings, const Checked &checked)
{
    const FindingPlaces places(checked.content, checked.text.document);
    QList<LocatedFinding> result;
    QStringList pointers;
    for (const Finding &finding : findings) {
        LocatedFinding found = places.locate(finding.place);
        found.isError = finding.level == Finding::Level::Error;
        found.rule = finding.rule;
        found.message = finding.message;
        found.hint = finding.hint;
        pointers.append(found.pointer);
        result.append(found);
    }
    const QHash<QString, qsizetype> lines = linesOfPointers(checked.text.bytes, pointers);
    for (LocatedFinding &found : result) {
        const auto line = lines.constFind(found.pointer);
        if (!found.pointer.isEmpty() && line != lines.cend())
            found.line = *line;
    }
    return result;
}

} // namespace

QStringList validatorsOf(const CheckOptions &options)
{
    if (!options.validators.isEmpty())
        return options.validators;
    QStringList names;
    for (AbstractValidator *validator : Validators::createDefaultSet()) {
        names.append(Validators::nameOf(*validator));
        delete validator;
    }
    return names;
}

CheckAnswer checkWorkflow(const BatchInput &input, const CheckOptions &options)
{
    if (input.failure)
        return {.file = input.file, .failure = input.failure};
    const QUrl baseUrl = options.baseUrl.value_or(folderUrlOf(input.file));
    const Outcome<Checked> read = cli::read(input.file, baseUrl);
    if (read.hasFailed())
        return {.file = input.file, .failure = read.failure()};

    const Checked &checked = *read;
    ContentValidator validator;
    for (const QString &name : validatorsOf(options))
        validator.installValidator(Validators::create(name).release());
    if (options.validators.isEmpty() && PropertyEditorUtils::isKarvonOnly(checked.content.findAllDocuments()))
        validator.installValidator(new SampleTypesValidator);
    CheckAnswer answer{.file = input.file, .lost = checked.lost};
    QList<Finding> findings;
    answer.isValid =
        validator.validate(checked.content, baseUrl, &answer.warnings, &answer.errors, &findings);
    answer.findings = located(findings, checked);
    return answer;
}

} // namespace orv::cli
