#include "orv/propertyeditor/workflow/WorkflowSummary.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/CellTypes.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/content/RawCell.h>

#include <QJsonArray>
#include <QMetaEnum>

#include <algorithm>

namespace orv {

using namespace PropertyEditorStringConstants;
using PropertyEditor::CellType;
namespace CellTypes = PropertyEditor::CellTypes;

namespace {

constexpr QLatin1String kSamplesArray("Samples");
constexpr QLatin1String kSampleNameColumn("SampleName");
constexpr QLatin1String kSequencesArray("sequences");

const CellType *rowOf(const QString &type)
{
    const std::optional<BaseItemType> known = findBaseItemType(type);
    return known ? CellTypes::find(*known) : nullptr;
}

bool isTableType(const QString &type)
{
    const CellType *row = rowOf(type);
    return row && !row->holdsSettings;
}

qsizetype visibleProperties(const QJsonArray &properties)
{
    return std::count_if(properties.begin(), properties.end(), [](const QJsonValue &entry) {
        return !entry.toObject().value(NAME_KEY).toString().startsWith(QLatin1Char(':'));
    });
}

QJsonObject tableValue(const QJsonObject &cell)
{
    return cell.value(PROPERTIES_KEY).toArray().at(0).toObject().value(VALUE_KEY).toObject();
}

std::optional<qsizetype> tableRows(const QJsonObject &cell)
{
    const QJsonObject value = tableValue(cell);
    for (QLatin1String key : {CHILDREN, kSamplesArray, kSequencesArray}) {
        if (value.value(key).isArray())
            return value.value(key).toArray().size();
    }
    return {};
}

/// Names in the present form, an array of samples, or in the old one, a tree of rows under column names.
QStringList sampleNames(const QJsonObject &cell)
{
    const QJsonObject value = tableValue(cell);
    QStringList names;
    for (const auto sample : value.value(kSamplesArray).toArray())
        names.append(sample.toObject().value(kSampleNameColumn).toString());
    if (value.contains(kSamplesArray))
        return names;
    const QJsonArray columns = value.value(DATA).toArray();
    const auto column = std::find(columns.begin(), columns.end(), QJsonValue(kSampleNameColumn));
    if (column == columns.end())
        return names;
    for (const auto row : value.value(CHILDREN).toArray())
        names.append(row.toObject().value(DATA).toArray().at(column - columns.begin()).toString());
    return names;
}

WorkflowSummary::Cell summarizeCell(const QJsonObject &cell)
{
    WorkflowSummary::Cell summary;
    summary.type = cell.value(TYPE_KEY).toString();
    summary.name = cell.value(NAME_KEY).toString();
    summary.title = cell.value(TITLE_KEY).toString();
    if (isTableType(summary.type))
        summary.rows = tableRows(cell);
    else if (cell.value(PROPERTIES_KEY).isArray())
        summary.properties = visibleProperties(cell.value(PROPERTIES_KEY).toArray());
    return summary;
}

WorkflowSummary::Tab summarizeTab(const PropertyEditorContent::Tab &tab)
{
    WorkflowSummary::Tab result{tab.first, {}};
    for (const QString &name : tab.second.first)
        result.columns.append({name, {}, {}});
    const qsizetype columnCount = result.columns.size();
    const VariantItems &cells = tab.second.second;
    // Cells without a column are malformed; there is nowhere to show them.
    for (qsizetype i = 0; columnCount > 0 && i < cells.size(); ++i) {
        const QJsonObject cell = RawCell::objectOf(cells.at(i));
        WorkflowSummary::Column &column = result.columns[i % columnCount];
        column.cells.append(summarizeCell(cell));
        column.type = column.cells.constLast().type;
    }
    return result;
}

/// The names in the first samples table of a tab, column by column as the loaded tree has them, even where it
/// is empty; nothing without one.
std::optional<QStringList> firstSamples(const WorkflowSummary::Tab &summary,
                                        const PropertyEditorContent::Tab &tab)
{
    const QString type = PropertyEditor::BaseItem::typeToString(BaseItemType::Samples);
    for (qsizetype column = 0; column < summary.columns.size(); ++column) {
        const QList<WorkflowSummary::Cell> &cells = summary.columns.at(column).cells;
        const auto found = std::ranges::find(cells, type, &WorkflowSummary::Cell::type);
        if (found == cells.end())
            continue;
        const qsizetype row = std::distance(cells.begin(), found);
        return sampleNames(RawCell::objectOf(tab.second.second.at(row * summary.columns.size() + column)));
    }
    return {};
}

void summarizeState(const PropertyEditorContent &content, WorkflowSummary *summary)
{
    const Result<QVersionNumber> version = WflwMetaData::exactVersion(content.metadata());
    if (version.hasError()) {
        summary->state = WflwMetaData::WflwState::NotSupported;
        summary->messages = version.error().errorMessages() + version.error().details();
        return;
    }
    summary->state = WflwMetaData::checkWorkflowVersion(*version, &content, &summary->messages);
    summary->isNewer = WflwMetaData::isNewerThanCurrent(*version);
}

} // namespace

WorkflowSummary WorkflowSummary::of(const PropertyEditorContent &content)
{
    const QJsonObject metadata = content.metadata();
    WorkflowSummary summary;
    summary.version = WflwMetaData::versionFromMetaDataObject(metadata);
    summarizeState(content, &summary);
    summary.name = WflwMetaData::nameFromMetaDataObject(metadata);
    summary.description = WflwMetaData::descriptionFromMetaDataObject(metadata);
    summary.iconName = WflwMetaData::iconNameFromMetaDataObject(metadata);
    summary.workflowType = WflwMetaData::workflowType(metadata);
    summary.contentMode = int(WflwMetaData::contentMode(metadata));
    std::optional<QStringList> samples;
    for (const PropertyEditorContent::Tab &tab : content.tabsAndContent()) {
        summary.tabs.append(summarizeTab(tab));
        if (!samples)
            samples = firstSamples(summary.tabs.constLast(), tab);
        for (const Column &column : summary.tabs.constLast().columns) {
            const CellType *row = rowOf(column.type);
            if (row && row->document)
                summary.documents.append(column.type);
        }
    }
    summary.samples = samples.value_or(QStringList());
    return summary;
}

} // namespace orv
