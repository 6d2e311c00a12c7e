#include "orv/propertyeditor/validators/FindingPlaces.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QJsonArray>

namespace orv::PropertyEditor {

using namespace PropertyEditorStringConstants;

namespace {

constexpr QLatin1String kSamplesKey("Samples");

} // namespace

FindingPlaces::FindingPlaces(const Content &content, const QJsonObject &document)
    : m_document(document)
{
    const QList<ItemGroup *> tabs = content.groups();
    for (int tab = 0; tab < tabs.size(); ++tab) {
        const QList<ItemSubGroup *> columns = tabs.at(tab)->subGroups();
        for (int column = 0; column < columns.size(); ++column) {
            const QList<BaseItem *> items = columns.at(column)->items();
            for (int row = 0; row < items.size(); ++row) {
                m_cells.insert(items.at(row), {tab, row, row * int(columns.size()) + column,
                                               tabs.at(tab)->name(), columns.at(column)->name()});
            }
        }
    }
}

FindingPlaces::Entry FindingPlaces::entryOf(const QJsonObject &json, const QString &pointer)
{
    Entry entry{pointer, {}, {}};
    const QJsonValue value = json.value(VALUE_KEY);
    if (value.isUndefined())
        return entry;
    entry.pointer += QLatin1Char('/') + VALUE_KEY;
    const QJsonArray samples = value.toObject().value(kSamplesKey).toArray();
    for (qsizetype row = 0; row < samples.size(); ++row) {
        const QString name = samples.at(row).toObject().value(QLatin1String("SampleName")).toString();
        entry.samples.append(name);
        if (!entry.rows.contains(name))
            entry.rows.insert(name, row);
    }
    return entry;
}

/// The document may have its samples in an older form, or in another order than what was made of it.
std::optional<qsizetype> FindingPlaces::rowOf(const FindingPlace &place, const Entry &entry)
{
    if (place.sampleRow && *place.sampleRow < entry.samples.size() &&
        entry.samples.at(*place.sampleRow) == place.sample)
        return place.sampleRow;
    const auto first = entry.rows.constFind(place.sample);
    return place.sample.isEmpty() || first == entry.rows.cend() ? std::nullopt : std::optional(*first);
}

FindingPlaces::Entries FindingPlaces::entriesOf(const Cell &cell, const BaseItem &item,
                                                const QString &pointer) const
{
    const QJsonObject tab = m_document.value(TABS_KEY).toArray().at(cell.tab).toObject();
    const QJsonObject json = tab.value(CELLS_KEY).toArray().at(cell.number).toObject();
    const QJsonArray properties = json.value(PROPERTIES_KEY).toArray();
    Entries entries;
    for (qsizetype i = 0; i < properties.size(); ++i) {
        const QJsonObject property = properties.at(i).toObject();
        const PropertyId id = PropertyEditorJsonUtils::findPropertyBackCompat(property, item.type());
        if (!entries.contains(id))
            entries.insert(id,
                           entryOf(property, QStringLiteral("%1/%2/%3").arg(pointer, PROPERTIES_KEY).arg(i)));
    }
    return entries;
}

/// Of the cell or, as far as the document has it, of what in the cell the place is.
QString FindingPlaces::pointerOf(Cell &cell, const FindingPlace &place) const
{
    if (m_document.isEmpty())
        return {};
    QString pointer =
        QStringLiteral("/%1/%2/%3/%4").arg(TABS_KEY).arg(cell.tab).arg(CELLS_KEY).arg(cell.number);
    if (place.property == PropertyId::NoProperty)
        return pointer;
    if (!cell.entries)
        cell.entries = entriesOf(cell, *place.item, pointer);
    const auto entry = cell.entries->constFind(place.property);
    if (entry == cell.entries->cend())
        return pointer;
    const std::optional<qsizetype> row = rowOf(place, *entry);
    return row ? QStringLiteral("%1/%2/%3").arg(entry->pointer, kSamplesKey).arg(*row) : entry->pointer;
}

NamedPlace FindingPlaces::named(const FindingPlace &place)
{
    NamedPlace found;
    found.sample = place.sample;
    if (place.property != PropertyId::NoProperty)
        found.property = PropertiesNames::internalNameForType(place.property);
    const auto cell = m_cells.find(place.item);
    if (cell == m_cells.end())
        return found;
    found.tab = cell->tabName;
    found.column = cell->columnName;
    found.row = cell->row;
    found.pointer = pointerOf(*cell, place);
    return found;
}

} // namespace orv::PropertyEditor
