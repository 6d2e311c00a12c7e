#include "orv/propertyeditor/content/CellStamps.h"

#include <orv/propertyeditor/content/LoadContext.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>

namespace orv::CellStamps {

using namespace PropertyEditorStringConstants;
using PropertyEditor::LoadContext;

namespace {

struct CellStampsTr
{
    Q_DECLARE_TR_FUNCTIONS(CellStamps)
};

QString metadataOfCell()
{
    return CellStampsTr::tr("the metadata of the cell");
}

void reportCell(const QJsonObject &object, const LoadContext &cell)
{
    constexpr std::array kStamp = {USER_KEY, CREATED_KEY, VERSION_KEY};
    reportUnreadable(object, cell);
    const LoadContext context = cell.member(META_IN_JSON_KEY);
    const QJsonObject metadata =
        QJsonDocument::fromJson(object.value(META_IN_JSON_KEY).toString().toUtf8()).object();
    for (auto it = metadata.begin(); it != metadata.end(); ++it) {
        if (std::ranges::find(kStamp, it.key()) == kStamp.end()) {
            context.lost(it.key(), CellStampsTr::tr("member \"%1\"").arg(it.key()),
                         CellStampsTr::tr("a new stamp takes the place of the cell's metadata"));
        }
    }
}

QJsonArray restoredCells(QJsonArray cells, const QJsonArray &source)
{
    for (qsizetype i = 0; i < std::min(cells.size(), source.size()); ++i) {
        QJsonObject cell = cells.at(i).toObject();
        const QJsonValue stamp = source.at(i).toObject().value(META_IN_JSON_KEY);
        if (stamp.isUndefined())
            cell.remove(META_IN_JSON_KEY);
        else
            cell.insert(META_IN_JSON_KEY, stamp);
        cells[i] = cell;
    }
    return cells;
}

} // namespace

void reportUnreadable(const QJsonObject &object, const LoadContext &cell)
{
    const QJsonValue metadata = object.value(META_IN_JSON_KEY);
    const QString text = metadata.toString();
    if (metadata.isUndefined() || metadata == QJsonValue(QString()))
        return;
    if (!QJsonDocument::fromJson(text.toUtf8()).isObject()) {
        cell.lost(META_IN_JSON_KEY, metadataOfCell(),
                  CellStampsTr::tr("they are not the JSON text of an object"));
    } else if (const Error fault = WflwMetaData::faultInText(text)) {
        cell.lost(META_IN_JSON_KEY, metadataOfCell(), fault.errorMessage());
    }
}

void reportLosses(const QJsonObject &document, LossObserver *observer)
{
    if (!observer)
        return;
    const LoadContext context = LoadContext(observer).member(TABS_KEY);
    const QJsonArray tabs = document.value(TABS_KEY).toArray();
    for (qsizetype i = 0; i < tabs.size(); ++i) {
        const QJsonArray cells = tabs.at(i).toObject().value(CELLS_KEY).toArray();
        for (qsizetype j = 0; j < cells.size(); ++j)
            reportCell(cells.at(j).toObject(), context.element(i).member(CELLS_KEY).element(j));
    }
}

QJsonObject restored(QJsonObject document, const QJsonObject &source)
{
    QJsonArray tabs = document.value(TABS_KEY).toArray();
    const QJsonArray sourceTabs = source.value(TABS_KEY).toArray();
    for (qsizetype i = 0; i < std::min(tabs.size(), sourceTabs.size()); ++i) {
        QJsonObject tab = tabs.at(i).toObject();
        tab.insert(CELLS_KEY, restoredCells(tab.value(CELLS_KEY).toArray(),
                                            sourceTabs.at(i).toObject().value(CELLS_KEY).toArray()));
        tabs[i] = tab;
    }
    document.insert(TABS_KEY, tabs);
    return document;
}

QJsonObject without(QJsonObject cell)
{
    cell.remove(META_IN_JSON_KEY);
    return cell;
}

bool differsInStampAlone(const QJsonObject &cell, const QJsonObject &other)
{
    return without(cell) == without(other);
}

} // namespace orv::CellStamps
