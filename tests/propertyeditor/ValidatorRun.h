#pragma once

#include "LogCapture.h"
#include "ProjectFixtures.h"
#include "TableCells.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/validators/AbstractValidator.h>
#include <orv/propertyeditor/validators/ContentValidator.h>

/// What a validator says of a document.
struct ValidatorRun
{
    bool isGood = false;
    QList<QString> warnings;
    QList<QString> errors;
    QList<orv::PropertyEditor::Finding> findings;
};

template<typename Validator>
ValidatorRun runOf(const orv::PropertyEditor::Content &content, const QUrl &baseUrl = {})
{
    LogCapture log;
    ValidatorRun run;
    // What others have said must not count.
    run.errors = {QStringLiteral("an error of another validator")};
    run.isGood = Validator().validate(content, baseUrl, &run.warnings, &run.errors);
    run.errors.removeFirst();
    orv::PropertyEditor::ContentValidator collector;
    collector.installValidator(new Validator);
    QList<QString> warnings;
    QList<QString> errors;
    collector.validate(content, baseUrl, &warnings, &errors, &run.findings);
    return run;
}

/// A document of one tab with a column for each cell, which may hold what its type doesn't allow.
inline orv::PropertyEditor::Content contentOf(const QJsonArray &cells)
{
    orv::PropertyEditor::Content content;
    if (content.assignFromJson(ProjectFixtures::document(cells),
                               orv::PropertyEditor::ValidationOption::SkipTypeValidation))
        qFatal("The test's document is broken");
    return content;
}

inline QJsonObject settings(const QString &type, const QList<std::pair<orv::PropertyId, QJsonValue>> &values)
{
    QJsonArray entries;
    for (const auto &[id, value] : values)
        entries.append(TableCells::entry(orv::PropertiesNames::internalNameForType(id), value));
    return TableCells::cell(type, entries);
}
