#include "orv/propertyeditor/validators/SampleTypesValidator.h"

#include "ValidatorHelpers.h"

#include <orv/core_ms/MsDataFileUtils.h>
#include <orv/core_ms/MsFileInfo.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/validators/CheckRun.h>

#include <QObject>

namespace orv::PropertyEditor {

SampleTypesValidator::~SampleTypesValidator() = default;

void SampleTypesValidator::check(CheckRun &run) const
{
    if (!PropertyEditorUtils::isKarvonOnly(run.content().findAllDocuments()))
        return;
    for (const BaseItem *item : run.content().findAllItems(BaseItemType::Samples)) {
        const auto *table = qobject_cast<const SamplesTableItem *>(item);
        if (!table)
            continue;
        const QList<SamplesInput::Entry> samples = table->samplesInput();
        if (samples.size() >= 2)
            checkSamples(run, samples, table);
    }
}

bool SampleTypesValidator::validateSamples(const QList<SamplesInput::Entry> &samples,
                                           QList<QString> * /*warnings*/, QList<QString> *errors) const
{
    const Content none;
    CheckRun run(none);
    const bool areAlike = checkSamples(run, samples, nullptr);
    errors->append(run.errors());
    return areAlike;
}

bool SampleTypesValidator::checkSamples(CheckRun &run, const QList<SamplesInput::Entry> &samples,
                                        const SamplesTableItem *table) const
{
    QSet<msreader::VendorDataFormat> formatsOfAll;
    for (qsizetype row = 0; row < samples.size(); ++row) {
        const SamplesInput::Entry &sample = samples.at(row);
        const QSet<msreader::VendorDataFormat> formats = detectPossibleSampleVendorFormats(sample);
        if (formats.isEmpty())
            continue;
        if (formatsOfAll.isEmpty())
            formatsOfAll = formats;
        if (formats == formatsOfAll)
            continue;
        run.error(
            QObject::tr("Multi-vendor projects are not yet supported. Please ensure all samples belong to "
                        "the same vendor."),
            {table, PropertyId::SamplesTable, sample.name, row},
            QObject::tr("Move this sample and others of its vendor to a workflow of their own."));
        return false;
    }
    return true;
}

QSet<msreader::VendorDataFormat>
SampleTypesValidator::detectPossibleSampleVendorFormats(const SamplesInput::Entry &sample) const
{
    if (!sample.msFile)
        return {};
    switch (sample.msFile->scheme()) {
    case ResourceReference::Scheme::LocalFile:
        return MsDataFileUtils::detectPossibleVendorFormats(sample.msFile->text());
    case ResourceReference::Scheme::UNIFI:
        return msreader::MsFileInfo::detectFormatByName(
            msreader::DataSourceLocation::ofPath(sample.msFile->text()));
    default:
        return {};
    }
}

} // namespace orv::PropertyEditor
