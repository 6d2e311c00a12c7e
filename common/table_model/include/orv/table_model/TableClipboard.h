#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/table_model/NumberText.h>

#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace orv {

class TableModel;

/// Text of the clipboard as spreadsheets write and read it: fields between tabulators, rows between ends of
/// lines, fields with either of them in quotes. Unlike a file it has no faults: a quote that has no partner
/// is a character. GUI thread for what touches a model, else any.
namespace TableClipboard {

/// The fields of a text, row after row. Rows may differ in length.
struct ORV_WORKFLOW_EXPORT Grid
{
    QString text;               ///< what most fields lie in
    QList<QString> unquoted;    ///< what the others lie in
    QList<QStringView> fields;  ///< of all rows
    QList<qsizetype> rowBegins; ///< in fields

    [[nodiscard]] qsizetype rowCount() const { return rowBegins.size(); }
    [[nodiscard]] qsizetype fieldCount(qsizetype row) const;
    [[nodiscard]] QStringView field(qsizetype row, qsizetype at) const { return fields[rowBegins[row] + at]; }
    [[nodiscard]] QList<QStringList> toRows() const;
};

[[nodiscard]] ORV_WORKFLOW_EXPORT Grid parse(const QString &text);

/// parse() reads the same rows back.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString format(const QList<QStringList> &rows);

/// Where a text goes.
struct Target
{
    int row = 0;        ///< of the model; what goes beyond the last one makes new rows
    QList<int> columns; ///< from the first cell on, as they are shown
    QSize selected;     ///< columns and rows; a text that fits into them several times is repeated
};

/// What became of it.
struct Outcome
{
    int rows = 0;
    int newRows = 0;
    int columnsLeftOut = 0; ///< of the text, for which the table has no room or no name
    int readOnlyCells = 0;  ///< left as they are
    bool hadHeader = false; ///< its first row named columns, which the fields then went to
};

/// One step of the history. Cells of a row that the text lacks stay as they are. InvalidContent for more text
/// than the table holds, and nothing changes.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<Outcome> paste(const TableModel &model, const Target &target,
                                                        const QString &text);

} // namespace TableClipboard

} // namespace orv
