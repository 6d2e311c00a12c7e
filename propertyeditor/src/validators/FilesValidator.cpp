#include "orv/propertyeditor/validators/FilesValidator.h"

#include "PathRules.h"
#include "SampleFiles.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/validators/CheckRun.h>
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

void checkNameOfRow(CheckRun &run, const SamplesTableItem *table, const SamplesInput::Entry &sample,
                    qsizetype row)
{
    if (sample.name.isEmpty()) {
        run.error(QObject::tr("The sample name at row #%1 is empty").arg(row + 1),
                  PathRules::placeOf(table, sample, row), QObject::tr("Give the sample a name."));
    }
    if (sample.name.contains(QLatin1Char('"'))) {
        run.error(QObject::tr("The sample at row #%1 contains illegal character: \"").arg(row + 1),
                  PathRules::placeOf(table, sample, row),
                  QObject::tr("Take the quotation mark out of the sample's name."));
    }
}

void checkNames(CheckRun &run, const SamplesTableItem *table, const QList<SamplesInput::Entry> &samples)
{
    QSet<QString> seen;
    seen.reserve(samples.size());
    QStringList repeated;
    std::optional<qsizetype> firstRepeated;
    for (qsizetype i = 0; i < samples.size(); ++i) {
        const SamplesInput::Entry &sample = samples.at(i);
        checkNameOfRow(run, table, sample, i);
        const qsizetype seenBefore = seen.size();
        seen.insert(sample.name);
        if (seen.size() == seenBefore) {
            repeated.append(sample.name);
            firstRepeated = firstRepeated.value_or(i);
        }
    }
    if (repeated.isEmpty())
        return;
    run.error(QObject::tr("Duplicated sample names found: %1").arg(repeated.join(QLatin1Char(','))),
              {table, PropertyId::SamplesTable, repeated.constFirst(), firstRepeated},
              QObject::tr("Give each sample a name of its own."));
}

void checkTraceOptions(CheckRun &run, const SamplesTableItem *table)
{
    QList<QString> warnings;
    QList<QString> errors;
    table->content().options.validate(&warnings, &errors);
    const FindingPlace place{table, PropertyId::SamplesTable, {}};
    const QString hint = QObject::tr("Mend it among the options of traces of the table of samples.");
    for (const QString &error : std::as_const(errors))
        run.error(error, place, hint);
    for (const QString &warning : std::as_const(warnings))
        run.warning(warning, place, hint);
}

/// Looks for the files of the whole table at once.
void lookAhead(SampleFiles &files, const QList<SamplesInput::Entry> &samples, bool isReport)
{
    QList<ResourceReferenceSPtr> references;
    references.reserve(samples.size());
    for (const SamplesInput::Entry &sample : samples) {
        references.append(sample.msFile);
        if (!isReport)
            references += sample.companions();
    }
    files.lookAhead(references);
}

void checkTable(CheckRun &run, const SamplesTableItem *table, const QSet<BaseItemType> &itemTypes)
{
    const auto paths = createPathsValidator(run.content().contentMode(), table);
    const QList<SamplesInput::Entry> samples = table->samplesInput();
    const bool isReport = itemTypes.contains(BaseItemType::MultiDocReport);
    lookAhead(run.files(), samples, isReport);
    if (isReport) {
        paths->checkDocuments(run, samples);
    } else {
        checkNames(run, table, samples);
        paths->checkSamplesPaths(run, samples, itemTypes);
        for (qsizetype row = 0; row < samples.size(); ++row) {
            for (const ResourceReferenceSPtr &reference : samples.at(row).extraReferences)
                paths->checkReference(run, reference, PathRules::placeOf(table, samples.at(row), row));
        }
    }
    if (itemTypes.contains(BaseItemType::Intact) || itemTypes.contains(BaseItemType::Dravik))
        checkTraceOptions(run, table);
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
        if (!settings)
            continue;
        for (PropertyId id : ids) {
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

void checkReferencesOfSettings(CheckRun &run)
{
    const Result<QList<SettingReference>> references = referencesOfSettings(run.content());
    if (references.hasError()) {
        run.error(references.error().errorMessage());
        return;
    }
    const auto paths = createPathsValidator(run.content().contentMode(), nullptr);
    for (const SettingReference &setting : *references)
        paths->checkReference(run, setting.reference, {setting.item, setting.property, {}});
}

} // namespace

FilesValidator::FilesValidator(bool checkResourceReferences)
    : m_checkResourceReferences(checkResourceReferences)
{}

void FilesValidator::check(CheckRun &run) const
{
    const Content &content = run.content();
    const QSet<BaseItemType> itemTypes = content.allItems();
    for (const BaseItem *item : content.findAllItems(BaseItemType::Samples)) {
        if (const auto *table = qobject_cast<const SamplesTableItem *>(item))
            checkTable(run, table, itemTypes);
    }
    if (m_checkResourceReferences)
        checkReferencesOfSettings(run);
}

} // namespace orv::PropertyEditor
