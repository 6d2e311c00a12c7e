#include "PathRules.h"
#include "SampleFiles.h"
#include "ValidatorHelpers.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/validators/FilesValidator.h>
#include <orv/propertyeditor/validators/MirelPathsValidator.h>
#include <orv/propertyeditor/validators/TalvanePathsValidator.h>
#include <orv/resources/ResourceReferenceUtils.h>

#include <QObject>

namespace orv::PropertyEditor {

namespace {

std::unique_ptr<PathsValidatorBase> createPathsValidator(PropertyEditorContent::ContentMode mode,
                                                         const SamplesTableItem *table)
{
    if (mode == PropertyEditorContent::ContentMode::TalvaneMode)
        return std::make_unique<TalvanePathsValidator>(table);
    return std::make_unique<MirelPathsValidator>(table);
}

void checkNameOfRow(const SamplesTableItem *table, const SamplesInput::Entry &sample, qsizetype row,
                    QList<QString> *errors)
{
    const FindingPlace place = PathRules::placeOf(table, sample);
    if (sample.name.isEmpty()) {
        report(errors, QObject::tr("The sample name at row #%1 is empty").arg(row), place,
               QObject::tr("Give the sample a name."));
    }
    if (sample.name.contains(QLatin1Char('"'))) {
        report(errors, QObject::tr("The sample at row #%1 contains illegal character: \"").arg(row), place,
               QObject::tr("Take the quotation mark out of the sample's name."));
    }
}

void checkNames(const SamplesTableItem *table, const QList<SamplesInput::Entry> &samples,
                QList<QString> *errors)
{
    QSet<QString> seen;
    seen.reserve(samples.size());
    QStringList repeated;
    for (qsizetype i = 0; i < samples.size(); ++i) {
        const SamplesInput::Entry &sample = samples.at(i);
        checkNameOfRow(table, sample, i + 1, errors);
        if (seen.contains(sample.name))
            repeated.append(sample.name);
        seen.insert(sample.name);
    }
    if (repeated.isEmpty())
        return;
    report(errors, QObject::tr("Duplicated sample names found: %1").arg(repeated.join(QLatin1Char(','))),
           {table, PropertyId::SamplesTable, repeated.constFirst()},
           QObject::tr("Give each sample a name of its own."));
}

void checkTraceOptions(const SamplesTableItem *table, QList<QString> *warnings, QList<QString> *errors)
{
    const qsizetype errorsBefore = errors->size();
    const qsizetype warningsBefore = warnings->size();
    table->content().options.validate(warnings, errors);
    for (const QString &text : errors->mid(errorsBefore) + warnings->mid(warningsBefore)) {
        Findings::note(text, {table, PropertyId::SamplesTable, {}},
                       QObject::tr("Mend it among the options of traces of the table of samples."));
    }
}

/// Looks for the files of the whole table at once.
void lookAhead(const QList<SamplesInput::Entry> &samples, bool isReport)
{
    QList<ResourceReferenceSPtr> references;
    references.reserve(samples.size());
    for (const SamplesInput::Entry &sample : samples) {
        references.append(sample.msFile);
        if (!isReport)
            references += sample.companions();
    }
    SampleFiles::current().lookAhead(references);
}

bool checkTable(const SamplesTableItem *table, PathsValidatorBase &paths, const QSet<BaseItemType> &itemTypes,
                QList<QString> *warnings, QList<QString> *errors)
{
    const qsizetype errorsBefore = errors->size();
    const QList<SamplesInput::Entry> samples = table->samplesInput();
    const bool isReport = itemTypes.contains(BaseItemType::MultiDocReport);
    lookAhead(samples, isReport);
    if (isReport) {
        paths.validateDocuments(samples, errors);
    } else {
        checkNames(table, samples, errors);
        paths.validateSamplesPaths(samples, itemTypes, errors);
        for (const SamplesInput::Entry &sample : samples) {
            for (const ResourceReferenceSPtr &reference : sample.extraReferences)
                PathRules::checkReference(paths, reference, PathRules::placeOf(table, sample), errors);
        }
    }
    if (itemTypes.contains(BaseItemType::Intact) || itemTypes.contains(BaseItemType::Dravik))
        checkTraceOptions(table, warnings, errors);
    return errors->size() == errorsBefore;
}

struct SettingReference
{
    const KeyValueItem *item;
    PropertyId property;
    ResourceReferenceSPtr reference;
};

Result<ResourceReferenceSPtr> referenceOf(const KeyValueItem &item, PropertyId id)
{
    const QVariant value = item.value(id);
    if (value.typeId() != QMetaType::QString)
        return value.value<ResourceReferenceSPtr>();
    const QString text = value.toString();
    if (text.isEmpty())
        return ResourceReferenceSPtr();
    return ResourceReference::fromString(text);
}

Result<QList<SettingReference>> referencesOfSettings(const Content &content)
{
    static const QList<PropertyId> ids = PropertyEditorUtils::propertiesWithReferences();
    QList<SettingReference> references;
    for (const BaseItem *item : content.findAllItems(content.allItems())) {
        const auto *settings = qobject_cast<const KeyValueItem *>(item);
        for (PropertyId id : settings ? ids : QList<PropertyId>()) {
            if (!settings->contains(PropertiesNames::internalNameForType(id)))
                continue;
            Result<ResourceReferenceSPtr> reference = referenceOf(*settings, id);
            if (reference.hasError())
                return reference.ecatch();
            if (*reference)
                references.append({settings, id, *reference});
        }
    }
    return references;
}

bool checkReferencesOfSettings(const Content &content, PathsValidatorBase &paths, QList<QString> *errors)
{
    const qsizetype errorsBefore = errors->size();
    const Result<QList<SettingReference>> references = referencesOfSettings(content);
    if (references.hasError()) {
        errors->append(references.error().errorMessage());
        return false;
    }
    for (const SettingReference &setting : *references)
        PathRules::checkReference(paths, setting.reference, {setting.item, setting.property, {}}, errors);
    return errors->size() == errorsBefore;
}

} // namespace

FilesValidator::FilesValidator(bool checkResourceReferences)
    : m_checkResourceReferences(checkResourceReferences)
{}

bool FilesValidator::validate(const Content &content, const QUrl & /*workflowBaseUrl*/,
                              QList<QString> *warnings, QList<QString> *errors) const
{
    const SampleFiles files;
    const QSet<BaseItemType> itemTypes = content.allItems();
    bool isGood = true;
    for (const BaseItem *item : content.findAllItems(BaseItemType::Samples)) {
        const auto *table = qobject_cast<const SamplesTableItem *>(item);
        if (!table)
            continue;
        const auto paths = createPathsValidator(content.contentMode(), table);
        isGood = checkTable(table, *paths, itemTypes, warnings, errors) && isGood;
    }
    if (m_checkResourceReferences) {
        const auto paths = createPathsValidator(content.contentMode(), nullptr);
        isGood = checkReferencesOfSettings(content, *paths, errors) && isGood;
    }
    return isGood;
}

} // namespace orv::PropertyEditor
