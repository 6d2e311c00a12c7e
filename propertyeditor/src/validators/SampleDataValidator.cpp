#include "orv/propertyeditor/validators/SampleDataValidator.h"

#include "SampleFiles.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/validators/CheckRun.h>
#include <orv/resources/ResourceManager.h>

#include <algorithm>

namespace orv::PropertyEditor {

SampleDataValidator::~SampleDataValidator() = default;

void SampleDataValidator::check(CheckRun &run) const
{
    const QSet<BaseItemType> types = documentsToCheck();
    const QList<BaseItemType> documents = run.content().findAllDocuments();
    if (std::none_of(documents.begin(), documents.end(),
                     [&](BaseItemType type) { return types.contains(type); }))
        return;
    for (const BaseItem *item : run.content().findAllItems(BaseItemType::Samples)) {
        const auto *table = qobject_cast<const SamplesTableItem *>(item);
        if (!table)
            continue;
        const QList<SamplesInput::SampleWithCustomColumns> samples = table->content().samples.samples;
        for (qsizetype row = 0; row < samples.size(); ++row) {
            const Error error = checkSample(samples.at(row), run.files());
            if (error) {
                run.error(error.errorMessage(), {table, PropertyId::SamplesTable, samples.at(row).name, row},
                          error.details().join(QLatin1Char(' ')));
            }
        }
    }
}

Error SampleDataValidator::validate(const Content &content) const
{
    CheckRun run(content);
    check(run);
    return run.errors().isEmpty() ? Error() : Error(ErrorCode::InvalidContent, run.errors());
}

Error SampleDataValidator::validateSample(const SamplesInput::Entry &sample) const
{
    SampleFiles files;
    ORV_RETURN_IF_ERROR(checkSample(sample, files));
    return Error::NoError;
}

Error SampleDataValidator::checkSample(const SamplesInput::Entry &sample, SampleFiles &files) const
{
    if (!sample.msFile)
        return Error::NoError;
    Result<ResourceHandlerSPtr> handler = ResourceManager::getHandler(sample.msFile);
    if (handler.hasError())
        return handler.ecatch();
    if (!(*handler)->isAvailableLocally()) {
        qCDebug(propertyEditorLog) << "Sample:" << sample.name
                                   << "is not available locally, validation is skipped.";
        return Error::NoError;
    }
    Result<QString> path = (*handler)->grab();
    if (path.hasError())
        return path.ecatch();
    if (!files.possibleFormats(*path).contains(vendorFormat()))
        return Error::NoError;
    return validateSample(*path);
}

} // namespace orv::PropertyEditor
