#include "orv/propertyeditor/validators/Validators.h"

#include <orv/propertyeditor/validators/BuiltinValidator.h>
#include <orv/propertyeditor/validators/DeltaMassesValidator.h>
#include <orv/propertyeditor/validators/FilesValidator.h>
#include <orv/propertyeditor/validators/InsilicoValidator.h>
#include <orv/propertyeditor/validators/MGFValidator.h>
#include <orv/propertyeditor/validators/MsTracesValidator.h>
#include <orv/propertyeditor/validators/MzIdentValidator.h>
#include <orv/propertyeditor/validators/ObsoleteSettingsValidator.h>
#include <orv/propertyeditor/validators/PeptideReplicateCountValidator.h>
#include <orv/propertyeditor/validators/SampleTypesValidator.h>
#include <orv/propertyeditor/validators/SamplesPatternValidator.h>
#include <orv/propertyeditor/validators/Ulvar2Validator.h>
#include <orv/propertyeditor/validators/WorkflowValidator.h>

#include <algorithm>
#include <array>
#include <typeinfo>

namespace orv::PropertyEditor::Validators {

namespace {

constexpr QLatin1String kClassSuffix("Validator");

struct Row
{
    QLatin1String name;
    bool isDefault;
    std::unique_ptr<AbstractValidator> (*create)();
    const std::type_info &(*type)();
};

template<typename Validator>
constexpr Row row(const char *name, bool isDefault)
{
    return {QLatin1String(name), isDefault,
            []() -> std::unique_ptr<AbstractValidator> { return std::make_unique<Validator>(); },
            []() -> const std::type_info & { return typeid(Validator); }};
}

/// In the order in which the default set runs.
constexpr std::array kRows = {
    row<WorkflowValidator>("Workflow", true),
    row<BuiltinValidator>("Builtin", true),
    row<Ulvar2Validator>("Ulvar2", true),
    row<FilesValidator>("Files", true),
    row<SamplesPatternValidator>("SamplesPattern", true),
    row<MGFValidator>("MGF", true),
    row<MsTracesValidator>("MsTraces", true),
    row<ObsoleteSettingsValidator>("ObsoleteSettings", true),
    row<DeltaMassesValidator>("DeltaMasses", true),
    row<InsilicoValidator>("Insilico", true),
    row<PeptideReplicateCountValidator>("PeptideReplicateCount", true),
    row<MzIdentValidator>("MzIdent", false),
    row<SampleTypesValidator>("SampleTypes", false),
};

} // namespace

QStringList names()
{
    QStringList names;
    for (const Row &row : kRows)
        names.append(row.name);
    return names;
}

QStringList defaultNames()
{
    QStringList names;
    for (const Row &row : kRows) {
        if (row.isDefault)
            names.append(row.name);
    }
    return names;
}

std::unique_ptr<AbstractValidator> create(const QString &name)
{
    const QString shortName =
        name.endsWith(kClassSuffix, Qt::CaseInsensitive) ? name.chopped(kClassSuffix.size()) : name;
    const auto *const found = std::find_if(kRows.begin(), kRows.end(), [&shortName](const Row &row) {
        return shortName.compare(row.name, Qt::CaseInsensitive) == 0;
    });
    return found == kRows.end() ? nullptr : found->create();
}

QList<AbstractValidator *> createDefaultSet()
{
    QList<AbstractValidator *> validators;
    for (const Row &row : kRows) {
        if (row.isDefault)
            validators.append(row.create().release());
    }
    return validators;
}

QString nameOf(const AbstractValidator &validator)
{
    const auto *const found = std::find_if(
        kRows.begin(), kRows.end(), [&validator](const Row &row) { return row.type() == typeid(validator); });
    return found == kRows.end() ? QStringLiteral("Additional") : QString(found->name);
}

} // namespace orv::PropertyEditor::Validators
