#include "OldSampleLosses.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/LoadContext.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QCoreApplication>
#include <QJsonArray>

namespace orv {

using namespace PropertyEditorStringConstants;
using PropertyEditor::LoadContext;

namespace {

struct OldSampleLossesTr
{
    Q_DECLARE_TR_FUNCTIONS(OldSampleLosses)
};

void reportRow(const LoadContext &context, const QJsonObject &row, qsizetype columnCount)
{
    for (auto it = row.begin(); it != row.end(); ++it) {
        if (it.key() != DATA && it.key() != CHILDREN)
            context.lost(it.key(), OldSampleLossesTr::tr("member \"%1\" of a sample").arg(it.key()),
                         OldSampleLossesTr::tr("samples in rows have no such member"));
    }
    const QJsonArray values = row.value(DATA).toArray();
    for (qsizetype i = columnCount; i < values.size(); ++i) {
        context.member(DATA).lost(QString::number(i), OldSampleLossesTr::tr("a value of a sample"),
                                  OldSampleLossesTr::tr("it stands behind the last column"));
    }
}

void reportCell(const LoadContext &context, const QJsonObject &cell)
{
    const QJsonArray entries = cell.value(PROPERTIES_KEY).toArray();
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const QJsonObject table = entries.at(i).toObject().value(VALUE_KEY).toObject();
        const QJsonArray rows = table.value(CHILDREN).toArray();
        const qsizetype columnCount = table.value(DATA).toArray().size();
        const LoadContext place =
            context.member(PROPERTIES_KEY).element(i).member(VALUE_KEY).member(CHILDREN);
        for (qsizetype row = 0; row < rows.size(); ++row)
            reportRow(place.element(row), rows.at(row).toObject(), columnCount);
    }
}

} // namespace

void reportOldSampleLosses(const QJsonObject &document, LossObserver *observer)
{
    const QString samples = PropertyEditor::BaseItem::typeToString(BaseItemType::Samples);
    const LoadContext context = LoadContext(observer).member(TABS_KEY);
    const QJsonArray tabs = document.value(TABS_KEY).toArray();
    for (qsizetype i = 0; i < tabs.size(); ++i) {
        const QJsonArray cells = tabs.at(i).toObject().value(CELLS_KEY).toArray();
        for (qsizetype j = 0; j < cells.size(); ++j) {
            const QJsonObject cell = cells.at(j).toObject();
            if (cell.value(TYPE_KEY).toString() == samples)
                reportCell(context.element(i).member(CELLS_KEY).element(j), cell);
        }
    }
}

} // namespace orv
