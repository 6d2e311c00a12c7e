#include "FindingPlaces.h"

#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QJsonArray>

namespace orv::cli {

using namespace PropertyEditor;
using namespace PropertyEditorStringConstants;

namespace {

/// Below an entry of samples; empty where the sample doesn't stand there under its name.
QString pointerOfSample(const QJsonObject &entry, const QString &sample)
{
    const QJsonArray samples = entry.value(VALUE_KEY).toObject().value(QLatin1String("Samples")).toArray();
    for (qsizetype i = 0; i < samples.size(); ++i) {
        if (samples.at(i).toObject().value(QLatin1String("SampleName")).toString() == sample)
            return QStringLiteral("/%1/Samples/%2").arg(VALUE_KEY).arg(i);
    }
    return {};
}

/// Below a cell: the value of the property, as far as the cell has one.
QString pointerInCell(const QJsonObject &cell, const FindingPlace &place)
{
    if (place.property == PropertyId::NoProperty)
        return {};
    const QJsonArray entries = cell.value(PROPERTIES_KEY).toArray();
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const QJsonObject entry = entries.at(i).toObject();
        if (PropertyEditorJsonUtils::findPropertyBackCompat(entry, place.item->type()) != place.property)
            continue;
        const QString pointer = QStringLiteral("/%1/%2").arg(PROPERTIES_KEY).arg(i);
        const QString sample = place.sample.isEmpty() ? QString() : pointerOfSample(entry, place.sample);
        if (!sample.isEmpty())
            return pointer + sample;
        return entry.contains(VALUE_KEY) ? pointer + QLatin1Char('/') + VALUE_KEY : pointer;
    }
    return {};
}

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
                m_cells.insert(items.at(row), {tab, column, row, row * int(columns.size()) + column,
                                               tabs.at(tab)->name(), columns.at(column)->name()});
            }
        }
    }
}

QString FindingPlaces::pointerOf(const Cell &cell, const FindingPlace &place) const
{
    const QJsonObject json = m_document.value(TABS_KEY)
                                 .toArray()
                                 .at(cell.tab)
                                 .toObject()
                                 .value(CELLS_KEY)
                                 .toArray()
                                 .at(cell.number)
                                 .toObject();
    return QStringLiteral("/%1/%2/%3/%4").arg(TABS_KEY).arg(cell.tab).arg(CELLS_KEY).arg(cell.number) +
           pointerInCell(json, place);
}

LocatedFinding FindingPlaces::locate(const FindingPlace &place) const
{
    LocatedFinding found;
    found.sample = place.sample;
    if (place.property != PropertyId::NoProperty)
        found.property = PropertiesNames::internalNameForType(place.property);
    const auto cell = m_cells.constFind(place.item);
    if (cell == m_cells.cend())
        return found;
    found.tab = cell->tabName;
    found.column = cell->columnName;
    found.row = cell->row;
    found.pointer = pointerOf(*cell, place);
    return found;
}

} // namespace orv::cli
