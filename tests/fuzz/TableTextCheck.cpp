#include "FormChecks.h"

#include <orv/table_model/TableClipboard.h>
#include <orv/table_model/TableExport.h>
#include <orv/table_model/TableImport.h>
#include <orv/table_model/TableModel.h>

using namespace orv;
using namespace Qt::StringLiterals;

namespace FormChecks {

namespace {

QList<TableColumn> someColumns()
{
    TableColumn name{.name = u"name"_s, .title = u"Name"_s};
    name.isRequired = true;
    TableColumn mass{.name = u"mass"_s, .title = u"Mass"_s, .unit = u"Da"_s, .kind = TableColumnKind::Number};
    mass.minimum = 0;
    TableColumn charge{.name = u"charge"_s, .title = u"Charge"_s, .kind = TableColumnKind::Integer};
    charge.defaultText = u"2"_s;
    TableColumn sequence{.name = u"sequence"_s, .title = u"Sequence"_s, .kind = TableColumnKind::Sequence};
    return {name, mass, charge, sequence};
}

bool hasProblem(const QList<TableColumn> &columns, const QStringList &row)
{
    for (qsizetype column = 0; column < columns.size(); ++column) {
        if (!columns[column].problem(row.value(column)).isEmpty())
            return true;
    }
    return false;
}

QString checkClipboard(const QString &text)
{
    const QList<QStringList> rows = TableClipboard::parse(text).toRows();
    if (TableClipboard::parse(TableClipboard::format(rows)).toRows() != rows)
        return u"cells of the clipboard read back as others"_s;
    TableSheet sheet(someColumns());
    sheet.insertRows(0, 3);
    const QList<QStringList> before = sheet.allTexts();
    const TableModel model(&sheet);
    const auto pasted = TableClipboard::paste(model, {1, {0, 1, 2, 3}, {2, 2}}, text);
    if (pasted.hasError())
        return u"a small text has no room"_s;
    const QList<QStringList> after = sheet.allTexts();
    if (sheet.rowCount() != std::max(3, 1 + pasted->rows))
        return u"a paste makes more or fewer rows than it tells"_s;
    while (sheet.history()->index() > 1)
        sheet.history()->undo();
    if (sheet.allTexts() != before)
        return u"an undone paste leaves something"_s;
    while (sheet.history()->canRedo())
        sheet.history()->redo();
    return sheet.allTexts() == after ? QString() : u"a redone paste is another"_s;
}

QString checkImport(const QByteArray &bytes)
{
    const QList<TableColumn> columns = someColumns();
    TableImport import(bytes, columns);
    for (const TableImportProblem &problem : import.problems()) {
        if (problem.reason.isEmpty() || problem.line < 1)
            return u"a problem without a place or a reason"_s;
    }
    const QList<QStringList> good = import.rows(TableImport::Faulty::LeaveOut);
    if (import.rows(TableImport::Faulty::Take).size() != import.recordCount() ||
        good.size() != import.recordCount() - import.faultyRecordCount())
        return u"more or fewer rows than are told"_s;
    for (const QStringList &row : good) {
        if (hasProblem(columns, row))
            return u"a row with a problem passes"_s;
    }
    TableSheet sheet(columns);
    if (sheet.load(good).hasError())
        return u"a small table has no room"_s;
    const TableModel model(&sheet);
    TableImport again(TableExport::text(model, {0, 1, 2, 3}, TableExport::Separator::Comma), columns);
    again.setFormat({});
    return again.rows(TableImport::Faulty::Take) == good ? QString() : u"rows are exported as others"_s;
}

} // namespace

QString checkTableText(const QByteArray &bytes)
{
    const QString wrong = checkClipboard(QString::fromUtf8(bytes));
    return wrong.isEmpty() ? checkImport(bytes) : wrong;
}

} // namespace FormChecks
