#pragma once

#include "TableCommands.h"

#include <orv/widgets/Icons.h>

#include <QKeySequence>

namespace orv {

/// Which commands a table has, in the order of its menu.
struct TableCommandTable
{
    struct Row
    {
        TableView::Command command;
        IconName icon;
        TableCommands::Handler handler;
        const char *name; ///< of the action, for those who look for it
        const char *text; ///< both in the context "TableCommands"
        const char *tip;
        QKeySequence::StandardKey standard;
        QKeyCombination keys; ///< where there is no standard
        bool beginsGroup;
    };

    static const QList<Row> &rows();
};

} // namespace orv
