#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QJsonObject>
#include <QString>

namespace orv {

/// Where a cell stands in the JSON of a document, so that one cell can be read or replaced without loading
/// the others. A plain value; valid as long as tabs and columns stay.
struct ORV_WORKFLOW_EXPORT CellPlace
{
    qsizetype tab = 0;
    qsizetype column = 0;
    qsizetype row = 0;
    qsizetype cell = 0; ///< position in the tab's array of cells
    QString tabName;
    QString columnName;

    /// The cell in \a row of a column; \a tab and \a column are names or, where nothing is called so, numbers
    /// counted from 0. Of several things of one name the first counts. InvalidContent tells what there is
    /// instead, MalformedStructure that the document has no such structure.
    [[nodiscard]] static Result<CellPlace> find(const QJsonObject &document, const QString &tab,
                                                const QString &column, qsizetype row);

    [[nodiscard]] QJsonObject cellIn(const QJsonObject &document) const;
    [[nodiscard]] QJsonObject replacedIn(QJsonObject document, const QJsonObject &cell) const;
};

} // namespace orv
