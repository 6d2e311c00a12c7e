#pragma once

#include <orv/core/Error.h>

#include <QDialog>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QDialogButtonBox)

namespace orv {

class TableEditor;

/// Fills a dialog with a table and the buttons "OK" and "Cancel". OK waits while a cell isn't allowed or
/// \a check, which may be empty, finds something wrong. Enter belongs to the table.
QDialogButtonBox *layOutTableDialog(QDialog *dialog, TableEditor *editor,
                                    const std::function<Error()> &check = {});

} // namespace orv
