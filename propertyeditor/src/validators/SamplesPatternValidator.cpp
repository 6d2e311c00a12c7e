#include "ValidatorHelpers.h"
#include "ValidatorText.h"

#include <orv/propertyeditor/PropertiesGetter.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/validators/SamplesPatternValidator.h>
#include <orv/resources/FileTypeUtils.h>
#include <orv/samples/SampleUtils.h>

#include <algorithm>

namespace orv::PropertyEditor {

namespace {

using Samples = QList<SamplesInput::Entry>;

/// The documents of one type, by the samples that they work on.
struct DocumentsOfType
{
    BaseItemType type;
    QList<const BaseItem *> withSamples = {};
    QList<const BaseItem *> withoutSamples = {};
};

DocumentsOfType &documentsOfType(QList<DocumentsOfType> *groups, BaseItemType type)
{
    const auto found = std::find_if(groups->begin(), groups->end(),
                                    [type](const auto &group) { return group.type == type; });
    if (found != groups->end())
        return *found;
    return groups->emplaceBack(DocumentsOfType{type});
}

bool hasSamples(const KeyValueItem &document, Samples samples)
{
    const QStringList patterns = splitSamples(document.value(PropertyId::Samples).toString());
    if (!patterns.isEmpty())
        PropertiesGetter::filterOutNotMatchingSamples(patterns, &samples);
    return !samples.isEmpty();
}

bool isProjectToCompareWith(const SamplesInput::Entry &sample)
{
    const ApplicationType application = FileTypeUtils::appType(sample.msFile);
    return application == ApplicationType::Dravik || application == ApplicationType::Intact;
}

void appendForEach(const QList<const BaseItem *> &documents, const QString &text, QList<QString> *list)
{
    for (const BaseItem *document : documents) {
        Findings::note(text, {document, PropertyId::Samples, {}},
                       validatorText("Enter names of samples, or patterns such as \"lot*\"; separate them by "
                                     "\";\". Empty uses all samples."));
    }
    list->append(text);
}

bool checkSamples(const DocumentsOfType &documents, QList<QString> *warnings, QList<QString> *errors)
{
    const QString type = BaseItem::typeToString(documents.type);
    if (documents.withSamples.isEmpty()) {
        appendForEach(documents.withoutSamples,
                      validatorText("%1 documents don't use any valid samples. At least one %1 document "
                                    "should use valid samples")
                          .arg(type),
                      errors);
        return false;
    }
    if (!documents.withoutSamples.isEmpty()) {
        appendForEach(documents.withoutSamples,
                      validatorText("Not all %1 documents use valid samples").arg(type), warnings);
    }
    return true;
}

} // namespace

bool SamplesPatternValidator::validate(const Content &content, const QUrl & /*workflowBaseUrl*/,
                                       QList<QString> *warnings, QList<QString> *errors) const
{
    if (!content.findAllItems(BaseItemType::MultiDocReport).isEmpty())
        return true;
    const SamplesTableItem *table = content.samplesTable();
    const Samples samples = table ? table->samplesInput() : Samples();
    if (samples.isEmpty()) {
        report(errors, validatorText("The workflow doesn't have any samples"),
               {table, PropertyId::SamplesTable, {}}, addSamplesHint());
        return false;
    }
    const QList<BaseItem *> documents = content.findDocumentItems();
    if (documents.isEmpty())
        return true;
    if (samples.size() == 1 && isProjectToCompareWith(samples.constFirst())) {
        report(errors, validatorText("Reference sample requires at least one non-reference sample."),
               {table, PropertyId::SamplesTable, samples.constFirst().name},
               validatorText("Add the MS file of a sample that is compared with the project."));
        return false;
    }
    bool isGood = true;
    QList<DocumentsOfType> groups;
    for (const BaseItem *document : documents) {
        DocumentsOfType &group = documentsOfType(&groups, document->type());
        const auto *settings = qobject_cast<const KeyValueItem *>(document);
        if (settings) {
            (hasSamples(*settings, samples) ? group.withSamples : group.withoutSamples).append(document);
            continue;
        }
        report(errors, validatorText("Cannot handle a %1 document type").arg(document->typeString()),
               {document, PropertyId::NoProperty, {}}, validatorText("Remove the document."));
        isGood = false;
    }
    for (const DocumentsOfType &group : groups)
        isGood = checkSamples(group, warnings, errors) && isGood;
    return isGood;
}

} // namespace orv::PropertyEditor
