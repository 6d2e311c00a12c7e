#include "orv/propertyeditor/validators/MzIdentValidator.h"

#include "ValidatorHelpers.h"
#include "ValidatorText.h"

#include <orv/propertyeditor/PropertiesGetter.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/validators/CheckRun.h>
#include <orv/samples/SampleUtils.h>

namespace orv::PropertyEditor {

namespace {

/// The table that leads the tab of that name, which may be another one than the first of the document.
const SamplesTableItem *tableOfSamplesTab(const Content &content)
{
    const ItemGroup *tab = content.group(QStringLiteral("Samples"));
    const ItemSubGroup *column = tab && !tab->isEmpty() ? tab->subGroup(0) : nullptr;
    return column && !column->isEmpty() ? qobject_cast<const SamplesTableItem *>(column->item(0)) : nullptr;
}

bool isProject(const KeyValueItem &document, const SamplesTableItem *table)
{
    const QStringList patterns = splitSamples(document.value(PropertyId::Samples).toString());
    return !patterns.isEmpty() && !PropertiesGetter::samplesMatchingRegExp(table, patterns).isEmpty();
}

} // namespace

void MzIdentValidator::check(CheckRun &run) const
{
    const Content &content = run.content();
    const SamplesTableItem *table = tableOfSamplesTab(content);
    if (!table) {
        run.error(
            ValidatorText::tr("The workflow doesn't have samples table."), {},
            ValidatorText::tr("Name the tab \"Samples\" and put the table of samples into its first cell."));
        return;
    }
    for (const ColumnSettings &found : settingsInColumns(content, {BaseItemType::Karvon})) {
        // The pattern last: it is tested on every sample.
        if (found.item->value(PropertyId::KarvonExportMzIdentML).toBool() || !isProject(*found.item, table))
            continue;
        run.error(QStringLiteral(
                      "There is a Karvon project with \"Export mzIdentML\" property unchecked or missing.\n"
                      "Please set the property checked and rerun the project creation process."),
                  {found.item, PropertyId::KarvonExportMzIdentML, {}}, ValidatorText::tr("Enter true."));
        return;
    }
}

} // namespace orv::PropertyEditor
