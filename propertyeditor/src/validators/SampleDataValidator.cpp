#include "SampleFiles.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/validators/Finding.h>
#include <orv/propertyeditor/validators/SampleDataValidator.h>
#include <orv/resources/ResourceManager.h>

#include <algorithm>

namespace orv::PropertyEditor {

SampleDataValidator::~SampleDataValidator() = default;

bool SampleDataValidator::validate(const Content &content, const QUrl & /*workflowBaseUrl*/,
                                   QList<QString> * /*warnings*/, QList<QString> *errors) const
{
    Error error = validate(content);
    if (!error)
        return true;
    errors->append(error.ecatch().errorMessages());
    return false;
}

Error SampleDataValidator::validate(const Content &content) const
{
    const QSet<BaseItemType> types = documentsToCheck();
    const QList<BaseItemType> documents = content.findAllDocuments();
    if (std::none_of(documents.begin(), documents.end(),
                     [&](BaseItemType type) { return types.contains(type); }))
        return Error::NoError;

    const SampleFiles files;
    QStringList messages;
    for (const BaseItem *item : content.findAllItems(BaseItemType::Samples)) {
        const auto *table = qobject_cast<const SamplesTableItem *>(item);
        if (!table)
            continue;
        for (const SamplesInput::Entry &sample : table->samplesInput()) {
            const Error error = validateSample(sample);
            if (!error)
                continue;
            messages.append(error.errorMessage());
            Findings::note(messages.constLast(), {table, PropertyId::SamplesTable, sample.name},
                           error.details().join(QLatin1Char(' ')));
        }
    }
    return messages.isEmpty() ? Error() : Error(ErrorCode::InvalidContent, messages);
}

Error SampleDataValidator::validateSample(const SamplesInput::Entry &sample) const
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
    const SampleFiles files;
    if (!SampleFiles::current().possibleFormats(*path).contains(vendorFormat()))
        return Error::NoError;
    return validateSample(*path);
}

} // namespace orv::PropertyEditor
