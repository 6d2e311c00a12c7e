#include "WrittenForm.h"

#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/CellTypes.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QJsonArray>
#include <QJsonDocument>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

bool hasSettings(const QJsonObject &cell)
{
    const QString type = cell.value(TYPE_KEY).toString();
    const auto *row = PropertyEditor::CellTypes::find(PropertyEditor::BaseItem::typeFromString(type));
    return row && row->holdsSettings;
}

QJsonObject inWrittenForm(QJsonObject cell, const QString &column)
{
    if (!cell.contains(NAME_KEY))
        cell.insert(NAME_KEY, column);
    if (!cell.value(PROPERTIES_KEY).isArray() || !hasSettings(cell))
        return cell;
    QJsonArray entries = cell.value(PROPERTIES_KEY).toArray();
    for (auto &&element : entries) {
        QJsonObject entry = element.toObject();
        if (!element.isObject() || entry.contains(PRIORITY_KEY))
            continue;
        entry.insert(PRIORITY_KEY, int(PropertySetCreator::Priority::High));
        element = entry;
    }
    cell.insert(PROPERTIES_KEY, entries);
    return cell;
}

} // namespace

WrittenForm::WrittenForm(const DocumentState &state)
{
    QJsonArray tabs;
    for (const DocumentState::Tab &tab : state.tabs) {
        QJsonArray written;
        for (qsizetype i = 0; i < tab.cells.size(); ++i) {
            const QJsonObject cell = QJsonDocument::fromJson(tab.cells.at(i)).object();
            const QJsonObject form = inWrittenForm(cell, tab.columns.value(i));
            written.append(form);
            if (form != cell)
                cells.insert(QJsonDocument(form).toJson(QJsonDocument::Compact), tab.cells.at(i));
        }
        tabs.append(QJsonObject{{NAME_KEY, tab.title},
                                {COLUMNS_KEY, QJsonArray::fromStringList(tab.columns)},
                                {CELLS_KEY, written}});
    }
    document = {{TABS_KEY, tabs}};
}

} // namespace orv
