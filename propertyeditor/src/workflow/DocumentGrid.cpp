#include "DocumentGrid.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QSet>

#include <algorithm>

namespace orv {

using namespace PropertyEditorStringConstants;

DocumentGrid::DocumentGrid(const QJsonObject &tab)
    : columns(PropertyEditorJsonUtils::jsonArrayToStringList(tab.value(COLUMNS_KEY).toArray()))
    , cells(tab.value(CELLS_KEY).toArray())
{}

QJsonArray DocumentGrid::column(std::optional<qsizetype> index) const
{
    QJsonArray column;
    for (qsizetype i = index.value_or(cells.size()); i < cells.size(); i += columns.size())
        column.append(cells.at(i));
    return column;
}

bool DocumentGrid::canBeMixed(const QJsonObject &left, const QJsonObject &right)
{
    const auto hasNames = [](const QJsonObject &tab) {
        const QJsonArray names = tab.value(COLUMNS_KEY).toArray();
        return std::all_of(names.begin(), names.end(),
                           [](const QJsonValue &name) { return name.isString(); });
    };
    const DocumentGrid l(left);
    const DocumentGrid r(right);
    // A tab that lost all of its columns couldn't be told by columns any more.
    const QSet<QString> names(r.columns.begin(), r.columns.end());
    const bool sharesOne = std::any_of(l.columns.begin(), l.columns.end(),
                                       [&names](const QString &name) { return names.contains(name); });
    return sharesOne && l.isRectangle() && r.isRectangle() && l.height() == r.height() && hasNames(left) &&
           hasNames(right);
}

} // namespace orv
