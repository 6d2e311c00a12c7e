#pragma once

#include <orv/table_model/TableModel.h>

#include <QList>
#include <QString>

#include <functional>
#include <memory>

QT_FORWARD_DECLARE_CLASS(QObject)
QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

class TableEditor;

/// What widgets around one table share.
namespace TablePage {

/// The editor of a sheet, which holds it until it has gone. Tables of one \a kind remember their columns; at
/// first these are wide enough for the notes, too.
[[nodiscard]] TableEditor *editorOf(const std::shared_ptr<TableSheet> &sheet, const QString &title,
                                    const QString &kind, const TableModel::Notes &notes = {});

/// The title, the header and the rows that are shown, for screen readers and reports; empty for null.
[[nodiscard]] QString textOf(const TableEditor *editor);

/// Calls \a tell once for all steps that one event does, behind it: whoever listens may do anything, closing
/// the window included, which must not happen inside of a cell's editor.
void tellAfterEvents(const TableSheet &sheet, QObject *context, const std::function<void()> &tell);

/// Tab goes through the parts of a widget in this order, and within each as before.
void orderFocus(const QWidget &root, const QList<const QWidget *> &parts);

} // namespace TablePage

} // namespace orv
