#include "orv/propertyeditor/content/CellPlace.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QCoreApplication>
#include <QJsonArray>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

struct CellPlaceTr
{
    Q_DECLARE_TR_FUNCTIONS(CellPlace)
};

/// The position of the thing called \a wanted, or that number; -1 if there is neither.
qsizetype positionOf(const QString &wanted, const QStringList &names)
{
    if (const qsizetype position = names.indexOf(wanted); position >= 0)
        return position;
    bool isNumber = false;
    const qsizetype number = wanted.toInt(&isNumber);
    return isNumber && number >= 0 && number < names.size() ? number : -1;
}

QStringList tabNames(const QJsonArray &tabs)
{
    QStringList names;
    for (const auto tab : tabs)
        names.append(tab.toObject().value(NAME_KEY).toString());
    return names;
}

Error unknown(const QString &message, const QStringList &names)
{
    return Error(ErrorCode::InvalidContent, message)
        .addDetail(CellPlaceTr::tr("There is: %1.").arg(names.join(QLatin1String(", "))));
}

} // namespace

Result<CellPlace> CellPlace::find(const QJsonObject &document, const QString &tab, const QString &column,
                                  qsizetype row)
{
    CellPlace place;
    const QJsonArray tabs = document.value(TABS_KEY).toArray();
    if (tabs.isEmpty())
        return Error(ErrorCode::MalformedStructure, CellPlaceTr::tr("The document has no tabs."));
    place.tab = positionOf(tab, tabNames(tabs));
    if (place.tab < 0)
        return unknown(CellPlaceTr::tr("There is no tab \"%1\".").arg(tab), tabNames(tabs));
    place.tabName = tabNames(tabs).at(place.tab);

    const QJsonObject tabObject = tabs.at(place.tab).toObject();
    const QStringList columns =
        PropertyEditorJsonUtils::jsonArrayToStringList(tabObject.value(COLUMNS_KEY).toArray());
    place.column = positionOf(column, columns);
    if (place.column < 0)
        return unknown(
            CellPlaceTr::tr("There is no column \"%1\" in the tab \"%2\".").arg(column, place.tabName),
            columns);
    place.columnName = columns.at(place.column);

    const qsizetype cells = tabObject.value(CELLS_KEY).toArray().size();
    const qsizetype rows = (cells - place.column + columns.size() - 1) / columns.size();
    if (row < 0 || row >= rows) {
        return Error(
                   ErrorCode::InvalidContent,
                   CellPlaceTr::tr("There is no row %1 in the column \"%2\".").arg(row).arg(place.columnName))
            .addDetail(CellPlaceTr::tr("Its rows: %1, counted from 0.").arg(rows));
    }
    place.row = row;
    place.cell = row * columns.size() + place.column;
    return place;
}

QJsonObject CellPlace::cellIn(const QJsonObject &document) const
{
    const QJsonObject tabObject = document.value(TABS_KEY).toArray().at(tab).toObject();
    return tabObject.value(CELLS_KEY).toArray().at(cell).toObject();
}

QJsonObject CellPlace::replacedIn(QJsonObject document, const QJsonObject &replacement) const
{
    QJsonArray tabs = document.value(TABS_KEY).toArray();
    QJsonObject tabObject = tabs.at(tab).toObject();
    QJsonArray cells = tabObject.value(CELLS_KEY).toArray();
    cells.replace(cell, replacement);
    tabObject.insert(CELLS_KEY, cells);
    tabs.replace(tab, tabObject);
    document.insert(TABS_KEY, tabs);
    return document;
}

} // namespace orv
