#include "orv/propertyeditor/validators/MsTracesValidator.h"

#include "ValidatorHelpers.h"
#include "ValidatorText.h"

#include <orv/core_ms/MsDataFileUtils.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/validators/CheckRun.h>
#include <orv/resources/ResourceReferenceUtils.h>

namespace orv::PropertyEditor {

namespace {

/// For which samples at least one trace is imported.
TraceSampleIds samplesWithTraces(const TracesImportList &traces)
{
    QList<int> ids;
    for (const TracesImportList::Entry &entry : traces.list()) {
        if (!entry.isImported())
            continue;
        if (entry.samplesIds().isAll())
            return {};
        ids += entry.samplesIds().ids();
    }
    return TraceSampleIds(ids);
}

} // namespace

void MsTracesValidator::check(CheckRun &run) const
{
    const Content &content = run.content();
    const SamplesTableItem *table = content.samplesTable();
    if (!table || table->content().samples.samples.isEmpty()) {
        const bool isReport = !content.findAllItems(BaseItemType::MultiDocReport).isEmpty();
        run.error(ValidatorText::tr("The workflow doesn't have any %1")
                      .arg(isReport ? ValidatorText::tr("documents") : ValidatorText::tr("samples")),
                  {table, PropertyId::SamplesTable, {}}, addSamplesHint());
        return;
    }
    if (content.findAllItems({BaseItemType::Intact, BaseItemType::Dravik}).isEmpty())
        return;
    const TraceSampleIds traced = samplesWithTraces(table->tracesOptions().traces);
    const SamplesAndTracesContent imported = table->content();
    for (qsizetype row = 0; row < imported.samples.samples.size(); ++row) {
        const SamplesInput::Entry &sample = imported.samples.samples.at(row);
        if (traced.contains(sample.id) ||
            !MsDataFileUtils::hasMsExtension(ResourceReferenceUtils::localName(sample.msFile)))
            continue;
        run.error(
            ValidatorText::tr(
                "The sample with id \"%1\" has no MS traces selected. Please select at least one MS trace")
                .arg(sample.id),
            {table, PropertyId::SamplesTable, sample.name, row},
            ValidatorText::tr("Import a trace of this sample, or remove the sample."));
    }
}

} // namespace orv::PropertyEditor
